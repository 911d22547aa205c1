// SPDX-License-Identifier: MIT
#include "Ledger/SpaceLedger.h"
#include "Platform/Linux/Files/FileDescriptor.h"
#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Files/LinuxSharedExtents.h"
#include "Platform/Linux/Mounts/LinuxFileSystemAttributes.h"
#include "Platform/Linux/Process/LinuxOpenFiles.h"
#include "support/Machine/ChildProcess.h"
#include "support/Machine/InChild.h"
#include "support/Machine/MappedFile.h"
#include "support/Machine/MountedImage.h"
#include "support/Machine/RunProgram.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <sstream>
#include <thread>

// What is told of disks, on disks that have what is told: files that share their extents,
// subvolumes, a reserve.

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::Eq;

constexpr std::chrono::minutes kLong{1};
constexpr std::size_t kLength = std::size_t{1} << 20;
constexpr std::size_t kOverwritten = 65536;
constexpr std::uint64_t kBytesPerBlock = 512;

/// Shared bytes and others of each file, with one question for all its extents.
constexpr const char* kOtherReader = R"(
import fcntl, os, struct, sys
for path in sys.argv[1:]:
    shared = own = 0
    request = bytearray(struct.pack("=QQIIII", 0, 2**64 - 1, 0, 0, 1000, 0) + bytes(56 * 1000))
    with open(path, "rb") as file:
        fcntl.ioctl(file, 0xC020660B, request)
    for i in range(struct.unpack_from("=I", request, 20)[0]):
        length, flags = struct.unpack_from("=Q16xI", request, 32 + 56 * i + 16)
        if flags & 0x2000:
            shared += length
        else:
            own += length
    print(shared, own)
)";

FileExtents known(const ExtentBytes& bytes)
{
    return {FileExtents::State::Known, bytes};
}

class DiskFactsTest : public testing::Test {
protected:
    /// Skips the test where no such disk can be had.
    void makeDisk(const std::vector<std::string>& makeFileSystem)
    {
        m_disk = std::make_unique<MountedImage>(makeFileSystem);
        if (!m_disk->problem().empty()) {
            GTEST_SKIP() << "no disk by " << makeFileSystem.front()
                         << " can be had here: " << m_disk->problem();
        }
    }

    std::string pathOf(const std::string& name) const { return m_disk->pathOf(name); }

    FileDescriptor write(const std::string& name, std::size_t bytes) const
    {
        FileDescriptor file(::open(pathOf(name).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644));
        const std::string content(bytes, 'x');
        EXPECT_EQ(::pwrite(file.number(), content.data(), bytes, 0), static_cast<ssize_t>(bytes));
        return file;
    }

    void writeAllOut() const
    {
        const FileDescriptor disk(::open(m_disk->path().c_str(), O_RDONLY | O_CLOEXEC));
        EXPECT_EQ(::syncfs(disk.number()), 0);
    }

    /// Files "original" and "copy", which share all that they have; on the disk.
    void makeSharingFiles() const
    {
        const FileDescriptor original = write("original", kLength);
        const FileDescriptor copy = write("copy", 0);
        ASSERT_EQ(::ioctl(copy.number(), FICLONE, original.number()), 0);
        writeAllOut();
    }

    FileDescriptor overwriteCopy() const { return write("copy", kOverwritten); }

    NamedFile file(const std::string& name) const
    {
        return {pathOf(name), statusAt(AT_FDCWD, pathOf(name).c_str()).status.identity};
    }

    std::vector<FileExtents> extentsOfBoth() const
    {
        const LinuxSharedExtents extents({10, kLong});
        return extents.extentsOf({file("original"), file("copy")}, {}).files;
    }

    static std::string asTheOtherReaderSays(const std::vector<FileExtents>& files)
    {
        std::ostringstream text;
        for (const FileExtents& extents : files) {
            text << extents.bytes.shared << ' ' << extents.bytes.own << '\n';
        }
        return text.str();
    }

    std::string otherReader() const
    {
        return runProgram("python3", {"-c", kOtherReader, pathOf("original"), pathOf("copy")})
            .standardOutput;
    }

    static FileSystemSizes sizes(const std::string& path)
    {
        return LinuxFileSystemAttributes(std::make_shared<const FileSystemQuestions>(kLong))
            .attributesOfFileSystem(path)
            .value_or(FileSystemSizes());
    }

    std::unique_ptr<MountedImage> m_disk;
};

/// The programs that make file systems whose files can share extents.
class SharingDiskTest : public DiskFactsTest, public testing::WithParamInterface<const char*> {
protected:
    void SetUp() override
    {
        makeDisk({GetParam(), "-q"});
        if (!IsSkipped()) {
            makeSharingFiles();
        }
    }
};

INSTANTIATE_TEST_SUITE_P(
    Disks, SharingDiskTest, testing::Values("mkfs.xfs", "mkfs.btrfs"), [](const auto& tested) {
        return std::string(tested.param).substr(5);
    });

TEST_P(SharingDiskTest, FilesThatAreOneAnothersCopiesShareAll)
{
    const FileExtents all = known({kLength, 0, 0});
    EXPECT_THAT(extentsOfBoth(), ElementsAre(Eq(all), Eq(all)));
}

TEST_P(SharingDiskTest, AFileThatWasChangedHasTheChangeForItself)
{
    EXPECT_EQ(::fsync(overwriteCopy().number()), 0);
    const auto files = extentsOfBoth();
    EXPECT_EQ(files.at(1), known({kLength - kOverwritten, kOverwritten, 0}));
    EXPECT_EQ(asTheOtherReaderSays(files), otherReader());
}

/// So that nobody hopes for more than a removal frees.
TEST_P(SharingDiskTest, AChangeThatIsNotWrittenOutYetIsNotTheFilesOwnYet)
{
    // Anybody may have everything written out at any time.
    constexpr int kMostTries = 100;
    const FileExtents all = known({kLength, 0, 0});
    FileExtents told;
    for (int i = 0; i < kMostTries && told != all; ++i) {
        makeSharingFiles();
        (void)overwriteCopy();
        told = extentsOfBoth().at(1);
    }
    EXPECT_EQ(told, all);
}

TEST_P(SharingDiskTest, AFileThatSharesNothingHasAllForItself)
{
    const FileDescriptor alone = write("alone", kLength);
    const LinuxSharedExtents extents({10, kLong});
    const auto asked = [&] { return extents.extentsOf({file("alone")}, {}).files; };
    EXPECT_THAT(asked(), ElementsAre(Eq(known({0, kLength, 0})))) << "before it has a place";
    EXPECT_EQ(::fsync(alone.number()), 0);
    EXPECT_THAT(asked(), ElementsAre(Eq(known({0, kLength, 0}))));
}

TEST_P(SharingDiskTest, AFileWhoseCopyLetsGoHasAllForItself)
{
    // XFS takes its time with the space of a file that is removed, not of one that gets short.
    EXPECT_EQ(::truncate(pathOf("copy").c_str(), 0), 0);
    writeAllOut();
    const LinuxSharedExtents extents({10, kLong});
    EXPECT_THAT(
        extents.extentsOf({file("original")}, {}).files, ElementsAre(Eq(known({0, kLength, 0}))));
}

/// Nobody knows what it takes; certainly not what is in it.
TEST_F(DiskFactsTest, OfACompressedFileIsToldThatItTakesAnotherAmount)
{
    makeDisk({"mkfs.btrfs", "-q"});
    if (IsSkipped()) {
        return;
    }
    const FileDescriptor file = write("file", 0);
    ASSERT_EQ(
        MountedImage::run("btrfs", {"property", "set", pathOf("file"), "compression", "zlib"})
            .exitStatus,
        0);
    (void)write("file", kLength);
    EXPECT_EQ(::fsync(file.number()), 0);
    const NamedFile named{pathOf("file"), statusOf(file.number()).status.identity};
    EXPECT_THAT(
        LinuxSharedExtents({10, kLong}).extentsOf({named}, {}).files,
        ElementsAre(Eq(known({0, kLength, kLength}))));
}

/// There a file shows another device than its file system.
TEST_F(DiskFactsTest, AFileOfASubvolumeIsHeldOnTheDiskAllTheSame)
{
    makeDisk({"mkfs.btrfs", "-q"});
    if (IsSkipped()) {
        return;
    }
    ASSERT_EQ(MountedImage::run("btrfs", {"subvolume", "create", pathOf("sub")}).exitStatus, 0);
    const FileDescriptor held = write("sub/file", kLength);
    EXPECT_EQ(::fsync(held.number()), 0);
    const FileIdentity identity = statusOf(held.number()).status.identity;
    EXPECT_EQ(::unlink(pathOf("sub/file").c_str()), 0);

    const FileSystemSizes told = sizes(pathOf("sub"));
    EXPECT_NE(told.device, identity.device);
    const OpenFilesAnswer answer = LinuxOpenFiles(kLong).withoutNames(told.device, {});
    ASSERT_EQ(answer.files.size(), 1U);
    EXPECT_EQ(answer.files[0].identity, identity);
    EXPECT_EQ(answer.allocatedBytes(), kLength);
    EXPECT_EQ(LinuxOpenFiles(kLong).among({identity}, {}).files.size(), 1U);
}

/// A disk on which no file shows the device of the file system, looked at without the rights to
/// look at mapped files, in a table of one process.
class SubvolumeTest : public DiskFactsTest {
protected:
    void SetUp() override
    {
        makeDisk({"mkfs.btrfs", "-q"});
        m_table.makeFolder("proc");
    }

    OpenFiles& openFilesOf(const std::string& process)
    {
        m_table.makeSymbolicLink("proc/1", "/proc/" + process);
        return m_openFiles;
    }

    FileDescriptor writeOut(const std::string& name) const
    {
        FileDescriptor file = write(name, kLength);
        EXPECT_EQ(::fsync(file.number()), 0);
        return file;
    }

    static FileIdentity identityOf(const FileDescriptor& file)
    {
        return statusOf(file.number()).status.identity;
    }

    const TempTree m_table;
    LinuxOpenFiles m_openFiles{kLong, m_table.pathOf("proc")};
};

TEST_F(SubvolumeTest, AMappedFileThatMayNotBeLookedAtMakesItsProcessAnUnknownOne)
{
    if (IsSkipped()) {
        return;
    }
    FileDescriptor file = writeOut("file");
    const FileIdentity identity = identityOf(file);
    const MappedFile mapped(file);
    file = FileDescriptor();
    const FileIdentity other = identityOf(writeOut("other"));
    const OpenFiles& openFiles = openFilesOf("self");
    const auto unknown = [&openFiles](const FileIdentity& asked) {
        return asPlainUser(
            [&] { return static_cast<int>(openFiles.among({asked}, {}).unreadableProcesses); });
    };
    EXPECT_EQ(unknown(identity), 1);
    EXPECT_EQ(unknown(other), 0);
}

TEST_F(SubvolumeTest, AMappedFileWithoutANameIsToldWithoutASize)
{
    if (IsSkipped()) {
        return;
    }
    FileDescriptor file = writeOut("file");
    const MappedFile mapped(file);
    file = FileDescriptor();
    EXPECT_EQ(::unlink(pathOf("file").c_str()), 0);
    const std::uint64_t device = sizes(m_disk->path()).device;
    const OpenFiles& openFiles = openFilesOf("self");
    const auto seen = asPlainUser([&] {
        const OpenFilesAnswer answer = openFiles.withoutNames(device, {});
        const bool isTold = answer.files.size() == 1 && !answer.files[0].allocatedBytes;
        return isTold && answer.files[0].path == pathOf("file") ? 1 : 0;
    });
    EXPECT_EQ(seen, 1);
}

TEST_F(SubvolumeTest, AFileThatIsOpenAndMappedIsToldOnceWithItsSize)
{
    if (IsSkipped()) {
        return;
    }
    const FileDescriptor file = writeOut("file");
    const MappedFile mapped(file);
    EXPECT_EQ(::unlink(pathOf("file").c_str()), 0);
    const std::uint64_t device = sizes(m_disk->path()).device;
    const OpenFiles& openFiles = openFilesOf("self");
    const auto seen = asPlainUser([&] {
        const OpenFilesAnswer answer = openFiles.withoutNames(device, {});
        return answer.files.size() == 1 && answer.allocatedBytes() == kLength ? 1 : 0;
    });
    EXPECT_EQ(seen, 1);
}

TEST_F(SubvolumeTest, AProgramThatRunsThereIsOpen)
{
    if (IsSkipped()) {
        return;
    }
    std::filesystem::copy_file("/bin/sleep", pathOf("sleep"));
    const FileDescriptor program(::open(pathOf("sleep").c_str(), O_RDONLY | O_CLOEXEC));
    const ChildProcess child(
        {pathOf("sleep"), {"600"}, {}, "/dev/null", "/dev/null", [] { becomePlainUser(); }});
    const std::string number = std::to_string(child.id());
    while (std::filesystem::read_symlink("/proc/" + number + "/exe").filename() != "sleep") {
        std::this_thread::yield(); // until it has become that program
    }
    const FileIdentity identity = identityOf(program);
    const OpenFiles& openFiles = openFilesOf(number);
    EXPECT_EQ(
        asPlainUser([&] { return static_cast<int>(openFiles.among({identity}, {}).files.size()); }),
        1);
}

/// A snapshot's files have the numbers of those that it was taken of.
TEST_F(SubvolumeTest, FilesOfOneNumberInTwoSubvolumesAreTwo)
{
    if (IsSkipped()) {
        return;
    }
    ASSERT_EQ(MountedImage::run("btrfs", {"subvolume", "create", pathOf("a")}).exitStatus, 0);
    FileDescriptor first = writeOut("a/file");
    ASSERT_EQ(
        MountedImage::run("btrfs", {"subvolume", "snapshot", pathOf("a"), pathOf("b")}).exitStatus,
        0);
    FileDescriptor second(::open(pathOf("b/file").c_str(), O_RDONLY | O_CLOEXEC));
    const FileIdentity firstIdentity = identityOf(first);
    const FileIdentity secondIdentity = identityOf(second);
    EXPECT_EQ(firstIdentity.inode, secondIdentity.inode);
    const MappedFile firstMapped(first);
    const MappedFile secondMapped(second);
    first = FileDescriptor();
    second = FileDescriptor();
    EXPECT_EQ(openFilesOf("self").among({firstIdentity, secondIdentity}, {}).files.size(), 2U);
}

TEST_F(DiskFactsTest, AReserveIsTold)
{
    makeDisk({"mkfs.ext4", "-q", "-m", "20"});
    if (IsSkipped()) {
        return;
    }
    const ProgramResult stat
        = runProgram("stat", {"--file-system", "--format=%b %f %a %S", pathOf("lost+found")});
    std::istringstream line(stat.standardOutput);
    std::uint64_t total = 0;
    std::uint64_t free = 0;
    std::uint64_t available = 0;
    std::uint64_t unit = 0;
    ASSERT_TRUE(line >> total >> free >> available >> unit) << stat.standardError;
    const FileSystemSizes told = sizes(m_disk->path());
    EXPECT_EQ(told.totalBytes, total * unit);
    EXPECT_EQ(told.freeBytes, free * unit);
    EXPECT_EQ(told.availableBytes, available * unit);
    EXPECT_EQ(told.reservedBytes, (free - available) * unit);
    EXPECT_GE(told.reservedBytes, std::uint64_t{320} * 1024 * 1024 / 5); // of which is 20 %
    EXPECT_EQ(told.type, "ext4");
}

class QuietDiskTest : public DiskFactsTest {
protected:
    /// As find(1) counts them.
    std::uint64_t blocksOfFolders() const
    {
        const ProgramResult find
            = runProgram("find", {m_disk->path(), "-type", "d", "-printf", "%b\n"});
        std::istringstream lines(find.standardOutput);
        std::uint64_t sum = 0;
        for (std::uint64_t blocks = 0; lines >> blocks;) {
            sum += blocks;
        }
        EXPECT_GT(sum, 0U) << find.standardError;
        return sum;
    }
};

/// All that df says is used was found, but for the file system's own few blocks.
TEST_F(QuietDiskTest, TheAccountOfAQuietDiskLeavesNextToNothing)
{
    makeDisk({"mkfs.ext4", "-q"});
    if (IsSkipped()) {
        return;
    }
    std::filesystem::create_directories(pathOf("a/b"));
    const FileDescriptor named = write("a/b/file", 5 * kLength);
    EXPECT_EQ(::link(pathOf("a/b/file").c_str(), pathOf("a/again").c_str()), 0);
    const FileDescriptor held = write("held", 3 * kLength);
    EXPECT_EQ(::unlink(pathOf("held").c_str()), 0);
    writeAllOut();

    const ProgramResult du = runProgram("du", {"--summarize", "--block-size=1", m_disk->path()});
    SpaceFacts facts;
    facts.sizes = sizes(m_disk->path());
    facts.folders = blocksOfFolders() * kBytesPerBlock;
    facts.files = std::stoull(du.standardOutput) - facts.folders; // it counts them as well
    facts.heldOpen = LinuxOpenFiles(kLong).withoutNames(facts.sizes.device, {}).allocatedBytes();
    EXPECT_EQ(facts.heldOpen, 3 * kLength);
    const auto lines = spaceLedger(facts).value_or(std::vector<LedgerLine>());
    const auto rest = std::ranges::find(lines, LedgerLine::Kind::Rest, &LedgerLine::kind);
    ASSERT_NE(rest, lines.end());
    EXPECT_GE(rest->bytes, 0);
    EXPECT_LT(rest->bytes, 16 * 1024);
}

} // namespace
} // namespace tessera::test
