// SPDX-License-Identifier: MIT
#include "Model/RootModel.h"

#include "Model/Document.h"
#include "Model/StandardFolders.h"
#include "Model/Volume.h"
#include "support/FakeFileSystem.h"
#include "support/FakeRecentDocuments.h"
#include "support/FakeUserDefaults.h"
#include "support/makeTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

namespace tessera {
namespace {

class FakeStandardFolders final : public StandardFolders {
public:
    Url localApplications() const override { return {"/Local Apps", true}; }
    Url localUsers() const override { return {"/Users", true}; }
};

struct FakeServices {
    test::FakeUserDefaults defaults;
    test::FakeRecentDocuments documents;
    FakeStandardFolders folders;

    operator RootModelServices() { return {defaults, documents, folders}; }
};

Volume& installVolume(RootModel& model)
{
    auto made = makeNode<Volume>("disk");
    auto content = makeNode<Document>("content");
    content->setTotalAllocation(600);
    made->addChild(std::move(content));
    made->refreshVolume(test::FixedFileSystem(FileSystemSizes{1000, 300}));
    Volume& volume = *made;
    model.setTopFolder(std::move(made));
    return volume;
}

TEST(RootModel, StartsWithNoTreeAndAllSettingsOff)
{
    FakeServices services;
    const RootModel model(services);
    EXPECT_EQ(model.topFolder(), nullptr);
    EXPECT_FALSE(model.isRunningAsRoot());
    EXPECT_FALSE(model.settings().ignoreFreeSpace());
    EXPECT_FALSE(model.settings().ignoreHiddenFiles());
    EXPECT_FALSE(model.settings().ignoreSystemFiles());
    EXPECT_FALSE(model.settings().ignoreRestrictedFiles());
}

TEST(RootModel, LoadsTheRecents)
{
    FakeServices services;
    const RecentRecord record{"/music", 10, {}};
    services.defaults.setRecentRecords("recents", {record});
    services.documents.urls = {Url("/music", true)};
    RootModel model(services);
    EXPECT_THAT(model.recents().recentsList(), testing::ElementsAre(record));
}

TEST(RootModel, NonSystemFoldersAreThreeUrlStrings)
{
    FakeServices services;
    const RootModel model(services);
    EXPECT_THAT(
        model.nonSystemFolders(),
        testing::ElementsAre("file:///Local%20Apps/", "file:///Users/", "file:///Volumes/"));
}

TEST(RootModel, ANewVolumeTakesTheSettingsThatAreOn)
{
    FakeServices services;
    RootModel model(services);
    model.settings().setIgnoreFreeSpace(true);
    const Volume& volume = installVolume(model);
    EXPECT_EQ(model.topFolder(), &volume);
    EXPECT_TRUE(volume.freeFile().ignored());
    EXPECT_FALSE(volume.unreadFile().ignored());
}

TEST(RootModel, SettingsChangeNothingInAPlainFolder)
{
    FakeServices services;
    RootModel model(services);
    model.settings().setIgnoreFreeSpace(true);
    model.settings().setIgnoreRestrictedFiles(true);
    model.setTopFolder(test::makeTree("/home", "a:1"));
    EXPECT_FALSE(model.topFolder()->ignored());
    EXPECT_FALSE(test::at(*model.topFolder(), "a").ignored());
}

TEST(RootModel, ApplyingSettingsWithoutATreeDoesNothing)
{
    FakeServices services;
    RootModel model(services);
    model.applySettings();
    model.setTopFolder(nullptr);
    EXPECT_EQ(model.topFolder(), nullptr);
}

TEST(RootModel, ChangedSettingsFlipTheFlagAndLeaveTheSizes)
{
    FakeServices services;
    RootModel model(services);
    const Volume& volume = installVolume(model);
    model.settings().setIgnoreRestrictedFiles(true);
    model.applySettings();
    EXPECT_TRUE(volume.unreadFile().ignored());
    EXPECT_FALSE(volume.freeFile().ignored());
    EXPECT_EQ(volume.unreadFile().totalAllocation(), 100U);
    EXPECT_EQ(volume.totalAllocation(), 700U);
    model.settings().setIgnoreRestrictedFiles(false);
    model.applySettings();
    EXPECT_FALSE(volume.unreadFile().ignored());
}

TEST(RootModel, TheSharedOneIsMadeOnceFromTheServicesInstalled)
{
    static FakeServices services;
    RootModel::setServices(services);
    RootModel& model = RootModel::sharedInstance();
    EXPECT_EQ(&RootModel::sharedInstance(), &model);
    EXPECT_EQ(model.nonSystemFolders().size(), 3U);
}

} // namespace
} // namespace tessera
