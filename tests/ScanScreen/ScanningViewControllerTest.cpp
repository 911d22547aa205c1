// SPDX-License-Identifier: MIT
#include "ScanningViewControllerFixture.h"
#include "support/MakeTree.h"

#include <QApplication>
#include <QFontInfo>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class ScanningViewControllerTest : public test::ScanningViewControllerFixture { };

TEST_F(ScanningViewControllerTest, ShowsWhatItStartsOn)
{
    start("a:1", "/Users/me/some\xFF");

    EXPECT_EQ(outlet<PathLabel>("folderName")->text(), QStringLiteral("[/Users/me/some\uFFFD]"));
    const QPixmap icon = outlet<QLabel>("iconView")->pixmap(Qt::ReturnByValue);
    EXPECT_EQ(icon.deviceIndependentSize(), QSizeF(64, 64));
    EXPECT_EQ(icon.toImage().pixelColor(32, 32), QColor(Qt::red));
    EXPECT_EQ(text("totalRead"), "-");
    EXPECT_EQ(text("readRate"), "");
    EXPECT_EQ(controller->rootURL(), Url("/Users/me/some\xFF", true));
    EXPECT_EQ(tile.contentView, &controller->dockImage());
    runToEnd();
}

TEST_F(ScanningViewControllerTest, TheIndicatorIsBusyUntilTheFirstReport)
{
    start("a:1 b:1");
    EXPECT_EQ(outlet<QProgressBar>("indicator")->maximum(), 0);
    runUntil([this] { return !tile.displayed.empty(); });
    EXPECT_GT(outlet<QProgressBar>("indicator")->maximum(), 0);
    runToEnd();
}

TEST_F(ScanningViewControllerTest, ThePathStartsWithTheScannedFoldersOwnName)
{
    scanToEnd("docs/ ( a:1 )");
    EXPECT_THAT(paths, ElementsAre("Documents/docs", "Documents/docs/a"));
}

TEST_F(ScanningViewControllerTest, ThePathBelowTheRootIsWhole)
{
    scanToEnd("docs/ ( a:1 )", "/");
    EXPECT_THAT(paths, ElementsAre("/docs", "/docs/a"));
}

TEST_F(ScanningViewControllerTest, ShowsTheAmountRead)
{
    scanToEnd(test::filesText(3));
    EXPECT_THAT(amounts, ElementsAre("1 KB", "2 KB", "3 KB"));
}

TEST_F(ScanningViewControllerTest, TheIndicatorAndTheDockTileShowTheSameFraction)
{
    start(test::filesText(4));
    runUntil([this] { return tile.displayed.size() == 2; });
    EXPECT_EQ(tile.displayed.back(), 0.5);
    const auto* indicator = outlet<QProgressBar>("indicator");
    EXPECT_EQ(indicator->value(), indicator->maximum() / 2);
    runToEnd();
}

TEST_F(ScanningViewControllerTest, AFractionAboveOneGoesToTheBarAsItIs)
{
    makeScanner("a:900 b:400 c:300");
    // A volume of which 700 bytes are in use.
    system->scanResourceValues.volumes.insert("/disk");
    controller->startScanning(Url("/disk", true));
    runUntil([this] { return tile.displayed.size() == 2; });

    EXPECT_GT(tile.displayed.back(), 1.0);
    EXPECT_EQ(controller->dockImage().percent(), tile.displayed.back());
    const auto* indicator = outlet<QProgressBar>("indicator");
    EXPECT_EQ(indicator->value(), indicator->maximum());
    runToEnd();
}

TEST_F(ScanningViewControllerTest, ThereIsNoRateUntilTheTwentiethReport)
{
    scanToEnd(test::filesText(26));

    ASSERT_EQ(rates.size(), 26U);
    EXPECT_THAT(std::vector(rates.begin(), rates.begin() + 19), Each(std::string()));
    EXPECT_EQ(rates.at(19), "2 files/sec");
}

TEST_F(ScanningViewControllerTest, ARateOfThousandsHasItsDigitsGrouped)
{
    // 200 files from one report to the next.
    secondsPerItem = 0.0005;
    const QLocale usual;
    QLocale::setDefault(QLocale(QLocale::German));
    scanToEnd(test::filesText(5000));
    QLocale::setDefault(usual);
    EXPECT_THAT(rates.back(), testing::ContainsRegex("^[12][.][0-9][0-9][0-9] files/sec$"));
}

TEST_F(ScanningViewControllerTest, DigitsAreGroupedInTheLanguageOfNoneToo)
{
    secondsPerItem = 0.0005;
    const QLocale usual;
    QLocale::setDefault(QLocale::c());
    scanToEnd(test::filesText(5000));
    QLocale::setDefault(usual);
    EXPECT_THAT(rates.back(), testing::ContainsRegex("^[12],[0-9][0-9][0-9] files/sec$"));
}

TEST_F(ScanningViewControllerTest, TheRateChangesAtEveryFifthReport)
{
    // From the 22nd report on the scan is five times slower.
    int items = 0;
    beforeItem = [&](const std::string& /*path*/) {
        if (system->files.enumeratedPaths().size() == 2 && ++items > 22) {
            system->scanClock = system->scanClock.load() + 2.0;
        }
    };
    scanToEnd(test::filesText(26));

    EXPECT_THAT(
        std::vector(rates.begin() + 19, rates.begin() + 24), Each(std::string("2 files/sec")));
    EXPECT_EQ(rates.at(24), "1 files/sec");
}

TEST_F(ScanningViewControllerTest, AtTheEndTheModelHasTheTree)
{
    scanToEnd("docs/ ( a:700 ) b:300");

    ASSERT_NE(model.topFolder(), nullptr);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 1000U);
    EXPECT_EQ(model.topFolder()->origin(), "/Users/me/Documents");
}

TEST_F(ScanningViewControllerTest, AtTheEndTheScanIsInTheListOfRecentOnes)
{
    scanToEnd("a:700");

    ASSERT_EQ(model.recents().recentsList().size(), 1U);
    EXPECT_EQ(model.recents().recentsList().front().path, "/Users/me/Documents");
    EXPECT_EQ(model.recents().recentsList().front().size, 700U);
}

TEST_F(ScanningViewControllerTest, AtTheEndItAsksForAttentionOnceAndRestoresTheIcon)
{
    scanToEnd("a:700");

    EXPECT_THAT(posted, ElementsAre("complete"));
    EXPECT_EQ(tile.attentionCount, 1);
    EXPECT_EQ(tile.contentView, nullptr);
    EXPECT_TRUE(controller->rootURL().empty());
}

TEST_F(ScanningViewControllerTest, WhoHearsOfTheEndMayDestroyIt)
{
    start("a:700");
    QObject::connect(
        controller.get(), &ScanningViewController::scanComplete, [this] { controller.reset(); });
    system->mainThread.runUntil([this] { return !posted.empty(); });

    EXPECT_EQ(controller, nullptr);
    EXPECT_NE(model.topFolder(), nullptr);
}

TEST_F(ScanningViewControllerTest, AScanCancelledAtOnceIsNeverComplete)
{
    start(test::filesText(50));
    controller->stopScan();
    EXPECT_THAT(posted, ElementsAre("cancelled"));
    runUntilIdle();

    EXPECT_THAT(posted, ElementsAre("cancelled"));
    EXPECT_EQ(model.topFolder(), nullptr);
    EXPECT_EQ(tile.attentionCount, 0);
    EXPECT_EQ(tile.contentView, nullptr);
    EXPECT_TRUE(controller->rootURL().empty());
}

TEST_F(ScanningViewControllerTest, AFolderThatHasVanishedIsSaidToHaveAndCountsAsCancelled)
{
    problem = std::make_error_code(std::errc::no_such_file_or_directory);
    scanToEnd("");

    EXPECT_THAT(posted, ElementsAre("cancelled"));
    ASSERT_EQ(system->alert.told.size(), 1U);
    EXPECT_EQ(system->alert.told[0].messageText, QStringLiteral("The folder cannot be scanned"));
    EXPECT_TRUE(system->alert.told[0].informativeText.startsWith(
        QStringLiteral("There is no folder '/Users/me/Documents' any more.")));
    EXPECT_EQ(model.topFolder(), nullptr);
    EXPECT_THAT(model.recents().recentsList(), IsEmpty());
    EXPECT_EQ(tile.contentView, nullptr);
    EXPECT_EQ(tile.attentionCount, 0);
}

TEST_F(ScanningViewControllerTest, AFolderThatMayNotBeReadIsSaidToBeForbidden)
{
    problem = std::make_error_code(std::errc::permission_denied);
    scanToEnd("");

    EXPECT_THAT(posted, ElementsAre("cancelled"));
    EXPECT_TRUE(system->alert.told.at(0).informativeText.startsWith(
        QStringLiteral("You do not have permission to look into '/Users/me/Documents'.")));
}

TEST_F(ScanningViewControllerTest, AnyOtherProblemIsToldInTheSystemsWords)
{
    problem = std::make_error_code(std::errc::io_error);
    scanToEnd("");

    const AlertText& told = system->alert.told.at(0);
    EXPECT_EQ(told.informativeText, QStringLiteral("'/Users/me/Documents' cannot be read."));
    EXPECT_EQ(told.reason, QString::fromStdString(problem.message()));
}

TEST_F(ScanningViewControllerTest, AScanThatGetsNoThreadIsSaidToAndCountsAsCancelled)
{
    makeScanner("a:1");
    system->hasThreads = false;
    controller->startScanning(Url("/Users/me", true));
    EXPECT_THAT(posted, IsEmpty()) << "who started it is not done with that yet";
    runUntil([this] { return !posted.empty(); });

    EXPECT_THAT(posted, ElementsAre("cancelled"));
    ASSERT_EQ(system->alert.told.size(), 1U);
    EXPECT_EQ(system->alert.told[0].messageText, QStringLiteral("The folder cannot be scanned"));
    EXPECT_TRUE(system->alert.told[0].informativeText.startsWith(
        QStringLiteral("The system is too busy to scan")));
    EXPECT_TRUE(controller->rootURL().empty());
    EXPECT_EQ(tile.contentView, nullptr);
    const auto* indicator = outlet<QProgressBar>("indicator");
    EXPECT_GT(indicator->maximum(), 0) << "it stands still";
}

TEST_F(ScanningViewControllerTest, AnEmptyFolderIsScannedAsAnyOther)
{
    scanToEnd("");

    EXPECT_THAT(checked, ElementsAre("/Users/me/Documents"));
    EXPECT_THAT(posted, ElementsAre("complete"));
    ASSERT_NE(model.topFolder(), nullptr);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 0U);
}

TEST_F(ScanningViewControllerTest, AFolderInWhichSomethingWasFoundIsNotAskedForAgain)
{
    problem = std::make_error_code(std::errc::no_such_file_or_directory);
    scanToEnd("a:1");

    EXPECT_THAT(checked, IsEmpty());
    EXPECT_THAT(posted, ElementsAre("complete"));
}

TEST_F(ScanningViewControllerTest, TheCancelButtonCancelsOnce)
{
    start("a:1");
    auto* const button = outlet<QPushButton>("cancelButton");
    EXPECT_EQ(button->shortcut(), QKeySequence(Qt::Key_Escape));
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::mouseClick(button, Qt::LeftButton);
    controller->stopScan();
    runUntilIdle();

    EXPECT_THAT(posted, ElementsAre("cancelled"));
}

TEST_F(ScanningViewControllerTest, EveryOutletHasItsPlaceInThePanelsHeight)
{
    makeScanner("");
    QWidget& view = controller->view();
    view.resize(760, ScanningViewController::kViewHeight);
    EXPECT_LE(view.minimumSizeHint().height(), ScanningViewController::kViewHeight);
    EXPECT_LE(view.minimumSizeHint().width(), 760);
    EXPECT_FALSE(text("tipsField").empty());
}

TEST_F(ScanningViewControllerTest, InALargeFontThePanelAsksForTheHeightThatAllOfItNeeds)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(24);
    QApplication::setFont(large);
    makeScanner("");
    QWidget& view = controller->view();
    const int height = view.heightForWidth(760);
    view.resize(760, height);
    view.show();
    const auto* const tips = outlet<QLabel>("tipsField");
    EXPECT_GT(height, ScanningViewController::kViewHeight);
    EXPECT_GE(tips->height(), tips->heightForWidth(tips->width()));
    EXPECT_GT(
        QFontInfo(outlet<PathLabel>("folderName")->font()).pixelSize(),
        QFontInfo(outlet<PathLabel>("scanLabel")->font()).pixelSize());
    QApplication::setFont(usual);
}

} // namespace
} // namespace tessera
