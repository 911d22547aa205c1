// SPDX-License-Identifier: MIT
#include "Platform/Linux/Preview/ChildRasterDecoder.h"

#include "HelperPrograms/Previewer/HostileFiles.h"
#include "Platform/Linux/Preview/LinuxFileReader.h"
#include "QuickLook/Reading/RasterFrame.h"
#include "QuickLook/Reading/SampleFiles.h"
#include "support/Machine/BuiltPaths.h"
#include "support/Machine/FileContent.h"
#include "support/Machine/TempTree.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#ifdef TESSERA_READS_PDF
#include <QPainter>
#include <QPdfDocument>
#endif

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <bit>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <future>
#include <memory>
#include <string>

namespace tessera::test {
namespace {

constexpr RasterRequest kPicture{RasterRequest::Kind::Picture, {800, 600}};
constexpr RasterRequest kPages{RasterRequest::Kind::Pages, {320, 1280}};

bool isRefused(const RasterAnswer& answer)
{
    return answer.outcome == RasterOutcome::Refused && answer.rasters.empty();
}

QImage imageOf(const Raster& raster)
{
    QImage image(raster.size.width, raster.size.height, QImage::Format_ARGB32_Premultiplied);
    if (raster.isOpaque) {
        image = QImage(raster.size.width, raster.size.height, QImage::Format_RGB32);
    }
    std::memcpy(image.bits(), raster.pixels.data(), raster.pixels.size());
    return image;
}

class ChildRasterDecoderTest : public testing::Test {
protected:
    /// The open file with these bytes.
    std::unique_ptr<ReadableFile> fileOf(const std::string& bytes) const
    {
        tree.writeFile("file", bytes);
        return LinuxFileReader().open(tree.pathOf("file")).content;
    }

    RasterAnswer decode(
        const std::string& bytes,
        const RasterRequest& request,
        const std::stop_token& stop = {}) const
    {
        return ChildRasterDecoder(test::built::previewer()).decode(*fileOf(bytes), request, stop);
    }

    /// The path of a program that does what the shell's words say.
    std::string programThat(const std::string& words) const
    {
        tree.writeFile("program", "#!/bin/sh\n" + words + "\n");
        tree.setMode("program", 0700);
        return tree.pathOf("program");
    }

    /// What is made of such an answer, after which the program does what the words say.
    RasterAnswer answerOf(
        const std::string& said,
        const RasterRequest& request,
        const std::string& words = "exit 0") const
    {
        tree.writeFile("said", said);
        const ChildRasterDecoder decoder(
            programThat("cat '" + tree.pathOf("said") + "'\n" + words));
        return decoder.decode(*fileOf("a file"), request, {});
    }

    TempTree tree;
};

std::string frame(
    RasterFrame::Kind kind, std::int32_t width, std::int32_t height, std::int32_t count = 0)
{
    const auto bytes = std::bit_cast<std::array<char, 16>>(RasterFrame{kind, width, height, count});
    return {bytes.begin(), bytes.end()};
}

TEST_F(ChildRasterDecoderTest, APictureHasThePixelsThatTheReaderOfPicturesGives)
{
    QImage picture(1600, 900, QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            picture.setPixelColor(x, y, QColor(x % 256, y % 256, (x + y) % 256, x * 255 / 1600));
        }
    }
    for (const char* const format : {"png", "jpg", "bmp"}) {
        QBuffer file;
        file.open(QIODevice::ReadWrite);
        picture.save(&file, format);
        file.seek(0);
        QImageReader reader(&file);
        reader.setScaledSize(QSize(800, 450));
        const QImage expected = reader.read();

        const RasterAnswer answer = decode(file.data().toStdString(), kPicture);

        EXPECT_EQ(answer.outcome, RasterOutcome::Whole) << format;
        EXPECT_EQ(answer.pictureSize, (PixelSize{1600, 900})) << format;
        ASSERT_EQ(answer.rasters.size(), 1U) << format;
        const QImage found = imageOf(answer.rasters.front());
        EXPECT_EQ(found, expected.convertToFormat(found.format())) << format;
        EXPECT_EQ(answer.rasters.front().isOpaque, !expected.hasAlphaChannel()) << format;
    }
}

#ifdef TESSERA_READS_PDF
TEST_F(ChildRasterDecoderTest, PagesHaveThePixelsThatTheReaderOfDocumentsGives)
{
    const std::string bytes = pdfFile(3);
    QBuffer file;
    file.setData(QByteArray::fromStdString(bytes));
    file.open(QIODevice::ReadOnly);
    QPdfDocument document;
    document.load(&file);

    const RasterAnswer answer = decode(bytes, kPages);

    EXPECT_EQ(answer.outcome, RasterOutcome::Whole);
    EXPECT_EQ(answer.pageCount, 3);
    ASSERT_EQ(answer.rasters.size(), 3U);
    for (int page = 0; page < 3; ++page) {
        const QImage found = imageOf(answer.rasters.at(static_cast<std::size_t>(page)));
        QImage expected(found.size(), QImage::Format_RGB32);
        expected.fill(Qt::white);
        QPainter(&expected).drawImage(0, 0, document.render(page, found.size()));
        EXPECT_EQ(found, expected) << page;
    }
}

TEST_F(ChildRasterDecoderTest, ADocumentThatTakesAllMemoryIsCutShort)
{
#ifdef TESSERA_SANITIZED
    GTEST_SKIP() << "the sanitizers need more memory than there is to be";
#endif
    const RasterAnswer answer = decode(pdfThatTakesAllMemory(), kPages);

    EXPECT_EQ(answer.outcome, RasterOutcome::CutShort);
    EXPECT_EQ(answer.pageCount, 1);
    EXPECT_TRUE(answer.rasters.empty());
}
#endif

TEST_F(ChildRasterDecoderTest, APictureThatTakesAllMemoryIsNotShown)
{
#ifdef TESSERA_SANITIZED
    GTEST_SKIP() << "the sanitizers need more memory than there is to be";
#endif
    const RasterAnswer answer = decode(jpegThatTakesAllMemory(), kPicture);

    EXPECT_EQ(answer.pictureSize, (PixelSize{16000, 16000}));
    EXPECT_TRUE(answer.rasters.empty());
}

TEST_F(ChildRasterDecoderTest, ATruncatedPictureIsNotShown)
{
    const std::string whole = imageFile({300, 200}, "png");

    const RasterAnswer answer = decode(whole.substr(0, whole.size() / 2), kPicture);

    EXPECT_EQ(answer.outcome, RasterOutcome::Whole);
    EXPECT_EQ(answer.pictureSize, (PixelSize{300, 200}));
    EXPECT_TRUE(answer.rasters.empty());
}

TEST_F(ChildRasterDecoderTest, APictureThatLiesAboutItsSizeIsNotShown)
{
    const RasterAnswer answer = decode(pngOfClaimedSize(60000, 60000), kPicture);

    EXPECT_EQ(answer.pictureSize, (PixelSize{60000, 60000}));
    EXPECT_TRUE(answer.rasters.empty());
}

TEST_F(ChildRasterDecoderTest, AProgramThatIsMissingIsNotStarted)
{
    const ChildRasterDecoder decoder("/no/such/program");

    EXPECT_EQ(decoder.decode(*fileOf("x"), kPicture, {}).outcome, RasterOutcome::NotStarted);
}

TEST_F(ChildRasterDecoderTest, AProgramThatSaysNothingIsCutShort)
{
    EXPECT_EQ(answerOf("", kPicture).outcome, RasterOutcome::CutShort);
}

TEST_F(ChildRasterDecoderTest, AProgramThatLiesAboutASizeIsNotBelieved)
{
    using Kind = RasterFrame::Kind;
    const std::string size = frame(Kind::PictureSize, 5000, 5000);

    EXPECT_TRUE(isRefused(answerOf(size + frame(Kind::Raster, 801, 600), kPicture)));
    EXPECT_TRUE(isRefused(answerOf(size + frame(Kind::Raster, -800, -600), kPicture)));
    EXPECT_TRUE(isRefused(answerOf(frame(Kind::PageCount, 0, 0, -1), kPages)));
    EXPECT_TRUE(isRefused(answerOf(std::string(100, '!'), kPicture)));
}

TEST_F(ChildRasterDecoderTest, AProgramThatLiesAndGoesOnIsKilled)
{
    // It would go on for ever.
    EXPECT_TRUE(isRefused(answerOf(std::string(16, '!'), kPicture, "exec tail -f /dev/null")));
}

TEST_F(ChildRasterDecoderTest, AProgramThatGoesOnAfterItsAnswerIsKilled)
{
    const std::string end = frame(RasterFrame::Kind::End, 0, 0);

    EXPECT_EQ(answerOf(end, kPicture, "exec tail -f /dev/null").outcome, RasterOutcome::Whole);
}

TEST_F(ChildRasterDecoderTest, OfAProgramThatDiesInMidAnswerWholePagesAreKept)
{
    using Kind = RasterFrame::Kind;
    const std::string page
        = frame(Kind::OpaqueRaster, 320, 100) + std::string(std::size_t{320} * 100 * 4, 'p');
    const std::string said
        = frame(Kind::PageCount, 0, 0, 3) + page + page.substr(0, page.size() - 1);

    const RasterAnswer answer = answerOf(said, kPages, "kill -KILL $$");

    EXPECT_EQ(answer.outcome, RasterOutcome::CutShort);
    EXPECT_EQ(answer.pageCount, 3);
    EXPECT_EQ(answer.rasters.size(), 1U);
}

TEST_F(ChildRasterDecoderTest, TheProgramGetsTheFileAndNeitherItsNameNorTheEnvironment)
{
    const ChildRasterDecoder decoder(programThat(
        "cd '" + tree.path() + "'\n"
        + "cat > content; echo \"$@\" > arguments; tr '\\0' '\\n' < /proc/$$/environ > "
          "environment"));

    (void)decoder.decode(*fileOf("what is in it"), kPicture, {});

    EXPECT_EQ(fileContent(tree.pathOf("content")), "what is in it");
    EXPECT_EQ(fileContent(tree.pathOf("arguments")), "picture 800 600\n");
    std::string expected = "LC_ALL=C.UTF-8\n";
    for (const char* const name : {"LD_LIBRARY_PATH", "QT_PLUGIN_PATH"}) {
        // NOLINTNEXTLINE(concurrency-mt-unsafe): there is no other thread
        if (const char* const value = std::getenv(name); value != nullptr) {
            expected += std::string(name) + "=" + value + "\n";
        }
    }
    EXPECT_EQ(fileContent(tree.pathOf("environment")), expected);
}

/// What a program sees of itself.
class StartedProgram : public ChildRasterDecoderTest {
protected:
    /// What the shell's words write into "report".
    std::string report(const std::string& words) const
    {
        const std::string path = tree.pathOf("report");
        const ChildRasterDecoder decoder(programThat("{ " + words + "; } > '" + path + "'"));
        (void)decoder.decode(*fileOf("x"), kPicture, {});
        return fileContent(path);
    }
};

TEST_F(StartedProgram, HoldsOneEndOfThePipe)
{
    const ChildRasterDecoder decoder(programThat(
        "cd '" + tree.path() + "'\n"
        + "pipe=$(readlink /proc/$$/fd/1); ls -l /proc/$$/fd > list\n"
          "grep -cF \"$pipe\" list > report"));

    (void)decoder.decode(*fileOf("x"), kPicture, {});

    EXPECT_EQ(fileContent(tree.pathOf("report")), "1\n");
}

TEST_F(StartedProgram, ComplainsToNobody)
{
    EXPECT_EQ(report("readlink /proc/$$/fd/2"), "/dev/null\n");
}

TEST_F(StartedProgram, IsDeafToNoSignal)
{
    sigset_t blocked{};
    ::sigemptyset(&blocked);
    ::sigaddset(&blocked, SIGTERM);
    sigset_t before{};
    ASSERT_EQ(::pthread_sigmask(SIG_BLOCK, &blocked, &before), 0);

    // Shells let all signals through.
    tree.writeFile(
        "awk",
        "#!/usr/bin/awk -f\n"
        "BEGIN { while ((getline < \"/proc/self/status\") > 0)"
        " if ($1 == \"SigBlk:\") print $2 > \""
            + tree.pathOf("report") + "\"; exit }\n");
    tree.setMode("awk", 0700);
    (void)ChildRasterDecoder(tree.pathOf("awk")).decode(*fileOf("x"), kPicture, {});

    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    EXPECT_EQ(fileContent(tree.pathOf("report")), "0000000000000000\n");
}

TEST_F(StartedProgram, IgnoresNoSignalThatTheProgramIgnores)
{
    const auto before = std::signal(SIGXCPU, SIG_IGN);

    const std::string ignored = report("sed -n 's/^SigIgn:.//p' /proc/self/status");

    (void)std::signal(SIGXCPU, before);
    EXPECT_EQ(std::stoull(ignored, nullptr, 16) >> (SIGXCPU - 1U) & 1U, 0U);
}

/// A decoding that goes on until it is stopped.
class EndlessDecoding : public ChildRasterDecoderTest {
protected:
    /// Returns when the program runs, with its process.
    pid_t start(const std::string& bytes, const std::string& program)
    {
        tree.makeFifo("process");
        const std::string report = tree.pathOf("process");
        const auto decoder = std::make_shared<ChildRasterDecoder>(
            programThat("echo $$ > '" + report + "'\nexec " + program));
        answer = std::async(
            std::launch::async, [this, decoder, file = std::shared_ptr(fileOf(bytes))] {
                return decoder->decode(*file, kPages, cancelling.get_token());
            });
        return static_cast<pid_t>(std::stoi(fileContent(report)));
    }

    std::stop_source cancelling;
    std::future<RasterAnswer> answer;
};

TEST_F(EndlessDecoding, IsKilledWhenItIsCancelled)
{
    const pid_t process
        = start(pdfThatNeverEnds(), std::string(test::built::previewer()) + " \"$@\"");

    cancelling.request_stop();

    EXPECT_EQ(answer.get().outcome, RasterOutcome::CutShort);
    // Neither at work nor waiting for somebody to take note of its end.
    EXPECT_EQ(::kill(process, 0), -1);
    EXPECT_EQ(errno, ESRCH);
}

TEST_F(EndlessDecoding, IsKilledThoughItHasLeftItsOutput)
{
    const pid_t process = start("x", "tail -f /dev/null");

    cancelling.request_stop();

    EXPECT_EQ(answer.get().outcome, RasterOutcome::CutShort);
    EXPECT_EQ(::kill(process, 0), -1);
}

TEST_F(EndlessDecoding, EndsNoOther)
{
    (void)start(pdfThatNeverEnds(), std::string(test::built::previewer()) + " \"$@\"");

    TempTree others;
    others.writeFile("a.png", imageFile({3, 3}, "png"));
    const auto file = LinuxFileReader().open(others.pathOf("a.png")).content;
    const RasterAnswer other
        = ChildRasterDecoder(test::built::previewer()).decode(*file, kPicture, {});

    EXPECT_EQ(other.rasters.size(), 1U);
    cancelling.request_stop();
    EXPECT_EQ(answer.get().outcome, RasterOutcome::CutShort);
}

TEST_F(ChildRasterDecoderTest, WhatIsCancelledBeforeItBeginsEndsAtOnce)
{
    std::stop_source cancelling;
    cancelling.request_stop();

    const RasterAnswer answer = decode(pdfThatNeverEnds(), kPages, cancelling.get_token());

    EXPECT_EQ(answer.outcome, RasterOutcome::CutShort);
}

} // namespace
} // namespace tessera::test
