// SPDX-License-Identifier: MIT
#include "TreeScreen/TrashNote.h"

#include "TreeScreen/TreeNote.h"
#include "support/BecomesActive.h"

#include <QAccessible>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <string>

namespace tessera {
namespace {

/// Writes down what reaches it.
class Picture final : public QWidget {
public:
    int presses = 0;
    int keys = 0;

protected:
    void mousePressEvent(QMouseEvent* /*event*/) override { ++presses; }
    void keyPressEvent(QKeyEvent* /*event*/) override { ++keys; }
};

class TrashNoteTest : public testing::Test {
protected:
    TrashNoteTest()
    {
        picture.setFocusPolicy(Qt::StrongFocus);
        picture.resize(760, 520);
        picture.show();
        EXPECT_TRUE(test::becomesActive(picture));
        picture.setFocus();
    }

    QTimer& timer() const { return *note.findChild<QTimer*>(); }
    std::string text() const { return note.findChild<QLabel*>()->text().toStdString(); }
    std::string spoken() const { return note.accessibleName().toStdString(); }
    QPushButton& button(int which) const { return *note.findChildren<QPushButton*>().at(which); }
    QPushButton& undo() const { return button(0); }
    QPushButton& openTrash() const { return button(1); }

    void sayVideo() { note.sayItem("video.mkv", 1'200'000'000); }
    void enter()
    {
        QEnterEvent event({1, 1}, {1, 1}, {1, 1});
        QApplication::sendEvent(&note, &event);
    }
    void leave()
    {
        QEvent event(QEvent::Leave);
        QApplication::sendEvent(&note, &event);
    }
    bool isAtLowerEdge() const { return note.y() + note.height() == picture.height() - 12; }
    bool isAtUpperEdge() const { return note.y() == 12; }

    Picture picture;
    TrashNote note{&picture};
};

TEST_F(TrashNoteTest, SaysWhatAMoveMeans)
{
    EXPECT_FALSE(note.isVisible());
    sayVideo();
    EXPECT_TRUE(note.isVisible());
    EXPECT_EQ(
        spoken(),
        "“video.mkv” (1.2 GB) is in the trash. Its space is free once the trash is emptied.");
}

TEST_F(TrashNoteTest, SaysItOfSeveralItems)
{
    note.sayItems(3, 1'200'000'000);
    EXPECT_EQ(
        text(),
        "3 items (1.2 GB) are in the trash. Their space is free once the trash is emptied.");
    EXPECT_EQ(spoken(), text());
}

TEST_F(TrashNoteTest, LeavesOutASizeThatNobodyKnows)
{
    note.sayItem("a", std::nullopt);
    EXPECT_EQ(spoken(), "“a” is in the trash. Its space is free once the trash is emptied.");
    note.sayItems(2, std::nullopt);
    EXPECT_EQ(spoken(), "2 items are in the trash. Their space is free once the trash is emptied.");
}

TEST_F(TrashNoteTest, StandsInTheMiddleOverTheLowerEdge)
{
    sayVideo();
    EXPECT_TRUE(isAtLowerEdge());
    EXPECT_NEAR(note.geometry().center().x(), 380, 1);
    EXPECT_TRUE(picture.rect().contains(note.geometry()));
}

TEST_F(TrashNoteTest, FollowsThePicturesSize)
{
    sayVideo();
    picture.resize(900, 600);
    EXPECT_TRUE(isAtLowerEdge());
    EXPECT_NEAR(note.geometry().center().x(), 450, 1);
}

TEST_F(TrashNoteTest, GivesWayToTheSelectedBoxAtTheLowerEdge)
{
    sayVideo();
    note.keepClearOf({300, 400, 100, 100});
    EXPECT_TRUE(isAtUpperEdge());
    note.keepClearOf({});
    EXPECT_TRUE(isAtLowerEdge());
}

TEST_F(TrashNoteTest, ASelectedBoxBesideItIsNotInItsWay)
{
    sayVideo();
    const int above = note.y();
    note.keepClearOf({0, 0, 760, above});
    EXPECT_TRUE(isAtLowerEdge());
    note.keepClearOf({0, 0, 760, above + 1});
    EXPECT_FALSE(note.isVisible());
}

TEST_F(TrashNoteTest, IsOutOfSightWhileTheSelectedBoxIsEverywhere)
{
    sayVideo();
    note.keepClearOf(picture.rect());
    EXPECT_FALSE(note.isVisible());
    note.keepClearOf({});
    EXPECT_TRUE(note.isVisible());
}

TEST_F(TrashNoteTest, NeverCoversABoxThatWasSelectedBefore)
{
    note.keepClearOf({300, 400, 100, 100});
    EXPECT_FALSE(note.isVisible()) << "there is nothing to say";
    sayVideo();
    EXPECT_TRUE(isAtUpperEdge());
}

TEST_F(TrashNoteTest, OutOfSightItsTimeRunsOn)
{
    sayVideo();
    note.keepClearOf(picture.rect());
    timer().setInterval(0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !timer().isActive(); }));
    note.keepClearOf({});
    EXPECT_FALSE(note.isVisible());
}

TEST_F(TrashNoteTest, GoesAwayByItself)
{
    sayVideo();
    EXPECT_EQ(timer().interval(), 10000);
    timer().setInterval(0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !note.isVisible(); }));
}

TEST_F(TrashNoteTest, ANewMoveBeginsTheTimeAnew)
{
    sayVideo();
    timer().stop();
    note.sayItem("b", 1);
    EXPECT_TRUE(timer().isActive());
    EXPECT_EQ(spoken(), "“b” (1 B) is in the trash. Its space is free once the trash is emptied.");
}

TEST_F(TrashNoteTest, StaysUnderThePointer)
{
    sayVideo();
    enter();
    EXPECT_FALSE(timer().isActive());
    leave();
    EXPECT_TRUE(timer().isActive());
}

TEST_F(TrashNoteTest, APointerThatItVanishedUnderHoldsItNoLonger)
{
    sayVideo();
    enter();
    note.keepClearOf(picture.rect());
    EXPECT_TRUE(timer().isActive());
}

TEST_F(TrashNoteTest, StaysWhileTheKeyboardIsOnAButton)
{
    sayVideo();
    undo().setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(timer().isActive());
    picture.setFocus();
    EXPECT_TRUE(timer().isActive());
}

TEST_F(TrashNoteTest, ThePicturesFocusDoesNotProlongIt)
{
    sayVideo();
    timer().stop();
    picture.clearFocus();
    picture.setFocus();
    EXPECT_FALSE(timer().isActive());
}

TEST_F(TrashNoteTest, LeavesTheKeyboardWithThePicture)
{
    sayVideo();
    EXPECT_TRUE(picture.hasFocus());
    QTest::mouseClick(&undo(), Qt::LeftButton);
    EXPECT_TRUE(picture.hasFocus());
    QTest::keyClick(&picture, Qt::Key_Space);
    EXPECT_EQ(picture.keys, 1);
}

TEST_F(TrashNoteTest, TabReachesItsButtons)
{
    sayVideo();
    QTest::keyClick(&picture, Qt::Key_Tab);
    EXPECT_TRUE(undo().hasFocus());
    QTest::keyClick(&undo(), Qt::Key_Tab);
    EXPECT_TRUE(openTrash().hasFocus());
}

TEST_F(TrashNoteTest, TheButtonsAreHeard)
{
    const QSignalSpy undone(&note, &TrashNote::undoRequested);
    const QSignalSpy opened(&note, &TrashNote::openTrashRequested);
    sayVideo();
    QTest::mouseClick(&undo(), Qt::LeftButton);
    QTest::keyClick(&undo(), Qt::Key_Return);
    EXPECT_EQ(undone.size(), 2);
    EXPECT_TRUE(opened.isEmpty());
    QTest::mouseClick(&openTrash(), Qt::LeftButton);
    EXPECT_EQ(opened.size(), 1);
    EXPECT_EQ(undone.size(), 2);
}

TEST_F(TrashNoteTest, GivesTheKeyboardBackWhenItEnds)
{
    sayVideo();
    undo().setFocus(Qt::TabFocusReason);
    note.end();
    EXPECT_FALSE(note.isVisible());
    EXPECT_TRUE(picture.hasFocus());
}

TEST_F(TrashNoteTest, EscapeOnAButtonSendsItAway)
{
    sayVideo();
    undo().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&undo(), Qt::Key_Escape);
    EXPECT_FALSE(note.isVisible());
    EXPECT_EQ(picture.keys, 0);
}

TEST_F(TrashNoteTest, OtherKeysOnAButtonReachThePicture)
{
    sayVideo();
    undo().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&undo(), Qt::Key_Delete);
    EXPECT_EQ(picture.keys, 1);
}

TEST_F(TrashNoteTest, WhatHasEndedDoesNotComeBack)
{
    sayVideo();
    note.end();
    note.keepClearOf({});
    picture.resize(700, 500);
    EXPECT_FALSE(note.isVisible());
    EXPECT_FALSE(timer().isActive());
}

TEST_F(TrashNoteTest, AClickBesideTheButtonsIsForNobody)
{
    sayVideo();
    QTest::mouseClick(&note, Qt::LeftButton, {}, {3, 3});
    QTest::mouseClick(note.findChild<QLabel*>(), Qt::LeftButton);
    EXPECT_EQ(picture.presses, 0);
}

TEST_F(TrashNoteTest, ForScreenReadersItIsAnAlert)
{
    sayVideo();
    const QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(&note);
    ASSERT_NE(seen, nullptr);
    EXPECT_EQ(seen->role(), QAccessible::AlertMessage);
    EXPECT_EQ(seen->text(QAccessible::Name).toStdString(), spoken());
}

TEST_F(TrashNoteTest, NamesAreTextWhateverIsInThem)
{
    note.sayItem("<b>a%1%2\n\xFF", 1);
    EXPECT_EQ(
        spoken(),
        "“<b>a%1%2␊\xEF\xBF\xBD” (1 B) is in the trash. "
        "Its space is free once the trash is emptied.");
    EXPECT_EQ(note.findChild<QLabel*>()->textFormat(), Qt::PlainText);
}

TEST_F(TrashNoteTest, ALongNameIsElidedInTheMiddle)
{
    note.sayItem("beginning" + std::string(300, 'x') + "end.mkv", 1'200'000'000);
    EXPECT_NE(text().find("beginning"), std::string::npos);
    EXPECT_NE(text().find("end.mkv"), std::string::npos);
    EXPECT_NE(text().find("…"), std::string::npos);
    EXPECT_TRUE(picture.rect().contains(note.geometry()));
    EXPECT_EQ(spoken().find("…"), std::string::npos) << "it is read out whole";
}

TEST_F(TrashNoteTest, ALargeFontTakesMoreLines)
{
    sayVideo();
    const int line = note.height();
    QFont font = note.font();
    font.setPixelSize(26);
    note.setFont(font);
    EXPECT_GT(note.height(), 2 * line);
    EXPECT_TRUE(picture.rect().contains(note.geometry()));
    EXPECT_TRUE(isAtLowerEdge());
    const QLabel& label = *note.findChild<QLabel*>();
    EXPECT_GE(label.height(), label.heightForWidth(label.width())) << "no line is cut off";
}

TEST_F(TrashNoteTest, TheOtherNoteStandsAboveIt)
{
    TreeNote other(&picture, &note);
    other.say(QStringLiteral("No."));
    const int alone = other.y();
    sayVideo();
    other.say(QStringLiteral("No."));
    EXPECT_FALSE(other.geometry().intersects(note.geometry()));
    EXPECT_LT(other.y(), note.y());
    note.keepClearOf({300, 400, 100, 100});
    other.say(QStringLiteral("No."));
    EXPECT_EQ(other.y(), alone);
}

} // namespace
} // namespace tessera
