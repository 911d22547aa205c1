// SPDX-License-Identifier: MIT
#include "Model/RootModel.h"

#include "Model/Document.h"
#include "Model/Volume.h"
#include "support/Fakes/FakeFileSystem.h"
#include "support/Fakes/FakeRootModelServices.h"
#include "support/MakeTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

namespace tessera {
namespace {

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

TEST(RootModel, StartsWithNoTreeAndNothingLeftOut)
{
    test::FakeRootModelServices services;
    const RootModel model(services.get());
    EXPECT_EQ(model.topFolder(), nullptr);
    EXPECT_FALSE(model.isRunningAsRoot());
    EXPECT_FALSE(model.pictureFilter().ignoreFreeSpace());
    EXPECT_FALSE(model.pictureFilter().ignoreHiddenFiles());
    EXPECT_FALSE(model.pictureFilter().ignoreRestrictedFiles());
}

TEST(RootModel, LoadsTheRecents)
{
    test::FakeRootModelServices services;
    const RecentRecord record{"/music", 10, {}};
    services.defaults.setRecentRecords("recents", {record});
    services.documents.urls = {Url("/music", true)};
    RootModel model(services.get());
    EXPECT_THAT(model.recents().recentsList(), testing::ElementsAre(record));
}

TEST(RootModel, NonSystemFoldersAreThreeUrlStrings)
{
    test::FakeRootModelServices services;
    const RootModel model(services.get());
    EXPECT_THAT(
        model.nonSystemFolders(),
        testing::ElementsAre("file:///Local%20Apps/", "file:///Users/", "file:///Volumes/"));
}

TEST(RootModel, ANewVolumeTakesThePictureFilter)
{
    test::FakeRootModelServices services;
    RootModel model(services.get());
    model.pictureFilter().setIgnoreFreeSpace(true);
    const Volume& volume = installVolume(model);
    EXPECT_EQ(model.topFolder(), &volume);
    EXPECT_TRUE(volume.freeFile().ignored());
    EXPECT_FALSE(volume.unreadFile().ignored());
}

TEST(RootModel, ThePictureFilterChangesNothingInAPlainFolder)
{
    test::FakeRootModelServices services;
    RootModel model(services.get());
    model.pictureFilter().setIgnoreFreeSpace(true);
    model.pictureFilter().setIgnoreRestrictedFiles(true);
    model.setTopFolder(test::makeTree("/home", "a:1"));
    EXPECT_FALSE(model.topFolder()->ignored());
    EXPECT_FALSE(test::at(*model.topFolder(), "a").ignored());
}

TEST(RootModel, ApplyingThePictureFilterWithoutATreeDoesNothing)
{
    test::FakeRootModelServices services;
    RootModel model(services.get());
    model.applyPictureFilter();
    model.setTopFolder(nullptr);
    EXPECT_EQ(model.topFolder(), nullptr);
}

TEST(RootModel, AChangedPictureFilterFlipsTheFlagAndLeavesTheSizes)
{
    test::FakeRootModelServices services;
    RootModel model(services.get());
    const Volume& volume = installVolume(model);
    model.pictureFilter().setIgnoreRestrictedFiles(true);
    model.applyPictureFilter();
    EXPECT_TRUE(volume.unreadFile().ignored());
    EXPECT_FALSE(volume.freeFile().ignored());
    EXPECT_EQ(volume.unreadFile().totalAllocation(), 100U);
    EXPECT_EQ(volume.totalAllocation(), 700U);
    model.pictureFilter().setIgnoreRestrictedFiles(false);
    model.applyPictureFilter();
    EXPECT_FALSE(volume.unreadFile().ignored());
}

TEST(RootModel, TheSharedOneIsMadeOnceFromTheServicesInstalled)
{
    static test::FakeRootModelServices services;
    RootModel::setServices(services.get());
    RootModel& model = RootModel::sharedInstance();
    EXPECT_EQ(&RootModel::sharedInstance(), &model);
    EXPECT_EQ(model.nonSystemFolders().size(), 3U);
}

} // namespace
} // namespace tessera
