// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/LinuxOpenFiles.h"

#include "Platform/Linux/Files/FileDescriptor.h"
#include "Platform/Linux/Mounts/LinuxFileSystemAttributes.h"
#include "support/Machine/ChildProcess.h"
#include "support/Machine/InChild.h"
#include "support/Machine/MappedFile.h"
#include "support/Machine/OwnMounts.h"
#include "support/Machine/RunProgram.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <set>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::chrono::minutes kLong{1};
constexpr std::uint64_t kBytesPerBlock = 512;

/// Counts what a device's files without names take, by descriptors alone.
constexpr const char* kOtherReader = R"(
import glob, os, sys
found = {}
for link in glob.glob("/proc/[0-9]*/fd/*"):
    try:
        status = os.stat(link)
    except OSError:
        continue
    if status.st_dev == int(sys.argv[1]) and status.st_nlink == 0:
        found[status.st_ino] = status.st_blocks * 512
print(len(found), sum(found.values()))
)";

struct stat statusOf(int descriptor)
{
    struct stat values { };
    EXPECT_EQ(::fstat(descriptor, &values), 0);
    return values;
}

FileIdentity identityOf(int descriptor)
{
    const struct stat values = statusOf(descriptor);
    return {values.st_dev, values.st_ino};
}

/// On the first thread, which gives the process its name.
std::string nameOfThisProcess()
{
    std::array<char, 16> name{}; // as long as the system lets it be
    EXPECT_EQ(::prctl(PR_GET_NAME, name.data()), 0);
    return name.data();
}

bool mayLookAtMappedFiles()
{
    const std::string own = std::filesystem::directory_iterator("/proc/self/map_files")->path();
    struct stat values { };
    return ::stat(own.c_str(), &values) == 0;
}

const HeldFile* find(const OpenFilesAnswer& answer, const FileIdentity& file)
{
    const auto found = std::ranges::find(answer.files, file, &HeldFile::identity);
    return found != answer.files.end() ? &*found : nullptr;
}

class LinuxOpenFilesTest : public testing::Test {
protected:
    FileDescriptor open(const std::string& name, int flags = O_RDONLY) const
    {
        FileDescriptor file(::open(m_tree.pathOf(name).c_str(), flags | O_CLOEXEC));
        EXPECT_TRUE(file.isOpen()) << name;
        return file;
    }

    /// An open file that no folder names.
    FileDescriptor openDeleted(const std::string& name, std::size_t bytes = 100000) const
    {
        m_tree.makeFile(name, bytes);
        FileDescriptor file = open(name);
        m_tree.removeFile(name);
        return file;
    }

    OpenFilesAnswer withoutNames() const { return m_files.withoutNames(device(), {}); }

    /// Of the file system, which files may show another of.
    std::uint64_t device() const
    {
        return LinuxFileSystemAttributes(std::make_shared<const FileSystemQuestions>(kLong))
            .attributesOfFileSystem(m_tree.path())
            .value_or(FileSystemSizes())
            .device;
    }

    /// How a mapped file is told that may not be looked at.
    FileIdentity identityWithoutRights(const FileIdentity& file) const
    {
        return {device(), file.inode};
    }

    FileIdentity identityOfMapped(const FileIdentity& file) const
    {
        return mayLookAtMappedFiles() ? file : identityWithoutRights(file);
    }

    const TempTree m_tree;
    const LinuxOpenFiles m_files{kLong};
};

TEST_F(LinuxOpenFilesTest, AFileThatNoFolderNamesIsToldWithItsSizeAndItsHolder)
{
    const FileDescriptor file = openDeleted("file");
    const OpenFilesAnswer answer = withoutNames();
    const HeldFile* held = find(answer, identityOf(file.number()));
    ASSERT_NE(held, nullptr);
    const auto blocks = static_cast<std::uint64_t>(statusOf(file.number()).st_blocks);
    EXPECT_EQ(held->allocatedBytes, blocks * kBytesPerBlock);
    EXPECT_THAT(held->holders, ElementsAre(FileHolder{::getpid(), nameOfThisProcess()}));
    EXPECT_FALSE(answer.isCutShort);
}

TEST_F(LinuxOpenFilesTest, AFileThatHasANameIsNotTold)
{
    m_tree.makeFile("file", 5000);
    m_tree.makeHardLink("other", "file");
    const FileDescriptor file = open("file");
    m_tree.removeFile("file");
    EXPECT_EQ(find(withoutNames(), identityOf(file.number())), nullptr);
}

TEST_F(LinuxOpenFilesTest, AFolderThatNoFolderNamesIsTold)
{
    m_tree.makeFolder("folder");
    const FileDescriptor folder = open("folder", O_DIRECTORY);
    m_tree.removeFolder("folder");
    EXPECT_NE(find(withoutNames(), identityOf(folder.number())), nullptr);
}

TEST_F(LinuxOpenFilesTest, AFileOfManyProcessesIsToldOnceWithEachOfThem)
{
    const FileDescriptor file = openDeleted("file");
    const FileDescriptor inherited(::dup(file.number())); // not closed by a new program
    std::vector<std::unique_ptr<ChildProcess>> children;
    std::set<std::int64_t> expected{::getpid()};
    for (int i = 0; i < 3; ++i) {
        children.push_back(std::make_unique<ChildProcess>(
            ChildProcessSetup{"sleep", {"60"}, {}, "/dev/null", "/dev/null"}));
        expected.insert(children.back()->id());
    }
    const OpenFilesAnswer answer = withoutNames();
    const FileIdentity identity = identityOf(file.number());
    EXPECT_EQ(std::ranges::count(answer.files, identity, &HeldFile::identity), 1);
    ASSERT_NE(find(answer, identity), nullptr);
    std::multiset<std::int64_t> told;
    for (const FileHolder& holder : find(answer, identity)->holders) {
        told.insert(holder.process);
    }
    EXPECT_EQ(told, std::multiset<std::int64_t>(expected.begin(), expected.end()));
}

TEST_F(LinuxOpenFilesTest, AFileOfAnotherDeviceIsNotTold)
{
    const FileDescriptor file = openDeleted("file");
    struct stat proc { };
    ASSERT_EQ(::stat("/proc", &proc), 0);
    EXPECT_EQ(find(m_files.withoutNames(proc.st_dev, {}), identityOf(file.number())), nullptr);
}

TEST_F(LinuxOpenFilesTest, AFileThatIsOnlyMappedIsTold)
{
    FileDescriptor file = openDeleted("file");
    const FileIdentity identity = identityOf(file.number());
    const auto blocks = static_cast<std::uint64_t>(statusOf(file.number()).st_blocks);
    const MappedFile mapped(file);
    file = FileDescriptor();

    const OpenFilesAnswer answer = withoutNames();
    const HeldFile* held = find(answer, identityOfMapped(identity));
    ASSERT_NE(held, nullptr);
    ASSERT_EQ(held->holders.size(), 1U);
    EXPECT_EQ(held->holders[0].process, ::getpid());
    EXPECT_EQ(
        held->allocatedBytes,
        mayLookAtMappedFiles() ? std::optional(blocks * kBytesPerBlock) : std::nullopt);
}

/// Where programs lie that run at a fixed place.
TEST_F(LinuxOpenFilesTest, AFileThatIsMappedAtALowAddressIsTold)
{
    constexpr std::uintptr_t kLow = 0x00100000;
    FileDescriptor file = openDeleted("file");
    const FileIdentity identity = identityOf(file.number());
    const MappedFile mapped(file, kLow);
    file = FileDescriptor();
    const OpenFilesAnswer answer = withoutNames();
    const HeldFile* held = find(answer, identityOfMapped(identity));
    ASSERT_NE(held, nullptr);
    EXPECT_EQ(held->allocatedBytes.has_value(), mayLookAtMappedFiles());
}

TEST_F(LinuxOpenFilesTest, AFileThatIsOpenAndMappedIsToldOnce)
{
    const FileDescriptor file = openDeleted("file");
    const FileIdentity identity = identityOf(file.number());
    const MappedFile mapped(file);
    const OpenFilesAnswer answer = withoutNames();
    const auto isIt = [&](const HeldFile& held) { return held.identity.inode == identity.inode; };
    ASSERT_EQ(std::ranges::count_if(answer.files, isIt), 1);
    const HeldFile* held = find(answer, identity);
    ASSERT_NE(held, nullptr);
    EXPECT_TRUE(held->allocatedBytes);
    EXPECT_EQ(held->holders.size(), 1U);
}

TEST_F(LinuxOpenFilesTest, AFileIsToldWithThePlaceWhereItLay)
{
    const FileDescriptor file = openDeleted("a file (deleted)");
    const OpenFilesAnswer answer = withoutNames();
    const HeldFile* held = find(answer, identityOf(file.number()));
    ASSERT_NE(held, nullptr);
    EXPECT_EQ(held->path, std::filesystem::canonical(m_tree.path()) / "a file (deleted)");
}

TEST_F(LinuxOpenFilesTest, OnADiskOfItsOwnTheSumIsThatOfAnotherReader)
{
    if (!OwnMounts::enter()) {
        GTEST_SKIP() << "this process may not mount";
    }
    OwnMounts mounts;
    mounts.mountMemory(m_tree.path());
    const FileDescriptor large = openDeleted("large", 1000000);
    const FileDescriptor small = openDeleted("small", 1);
    // The other reader inherits these, for it may not be allowed to see what this process has.
    const FileDescriptor largeAgain(::dup(large.number()));
    const FileDescriptor smallAgain(::dup(small.number()));
    m_tree.makeFile("named", 300000);
    const FileDescriptor named = open("named");

    const OpenFilesAnswer answer = withoutNames();
    const ProgramResult other
        = runProgram("python3", {"-c", kOtherReader, std::to_string(device())});
    EXPECT_EQ(
        std::to_string(answer.files.size()) + ' ' + std::to_string(answer.allocatedBytes()) + '\n',
        other.standardOutput)
        << other.standardError;
    const auto blocks = statusOf(large.number()).st_blocks + statusOf(small.number()).st_blocks;
    EXPECT_EQ(answer.allocatedBytes(), static_cast<std::uint64_t>(blocks) * kBytesPerBlock);
}

TEST_F(LinuxOpenFilesTest, AmongFilesThoseThatSomebodyHasOpenAreTold)
{
    m_tree.makeFile("open");
    m_tree.makeFile("mapped", 1);
    m_tree.makeFile("closed");
    const FileDescriptor file = open("open");
    FileDescriptor toMap = open("mapped");
    const FileIdentity mappedIdentity = identityOf(toMap.number());
    const MappedFile mapped(toMap);
    toMap = FileDescriptor();
    const FileIdentity identity = identityOf(file.number());
    const FileIdentity closed = identityOf(open("closed").number());

    const OpenFilesAnswer answer = m_files.among({closed, identity, mappedIdentity}, {});
    EXPECT_NE(find(answer, identity), nullptr);
    EXPECT_EQ(find(answer, closed), nullptr);
    // Where its device is not known it can only be said that somebody may have it open.
    const bool isToldBySelf = mayLookAtMappedFiles() || mappedIdentity.device == device();
    EXPECT_EQ(find(answer, mappedIdentity) != nullptr, isToldBySelf);
    EXPECT_TRUE(isToldBySelf || answer.unreadableProcesses != 0);
}

TEST_F(LinuxOpenFilesTest, AProgramThatRunsIsOpen)
{
    struct stat values { };
    ASSERT_EQ(::stat("/proc/self/exe", &values), 0);
    const FileIdentity program{values.st_dev, values.st_ino};
    EXPECT_NE(find(m_files.among({program}, {}), program), nullptr);
}

TEST_F(LinuxOpenFilesTest, AmongNoFilesThereAreNone)
{
    const OpenFilesAnswer answer = m_files.among({}, {});
    EXPECT_THAT(answer.files, IsEmpty());
    EXPECT_FALSE(answer.isCutShort);
}

TEST_F(LinuxOpenFilesTest, WithoutTimeTheAnswerIsCutShort)
{
    const FileDescriptor file = openDeleted("file");
    const OpenFilesAnswer answer
        = LinuxOpenFiles(std::chrono::milliseconds(0)).withoutNames(device(), {});
    EXPECT_TRUE(answer.isCutShort);
    EXPECT_THAT(answer.files, IsEmpty());
}

TEST_F(LinuxOpenFilesTest, OfADeviceThatNobodyKnowsTheAnswerIsCutShort)
{
    EXPECT_TRUE(m_files.withoutNames(0, {}).isCutShort);
}

TEST_F(LinuxOpenFilesTest, AStopCutsTheAnswerShort)
{
    std::stop_source stop;
    stop.request_stop();
    EXPECT_TRUE(m_files.withoutNames(device(), stop.get_token()).isCutShort);
}

TEST_F(LinuxOpenFilesTest, ProcessesOfOthersAreCounted)
{
    if (::geteuid() != 0) {
        GTEST_SKIP() << "needs the super-user's rights";
    }
    const ChildProcess other({"sleep", {"60"}, {}, "/dev/null", "/dev/null"});
    const std::uint64_t here = device();
    const int seen = asPlainUser([this, here] {
        const OpenFilesAnswer answer = m_files.withoutNames(here, {});
        return (answer.unreadableProcesses != 0 ? 1 : 0) + (answer.isAtLeast() ? 2 : 0)
            + (answer.isCutShort ? 4 : 0);
    });
    EXPECT_EQ(seen, 1 + 2);
}

TEST_F(LinuxOpenFilesTest, AMappedFileThatMayNotBeLookedAtIsToldWithoutASize)
{
    FileDescriptor file = openDeleted("file");
    const FileIdentity identity = identityWithoutRights(identityOf(file.number()));
    const MappedFile mapped(file);
    file = FileDescriptor();
    const std::uint64_t here = device();
    const int seen = asPlainUser([this, here, &identity] {
        const OpenFilesAnswer answer = m_files.withoutNames(here, {});
        const HeldFile* held = find(answer, identity);
        return (held != nullptr ? 1 : 0) + (held != nullptr && held->allocatedBytes ? 2 : 0)
            + (answer.isAtLeast() ? 4 : 0);
    });
    EXPECT_EQ(seen, 1 + 4);
}

TEST_F(LinuxOpenFilesTest, AMappedFileThatHasANameIsNotToldForWantOfRights)
{
    m_tree.makeFile("file", 5000);
    const FileDescriptor file = open("file");
    const FileIdentity identity = identityOf(file.number());
    const MappedFile mapped(file);
    const std::uint64_t here = device();
    EXPECT_EQ(
        asPlainUser([this, here, &identity] {
            return find(m_files.withoutNames(here, {}), identity) != nullptr ? 1 : 0;
        }),
        0);
}

TEST_F(LinuxOpenFilesTest, EverybodyMayLookAtTheirOwnProgram)
{
    struct stat values { };
    ASSERT_EQ(::stat("/proc/self/exe", &values), 0);
    const FileIdentity program{values.st_dev, values.st_ino};
    const int seen = asPlainUser([this, &program] {
        const OpenFilesAnswer answer = m_files.among({program}, {});
        const HeldFile* held = find(answer, program);
        return held != nullptr && held->allocatedBytes ? 1 : 0;
    });
    EXPECT_EQ(seen, 1);
}

TEST_F(LinuxOpenFilesTest, InANamespaceOfItsOwnItSaysThatOthersAreHidden)
{
    constexpr int kExact = 0;
    constexpr int kHidden = 1;
    constexpr int kNone = 2;
    const int seen = inChild([this] {
        // Of the mounts, too: tests that follow see the others.
        if (!OwnMounts::enter() || ::unshare(CLONE_NEWPID | CLONE_NEWNS) != 0) {
            return kNone;
        }
        return inChild([this] {
            if (::mount("tessera-test", "/proc", "proc", 0, nullptr) != 0) {
                return kNone;
            }
            return m_files.among({}, {}).hidesProcesses ? kHidden : kExact;
        });
    });
    if (seen == kNone) {
        GTEST_SKIP() << "no table of processes can be mounted here";
    }
    EXPECT_EQ(seen, kHidden);
}

/// A mount whose server never says a word.
TEST_F(LinuxOpenFilesTest, AFileOnADeadDiskStopsNobody)
{
    if (::access("/dev/fuse", R_OK | W_OK) != 0) {
        GTEST_SKIP() << "there is no /dev/fuse that this process may use";
    }
    if (!OwnMounts::enter()) {
        GTEST_SKIP() << "this process may not mount";
    }
    m_tree.makeFolder("disk");
    const std::string disk = m_tree.pathOf("disk");
    FileDescriptor server(::open("/dev/fuse", O_RDWR | O_CLOEXEC));
    const std::string options = "fd=" + std::to_string(server.number()) + ",rootmode=40000,user_id="
        + std::to_string(::geteuid()) + ",group_id=" + std::to_string(::getegid());
    ASSERT_EQ(::mount("tessera-test", disk.c_str(), "fuse", 0, options.c_str()), 0);
    const FileDescriptor dead(::open(disk.c_str(), O_PATH | O_CLOEXEC));
    EXPECT_TRUE(dead.isOpen());

    EXPECT_FALSE(m_files.withoutNames(device(), {}).isCutShort);
    struct statx values { };
    EXPECT_EQ(
        ::statx(dead.number(), "", AT_EMPTY_PATH | AT_STATX_DONT_SYNC, STATX_INO, &values), 0);
    const FileIdentity root{makedev(values.stx_dev_major, values.stx_dev_minor), values.stx_ino};
    const OpenFilesAnswer onDisk = m_files.among({root}, {});
    server = FileDescriptor(); // whoever waits for an answer gets an error now
    ::umount2(disk.c_str(), MNT_DETACH);
    EXPECT_FALSE(onDisk.isCutShort);
    EXPECT_EQ(onDisk.files.size(), 1U);
}

} // namespace
} // namespace tessera::test
