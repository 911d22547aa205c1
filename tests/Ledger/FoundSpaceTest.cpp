// SPDX-License-Identifier: MIT
#include "Ledger/FoundSpace.h"

#include "Model/Document.h"
#include "Model/TimeMachine.h"
#include "Model/Volume.h"
#include "support/Fakes/FakeFileSystem.h"
#include "support/MakeTree.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

void setOwn(TopFolder& root, std::string_view path, std::uint64_t bytes)
{
    static_cast<Folder&>(test::at(root, path)).setOwnAllocation(bytes);
}

TEST(FoundSpace, OfAnEmptyFolderIsItsOwn)
{
    const auto root = test::makeTree("/t", "");
    root->setOwnAllocation(4096);
    EXPECT_EQ(foundSpace(*root), (FoundSpace{0, 4096}));
}

TEST(FoundSpace, IsTheFilesAndTheFoldersEachAtAnyDepth)
{
    const auto root = test::makeTree("/t", "a/ ( b/ ( x:700 ) y:50 ) z:6");
    root->setOwnAllocation(4096);
    setOwn(*root, "a", 512);
    setOwn(*root, "a/b", 1024);
    EXPECT_EQ(foundSpace(*root), (FoundSpace{756, 5632}));
}

TEST(FoundSpace, CountsAFileWithSeveralNamesOnce)
{
    const auto root = test::makeTree("/t", "a/ ( x:700#5/2 ) y:700#5/2");
    EXPECT_EQ(foundSpace(*root).files, 700U);
}

TEST(FoundSpace, IsWithoutSpaceThatIsNoItems)
{
    auto volume = makeNode<Volume>("disk");
    volume->setOrigin("/disk");
    auto backups = makeNode<TimeMachine>({});
    backups->setTotalAllocation(70);
    volume->addChild(std::move(backups));
    auto document = makeNode<Document>("file");
    document->setTotalAllocation(5);
    volume->addChild(std::move(document));
    volume->refreshVolume(FileSystemSizes{1000, 300});
    EXPECT_EQ(foundSpace(*volume).files, 5U);
}

TEST(FoundSpace, IsWithoutWhatIsMountedInTheTree)
{
    const auto root = test::makeTree("/t", "home/ ( me/ ( in/ ( x:700 ) ) you:50 ) z:6");
    setOwn(*root, "home/me", 512);
    setOwn(*root, "home/me/in", 512);
    root->findings().addMounted(test::at(*root, "home/me"));
    EXPECT_EQ(foundSpace(*root), (FoundSpace{56, 0}));
}

TEST(FoundSpace, ThatNoDiskHasDoesNotWrapRound)
{
    const auto root = test::makeTree("/t", "a:9223372036854775807 b:9223372036854775807 c:9");
    EXPECT_EQ(foundSpace(*root).files, 9223372036854775807U);
}

TEST(FoundSpace, OfADeepTreeTakesNoStack)
{
    constexpr int kDepth = 100'000;
    auto inner = makeNode<Folder>("d");
    inner->setOwnAllocation(512);
    for (int i = 1; i < kDepth; ++i) {
        auto outer = makeNode<Folder>("d");
        outer->setOwnAllocation(512);
        outer->addChild(std::move(inner), PathHash("/t"));
        inner = std::move(outer);
    }
    auto root = makeNode<TopFolder>("t");
    root->setOrigin("/t");
    root->addChild(std::move(inner), PathHash("/t/d"));
    EXPECT_EQ(foundSpace(*root).folders, 512U * kDepth);
}

TEST(FoundSpaceCount, LooksAtSoManyNodesAtATime)
{
    const auto root = test::makeTree("/t", "a/ ( x:700 y:50 ) b/ ( z:6 )");
    FoundSpaceCount count(*root);
    EXPECT_TRUE(count.goOn(3));
    EXPECT_EQ(count.found().files, 0U);
    EXPECT_TRUE(count.goOn(2));
    EXPECT_FALSE(count.goOn(3));
    EXPECT_EQ(count.found().files, 756U);
    EXPECT_FALSE(count.goOn(3));
    EXPECT_EQ(count.found(), foundSpace(*root));
}

} // namespace
} // namespace tessera
