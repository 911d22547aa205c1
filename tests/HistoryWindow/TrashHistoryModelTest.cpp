// SPDX-License-Identifier: MIT
#include "HistoryWindow/TrashHistoryModel.h"

#include "HistoryWindow/MakeRecords.h"

#include <QAbstractItemModelTester>
#include <QPersistentModelIndex>
#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace tessera {
namespace {

using Column = TrashHistoryModel::Column;
using test::makeRecord;
using test::makeRecords;
using testing::ElementsAre;

/// Every change of the model is checked for what Qt asks of one, which ends the program if it
/// fails.
class TrashHistoryModelTest : public testing::Test {
protected:
    std::string text(int row, Column column, int role = Qt::DisplayRole) const
    {
        const QModelIndex index = model.index(row, static_cast<int>(column));
        return model.data(index, role).toString().toStdString();
    }

    std::vector<std::string> items() const
    {
        std::vector<std::string> result;
        for (int row = 0; row < model.rowCount(); ++row) {
            result.push_back(text(row, Column::Item));
        }
        return result;
    }

    TrashHistoryModel model{"/home/me"};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(TrashHistoryModelTest, AMoveIsARowOfSixTexts)
{
    model.setRecords({makeRecord(5, "a b")});
    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(text(0, Column::Item), "a b");
    EXPECT_EQ(text(0, Column::From), "~");
    EXPECT_EQ(text(0, Column::To), "~/.local/share/Trash/files/a b");
    EXPECT_EQ(text(0, Column::Size), "5 KB");
    EXPECT_EQ(text(0, Column::State), "In the trash");
    EXPECT_NE(text(0, Column::Time), "");
}

TEST_F(TrashHistoryModelTest, WhatIsComingBackIsSaidToWait)
{
    model.setRecords(makeRecords(2));
    model.setComingBack({makeRecord(1, "1").item});
    EXPECT_EQ(text(0, Column::State), "In the trash");
    EXPECT_EQ(text(1, Column::State), "Waiting to be put back");
    EXPECT_NE(text(1, Column::State, Qt::ToolTipRole), text(1, Column::State));
    model.setComingBack({});
    EXPECT_EQ(text(1, Column::State), "In the trash");
}

TEST_F(TrashHistoryModelTest, WhatIsBackDoesNotWait)
{
    model.setRecords({makeRecord(1, "a", TrashState::PutBack)});
    model.setComingBack({makeRecord(1, "a").item});
    EXPECT_EQ(text(0, Column::State), "Put back");
}

TEST_F(TrashHistoryModelTest, AnotherMoveOfTheSameItemDoesNotWait)
{
    TrashRecord again = makeRecord(2, "a");
    again.item.to = Url("/home/me/.local/share/Trash/files/a.2", false);
    model.setRecords({again, makeRecord(1, "a")});
    model.setComingBack({again.item});
    EXPECT_EQ(text(0, Column::State), "Waiting to be put back");
    EXPECT_EQ(text(1, Column::State), "In the trash");
}

TEST_F(TrashHistoryModelTest, ViewsHearOnceThatSomethingWaits)
{
    model.setRecords(makeRecords(2));
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    model.setComingBack({makeRecord(1, "1").item});
    model.setComingBack({makeRecord(1, "1").item});
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(TrashHistoryModelTest, TheTimeIsTheLocalesWithDayAndMinute)
{
    TrashRecord record = makeRecord(1, "a");
    const QDateTime moment(QDate(2026, 3, 7), QTime(14, 5, 9));
    record.time = moment.toSecsSinceEpoch();
    model.setRecords({record});
    EXPECT_THAT(text(0, Column::Time), testing::HasSubstr("2026"));
    const QString minute = QLocale().toString(QTime(14, 5, 9), QLocale::ShortFormat);
    EXPECT_THAT(text(0, Column::Time), testing::EndsWith(minute.toStdString()));
}

TEST_F(TrashHistoryModelTest, EachStateHasItsWords)
{
    const std::vector<std::pair<TrashState, std::string>> words{
        {TrashState::Moved, "In the trash"},
        {TrashState::PutBack, "Put back"},
        {TrashState::NotMoved, "Not moved"},
        {TrashState::Gone, "Not there any more"},
        {TrashState::Begun, "Unknown"}};
    for (const auto& [state, word] : words) {
        model.setRecords({makeRecord(1, "a", state)});
        EXPECT_EQ(text(0, Column::State), word);
    }
}

TEST_F(TrashHistoryModelTest, ASizeThatNobodyKnowsIsNoNumber)
{
    TrashRecord record = makeRecord(1, "a");
    record.bytes.reset();
    model.setRecords({record});
    EXPECT_EQ(text(0, Column::Size), "Not known");
}

TEST_F(TrashHistoryModelTest, ASizeThatNobodyKnowsSortsBelowNothing)
{
    TrashRecord unknown = makeRecord(2, "a");
    unknown.bytes.reset();
    TrashRecord empty = makeRecord(1, "b");
    empty.bytes = 0;
    model.setRecords({unknown, empty});
    const int size = static_cast<int>(Column::Size);
    EXPECT_LT(
        model.data(model.index(0, size), TrashHistoryModel::kSortRole).toDouble(),
        model.data(model.index(1, size), TrashHistoryModel::kSortRole).toDouble());
}

TEST_F(TrashHistoryModelTest, AnItemOfTheTopLevelIsFromTheRoot)
{
    TrashRecord record = makeRecord(1, "a");
    record.item.from = Url("/a", false);
    model.setRecords({record});
    EXPECT_EQ(text(0, Column::From), "/");
}

TEST_F(TrashHistoryModelTest, NamesOfOddBytesAreOneLineOfText)
{
    model.setRecords({makeRecord(1, "a\nb\xFF")});
    EXPECT_EQ(text(0, Column::Item), "a␊b\xEF\xBF\xBD");
    EXPECT_EQ(text(0, Column::To), "~/.local/share/Trash/files/a␊b\xEF\xBF\xBD");
}

TEST_F(TrashHistoryModelTest, ATooltipTakesNoNameForMarkup)
{
    model.setRecords({makeRecord(1, "<b>bold")});
    EXPECT_EQ(text(0, Column::Item), "<b>bold");
    EXPECT_THAT(text(0, Column::Item, Qt::ToolTipRole), testing::HasSubstr("&lt;b&gt;bold"));
}

TEST_F(TrashHistoryModelTest, TheTooltipOfAnItemThatIsBackSaysWhere)
{
    model.setRecords({makeRecord(1, "a", TrashState::PutBack)});
    EXPECT_EQ(text(0, Column::State, Qt::ToolTipRole), "Put back to ~/a 2");
}

TEST_F(TrashHistoryModelTest, EachColumnHasATitle)
{
    std::vector<std::string> titles;
    for (int i = 0; i < model.columnCount(); ++i) {
        titles.push_back(
            model.headerData(i, Qt::Horizontal, Qt::DisplayRole).toString().toStdString());
    }
    EXPECT_THAT(titles, ElementsAre("Time", "Item", "From", "To", "Size", "State"));
}

TEST_F(TrashHistoryModelTest, ANewMoveComesWithoutTouchingTheOthers)
{
    model.setRecords({makeRecord(2, "b"), makeRecord(1, "a")});
    const QPersistentModelIndex oldest = model.index(1, 0);
    const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.setRecords(
        {makeRecord(4, "d"), makeRecord(3, "c"), makeRecord(2, "b"), makeRecord(1, "a")});
    EXPECT_THAT(items(), ElementsAre("d", "c", "b", "a"));
    EXPECT_EQ(oldest.row(), 3);
    EXPECT_TRUE(changed.isEmpty());
}

TEST_F(TrashHistoryModelTest, AChangedStateIsAChangeOfThatRowAlone)
{
    model.setRecords({makeRecord(2, "b"), makeRecord(1, "a")});
    const QPersistentModelIndex row = model.index(1, 0);
    const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.setRecords({makeRecord(2, "b"), makeRecord(1, "a", TrashState::Gone)});
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 1);
    EXPECT_EQ(row.row(), 1);
    EXPECT_EQ(text(1, Column::State), "Not there any more");
}

TEST_F(TrashHistoryModelTest, WhatTheJournalHasNoRoomForLeaves)
{
    model.setRecords(makeRecords(3));
    const QPersistentModelIndex newest = model.index(0, 0);
    model.setRecords({makeRecord(4, "4"), makeRecord(3, "3"), makeRecord(2, "2")});
    EXPECT_THAT(items(), ElementsAre("4", "3", "2"));
    EXPECT_EQ(newest.row(), 1);
}

TEST_F(TrashHistoryModelTest, AnyOtherOrderIsTakenOver)
{
    model.setRecords(makeRecords(4));
    model.setRecords(
        {makeRecord(1, "1"), makeRecord(3, "3"), makeRecord(4, "4"), makeRecord(9, "9")});
    EXPECT_THAT(items(), ElementsAre("1", "3", "4", "9"));
    model.setRecords({});
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(TrashHistoryModelTest, TwoMovesOfOneNumberAndTimeAreTwoRows)
{
    model.setRecords({makeRecord(1, "a"), makeRecord(1, "b")});
    model.setRecords({makeRecord(2, "c"), makeRecord(1, "a"), makeRecord(1, "b")});
    EXPECT_THAT(items(), ElementsAre("c", "a", "b"));
}

TEST_F(TrashHistoryModelTest, AMoveIsTakenForTheSameByNumberAndTime)
{
    model.setRecords({makeRecord(1, "a")});
    const QPersistentModelIndex row = model.index(0, 0);
    TrashRecord later = makeRecord(1, "b");
    later.time += 1;
    model.setRecords({later});
    EXPECT_FALSE(row.isValid());
}

TEST(PlaceNow, IsWhereTheStateSaysThatTheItemIs)
{
    EXPECT_EQ(placeNow(makeRecord(1, "a"))->path(), "/home/me/.local/share/Trash/files/a");
    EXPECT_EQ(placeNow(makeRecord(1, "a", TrashState::NotMoved))->path(), "/home/me/a");
    EXPECT_EQ(placeNow(makeRecord(1, "a", TrashState::PutBack))->path(), "/home/me/a 2");
}

TEST(PlaceNow, IsNowhereWhenTheItemIsGoneOrNobodyKnows)
{
    EXPECT_FALSE(placeNow(makeRecord(1, "a", TrashState::Gone)).has_value());
    EXPECT_FALSE(placeNow(makeRecord(1, "a", TrashState::Begun)).has_value());
}

} // namespace
} // namespace tessera
