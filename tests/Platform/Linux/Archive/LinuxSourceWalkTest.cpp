// SPDX-License-Identifier: MIT
#include "Platform/Linux/Archive/LinuxSourceWalk.h"

#include "HelperPrograms/Archiver/ArchiverSystem.h"
#include "support/Machine/Meanwhile.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using Kind = ArchiveItem::Kind;
using Step = SourceWalk::Step;

constexpr std::size_t kBufferSize = 4096;

std::unique_ptr<SourceWalk> openSource(const std::string& path)
{
    auto opened = makeArchiverSystem()->openSource(path, SourceKind::Any);
    return std::move(std::get<std::unique_ptr<SourceWalk>>(opened));
}

/// Moves on to the item at that path, which must come.
ArchiveItem advanceTo(SourceWalk& walk, const std::string& path)
{
    ArchiveItem item;
    while (walk.next(item) != Step::End) {
        if (item.path == path) {
            return item;
        }
    }
    ADD_FAILURE() << path << " was not delivered";
    return item;
}

std::vector<std::string> remainingPaths(SourceWalk& walk)
{
    std::vector<std::string> paths;
    ArchiveItem item;
    for (Step step = walk.next(item); step != Step::End; step = walk.next(item)) {
        paths.push_back((step == Step::Item ? "" : step == Step::Vanished ? "-" : "!") + item.path);
    }
    return paths;
}

std::string contentOfCurrent(SourceWalk& walk)
{
    std::string content;
    std::array<char, kBufferSize> buffer{};
    for (ContentPart part = walk.read(buffer); part.length > 0; part = walk.read(buffer)) {
        content.append(buffer.data(), part.length);
    }
    return content;
}

class LinuxSourceWalkOfX : public testing::Test {
protected:
    LinuxSourceWalkOfX() { tree.makeFolder("X"); }

    std::unique_ptr<SourceWalk> open() const { return openSource(tree.pathOf("X")); }

    /// Folders "d" inside each other below X, as many more than are kept open.
    std::string makeDeepChain() const
    {
        std::string path = "X";
        for (int i = 0; i < 100; ++i) {
            path += "/d";
            tree.makeFolder(path);
        }
        return path;
    }

    TempTree tree;
};

TEST_F(LinuxSourceWalkOfX, DeliversFoldersBeforeWhatIsInThemInTheOrderOfBytes)
{
    tree.makeFolder("X/b");
    tree.makeFile("X/b/inside");
    tree.makeFile("X/a");
    tree.makeFile("X/B");
    tree.makeFile("X/\xFF");
    const auto walk = open();
    EXPECT_THAT(
        remainingPaths(*walk), ElementsAre("X", "X/B", "X/a", "X/b", "X/b/inside", "X/\xFF"));
}

TEST_F(LinuxSourceWalkOfX, AnItemHasItsKindModeOwnerAndLength)
{
    tree.makeFile("X/file", 1234);
    tree.setMode("X/file", 0640);
    const auto walk = open();
    const ArchiveItem item = advanceTo(*walk, "X/file");
    EXPECT_EQ(item.kind, Kind::File);
    EXPECT_EQ(item.permissions, 0640U);
    EXPECT_EQ(item.length, 1234U);
    EXPECT_EQ(item.owner, ::geteuid());
}

TEST_F(LinuxSourceWalkOfX, AFilesContentCanBeReadUntilTheNextStep)
{
    tree.writeFile("X/a", "content of a");
    tree.makeFolder("X/b");
    const auto walk = open();
    advanceTo(*walk, "X/a");
    EXPECT_EQ(contentOfCurrent(*walk), "content of a");
    advanceTo(*walk, "X/b");
    EXPECT_EQ(contentOfCurrent(*walk), "");
}

TEST_F(LinuxSourceWalkOfX, LinksHaveTargetsOfAnyLength)
{
    const std::string target(3000, 't');
    tree.makeSymbolicLink("X/link", target);
    const auto walk = open();
    const ArchiveItem item = advanceTo(*walk, "X/link");
    EXPECT_EQ(item.kind, Kind::Link);
    EXPECT_EQ(item.linkTarget, target);
    EXPECT_EQ(item.length, 0U);
}

TEST_F(LinuxSourceWalkOfX, WhatVanishesMeanwhileIsSaidToHaveVanished)
{
    tree.makeFile("X/a");
    tree.makeFile("X/b");
    tree.makeFile("X/c");
    const auto walk = open();
    advanceTo(*walk, "X/a");
    tree.removeFile("X/b");
    EXPECT_THAT(remainingPaths(*walk), ElementsAre("-X/b", "X/c"));
}

TEST_F(LinuxSourceWalkOfX, ASourceThatVanishesIsAFailure)
{
    const auto walk = open();
    tree.removeFolder("X");
    EXPECT_THAT(remainingPaths(*walk), ElementsAre("!X"));
}

TEST_F(LinuxSourceWalkOfX, AFileThatBecomesALinkMeanwhileIsAFailure)
{
    tree.writeFile("secret", "not in X");
    tree.makeFile("X/a");
    const auto walk = open();
    advanceTo(*walk, "X");
    const Meanwhile other(Call::Open, [this] {
        tree.removeFile("X/a");
        tree.makeSymbolicLink("X/a", "../secret");
    });
    EXPECT_THAT(remainingPaths(*walk), ElementsAre("!X/a"));
}

TEST_F(LinuxSourceWalkOfX, AFileThatBecomesAPipeMeanwhileIsAFailureAndNotWaitedFor)
{
    tree.makeFile("X/a");
    const auto walk = open();
    advanceTo(*walk, "X");
    const Meanwhile other(Call::Open, [this] {
        tree.removeFile("X/a");
        tree.makeFifo("X/a");
    });
    EXPECT_THAT(remainingPaths(*walk), ElementsAre("!X/a"));
}

TEST_F(LinuxSourceWalkOfX, TheArchiveIsMadeInTheFolderThatTheSourceWasFoundIn)
{
    const auto system = makeArchiverSystem();
    const std::string target = tree.pathOf("pub/X.zip");
    tree.makeFolder("pub");
    tree.rename("X", "pub/X");
    ASSERT_EQ(system->openSource(tree.pathOf("pub/X"), SourceKind::Any).index(), 0U);
    tree.rename("pub", "priv");
    tree.makeFolder("pub");
    testing::internal::CaptureStdout();
    ASSERT_EQ(system->createTarget(target).index(), 0U);
    testing::internal::GetCapturedStdout();
    EXPECT_TRUE(statusAt(AT_FDCWD, tree.pathOf("priv/X.zip.part").c_str()));
    EXPECT_FALSE(statusAt(AT_FDCWD, tree.pathOf("pub/X.zip.part").c_str()));
}

TEST_F(LinuxSourceWalkOfX, WhatIsOfAnotherKindThanWasMeantIsRefused)
{
    tree.makeFile("file");
    tree.makeSymbolicLink("link", "X");
    const auto errorOf = [this](const std::string& name, SourceKind kind) {
        const auto opened = makeArchiverSystem()->openSource(tree.pathOf(name), kind);
        const auto* const failure = std::get_if<ArchiveFailure>(&opened);
        return failure == nullptr ? 0 : failure->code;
    };
    EXPECT_EQ(errorOf("X", SourceKind::Folder), 0);
    EXPECT_EQ(errorOf("X", SourceKind::File), EISDIR);
    EXPECT_EQ(errorOf("file", SourceKind::File), 0);
    EXPECT_EQ(errorOf("file", SourceKind::Folder), ENOTDIR);
    EXPECT_EQ(errorOf("link", SourceKind::File), 0);
    EXPECT_EQ(errorOf("link", SourceKind::Folder), ENOTDIR);
}

TEST_F(LinuxSourceWalkOfX, WhatIsPassedOverIsNotDelivered)
{
    tree.makeFile("X/a");
    tree.makeFile("X/b");
    const auto walk = open();
    walk->passOver(statusAt(AT_FDCWD, tree.pathOf("X/a").c_str()).status.identity);
    EXPECT_THAT(remainingPaths(*walk), ElementsAre("X", "X/b"));
}

TEST_F(LinuxSourceWalkOfX, FindsItsWayBackUpThroughFoldersThatWereClosed)
{
    std::string path = makeDeepChain();
    std::vector<std::string> expected;
    for (; path != "X"; path.resize(path.size() - 2)) {
        tree.makeFile(path + "/z");
        expected.push_back(path + "/z");
    }
    const auto walk = open();
    advanceTo(*walk, expected.front().substr(0, expected.front().size() - 2));
    EXPECT_EQ(remainingPaths(*walk), expected);
}

TEST_F(LinuxSourceWalkOfX, AFolderThatIsMovedMeanwhileLeadsNowhereElse)
{
    const std::string deepest = makeDeepChain();
    tree.makeFile("X/z");
    tree.makeFile("X/d/z");
    tree.makeFolder("other");
    tree.makeFile("other/z");
    const auto walk = open();
    advanceTo(*walk, deepest);
    tree.rename("X/d/d", "other/d");
    EXPECT_THAT(remainingPaths(*walk), ElementsAre("!X/d", "!X"));
    EXPECT_EQ(walk->error(), ESTALE);
}

TEST_F(LinuxSourceWalkOfX, AChainOf10000FoldersNeedsFewDescriptors)
{
    const TempTree deep;
    deep.makeChain(10'000, "s");
    rlimit former{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &former), 0);
    const rlimit few{64, former.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &few), 0);
    const auto walk = openSource(deep.pathOf("d"));
    std::size_t items = 0;
    std::size_t failures = 0;
    ArchiveItem item;
    for (Step step = walk->next(item); step != Step::End; step = walk->next(item)) {
        ++(step == Step::Item ? items : failures);
    }
    ::setrlimit(RLIMIT_NOFILE, &former);
    EXPECT_EQ(items, 19'999U);
    EXPECT_EQ(failures, 0U);
}

} // namespace
} // namespace tessera::test
