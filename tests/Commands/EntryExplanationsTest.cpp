// SPDX-License-Identifier: MIT
#include "Commands/EntryExplanations.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QStatusBar>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

#include <memory>

namespace tessera {
namespace {

class EntryExplanations : public testing::Test {
protected:
    EntryExplanations()
    {
        window.statusBar()->show();
        window.show();
        menu->addSeparator();
        disabled->setEnabled(false);
        disabled->setStatusTip(QStringLiteral("Not now."));
        disabled->setToolTip(QStringLiteral("Not now."));
        menu->addSeparator();
        enabled = menu->addAction(QStringLiteral("Home"));
        enabled->setStatusTip(QStringLiteral("Goes home."));
        explainEntries(*menu, window);
        menu->popup(window.geometry().center());
    }

    ~EntryExplanations() override { QToolTip::hideText(); }

    void press(Qt::Key key) const { QTest::keyClick(menu.get(), key); }
    QString status() const { return window.statusBar()->currentMessage(); }

    QMainWindow window;
    std::unique_ptr<QMenu> menu = std::make_unique<QMenu>();
    QAction* disabled = menu->addAction(QStringLiteral("Undo"));
    QAction* enabled = nullptr;
};

TEST_F(EntryExplanations, TheArrowKeysComeToDisabledEntriesToo)
{
    const QString why = QStringLiteral("Not now.");
    const QString what = QStringLiteral("Goes home.");
    press(Qt::Key_Down);
    EXPECT_EQ(status(), why);
    press(Qt::Key_Down);
    EXPECT_EQ(status(), what);
    EXPECT_EQ(menu->activeAction(), enabled);
    press(Qt::Key_Down);
    EXPECT_EQ(status(), why);
    EXPECT_EQ(menu->activeAction(), nullptr);
    press(Qt::Key_Up);
    EXPECT_EQ(status(), what);
    press(Qt::Key_Up);
    EXPECT_EQ(status(), why);
}

TEST_F(EntryExplanations, UpBeginsAtTheLastEntry)
{
    press(Qt::Key_Up);
    EXPECT_EQ(menu->activeAction(), enabled);
}

TEST_F(EntryExplanations, TheKeysPassOverWhatIsNotShown)
{
    disabled->setVisible(false);
    press(Qt::Key_Down);
    EXPECT_EQ(menu->activeAction(), enabled);
}

TEST_F(EntryExplanations, WhatTheStatusBarSaysGoesWithTheMenu)
{
    press(Qt::Key_Down);
    EXPECT_EQ(status(), QStringLiteral("Not now."));
    menu->hide();
    EXPECT_EQ(status(), QString());
}

TEST_F(EntryExplanations, TheStatusBarSaysWhyAnEntryUnderThePointerIsDisabled)
{
    QTest::mouseMove(menu.get(), menu->actionGeometry(enabled).center());
    QTest::mouseMove(menu.get(), menu->actionGeometry(disabled).center());
    EXPECT_TRUE(QTest::qWaitFor([this] { return status() == QStringLiteral("Not now."); }));
}

TEST_F(EntryExplanations, ADisabledEntryChosenByKeysSaysWhyBesideIt)
{
    press(Qt::Key_Down);
    EXPECT_TRUE(QToolTip::isVisible());
    EXPECT_EQ(QToolTip::text(), QStringLiteral("Not now."));
    EXPECT_EQ(menu->accessibleDescription(), QStringLiteral("Not now."));
    press(Qt::Key_Down);
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    EXPECT_EQ(menu->accessibleDescription(), QString());
}

TEST_F(EntryExplanations, TheReasonGoesWithTheMenu)
{
    press(Qt::Key_Down);
    menu->hide();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

TEST_F(EntryExplanations, ADisabledEntryDoesNothingAtReturn)
{
    bool isTriggered = false;
    QObject::connect(disabled, &QAction::triggered, [&isTriggered] { isTriggered = true; });
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_FALSE(isTriggered);
    EXPECT_TRUE(menu->isVisible());
    EXPECT_EQ(status(), QStringLiteral("Not now."));
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_FALSE(menu->isVisible());
}

TEST_F(EntryExplanations, TheWindowMayEndBeforeTheMenu)
{
    auto other = std::make_unique<QMainWindow>();
    QMenu lasting;
    lasting.addAction(QStringLiteral("Home"));
    explainEntries(lasting, *other);
    other.reset();
    lasting.popup({});
    QTest::keyClick(&lasting, Qt::Key_Down);
    EXPECT_NE(lasting.activeAction(), nullptr);
}

} // namespace
} // namespace tessera
