// SPDX-License-Identifier: MIT
#include "QuickLook/Reading/PreviewReading.h"

#include "QuickLook/Reading/FakeFileReader.h"
#include "QuickLook/Reading/FakeRasterDecoder.h"
#include "QuickLook/Reading/Rasters.h"
#include "QuickLook/Reading/SampleFiles.h"

#include <gtest/gtest.h>

namespace tessera {

namespace {

class PreviewReadingTest : public testing::Test {
protected:
    Preview read(const std::string& path, const std::stop_token& stop = {}) const
    {
        return readPreview(files, decoder, {path, isFolder, QSize(120, 90), 100}, stop);
    }

    bool isFolder = false; ///< when it was scanned
    test::FakeFileReader files;
    test::FakeRasterDecoder decoder;
};

bool hasNoContent(const Preview& preview)
{
    return std::holds_alternative<std::monostate>(preview.content);
}

} // namespace

TEST_F(PreviewReadingTest, AnImageBecomesAPicture)
{
    files.addFile("/a.png", test::imageFile({300, 150}, "png"));
    decoder.setAnswer(
        {RasterOutcome::Whole,
         PixelSize{300, 150},
         0,
         {test::opaqueRaster({100, 50}, 0xFF102030)}});

    const Preview preview = read("/a.png");

    ASSERT_TRUE(std::holds_alternative<PreviewPicture>(preview.content));
    const QImage& image = std::get<PreviewPicture>(preview.content).image;
    EXPECT_EQ(image.size(), QSize(100, 50));
    EXPECT_EQ(image.pixelColor(99, 49), QColor(0x10, 0x20, 0x30));
    EXPECT_EQ(preview.pixelSize, QSize(300, 150));
    EXPECT_EQ(preview.kind, QStringLiteral("PNG image"));
}

TEST_F(PreviewReadingTest, APictureIsAskedForAsLargeAsThePanelShowsIt)
{
    files.addFile("/a.png", test::imageFile({3, 3}, "png"));

    (void)read("/a.png");

    ASSERT_EQ(decoder.requests().size(), 1U);
    EXPECT_EQ(decoder.requests().front().kind, RasterRequest::Kind::Picture);
    EXPECT_EQ(decoder.requests().front().limit, (PixelSize{120, 90}));
}

TEST_F(PreviewReadingTest, APictureKeepsItsTransparency)
{
    files.addFile("/a.png", test::imageFile({1, 1}, "png"));
    Raster raster = test::opaqueRaster({1, 1}, 0x80400000); // half of a red, multiplied
    raster.isOpaque = false;
    decoder.setAnswer({RasterOutcome::Whole, PixelSize{1, 1}, 0, {raster}});

    const QImage image = std::get<PreviewPicture>(read("/a.png").content).image;

    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0x80);
    EXPECT_NEAR(image.pixelColor(0, 0).red(), 0x80, 1);
}

TEST_F(PreviewReadingTest, TheContentTellsAnImageWhateverItsName)
{
    files.addFile("/picture.txt", test::imageFile({3, 3}, "jpg"));
    decoder.setAnswer(
        {RasterOutcome::Whole, PixelSize{3, 3}, 0, {test::opaqueRaster({3, 3}, 0xFF000000)}});

    const Preview preview = read("/picture.txt");

    EXPECT_TRUE(std::holds_alternative<PreviewPicture>(preview.content));
    EXPECT_EQ(preview.kind, QStringLiteral("JPEG image"));
}

TEST_F(PreviewReadingTest, ADocumentBecomesPages)
{
    files.addFile("/a.pdf", "%PDF-1.4");
    const Raster page = test::opaqueRaster({100, 141}, 0xFFFFFFFF);
    decoder.setAnswer({RasterOutcome::Whole, std::nullopt, 12, {page, page}});

    const Preview preview = read("/a.pdf");

    ASSERT_TRUE(std::holds_alternative<PreviewPages>(preview.content));
    const auto& pages = std::get<PreviewPages>(preview.content);
    ASSERT_EQ(pages.pages.size(), 2U);
    EXPECT_EQ(pages.pages.back().size(), QSize(100, 141));
    EXPECT_EQ(pages.pageCount, 12);
    EXPECT_EQ(preview.kind, QStringLiteral("PDF document"));
}

TEST_F(PreviewReadingTest, APageMayBeFourTimesAsHighAsWide)
{
    files.addFile("/a.pdf", "%PDF-1.4");

    (void)read("/a.pdf");

    ASSERT_EQ(decoder.requests().size(), 1U);
    EXPECT_EQ(decoder.requests().front().kind, RasterRequest::Kind::Pages);
    EXPECT_EQ(decoder.requests().front().limit, (PixelSize{100, 400}));
}

TEST_F(PreviewReadingTest, SaysThatDecodingWasCutShort)
{
    files.addFile("/a.pdf", "%PDF-1.4");
    decoder.setAnswer({RasterOutcome::CutShort, std::nullopt, 1, {}});

    const Preview preview = read("/a.pdf");

    EXPECT_TRUE(hasNoContent(preview));
    EXPECT_EQ(preview.decoding, RasterOutcome::CutShort);
}

TEST_F(PreviewReadingTest, ATextThatBeginsLikeAPictureIsShownAsText)
{
    files.addFile("/a.txt", "BMW builds cars");
    decoder.setAnswer({RasterOutcome::CutShort, std::nullopt, 0, {}});

    const Preview preview = read("/a.txt");

    EXPECT_TRUE(std::holds_alternative<PreviewText>(preview.content));
    EXPECT_EQ(preview.decoding, RasterOutcome::Whole);
}

TEST_F(PreviewReadingTest, OfAFileBeyondOneGibibyteNothingIsDecoded)
{
    constexpr std::uint64_t kGibibyte = 1'073'741'824;
    files.addEndlessFile("/within.bmp", 'B', kGibibyte);
    files.addEndlessFile("/beyond.bmp", 'B', kGibibyte + 1);
    files.setBeginning("/within.bmp", "BM");
    files.setBeginning("/beyond.bmp", "BM");

    (void)read("/beyond.bmp");
    EXPECT_TRUE(decoder.requests().empty());
    (void)read("/within.bmp");
    EXPECT_EQ(decoder.requests().size(), 1U);
}

TEST_F(PreviewReadingTest, ATextIsShownAsText)
{
    files.addFile("/a.txt", "two\nlines");

    const Preview preview = read("/a.txt");

    ASSERT_TRUE(std::holds_alternative<PreviewText>(preview.content));
    EXPECT_EQ(std::get<PreviewText>(preview.content).text, QStringLiteral("two\nlines"));
    EXPECT_FALSE(std::get<PreviewText>(preview.content).isCut);
    EXPECT_EQ(preview.kind, QStringLiteral("plain text document"));
    EXPECT_TRUE(decoder.requests().empty());
}

TEST_F(PreviewReadingTest, OfATextTheFirst64KiBAreShown)
{
    files.addFile("/whole", std::string(65536, 'x'));
    files.addFile("/cut", std::string(65537, 'x'));

    const auto whole = std::get<PreviewText>(read("/whole").content);
    const auto cut = std::get<PreviewText>(read("/cut").content);

    EXPECT_EQ(whole.text.count(u'x'), 65536);
    EXPECT_FALSE(whole.isCut);
    EXPECT_EQ(cut.text.count(u'x'), 65536);
    EXPECT_TRUE(cut.isCut);
}

TEST_F(PreviewReadingTest, AnEndlessFileIsReadNoFurtherThanItIsShown)
{
    files.addEndlessFile("/proc/endless", 'x', 0);

    EXPECT_TRUE(std::holds_alternative<PreviewText>(read("/proc/endless").content));
    EXPECT_LE(files.bytesRead(), kPreviewTextBytes + 1);
}

TEST_F(PreviewReadingTest, OfAHugeFileOfZerosNoMoreThanItsBeginningIsRead)
{
    files.addEndlessFile("/sparse", '\0', 5'000'000'000);

    const Preview preview = read("/sparse");

    EXPECT_TRUE(hasNoContent(preview));
    EXPECT_EQ(preview.file.length, 5'000'000'000U);
    EXPECT_LE(files.bytesRead(), kPreviewTextBytes + 1);
}

TEST_F(PreviewReadingTest, AFolderIsDescribed)
{
    files.addSpecial("/folder", FileKind::Folder);
    isFolder = true;

    const Preview preview = read("/folder");

    EXPECT_TRUE(hasNoContent(preview));
    EXPECT_EQ(preview.kind, QStringLiteral("folder"));
}

TEST_F(PreviewReadingTest, AFileThatTookAFoldersPlaceIsNotShown)
{
    files.addFile("/folder", "somebody else's text");
    isFolder = true;

    const Preview preview = read("/folder");

    EXPECT_EQ(preview.file.error, std::errc::no_such_file_or_directory);
    EXPECT_TRUE(hasNoContent(preview));
    EXPECT_EQ(files.bytesRead(), 0U);
}

TEST_F(PreviewReadingTest, AFolderThatTookAFilesPlaceIsNotShown)
{
    files.addSpecial("/a.png", FileKind::Folder);

    EXPECT_EQ(read("/a.png").file.error, std::errc::no_such_file_or_directory);
}

TEST_F(PreviewReadingTest, ItemsWithoutContentAreDescribed)
{
    files.addSpecial("/pipe", FileKind::Fifo);
    files.addSpecial("/socket", FileKind::Socket);
    files.addSpecial("/dev/zero", FileKind::CharacterDevice);
    files.addSpecial("/dev/sda", FileKind::BlockDevice);
    for (const auto& [path, kind] :
         {std::pair("/pipe", "pipe"),
          std::pair("/socket", "socket"),
          std::pair("/dev/zero", "character device"),
          std::pair("/dev/sda", "block device")}) {
        const Preview preview = read(path);
        EXPECT_TRUE(hasNoContent(preview)) << path;
        EXPECT_EQ(preview.kind, QString::fromLatin1(kind)) << path;
    }
}

TEST_F(PreviewReadingTest, ALinkIsDescribedAndNotFollowed)
{
    files.addSpecial("/link", FileKind::SymbolicLink, "a.png");
    files.addFile("/a.png", test::imageFile({3, 3}, "png"));

    const Preview preview = read("/link");

    EXPECT_TRUE(hasNoContent(preview));
    EXPECT_EQ(preview.file.linkTarget, "a.png");
    EXPECT_EQ(files.opened(), std::vector<std::string>{"/link"});
}

TEST_F(PreviewReadingTest, AnImageThatCannotBeDecodedIsDescribed)
{
    files.addFile("/a.png", test::imageFile({300, 200}, "png"));
    decoder.setAnswer({RasterOutcome::Whole, PixelSize{300, 200}, 0, {}});

    const Preview preview = read("/a.png");

    EXPECT_TRUE(hasNoContent(preview));
    EXPECT_EQ(preview.pixelSize, QSize(300, 200));
    EXPECT_EQ(preview.kind, QStringLiteral("PNG image"));
}

TEST_F(PreviewReadingTest, AnImageWrittenInDigitsThatCannotBeDecodedIsNotShownAsText)
{
    files.addFile("/a.ppm", "P3\n300 200\n255\n1 2 3");
    decoder.setAnswer({RasterOutcome::Whole, PixelSize{300, 200}, 0, {}});

    EXPECT_TRUE(hasNoContent(read("/a.ppm")));
}

TEST_F(PreviewReadingTest, ABinaryFileIsDescribed)
{
    files.addFile(
        "/program",
        std::string(
            "\x7F"
            "ELF\x02\x01\0\0\0",
            9));

    EXPECT_TRUE(hasNoContent(read("/program")));
    EXPECT_FALSE(read("/program").kind.isEmpty());
}

TEST_F(PreviewReadingTest, AnEmptyFileIsDescribed)
{
    files.addFile("/empty.txt", "");

    EXPECT_TRUE(hasNoContent(read("/empty.txt")));
    EXPECT_FALSE(read("/empty.txt").contentError);
}

TEST_F(PreviewReadingTest, ADrawingIsShownByItsText)
{
    files.addFile("/a.svg", R"(<svg xmlns="http://www.w3.org/2000/svg"/>)");

    EXPECT_TRUE(std::holds_alternative<PreviewText>(read("/a.svg").content));
}

TEST_F(PreviewReadingTest, ADrawingThatIsCalledAPictureIsSaidToBeADrawing)
{
    files.addFile("/pic.png", R"(<svg xmlns="http://www.w3.org/2000/svg"/>)");

    EXPECT_EQ(read("/pic.png").kind, QStringLiteral("SVG image"));
}

TEST_F(PreviewReadingTest, ABrokenDocumentIsNotShownAsText)
{
    files.addFile("/a.pdf", "%PDF-1.4 and nothing else");

    EXPECT_TRUE(hasNoContent(read("/a.pdf")));
    EXPECT_EQ(read("/a.pdf").kind, QStringLiteral("PDF document"));
}

TEST_F(PreviewReadingTest, SaysWhyAFileCannotBeRead)
{
    files.addUnreadableFile("/secret.txt", 5);
    files.addBrokenFile("/damaged.txt", 5);

    EXPECT_EQ(read("/secret.txt").contentError, std::errc::permission_denied);
    EXPECT_EQ(read("/secret.txt").kind, QStringLiteral("plain text document"));
    EXPECT_EQ(read("/damaged.txt").contentError, std::errc::io_error);
}

TEST_F(PreviewReadingTest, OfADamagedFileTheReadableBeginningIsShown)
{
    files.addBrokenFile("/damaged.txt", 100, "readable");

    const Preview preview = read("/damaged.txt");

    ASSERT_TRUE(std::holds_alternative<PreviewText>(preview.content));
    EXPECT_EQ(std::get<PreviewText>(preview.content).text, QStringLiteral("readable"));
}

TEST_F(PreviewReadingTest, SaysThatAFileHasVanished)
{
    EXPECT_EQ(read("/none").file.error, std::errc::no_such_file_or_directory);
}

TEST_F(PreviewReadingTest, NamesNeedNotBeText)
{
    files.addFile("/a\xFF\n.txt", "odd");

    EXPECT_TRUE(std::holds_alternative<PreviewText>(read("/a\xFF\n.txt").content));
}

TEST_F(PreviewReadingTest, ACancelledLookDecodesNothing)
{
    files.addFile("/a.png", test::imageFile({300, 150}, "png"));
    std::stop_source cancelling;
    cancelling.request_stop();

    EXPECT_TRUE(hasNoContent(read("/a.png", cancelling.get_token())));
    EXPECT_TRUE(decoder.requests().empty());
}

} // namespace tessera
