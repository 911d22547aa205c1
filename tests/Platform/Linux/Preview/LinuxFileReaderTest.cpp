// SPDX-License-Identifier: MIT
#include "Platform/Linux/Preview/LinuxFileReader.h"

#include "Platform/Linux/Files/FileDescriptor.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/fsuid.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <filesystem>
#include <string>

namespace tessera {
namespace {

/// What reading the file up to its end, but no further than `limit` bytes, gives.
std::string contentOf(ReadableFile& file, std::size_t limit = 1 << 20)
{
    std::string content;
    std::array<char, 4096> piece{};
    while (content.size() < limit) {
        const auto count = file.readAt(content.size(), piece);
        if (!count || *count == 0) {
            break;
        }
        content.append(piece.data(), *count);
    }
    return content;
}

timespec lastAccess(const std::string& path)
{
    struct stat values { };
    EXPECT_EQ(::lstat(path.c_str(), &values), 0);
    return values.st_atim;
}

TEST(LinuxFileReader, ReadsARegularFile)
{
    const test::TempTree tree;
    tree.writeFile("file", "content");

    const OpenedFile opened = LinuxFileReader().open(tree.pathOf("file"));

    EXPECT_EQ(opened.description.kind, FileKind::Regular);
    EXPECT_EQ(opened.description.length, 7U);
    EXPECT_TRUE(opened.description.modified.has_value());
    ASSERT_NE(opened.content, nullptr);
    EXPECT_EQ(contentOf(*opened.content), "content");
}

TEST(LinuxFileReader, NamesNeedNotBeText)
{
    const test::TempTree tree;
    tree.writeFile("a\n\xFF", "odd");

    const OpenedFile opened = LinuxFileReader().open(tree.pathOf("a\n\xFF"));

    ASSERT_NE(opened.content, nullptr);
    EXPECT_EQ(contentOf(*opened.content), "odd");
}

TEST(LinuxFileReader, DescribesFoldersAndOpensNothing)
{
    const test::TempTree tree;

    const OpenedFile opened = LinuxFileReader().open(tree.path());

    EXPECT_EQ(opened.description.kind, FileKind::Folder);
    EXPECT_FALSE(opened.contentError);
    EXPECT_EQ(opened.content, nullptr);
}

TEST(LinuxFileReader, DoesNotWaitForTheOtherEndOfAPipe)
{
    const test::TempTree tree;
    tree.makeFifo("pipe");

    const OpenedFile opened = LinuxFileReader().open(tree.pathOf("pipe"));

    EXPECT_EQ(opened.description.kind, FileKind::Fifo);
    EXPECT_EQ(opened.content, nullptr);
    // A writer that does not wait finds a reader only if the pipe was left open.
    EXPECT_LT(::open(tree.pathOf("pipe").c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC), 0);
}

TEST(LinuxFileReader, DoesNotOpenSocketsAndDevices)
{
    const test::TempTree tree;
    tree.makeSocket("socket");

    const OpenedFile socket = LinuxFileReader().open(tree.pathOf("socket"));
    const OpenedFile zero = LinuxFileReader().open("/dev/zero");

    EXPECT_EQ(socket.description.kind, FileKind::Socket);
    EXPECT_EQ(socket.content, nullptr);
    EXPECT_EQ(zero.description.kind, FileKind::CharacterDevice);
    EXPECT_EQ(zero.description.length, 0U);
    EXPECT_EQ(zero.content, nullptr);
}

TEST(LinuxFileReader, TellsALinksTargetAndDoesNotFollowIt)
{
    const test::TempTree tree;
    tree.makeFile("file", 9);
    tree.makeSymbolicLink("good", "file");
    tree.makeSymbolicLink("dangling", "\xFFnowhere");

    const OpenedFile good = LinuxFileReader().open(tree.pathOf("good"));
    const OpenedFile dangling = LinuxFileReader().open(tree.pathOf("dangling"));

    EXPECT_EQ(good.description.kind, FileKind::SymbolicLink);
    EXPECT_EQ(good.description.linkTarget, "file");
    EXPECT_EQ(good.content, nullptr);
    EXPECT_EQ(dangling.description.linkTarget, "\xFFnowhere");
}

TEST(LinuxFileReader, FollowsNoLinkOnTheWay)
{
    const test::TempTree tree;
    tree.makeFolder("folder");
    tree.makeFile("folder/file", 9);
    tree.makeSymbolicLink("link", "folder");

    const OpenedFile opened = LinuxFileReader().open(tree.pathOf("link/file"));

    EXPECT_EQ(opened.description.error, std::errc::too_many_symbolic_link_levels);
    EXPECT_EQ(opened.content, nullptr);
}

TEST(LinuxFileReader, SaysThatAFileHasVanished)
{
    const test::TempTree tree;

    const OpenedFile opened = LinuxFileReader().open(tree.pathOf("none"));

    EXPECT_EQ(opened.description.error, std::errc::no_such_file_or_directory);
    EXPECT_EQ(opened.content, nullptr);
}

TEST(LinuxFileReader, DescribesAFileThatMayNotBeRead)
{
    const test::TempTree tree;
    tree.makeFile("secret", 5);
    tree.setMode("secret", 0);

    const OpenedFile opened = LinuxFileReader().open(tree.pathOf("secret"));

    EXPECT_EQ(opened.description.length, 5U);
    // The super-user may read everything.
    const bool mayRead
        = ::faccessat(AT_FDCWD, tree.pathOf("secret").c_str(), R_OK, AT_EACCESS) == 0;
    EXPECT_EQ(opened.content != nullptr, mayRead);
    EXPECT_EQ(opened.contentError == std::errc::permission_denied, !mayRead);
}

TEST(LinuxFileReader, ReadsAnotherUsersFile)
{
    constexpr uid_t kNobody = 65534;
    if (::geteuid() != 0) {
        GTEST_SKIP() << "a plain user cannot make another one's file";
    }
    const test::TempTree tree;
    tree.setMode(".", 0755);
    tree.writeFile("file", "content");
    ::setfsuid(kNobody); // only the owner may ask that the time of last use stays

    const OpenedFile opened = LinuxFileReader().open(tree.pathOf("file"));
    ::setfsuid(0);

    EXPECT_NE(opened.content, nullptr);
}

TEST(LinuxFileReader, DoesNotWaitForWhoeverMustFirstFinishWithTheFile)
{
    const test::TempTree tree;
    tree.makeFile("file");
    const FileDescriptor holder(::open(tree.pathOf("file").c_str(), O_RDWR | O_CLOEXEC));
    if (::fcntl(holder.number(), F_SETLEASE, F_WRLCK) != 0) {
        GTEST_SKIP() << "there are no leases here";
    }
    auto* const before = std::signal(SIGIO, SIG_IGN); // says that somebody waits for the lease

    const OpenedFile opened = LinuxFileReader().open(tree.pathOf("file"));
    (void)std::signal(SIGIO, before);

    EXPECT_EQ(opened.contentError, std::errc::resource_unavailable_try_again);
}

TEST(LinuxFileReader, TakesThePartOfAHugeFileThatIsAskedFor)
{
    constexpr off_t kFiveGigabytes = 5'000'000'000;
    const test::TempTree tree;
    tree.makeSparseFile("sparse", kFiveGigabytes);
    std::array<char, 4> piece{'x', 'x', 'x', 'x'};

    const OpenedFile opened = LinuxFileReader().open(tree.pathOf("sparse"));

    EXPECT_EQ(opened.description.length, 5'000'000'000U);
    ASSERT_NE(opened.content, nullptr);
    EXPECT_EQ(opened.content->readAt(4'999'999'998, piece), 2U);
    EXPECT_EQ(piece, (std::array<char, 4>{'\0', '\0', 'x', 'x'}));
}

TEST(LinuxFileReader, ReadsFilesWhoseLengthTheSystemDoesNotKnow)
{
    const OpenedFile opened
        = LinuxFileReader().open("/proc/" + std::to_string(::getpid()) + "/status");

    EXPECT_EQ(opened.description.length, 0U);
    ASSERT_NE(opened.content, nullptr);
    EXPECT_TRUE(contentOf(*opened.content).starts_with("Name:"));
}

TEST(LinuxFileReader, ReadingLeavesTheTimeOfLastUse)
{
    const test::TempTree tree;
    tree.writeFile("file", "content");
    const std::array<timespec, 2> longAgo{timespec{1, 0}, timespec{2, 0}};
    const std::string path = tree.pathOf("file");
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), longAgo.data(), 0), 0);

    const OpenedFile opened = LinuxFileReader().open(path);
    ASSERT_NE(opened.content, nullptr);
    (void)contentOf(*opened.content);

    EXPECT_EQ(lastAccess(path).tv_sec, 1);
    EXPECT_EQ(opened.description.modified, 2);
}

TEST(LinuxFileReader, ReadsWhatWasOpenedWhateverTakesItsName)
{
    const test::TempTree tree;
    tree.writeFile("file", "old");
    tree.writeFile("other", "new");

    const OpenedFile opened = LinuxFileReader().open(tree.pathOf("file"));
    tree.rename("other", "file");

    ASSERT_NE(opened.content, nullptr);
    EXPECT_EQ(contentOf(*opened.content), "old");
}

TEST(LinuxFileReader, ReachesPathsLongerThanTheKernelTakesAtOnce)
{
    constexpr std::size_t kDepth = 2200;
    const test::TempTree tree;
    tree.makeChain(kDepth);
    std::string path = tree.path();
    for (std::size_t i = 0; i < kDepth; ++i) {
        path += "/d";
    }

    EXPECT_EQ(LinuxFileReader().open(path).description.kind, FileKind::Folder);
    EXPECT_EQ(
        LinuxFileReader().open(path + "/none").description.error,
        std::errc::no_such_file_or_directory);
    EXPECT_EQ(
        LinuxFileReader().open('/' + std::string(PATH_MAX, 'x')).description.error,
        std::errc::filename_too_long);
}

} // namespace
} // namespace tessera
