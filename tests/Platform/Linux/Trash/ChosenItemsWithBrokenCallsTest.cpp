// SPDX-License-Identifier: MIT
// Several chosen items, of which one has changed, are moved while a call to the system fails, or a
// disk loses its answers.
#include "ChosenItem.h"
#include "LostAnswers.h"
#include "PutBackFixture.h"
#include "TrashedNow.h"
#include "support/Machine/FailingCalls.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace tessera::test {
namespace {

/// Beside one that is no answer: what a file system gives that cannot rename without replacing, and
/// what says of what is there that it is not.
const std::vector<int> kOtherErrors{EINVAL, ENOENT};

/// In this order; the names of one file lie beside each other.
constexpr std::array kNames{"a", "changed", "one name", "other name", "folder"};
constexpr std::size_t kMoving = kNames.size() - 1;

/// A tree of its own for each call that fails.
class ChosenItems : public PutBackFixture {
public:
    ChosenItems()
    {
        m_tree.writeFile("work/a", "a");
        m_tree.writeFile("work/changed", "changed");
        m_tree.writeFile("work/one name", "of two names");
        m_tree.makeHardLink("work/other name", "work/one name");
        m_tree.makeFolder("work/folder");
        m_tree.writeFile("work/folder/inside", "in the folder");
        const FileTime scanned = afterTheTick();
        for (const char* const name : kNames) {
            m_chosen.push_back(chosenItem(placeOf(name), scanned));
        }
        ::chmod(placeOf("changed").c_str(), 0600);
    }
    void TestBody() override { }

    /// Not to the trash of the mount that the tree is on, when the home's cannot be looked at.
    RecycleResult recycle() const
    {
        const FreedesktopTrash trash(
            {::geteuid(), m_homeTrash, {m_tree.pathOf("home")}},
            [] { return MountTable(""); },
            m_journal);
        return trash.recycle(m_chosen);
    }

    /// Has recycle() be about those very items that have been in the trash and are back.
    void haveThemBack()
    {
        std::vector<ItemToRecycle> again;
        const RecycleResult first = recycle();
        for (const TrashedItem& item : first.trashed) {
            const PutBackResult back = m_keepingTrash.putBack({item});
            again.emplace_back(back.place);
            again.back().identity = back.item.identity;
            again.back().birth = back.item.birth;
        }
        EXPECT_EQ(again.size(), kMoving) << first.error;
        m_chosen = std::move(again);
    }

    Whereabouts whereabouts(const std::string& name) const
    {
        const bool isFolder = name == "folder";
        const bool isName = name.ends_with(" name");
        const std::string text = isFolder ? "in the folder" : isName ? "of two names" : name;
        return whereaboutsOf(placeOf(name), m_homeTrash, text, isFolder ? "/inside" : "");
    }

    /// Each item is where the result and the journal say, and what has changed in its place.
    void expectAllAreWhere(const RecycleResult& result) const
    {
        EXPECT_EQ(whereabouts("changed"), Whereabouts::InItsPlace);
        EXPECT_EQ(result.trashed.size() + result.notMoved.size(), m_chosen.size());
        EXPECT_EQ(result.notMoved.empty(), result.error.empty());
        const std::vector<TrashedItem> told = trashedNow(*m_journal);
        for (const ItemToRecycle& item : m_chosen) {
            const std::string name(item.url.lastPathComponent());
            const bool isTrashed = holds(result.trashed, item.url);
            EXPECT_EQ(
                whereabouts(name), isTrashed ? Whereabouts::InTheTrash : Whereabouts::InItsPlace)
                << name << ": " << result.error;
            // An item that moves without an entry is told as such.
            EXPECT_TRUE(holds(told, item.url) == isTrashed || !result.journalError.empty()) << name;
        }
    }

private:
    static bool holds(const std::vector<TrashedItem>& items, const Url& from)
    {
        return std::ranges::any_of(
            items, [&from](const TrashedItem& item) { return item.from.path() == from.path(); });
    }

    std::string placeOf(const std::string& name) const { return m_tree.pathOf("work/" + name); }

    std::vector<ItemToRecycle> m_chosen;
};

/// Every call fails in one of so many tests, each of which ends well before its limit.
constexpr int kShares = 4;

/// Has each call of a share, counted from 1, fail with an error while there are more calls.
void recycleWithBrokenCalls(
    int share, int error, const std::function<void(ChosenItems&)>& prepare = [](ChosenItems&) {})
{
    constexpr int kMostCalls = 1'000;
    int place = share - kShares;
    std::optional<bool> hasFailed = true;
    while (hasFailed.value_or(false) && place <= kMostCalls) {
        place += kShares;
        SCOPED_TRACE(std::to_string(place) + ": " + std::generic_category().message(error));
        ChosenItems items;
        prepare(items);
        RecycleResult result;
        hasFailed = withOneCallFailing(place, error, [&] { result = items.recycle(); });
        EXPECT_TRUE(hasFailed) << "this system does not let calls fail";
        items.expectAllAreWhere(result);
    }
    EXPECT_GT(place, 40) << "so many moves take more calls than that";
    EXPECT_LE(place, kMostCalls);
}

void haveThemBack(ChosenItems& items)
{
    items.haveThemBack();
}

/// Which share of the calls fails.
class ChosenItemsWithBrokenCalls : public testing::TestWithParam<int> { };

TEST_P(ChosenItemsWithBrokenCalls, AreEachInOneOfTheTwoPlaces)
{
    recycleWithBrokenCalls(GetParam(), EIO);
}

TEST_P(ChosenItemsWithBrokenCalls, AreEachInOneOfTheTwoPlacesWhenTheyAreMovedAgain)
{
    recycleWithBrokenCalls(GetParam(), EIO, haveThemBack);
}

INSTANTIATE_TEST_SUITE_P(
    Shares,
    ChosenItemsWithBrokenCalls,
    testing::Range(1, kShares + 1),
    [](const testing::TestParamInfo<int>& share) { return std::to_string(share.param); });

TEST(NightlyChosenItemsWithBrokenCalls, AreEachInOneOfTheTwoPlacesAfterOtherErrors)
{
    for (const int error : kOtherErrors) {
        for (int share = 1; share <= kShares; ++share) {
            recycleWithBrokenCalls(share, error);
            recycleWithBrokenCalls(share, error, haveThemBack);
        }
    }
}

/// Whether the file system can rename without replacing, or needs a placeholder for that.
class ChosenItemsWithLostAnswers : public testing::TestWithParam<bool> { };

TEST_P(ChosenItemsWithLostAnswers, CountAsMovedWhenTheyMovedAllTheSame)
{
    const ChosenItems items;
    const BrokenRenames broken(Renames::LoseTheirAnswer, GetParam());
    const RecycleResult result = items.recycle();
    EXPECT_EQ(result.trashed.size(), kMoving);
    items.expectAllAreWhere(result);
}

TEST_P(ChosenItemsWithLostAnswers, AllStayWhenNoneMoves)
{
    const ChosenItems items;
    const BrokenRenames broken(Renames::Fail, GetParam());
    const RecycleResult result = items.recycle();
    EXPECT_EQ(result.trashed.size(), 0U);
    items.expectAllAreWhere(result);
}

TEST_P(ChosenItemsWithLostAnswers, CountAsMovedAgainWhenTheyMovedAllTheSame)
{
    ChosenItems items;
    items.haveThemBack();
    const BrokenRenames broken(Renames::LoseTheirAnswer, GetParam());
    const RecycleResult result = items.recycle();
    EXPECT_EQ(result.trashed.size(), kMoving);
    items.expectAllAreWhere(result);
}

INSTANTIATE_TEST_SUITE_P(
    FileSystems,
    ChosenItemsWithLostAnswers,
    testing::Bool(),
    [](const testing::TestParamInfo<bool>& knowsNoReplace) {
        return knowsNoReplace.param ? "ThatKnowNoReplace" : "ThatNeedAPlaceholder";
    });

} // namespace
} // namespace tessera::test
