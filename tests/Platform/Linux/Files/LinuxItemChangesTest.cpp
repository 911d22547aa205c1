// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/LinuxItemChanges.h"

#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

namespace tessera {
namespace {

using Answer = ItemChanges::Answer;

class LinuxItemChangesTest : public testing::Test {
protected:
    LinuxItemChangesTest()
    {
        tree.makeFolder("docs");
        tree.makeFolder("docs/deep");
        tree.writeFile("docs/deep/a", "words");
        tree.writeFile("docs/b", "words");
        tree.makeSymbolicLink("docs/link", "nowhere");
    }

    /// A moment after all that was done so far, by what the kernel itself writes down.
    FileTime now() const
    {
        tree.writeFile("clock", "");
        const FileTime first = changeTime("clock");
        FileTime later = first;
        while (!(first < later)) {
            tree.setMode("clock", 0600);
            later = changeTime("clock");
        }
        return later;
    }

    FileTime changeTime(const std::string& name) const
    {
        struct stat status { };
        EXPECT_EQ(::lstat(tree.pathOf(name).c_str(), &status), 0);
        return {status.st_ctim.tv_sec, static_cast<std::uint32_t>(status.st_ctim.tv_nsec)};
    }

    Answer since(const FileTime& time, const std::string& name = "docs") const
    {
        return LinuxItemChanges().since(tree.pathOf(name), time, {});
    }

    test::TempTree tree;
};

TEST_F(LinuxItemChangesTest, WhatNobodyTouchedIsUnchanged)
{
    const FileTime time = now();
    EXPECT_EQ(since(time), Answer::None);
    EXPECT_EQ(since(time, "docs/b"), Answer::None);
    EXPECT_EQ(since(time, "docs/link"), Answer::None);
}

TEST_F(LinuxItemChangesTest, ReadingChangesNothing)
{
    const FileTime time = now();
    EXPECT_EQ(::close(::open(tree.pathOf("docs/b").c_str(), O_RDONLY | O_CLOEXEC)), 0);
    EXPECT_EQ(since(time), Answer::None);
}

TEST_F(LinuxItemChangesTest, AFileThatIsWrittenToDeepInAFolderChangesIt)
{
    const FileTime time = now();
    tree.writeFile("docs/deep/a", "other words");
    EXPECT_EQ(since(time), Answer::Some);
    EXPECT_EQ(since(time, "docs/b"), Answer::None);
}

TEST_F(LinuxItemChangesTest, ContentThatIsDatedBackIsAChange)
{
    const FileTime time = now();
    const timespec past[2]{{1, 0}, {1, 0}}; // NOLINT(*-avoid-c-arrays): as the call takes them
    EXPECT_EQ(::utimensat(AT_FDCWD, tree.pathOf("docs/b").c_str(), past, 0), 0);
    EXPECT_EQ(since(time), Answer::Some);
}

TEST_F(LinuxItemChangesTest, WhatComesOrGoesChangesAFolder)
{
    FileTime time = now();
    tree.writeFile("docs/deep/new", "");
    EXPECT_EQ(since(time), Answer::Some);
    time = now();
    EXPECT_EQ(since(time), Answer::None);
    tree.removeFile("docs/deep/new");
    EXPECT_EQ(since(time), Answer::Some);
}

TEST_F(LinuxItemChangesTest, TheVeryMomentCountsAsLater)
{
    EXPECT_EQ(since(changeTime("docs/b"), "docs/b"), Answer::Some);
}

TEST_F(LinuxItemChangesTest, WhatIsNotThereIsGone)
{
    EXPECT_EQ(since(now(), "missing"), Answer::Gone);
}

TEST_F(LinuxItemChangesTest, AStopIsNoAnswer)
{
    std::stop_source stop;
    stop.request_stop();
    EXPECT_EQ(LinuxItemChanges().since(tree.pathOf("docs"), now(), stop.get_token()), Answer::Some);
}

} // namespace
} // namespace tessera
