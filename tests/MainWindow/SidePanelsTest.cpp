// SPDX-License-Identifier: MIT
#include "MainWindow/SidePanels.h"

#include "support/BecomesActive.h"
#include "support/Fakes/FakeUserDefaults.h"

#include <QAbstractButton>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTest>
#include <QToolBar>

#include <gtest/gtest.h>

#include <memory>
#include <random>

namespace tessera {
namespace {

constexpr auto kKey = "MainWindowPanels";

void settle()
{
    QCoreApplication::processEvents();
}

/// A window with a picture, a toolbar and two panels.
struct Window {
    explicit Window(test::FakeUserDefaults& defaults, QSize size = {1000, 600})
    {
        window.setMinimumSize(760, 520);
        window.resize(size);
        window.setCentralWidget(picture);
        picture->setFocusPolicy(Qt::StrongFocus);
        toolbar->setObjectName(QStringLiteral("toolbar"));
        window.addToolBar(toolbar);
        panels = std::make_unique<SidePanels>(window, defaults);
        first = &panels->add("first", QStringLiteral("First"), firstContent);
        second = &panels->add("second", QStringLiteral("Second"), secondContent);
        QObject::connect(
            panels.get(), &SidePanels::backToPicture, picture, [this] { picture->setFocus(); });
        panels->restore();
        window.show();
    }

    QMainWindow window;
    QWidget* picture = new QWidget;
    QToolBar* toolbar = new QToolBar;
    QLineEdit* firstContent = new QLineEdit;
    QLineEdit* secondContent = new QLineEdit;
    std::unique_ptr<SidePanels> panels;
    QDockWidget* first = nullptr;
    QDockWidget* second = nullptr;
};

/// What a window remembers that had the first panel open at the left.
std::string recordOfFirstAtTheLeft()
{
    test::FakeUserDefaults defaults;
    Window before(defaults);
    before.panels->setTreeDisplayed(true);
    before.panels->open(*before.first);
    before.window.addDockWidget(Qt::LeftDockWidgetArea, before.first);
    before.window.resizeDocks({before.first}, {333}, Qt::Horizontal);
    settle();
    before.panels->save();
    return defaults.string(kKey);
}

class SidePanelsTest : public testing::Test {
protected:
    test::FakeUserDefaults defaults;
};

TEST_F(SidePanelsTest, AreClosedAtFirst)
{
    Window window(defaults);
    window.panels->setTreeDisplayed(true);
    EXPECT_FALSE(window.panels->isOpen(*window.first));
    EXPECT_FALSE(window.first->isVisible());
    EXPECT_EQ(window.picture->width(), window.window.width());
}

TEST_F(SidePanelsTest, OpenAtTheRightWithTheUsualWidth)
{
    Window window(defaults);
    window.panels->setTreeDisplayed(true);
    window.panels->open(*window.first);
    EXPECT_TRUE(SidePanels::isInSight(*window.first));
    EXPECT_EQ(window.first->width(), SidePanels::kUsualWidth);
    EXPECT_EQ(window.first->geometry().right(), window.window.rect().right());
}

TEST_F(SidePanelsTest, ThatIsOpenedLeavesTheKeyboardWhereItIs)
{
    Window window(defaults);
    window.panels->setTreeDisplayed(true);
    ASSERT_TRUE(test::becomesActive(window.window));
    window.picture->setFocus();
    window.panels->open(*window.first);
    EXPECT_TRUE(window.picture->hasFocus());
}

TEST_F(SidePanelsTest, StayOutOfSightWithoutATree)
{
    Window window(defaults);
    window.panels->open(*window.first);
    EXPECT_TRUE(window.panels->isOpen(*window.first));
    EXPECT_FALSE(window.first->isVisible());
}

TEST_F(SidePanelsTest, ComeBackWithTheNextTreeAsWideAsTheyWere)
{
    Window window(defaults);
    window.panels->setTreeDisplayed(true);
    window.panels->open(*window.first);
    window.window.resizeDocks({window.first}, {410}, Qt::Horizontal);
    settle();
    window.panels->setTreeDisplayed(false);
    EXPECT_FALSE(window.first->isVisible());
    settle();
    window.panels->setTreeDisplayed(true);
    EXPECT_TRUE(window.first->isVisible());
    EXPECT_EQ(window.first->width(), 410);
}

TEST_F(SidePanelsTest, ThatAreOpenedOrClosedWithoutATreeAreSoForTheNext)
{
    Window window(defaults);
    window.panels->setTreeDisplayed(true);
    window.panels->open(*window.first);
    window.panels->setTreeDisplayed(false);
    window.panels->close(*window.first);
    window.panels->open(*window.second);
    window.panels->setTreeDisplayed(true);
    EXPECT_FALSE(window.first->isVisible());
    EXPECT_FALSE(window.panels->isOpen(*window.first));
    EXPECT_TRUE(window.second->isVisible());
    EXPECT_TRUE(window.panels->isOpen(*window.second));
}

TEST_F(SidePanelsTest, ThatComeAndGoWithTheTreeAreNeitherOpenedNorClosed)
{
    Window window(defaults);
    window.panels->setTreeDisplayed(true);
    window.panels->open(*window.first);
    const QSignalSpy opened(window.panels.get(), &SidePanels::opened);
    const QSignalSpy closed(window.panels.get(), &SidePanels::closed);
    window.panels->setTreeDisplayed(false);
    window.panels->setTreeDisplayed(true);
    EXPECT_EQ(opened.count() + closed.count(), 0);
}

TEST_F(SidePanelsTest, AreRememberedWithTheirSideAndWidth)
{
    defaults.setString(kKey, recordOfFirstAtTheLeft());
    Window window(defaults);
    window.panels->setTreeDisplayed(true);
    EXPECT_TRUE(window.panels->isOpen(*window.first));
    EXPECT_FALSE(window.panels->isOpen(*window.second));
    EXPECT_EQ(window.first->geometry().left(), 0);
    EXPECT_EQ(window.first->width(), 333);
}

TEST_F(SidePanelsTest, AreRememberedByAnEndWithoutATree)
{
    defaults.setString(kKey, recordOfFirstAtTheLeft());
    Window between(defaults);
    between.panels->save();
    Window window(defaults);
    window.panels->setTreeDisplayed(true);
    EXPECT_EQ(window.first->width(), 333);
}

TEST_F(SidePanelsTest, AreOutOfSightWithoutATreeAfterTheStart)
{
    defaults.setString(kKey, recordOfFirstAtTheLeft());
    Window window(defaults);
    EXPECT_TRUE(window.panels->isOpen(*window.first));
    EXPECT_FALSE(window.first->isVisible());
}

TEST_F(SidePanelsTest, CloseByTheirButton)
{
    Window window(defaults);
    window.panels->setTreeDisplayed(true);
    window.panels->open(*window.first);
    const QSignalSpy closed(window.panels.get(), &SidePanels::closed);
    auto* const button
        = window.first->findChild<QAbstractButton*>(QStringLiteral("qt_dockwidget_closebutton"));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(closed.count(), 1);
    EXPECT_FALSE(window.panels->isOpen(*window.first));
    EXPECT_FALSE(window.first->isVisible());
    EXPECT_EQ(window.picture->width(), window.window.width());
}

TEST_F(SidePanelsTest, AreTabsOfEachOther)
{
    Window window(defaults);
    window.panels->setTreeDisplayed(true);
    window.panels->open(*window.first);
    window.panels->open(*window.second);
    settle();
    EXPECT_TRUE(SidePanels::isInSight(*window.second));
    EXPECT_FALSE(SidePanels::isInSight(*window.first));
    EXPECT_TRUE(window.panels->isOpen(*window.first));
}

TEST_F(SidePanelsTest, ACommandBringsTheOneBehindToTheFrontAndClosesTheOneInSight)
{
    Window window(defaults);
    window.panels->setTreeDisplayed(true);
    window.panels->open(*window.first);
    window.panels->open(*window.second);
    settle();
    window.panels->toggle(*window.first);
    settle();
    EXPECT_TRUE(SidePanels::isInSight(*window.first));
    window.panels->toggle(*window.first);
    EXPECT_FALSE(window.panels->isOpen(*window.first));
    EXPECT_TRUE(window.panels->isOpen(*window.second));
}

TEST_F(SidePanelsTest, ACommandGivesThePanelTheKeyboardAndBack)
{
    Window window(defaults);
    window.panels->setTreeDisplayed(true);
    ASSERT_TRUE(test::becomesActive(window.window));
    window.picture->setFocus();
    window.panels->toggle(*window.first);
    EXPECT_TRUE(window.firstContent->hasFocus());
    window.panels->toggle(*window.first);
    EXPECT_TRUE(window.picture->hasFocus());
}

TEST_F(SidePanelsTest, EscapeInsideGivesTheKeyboardBackAndClosesNothing)
{
    Window window(defaults);
    window.panels->setTreeDisplayed(true);
    ASSERT_TRUE(test::becomesActive(window.window));
    window.panels->toggle(*window.first);
    QTest::keyClick(window.firstContent, Qt::Key_Escape);
    EXPECT_TRUE(window.picture->hasFocus());
    EXPECT_TRUE(SidePanels::isInSight(*window.first));
}

TEST_F(SidePanelsTest, F6WalksFromThePictureThroughThePanelsAndBack)
{
    Window window(defaults);
    window.panels->setTreeDisplayed(true);
    window.panels->open(*window.first);
    window.panels->open(*window.second);
    window.window.splitDockWidget(window.first, window.second, Qt::Vertical);
    window.window.addDockWidget(Qt::LeftDockWidgetArea, window.second);
    ASSERT_TRUE(test::becomesActive(window.window));
    window.picture->setFocus();
    settle();
    QTest::keyClick(&window.window, Qt::Key_F6);
    EXPECT_TRUE(window.firstContent->hasFocus());
    QTest::keyClick(&window.window, Qt::Key_F6);
    EXPECT_TRUE(window.secondContent->hasFocus());
    QTest::keyClick(&window.window, Qt::Key_F6);
    EXPECT_TRUE(window.picture->hasFocus());
}

TEST_F(SidePanelsTest, NeverChangeTheWindowsSize)
{
    Window window(defaults, {760, 520});
    window.firstContent->setFixedSize(5000, 4000);
    window.panels->setTreeDisplayed(true);
    window.panels->open(*window.first);
    settle();
    EXPECT_EQ(window.window.size(), QSize(760, 520));
}

TEST_F(SidePanelsTest, LeaveThePictureRoomInTheLeastWindow)
{
    Window window(defaults, {760, 520});
    window.panels->setTreeDisplayed(true);
    window.panels->open(*window.first);
    window.panels->open(*window.second);
    window.window.resizeDocks({window.first}, {9000}, Qt::Horizontal);
    settle();
    EXPECT_GE(window.picture->width(), SidePanels::kLeastPictureWidth);
    EXPECT_EQ(window.window.size(), QSize(760, 520));
}

TEST_F(SidePanelsTest, OnBothSidesLeaveThePictureRoomInTheLeastWindow)
{
    Window window(defaults, {760, 520});
    window.panels->setTreeDisplayed(true);
    window.panels->open(*window.first);
    window.panels->open(*window.second);
    window.window.addDockWidget(Qt::LeftDockWidgetArea, window.first);
    settle();
    EXPECT_GE(window.picture->width(), SidePanels::kLeastPictureWidth);
    EXPECT_GE(window.first->width(), SidePanels::kLeastWidth);
    EXPECT_GE(window.second->width(), SidePanels::kLeastWidth);
    EXPECT_EQ(window.window.size(), QSize(760, 520));
}

TEST_F(SidePanelsTest, ARecordThatHidesTheToolbarDoesNot)
{
    Window before(defaults);
    before.panels->setTreeDisplayed(true);
    before.toolbar->hide();
    before.panels->save();
    Window window(defaults);
    window.panels->setTreeDisplayed(true);
    EXPECT_TRUE(window.toolbar->isVisible());
}

TEST_F(SidePanelsTest, ARecordThatMovesTheToolbarDoesNot)
{
    Window before(defaults);
    before.panels->setTreeDisplayed(true);
    before.window.addToolBar(Qt::LeftToolBarArea, before.toolbar);
    before.panels->save();
    Window window(defaults);
    window.panels->setTreeDisplayed(true);
    EXPECT_EQ(window.window.toolBarArea(window.toolbar), Qt::TopToolBarArea);
}

TEST_F(SidePanelsTest, ARecordCannotMakeAPanelAWindow)
{
    Window before(defaults);
    before.panels->setTreeDisplayed(true);
    before.panels->open(*before.first);
    before.first->setFloating(true);
    before.panels->save();
    Window window(defaults);
    window.panels->setTreeDisplayed(true);
    EXPECT_FALSE(window.first->isFloating());
    EXPECT_FALSE(window.first->isWindow());
}

/// As without any record.
void expectIgnored(test::FakeUserDefaults& defaults)
{
    Window window(defaults);
    window.panels->setTreeDisplayed(true);
    settle();
    EXPECT_EQ(window.window.size(), QSize(1000, 600));
    EXPECT_TRUE(window.toolbar->isVisible());
    EXPECT_EQ(window.picture->width(), 1000);
    window.panels->open(*window.first);
    EXPECT_EQ(window.first->width(), SidePanels::kUsualWidth);
}

TEST_F(SidePanelsTest, RecordsThatAreNoneAreIgnored)
{
    for (const char* record : {"", "AAAA", "%%%", "not a record"}) {
        defaults.setString(kKey, record);
        expectIgnored(defaults);
    }
}

TEST_F(SidePanelsTest, RecordsThatEndTooEarlyAreIgnored)
{
    const QByteArray whole
        = QByteArray::fromBase64(QByteArray::fromStdString(recordOfFirstAtTheLeft()));
    for (int length = 0; length < whole.size(); length += 5) {
        defaults.setString(kKey, whole.left(length).toBase64().toStdString());
        expectIgnored(defaults);
    }
}

TEST_F(SidePanelsTest, RecordsWithWrongBytesAreIgnored)
{
    const QByteArray whole
        = QByteArray::fromBase64(QByteArray::fromStdString(recordOfFirstAtTheLeft()));
    std::mt19937 random(11); // NOLINT(cert-msc51-cpp): the same records every time
    for (int round = 0; round < 100; ++round) {
        QByteArray damaged = whole;
        damaged[static_cast<int>(random() % static_cast<unsigned>(whole.size()))]
            = static_cast<char>(random() & 0xFFU);
        defaults.setString(kKey, damaged.toBase64().toStdString());
        expectIgnored(defaults);
    }
}

} // namespace
} // namespace tessera
