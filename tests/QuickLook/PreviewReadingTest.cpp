// SPDX-License-Identifier: MIT
#include "QuickLook/PreviewReading.h"

#include "QuickLook/FakeFileReader.h"
#include "QuickLook/sampleFiles.h"

#include <gtest/gtest.h>

namespace tessera {

namespace {

class PreviewReadingTest : public testing::Test {
protected:
    Preview read(const std::string& path, bool isCancelled = false) const
    {
        const std::atomic<bool> cancelled(isCancelled);
        return readPreview(files, {path, QSize(100, 100), 100}, cancelled);
    }

    test::FakeFileReader files;
};

bool hasNoContent(const Preview& preview)
{
    return std::holds_alternative<std::monostate>(preview.content);
}

} // namespace

TEST_F(PreviewReadingTest, AnImageBecomesAPicture)
{
    files.addFile("/a.png", test::imageFile({300, 150}, "png"));

    const Preview preview = read("/a.png");

    ASSERT_TRUE(std::holds_alternative<PreviewPicture>(preview.content));
    EXPECT_EQ(std::get<PreviewPicture>(preview.content).image.size(), QSize(100, 50));
    EXPECT_EQ(preview.pixelSize, QSize(300, 150));
    EXPECT_EQ(preview.kind, QStringLiteral("PNG image"));
}

TEST_F(PreviewReadingTest, TheContentTellsAnImageWhateverItsName)
{
    files.addFile("/picture.txt", test::imageFile({3, 3}, "jpg"));

    EXPECT_TRUE(std::holds_alternative<PreviewPicture>(read("/picture.txt").content));
}

TEST_F(PreviewReadingTest, ATextIsShownAsText)
{
    files.addFile("/a.txt", "two\nlines");

    const Preview preview = read("/a.txt");

    ASSERT_TRUE(std::holds_alternative<PreviewText>(preview.content));
    EXPECT_EQ(std::get<PreviewText>(preview.content).text, QStringLiteral("two\nlines"));
    EXPECT_FALSE(std::get<PreviewText>(preview.content).isCut);
    EXPECT_EQ(preview.kind, QStringLiteral("plain text document"));
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

TEST_F(PreviewReadingTest, ItemsWithoutContentAreDescribed)
{
    files.addSpecial("/folder", FileKind::Folder);
    files.addSpecial("/pipe", FileKind::Fifo);
    files.addSpecial("/socket", FileKind::Socket);
    files.addSpecial("/dev/zero", FileKind::CharacterDevice);
    files.addSpecial("/dev/sda", FileKind::BlockDevice);
    for (const auto& [path, kind] :
         {std::pair("/folder", "folder"),
          std::pair("/pipe", "pipe"),
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

TEST_F(PreviewReadingTest, ABrokenImageIsDescribed)
{
    const std::string whole = test::imageFile({300, 200}, "png");
    files.addFile("/a.png", whole.substr(0, whole.size() - 40));

    const Preview preview = read("/a.png");

    EXPECT_TRUE(hasNoContent(preview));
    EXPECT_EQ(preview.pixelSize, QSize(300, 200));
    EXPECT_EQ(preview.kind, QStringLiteral("PNG image"));
}

TEST_F(PreviewReadingTest, AnImageOfBillionsOfPixelsIsDescribed)
{
    files.addFile("/bomb.png", test::pngOfClaimedSize(60000, 60000));

    EXPECT_TRUE(hasNoContent(read("/bomb.png")));
    EXPECT_EQ(read("/bomb.png").pixelSize, QSize(60000, 60000));
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

TEST_F(PreviewReadingTest, SaysThatAFileHasVanished)
{
    EXPECT_EQ(read("/none").file.error, std::errc::no_such_file_or_directory);
}

TEST_F(PreviewReadingTest, NamesNeedNotBeText)
{
    files.addFile("/a\xFF\n.txt", "odd");

    EXPECT_TRUE(std::holds_alternative<PreviewText>(read("/a\xFF\n.txt").content));
}

TEST_F(PreviewReadingTest, ACancelledLookReadsNoImage)
{
    files.addFile("/a.png", test::imageFile({300, 150}, "png"));

    EXPECT_TRUE(hasNoContent(read("/a.png", true)));
}

} // namespace tessera
