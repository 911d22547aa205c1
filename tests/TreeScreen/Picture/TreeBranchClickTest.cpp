// SPDX-License-Identifier: MIT
#include "Base/NotificationCenter.h"
#include "Layout/MultiLayoutObject.h"
#include "Model/Document.h"
#include "Model/Folder.h"
#include "Model/FreeSpace.h"
#include "Model/TimeMachine.h"
#include "Model/Unknown.h"
#include "TreeScreen/Picture/TreeBranch.h"

#include <QMenu>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tessera {
namespace {

/// A branch at (10, 20) with a row of boxes 100 wide and 50 high, and what it posts.
class TreeBranchClick : public testing::Test {
protected:
    TreeBranchClick()
    {
        std::vector<std::unique_ptr<LayoutObject>> items;
        items.push_back(std::make_unique<MultiLayoutObject>());
        for (File* node : std::initializer_list<File*>{
                 m_folder.get(),
                 m_document.get(),
                 m_freeSpace.get(),
                 m_unknown.get(),
                 m_timeMachine.get()}) {
            items.push_back(std::make_unique<LayoutObject>());
            items.back()->ref = node;
        }
        for (std::size_t i = 0; i < items.size(); ++i) {
            items[i]->rect = {100.0 * static_cast<double>(i), 0, 100, 50};
        }
        m_branch.setLayoutItems(std::move(items));
    }

    /// The middle of the box with that index, in the map's coordinates.
    static Point box(int index) { return {10 + 100.0 * index + 50, 20 + 25}; }

    static constexpr int kGroup = 0;
    static constexpr int kFolder = 1;
    static constexpr int kDocument = 2;
    static constexpr int kFreeSpace = 3;
    static constexpr int kUnknown = 4;
    static constexpr int kTimeMachine = 5;

    std::unique_ptr<Folder> m_folder = makeNode<Folder>("folder");
    std::unique_ptr<Document> m_document = makeNode<Document>("document");
    std::unique_ptr<FreeSpace> m_freeSpace = makeNode<FreeSpace>({});
    std::unique_ptr<Unknown> m_unknown = makeNode<Unknown>({});
    std::unique_ptr<TimeMachine> m_timeMachine = makeNode<TimeMachine>({});
    TreeBranch m_branch{Rect{10, 20, 600, 50}};

    std::vector<std::string> m_posted;
    Observation m_clicks = NotificationCenter::defaultCenter().addObserver(
        "ClickTreeItem", [this](const NotificationObject& object) {
            m_posted.push_back("click " + std::string(std::get<File*>(object)->name()));
        });
    Observation m_doubleClicks = NotificationCenter::defaultCenter().addObserver(
        "DoubleClickTreeItem", [this](const NotificationObject& object) {
            m_posted.emplace_back(
                std::holds_alternative<std::monostate>(object) ? "double click" : "with object");
        });
};

using Posted = std::vector<std::string>;

TEST_F(TreeBranchClick, SelectsAndReportsAFolder)
{
    m_branch.mouseUp(box(kFolder), 1);
    EXPECT_TRUE(m_folder->selected());
    EXPECT_EQ(m_posted, Posted{"click folder"});
}

TEST_F(TreeBranchClick, SelectsAndReportsADocument)
{
    m_branch.mouseUp(box(kDocument), 1);
    EXPECT_TRUE(m_document->selected());
    EXPECT_EQ(m_posted, Posted{"click document"});
}

TEST_F(TreeBranchClick, OnASelectedNodeReportsNothing)
{
    m_document->setSelected(true);
    m_branch.mouseUp(box(kDocument), 1);
    EXPECT_EQ(m_posted, Posted{});
}

TEST_F(TreeBranchClick, LeavesOtherSelectionsAlone)
{
    m_folder->setSelected(true);
    m_branch.mouseUp(box(kDocument), 1);
    EXPECT_TRUE(m_folder->selected());
}

TEST_F(TreeBranchClick, TwiceReportsBoth)
{
    m_branch.mouseUp(box(kDocument), 2);
    EXPECT_EQ(m_posted, (Posted{"click document", "double click"}));
}

TEST_F(TreeBranchClick, TwiceOnASelectedFolderReportsTheDoubleClickAlone)
{
    m_folder->setSelected(true);
    m_branch.mouseUp(box(kFolder), 2);
    EXPECT_EQ(m_posted, Posted{"double click"});
}

TEST_F(TreeBranchClick, ThreeTimesIsNoDoubleClick)
{
    m_branch.mouseUp(box(kDocument), 3);
    EXPECT_EQ(m_posted, Posted{"click document"});
}

TEST_F(TreeBranchClick, OnGroupsAndSpaceDoesNothing)
{
    for (const int index : {kGroup, kFreeSpace, kUnknown, kTimeMachine}) {
        m_branch.mouseUp(box(index), 2);
    }
    EXPECT_EQ(m_posted, Posted{});
    EXPECT_FALSE(m_freeSpace->selected() || m_unknown->selected() || m_timeMachine->selected());
}

TEST_F(TreeBranchClick, OutsideOfAllBoxesDoesNothing)
{
    m_branch.mouseUp({5, 25}, 2);
    EXPECT_EQ(m_posted, Posted{});
}

TEST_F(TreeBranchClick, LandsOnTheFirstOfOverlappingBoxesThatHasANode)
{
    m_branch.layoutItems()[kGroup]->rect = {0, 0, 600, 50};
    m_branch.layoutItems()[kDocument]->rect = m_branch.layoutItems()[kFolder]->rect;
    m_branch.mouseUp(box(kFolder), 1);
    EXPECT_EQ(m_posted, Posted{"click folder"});
}

TEST_F(TreeBranchClick, WithTheRightButtonSelectsAndGivesTheMenu)
{
    const auto menu = m_branch.menuForEvent(box(kFolder), nullptr);
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(m_folder->selected());
    EXPECT_EQ(m_posted, Posted{"click folder"});
}

TEST_F(TreeBranchClick, WithTheRightButtonOnFreeSpaceGivesNoMenuAndSelectsNothing)
{
    EXPECT_EQ(m_branch.menuForEvent(box(kFreeSpace), nullptr), nullptr);
    EXPECT_FALSE(m_freeSpace->selected());
    EXPECT_EQ(m_posted, Posted{});
}

TEST_F(TreeBranchClick, WithTheRightButtonOutsideOfAllBoxesGivesNoMenu)
{
    EXPECT_EQ(m_branch.menuForEvent(box(kGroup), nullptr), nullptr);
    EXPECT_EQ(m_branch.menuForEvent({5, 25}, nullptr), nullptr);
}

} // namespace
} // namespace tessera
