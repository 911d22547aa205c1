// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/ProcessFiles.h"

#include "support/Machine/ChildProcess.h"
#include "support/Machine/FileContent.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <string>
#include <thread>

namespace tessera {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::Optional;

constexpr const char* kEndsItsFirstThread = R"(
import ctypes, threading, time
threading.Thread(target=time.sleep, args=(600,)).start()
ctypes.CDLL(None).pthread_exit(None)
)";

/// The kernel's name for a thread has room for so much.
using ThreadName = std::array<char, 16>;

class ProcessFilesTest : public testing::Test {
protected:
    const FileDescriptor m_proc{::open("/proc", O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    const std::string m_ownNumber = std::to_string(::getpid());
    const ProcessFiles m_self{m_proc.number(), m_ownNumber};
};

TEST(Mapping, IsReadFromALineOfTheTable)
{
    const auto mapping
        = mappingFrom("7f00a000-7f00b000 r-xp 00001000 103:1f 123456    /usr/lib/a b.so");
    ASSERT_TRUE(mapping);
    EXPECT_EQ(mapping->addresses, "7f00a000-7f00b000");
    EXPECT_EQ(mapping->identity, (FileIdentity{makedev(0x103, 0x1f), 123456}));
    EXPECT_EQ(mapping->path, "/usr/lib/a b.so");
    EXPECT_FALSE(mapping->looksDeleted());
}

TEST(Mapping, AnAddressIsWrittenAsInTheNamesOfMappedFiles)
{
    const auto addresses = [](const std::string& written) {
        return mappingFrom(written + " r-xp 0 08:01 7    /a").value_or(Mapping()).addresses;
    };
    EXPECT_EQ(addresses("00400000-0040b000"), "400000-40b000");
    EXPECT_EQ(addresses("00000000-00010000"), "0-10000");
}

TEST(Mapping, SaysThatItsFileLooksDeleted)
{
    const auto looksDeleted = [](const std::string& path) {
        return mappingFrom("1-2 r--p 0 08:01 7    " + path).value_or(Mapping()).looksDeleted();
    };
    EXPECT_TRUE(looksDeleted("/a (deleted)"));
    EXPECT_FALSE(looksDeleted("/a (deleted) b"));
    EXPECT_FALSE(looksDeleted("/a(deleted)"));
}

TEST(Mapping, MemoryWithoutAFileIsNone)
{
    EXPECT_FALSE(mappingFrom("7f00a000-7f00b000 rw-p 00000000 00:00 0"));
    EXPECT_FALSE(mappingFrom("7f00a000-7f00b000 rw-p 00000000 00:00 0    [heap]"));
}

TEST(Mapping, WhatIsNoLineOfTheTableIsNone)
{
    for (const char* line :
         {"",
          "1-2",
          "1-2 r 0 08:01",
          "1-2 r 0 0801 7 /a",
          "1-2 r 0 x:01 7 /a",
          "1-2 r 0 08:x 7 /a",
          "1-2 r 0 08:01 7x /a"}) {
        EXPECT_FALSE(mappingFrom(line)) << line;
    }
}

TEST(FilesShown, OfTheKernelsOwnProcessesThereAreNone)
{
    EXPECT_EQ(filesShownBy("2 (kthreadd) S 0 0 0 0 -1 2129984 0 0"), FilesShown::Nowhere);
    EXPECT_EQ(filesShownBy("9 (cat) R 1 9 9 34816 9 4194304 81 0"), FilesShown::InProcess);
}

TEST(FilesShown, OfProcessesThatHaveEndedThereAreNone)
{
    EXPECT_EQ(filesShownBy("9 (cat) Z 1 9 9 0 -1 4194304 0 0"), FilesShown::Nowhere);
    EXPECT_EQ(filesShownBy("9 (cat) X 1 9 9 0 -1 4194304 0 0"), FilesShown::Nowhere);
    EXPECT_EQ(
        filesShownBy("9 (cat) Z 1 9 9 0 -1 4194304 0 0 0 0 0 0 0 0 20 0 1 0 7 7 7"),
        FilesShown::Nowhere);
}

TEST(FilesShown, OfAProcessWhoseFirstThreadHasEndedTheyAreInTheOthers)
{
    EXPECT_EQ(
        filesShownBy("9 (cat) Z 1 9 9 0 -1 4194304 0 0 0 0 0 0 0 0 20 0 2 0 7 7 7"),
        FilesShown::InItsThreads);
    EXPECT_EQ(
        filesShownBy("9 (cat) S 1 9 9 0 -1 4194304 0 0 0 0 0 0 0 0 20 0 2 0 7 7 7"),
        FilesShown::InProcess);
}

TEST(FilesShown, ANameSaysNothing)
{
    EXPECT_EQ(
        filesShownBy("9 (a) Z 0 0 0 0 0 2129984 () S 1 9 9 0 -1 4194304 0 0"),
        FilesShown::InProcess);
    EXPECT_EQ(filesShownBy(""), FilesShown::InProcess);
    EXPECT_EQ(filesShownBy("9 cat"), FilesShown::InProcess);
}

TEST_F(ProcessFilesTest, ListsTheProcesses)
{
    const auto numbers = processNumbers(m_proc.number());
    ASSERT_TRUE(numbers);
    EXPECT_THAT(*numbers, Contains(m_ownNumber));
    EXPECT_THAT(*numbers, testing::Not(Contains("self")));
}

TEST_F(ProcessFilesTest, ANameIsTheBytesThatTheProcessChose)
{
    ThreadName before{};
    ASSERT_EQ(::prctl(PR_GET_NAME, before.data()), 0);
    const std::string chosen = "a\n\xff) Z \\n\n";
    ASSERT_EQ(::prctl(PR_SET_NAME, chosen.c_str()), 0);
    const std::string told = m_self.name();
    ::prctl(PR_SET_NAME, before.data());
    EXPECT_EQ(told, chosen);
}

TEST_F(ProcessFilesTest, ADescriptorTellsItsMount)
{
    const auto mount = m_self.mountOf(std::to_string(m_proc.number()));
    ASSERT_TRUE(mount);
    const std::string table = test::fileContent("/proc/self/mountinfo");
    EXPECT_THAT(
        '\n' + table, testing::ContainsRegex('\n' + std::to_string(*mount) + " [^\n]* proc "));
}

TEST_F(ProcessFilesTest, AProcessThatIsGoneHoldsNothing)
{
    const ProcessFiles none(m_proc.number(), "4194305"); // one more than the most that Linux counts
    EXPECT_FALSE(none.isThere());
    EXPECT_EQ(none.name(), "");
}

TEST_F(ProcessFilesTest, TheProgramThatTheTestsAreIsRunning)
{
    struct stat values { };
    ASSERT_EQ(::stat("/proc/self/exe", &values), 0);
    EXPECT_EQ(m_self.program().status.identity, (FileIdentity{values.st_dev, values.st_ino}));
    EXPECT_EQ(m_self.filesShown(), FilesShown::InProcess);
}

TEST_F(ProcessFilesTest, AProcessThatEndsMeanwhileHoldsNothing)
{
    test::ChildProcess child({"sleep", {"60"}, {}, "/dev/null", "/dev/null"});
    const ProcessFiles files(m_proc.number(), std::to_string(child.id()));
    ASSERT_TRUE(files.isThere());
    child.signal(SIGKILL);
    EXPECT_EQ(child.waitForExit(), -1);
    EXPECT_THAT(files.descriptors(), Optional(IsEmpty()));
    EXPECT_THAT(files.mappings(), Optional(IsEmpty()));
    EXPECT_EQ(files.filesShown(), FilesShown::Nowhere);
}

TEST_F(ProcessFilesTest, AProcessWhoseFirstThreadHasEndedHidesItsFiles)
{
    const test::ChildProcess child(
        {"python3", {"-c", kEndsItsFirstThread}, {}, "/dev/null", "/dev/null"});
    const ProcessFiles files(m_proc.number(), std::to_string(child.id()));
    ASSERT_TRUE(files.isThere());
    while (files.filesShown() == FilesShown::InProcess) {
        std::this_thread::yield();
    }
    EXPECT_EQ(files.filesShown(), FilesShown::InItsThreads);
}

} // namespace
} // namespace tessera
