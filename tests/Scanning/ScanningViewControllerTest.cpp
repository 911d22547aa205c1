// SPDX-License-Identifier: MIT
#include "Scanning/ScanningViewController.h"

#include "Model/NotificationCenter.h"
#include "Model/RootModel.h"
#include "Model/Volume.h"
#include "Model/nodeLookup.h"
#include "Scanning/PathLabel.h"
#include "Utils/DisplayText.h"
#include "support/FakeDockTile.h"
#include "support/FakeRootModelServices.h"
#include "support/FakeTreeViewServices.h"
#include "support/makeTree.h"

#include <QApplication>
#include <QFontInfo>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <variant>
#include <vector>

namespace tessera {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

/// One file after the other, each of 1000 bytes.
std::string filesText(int count)
{
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += "f" + std::to_string(i) + ":1000 ";
    }
    return text;
}

/// A place that is called by its path in brackets.
PlaceLook redPlace(const Url& folder)
{
    QPixmap picture(64, 64);
    picture.fill(Qt::red);
    return {picture, displayText('[' + folder.path() + ']')};
}

class ScanningViewControllerTest : public testing::Test {
protected:
    ~ScanningViewControllerTest() override
    {
        controller.reset();
        system->workers->waitForNone();
    }

    /// Time passes before each item of a scan, and every report is shown before the next.
    void makeScanner(std::string_view items)
    {
        system = std::make_unique<test::FakeTreeViewServices>(items);
        system->home = userHome;
        system->files.onItem([this](const std::string& path) {
            if (beforeItem) {
                beforeItem(path);
            }
            system->mainThread.performAndWait([] {});
            system->scanClock = system->scanClock.load() + secondsPerItem;
        });
        controller = std::make_unique<ScanningViewController>(
            model,
            ScanningServices{
                system->get().scanEnvironment,
                tile,
                system->alert,
                redPlace,
                [this](const std::string& path) {
                    checked.push_back(path);
                    return problem;
                }});
    }

    void start(std::string_view items, std::string_view path = "/Users/me/Documents")
    {
        makeScanner(items);
        controller->startScanning(Url(path, true));
    }

    /// Runs until `done`, and notes what was shown after each report.
    template <typename Condition>
    void runUntil(Condition done)
    {
        system->mainThread.runUntil([&] {
            if (tile.displayed.size() > paths.size()) {
                paths.push_back(outlet<PathLabel>("scanLabel")->text().toStdString());
                rates.push_back(text("readRate"));
                amounts.push_back(text("totalRead"));
            }
            return done();
        });
    }

    void runToEnd()
    {
        runUntil([this] { return !posted.empty(); });
    }

    /// Until the scanner's worker has ended.
    void runUntilIdle()
    {
        bool isIdle = false;
        std::thread waiter([this, &isIdle] {
            system->workers->waitForNone();
            system->mainThread.perform([&isIdle] { isIdle = true; });
        });
        system->mainThread.runUntil([&isIdle] { return isIdle; });
        waiter.join();
    }

    void scanToEnd(std::string_view items, std::string_view path = "/Users/me/Documents")
    {
        start(items, path);
        runToEnd();
    }

    template <typename View>
    View* outlet(const char* name) const
    {
        return controller->view().findChild<View*>(QString::fromLatin1(name));
    }

    std::string text(const char* name) const { return outlet<QLabel>(name)->text().toStdString(); }

    void note(const char* name, const NotificationObject& object)
    {
        posted.emplace_back(name);
        EXPECT_EQ(std::get<const void*>(object), controller.get());
    }

    test::FakeDockTile tile;
    test::FakeRootModelServices modelServices;
    RootModel model{modelServices.get()};
    std::unique_ptr<test::FakeTreeViewServices> system;
    std::unique_ptr<ScanningViewController> controller;
    std::string userHome = "/me";
    std::function<void(const std::string&)> beforeItem;
    double secondsPerItem = 0.5;
    std::error_code problem; ///< of every folder
    std::vector<std::string> checked; ///< the folders that were asked about
    std::vector<std::string> posted;
    std::vector<std::string> paths;
    std::vector<std::string> rates;
    std::vector<std::string> amounts;
    Observation complete = NotificationCenter::defaultCenter().addObserver(
        "ScanComplete", [this](const NotificationObject& object) { note("complete", object); });
    Observation cancelled = NotificationCenter::defaultCenter().addObserver(
        "ScanCancelled", [this](const NotificationObject& object) { note("cancelled", object); });
};

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
    scanToEnd(filesText(3));
    EXPECT_THAT(amounts, ElementsAre("1 KB", "2 KB", "3 KB"));
}

TEST_F(ScanningViewControllerTest, TheIndicatorAndTheDockTileShowTheSameFraction)
{
    start(filesText(4));
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
    scanToEnd(filesText(26));

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
    scanToEnd(filesText(5000));
    QLocale::setDefault(usual);
    EXPECT_THAT(rates.back(), testing::ContainsRegex("^[12][.][0-9][0-9][0-9] files/sec$"));
}

TEST_F(ScanningViewControllerTest, DigitsAreGroupedInTheLanguageOfNoneToo)
{
    secondsPerItem = 0.0005;
    const QLocale usual;
    QLocale::setDefault(QLocale::c());
    scanToEnd(filesText(5000));
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
    scanToEnd(filesText(26));

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
    const Observation observation = NotificationCenter::defaultCenter().addObserver(
        "ScanComplete", [this](const NotificationObject&) { controller.reset(); });
    system->mainThread.runUntil([this] { return !posted.empty(); });

    EXPECT_EQ(controller, nullptr);
    EXPECT_NE(model.topFolder(), nullptr);
}

TEST_F(ScanningViewControllerTest, AScanCancelledAtOnceIsNeverComplete)
{
    start(filesText(50));
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
    EXPECT_EQ(
        system->alert.told.at(0).informativeText,
        QStringLiteral("You do not have permission to look into '/Users/me/Documents'."));
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
        QStringLiteral("The system has no room for one more thread")));
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

/// Scans of /Users where /Users/me is an encrypted home, a volume of its own.
class EncryptedHomeTest : public ScanningViewControllerTest {
protected:
    void scanHome(
        std::string_view items = "me/ ( a:300 b:100 ) other/ ( c:200 )",
        const std::string& home = "/me")
    {
        userHome = home;
        makeScanner(items);
        system->scanResourceValues.volumes.insert("/Users/me");
        controller->startScanning(Url("/Users", true));
    }
};

TEST_F(EncryptedHomeTest, TheHomeIsScannedInASecondPass)
{
    scanHome();
    runUntil([this] { return controller->fileVault() != nullptr; });
    EXPECT_THAT(posted, IsEmpty());
    EXPECT_EQ(controller->rootURL(), Url("/Users/me", true));
    EXPECT_EQ(text("readRate"), "");
    runToEnd();
    EXPECT_THAT(posted, ElementsAre("complete"));
    EXPECT_TRUE(controller->rootURL().empty());
}

TEST_F(EncryptedHomeTest, TheSecondPassBeginsWithoutARateAgain)
{
    const std::size_t reports = 27; // a pass meets the home folder and its files
    makeScanner("me/ ( " + filesText(26) + ")");
    system->scanResourceValues.volumes.insert("/Users/me");
    controller->startScanning(Url("/Users", true));
    runToEnd();

    ASSERT_EQ(rates.size(), 2 * reports);
    EXPECT_EQ(rates.at(reports - 1), "2 files/sec");
    EXPECT_THAT(
        std::vector(rates.begin() + reports, rates.begin() + reports + 19), Each(std::string()));
    EXPECT_EQ(rates.at(reports + 19), "2 files/sec");
}

TEST_F(EncryptedHomeTest, ASecondPassThatIsCancelledLeavesNoTree)
{
    scanHome();
    runUntil([this] { return controller->fileVault() != nullptr; });
    controller->stopScan();
    runUntilIdle();
    EXPECT_THAT(posted, ElementsAre("cancelled"));
    EXPECT_EQ(model.topFolder(), nullptr);
}

TEST_F(EncryptedHomeTest, WhatTheSecondPassFoundStandsInTheHomesPlace)
{
    scanHome();
    runToEnd();
    TopFolder& top = *model.topFolder();
    EXPECT_EQ(top.origin(), "/Users");
    const File& home = test::at(top, "me");

    EXPECT_EQ(home.type(), NodeType::Folder);
    EXPECT_NE(nodeAtPath(top, "/Users/me/other/c"), nullptr);
    EXPECT_EQ(nodeAtPath(top, "/Users/other/c")->totalAllocation(), 200U);
}

TEST_F(EncryptedHomeTest, TheUsersOwnHomeIsAFolderOfWhatWasFoundInIt)
{
    scanHome("me/ ( a:300 b:100 ) other/ ( c:200 )", "/Users/me");
    runToEnd();
    const auto& home = static_cast<const Folder&>(test::at(*model.topFolder(), "me"));
    // The second scan meets the same items once more: 300, 100 and 200 bytes.
    EXPECT_EQ(home.totalAllocation(), 600U);
    EXPECT_EQ(home.children().size(), 2U) << "no free space and no restricted files";
    EXPECT_EQ(model.topFolder()->totalAllocation(), 800U);
}

TEST_F(EncryptedHomeTest, ASiblingWhoseNameTheHomesBeginsWithDoesNotHideIt)
{
    scanHome("m/ ( large:5000 ) me/ ( a:300 )", "/Users/me");
    system->files.makeUnreadable("me");
    runToEnd();
    EXPECT_EQ(nodeAtPath(*model.topFolder(), "/Users/me/m/large")->totalAllocation(), 5000U);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 10000U);
}

TEST_F(EncryptedHomeTest, AMountedFolderOfTheUsersNameInTheHomeStartsNoThirdPass)
{
    makeScanner("me/ ( a:300 )");
    system->scanResourceValues.volumes = {"/Users/me", "/Users/me/me"};
    controller->startScanning(Url("/Users", true));
    runToEnd();
    EXPECT_EQ(model.topFolder()->origin(), "/Users");
    EXPECT_THAT(
        system->files.enumeratedPaths(),
        testing::Not(testing::Contains(std::string("/Users/me/me"))));
}

TEST_F(EncryptedHomeTest, TheHomesFreeSpaceIsLeftOut)
{
    scanHome();
    runToEnd();
    const auto& home = static_cast<const Folder&>(test::at(*model.topFolder(), "me"));

    for (const File* child : home.children()) {
        EXPECT_NE(child->type(), NodeType::FreeSpace);
    }
    // The home's volume has 700 of its 1000 bytes in use.
    EXPECT_EQ(home.totalAllocation(), 700U);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 900U);
}

} // namespace
} // namespace tessera
