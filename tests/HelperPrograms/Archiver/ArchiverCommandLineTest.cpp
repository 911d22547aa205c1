// SPDX-License-Identifier: MIT
#include "HelperPrograms/Archiver/ArchiverCommandLine.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessera {
namespace {

using Arguments = std::vector<const char*>;

TEST(ArchiverCommandLine, TakesSourceAndTarget)
{
    const auto commandLine = parseArchiverCommandLine(
        Arguments{"-c", "-k", "--sequesterRsrc", "/a/source", "/a/target.zip"});
    ASSERT_TRUE(commandLine);
    EXPECT_EQ(commandLine->source, "/a/source");
    EXPECT_EQ(commandLine->target, "/a/target.zip");
    EXPECT_EQ(commandLine->kind, SourceKind::Any);
}

TEST(ArchiverCommandLine, TakesTheKindOfTheSource)
{
    const auto folder = parseArchiverCommandLine(
        Arguments{"-c", "-k", "--sequesterRsrc", "--folder", "source", "target"});
    ASSERT_TRUE(folder);
    EXPECT_EQ(folder->kind, SourceKind::Folder);
    EXPECT_EQ(folder->source, "source");
    EXPECT_EQ(folder->target, "target");
    const auto file = parseArchiverCommandLine(
        Arguments{"-c", "-k", "--sequesterRsrc", "--file", "source", "target"});
    ASSERT_TRUE(file);
    EXPECT_EQ(file->kind, SourceKind::File);
}

TEST(ArchiverCommandLine, PathsMayLookLikeOptions)
{
    const auto commandLine
        = parseArchiverCommandLine(Arguments{"-c", "-k", "--sequesterRsrc", "-c", "--x"});
    ASSERT_TRUE(commandLine);
    EXPECT_EQ(commandLine->source, "-c");
    EXPECT_EQ(commandLine->target, "--x");
}

const char* requested(const Arguments& arguments)
{
    return requestedArchiverText(arguments);
}

TEST(ArchiverCommandLine, TheHelpNamesEveryOption)
{
    const std::string help = requested({"--help"});
    for (const char* option :
         {"  -c ", "  -k ", "  --sequesterRsrc ", "  --folder ", "  --file ", "-h, --help "}) {
        EXPECT_NE(help.find(option), std::string::npos) << option;
    }
    EXPECT_EQ(help, requested({"-h"}));
}

TEST(ArchiverCommandLine, SaysItsNameAndVersion)
{
    EXPECT_EQ(std::string(requested({"--version"})).rfind("tessera-ditto ", 0), 0U);
}

TEST(ArchiverCommandLine, TextIsAskedForByOneWordAlone)
{
    EXPECT_EQ(requested({}), nullptr);
    EXPECT_EQ(requested({"--versions"}), nullptr);
    EXPECT_EQ(requested({"--help", "source"}), nullptr);
    EXPECT_EQ(requested({"-c", "-k", "--sequesterRsrc", "--help", "--version"}), nullptr);
}

class RefusedCommandLine : public testing::TestWithParam<Arguments> { };

TEST_P(RefusedCommandLine, IsRefused)
{
    EXPECT_FALSE(parseArchiverCommandLine(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(
    ArchiverCommandLine,
    RefusedCommandLine,
    testing::Values(
        Arguments{},
        Arguments{"--help"},
        Arguments{"-c", "-k", "--sequesterRsrc", "source"},
        Arguments{"-c", "-k", "--sequesterRsrc", "source", "target", "more"},
        Arguments{"-c", "-k", "--sequesterRsrc", "--folder", "--file", "source", "target"},
        Arguments{"-k", "-c", "--sequesterRsrc", "source", "target"},
        Arguments{"-x", "-k", "--sequesterRsrc", "source", "target"},
        Arguments{"-c", "-k", "source", "target", "--sequesterRsrc"},
        Arguments{"-c", "-k", "--sequesterRsrc", "", "target"},
        Arguments{"-c", "-k", "--sequesterRsrc", "source", ""}));

} // namespace
} // namespace tessera
