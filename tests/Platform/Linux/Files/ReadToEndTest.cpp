// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/ReadToEnd.h"

#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <string>

namespace tessera::test {
namespace {

FileDescriptor opened(const std::string& path)
{
    return FileDescriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
}

TEST(ReadToEnd, GivesEveryByteOfALongFile)
{
    const TempTree tree;
    std::string content(10'000, '\0');
    content.back() = '\xFF';
    tree.writeFile("a", content);
    EXPECT_EQ(readToEnd(opened(tree.pathOf("a"))), content);
}

TEST(ReadToEnd, GivesAnEmptyTextOfAnEmptyFile)
{
    const TempTree tree;
    tree.makeFile("a");
    EXPECT_EQ(readToEnd(opened(tree.pathOf("a"))), "");
}

TEST(ReadToEnd, BeginsWhereTheFileStands)
{
    const TempTree tree;
    tree.writeFile("a", "before after");
    const FileDescriptor file = opened(tree.pathOf("a"));
    ASSERT_EQ(::lseek(file.number(), 7, SEEK_SET), 7);
    EXPECT_EQ(readToEnd(file), "after");
}

TEST(ReadToEnd, GivesNothingOfWhatCannotBeRead)
{
    const TempTree tree;
    EXPECT_EQ(readToEnd(opened(tree.path())), std::nullopt);
    EXPECT_EQ(errno, EISDIR);
}

TEST(ReadToEnd, LeavesTheReasonWhyNothingIsOpen)
{
    const TempTree tree;
    EXPECT_EQ(readToEnd(opened(tree.pathOf("missing"))), std::nullopt);
    EXPECT_EQ(errno, ENOENT);
}

} // namespace
} // namespace tessera::test
