// SPDX-License-Identifier: MIT
#include "LedgerPanel/LedgerPanel.h"
#include "MainWindowFixture.h"
#include "Model/Document.h"
#include "Model/Volume.h"
#include "TreeScreen/ClickBox.h"
#include "support/BecomesActive.h"

#include <QDockWidget>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>

namespace tessera {
namespace {

class SpaceLedgerCommandTest : public test::MainWindowFixture {
protected:
    void showDisk()
    {
        requestScan("/");
        auto disk = makeNode<Volume>("/");
        disk->setOrigin("/");
        auto film = makeNode<Document>("film");
        film->setTotalAllocation(400);
        disk->addChild(std::move(film));
        disk->refreshVolume(FileSystemSizes{.totalBytes = 1000, .freeBytes = 300});
        services.model.setTopFolder(std::move(disk));
        emit services.screens.scanScreen->scanComplete();
        QCoreApplication::processEvents();
    }

    const Volume& disk() const { return static_cast<Volume&>(*services.model.topFolder()); }

    LedgerPanel& ledger() const { return *controller->window().findChild<LedgerPanel*>(); }

    /// The command's entry in the menu.
    const QAction& action() const
    {
        const auto entries = controller->window().findChildren<QAction*>();
        const auto found
            = std::ranges::find(entries, QStringLiteral("Ctrl+L"), [](const QAction* entry) {
                  return entry->shortcut().toString();
              });
        return **found;
    }

    /// Whether the panel waits for the tree to be still.
    bool isAboutToCount() const
    {
        const auto timers = ledger().findChildren<QTimer*>();
        return std::ranges::any_of(timers, [](const QTimer* timer) {
            return timer->isActive() && timer->interval() == LedgerPanel::kStillMilliseconds;
        });
    }

    bool isEnabledNow() const
    {
        return isEnabled(Command::SpaceLedger, controller->commandContext());
    }
};

TEST_F(SpaceLedgerCommandTest, NeedsAWholeDisk)
{
    EXPECT_FALSE(isEnabledNow());
    showTree();
    EXPECT_FALSE(isEnabledNow());
    showDisk();
    EXPECT_TRUE(isEnabledNow());
}

TEST_F(SpaceLedgerCommandTest, SaysWhyItCannotBeUsedOnAFolder)
{
    showTree();
    EXPECT_TRUE(
        controller->treeVC()->whyNot(Command::SpaceLedger).contains(QStringLiteral("whole disks")));
    controller->perform(Command::SpaceLedger);
    EXPECT_FALSE(ledger().isVisible());
}

TEST_F(SpaceLedgerCommandTest, ClosesThePanelThatStayedOpenForAFolder)
{
    showDisk();
    controller->perform(Command::SpaceLedger);
    controller->homeSelected();
    showTree();
    ASSERT_TRUE(ledger().isVisible());
    EXPECT_TRUE(isEnabledNow());
    EXPECT_TRUE(action().isEnabled());
    controller->perform(Command::SpaceLedger);
    EXPECT_FALSE(ledger().isVisible());
    EXPECT_FALSE(isEnabledNow());
    EXPECT_FALSE(action().isEnabled());
}

TEST_F(SpaceLedgerCommandTest, OpensThePanelWithTheKeyboardAndClosesItAgain)
{
    showDisk();
    ASSERT_TRUE(test::becomesActive(controller->window()));
    controller->perform(Command::SpaceLedger);
    EXPECT_TRUE(ledger().isVisible());
    EXPECT_TRUE(ledger().isAncestorOf(QApplication::focusWidget()));
    controller->perform(Command::SpaceLedger);
    EXPECT_FALSE(ledger().isVisible());
    EXPECT_TRUE(map().hasFocus());
}

TEST_F(SpaceLedgerCommandTest, EscapeInThePanelGivesTheKeyboardToThePicture)
{
    showDisk();
    ASSERT_TRUE(test::becomesActive(controller->window()));
    controller->perform(Command::SpaceLedger);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(map().hasFocus());
    EXPECT_TRUE(ledger().isVisible());
}

TEST_F(SpaceLedgerCommandTest, AClickOnFreeSpaceOpensThePanelAndLeavesTheKeyboard)
{
    showDisk();
    ASSERT_TRUE(test::becomesActive(controller->window()));
    map().setFocus();
    test::clickBox(map(), disk().freeFile());
    EXPECT_TRUE(ledger().isVisible());
    EXPECT_TRUE(map().hasFocus());
    EXPECT_EQ(controller->treeVC()->selectedFile(), nullptr);
}

TEST_F(SpaceLedgerCommandTest, AClickOnRestrictedFilesOpensThePanel)
{
    showDisk();
    test::clickBox(map(), disk().unreadFile());
    EXPECT_TRUE(ledger().isVisible());
}

TEST_F(SpaceLedgerCommandTest, AClickOnAFileOpensNoPanel)
{
    showDisk();
    test::clickBox(map(), test::at(*services.model.topFolder(), "film"));
    EXPECT_NE(controller->treeVC()->selectedFile(), nullptr);
    EXPECT_FALSE(ledger().isVisible());
}

TEST_F(SpaceLedgerCommandTest, ThePictureKeepsAllThatThePanelLeaves)
{
    controller->window().resize(760, 520);
    showDisk();
    controller->perform(Command::SpaceLedger);
    QCoreApplication::processEvents();
    EXPECT_EQ(controller->window().size(), QSize(760, 520));
    EXPECT_EQ(map().size(), area());
    EXPECT_GE(area().width(), 440);
}

TEST_F(SpaceLedgerCommandTest, TheHomeScreenHidesThePanelAndTheNextTreeBringsItBack)
{
    showDisk();
    controller->perform(Command::SpaceLedger);
    controller->homeSelected();
    EXPECT_FALSE(ledger().isVisible());
    EXPECT_EQ(area().width(), controller->window().width());
    showDisk();
    EXPECT_TRUE(ledger().isVisible());
}

TEST_F(SpaceLedgerCommandTest, TheHomeScreenEndsTheCounting)
{
    services.ledger.openFiles->setSilent(true);
    showDisk();
    controller->perform(Command::SpaceLedger);
    services.ledger.openFiles->waitUntilAsked(1);
    controller->homeSelected();
    EXPECT_FALSE(ledger().isCounting());
}

TEST_F(SpaceLedgerCommandTest, BehindAnotherPanelItDoesNotCount)
{
    services.ledger.openFiles->setSilent(true);
    SidePanels& panels = controller->sidePanels();
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the window owns it
    QDockWidget& other = panels.add("other", QStringLiteral("Other"), new QWidget);
    showDisk();
    controller->perform(Command::SpaceLedger);
    EXPECT_TRUE(ledger().isCounting());
    panels.open(other);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !ledger().isCounting(); }, 5000));
    emit controller->treeVC()->treeChanged();
    EXPECT_FALSE(isAboutToCount());
    controller->perform(Command::SpaceLedger);
    EXPECT_TRUE(QTest::qWaitFor([this] { return ledger().isCounting(); }, 5000));
}

TEST_F(SpaceLedgerCommandTest, ThePanelIsOpenAtTheNextStartAsWell)
{
    showDisk();
    controller->perform(Command::SpaceLedger);
    controller->window().close();
    controller = std::make_unique<MainWindowController>(services.get());
    controller->showWindow();
    EXPECT_FALSE(ledger().isVisible());
    showDisk();
    EXPECT_TRUE(ledger().isVisible());
}

} // namespace
} // namespace tessera
