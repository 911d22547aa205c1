// SPDX-License-Identifier: MIT
#include "LostAnswers.h"
#include "PutBackFixture.h"
#include "support/Machine/Meanwhile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using TrashPutBack = PutBackFixture;

TEST_F(TrashPutBack, AFileGoesBackWhereItWas)
{
    m_tree.writeFile("work/a", "content");
    const PutBackResult result = putBack(trashed("work/a"));
    EXPECT_EQ(result.place, Url(m_tree.pathOf("work/a"), false));
    EXPECT_EQ(fileContent(m_tree.pathOf("work/a")), "content");
    EXPECT_THAT(namesIn(m_homeTrash + "/files"), IsEmpty());
    EXPECT_THAT(namesIn(m_homeTrash + "/info"), IsEmpty());
}

TEST_F(TrashPutBack, ItIsTheVeryItemThatWasMoved)
{
    m_tree.makeFile("work/a");
    const FileIdentity identity = identityAt(m_tree.pathOf("work/a"));
    const TrashedItem item = trashed("work/a");
    EXPECT_EQ(item.identity, identity);
    EXPECT_EQ(item.from, Url(m_tree.pathOf("work/a"), false));
    EXPECT_EQ(item.to, Url(m_homeTrash + "/files/a", false));
    putBack(item);
    EXPECT_EQ(identityAt(m_tree.pathOf("work/a")), identity);
}

TEST_F(TrashPutBack, AFolderGoesBackWithWhatIsInIt)
{
    m_tree.makeFolder("work/folder");
    m_tree.writeFile("work/folder/a", "content");
    const PutBackResult result = putBack(trashed("work/folder/"));
    EXPECT_EQ(result.place, Url(m_tree.pathOf("work/folder"), true));
    EXPECT_EQ(fileContent(m_tree.pathOf("work/folder/a")), "content");
}

TEST_F(TrashPutBack, ALinkGoesBackAndNotWhatItLeadsTo)
{
    m_tree.makeFile("work/a");
    m_tree.makeSymbolicLink("work/link", "a");
    putBack(trashed("work/link"));
    EXPECT_EQ(std::filesystem::read_symlink(m_tree.pathOf("work/link")), "a");
    EXPECT_THAT(namesIn(m_tree.pathOf("work")), ElementsAre("a", "link"));
}

TEST_F(TrashPutBack, ANameThatIsNoTextGoesBackAsItWas)
{
    m_tree.makeFile("work/\xFF\n%41 \xC3\xBC");
    putBack(trashed("work/\xFF\n%41 \xC3\xBC"));
    EXPECT_THAT(namesIn(m_tree.pathOf("work")), ElementsAre("\xFF\n%41 \xC3\xBC"));
    EXPECT_THAT(namesIn(m_homeTrash + "/info"), IsEmpty());
}

TEST_F(TrashPutBack, WhatWasNumberedInTheTrashGetsItsOwnNameAgain)
{
    m_tree.makeFile("work/a.txt");
    trashed("work/a.txt");
    m_tree.writeFile("work/a.txt", "second");
    const TrashedItem second = trashed("work/a.txt");
    ASSERT_EQ(second.to.path(), m_homeTrash + "/files/a 2.txt");
    putBack(second);
    EXPECT_EQ(fileContent(m_tree.pathOf("work/a.txt")), "second");
    EXPECT_THAT(namesIn(m_homeTrash + "/files"), ElementsAre("a.txt"));
    EXPECT_THAT(namesIn(m_homeTrash + "/info"), ElementsAre("a.txt.trashinfo"));
}

TEST_F(TrashPutBack, NothingNewIsReplacedWhateverItIs)
{
    const std::vector<std::function<void(const std::string&)>> makers{
        [this](const std::string& name) { m_tree.writeFile(name, "new"); },
        [this](const std::string& name) { m_tree.makeFolder(name); },
        [this](const std::string& name) { m_tree.makeFifo(name); },
        [this](const std::string& name) { m_tree.makeSymbolicLink(name, "nowhere"); }};
    for (std::size_t i = 0; i < makers.size(); ++i) {
        const std::string name = std::to_string(i) + ".tar";
        m_tree.writeFile("work/" + name, "old");
        const TrashedItem item = trashed("work/" + name);
        makers[i]("work/" + name);
        const PutBackResult result = putBackInVain({item});
        EXPECT_EQ(result.obstacle, PutBackObstacle::NameTaken);
        EXPECT_EQ(result.freeName, std::to_string(i) + " 2.tar");
        std::string error = "'";
        error.append(name).append("' was not put back, because something new is called '");
        error.append(name).append("' there.");
        EXPECT_EQ(result.error, error);
    }
}

TEST_F(TrashPutBack, WhatComesInTheLastMomentIsNotReplaced)
{
    m_tree.writeFile("work/a", "old");
    const TrashedItem item = trashed("work/a");
    const Meanwhile other(Call::Rename, [this] { m_tree.writeFile("work/a", "new"); });
    EXPECT_EQ(putBack(item).obstacle, PutBackObstacle::NameTaken);
    EXPECT_EQ(fileContent(m_tree.pathOf("work/a")), "new");
    EXPECT_EQ(fileContent(item.to.path()), "old");
    EXPECT_TRUE(exists(infoPath("a")));
}

TEST_F(TrashPutBack, TheFreeNameIsTheFirstThatNothingHas)
{
    m_tree.makeFile("work/a.txt");
    const TrashedItem item = trashed("work/a.txt");
    for (const char* name : {"work/a.txt", "work/a 2.txt", "work/a 4.txt"}) {
        m_tree.makeFile(name);
    }
    m_tree.makeSymbolicLink("work/a 3.txt", "nowhere");
    EXPECT_EQ(putBackInVain({item}).freeName, "a 5.txt");
}

TEST_F(TrashPutBack, TheFreeNameOfTheLongestNameIsOneToo)
{
    const std::string stem(251, 'x');
    m_tree.makeFile("work/" + stem + ".txt");
    const TrashedItem item = trashed("work/" + stem + ".txt");
    m_tree.makeFile("work/" + stem + ".txt");
    EXPECT_EQ(putBackInVain({item}).freeName, std::string(249, 'x') + " 2.txt");
}

TEST_F(TrashPutBack, AnItemGoesBackUnderTheNameThatWasAskedFor)
{
    m_tree.writeFile("work/a", "old");
    const TrashedItem item = trashed("work/a");
    m_tree.writeFile("work/a", "new");
    const PutBackResult result = putBack({item, putBackInVain({item}).freeName});
    EXPECT_EQ(result.place, Url(m_tree.pathOf("work/a 2"), false));
    EXPECT_EQ(fileContent(m_tree.pathOf("work/a 2")), "old");
    EXPECT_EQ(fileContent(m_tree.pathOf("work/a")), "new");
    EXPECT_THAT(namesIn(m_homeTrash + "/info"), IsEmpty());
    EXPECT_EQ(newestRecord()->place, result.place);
}

TEST_F(TrashPutBack, ANameThatWasFreeMayBeTakenWhenItIsAskedFor)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    m_tree.makeFile("work/a");
    m_tree.makeFile("work/a 2");
    const PutBackResult result = putBackInVain({item, "a 2"});
    EXPECT_EQ(result.obstacle, PutBackObstacle::NameTaken);
    EXPECT_EQ(result.freeName, "a 3");
    EXPECT_EQ(result.error, "'a' was not put back, because something new is called 'a 2' there.");
}

TEST_F(TrashPutBack, ANameThatLeadsElsewhereIsRefused)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    for (const char* name : {"../a", "..", ".", "/a", "b/"}) {
        EXPECT_EQ(putBackInVain({item, name}).obstacle, PutBackObstacle::Failed) << name;
    }
}

TEST_F(TrashPutBack, AnItemThatLeftTheTrashIsGone)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    std::filesystem::remove(item.to.path());
    const PutBackResult result = putBackInVain({item});
    EXPECT_EQ(result.obstacle, PutBackObstacle::ItemGone);
    EXPECT_EQ(result.error, "'a' was not put back, because it is not in the trash any more.");
}

TEST_F(TrashPutBack, AnotherItemInItsPlaceInTheTrashStays)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    std::filesystem::rename(item.to.path(), m_tree.pathOf("work/kept"));
    std::filesystem::remove(infoPath("a"));
    m_tree.writeFile("work/a", "another's");
    trashed("work/a");
    EXPECT_EQ(putBackInVain({item}).obstacle, PutBackObstacle::ItemGone);
}

TEST_F(TrashPutBack, AnItemThatHasTheInodeOfADestroyedOneIsAnother)
{
    m_tree.makeFolder("work/other");
    TrashedItem item;
    TrashedItem other;
    const auto emptyTrash = [this] {
        std::filesystem::remove(m_homeTrash + "/files/a");
        std::filesystem::remove(infoPath("a"));
    };
    const bool isUsedAgain = succeedsAtLast([&] {
        emptyTrash();
        m_tree.makeFile("work/a");
        item = trashed("work/a");
        emptyTrash();
        m_tree.writeFile("work/other/a", "another's");
        other = trashed("work/other/a");
        return other.identity == item.identity;
    });
    if (!isUsedAgain) {
        GTEST_SKIP() << "this file system uses no inode again";
    }
    ASSERT_EQ(other.to, item.to);
    EXPECT_EQ(putBackInVain({item}).obstacle, PutBackObstacle::ItemGone);
    EXPECT_EQ(putBack(other).obstacle, PutBackObstacle::None);
}

TEST_F(TrashPutBack, AnItemThatWasMadeAtAnotherTimeIsAnother)
{
    m_tree.makeFile("work/a");
    TrashedItem item = trashed("work/a");
    if (!item.birth) {
        GTEST_SKIP() << "this file system does not tell when items were made";
    }
    ++*item.birth;
    EXPECT_EQ(putBackInVain({item}).obstacle, PutBackObstacle::ItemGone);
}

TEST_F(TrashPutBack, ADiskThatGotAnotherNumberHasItsItemsStill)
{
    m_tree.writeFile("work/a", "content");
    TrashedItem item = trashed("work/a");
    ++item.identity.device;
    EXPECT_EQ(putBack(item).obstacle, PutBackObstacle::None);
    EXPECT_EQ(fileContent(m_tree.pathOf("work/a")), "content");
}

TEST_F(TrashPutBack, WithoutAnInfoFileAnotherNumberIsAnotherItem)
{
    m_tree.makeFile("work/a");
    TrashedItem item = trashed("work/a");
    std::filesystem::remove(infoPath("a"));
    ++item.identity.device;
    EXPECT_EQ(putBackInVain({item}).obstacle, PutBackObstacle::ItemGone);
}

TEST_F(TrashPutBack, WhereNobodyCanTellWhetherItIsTheItemItStays)
{
    m_tree.makeFile("work/a");
    TrashedItem item = trashed("work/a");
    item.birth = std::nullopt;
    ++item.identity.inode;
    const PutBackResult result = putBackInVain({item});
    EXPECT_EQ(result.obstacle, PutBackObstacle::ItemInDoubt);
    EXPECT_EQ(
        result.error,
        "'a' was not put back, because it cannot be told whether what is in its place in the trash "
        "is the same item still. Restore it from the trash.");
}

TEST_F(TrashPutBack, AnItemThatLeavesTheTrashInTheLastMomentIsGone)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    const Meanwhile other(Call::Rename, [&item] { std::filesystem::remove(item.to.path()); });
    EXPECT_EQ(putBack(item).obstacle, PutBackObstacle::ItemGone);
}

TEST_F(TrashPutBack, WithTheHomesTrashItsItemsAreGone)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    std::filesystem::remove_all(m_homeTrash);
    EXPECT_EQ(putBackInVain({item}).obstacle, PutBackObstacle::ItemGone);
}

TEST_F(TrashPutBack, ATrashThatIsNoFolderAnyMoreIsToldApartFromAnItem)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    std::filesystem::rename(m_homeTrash, m_tree.pathOf("home/elsewhere"));
    m_tree.makeFile("home/.local/share/Trash");
    EXPECT_EQ(putBackInVain({item}).obstacle, PutBackObstacle::TrashGone);
}

TEST_F(TrashPutBack, WhatIsInNoTrashIsLeftAlone)
{
    m_tree.makeFile("work/a");
    const TrashedItem item{
        Url(m_tree.pathOf("work/b"), false),
        Url(m_tree.pathOf("work/a"), false),
        identityAt(m_tree.pathOf("work/a")),
        0};
    EXPECT_EQ(putBackInVain({item}).obstacle, PutBackObstacle::TrashGone);
}

TEST_F(TrashPutBack, WithoutAnInfoFileAnItemGoesBackAllTheSame)
{
    m_tree.writeFile("work/a", "content");
    const TrashedItem item = trashed("work/a");
    std::filesystem::remove(infoPath("a"));
    EXPECT_EQ(putBack(item).obstacle, PutBackObstacle::None);
    EXPECT_EQ(fileContent(m_tree.pathOf("work/a")), "content");
}

TEST_F(TrashPutBack, AnItemThatWasElsewhereByItsInfoFileStays)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    std::filesystem::remove(infoPath("a"));
    m_tree.writeFile("home/.local/share/Trash/info/a.trashinfo", "[Trash Info]\nPath=/other/a\n");
    EXPECT_EQ(putBackInVain({item}).obstacle, PutBackObstacle::ItemGone);
}

TEST_F(TrashPutBack, AnInfoFileThatSaysNoPathIsNoReasonToStay)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    std::filesystem::remove(infoPath("a"));
    m_tree.writeFile("home/.local/share/Trash/info/a.trashinfo", "garbage");
    EXPECT_EQ(putBack(item).obstacle, PutBackObstacle::None);
    EXPECT_EQ(fileContent(infoPath("a")), "garbage");
}

TEST_F(TrashPutBack, AnInfoFileThatBecomesAnothersInTheLastMomentStays)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    const Meanwhile other(Call::Rename, [this] {
        std::filesystem::remove(infoPath("a"));
        m_tree.writeFile("home/.local/share/Trash/info/a.trashinfo", "[Trash Info]\nPath=/b\n");
    });
    EXPECT_EQ(putBack(item).obstacle, PutBackObstacle::None);
    EXPECT_TRUE(exists(infoPath("a")));
}

TEST_F(TrashPutBack, WhatIsNoInfoFileStaysUnread)
{
    const std::string name = "home/.local/share/Trash/info/a.trashinfo";
    for (const auto& make : std::vector<std::function<void()>>{
             [&] { m_tree.makeFolder(name); },
             [&] { m_tree.makeFifo(name); },
             [&] { m_tree.makeSymbolicLink(name, m_tree.pathOf("info")); }}) {
        m_tree.makeFile("work/a");
        const TrashedItem item = trashed("work/a");
        std::filesystem::rename(infoPath("a"), m_tree.pathOf("info"));
        make();
        EXPECT_EQ(putBack(item).obstacle, PutBackObstacle::None);
        EXPECT_TRUE(exists(infoPath("a")));
        EXPECT_TRUE(exists(m_tree.pathOf("info")));
        std::filesystem::remove(infoPath("a"));
    }
}

TEST_F(TrashPutBack, AnItemThatWasPutBackCanGoToTheTrashAgain)
{
    m_tree.writeFile("work/a", "content");
    const TrashedItem first = trashed("work/a");
    putBack(first);
    const TrashedItem again = trashed("work/a");
    EXPECT_EQ(again.identity, first.identity);
    EXPECT_EQ(again.from, first.from);
    EXPECT_EQ(again.to, first.to);
    EXPECT_NE(again.number, first.number);
    EXPECT_EQ(putBack(again).obstacle, PutBackObstacle::None);
    EXPECT_EQ(fileContent(m_tree.pathOf("work/a")), "content");
}

/// Whether the file system can rename without replacing, or needs a placeholder for that.
class PutBackWithLostAnswers : public PutBackFixture, public testing::WithParamInterface<bool> {
protected:
    PutBackResult putBackWith(Renames renames, const TrashedItem& item)
    {
        const BrokenRenames broken(renames, GetParam());
        return putBack(item);
    }
};

TEST_P(PutBackWithLostAnswers, AnItemThatWentBackAllTheSameCountsAsPutBack)
{
    m_tree.writeFile("work/a", "precious");
    const TrashedItem item = trashed("work/a");
    EXPECT_EQ(
        putBackWith(Renames::LoseTheirAnswer, item).place, Url(m_tree.pathOf("work/a"), false));
    EXPECT_EQ(fileContent(m_tree.pathOf("work/a")), "precious");
    EXPECT_THAT(namesIn(m_homeTrash + "/info"), IsEmpty());
}

TEST_P(PutBackWithLostAnswers, AnItemThatDidNotGoBackKeepsItsInfoFile)
{
    m_tree.writeFile("work/a", "precious");
    const TrashedItem item = trashed("work/a");
    const PutBackResult result = putBackWith(Renames::Fail, item);
    EXPECT_EQ(result.obstacle, PutBackObstacle::Failed);
    EXPECT_EQ(result.error, "'a' was not put back: Input/output error.");
    EXPECT_EQ(
        whereaboutsOf(m_tree.pathOf("work/a"), m_homeTrash, "precious"), Whereabouts::InTheTrash);
    EXPECT_THAT(namesIn(m_tree.pathOf("work")), IsEmpty());
    EXPECT_EQ(newestRecord()->state, TrashState::Moved);
}

INSTANTIATE_TEST_SUITE_P(
    FileSystems,
    PutBackWithLostAnswers,
    testing::Bool(),
    [](const testing::TestParamInfo<bool>& knowsNoReplace) {
        return knowsNoReplace.param ? "ThatKnowNoReplace" : "ThatNeedAPlaceholder";
    });

TEST_F(TrashPutBack, WhereNobodyCanTellWhetherItWentBackTheInfoFileStays)
{
    m_tree.makeFolder("work/folder");
    const TrashedItem item = trashed("work/folder/");
    const BrokenRenames broken(Renames::Fail, false);
    const PutBackResult result = putBack(item);
    EXPECT_EQ(result.obstacle, PutBackObstacle::Uncertain);
    EXPECT_EQ(
        result.error,
        "'folder' may be in the trash or where it was, because its disk broke off while it was "
        "put back. Nothing has been removed.");
    EXPECT_TRUE(exists(item.to.path()));
    EXPECT_TRUE(exists(infoPath("folder")));
}

} // namespace
} // namespace tessera::test
