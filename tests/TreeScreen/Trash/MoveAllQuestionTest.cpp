// SPDX-License-Identifier: MIT
#include "TreeScreen/Trash/MoveAllQuestion.h"

#include "TreeScreen/Trash/MoveAllReport.h"
#include "Widgets/MessageBoxAlert.h"

#include <QApplication>
#include <QMessageBox>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

using testing::HasSubstr;

std::string textOf(const MoveAllFacts& facts)
{
    return moveAllQuestion(facts).informativeText.toStdString();
}

TEST(MoveAllQuestion, NamesCountAndTotalAndTheLargestFirst)
{
    MoveAllFacts facts;
    facts.items = {{"a", 1000}, {"b", 3000}, {"c", 2000}};
    EXPECT_EQ(
        textOf(facts),
        "Are you sure you want to move 3 items (6 KB) to the trash?\n\n“b” (3 KB)\n“c” (2 KB)\n“a” "
        "(1 KB)");
}

TEST(MoveAllQuestion, OneItemIsOne)
{
    MoveAllFacts facts;
    facts.items = {{"a", 1000}};
    EXPECT_EQ(
        textOf(facts), "Are you sure you want to move one item (1 KB) to the trash?\n\n“a” (1 KB)");
}

TEST(MoveAllQuestion, ListsFiveAndCountsTheOthers)
{
    MoveAllFacts facts;
    for (const char* const name : {"a", "b", "c", "d", "e"}) {
        facts.items.push_back({name, 1});
    }
    EXPECT_THAT(textOf(facts), HasSubstr("“e” (1 B)"));
    EXPECT_EQ(textOf(facts).find("more"), std::string::npos);
    facts.items.push_back({"f", 1});
    EXPECT_THAT(textOf(facts), HasSubstr("“e” (1 B)\nand 1 more"));
}

TEST(MoveAllQuestion, SaysOfFoldersThatTheyGoWithAllThatIsInThem)
{
    MoveAllFacts facts;
    facts.items = {{"a", 1}};
    facts.haveFolders = true;
    EXPECT_THAT(
        textOf(facts),
        HasSubstr("What has come into the folders since they were scanned goes with them."));
}

TEST(MoveAllQuestion, WarningsComeFirstInTheirOrder)
{
    MoveAllFacts facts;
    facts.items = {{"a", 1}};
    facts.hidden = {"h"};
    facts.inSystemFolders = {"s", "t"};
    facts.heldOpen = {KeptFiles::Reason::HeldOpen, 1, "/me/o", {{5, "p"}}};
    facts.ofOthers = {"x", "y", "z", "w", "v"};
    facts.lastBackups = {{BackupSet::Program::Borg, "/usb/repo"}};
    const AlertText question = moveAllQuestion(facts);
    EXPECT_EQ(question.messageText, QStringLiteral("Warning"));
    EXPECT_TRUE(question.informativeText.startsWith(QStringLiteral(
        "“h” is hidden, or is in a hidden folder.\n\n"
        "“s” and “t” are in system folders: other applications may be using them.\n\n"
        "“o” is held open by p (5).\n\n"
        "“x”, “y”, “z” and 2 more belong to other users.\n\n"
        "No backup would be left in “repo”.\n\n"
        "Are you sure")));
}

TEST(MoveAllQuestion, WithoutWarningsItsHeadlineIsNone)
{
    MoveAllFacts facts;
    facts.items = {{"a", 1}};
    EXPECT_EQ(moveAllQuestion(facts).messageText, QStringLiteral("Move to Trash"));
}

TEST(MoveAllQuestion, NamesAreBytesAndMayBeLong)
{
    MoveAllFacts facts;
    facts.items = {{"a\n%1<b>\xFF", 1}, {std::string(255, 'x'), 1}};
    facts.hidden = {"%1%2"};
    const std::string text = textOf(facts);
    EXPECT_THAT(text, HasSubstr("“a␊%1<b>\uFFFD” (1 B)"));
    EXPECT_THAT(text, HasSubstr("“%1%2” is hidden"));
    EXPECT_EQ(text.find(std::string(100, 'x')), std::string::npos);
    EXPECT_THAT(text, HasSubstr("xxx"));
}

/// The height of the alert that says so, in points.
int heightOf(const AlertText& text)
{
    MessageBoxAlert alert;
    alert.beginSheet(text);
    int height = 0;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (auto* const box = qobject_cast<QMessageBox*>(window)) {
            height = box->height();
            delete box; // NOLINT(cppcoreguidelines-owning-memory): as closing it does, later
        }
    }
    return height;
}

/// As high as what is left of a screen of 768 lines.
constexpr int kSmallScreen = 660;

TEST(MoveAllQuestion, FitsOnASmallScreenWhateverTheItemsAreCalled)
{
    const std::string longName = std::string(120, 'x') + "\u00E4" + std::string(120, 'w');
    const std::vector<std::string> names(1000, longName);
    MoveAllFacts facts;
    facts.items.resize(1000, {longName, 1});
    facts.haveFolders = true;
    facts.hidden = names;
    facts.inSystemFolders = names;
    facts.heldOpen
        = {KeptFiles::Reason::HeldOpen,
           9,
           "/me/" + longName,
           {{5, "player"}, {6, "backup"}, {7, "x"}}};
    facts.ofOthers = names;
    facts.lastBackups.resize(9, {BackupSet::Program::Borg, "/usb/" + longName});
    const int height = heightOf(moveAllQuestion(facts));
    EXPECT_GT(height, 100);
    EXPECT_LE(height, kSmallScreen);
}

TEST(MoveAllReport, FitsOnASmallScreenWhateverTheItemsAreCalled)
{
    const QString reason = QLatin1Char('\'') + QString(255, QLatin1Char('w'))
        + QStringLiteral("' was not moved, because it has changed since the scan.");
    MoveAllOutcome outcome;
    outcome.stayed = QStringList(1000, reason);
    outcome.grownFolders.resize(1000, std::string(255, 'w'));
    EXPECT_LE(heightOf(moveAllReport(outcome)), kSmallScreen);
}

} // namespace
} // namespace tessera
