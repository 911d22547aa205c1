// SPDX-License-Identifier: MIT
#include "Start/CommandLine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tessera {
namespace {

using Action = CommandLine::Action;

std::variant<CommandLine, CommandLineError> parse(const std::vector<const char*>& arguments)
{
    return parseCommandLine(arguments);
}

CommandLine accepted(const std::vector<const char*>& arguments)
{
    const auto parsed = parse(arguments);
    EXPECT_TRUE(std::holds_alternative<CommandLine>(parsed));
    return std::holds_alternative<CommandLine>(parsed) ? std::get<CommandLine>(parsed)
                                                       : CommandLine{};
}

std::string refusal(const std::vector<const char*>& arguments)
{
    const auto parsed = parse(arguments);
    EXPECT_TRUE(std::holds_alternative<CommandLineError>(parsed));
    return std::holds_alternative<CommandLineError>(parsed)
        ? std::get<CommandLineError>(parsed).message
        : "";
}

TEST(CommandLine, WithoutArgumentsShowsAWindowOnNoFolderInParticular)
{
    const CommandLine line = accepted({});
    EXPECT_EQ(line.action, Action::ShowWindow);
    EXPECT_EQ(line.folder, "");
}

TEST(CommandLine, TakesAFolderAsBytes)
{
    EXPECT_EQ(accepted({"a\xFF\n b"}).folder, "a\xFF\n b");
}

TEST(CommandLine, APictureHasADefaultSizeAndScale)
{
    const CommandLine line = accepted({"--picture", "out.png", "/usr"});
    EXPECT_EQ(line.action, Action::WritePicture);
    EXPECT_EQ(line.pictureFile, "out.png");
    EXPECT_EQ(line.folder, "/usr");
    EXPECT_EQ(line.width, 1600);
    EXPECT_EQ(line.height, 1000);
    EXPECT_EQ(line.scale, 1.0);
}

TEST(CommandLine, TakesSizeAndScaleInEitherForm)
{
    const CommandLine line
        = accepted({"--size=320x200", "/usr", "--scale", "1.5", "--picture=out.png"});
    EXPECT_EQ(line.width, 320);
    EXPECT_EQ(line.height, 200);
    EXPECT_EQ(line.scale, 1.5);
    EXPECT_EQ(line.pictureFile, "out.png");
}

TEST(CommandLine, BehindTwoDashesEverythingIsAFolder)
{
    EXPECT_EQ(accepted({"--", "--picture"}).folder, "--picture");
}

TEST(CommandLine, ASingleDashIsAFolder)
{
    EXPECT_EQ(accepted({"-"}).folder, "-");
}

TEST(CommandLine, HelpAndVersionNeedNothingElse)
{
    EXPECT_EQ(accepted({"--help"}).action, Action::PrintHelp);
    EXPECT_EQ(accepted({"-h"}).action, Action::PrintHelp);
    EXPECT_EQ(accepted({"--version"}).action, Action::PrintVersion);
    EXPECT_EQ(accepted({"--help", "--picture", "x.png"}).action, Action::PrintHelp);
}

TEST(CommandLine, TheHomeFolderAndItsDiskNeedNoName)
{
    using Place = CommandLine::Place;
    EXPECT_EQ(accepted({"/usr"}).place, Place::Folder);
    EXPECT_EQ(accepted({"--home"}).place, Place::Home);
    EXPECT_EQ(accepted({"--disk"}).place, Place::Disk);
    EXPECT_EQ(accepted({"--disk", "--disk"}).place, Place::Disk);
}

TEST(CommandLine, APictureOfTheHomeFolderOrItsDiskNeedsNoName)
{
    EXPECT_EQ(accepted({"--picture=o.png", "--home"}).action, Action::WritePicture);
    EXPECT_EQ(accepted({"--disk", "--picture=o.png"}).action, Action::WritePicture);
}

TEST(CommandLine, RefusesMoreThanOnePlace)
{
    const std::string reason = "of FOLDER, --home and --disk only one can be shown";
    EXPECT_EQ(refusal({"--home", "--disk"}), reason);
    EXPECT_EQ(refusal({"--disk", "--home"}), reason);
    EXPECT_EQ(refusal({"--home", "/usr"}), reason);
    EXPECT_EQ(refusal({"/usr", "--disk"}), reason);
    EXPECT_EQ(refusal({"--home", "/usr", "--picture=o.png"}), reason);
}

TEST(CommandLine, BehindTwoDashesTheNamesOfPlacesAreFolders)
{
    EXPECT_EQ(accepted({"--", "--home"}).folder, "--home");
    EXPECT_EQ(accepted({"--", "--home"}).place, CommandLine::Place::Folder);
}

TEST(CommandLine, RefusesUnknownOptions)
{
    EXPECT_EQ(refusal({"--colour=red"}), "unknown option '--colour'");
    EXPECT_EQ(refusal({"-x"}), "unknown option '-x'");
}

TEST(CommandLine, TakesAFoldersUrlAsDesktopsGiveIt)
{
    EXPECT_EQ(accepted({"file:///data/a%20b%FF/"}).folder, "/data/a b\xFF");
}

TEST(CommandLine, TakesUrlsWithoutAHostAndInCapitals)
{
    EXPECT_EQ(accepted({"file:/data/a%20b"}).folder, "/data/a b");
    EXPECT_EQ(accepted({"FILE:///data"}).folder, "/data");
}

TEST(CommandLine, OfSeveralFoldersTheLastIsTakenHoweverTheyAreNamed)
{
    EXPECT_EQ(accepted({"file:///a", "file:///b"}).folder, "/b");
    EXPECT_EQ(accepted({"/a", "/b"}).folder, "/b");
    EXPECT_EQ(accepted({"/a", "file:///b"}).folder, "/b");
    EXPECT_EQ(accepted({"file:///a", "/b", "c"}).folder, "c");
}

TEST(CommandLine, APictureIsOfOneFolder)
{
    EXPECT_EQ(refusal({"--picture=o.png", "/a", "/b"}), "--picture takes one folder");
    EXPECT_EQ(refusal({"/a", "file:///b", "--picture=o.png"}), "--picture takes one folder");
}

TEST(CommandLine, BehindTwoDashesAUrlIsAPath)
{
    EXPECT_EQ(accepted({"--", "file:x"}).folder, "file:x");
    EXPECT_EQ(accepted({"--", "file:///a"}).folder, "file:///a");
}

TEST(CommandLine, RefusesPicturesWhoseNameAsksForAnotherFormat)
{
    EXPECT_EQ(
        refusal({"--picture", "a/x.jpg", "/usr"}),
        "pictures are written as PNG, and 'a/x.jpg' is the name of another format");
    for (const char* name :
         {"x.JPEG",
          "x.webp",
          "x.png.tiff",
          ".gif",
          "x.xpm",
          "x.xbm",
          "x.pbm",
          "x.pnm",
          "x.wbmp",
          "x.cur",
          "x.icns",
          "x.jfif",
          "x.HEIF",
          "x.tga",
          "x.psd",
          "x.ps"}) {
        EXPECT_NE(refusal({"--picture", name, "/usr"}).find(name), std::string::npos);
    }
}

TEST(CommandLine, PicturesMayHaveAnyOtherName)
{
    for (const char* name : {"x.PNG", "x", "tmp.aJpg", "a.jpg/x", "x.jpg.1", "jpg", "x.jpgs"}) {
        EXPECT_EQ(accepted({"--picture", name, "/usr"}).pictureFile, name);
    }
}

TEST(CommandLine, RefusesUrlsOfNoFolderHere)
{
    EXPECT_EQ(refusal({"file://host/a"}), "'file://host/a' is no URL of a folder");
    EXPECT_EQ(refusal({"FILE:x"}), "'FILE:x' is no URL of a folder");
    EXPECT_EQ(refusal({"file:///a%2"}), "'file:///a%2' is no URL of a folder");
}

TEST(CommandLine, RefusesAnEmptyFolder)
{
    EXPECT_EQ(refusal({""}), "the folder's name is empty");
}

TEST(CommandLine, RefusesAPictureOfNoFolder)
{
    EXPECT_EQ(refusal({"--picture", "out.png"}), "--picture needs the name of a folder");
}

TEST(CommandLine, RefusesOptionsWithoutAValue)
{
    EXPECT_EQ(refusal({"/usr", "--picture"}), "option '--picture' needs a value");
    EXPECT_EQ(refusal({"/usr", "--size="}), "option '--size' needs a value");
}

TEST(CommandLine, RefusesSizesThatAreNone)
{
    for (const char* size : {"1600", "x", "0x10", "10x0", "-5x5", "10x10x10", "1e3x5", "axb"}) {
        EXPECT_NE(
            refusal({"--picture=o.png", "/usr", "--size", size}).find(size), std::string::npos);
    }
}

TEST(CommandLine, RefusesScalesThatAreNone)
{
    for (const char* scale : {"0", "-1", "two", "nan", "inf", "1x"}) {
        EXPECT_NE(
            refusal({"--picture=o.png", "/usr", "--scale", scale}).find(scale), std::string::npos);
    }
}

TEST(CommandLine, RefusesPicturesTooLargeForTheFormat)
{
    accepted({"--picture=o.png", "/usr", "--size=32767x1"});
    refusal({"--picture=o.png", "/usr", "--size=32768x1"});
    refusal({"--picture=o.png", "/usr", "--size=20000x1", "--scale=2"});
    refusal({"--picture=o.png", "/usr", "--size=20000x1", "--scale=0.5"});
}

TEST(CommandLine, APictureTakesFiveBytesAPixel)
{
    const auto memoryOf = [](const char* size, const char* scale) {
        return accepted({"--picture=o.png", "/usr", "--size", size, "--scale", scale})
            .pictureMemory();
    };
    EXPECT_EQ(memoryOf("1600x1000", "1"), 8'000'000U);
    EXPECT_EQ(memoryOf("1600x1000", "2"), 32'000'000U);
    EXPECT_EQ(memoryOf("3x1", "1.5"), 50U); // 5 x 2 pixels
    EXPECT_EQ(memoryOf("32767x32767", "1"), 5'368'381'445U);
}

TEST(CommandLine, RefusesPictureOptionsWithoutAPicture)
{
    EXPECT_EQ(refusal({"/usr", "--scale=2"}), "--size and --scale go with --picture");
}

TEST(CommandLine, TheHelpNamesEveryOption)
{
    const std::string help = commandLineHelp();
    for (const char* option :
         {"  --home ",
          "  --disk ",
          "  --picture ",
          "  --size ",
          "  --scale ",
          "  -- ",
          "-h, --help ",
          "  --version ",
          "FOLDER"}) {
        EXPECT_NE(help.find(option), std::string::npos);
    }
}

TEST(CommandLine, TheHelpTellsHowAFolderThatCannotBeReadEndsWithoutATerminal)
{
    EXPECT_NE(commandLineHelp().find("is no terminal"), std::string::npos);
}

} // namespace
} // namespace tessera
