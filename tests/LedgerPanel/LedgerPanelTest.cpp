// SPDX-License-Identifier: MIT
#include "LedgerPanel/LedgerPanel.h"

#include "LedgerDisk.h"
#include "LedgerPanel/LedgerBar.h"
#include "LedgerPanel/LedgerRow.h"
#include "Model/RootModel.h"
#include "NumbersOf.h"
#include "support/BecomesActive.h"
#include "support/Fakes/FakeLedgerServices.h"
#include "support/Fakes/FakeRootModelServices.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>

namespace tessera {
namespace {

class LedgerPanelTest : public testing::Test {
protected:
    LedgerPanelTest()
    {
        ledger.fileSystem->setSizes(test::ledgerDiskSizes());
        showDisk();
    }

    void showDisk()
    {
        auto disk = test::makeLedgerDisk(test::ledgerDiskSizes());
        model.setTopFolder(std::move(disk));
        panel.treeReplaced();
    }

    void close(std::string path, const std::error_code& reason) const
    {
        TopFolder& disk = *model.topFolder();
        disk.findings().addUnreadable({std::move(path), reason, &disk});
    }

    bool counts()
    {
        return QTest::qWaitFor([this] { return !panel.isCounting(); });
    }

    void open()
    {
        panel.resize(300, 700);
        panel.show();
        ASSERT_TRUE(counts());
    }

    template <typename Widget = LedgerRow>
    Widget& part(const char* name) const
    {
        return *panel.findChild<Widget*>(QString::fromLatin1(name));
    }

    /// Whether it waits for the tree to be still.
    bool isAboutToCount() const
    {
        const auto timers = panel.findChildren<QTimer*>();
        return std::ranges::any_of(timers, [](const QTimer* timer) {
            return timer->isActive() && timer->interval() == LedgerPanel::kStillMilliseconds;
        });
    }

    QString status() const { return part<QLabel>("ledgerStatus").text(); }
    static QPushButton& listButton(const LedgerRow& row)
    {
        for (QPushButton* const button : row.findChildren<QPushButton*>()) {
            if (button->isCheckable()) {
                return *button;
            }
        }
        std::abort();
    }
    static QAbstractItemView& listOf(const LedgerRow& row)
    {
        return *row.findChild<QAbstractItemView*>();
    }

    const test::NumbersOf locale{QLocale::English};
    test::FakeRootModelServices modelServices;
    RootModel model{modelServices.get()};
    test::FakeLedgerServices ledger;
    LedgerPanel panel{model, ledger.get()};
};

TEST_F(LedgerPanelTest, AsksNothingWhileOutOfSight)
{
    panel.treeChanged();
    QCoreApplication::processEvents();
    EXPECT_FALSE(isAboutToCount());
    EXPECT_FALSE(panel.isCounting());
    EXPECT_EQ(ledger.openFiles->asked(), 0);
}

TEST_F(LedgerPanelTest, SaysThatItCounts)
{
    ledger.openFiles->setSilent(true);
    panel.show();
    EXPECT_TRUE(panel.isCounting());
    EXPECT_EQ(status(), QStringLiteral("Counting…"));
}

TEST_F(LedgerPanelTest, ShowsALineForEachPartAndTheSum)
{
    open();
    EXPECT_TRUE(status().isEmpty());
    EXPECT_TRUE(part("ledgerFiles").isVisible());
    EXPECT_TRUE(part("ledgerFolders").isVisible());
    EXPECT_TRUE(part("ledgerRest").isVisible());
    EXPECT_TRUE(part("ledgerReserved").isVisible());
    EXPECT_TRUE(part("ledgerAvailable").isVisible());
    EXPECT_TRUE(part("ledgerSum").isVisible());
    EXPECT_FALSE(part("ledgerHeldOpen").isVisible());
    EXPECT_FALSE(part("ledgerUnreadable").isVisible());
}

TEST_F(LedgerPanelTest, TellsScreenReadersEachLineToTheByte)
{
    open();
    EXPECT_EQ(
        part("ledgerFolders").accessibleName(),
        QStringLiteral("The folders themselves: 1,536 bytes"));
    EXPECT_FALSE(part("ledgerFolders").accessibleDescription().isEmpty());
    EXPECT_EQ(part("ledgerSum").accessibleName(), QStringLiteral("Size of the disk: 10,000 bytes"));
}

TEST_F(LedgerPanelTest, ItsNumbersEndAtTheSameEdge)
{
    open();
    panel.resize(300, 430);
    QCoreApplication::processEvents();
    const auto rightOf = [](const LedgerRow& row) {
        int right = 0;
        for (const QLabel* const label : row.findChildren<QLabel*>()) {
            right = std::max(right, label->mapTo(row.window(), label->rect().bottomRight()).x());
        }
        return right;
    };
    EXPECT_EQ(rightOf(part("ledgerFiles")), rightOf(part("ledgerAvailable")));
    EXPECT_EQ(rightOf(part("ledgerFiles")), rightOf(part("ledgerSum")));
}

TEST_F(LedgerPanelTest, ShowsARestBelowNothingWithItsSign)
{
    FileSystemSizes full = test::ledgerDiskSizes();
    full.totalBytes = 5000;
    ledger.fileSystem->setSizes(full);
    open();
    EXPECT_EQ(
        part("ledgerRest").accessibleName(),
        QStringLiteral("The file system's own, and the rest: -1,136 bytes"));
}

TEST_F(LedgerPanelTest, CountsAgainAtTheButton)
{
    open();
    FileSystemSizes larger = test::ledgerDiskSizes();
    larger.availableBytes = 3400;
    larger.reservedBytes = 600;
    ledger.fileSystem->setSizes(larger);
    QTest::mouseClick(&part<QPushButton>("ledgerAgain"), Qt::LeftButton);
    EXPECT_TRUE(part("ledgerFiles").isVisible());
    ASSERT_TRUE(counts());
    EXPECT_TRUE(part("ledgerAvailable").accessibleName().contains(QStringLiteral("3,400")));
}

TEST_F(LedgerPanelTest, CountsOnceForManyChangesOfTheTree)
{
    open();
    const int before = ledger.openFiles->asked();
    EXPECT_FALSE(isAboutToCount());
    for (int i = 0; i < 20; ++i) {
        panel.treeChanged();
    }
    EXPECT_TRUE(isAboutToCount());
    ASSERT_TRUE(QTest::qWaitFor([this] { return panel.isCounting(); }));
    ASSERT_TRUE(counts());
    EXPECT_EQ(ledger.openFiles->asked(), before + 1);
}

TEST_F(LedgerPanelTest, CountsAnewWhenItIsOpenedAgain)
{
    open();
    const int before = ledger.openFiles->asked();
    panel.hide();
    open();
    EXPECT_EQ(ledger.openFiles->asked(), before + 1);
}

TEST_F(LedgerPanelTest, ClosedWhileItCountsItHearsNothing)
{
    ledger.openFiles->setSilent(true);
    panel.show();
    ledger.openFiles->waitUntilAsked(1);
    panel.hide();
    EXPECT_FALSE(panel.isCounting());
    FileSystemSizes larger = test::ledgerDiskSizes();
    larger.totalBytes = 20'000;
    ledger.fileSystem->setSizes(larger);
    ledger.openFiles->setSilent(false);
    open();
    EXPECT_EQ(panel.account()->sizes.totalBytes, 20'000U);
}

TEST_F(LedgerPanelTest, AnswersForATreeThatIsGoneAreDropped)
{
    ledger.openFiles->setSilent(true);
    panel.show();
    ledger.openFiles->waitUntilAsked(1);
    FileSystemSizes other = test::ledgerDiskSizes();
    other.totalBytes = 20'000;
    ledger.fileSystem->setSizes(other);
    model.setTopFolder(test::makeLedgerDisk(other, "/mnt/other"));
    panel.treeReplaced();
    ledger.openFiles->setSilent(false);
    ASSERT_TRUE(counts());
    EXPECT_EQ(panel.account()->sizes.totalBytes, 20'000U);
    EXPECT_EQ(ledger.fileSystem->askedFor(), "/mnt/other");
}

TEST_F(LedgerPanelTest, ATreeThatIsGoneMeanwhileIsNotTouched)
{
    ledger.openFiles->setSilent(true);
    panel.show();
    ledger.openFiles->waitUntilAsked(1);
    model.setTopFolder(nullptr);
    ledger.openFiles->setSilent(false);
    ASSERT_TRUE(counts());
    EXPECT_FALSE(panel.account());
}

TEST_F(LedgerPanelTest, SaysWhenTheDiskGivesNoAnswer)
{
    ledger.fileSystem->setSizes(std::nullopt);
    open();
    EXPECT_TRUE(status().startsWith(QStringLiteral("The disk gives no answer")));
    EXPECT_FALSE(part("ledgerSum").isVisible());
}

TEST_F(LedgerPanelTest, TakesNoOtherDiskForTheOneThatWasScanned)
{
    open();
    FileSystemSizes other = test::ledgerDiskSizes();
    other.device = 8;
    ledger.fileSystem->setSizes(other);
    QTest::mouseClick(&part<QPushButton>("ledgerAgain"), Qt::LeftButton);
    ASSERT_TRUE(counts());
    EXPECT_TRUE(status().startsWith(QStringLiteral("The disk that was scanned is not there")));
    EXPECT_FALSE(part("ledgerFiles").isVisible());
    panel.hide();
    open();
    EXPECT_FALSE(panel.account());
}

TEST_F(LedgerPanelTest, TakesNoOtherDiskThatLiesThereBeforeItIsOpened)
{
    FileSystemSizes other = test::ledgerDiskSizes();
    other.device = 8;
    ledger.fileSystem->setSizes(other);
    open();
    EXPECT_TRUE(status().startsWith(QStringLiteral("The disk that was scanned is not there")));
    EXPECT_FALSE(panel.account());
}

TEST_F(LedgerPanelTest, SaysWhenThereIsNoSizeToAddUpTo)
{
    ledger.fileSystem->setSizes(FileSystemSizes{});
    open();
    EXPECT_TRUE(status().contains(QStringLiteral("no size")));
}

TEST_F(LedgerPanelTest, OfAFolderItSaysThatItIsAboutDisks)
{
    model.setTopFolder(makeNode<TopFolder>("folder"));
    panel.show();
    EXPECT_FALSE(panel.isCounting());
    EXPECT_TRUE(status().contains(QStringLiteral("whole disks")));
}

TEST_F(LedgerPanelTest, ListsFoldersThatCouldNotBeReadWhenAsked)
{
    close("/mnt/disk/<b>a\nb\xFF", test::systemError(EIO));
    open();
    const LedgerRow& row = part("ledgerUnreadable");
    EXPECT_FALSE(listOf(row).isVisible());
    QTest::mouseClick(&listButton(row), Qt::LeftButton);
    ASSERT_TRUE(listOf(row).isVisible());
    const QAbstractItemModel& list = *listOf(row).model();
    EXPECT_EQ(list.index(0, 0).data().toString(), QString::fromUtf8("/mnt/disk/<b>a\u240Ab\uFFFD"));
    EXPECT_EQ(list.index(0, 1).data().toString(), QStringLiteral("The disk has an error"));
}

TEST_F(LedgerPanelTest, NamesTenThousandAndCountsTheOthers)
{
    for (int i = 0; i < 10'003; ++i) {
        close("/x" + std::to_string(i), test::systemError(EACCES));
    }
    open();
    const LedgerRow& row = part("ledgerUnreadable");
    EXPECT_TRUE(row.accessibleName().contains(QStringLiteral("(10,003)")));
    QTest::mouseClick(&listButton(row), Qt::LeftButton);
    EXPECT_EQ(listOf(row).model()->rowCount(), 10'000);
    bool isMoreSaid = false;
    for (const QLabel* const label : row.findChildren<QLabel*>()) {
        isMoreSaid = isMoreSaid || label->text() == QStringLiteral("and 3 more");
    }
    EXPECT_TRUE(isMoreSaid);
}

TEST_F(LedgerPanelTest, AnOpenListStaysOpenWhenItCountsAgain)
{
    close("/a", test::systemError(EIO));
    open();
    const LedgerRow& row = part("ledgerUnreadable");
    QTest::mouseClick(&listButton(row), Qt::LeftButton);
    close("/b", test::systemError(EIO));
    QTest::mouseClick(&part<QPushButton>("ledgerAgain"), Qt::LeftButton);
    ASSERT_TRUE(counts());
    EXPECT_TRUE(listOf(row).isVisible());
    EXPECT_EQ(listOf(row).model()->rowCount(), 2);
}

/// A second start with more rights would hand over to the first, or take the user's settings.
TEST_F(LedgerPanelTest, CountingAgainLeavesAListThatIsTheSameAlone)
{
    close("/a", test::systemError(EIO));
    close("/b", test::systemError(EIO));
    open();
    const LedgerRow& row = part("ledgerUnreadable");
    QTest::mouseClick(&listButton(row), Qt::LeftButton);
    QAbstractItemView& list = listOf(row);
    list.setCurrentIndex(list.model()->index(1, 0));
    QTest::mouseClick(&part<QPushButton>("ledgerAgain"), Qt::LeftButton);
    ASSERT_TRUE(counts());
    EXPECT_EQ(list.currentIndex().row(), 1);
}

TEST_F(LedgerPanelTest, InAListThePathsGetTheMostRoom)
{
    close("/mnt/a/very/long/path/indeed", test::systemError(ENOENT));
    ledger.openFiles->setAnswer(
        {.files
         = {{.identity = {},
             .allocatedBytes = 5'000'000,
             .holders = {{1234, "a program with a name"}},
             .path = "/var/lib/a/very/long/path/indeed"}}});
    open();
    panel.resize(240, 700);
    const std::array lists{std::pair{"ledgerUnreadable", 0}, std::pair{"ledgerHeldOpen", 2}};
    for (const auto& [name, widest] : lists) {
        QTest::mouseClick(&listButton(part(name)), Qt::LeftButton);
        QCoreApplication::processEvents();
        const QHeaderView& header = *listOf(part(name)).findChild<QHeaderView*>();
        EXPECT_EQ(header.length(), listOf(part(name)).viewport()->width()) << name;
        for (int column = 0; column < header.count(); ++column) {
            EXPECT_LE(header.sectionSize(column), std::max(header.sectionSize(widest), 72)) << name;
        }
        EXPECT_GE(header.sectionSize(widest), 40) << name;
    }
}

TEST_F(LedgerPanelTest, ItsHeadAndLinesDoNotOverlapInTheLeastSize)
{
    open();
    panel.setMinimumSize(240, 80);
    panel.resize(240, 80);
    QCoreApplication::processEvents();
    const auto& bar = *panel.findChild<LedgerBar*>();
    const auto& lines = *panel.findChild<QScrollArea*>();
    EXPECT_LT(part<QPushButton>("ledgerAgain").geometry().bottom(), bar.geometry().top());
    EXPECT_LT(bar.geometry().bottom(), lines.geometry().top());
    EXPECT_GT(lines.height(), 0);
    EXPECT_LE(lines.geometry().bottom(), panel.rect().bottom());
}

TEST_F(LedgerPanelTest, OffersNoCommandThatStartsItWithMoreRights)
{
    close("/a", test::systemError(EACCES));
    open();
    EXPECT_TRUE(part("ledgerUnreadable").isVisible());
    EXPECT_TRUE(panel.findChildren<QLineEdit*>().isEmpty());
    for (const QLabel* const label : panel.findChildren<QLabel*>()) {
        EXPECT_FALSE(label->text().contains(QStringLiteral("sudo"))) << label->text().toStdString();
    }
}

TEST_F(LedgerPanelTest, ArrowsWalkFromLineToLine)
{
    open();
    ASSERT_TRUE(test::becomesActive(panel));
    panel.setFocus();
    EXPECT_TRUE(part("ledgerFiles").hasFocus());
    QTest::keyClick(&part("ledgerFiles"), Qt::Key_Down);
    EXPECT_TRUE(part("ledgerFolders").hasFocus());
    QTest::keyClick(&part("ledgerFolders"), Qt::Key_Down);
    EXPECT_TRUE(part("ledgerRest").hasFocus());
    QTest::keyClick(&part("ledgerRest"), Qt::Key_Up);
    EXPECT_TRUE(part("ledgerFolders").hasFocus());
}

TEST_F(LedgerPanelTest, WithoutLinesTheButtonTakesTheKeyboard)
{
    ledger.fileSystem->setSizes(std::nullopt);
    open();
    ASSERT_TRUE(test::becomesActive(panel));
    panel.setFocus();
    EXPECT_TRUE(part<QPushButton>("ledgerAgain").hasFocus());
}

TEST_F(LedgerPanelTest, TheFirstLineTakesTheKeyboardThatCameBeforeIt)
{
    ledger.openFiles->setSilent(true);
    panel.show();
    ASSERT_TRUE(test::becomesActive(panel));
    panel.setFocus();
    EXPECT_TRUE(part<QPushButton>("ledgerAgain").hasFocus());
    ledger.openFiles->setSilent(false);
    ASSERT_TRUE(counts());
    EXPECT_TRUE(part("ledgerFiles").hasFocus());
}

TEST_F(LedgerPanelTest, TheButtonKeepsTheKeyboardThatTheUserGaveIt)
{
    open();
    ASSERT_TRUE(test::becomesActive(panel));
    auto& again = part<QPushButton>("ledgerAgain");
    again.setFocus();
    QTest::keyClick(&again, Qt::Key_Space);
    ASSERT_TRUE(counts());
    EXPECT_TRUE(again.hasFocus());
}

TEST_F(LedgerPanelTest, TellsScreenReadersWhatIsWrong)
{
    ledger.fileSystem->setSizes(std::nullopt);
    open();
    EXPECT_EQ(part<QPushButton>("ledgerAgain").accessibleDescription(), status());
    const QAccessibleInterface* const seen
        = QAccessible::queryAccessibleInterface(&part<QLabel>("ledgerStatus"));
    ASSERT_NE(seen, nullptr);
    EXPECT_EQ(seen->role(), QAccessible::AlertMessage);
    EXPECT_EQ(seen->text(QAccessible::Name), status());
}

TEST_F(LedgerPanelTest, TabBackFromTheFirstLineLeavesIt)
{
    open();
    ASSERT_TRUE(test::becomesActive(panel));
    panel.setFocus();
    QTest::keyClick(&part("ledgerFiles"), Qt::Key_Backtab);
    EXPECT_TRUE(part<QPushButton>("ledgerAgain").hasFocus());
}

TEST_F(LedgerPanelTest, NothingIsCutOffInTheLeastWidth)
{
    close("/a", test::systemError(EACCES));
    ledger.openFiles->setAnswer(
        {.files = {{.identity = {}, .allocatedBytes = 700, .holders = {{1, "x"}}}}});
    open();
    panel.resize(240, 700);
    QCoreApplication::processEvents();
    for (const LedgerRow* const row : panel.findChildren<LedgerRow*>()) {
        for (const QLabel* const label : row->findChildren<QLabel*>()) {
            if (label->isVisible() && !label->text().isEmpty()) {
                EXPECT_GE(label->width(), label->minimumSizeHint().width())
                    << label->text().toStdString();
                EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                    << label->text().toStdString();
                EXPECT_LE(label->mapTo(row, label->rect().topRight()).x(), row->width());
            }
        }
    }
}

} // namespace
} // namespace tessera
