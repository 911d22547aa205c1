// SPDX-License-Identifier: MIT
#include "Layout/MultiLayoutObject.h"
#include "Model/Document.h"
#include "Model/Folder.h"
#include "Model/FreeSpace.h"
#include "Model/TimeMachine.h"
#include "Model/Unknown.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Picture/TreeBranch.h"
#include "support/Fakes/FakeUserDefaults.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tessera {
namespace {

/// A map of a branch at (10, 20) with a row of boxes 100 wide and 50 high, and what it reports.
/// What is clicked is marked as selected, as whoever hears of it does.
class TreeItemClick : public testing::Test {
protected:
    TreeItemClick()
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
        m_branch->setLayoutItems(std::move(items));
        m_map.resize(620, 80);
        m_map.addBranch(std::unique_ptr<TreeBranch>(m_branch));
        observe();
    }

    void observe()
    {
        QObject::connect(&m_map, &TreeMapView::clickTreeItem, [this](File& node) {
            m_reported.push_back("click " + std::string(node.name()));
            node.setSelected(true);
        });
        QObject::connect(&m_map, &TreeMapView::doubleClickTreeItem, [this](File& node) {
            m_reported.push_back("double click " + std::string(node.name()));
        });
        QObject::connect(&m_map, &TreeMapView::menuRequested, [this](File& node) {
            m_reported.push_back("menu " + std::string(node.name()));
        });
    }

    /// The middle of the box with that index, in the map's coordinates.
    static QPointF box(int index) { return {10 + 100.0 * index + 50, 20 + 25}; }

    void send(QEvent::Type type, QPointF point)
    {
        const Qt::MouseButtons held
            = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, point, m_map.mapToGlobal(point), Qt::LeftButton, held, {});
        QApplication::sendEvent(&m_map, &event);
    }
    void click(QPointF point)
    {
        send(QEvent::MouseButtonPress, point);
        send(QEvent::MouseButtonRelease, point);
    }
    void doubleClick(QPointF point)
    {
        click(point);
        send(QEvent::MouseButtonDblClick, point);
        send(QEvent::MouseButtonRelease, point);
    }
    void rightClick(QPointF point)
    {
        const QPoint at = point.toPoint();
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, m_map.mapToGlobal(at));
        QApplication::sendEvent(&m_map, &event);
    }

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
    test::FakeUserDefaults m_defaults;
    TreeMapView m_map{m_defaults};
    TreeBranch* m_branch = new TreeBranch(Rect{10, 20, 600, 50}); // the map's
    std::vector<std::string> m_reported;
};

using Reported = std::vector<std::string>;

TEST_F(TreeItemClick, ReportsAFolder)
{
    click(box(kFolder));
    EXPECT_EQ(m_reported, Reported{"click folder"});
}

TEST_F(TreeItemClick, ReportsADocument)
{
    click(box(kDocument));
    EXPECT_EQ(m_reported, Reported{"click document"});
}

TEST_F(TreeItemClick, OnASelectedNodeReportsNothing)
{
    m_document->setSelected(true);
    click(box(kDocument));
    EXPECT_EQ(m_reported, Reported{});
}

TEST_F(TreeItemClick, LeavesOtherSelectionsAlone)
{
    m_folder->setSelected(true);
    click(box(kDocument));
    EXPECT_TRUE(m_folder->selected());
}

TEST_F(TreeItemClick, TwiceReportsBoth)
{
    doubleClick(box(kDocument));
    EXPECT_EQ(m_reported, (Reported{"click document", "double click document"}));
}

TEST_F(TreeItemClick, TwiceOnASelectedFolderReportsTheDoubleClickAlone)
{
    m_folder->setSelected(true);
    doubleClick(box(kFolder));
    EXPECT_EQ(m_reported, Reported{"double click folder"});
}

TEST_F(TreeItemClick, AThirdOneIsNoDoubleClick)
{
    doubleClick(box(kDocument));
    m_reported.clear();
    m_document->setSelected(false);
    click(box(kDocument));
    EXPECT_EQ(m_reported, Reported{"click document"});
}

TEST_F(TreeItemClick, TwiceOnSpaceLeavesABoxAloneThatTheFirstOneBroughtThere)
{
    QObject::connect(&m_map, &TreeMapView::clickSpace, [this] {
        std::swap(
            m_branch->layoutItems()[kFreeSpace]->rect, m_branch->layoutItems()[kFolder]->rect);
    });
    doubleClick(box(kFreeSpace));
    EXPECT_EQ(m_reported, Reported{});
}

TEST_F(TreeItemClick, FirstOnOneBoxAndThenOnAnotherIsNoDoubleClick)
{
    click(box(kFolder));
    send(QEvent::MouseButtonDblClick, box(kDocument));
    send(QEvent::MouseButtonRelease, box(kDocument));
    EXPECT_EQ(m_reported, Reported{"click folder"});
}

TEST_F(TreeItemClick, OnGroupsAndSpaceDoesNothing)
{
    for (const int index : {kGroup, kFreeSpace, kUnknown, kTimeMachine}) {
        doubleClick(box(index));
    }
    EXPECT_EQ(m_reported, Reported{});
    EXPECT_FALSE(m_freeSpace->selected() || m_unknown->selected() || m_timeMachine->selected());
}

TEST_F(TreeItemClick, OutsideOfAllBoxesDoesNothing)
{
    doubleClick({5, 25});
    EXPECT_EQ(m_branch->clickableAt({5, 25}), nullptr);
    EXPECT_EQ(m_reported, Reported{});
}

TEST_F(TreeItemClick, LandsOnTheFirstOfOverlappingBoxesThatHasANode)
{
    m_branch->layoutItems()[kGroup]->rect = {0, 0, 600, 50};
    m_branch->layoutItems()[kDocument]->rect = m_branch->layoutItems()[kFolder]->rect;
    click(box(kFolder));
    EXPECT_EQ(m_reported, Reported{"click folder"});
}

TEST_F(TreeItemClick, WithTheRightButtonReportsItAndAsksForTheMenu)
{
    rightClick(box(kFolder));
    EXPECT_EQ(m_reported, (Reported{"click folder", "menu folder"}));
}

TEST_F(TreeItemClick, WithTheRightButtonOnFreeSpaceAsksForNoMenuAndSelectsNothing)
{
    rightClick(box(kFreeSpace));
    EXPECT_FALSE(m_freeSpace->selected());
    EXPECT_EQ(m_reported, Reported{});
}

TEST_F(TreeItemClick, WithTheRightButtonOutsideOfAllBoxesAsksForNoMenu)
{
    rightClick(box(kGroup));
    rightClick({5, 25});
    EXPECT_EQ(m_reported, Reported{});
}

TEST_F(TreeItemClick, MarksNothingByItself)
{
    m_map.disconnect();
    doubleClick(box(kFolder));
    rightClick(box(kDocument));
    EXPECT_FALSE(m_folder->selected() || m_document->selected());
}

} // namespace
} // namespace tessera
