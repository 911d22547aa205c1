// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/FileDescriptor.h"
#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Process/LinuxOpenFiles.h"
#include "support/Machine/InChild.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/sysmacros.h>

#include <algorithm>
#include <stop_token>
#include <string>
#include <thread>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::chrono::minutes kLong{1};

/// Of processes that there are not.
class TableOfProcessesTest : public testing::Test {
protected:
    TableOfProcessesTest()
    {
        m_tree.makeFile("file", 5000);
        m_tree.makeFolder("proc");
        makeProcessWithFile("7");
        m_tree.writeFile("proc/7/comm", "seven\n");
    }

    /// One that has "file" open.
    void makeProcessWithFile(const std::string& number) const
    {
        const std::string folder = "proc/" + number;
        for (const char* inner : {"", "/fd", "/fdinfo", "/ns"}) {
            m_tree.makeFolder(folder + inner);
        }
        m_tree.writeFile(folder + "/stat", number + " (a) S 1 7 7 0 -1 4194304 0\n");
        m_tree.writeFile(folder + "/maps", "");
        m_tree.makeSymbolicLink(folder + "/fd/3", m_tree.pathOf("file"));
        m_tree.writeFile(folder + "/fdinfo/3", "pos:\t0\nflags:\t02\nmnt_id:\t40\nino:\t1\n");
    }

    static bool isHeldBy(std::int64_t process, const OpenFilesAnswer& answer)
    {
        return std::ranges::any_of(answer.files, [process](const HeldFile& file) {
            return std::ranges::find(file.holders, process, &FileHolder::process)
                != file.holders.end();
        });
    }

    void mount(const std::string& device, const std::string& type) const
    {
        m_tree.writeFile("proc/7/mountinfo", "40 1 " + device + " / / rw - " + type + " x rw\n");
    }

    OpenFilesAnswer among(const FileIdentity& file) const
    {
        return LinuxOpenFiles(kLong, m_tree.pathOf("proc")).among({file}, {});
    }

    FileIdentity fileIdentity() const
    {
        return statusAt(AT_FDCWD, m_tree.pathOf("file").c_str()).status.identity;
    }

    const TempTree m_tree;
};

TEST_F(TableOfProcessesTest, AFileOnTheMountOfAnotherDeviceIsNotEvenLookedAt)
{
    mount("4095:1", "ext4");
    EXPECT_THAT(among(fileIdentity()).files, IsEmpty());
}

TEST_F(TableOfProcessesTest, WhereFilesMayShowAnotherDeviceThanTheirMountTheyAreLookedAt)
{
    for (const char* type : {"btrfs", "overlay"}) {
        mount("4095:1", type);
        EXPECT_EQ(among(fileIdentity()).files.size(), 1U) << type;
    }
}

TEST_F(TableOfProcessesTest, AFileWithoutANameInALayerMayTakeSpaceOnEveryDisk)
{
    m_tree.removeFile("proc/7/fd/3");
    m_tree.makeFile("deleted", 5000);
    const FileDescriptor deleted(::open(m_tree.pathOf("deleted").c_str(), O_RDONLY | O_CLOEXEC));
    m_tree.removeFile("deleted");
    const std::string link = "/proc/self/fd/" + std::to_string(deleted.number());
    m_tree.makeSymbolicLink("proc/7/fd/3", link);
    const LinuxOpenFiles files(kLong, m_tree.pathOf("proc"));
    const std::uint64_t layered = makedev(4095, 1);
    const auto hasFilesInLayers
        = [&](std::uint64_t asked) { return files.withoutNames(asked, {}).hasFilesInLayers; };
    mount("4095:1", "overlay");
    EXPECT_TRUE(hasFilesInLayers(layered + 1));
    EXPECT_FALSE(hasFilesInLayers(layered)) << "there it is told itself";
    EXPECT_FALSE(files.among({fileIdentity()}, {}).hasFilesInLayers);
    mount("4095:1", "btrfs");
    EXPECT_FALSE(hasFilesInLayers(layered + 1));
    mount("4095:1", "overlay");
    m_tree.removeFile("proc/7/fd/3");
    m_tree.makeSymbolicLink("proc/7/fd/3", m_tree.pathOf("file"));
    EXPECT_FALSE(hasFilesInLayers(layered + 1)) << "it has a name";
}

TEST_F(TableOfProcessesTest, AFileOnAMountThatNobodyKnowsIsLookedAt)
{
    m_tree.writeFile("proc/7/mountinfo", "");
    const OpenFilesAnswer answer = among(fileIdentity());
    ASSERT_EQ(answer.files.size(), 1U);
    EXPECT_THAT(answer.files[0].holders, ElementsAre(FileHolder{7, "seven"}));
}

TEST_F(TableOfProcessesTest, ATableOfMountsThatCannotBeReadSaysNothingOfOtherProcesses)
{
    makeProcessWithFile("9");
    for (const char* process : {"7", "9"}) {
        m_tree.makeSymbolicLink(std::string("proc/") + process + "/ns/mnt", "mnt:[1]");
    }
    const FileIdentity identity = fileIdentity();
    for (const char* process : {"7", "9"}) { // for nobody knows which is looked at first
        const std::int64_t number = std::stoll(process);
        const std::string table = std::string("proc/") + process + "/mountinfo";
        EXPECT_TRUE(isHeldBy(number, among(identity)));
        m_tree.writeFile(table, "40 1 4095:1 / / rw - ext4 x rw\n");
        EXPECT_FALSE(isHeldBy(number, among(identity)));
        m_tree.removeFile(table);
    }
}

TEST_F(TableOfProcessesTest, WithoutTheFirstProcessOthersAreHiddenToo)
{
    EXPECT_TRUE(among(fileIdentity()).hidesProcesses);
    m_tree.makeFolder("proc/1");
    EXPECT_FALSE(among(fileIdentity()).hidesProcesses);
    EXPECT_FALSE(among(fileIdentity()).isCutShort);
}

TEST_F(TableOfProcessesTest, InANamespaceOfItsOwnOthersAreHiddenToo)
{
    for (const char* folder : {"proc/1", "proc/self", "proc/self/ns"}) {
        m_tree.makeFolder(folder);
    }
    m_tree.makeSymbolicLink("proc/self/ns/pid", "pid:[4026531836]"); // the system's first
    EXPECT_FALSE(among(fileIdentity()).hidesProcesses);
    m_tree.removeFile("proc/self/ns/pid");
    m_tree.makeSymbolicLink("proc/self/ns/pid", "pid:[4026531837]");
    EXPECT_TRUE(among(fileIdentity()).hidesProcesses);
}

TEST_F(TableOfProcessesTest, AProcessThatMayNotBeLookedAtIsCounted)
{
    m_tree.makeFolder("proc/8");
    m_tree.makeFile("proc/8/fd"); // cannot be listed, like another user's
    m_tree.writeFile("proc/8/maps", "");
    m_tree.writeFile("proc/8/stat", "8 (a) S 1 8 8 0 -1 4194304 0\n");
    EXPECT_EQ(among(fileIdentity()).unreadableProcesses, 1U);
}

TEST_F(TableOfProcessesTest, AProcessIsCountedIfOneOfItsFilesMayNotBeLookedAt)
{
    mount("4095:1", "btrfs");
    m_tree.makeFolder("closed");
    m_tree.makeFile("closed/file");
    m_tree.makeSymbolicLink("proc/7/fd/2", m_tree.pathOf("closed/file"));
    m_tree.makeSymbolicLink("proc/7/fd/4", m_tree.pathOf("closed/file"));
    m_tree.setMode("closed", 0);
    const FileIdentity identity = fileIdentity();
    EXPECT_EQ(
        asPlainUser([&] { return static_cast<int>(among(identity).unreadableProcesses); }), 1);
}

TEST_F(TableOfProcessesTest, WhatRunsInTheKernelAloneIsNotCounted)
{
    m_tree.makeFolder("proc/8");
    m_tree.makeFile("proc/8/fd");
    m_tree.writeFile("proc/8/maps", "");
    m_tree.writeFile("proc/8/stat", "8 (a) S 2 0 0 0 -1 2129984 0\n");
    EXPECT_EQ(among(fileIdentity()).unreadableProcesses, 0U);
}

TEST_F(TableOfProcessesTest, AProcessThatIsGoneIsNotCounted)
{
    m_tree.makeFolder("proc/8"); // nothing is in it any more
    EXPECT_EQ(among(fileIdentity()).unreadableProcesses, 0U);
}

TEST_F(TableOfProcessesTest, AProcessThatShowsEmptyListsForItsThreadsIsCounted)
{
    m_tree.makeFolder("proc/8");
    m_tree.makeFolder("proc/8/fd");
    m_tree.writeFile("proc/8/maps", "");
    const std::string rest = " 1 8 8 0 -1 4194304 0 0 0 0 0 0 0 0 20 0 2 0\n";
    m_tree.writeFile("proc/8/stat", "8 (a) Z" + rest);
    EXPECT_EQ(among(fileIdentity()).unreadableProcesses, 1U);
    m_tree.writeFile("proc/8/stat", "8 (a) S" + rest);
    EXPECT_EQ(among(fileIdentity()).unreadableProcesses, 0U);
}

TEST_F(TableOfProcessesTest, AProcessThatKeepsItsMappingsToItselfHidesNoDescriptors)
{
    makeProcessWithFile("5");
    m_tree.removeFile("proc/5/maps");
    m_tree.makeFifo("proc/5/maps"); // who opens it waits for a writer
    const FileIdentity identity = fileIdentity();
    std::stop_source stop;
    FileDescriptor writer;
    std::thread meanwhile([&] {
        writer = FileDescriptor(::open(m_tree.pathOf("proc/5/maps").c_str(), O_WRONLY | O_CLOEXEC));
        stop.request_stop(); // the search has come to it, and waits for what is never written
    });
    const OpenFilesAnswer answer
        = LinuxOpenFiles(kLong, m_tree.pathOf("proc")).among({identity}, stop.get_token());
    meanwhile.join();
    EXPECT_TRUE(answer.isCutShort);
    EXPECT_TRUE(isHeldBy(5, answer));
    EXPECT_TRUE(isHeldBy(7, answer));
}

TEST_F(TableOfProcessesTest, WithoutATableTheAnswerIsCutShort)
{
    const LinuxOpenFiles files(kLong, m_tree.pathOf("none"));
    EXPECT_TRUE(files.among({fileIdentity()}, {}).isCutShort);
}

} // namespace
} // namespace tessera::test
