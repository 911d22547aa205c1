// SPDX-License-Identifier: MIT
// Every call to the system that a move makes fails once.
#include "PutBackFixture.h"
#include "support/Machine/FailingCalls.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <functional>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace tessera::test {
namespace {

constexpr const char* kText = "precious";

/// One that is no answer, one that a file system gives that cannot rename without replacing, and
/// one that says of what is there that it is not.
constexpr std::array kErrors{EIO, EINVAL, ENOENT};

/// A tree of its own for each call that fails.
class BrokenCalls : public PutBackFixture {
public:
    BrokenCalls()
    {
        m_tree.makeFolder("work/folder");
        m_tree.writeFile("work/folder/a", kText);
    }
    void TestBody() override { }

    /// Not to the trash of the mount that the tree is on, when the home's cannot be looked at.
    RecycleResult recycle() const
    {
        const FreedesktopTrash trash(
            {::geteuid(), m_homeTrash, {m_tree.pathOf("home")}},
            [] { return MountTable(""); },
            m_journal);
        return trash.recycle({{m_place, 8}});
    }
    TrashedItem trashItem() { return trashed("work/folder/a"); }
    void removeFolder() const { m_tree.removeFolder("work/folder"); }
    PutBackResult putBackItem(const PutBackRequest& request) const
    {
        return m_keepingTrash.putBack(request);
    }
    Whereabouts whereabouts() const { return whereaboutsOf(m_place.path(), m_homeTrash, kText); }
    /// What the journal tells of the item that was to be put back, with what the disk shows.
    void expectJournalTells(TrashState state) const
    {
        const std::vector<TrashRecord> records = m_journal->records();
        ASSERT_EQ(records.size(), 1U);
        EXPECT_EQ(records.front().item.from, m_place);
        const auto isItemAt = [](const Url& place, const TrashedItem& item) {
            return std::optional(identityAt(place.path()) == item.identity);
        };
        EXPECT_EQ(settled(records.front(), isItemAt).state, state);
    }
    bool isFolderThere() const { return exists(m_tree.pathOf("work/folder")); }

private:
    const Url m_place{m_tree.pathOf("work/folder/a"), false};
};

/// Has each call fail with each error in turn, for as long as there are more calls.
void forEachBrokenCall(const std::function<bool(int place, int error)>& run)
{
    constexpr int kMostCalls = 300;
    for (const int error : kErrors) {
        int place = 1;
        while (place <= kMostCalls && run(place, error)) {
            ++place;
        }
        EXPECT_GT(place, 10) << "a move takes more calls than that";
        EXPECT_LE(place, kMostCalls);
    }
}

TEST(TrashWithBrokenCalls, WhatIsPutBackIsInOneOfTheTwoPlaces)
{
    forEachBrokenCall([](int place, int error) {
        SCOPED_TRACE(std::to_string(place) + ": " + std::generic_category().message(error));
        BrokenCalls tree;
        const TrashedItem item = tree.trashItem();
        PutBackResult result;
        const std::optional<bool> hasFailed
            = withOneCallFailing(place, error, [&] { result = tree.putBackItem({item}); });
        EXPECT_TRUE(hasFailed) << "this system does not let calls fail";
        EXPECT_EQ(
            tree.whereabouts(),
            result.obstacle == PutBackObstacle::None ? Whereabouts::InItsPlace
                                                     : Whereabouts::InTheTrash)
            << result.error;
        tree.expectJournalTells(
            result.obstacle == PutBackObstacle::None ? TrashState::PutBack : TrashState::Moved);
        return hasFailed.value_or(false);
    });
}

TEST(TrashWithBrokenCalls, WhatIsPutBackIntoANewFolderIsInOneOfTheTwoPlaces)
{
    forEachBrokenCall([](int place, int error) {
        SCOPED_TRACE(std::to_string(place) + ": " + std::generic_category().message(error));
        BrokenCalls tree;
        const TrashedItem item = tree.trashItem();
        tree.removeFolder();
        PutBackResult result;
        const std::optional<bool> hasFailed = withOneCallFailing(place, error, [&] {
            result = tree.putBackItem({item, "", MissingFolders::Make});
        });
        const bool isBack = result.obstacle == PutBackObstacle::None;
        EXPECT_EQ(tree.whereabouts(), isBack ? Whereabouts::InItsPlace : Whereabouts::InTheTrash)
            << result.error;
        EXPECT_EQ(tree.isFolderThere(), isBack) << result.error;
        tree.expectJournalTells(isBack ? TrashState::PutBack : TrashState::Moved);
        return hasFailed.value_or(false);
    });
}

TEST(TrashWithBrokenCalls, WhatIsMovedToTheTrashIsInOneOfTheTwoPlaces)
{
    forEachBrokenCall([](int place, int error) {
        SCOPED_TRACE(std::to_string(place) + ": " + std::generic_category().message(error));
        BrokenCalls tree;
        RecycleResult result;
        const std::optional<bool> hasFailed
            = withOneCallFailing(place, error, [&] { result = tree.recycle(); });
        EXPECT_EQ(
            tree.whereabouts(),
            result.trashed.empty() ? Whereabouts::InItsPlace : Whereabouts::InTheTrash)
            << result.error;
        EXPECT_EQ(result.trashed.empty(), !result.error.empty());
        return hasFailed.value_or(false);
    });
}

} // namespace
} // namespace tessera::test
