// SPDX-License-Identifier: MIT
#include "HistoryWindow/HistoryWindowController.h"

#include "HistoryWindow/HistoryTableView.h"
#include "HistoryWindow/MakeRecords.h"
#include "support/BecomesActive.h"
#include "support/Fakes/FakeAlert.h"
#include "support/Fakes/FakeTrashHistory.h"
#include "support/Fakes/FakeUserDefaults.h"
#include "support/Fakes/FakeWorkspace.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tessera {
namespace {

using test::makeRecord;
using test::makeRecords;
using testing::ElementsAre;
using testing::IsEmpty;

class HistoryWindowControllerTest : public testing::Test {
protected:
    HistoryWindowControllerTest() { make(); }

    void make()
    {
        controller.reset();
        controller = std::make_unique<HistoryWindowController>(HistoryWindowServices{
            .history = history,
            .workspace = workspace,
            .alert = alert,
            .defaults = defaults,
            .homeDirectory = "/home/me"});
        QObject::connect(
            controller.get(),
            &HistoryWindowController::putBackRequested,
            [this](const TrashRecord& record) { putBack.push_back(record); });
    }

    /// Shows the window, and answers whatever it asks.
    void show(const std::vector<TrashRecord>& records)
    {
        controller->showWindow();
        ASSERT_TRUE(test::becomesActive(controller->window()));
        answerAll(records);
    }

    void answerAll(const std::vector<TrashRecord>& records)
    {
        while (history.answer(records)) { }
    }

    void refresh(const std::vector<TrashRecord>& records)
    {
        controller->refresh();
        answerAll(records);
    }

    template <typename Widget>
    Widget& part(const char* name) const
    {
        return *controller->window().findChild<Widget*>(QString::fromLatin1(name));
    }
    HistoryTableView& table() const { return part<HistoryTableView>("table"); }
    QPushButton& putBackButton() const { return part<QPushButton>("putBackButton"); }
    QPushButton& showButton() const { return part<QPushButton>("showButton"); }
    std::string status() const { return part<QLabel>("status").text().toStdString(); }

    std::vector<std::string> items() const
    {
        std::vector<std::string> result;
        for (int row = 0; row < table().model()->rowCount(); ++row) {
            result.push_back(table().model()->index(row, 1).data().toString().toStdString());
        }
        return result;
    }

    std::string selectedItem() const
    {
        const QModelIndexList rows = table().selectionModel()->selectedRows(1);
        return rows.isEmpty() ? std::string() : rows.front().data().toString().toStdString();
    }

    QMenu* openMenu() const
    {
        const QPoint centre = table().visualRect(table().currentIndex()).center();
        QContextMenuEvent event(
            QContextMenuEvent::Keyboard, centre, table().viewport()->mapToGlobal(centre));
        QApplication::sendEvent(table().viewport(), &event);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }

    test::FakeTrashHistory history;
    test::FakeWorkspace workspace;
    test::FakeAlert alert;
    test::FakeUserDefaults defaults;
    std::vector<TrashRecord> putBack;
    std::unique_ptr<HistoryWindowController> controller;
};

TEST_F(HistoryWindowControllerTest, SaysThatItIsLookingUntilTheAnswerComes)
{
    controller->showWindow();
    EXPECT_EQ(status(), "Looking where the items are…");
    answerAll(makeRecords(3));
    EXPECT_EQ(status(), "3 moves");
}

TEST_F(HistoryWindowControllerTest, ListsTheNewestFirst)
{
    show({makeRecord(3, "c"), makeRecord(2, "a"), makeRecord(1, "b")});
    EXPECT_THAT(items(), ElementsAre("c", "a", "b"));
}

TEST_F(HistoryWindowControllerTest, AnEmptyHistoryIsSaidInAFriendlyWay)
{
    show({});
    EXPECT_EQ(status(), "");
    EXPECT_EQ(
        table().accessibleDescription(),
        QStringLiteral("What you move to the trash is listed here, and can be put back."));
    EXPECT_EQ(putBackButton().toolTip(), QStringLiteral("Select an item first."));
    EXPECT_EQ(showButton().toolTip(), QStringLiteral("Select an item first."));
}

TEST_F(HistoryWindowControllerTest, AHeadersClickSorts)
{
    show({makeRecord(3, "c"), makeRecord(2, "a"), makeRecord(1, "b")});
    const QHeaderView& header = *table().horizontalHeader();
    const int x = header.sectionViewportPosition(1) + 10;
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, {x, header.height() / 2});
    EXPECT_THAT(items(), ElementsAre("a", "b", "c"));
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, {x, header.height() / 2});
    EXPECT_THAT(items(), ElementsAre("c", "b", "a"));
}

TEST_F(HistoryWindowControllerTest, SizesSortByTheirNumbers)
{
    show({makeRecord(900, "small"), makeRecord(20, "smallest"), makeRecord(3000, "large")});
    table().sortByColumn(4, Qt::AscendingOrder);
    EXPECT_THAT(items(), ElementsAre("smallest", "small", "large"));
}

TEST_F(HistoryWindowControllerTest, TheNewestMoveIsSelectedAtFirst)
{
    show(makeRecords(3));
    EXPECT_EQ(selectedItem(), "3");
}

TEST_F(HistoryWindowControllerTest, AMoveThatComesIntoAnEmptyListIsNotChosen)
{
    show({});
    refresh(makeRecords(1));
    EXPECT_EQ(selectedItem(), "");
    EXPECT_FALSE(putBackButton().isEnabled());
    QTest::keyClick(&table(), Qt::Key_B, Qt::ControlModifier);
    EXPECT_THAT(putBack, IsEmpty());
}

TEST_F(HistoryWindowControllerTest, TheKeyboardBeginsAtIt)
{
    show({});
    refresh(makeRecords(2));
    EXPECT_EQ(table().currentIndex().row(), 0);
}

TEST_F(HistoryWindowControllerTest, OnlyWhatIsInTheTrashCanBePutBack)
{
    for (const TrashState state :
         {TrashState::Begun, TrashState::NotMoved, TrashState::PutBack, TrashState::Gone}) {
        show({makeRecord(1, "a", state)});
        EXPECT_FALSE(putBackButton().isEnabled());
    }
    refresh({makeRecord(1, "a")});
    EXPECT_TRUE(putBackButton().isEnabled());
}

TEST_F(HistoryWindowControllerTest, WhatWaitsToBePutBackIsNotAskedForAgain)
{
    show({makeRecord(1, "a")});
    controller->setComingBack({makeRecord(1, "a").item});
    EXPECT_FALSE(putBackButton().isEnabled());
    EXPECT_THAT(putBackButton().toolTip().toStdString(), testing::HasSubstr("waits"));
    controller->setComingBack({});
    EXPECT_TRUE(putBackButton().isEnabled());
}

TEST_F(HistoryWindowControllerTest, ADisabledButtonSaysWhy)
{
    show({makeRecord(1, "a", TrashState::Gone)});
    EXPECT_THAT(putBackButton().toolTip().toStdString(), testing::HasSubstr("in the trash"));
    EXPECT_THAT(showButton().toolTip().toStdString(), testing::HasSubstr("Nobody knows"));
}

TEST_F(HistoryWindowControllerTest, WhatIsGoneCannotBeShown)
{
    show({makeRecord(1, "a", TrashState::Gone)});
    EXPECT_FALSE(showButton().isEnabled());
}

TEST_F(HistoryWindowControllerTest, NothingCanBeDoneWhileNothingIsSelected)
{
    show({});
    EXPECT_FALSE(putBackButton().isEnabled());
    EXPECT_FALSE(showButton().isEnabled());
}

TEST_F(HistoryWindowControllerTest, TheButtonPutsTheSelectedItemBack)
{
    show(makeRecords(3));
    table().selectRow(1);
    QTest::mouseClick(&putBackButton(), Qt::LeftButton);
    EXPECT_THAT(putBack, ElementsAre(makeRecord(2, "2")));
}

TEST_F(HistoryWindowControllerTest, TheRowThatIsSortedThereIsPutBack)
{
    show({makeRecord(3, "c"), makeRecord(2, "a"), makeRecord(1, "b")});
    table().sortByColumn(1, Qt::AscendingOrder);
    table().selectRow(0);
    QTest::mouseClick(&putBackButton(), Qt::LeftButton);
    EXPECT_THAT(putBack, ElementsAre(makeRecord(2, "a")));
}

TEST_F(HistoryWindowControllerTest, AKeyPutsTheSelectedItemBack)
{
    show(makeRecords(1));
    QTest::keyClick(&table(), Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(putBack.size(), 1);
}

TEST_F(HistoryWindowControllerTest, AKeyDoesNothingForWhatIsNotInTheTrash)
{
    show({makeRecord(1, "a", TrashState::PutBack)});
    QTest::keyClick(&table(), Qt::Key_B, Qt::ControlModifier);
    EXPECT_THAT(putBack, IsEmpty());
}

TEST_F(HistoryWindowControllerTest, ShowsTheItemWhereItIsNow)
{
    show({makeRecord(1, "a", TrashState::PutBack)});
    QTest::mouseClick(&showButton(), Qt::LeftButton);
    refresh({makeRecord(1, "a")});
    QTest::keyClick(&table(), Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(
        workspace.revealed, ElementsAre("/home/me/a 2", "/home/me/.local/share/Trash/files/a"));
}

TEST_F(HistoryWindowControllerTest, ReturnAndADoubleClickShowTheItem)
{
    show(makeRecords(1));
    QTest::keyClick(&table(), Qt::Key_Return);
    const QPoint centre = table().visualRect(table().model()->index(0, 1)).center();
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, centre);
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, centre);
    EXPECT_EQ(workspace.revealed.size(), 2);
}

TEST_F(HistoryWindowControllerTest, ADoubleClickBesideTheRowsShowsNothing)
{
    show(makeRecords(1));
    const QPoint below(20, table().viewport()->height() - 5);
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, below);
    EXPECT_THAT(workspace.revealed, IsEmpty());
}

TEST_F(HistoryWindowControllerTest, WithoutAFileManagerItSaysSo)
{
    workspace.answer = false;
    show({makeRecord(1, "a\n")});
    QTest::mouseClick(&showButton(), Qt::LeftButton);
    ASSERT_EQ(alert.told.size(), 1);
    EXPECT_THAT(alert.told[0].informativeText.toStdString(), testing::HasSubstr("'a␊'"));
}

TEST_F(HistoryWindowControllerTest, AFileManagerThatFailsLaterFindsNobody)
{
    workspace.answersLater = true;
    show(makeRecords(1));
    QTest::mouseClick(&showButton(), Qt::LeftButton);
    controller.reset();
    workspace.lateAnswer(false);
    EXPECT_THAT(alert.told, IsEmpty());
}

TEST_F(HistoryWindowControllerTest, TheMenuOfARowHasBoth)
{
    show(makeRecords(2));
    table().selectRow(1);
    QMenu* const menu = openMenu();
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 2);
    EXPECT_EQ(menu->actions().at(0)->text(), QStringLiteral("&Show"));
    menu->actions().at(1)->trigger();
    menu->close();
    EXPECT_THAT(putBack, ElementsAre(makeRecord(1, "1")));
}

TEST_F(HistoryWindowControllerTest, ThereIsNoMenuOfNothing)
{
    show({});
    EXPECT_EQ(openMenu(), nullptr);
}

TEST_F(HistoryWindowControllerTest, ARightClickIsAboutTheRowUnderThePointer)
{
    show(makeRecords(3));
    const QPoint centre = table().visualRect(table().model()->index(2, 0)).center();
    QTest::mouseClick(table().viewport(), Qt::RightButton, {}, centre);
    EXPECT_EQ(selectedItem(), "1");
}

TEST_F(HistoryWindowControllerTest, BecomingActiveReadsAnew)
{
    show(makeRecords(1));
    const int before = history.asked;
    QWidget other;
    other.show();
    ASSERT_TRUE(test::becomesActive(other));
    ASSERT_TRUE(test::becomesActive(controller->window()));
    EXPECT_GT(history.asked, before);
}

TEST_F(HistoryWindowControllerTest, OpeningIsOneQuestion)
{
    controller->showWindow();
    ASSERT_TRUE(test::becomesActive(controller->window()));
    EXPECT_EQ(history.asked, 1);
}

TEST_F(HistoryWindowControllerTest, AMoveWhileItReadsIsReadAfterwards)
{
    controller->showWindow();
    controller->refresh();
    EXPECT_EQ(history.asked, 1);
    EXPECT_TRUE(history.answer({}));
    EXPECT_EQ(history.asked, 2);
    EXPECT_EQ(status(), "Looking where the items are…");
    EXPECT_TRUE(history.answer({}));
    EXPECT_EQ(history.asked, 2);
}

TEST_F(HistoryWindowControllerTest, OutOfSightItReadsNothing)
{
    controller->refresh();
    EXPECT_EQ(history.asked, 0);
}

TEST_F(HistoryWindowControllerTest, AnAnswerAfterItWasClosedIsTaken)
{
    controller->showWindow();
    controller->window().close();
    EXPECT_TRUE(history.answer(makeRecords(2)));
    EXPECT_EQ(table().model()->rowCount(), 2);
}

TEST_F(HistoryWindowControllerTest, AnAnswerAfterItIsGoneFindsNobody)
{
    controller->showWindow();
    controller.reset();
    EXPECT_TRUE(history.answer(makeRecords(2)));
}

TEST_F(HistoryWindowControllerTest, ARefreshKeepsTheSelection)
{
    show(makeRecords(3));
    table().selectRow(1);
    refresh(makeRecords(5));
    EXPECT_EQ(selectedItem(), "2");
}

TEST_F(HistoryWindowControllerTest, NoOtherRowIsSelectedForOneThatGoesAway)
{
    show(makeRecords(3));
    table().selectRow(1);
    refresh({makeRecord(3, "3"), makeRecord(1, "1")});
    EXPECT_EQ(selectedItem(), "");
    EXPECT_FALSE(putBackButton().isEnabled());
}

TEST_F(HistoryWindowControllerTest, ARefreshLeavesTheRowsWhereTheyAre)
{
    show(makeRecords(1000));
    table().verticalScrollBar()->setValue(500);
    const QString first = table().indexAt({0, 0}).siblingAtColumn(1).data().toString();
    refresh(makeRecords(1003));
    EXPECT_EQ(table().indexAt({0, 0}).siblingAtColumn(1).data().toString(), first);
}

TEST_F(HistoryWindowControllerTest, ANewMoveIsSeenByWhoLooksAtTheNewest)
{
    show(makeRecords(1000));
    refresh(makeRecords(1003));
    EXPECT_EQ(table().indexAt({0, 0}).siblingAtColumn(1).data().toString(), QStringLiteral("1003"));
}

TEST_F(HistoryWindowControllerTest, RemembersItsSizeAndColumns)
{
    show(makeRecords(3));
    controller->window().resize(700, 333);
    table().setColumnWidth(1, 77);
    table().sortByColumn(1, Qt::AscendingOrder);
    controller->window().close();
    make();
    show(makeRecords(3));
    EXPECT_EQ(controller->window().size(), QSize(700, 333));
    EXPECT_EQ(table().columnWidth(1), 77);
    EXPECT_THAT(items(), ElementsAre("1", "2", "3"));
}

TEST_F(HistoryWindowControllerTest, IsRememberedWhenTheProgramEndsWithIt)
{
    show({});
    controller->window().resize(701, 334);
    make();
    EXPECT_EQ(controller->window().size(), QSize(701, 334));
}

TEST_F(HistoryWindowControllerTest, BrokenRecordsOfItsColumnsAreNone)
{
    defaults.setString("HistoryWindowColumns", "bm9uc2Vuc2U=");
    defaults.setString("HistoryWindowFrame", "???");
    make();
    show({makeRecord(2, "b"), makeRecord(1, "a")});
    EXPECT_THAT(items(), ElementsAre("b", "a"));
    EXPECT_EQ(table().model()->columnCount(), 6);
}

TEST_F(HistoryWindowControllerTest, EscapeAndControlWCloseIt)
{
    show({});
    QTest::keyClick(&table(), Qt::Key_Escape);
    EXPECT_FALSE(controller->window().isVisible());
    show({});
    QTest::keyClick(&table(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(controller->window().isVisible());
}

TEST_F(HistoryWindowControllerTest, TabGoesFromTheTableToTheButtons)
{
    show(makeRecords(2));
    EXPECT_TRUE(table().hasFocus());
    QTest::keyClick(&table(), Qt::Key_Tab);
    EXPECT_TRUE(showButton().hasFocus());
    QTest::keyClick(&showButton(), Qt::Key_Tab);
    EXPECT_TRUE(putBackButton().hasFocus());
    QTest::keyClick(&putBackButton(), Qt::Key_Space);
    EXPECT_EQ(putBack.size(), 1);
}

TEST_F(HistoryWindowControllerTest, ScreenReadersHearTheRowsAndWhatTheyAre)
{
    show(makeRecords(2));
    QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(&table());
    ASSERT_NE(seen, nullptr);
    EXPECT_EQ(seen->text(QAccessible::Name), QStringLiteral("Moves to the trash"));
    QAccessibleTableInterface* const rows = seen->tableInterface();
    ASSERT_NE(rows, nullptr);
    EXPECT_EQ(rows->rowCount(), 2);
    EXPECT_EQ(rows->cellAt(0, 5)->text(QAccessible::Name), QStringLiteral("In the trash"));
}

} // namespace
} // namespace tessera
