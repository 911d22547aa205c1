// SPDX-License-Identifier: MIT
#pragma once

#include "Grid/ShownViews.h"
#include "HomeScreen/Grid/SectionedCollectionView.h"
#include "HomeScreen/HomeViewController.h"
#include "HomeScreen/Parts/VolumeCollectionView.h"
#include "Model/RootModel.h"
#include "support/Fakes/FakeFileSystem.h"
#include "support/Fakes/FakePlaces.h"
#include "support/Fakes/FakeRootModelServices.h"

#include <QListView>
#include <QTest>

#include <gtest/gtest.h>

#include <future>

namespace tessera::test {

/// Says of one directory only when the test lets it that it is one.
class SlowResourceValues final : public FakeResourceValues {
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

class HomeViewControllerFixture : public testing::Test {
protected:
    HomeViewControllerFixture()
    {
        volumes.list
            = {{Url("/", true), MountedVolume::Kind::Disk},
               {Url("/mnt/data", true), MountedVolume::Kind::Disk}};
        resourceValues->directories = {"/home/eve", "/home/eve/Music", "/home/eve/Public"};
        account.real.directory = "/home/eve";
        modelServices.defaults.setBoolean(kGreetedKey, true);
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
            HomeViewServices{
                .volumes = volumes,
                .standardFolders = modelServices.folders,
                .account = account,
                .defaults = modelServices.defaults,
                .homeDirectory = homeDirectory,
                .fileSystemAttributes = attributes,
                .resourceValues = resourceValues});
        QObject::connect(home.get(), &HomeViewController::scanUrl, [this](const Url& url) {
            scanned.push_back(url.absoluteString());
        });
        home->view().resize(1080, 660);
        home->view().show();
    }

    SectionedCollectionView& grid() const { return home->locationsCollection(); }
    QListView& table() const { return home->recentsTable(); }

    /// By its place among all headers and items of the grid.
    HomeItemView& item(std::size_t place) const
    {
        return dynamic_cast<HomeItemView&>(*shownViews(grid()).at(place));
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

    QPoint centerOf(std::size_t place) const { return item(place).geometry().center(); }
    void click(std::size_t place) const
    {
        QTest::mouseClick(&grid(), Qt::LeftButton, {}, centerOf(place));
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

    FakeRootModelServices modelServices;
    FakeMountedVolumes volumes;
    FakeUserAccount account;
    std::string homeDirectory = "/home/me"; ///< over no link
    std::shared_ptr<const FileSystemAttributes> attributes
        = std::make_shared<FixedFileSystem>(FileSystemSizes{1000, 250, 250});
    std::shared_ptr<FakeResourceValues> resourceValues = std::make_shared<FakeResourceValues>();
    bool isRunningAsRoot = false;
    std::unique_ptr<RootModel> model;
    std::unique_ptr<HomeViewController> home;
    std::vector<std::string> scanned;
};

} // namespace tessera::test
