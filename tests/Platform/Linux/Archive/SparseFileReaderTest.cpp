// SPDX-License-Identifier: MIT
#include "Platform/Linux/Archive/SparseFileReader.h"

#include "support/Machine/FailingCalls.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <string>

namespace tessera::test {
namespace {

constexpr std::size_t kBufferSize = std::size_t{64} * 1024;

FileDescriptor openFile(const std::string& path, int flags = O_RDONLY)
{
    return FileDescriptor(::open(path.c_str(), flags | O_CLOEXEC));
}

std::string readAll(SparseFileReader& reader)
{
    std::string content;
    std::array<char, kBufferSize> buffer{};
    while (true) {
        const ContentPart part = reader.read(buffer);
        EXPECT_EQ(part.error, 0);
        if (part.length == 0) {
            return content;
        }
        content.append(buffer.data(), part.length);
    }
}

TEST(SparseFileReader, ReadsAFileToItsEnd)
{
    const TempTree tree;
    const std::string content(200'000, 'c');
    tree.writeFile("file", content);
    SparseFileReader reader(openFile(tree.pathOf("file")), content.size());
    EXPECT_EQ(readAll(reader), content);
}

TEST(SparseFileReader, AnEmptyFileEndsAtOnce)
{
    const TempTree tree;
    tree.makeFile("file");
    SparseFileReader reader(openFile(tree.pathOf("file")), 0);
    EXPECT_EQ(readAll(reader), "");
}

TEST(SparseFileReader, HolesGiveZeros)
{
    const TempTree tree;
    tree.makeSparseFile("file", 1'000'000);
    {
        const FileDescriptor file = openFile(tree.pathOf("file"), O_WRONLY);
        ASSERT_EQ(::pwrite(file.number(), "data", 4, 500'000), 4);
    }
    std::string expected(1'000'000, '\0');
    expected.replace(500'000, 4, "data");
    SparseFileReader reader(openFile(tree.pathOf("file")), expected.size());
    EXPECT_EQ(readAll(reader), expected);
}

TEST(SparseFileReader, WhereTheDiskDoesNotTellItsHolesAllIsRead)
{
    const TempTree tree;
    tree.writeFile("file", "content");
    SparseFileReader reader(openFile(tree.pathOf("file")), 7);
    const auto isRead = [&reader] {
        return makeCallFail({SYS_lseek, EINVAL, SEEK_DATA}) && readAll(reader) == "content";
    };
    EXPECT_EXIT(std::_Exit(isRead() ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST(SparseFileReader, WhatWasAppendedIsNotRead)
{
    const TempTree tree;
    tree.writeFile("file", "0123456789");
    SparseFileReader reader(openFile(tree.pathOf("file")), 4);
    EXPECT_EQ(readAll(reader), "0123");
}

TEST(SparseFileReader, AFileThatIsShorterEndsEarly)
{
    const TempTree tree;
    tree.writeFile("file", "0123456789");
    SparseFileReader reader(openFile(tree.pathOf("file")), 1'000'000);
    EXPECT_EQ(readAll(reader), "0123456789");
}

TEST(SparseFileReader, AFileOfHolesThatIsShorterEndsEarly)
{
    const TempTree tree;
    tree.makeSparseFile("file", 100'000);
    SparseFileReader reader(openFile(tree.pathOf("file")), 1'000'000);
    EXPECT_EQ(readAll(reader), std::string(100'000, '\0'));
}

TEST(SparseFileReader, AFileThatShrinksWhileItIsReadEndsEarly)
{
    const TempTree tree;
    tree.writeFile("file", std::string(200'000, 'c'));
    SparseFileReader reader(openFile(tree.pathOf("file")), 200'000);
    std::array<char, kBufferSize> buffer{};
    ASSERT_EQ(reader.read(buffer).length, kBufferSize);
    ASSERT_EQ(::truncate(tree.pathOf("file").c_str(), 1000), 0);
    EXPECT_EQ(readAll(reader), "");
}

TEST(SparseFileReader, AnErrorIsToldAndIsTheEnd)
{
    const TempTree tree;
    tree.writeFile("file", "0123456789");
    SparseFileReader reader(openFile(tree.pathOf("file"), O_WRONLY), 10);
    std::array<char, kBufferSize> buffer{};
    EXPECT_EQ(reader.read(buffer).error, EBADF);
    EXPECT_EQ(readAll(reader), "");
}

} // namespace
} // namespace tessera::test
