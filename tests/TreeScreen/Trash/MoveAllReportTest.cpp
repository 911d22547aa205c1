// SPDX-License-Identifier: MIT
#include "TreeScreen/Trash/MoveAllReport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

using testing::HasSubstr;

std::string textOf(const MoveAllOutcome& outcome)
{
    return moveAllReport(outcome).informativeText.toStdString();
}
std::string headlineOf(const MoveAllOutcome& outcome)
{
    return moveAllReport(outcome).messageText.toStdString();
}

TEST(MoveAllReport, HasAReasonForEachItemThatStayed)
{
    const MoveAllOutcome outcome{{QStringLiteral("A."), QStringLiteral("B.")}, {}};
    EXPECT_EQ(headlineOf(outcome), "2 items were not moved to the trash");
    EXPECT_EQ(textOf(outcome), "A.\n\nB.");
    EXPECT_EQ(headlineOf({{QStringLiteral("A.")}, {}}), "One item was not moved to the trash");
}

TEST(MoveAllReport, HasFiveReasonsAndCountsTheOthers)
{
    MoveAllOutcome outcome;
    for (int i = 1; i <= 5; ++i) {
        outcome.stayed.append(QString::number(i));
    }
    EXPECT_EQ(textOf(outcome), "1\n\n2\n\n3\n\n4\n\n5");
    outcome.stayed.append(QStringLiteral("6"));
    EXPECT_EQ(textOf(outcome), "1\n\n2\n\n3\n\n4\n\n5\n\nand 1 more");
    EXPECT_EQ(headlineOf(outcome), "6 items were not moved to the trash");
}

TEST(MoveAllReport, HasNoReasonOfAnyLength)
{
    const QString reason = QString(5000, QLatin1Char('x')) + QStringLiteral(" is the end.");
    const std::string text = textOf({{reason}, {}});
    EXPECT_LT(text.size(), 1000U);
    EXPECT_THAT(text, HasSubstr(" is the end."));
}

TEST(MoveAllReport, SaysOfNothingThatItStayedWhereNobodyCanTell)
{
    EXPECT_EQ(
        headlineOf({{QStringLiteral("A.")}, {}, true}),
        "One item may not have been moved to the trash");
    EXPECT_EQ(
        headlineOf({{QStringLiteral("A."), QStringLiteral("B.")}, {}, true}),
        "2 items may not have been moved to the trash");
}

TEST(MoveAllReport, TellsOfFoldersThatHadChanged)
{
    EXPECT_EQ(headlineOf({{}, {"a"}}), "A folder had changed since it was scanned");
    EXPECT_EQ(headlineOf({{}, {"a", "b"}}), "Folders had changed since they were scanned");
    EXPECT_EQ(
        textOf({{}, {"a", "b", "c", "d\xFF"}}),
        "“a”, “b”, “c” and 1 more are in the trash, with all that is in them now.");
}

TEST(MoveAllReport, TellsOfBothAtOnce)
{
    EXPECT_EQ(
        textOf({{QStringLiteral("A.")}, {"b"}}),
        "A.\n\n“b” is in the trash, with all that is in it now.");
}

} // namespace
} // namespace tessera
