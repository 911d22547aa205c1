// SPDX-License-Identifier: MIT
#include "support/Machine/BuiltPaths.h"
#include "support/Machine/FileContent.h"
#include "support/Machine/RunProgram.h"
#include "support/Machine/TempTree.h"

#include <QByteArray>
#include <QImage>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

namespace tessera {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

test::ProgramResult tessera(const std::vector<std::string>& arguments)
{
    return test::runProgram(test::built::program(), arguments);
}

QImage pictureAt(const std::string& path)
{
    return QImage::fromData(QByteArray::fromStdString(test::fileContent(path)), "PNG");
}

long linesIn(const std::string& text)
{
    return std::count(text.begin(), text.end(), '\n');
}

/// A folder to draw, and one to draw into.
class PictureCommand : public testing::Test {
protected:
    PictureCommand()
    {
        tree.makeFolder("docs");
        tree.makeFile("docs/large", 700'000);
        tree.makeFile("small", 300'000);
    }

    test::TempTree tree;
    test::TempTree out;
    std::string picture = out.pathOf("picture.png");
};

TEST_F(PictureCommand, WritesAPictureOfTheDefaultSize)
{
    const auto result = tessera({"--picture", picture, tree.path()});
    EXPECT_EQ(result.exitStatus, 0) << result.standardError;
    EXPECT_EQ(pictureAt(picture).size(), QSize(1600, 1000));
    EXPECT_EQ(result.standardOutput, "");
}

TEST_F(PictureCommand, WritesAPictureOfTheAskedSizeAndScale)
{
    const auto result
        = tessera({"--picture", picture, "--size", "300x200", "--scale", "2", tree.path()});
    EXPECT_EQ(result.exitStatus, 0) << result.standardError;
    EXPECT_EQ(pictureAt(picture).size(), QSize(600, 400));
}

TEST_F(PictureCommand, TheHomeFolderIsDrawnWithoutItsName)
{
    const auto result = test::runProgram(
        test::built::program(), {"--picture", picture, "--home"}, {"HOME=" + tree.path()});
    EXPECT_EQ(result.exitStatus, 0) << result.standardError;
    EXPECT_THAT(result.standardError, HasSubstr("Scan Complete: " + tree.path() + " {"));
}

TEST_F(PictureCommand, ThePictureShowsTheFolder)
{
    tessera({"--picture", picture, "--size", "300x200", tree.path()});
    const QImage image = pictureAt(picture);
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::black));
    EXPECT_NE(image.pixelColor(20, 190), QColor(Qt::black));
}

TEST_F(PictureCommand, ThePictureHasSizesInItsTitlesUnlessTheUserWantsNone)
{
    out.makeFolder("tessera");
    const auto pictureWith = [this](const std::string& settings) {
        out.writeFile("tessera/tessera.ini", "[General]\n" + settings);
        test::runProgram(
            test::built::program(),
            {"--picture", picture, "--size", "300x200", tree.path()},
            {"XDG_CONFIG_HOME=" + out.path()});
        return pictureAt(picture);
    };
    const QImage usual = pictureWith("");
    EXPECT_EQ(pictureWith("FolderSizes=true\n"), usual);
    EXPECT_NE(pictureWith("FolderSizes=false\n"), usual);
}

TEST_F(PictureCommand, AnEmptyFolderGivesABlackPictureWithALineInItsMiddle)
{
    tree.makeFolder("empty");
    EXPECT_EQ(tessera({"--picture", picture, tree.pathOf("empty")}).exitStatus, 0);
    const QImage image = pictureAt(picture);
    QImage black(image.size(), image.format());
    black.fill(Qt::black);
    EXPECT_NE(image, black);
    EXPECT_EQ(image.copy(0, 0, 1600, 480), black.copy(0, 0, 1600, 480));
    EXPECT_EQ(image.copy(0, 520, 1600, 480), black.copy(0, 520, 1600, 480));
}

TEST_F(PictureCommand, NamesOfAnyBytesWork)
{
    const std::string odd = "o\xFF\nd";
    tree.makeFolder(odd);
    tree.makeFile(odd + "/file", 5000);
    const std::string oddPicture = out.pathOf(odd + ".png");
    EXPECT_EQ(tessera({"--picture", oddPicture, tree.pathOf(odd)}).exitStatus, 0);
    EXPECT_FALSE(pictureAt(oddPicture).isNull());
}

TEST_F(PictureCommand, LogsTheScan)
{
    EXPECT_THAT(
        tessera({"--picture", picture, tree.path()}).standardError,
        HasSubstr("Scan Complete: " + tree.path() + " {time: "));
}

TEST_F(PictureCommand, AFolderThatIsNotThereIsSaidInOneLine)
{
    const auto result = tessera({"--picture", picture, tree.pathOf("none")});
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_THAT(result.standardError, StartsWith("tessera: cannot read the folder '"));
    EXPECT_THAT(result.standardError, EndsWith("No such file or directory\n"));
    EXPECT_EQ(linesIn(result.standardError), 1);
    EXPECT_FALSE(std::filesystem::exists(picture));
}

TEST_F(PictureCommand, AFileInPlaceOfAFolderIsRefused)
{
    const auto result = tessera({"--picture", picture, tree.pathOf("small")});
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_THAT(result.standardError, EndsWith("Not a directory\n"));
}

TEST_F(PictureCommand, AFileThatCannotBeWrittenIsSaidInOneLineAndLeavesNothing)
{
    const auto result = tessera({"--picture", out.pathOf("none/picture.png"), tree.path()});
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_THAT(
        result.standardError,
        HasSubstr(
            "tessera: cannot write '" + out.pathOf("none/picture.png")
            + "': No such file or directory\n"));
    EXPECT_TRUE(std::filesystem::is_empty(out.path()));
}

TEST_F(PictureCommand, ALinkToTheStandardOutputGetsThePictureThere)
{
    out.makeSymbolicLink("output", "/proc/self/fd/1");
    const auto result = tessera({"--picture", out.pathOf("output"), tree.path()});
    EXPECT_EQ(result.exitStatus, 0) << result.standardError;
    EXPECT_EQ(
        QImage::fromData(QByteArray::fromStdString(result.standardOutput), "PNG").size(),
        QSize(1600, 1000));
    EXPECT_TRUE(std::filesystem::is_symlink(out.pathOf("output")));
}

TEST_F(PictureCommand, AnOlderFileStaysWhenTheFolderCannotBeRead)
{
    out.writeFile("picture.png", "old");
    tessera({"--picture", picture, tree.pathOf("none")});
    EXPECT_EQ(std::filesystem::file_size(picture), 3U);
}

TEST_F(PictureCommand, BadUsageIsSaidInOneLine)
{
    const auto result = tessera({"--picture"});
    EXPECT_EQ(result.exitStatus, 2);
    EXPECT_EQ(
        result.standardError, "tessera: option '--picture' needs a value; see tessera --help\n");
}

TEST(Program, AWrongArgumentCommandsNoTerminal)
{
    const auto result = tessera({"--opt\x1B[31m\x9B"
                                 "31m"});
    EXPECT_EQ(result.exitStatus, 2);
    EXPECT_THAT(result.standardError, HasSubstr("--opt\\x1b[31m\\x9b31m"));
    EXPECT_EQ(linesIn(result.standardError), 1);
}

TEST(Program, HelpGoesToStandardOutput)
{
    const auto result = tessera({"--help"});
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_THAT(result.standardOutput, StartsWith("Usage: tessera [FOLDER | --home | --disk]\n"));
    EXPECT_EQ(result.standardError, "");
}

TEST(Program, VersionIsOneLine)
{
    const auto result = tessera({"--version"});
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_THAT(result.standardOutput, testing::MatchesRegex("tessera [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST(Program, WithoutADisplayItSaysSo)
{
    const auto result = test::runProgram(
        test::built::program(), {"/"}, {"DISPLAY=", "WAYLAND_DISPLAY=", "QT_QPA_PLATFORM="});
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(result.standardError, "tessera: there is no display; --picture draws to a file\n");
}

} // namespace
} // namespace tessera
