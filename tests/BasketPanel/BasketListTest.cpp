// SPDX-License-Identifier: MIT
#include "BasketPanel/BasketList.h"

#include "Basket/Basket.h"
#include "BasketPanel/BasketModel.h"
#include "support/BecomesActive.h"
#include "support/MakeTree.h"

#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tessera {
namespace {

class BasketListTest : public testing::Test {
protected:
    BasketListTest()
    {
        QObject::connect(
            &list, &BasketList::removeRequested, &list, [this](const std::vector<File*>& items) {
                for (File* const item : items) {
                    removed.emplace_back(item->name());
                    basket.remove(*item);
                }
                model.setStale();
            });
        QObject::connect(&list, &BasketList::showRequested, &list, [this](File* item) {
            shown.emplace_back(item->name());
        });
    }

    void open(std::string_view items)
    {
        tree = test::makeTree("/", items);
        for (File* const child : tree->children()) {
            basket.add(*child);
        }
        model.bringUpToDate();
        list.resize(300, 200);
        list.show();
        ASSERT_TRUE(test::becomesActive(list));
        list.setFocus();
    }

    /// Items of 1000 bytes and less, from "f1" on.
    void openMany(int count)
    {
        std::string items;
        for (int i = 1; i <= count; ++i) {
            items += "f" + std::to_string(i) + ":" + std::to_string(2000 - i) + " ";
        }
        open(items);
    }

    void select(int row) { list.setCurrentIndex(model.index(row, 0)); }

    std::vector<int> selectedRows() const
    {
        std::vector<int> rows;
        for (const QModelIndex& index : list.selectionModel()->selectedRows()) {
            rows.push_back(index.row());
        }
        return rows;
    }

    int workedOut() const
    {
        int count = 0;
        for (int row = 0; row < model.rowCount(); ++row) {
            count += model.isToBeWorkedOut(row) ? 0 : 1;
        }
        return count;
    }

    std::unique_ptr<TopFolder> tree;
    Basket basket;
    BasketModel model{basket};
    BasketList list{model};
    std::vector<std::string> removed;
    std::vector<std::string> shown;
};

using Names = std::vector<std::string>;

TEST_F(BasketListTest, DeleteAndBTakeTheSelectedRowsOut)
{
    open("a:30 b:20 c:10");
    select(1);
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(removed, Names{"b"});
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&list, Qt::Key_B);
    EXPECT_EQ(removed, (Names{"b", "a", "c"}));
}

/// Elsewhere it moves what is selected in the picture to the trash.
TEST_F(BasketListTest, ControlDeleteIsAboutItsRowsAsWell)
{
    open("a:30 b:20");
    select(1);
    QKeyEvent override(QEvent::ShortcutOverride, Qt::Key_Delete, Qt::ControlModifier);
    override.ignore();
    QCoreApplication::sendEvent(&list, &override);
    EXPECT_TRUE(override.isAccepted());
    QTest::keyClick(&list, Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(removed, Names{"b"});
}

TEST_F(BasketListTest, OtherShortcutsAreLeftToTheWindow)
{
    open("a:30 b:20");
    for (const Qt::Key key : {Qt::Key_B, Qt::Key_Return, Qt::Key_Z}) {
        QKeyEvent override(QEvent::ShortcutOverride, key, Qt::ControlModifier);
        override.ignore();
        QCoreApplication::sendEvent(&list, &override);
        EXPECT_FALSE(override.isAccepted()) << key;
    }
}

TEST_F(BasketListTest, EscapeIsLeftToThePanel)
{
    open("a:30");
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QStringLiteral("\x1b"));
    QCoreApplication::sendEvent(&list, &escape);
    EXPECT_FALSE(escape.isAccepted());
}

TEST_F(BasketListTest, ArrowsWalkAndReturnShowsTheItem)
{
    open("a:30 b:20");
    select(0);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(shown, Names{"b"});
}

TEST_F(BasketListTest, ADoubleClickShowsTheItem)
{
    open("a:30 b:20");
    const QPoint row = list.visualRect(model.index(1, 0)).center();
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, row);
    EXPECT_EQ(shown, Names{"b"});
    QTest::mouseDClick(list.viewport(), Qt::RightButton, {}, row);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, {20, 190});
    EXPECT_EQ(shown.size(), 1U);
}

TEST_F(BasketListTest, WithoutASelectionKeysDoNothing)
{
    open("a:30");
    list.setCurrentIndex({});
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_TRUE(removed.empty());
    EXPECT_TRUE(shown.empty());
}

TEST_F(BasketListTest, WhatIsSelectedStaysSoAmongOtherRows)
{
    open("a:30 b:20 c:10");
    select(1);
    list.selectionModel()->select(
        model.index(2, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    basket.remove(test::at(*tree, "a"));
    model.setStale();
    model.bringUpToDate();
    EXPECT_EQ(selectedRows(), (std::vector{0, 1}));
    EXPECT_EQ(list.currentIndex().row(), 0);
}

TEST_F(BasketListTest, WhatFollowsRowsThatWereTakenOutIsSelectedNext)
{
    open("a:30 b:20 c:10");
    select(1);
    QTest::keyClick(&list, Qt::Key_Delete);
    model.bringUpToDate();
    EXPECT_EQ(selectedRows(), std::vector{1});
    QTest::keyClick(&list, Qt::Key_Delete);
    model.bringUpToDate();
    EXPECT_EQ(selectedRows(), std::vector{0});
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(removed, (Names{"b", "c", "a"}));
    model.bringUpToDate();
    EXPECT_TRUE(selectedRows().empty());
}

TEST_F(BasketListTest, KeysPressedBeforeItIsUpToDateAreAboutWhatIsThere)
{
    open("a:30 b:20 c:10");
    select(0);
    QTest::keyClick(&list, Qt::Key_Delete);
    ASSERT_TRUE(model.isStale());
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(removed, (Names{"a", "b"}));
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(shown, Names{"c"});
}

TEST_F(BasketListTest, UnchangeableItKeepsItsRows)
{
    open("a:30");
    select(0);
    list.setObstacle(QStringLiteral("Not now."));
    QTest::keyClick(&list, Qt::Key_Delete);
    QTest::keyClick(&list, Qt::Key_B);
    EXPECT_TRUE(removed.empty());
}

TEST_F(BasketListTest, TheMenuShowsAndTakesOut)
{
    open("a:30 b:20");
    select(1);
    for (const int entry : {0, 1}) {
        QContextMenuEvent ask(QContextMenuEvent::Keyboard, {}, {});
        QCoreApplication::sendEvent(&list, &ask);
        auto* const menu = list.findChild<QMenu*>();
        ASSERT_NE(menu, nullptr);
        menu->actions().at(entry)->trigger();
        delete menu; // NOLINT(cppcoreguidelines-owning-memory): as closing it does, later
    }
    EXPECT_EQ(shown, Names{"b"});
    EXPECT_EQ(removed, Names{"b"});
}

TEST_F(BasketListTest, WithoutASelectionThereIsNoMenu)
{
    open("a:30");
    list.clearSelection();
    QContextMenuEvent ask(QContextMenuEvent::Mouse, {5, 5}, {5, 5});
    QCoreApplication::sendEvent(&list, &ask);
    EXPECT_EQ(list.findChild<QMenu*>(), nullptr);
}

TEST_F(BasketListTest, WorksOutTheRowsInSightAlone)
{
    openMany(1000);
    list.setAtWork(true);
    const int last = list.indexAt({5, list.viewport()->height() - 1}).row();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !model.isToBeWorkedOut(last); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(workedOut(), last + 1);
    list.verticalScrollBar()->setValue(500);
    const int top = list.indexAt({5, 0}).row();
    ASSERT_GT(top, last);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !model.isToBeWorkedOut(top + last); }));
    EXPECT_LE(workedOut(), 2 * last + 4);
}

TEST_F(BasketListTest, AtRestItWorksNothingOut)
{
    openMany(100);
    QCoreApplication::processEvents();
    EXPECT_EQ(workedOut(), 0);
    list.setAtWork(true);
    list.setAtWork(false);
    QCoreApplication::processEvents();
    list.verticalScrollBar()->setValue(50);
    QCoreApplication::processEvents();
    EXPECT_EQ(workedOut(), 0);
}

TEST_F(BasketListTest, FiguresTouchNothingThatIsGone)
{
    openMany(100);
    list.setAtWork(true);
    basket.clear();
    model.setStale();
    tree.reset();
    QCoreApplication::processEvents();
    list.viewport()->grab();
    model.bringUpToDate();
    QCoreApplication::processEvents();
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(BasketListTest, AThousandSelectedRowsStaySelected)
{
    openMany(1000);
    list.selectAll();
    model.setStale();
    model.bringUpToDate();
    EXPECT_EQ(list.selectionModel()->selectedRows().size(), 1000);
}

TEST_F(BasketListTest, IndentsWhatLiesInsideAnother)
{
    tree = test::makeTree("/", "docs/ ( aaa:700 )");
    basket.add(test::at(*tree, "docs/aaa"));
    basket.add(test::at(*tree, "docs"));
    model.bringUpToDate();
    list.resize(300, 200);
    list.show();
    const QImage picture = list.viewport()->grab().toImage();
    const auto firstInk = [&](int row) {
        const QRect rect = list.visualRect(model.index(row, 0));
        const QRgb ground = picture.pixel(rect.right() - 2, rect.top() + 1);
        for (int x = rect.left(); x < rect.right(); ++x) {
            for (int y = rect.top(); y < rect.bottom(); ++y) {
                if (picture.pixel(x, y) != ground) {
                    return x;
                }
            }
        }
        return -1;
    };
    EXPECT_GE(firstInk(1), firstInk(0) + 8);
}

TEST_F(BasketListTest, SaysHowToFillItOnlyWhileItIsEmpty)
{
    list.setPlaceholder(QStringLiteral("MMMMMMMM"));
    list.resize(300, 200);
    list.show();
    const QRect middle(100, 80, 100, 40);
    const auto isBlank = [&] {
        const QImage picture = list.viewport()->grab(middle).toImage();
        QImage blank(picture.size(), picture.format());
        blank.fill(picture.pixel(0, 0));
        return picture == blank;
    };
    EXPECT_FALSE(isBlank());
    EXPECT_TRUE(list.header()->isHidden());
    open("a:30");
    EXPECT_TRUE(isBlank());
    EXPECT_FALSE(list.header()->isHidden());
}

} // namespace
} // namespace tessera
