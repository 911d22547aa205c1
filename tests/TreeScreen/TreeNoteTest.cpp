// SPDX-License-Identifier: MIT
#include "TreeScreen/TreeNote.h"

#include <QAccessible>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace tessera {
namespace {

class TreeNoteTest : public testing::Test {
protected:
    TreeNoteTest()
    {
        picture.resize(400, 300);
        picture.show();
    }

    QWidget picture;
    TreeNote note{&picture};
};

TEST_F(TreeNoteTest, IsOutOfSightUntilThereIsSomethingToSay)
{
    EXPECT_FALSE(note.isVisible());
    note.say(QStringLiteral("No."));
    EXPECT_TRUE(note.isVisible());
}

TEST_F(TreeNoteTest, StandsInTheMiddleOverTheLowerEdge)
{
    note.say(QStringLiteral("No."));
    EXPECT_EQ(note.y() + note.height(), 288);
    EXPECT_NEAR(note.x() + note.width() / 2.0, 200, 1);
    EXPECT_LT(note.width(), 100);
}

TEST_F(TreeNoteTest, WhatIsTooLongForALineGetsMore)
{
    note.say(QStringLiteral("No."));
    const int line = note.height();
    note.say(QStringLiteral("No, ").repeated(50));
    EXPECT_EQ(note.x(), 12);
    EXPECT_EQ(note.width(), 376);
    EXPECT_GT(note.height(), line);
    EXPECT_EQ(note.y() + note.height(), 288);
    note.say(QStringLiteral("No."));
    EXPECT_EQ(note.height(), line);
}

TEST_F(TreeNoteTest, ShowsNamesThatLookLikeMarkupAsTheyAre)
{
    note.say(QStringLiteral("<b>a"));
    EXPECT_EQ(note.textFormat(), Qt::PlainText);
    const int asItIs = note.width();
    note.say(QStringLiteral("a"));
    EXPECT_GT(asItIs, note.width());
}

TEST_F(TreeNoteTest, GoesAwayByItself)
{
    auto* const end = note.findChild<QTimer*>();
    ASSERT_NE(end, nullptr);
    note.say(QStringLiteral("No."));
    EXPECT_GE(end->interval(), 5000) << "there is time to read it";
    end->setInterval(0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !note.isVisible(); }));
}

TEST_F(TreeNoteTest, ThePointerDoesNotNoticeIt)
{
    EXPECT_TRUE(note.testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST_F(TreeNoteTest, ForScreenReadersItIsAnAlert)
{
    note.say(QStringLiteral("There is no box that way."));
    const QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(&note);
    ASSERT_NE(seen, nullptr);
    EXPECT_EQ(seen->role(), QAccessible::AlertMessage);
    EXPECT_EQ(seen->text(QAccessible::Name), QStringLiteral("There is no box that way."));
}

} // namespace
} // namespace tessera
