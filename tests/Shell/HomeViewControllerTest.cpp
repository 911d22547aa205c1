// SPDX-License-Identifier: MIT
#include "Shell/HomeViewController.h"

#include "Model/NotificationCenter.h"
#include "Model/RootModel.h"
#include "Shell/CollectionHeaderView.h"
#include "Shell/FolderCollectionView.h"
#include "Shell/HiddenButtonCell.h"
#include "Shell/NonBlockingTextField.h"
#include "Shell/SectionedCollectionView.h"
#include "Shell/VolumeCollectionView.h"
#include "TreeView/Bar.h"
#include "support/FakeFileSystem.h"
#include "support/FakePlaces.h"
#include "support/FakeRootModelServices.h"
#include "support/becomesActive.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QListView>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <future>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Answers for the root only when the test lets it.
class SlowFileSystem final : public FileSystemAttributes {
public:
    std::optional<FileSystemSizes> attributesOfFileSystem(const std::string& path) const override
    {
        if (path == "/") {
            m_released.wait();
        }
        return FileSystemSizes{1000, 250};
    }

    void release() { m_release.set_value(); }

private:
    std::promise<void> m_release;
    std::shared_future<void> m_released{m_release.get_future().share()};
};

/// Says of one directory only when the test lets it that it is one.
class SlowResourceValues final : public test::FakeResourceValues {
public:
    explicit SlowResourceValues(std::string slowPath)
        : m_slowPath(std::move(slowPath))
    {
    }

    [[nodiscard]] bool isDirectory(const std::string& path) const override
    {
        if (path == m_slowPath) {
            m_released.wait();
        }
        return FakeResourceValues::isDirectory(path);
    }

    void release() { m_release.set_value(); }

private:
    std::string m_slowPath;
    std::promise<void> m_release;
    std::shared_future<void> m_released{m_release.get_future().share()};
};

int darkest(const QImage& image)
{
    int least = 255;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            least = std::min(least, image.pixelColor(x, y).lightness());
        }
    }
    return least;
}

class HomeViewControllerTest : public testing::Test {
protected:
    HomeViewControllerTest()
    {
        volumes.list
            = {{Url("/", true), MountedVolume::Kind::Disk},
               {Url("/mnt/data", true), MountedVolume::Kind::Disk}};
        resourceValues->directories = {"/home/eve", "/home/eve/Music", "/home/eve/Public"};
        account.real.directory = "/home/eve";
        addRecent("/home/eve/one");
        addRecent("/home/eve/two");
    }

    void addRecent(const std::string& path)
    {
        auto records = modelServices.defaults.recentRecords(kRecentsKey);
        records.push_back({path, 1000, {}});
        modelServices.defaults.setRecentRecords(kRecentsKey, records);
        modelServices.documents.urls.emplace_back(path, true);
    }

    void show()
    {
        model = std::make_unique<RootModel>(modelServices.get());
        model->setIsRunningAsRoot(isRunningAsRoot);
        home = std::make_unique<HomeViewController>(
            *model,
            HomeViewServices{volumes, modelServices.folders, account, attributes, resourceValues});
        home->view().resize(1080, 660);
        home->view().show();
    }

    SectionedCollectionView& grid() const { return home->locationsCollection(); }
    QListView& table() const { return home->recentsTable(); }

    HomeItemView& item(std::size_t metric) const
    {
        return dynamic_cast<HomeItemView&>(*grid().layoutMetrics().at(metric).view);
    }
    VolumeCollectionView& firstVolume() const
    {
        return dynamic_cast<VolumeCollectionView&>(item(1));
    }

    /// The home folder itself answers only when this is released.
    std::shared_ptr<SlowResourceValues> makeHomeSlow()
    {
        auto slow = std::make_shared<SlowResourceValues>("/home/eve");
        slow->directories = resourceValues->directories;
        resourceValues = slow;
        return slow;
    }

    void waitForLocations(std::size_t count) const
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return home->locations().size() == count; }));
    }

    QPoint centerOf(std::size_t metric) const { return item(metric).geometry().center(); }
    void click(std::size_t metric) const
    {
        QTest::mouseClick(&grid(), Qt::LeftButton, {}, centerOf(metric));
    }
    void clickRecent(int row) const
    {
        const QModelIndex index = table().model()->index(row, 0);
        QTest::mouseClick(
            table().viewport(), Qt::LeftButton, {}, table().visualRect(index).center());
    }

    std::vector<std::string> locationPaths() const
    {
        std::vector<std::string> paths;
        for (const Location& location : home->locations()) {
            paths.push_back(location.url.path());
        }
        return paths;
    }

    test::FakeRootModelServices modelServices;
    test::FakeMountedVolumes volumes;
    test::FakeUserAccount account;
    std::shared_ptr<const FileSystemAttributes> attributes
        = std::make_shared<test::FixedFileSystem>(FileSystemSizes{1000, 250});
    std::shared_ptr<test::FakeResourceValues> resourceValues
        = std::make_shared<test::FakeResourceValues>();
    bool isRunningAsRoot = false;
    std::unique_ptr<RootModel> model;
    std::unique_ptr<HomeViewController> home;
    std::vector<std::string> scanned;
    Observation scans = NotificationCenter::defaultCenter().addObserver(
        "ScanURL", [this](const NotificationObject& object) {
            scanned.push_back(std::get<Url>(object).absoluteString());
        });
};

TEST_F(HomeViewControllerTest, ListsTheVolumesInTheSystemsOrder)
{
    show();
    EXPECT_THAT(home->volumes(), testing::ElementsAreArray(volumes.list));
    EXPECT_EQ(item(1).url(), Url("/", true));
    EXPECT_EQ(item(2).url(), Url("/mnt/data", true));
}

TEST_F(HomeViewControllerTest, ListsOnlyTheLocationsThatThereAre)
{
    show();
    EXPECT_THAT(locationPaths(), ElementsAre("/home/eve", "/home/eve/Music", "/home/eve/Public"));
    resourceValues->directories.erase("/home/eve/Public");
    show();
    EXPECT_THAT(locationPaths(), ElementsAre("/home/eve", "/home/eve/Music"));
}

TEST_F(HomeViewControllerTest, AnEquivalentTakesThePlaceOfAMissingLocation)
{
    modelServices.folders.equivalents
        = {{LocationKind::Movies, "/Videos"}, {LocationKind::Music, "/Other Music"}};
    resourceValues->directories
        = {"/home/eve", "/home/eve/Videos", "/home/eve/Music", "/home/eve/Other Music"};
    show();
    EXPECT_THAT(locationPaths(), ElementsAre("/home/eve", "/home/eve/Videos", "/home/eve/Music"));
}

TEST_F(HomeViewControllerTest, RunByRootItHasNoLocationsButTheirHeader)
{
    isRunningAsRoot = true;
    show();
    EXPECT_THAT(home->locations(), IsEmpty());
    const auto headers = grid().findChildren<CollectionHeaderView*>();
    ASSERT_EQ(headers.size(), 2);
    EXPECT_EQ(headers.at(0)->nameLabel().text(), QStringLiteral("Disks"));
    EXPECT_EQ(headers.at(1)->nameLabel().text(), QStringLiteral("Locations"));
}

TEST_F(HomeViewControllerTest, SectionsHaveTheirLeastAndGreatestWidths)
{
    show();
    const auto& metrics = grid().layoutMetrics();
    EXPECT_EQ(metrics.at(0).minWidth, 200.0F);
    EXPECT_EQ(metrics.at(0).maxWidth, 400.0F);
    EXPECT_EQ(metrics.at(3).minWidth, 100.0F);
    EXPECT_EQ(metrics.at(3).maxWidth, 200.0F);
}

TEST_F(HomeViewControllerTest, SelectsTheMostRecentScanFirst)
{
    show();
    home->scanSelected();
    EXPECT_THAT(scanned, ElementsAre("file:///home/eve/one/"));
}

TEST_F(HomeViewControllerTest, WithoutRecentScansNothingIsSelected)
{
    modelServices.documents.urls.clear();
    show();
    home->scanSelected();
    EXPECT_THAT(scanned, IsEmpty());
}

TEST_F(HomeViewControllerTest, SelectingAVolumeDeselectsTheRecentScan)
{
    show();
    click(2);
    EXPECT_TRUE(item(2).selected());
    EXPECT_TRUE(table().selectionModel()->selectedIndexes().isEmpty());
    home->scanSelected();
    EXPECT_THAT(scanned, ElementsAre("file:///mnt/data/"));
}

TEST_F(HomeViewControllerTest, SelectingARecentScanDeselectsTheGrid)
{
    show();
    click(2);
    clickRecent(1);
    EXPECT_FALSE(item(2).selected());
    EXPECT_EQ(grid().selectedView(), nullptr);
    home->scanSelected();
    EXPECT_THAT(scanned, ElementsAre("file:///home/eve/two/"));
}

TEST_F(HomeViewControllerTest, WhatIsScannedIsLogged)
{
    show();
    click(5);
    testing::internal::CaptureStderr();
    QTest::mouseClick(&home->scanButton(), Qt::LeftButton);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "scanning file:///home/eve/Music/\n");
}

TEST_F(HomeViewControllerTest, ALocationIsScanned)
{
    show();
    click(5);
    QTest::mouseClick(&home->scanButton(), Qt::LeftButton);
    EXPECT_THAT(scanned, ElementsAre("file:///home/eve/Music/"));
}

TEST_F(HomeViewControllerTest, ADoubleClickInTheGridScans)
{
    show();
    click(1);
    QTest::mouseDClick(&grid(), Qt::LeftButton, {}, centerOf(1));
    EXPECT_THAT(scanned, ElementsAre("file:///"));
}

TEST_F(HomeViewControllerTest, WhatWasDoubleClickedIsShownAsSelected)
{
    show();
    click(1);
    QTest::mouseDClick(&grid(), Qt::LeftButton, {}, centerOf(1));
    EXPECT_TRUE(item(1).selected());
    EXPECT_EQ(grid().selectedView(), &item(1));
}

TEST_F(HomeViewControllerTest, ADoubleClickOnARecentScanScans)
{
    show();
    clickRecent(1);
    const QModelIndex index = table().model()->index(1, 0);
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, table().visualRect(index).center());
    EXPECT_THAT(scanned, ElementsAre("file:///home/eve/two/"));
}

TEST_F(HomeViewControllerTest, ReturnScans)
{
    show();
    home->takeFocus();
    ASSERT_TRUE(test::becomesActive(home->view()));
    QTest::keyClick(&table(), Qt::Key_Return);
    EXPECT_THAT(scanned, ElementsAre("file:///home/eve/one/"));
}

TEST_F(HomeViewControllerTest, ReturnPressesTheButtonThatHasTheFocus)
{
    show();
    ASSERT_TRUE(test::becomesActive(home->view()));
    const QSignalSpy asked(home.get(), &HomeViewController::openFolder);
    home->openButton().setFocus();
    QTest::keyClick(&home->openButton(), Qt::Key_Return);
    EXPECT_EQ(asked.size(), 1);
    home->clearRecentsButton().setFocus();
    QTest::keyClick(&home->clearRecentsButton(), Qt::Key_Enter);
    EXPECT_THAT(model->recents().recentsList(), IsEmpty());
    EXPECT_THAT(scanned, IsEmpty());
}

TEST_F(HomeViewControllerTest, ReturnOnTheScanButtonScansOnce)
{
    show();
    ASSERT_TRUE(test::becomesActive(home->view()));
    home->scanButton().setFocus();
    QTest::keyClick(&home->scanButton(), Qt::Key_Return);
    EXPECT_THAT(scanned, ElementsAre("file:///home/eve/one/"));
}

TEST_F(HomeViewControllerTest, ReturnGoesThroughNoSheet)
{
    show();
    home->takeFocus();
    ASSERT_TRUE(test::becomesActive(home->view()));
    QDialog sheet(&home->view());
    sheet.setWindowModality(Qt::WindowModal);
    sheet.show();
    // As window managers do that give a blocked window the keyboard.
    QApplication::setActiveWindow(&home->view());
    table().setFocus();
    QTest::keyClick(home->view().windowHandle(), Qt::Key_Return);
    EXPECT_THAT(scanned, IsEmpty());
}

TEST_F(HomeViewControllerTest, ARightDoubleClickStartsNothing)
{
    show();
    const QPoint row = table().visualRect(table().model()->index(1, 0)).center();
    QTest::mouseDClick(table().viewport(), Qt::RightButton, {}, row);
    EXPECT_THAT(scanned, IsEmpty());
}

TEST_F(HomeViewControllerTest, TheFirstArrowInTheListTakesItsFirstRow)
{
    show();
    clickRecent(1);
    click(2);
    table().setFocus();
    QTest::keyClick(&table(), Qt::Key_Down);
    home->scanSelected();
    EXPECT_THAT(scanned, ElementsAre("file:///home/eve/one/"));
}

TEST_F(HomeViewControllerTest, ScanIsEnabledWhileSomethingIsSelected)
{
    modelServices.documents.urls.clear();
    show();
    EXPECT_FALSE(home->scanButton().isEnabled());
    click(2);
    EXPECT_TRUE(home->scanButton().isEnabled());
    home->setEnabled(false);
    EXPECT_FALSE(home->scanButton().isEnabled());
}

TEST_F(HomeViewControllerTest, ClearIsEnabledWhileThereAreRecentScans)
{
    show();
    EXPECT_TRUE(home->clearRecentsButton().isEnabled());
    home->clearList();
    EXPECT_FALSE(home->clearRecentsButton().isEnabled());
    EXPECT_FALSE(home->scanButton().isEnabled());
    home->setEnabled(false);
    home->setEnabled(true);
    EXPECT_FALSE(home->clearRecentsButton().isEnabled());
    EXPECT_FALSE(home->scanButton().isEnabled());
}

TEST_F(HomeViewControllerTest, TheGridLooksInactiveWhileItIs)
{
    show();
    const QRect part(0, 0, grid().width(), grid().height());
    const QImage usual = home->view().grab(part).toImage();
    home->setEnabled(false);
    const QImage inactive = home->view().grab(part).toImage();
    home->setEnabled(true);
    EXPECT_EQ(home->view().grab(part).toImage(), usual);
    EXPECT_LT(darkest(usual), 20);
    EXPECT_GT(darkest(inactive), 100);
}

TEST_F(HomeViewControllerTest, InALargeFontNothingInTheGridIsCut)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(16);
    QApplication::setFont(large);
    show();
    home->view().resize(760, 400);
    QApplication::processEvents();
    EXPECT_GE(item(1).height(), item(1).minimumSizeHint().height());
    EXPECT_LE(item(1).geometry().right(), grid().width());
    EXPECT_GE(firstVolume().nameLabel().height(), firstVolume().nameLabel().fontMetrics().height());
    EXPECT_GE(
        firstVolume().spaceLabel().height(), firstVolume().spaceLabel().fontMetrics().height());
    EXPECT_GE(
        home->clearRecentsButton().height(), home->clearRecentsButton().minimumSizeHint().height());
    QApplication::setFont(usual);
}

TEST_F(HomeViewControllerTest, ClearingEmptiesTheList)
{
    show();
    QTest::mouseClick(&home->clearRecentsButton(), Qt::LeftButton);
    EXPECT_EQ(table().model()->rowCount(), 0);
    EXPECT_THAT(model->recents().recentsList(), IsEmpty());
    EXPECT_THAT(modelServices.documents.urls, IsEmpty());
}

TEST_F(HomeViewControllerTest, AfterClearingNothingIsSelected)
{
    show();
    home->clearList();
    EXPECT_TRUE(table().selectionModel()->selectedIndexes().isEmpty());
    home->scanSelected();
    EXPECT_THAT(scanned, IsEmpty());
}

TEST_F(HomeViewControllerTest, TheOpenButtonAsksForAFolder)
{
    show();
    const QSignalSpy asked(home.get(), &HomeViewController::openFolder);
    QTest::mouseClick(&home->openButton(), Qt::LeftButton);
    EXPECT_EQ(asked.size(), 1);
    EXPECT_TRUE(home->openButton().showsBorderOnlyWhileMouseInside());
}

TEST_F(HomeViewControllerTest, DisabledItHidesItsButtonsAndHearsNothing)
{
    show();
    home->setEnabled(false);
    EXPECT_FALSE(home->enabled());
    EXPECT_TRUE(home->scanButton().isHidden());
    EXPECT_TRUE(home->clearRecentsButton().isHidden());
    EXPECT_FALSE(home->scanButton().isEnabled());
    EXPECT_FALSE(home->clearRecentsButton().isEnabled());
    EXPECT_FALSE(home->openButton().isEnabled());
    EXPECT_FALSE(table().isEnabled());
    EXPECT_FALSE(grid().enabled());
}

TEST_F(HomeViewControllerTest, EnabledAgainItShowsItsButtons)
{
    show();
    home->setEnabled(false);
    home->setEnabled(true);
    EXPECT_TRUE(home->scanButton().isVisible());
    EXPECT_TRUE(home->clearRecentsButton().isVisible());
    EXPECT_TRUE(home->scanButton().isEnabled());
    EXPECT_TRUE(home->openButton().isEnabled());
    EXPECT_TRUE(table().isEnabled());
    EXPECT_TRUE(grid().enabled());
}

TEST_F(HomeViewControllerTest, AVolumeShowsHowFullItIs)
{
    show();
    EXPECT_FLOAT_EQ(static_cast<float>(firstVolume().spaceBar().percentFilled()), 0.75F);
    EXPECT_EQ(firstVolume().spaceLabel().text(), QStringLiteral("Free Space: 250 B"));
}

TEST_F(HomeViewControllerTest, AVolumeThatCannotSayHasAnEmptyBar)
{
    attributes = std::make_shared<test::FixedFileSystem>(std::nullopt);
    show();
    EXPECT_EQ(firstVolume().spaceBar().percentFilled(), 0);
    EXPECT_EQ(firstVolume().spaceLabel().text(), QStringLiteral("Free Space: 0 B"));
}

TEST_F(HomeViewControllerTest, ADeadVolumeDelaysNothingAndFillsInWhenItAnswers)
{
    const auto slow = std::make_shared<SlowFileSystem>();
    attributes = slow;
    show();
    EXPECT_EQ(firstVolume().spaceBar().percentFilled(), 0);
    EXPECT_EQ(firstVolume().spaceLabel().text(), QString());
    slow->release();
    ASSERT_TRUE(QTest::qWaitFor([this] { return firstVolume().spaceBar().percentFilled() > 0; }));
    EXPECT_EQ(firstVolume().spaceLabel().text(), QStringLiteral("Free Space: 250 B"));
}

TEST_F(HomeViewControllerTest, AnAnswerThatComesWhenTheScreenIsGoneIsDropped)
{
    const auto slow = std::make_shared<SlowFileSystem>();
    attributes = slow;
    show();
    home.reset();
    slow->release();
    EXPECT_THAT(scanned, IsEmpty());
}

TEST_F(HomeViewControllerTest, ALocationThatAnswersLateTakesItsPlace)
{
    const auto slow = makeHomeSlow();
    show();
    EXPECT_THAT(locationPaths(), ElementsAre("/home/eve/Music", "/home/eve/Public"));
    slow->release();
    waitForLocations(3);
    EXPECT_THAT(locationPaths(), ElementsAre("/home/eve", "/home/eve/Music", "/home/eve/Public"));
}

TEST_F(HomeViewControllerTest, ALocationThatAnswersLateLeavesTheUsersChoiceAlone)
{
    const auto slow = makeHomeSlow();
    show();
    click(4);
    ASSERT_EQ(item(4).url(), Url("/home/eve/Music", true));
    slow->release();
    waitForLocations(3);
    EXPECT_EQ(item(5).url(), Url("/home/eve/Music", true));
    EXPECT_TRUE(item(5).selected());
    home->scanSelected();
    EXPECT_THAT(scanned, ElementsAre("file:///home/eve/Music/"));
}

TEST_F(HomeViewControllerTest, ALocationThatAnswersLateLeavesAChosenRecentScanAlone)
{
    const auto slow = makeHomeSlow();
    show();
    slow->release();
    waitForLocations(3);
    EXPECT_EQ(grid().selectedView(), nullptr);
    home->scanSelected();
    EXPECT_THAT(scanned, ElementsAre("file:///home/eve/one/"));
}

TEST_F(HomeViewControllerTest, TheScreenIsLaidOutInFixedMeasures)
{
    show();
    const QWidget& view = home->view();
    const auto* const bar = view.findChild<QWidget*>(QStringLiteral("scanBar"));
    EXPECT_EQ(bar->geometry(), QRect(0, 660 - 56, 1080, 56));
    const auto* const line = view.findChild<QWidget*>(QStringLiteral("scanBarLine"));
    EXPECT_EQ(line->geometry(), QRect(0, 0, 1080, 1));
    EXPECT_EQ(view.findChild<QWidget*>(QStringLiteral("recentsColumn"))->width(), 300);
    EXPECT_EQ(home->openButton().size(), QSize(290, 60));
    EXPECT_EQ(table().visualRect(table().model()->index(0, 0)).height(), 48);
    EXPECT_EQ(item(1).height(), 72);
    EXPECT_EQ(item(4).height(), 104);
}

TEST_F(HomeViewControllerTest, TabGoesFromTheGridToTheScanButton)
{
    show();
    const QWidget& view = home->view();
    grid().setFocus();
    QTest::keyClick(&grid(), Qt::Key_Tab);
    EXPECT_EQ(view.focusWidget(), &home->openButton());
    QTest::keyClick(&home->openButton(), Qt::Key_Tab);
    EXPECT_EQ(view.focusWidget(), &home->clearRecentsButton());
    QTest::keyClick(&home->clearRecentsButton(), Qt::Key_Tab);
    EXPECT_EQ(view.focusWidget(), &table());
    QTest::keyClick(&table(), Qt::Key_Tab);
    EXPECT_EQ(view.focusWidget(), &home->scanButton());
}

TEST_F(HomeViewControllerTest, ScreenReadersLearnWhatIsSelected)
{
    show();
    const auto isSelected = [this](std::size_t metric) {
        return bool(QAccessible::queryAccessibleInterface(&item(metric))->state().selected);
    };
    EXPECT_FALSE(isSelected(1));
    grid().selectItem(0, 0);
    EXPECT_TRUE(isSelected(1));
    EXPECT_FALSE(isSelected(2));
}

TEST_F(HomeViewControllerTest, TabReachesTheGridFromOutside)
{
    show();
    QWidget window;
    QPushButton outside(&window);
    home->view().setParent(&window);
    home->view().show();
    window.show();
    outside.setFocus();
    QTest::keyClick(&outside, Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), &grid());
    home->view().setParent(nullptr);
}

TEST_F(HomeViewControllerTest, TheKeyboardBeginsAtTheRecentScans)
{
    show();
    home->takeFocus();
    EXPECT_EQ(home->view().focusWidget(), &table());
}

TEST_F(HomeViewControllerTest, TheKeyboardGoesOnInTheGridWhereItHoldsTheSelection)
{
    show();
    click(2);
    home->setEnabled(false);
    home->setEnabled(true);
    home->takeFocus();
    EXPECT_EQ(home->view().focusWidget(), &grid());
}

TEST_F(HomeViewControllerTest, WithoutRecentScansTheKeyboardBeginsAtTheGrid)
{
    modelServices.documents.urls.clear();
    show();
    home->takeFocus();
    EXPECT_EQ(home->view().focusWidget(), &grid());
}

} // namespace
} // namespace tessera
