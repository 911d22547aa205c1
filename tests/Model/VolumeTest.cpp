// SPDX-License-Identifier: MIT
#include "Model/Volume.h"

#include "Model/Document.h"
#include "Model/TimeMachine.h"
#include "support/Fakes/FakeFileSystem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

using test::FixedFileSystem;

std::unique_ptr<Volume> volumeHolding(std::uint64_t bytes)
{
    auto volume = makeNode<Volume>("disk");
    volume->setOrigin("/mnt/disk");
    auto content = makeNode<Document>("content");
    content->setTotalAllocation(bytes);
    volume->addChild(std::move(content));
    return volume;
}

std::uint64_t sumOfChildren(const Volume& volume)
{
    std::uint64_t sum = 0;
    for (const File* child : volume.children()) {
        sum += child->totalAllocation();
    }
    return sum;
}

TEST(Volume, StartsWithItsTwoPseudoNodesInOrder)
{
    const auto volume = makeNode<Volume>("disk");
    ASSERT_EQ(volume->children().size(), 2U);
    EXPECT_EQ(volume->children()[0], &volume->freeFile());
    EXPECT_EQ(volume->children()[1], &volume->unreadFile());
    EXPECT_EQ(volume->freeSize(), 0U);
    EXPECT_EQ(volume->volumeSize(), 0U);
}

TEST(Volume, ChildrenSumToTheCapacity)
{
    const auto volume = volumeHolding(600);
    volume->refreshVolume(FixedFileSystem(FileSystemSizes{1000, 300}));
    EXPECT_EQ(volume->unreadFile().totalAllocation(), 100U);
    EXPECT_EQ(volume->freeFile().totalAllocation(), 300U);
    EXPECT_EQ(volume->totalAllocation(), 700U);
    EXPECT_EQ(sumOfChildren(*volume), 1000U);
    EXPECT_EQ(volume->volumeSize(), 1000U);
    EXPECT_EQ(volume->freeSize(), 300U);
}

TEST(Volume, AWalkThatFindsMoreThanTheUsedSpaceKeepsTheUnaccountedFigure)
{
    const auto volume = volumeHolding(750);
    volume->refreshVolume(FixedFileSystem(FileSystemSizes{1000, 300}));
    EXPECT_EQ(volume->unreadFile().totalAllocation(), 0U);
    EXPECT_EQ(volume->freeFile().totalAllocation(), 300U);
    EXPECT_EQ(volume->totalAllocation(), 700U);
}

TEST(Volume, ALaterWalkThatFindsTooMuchKeepsTheEarlierFigure)
{
    const auto volume = volumeHolding(600);
    volume->refreshVolume(FixedFileSystem(FileSystemSizes{1000, 300}));
    auto more = makeNode<Document>("more");
    more->setTotalAllocation(150);
    volume->insertChild(std::move(more));
    volume->refreshVolume(FixedFileSystem(FileSystemSizes{1000, 300}));
    EXPECT_EQ(volume->unreadFile().totalAllocation(), 100U);
}

TEST(Volume, FoundEqualToTheUsedSpaceKeepsTheUnaccountedFigure)
{
    const auto volume = volumeHolding(600);
    volume->refreshVolume(FixedFileSystem(FileSystemSizes{1000, 300}));
    volume->refreshVolume(FixedFileSystem(FileSystemSizes{900, 300}));
    EXPECT_EQ(volume->unreadFile().totalAllocation(), 100U);
}

TEST(Volume, ARefreshAfterADeletionFollowsTheFileSystem)
{
    const auto volume = volumeHolding(550);
    auto doomed = makeNode<Document>("doomed");
    doomed->setTotalAllocation(50);
    File& added = volume->addChild(std::move(doomed));
    volume->refreshVolume(FixedFileSystem(FileSystemSizes{1000, 300}));
    volume->removeChild(added);
    volume->refreshVolume(FixedFileSystem(FileSystemSizes{1000, 350}));
    EXPECT_EQ(volume->unreadFile().totalAllocation(), 100U);
}

TEST(Volume, WhatWasUnaccountedForIsNotFoundByALaterRefresh)
{
    const auto volume = volumeHolding(550);
    volume->refreshVolume(FixedFileSystem(FileSystemSizes{1000, 300}));
    testing::internal::CaptureStderr();
    volume->refreshVolume(FixedFileSystem(FileSystemSizes{1000, 350}));
    EXPECT_EQ(
        testing::internal::GetCapturedStderr(),
        "Volume Report { Total Size: 1000, Free Size: 350 }\n"
        "Scan report { Found Size: 550 }\n");
}

TEST(Volume, KnowsTheSizesOfAnotherDiskByTheNumberThatWasReadFirst)
{
    const auto volume = volumeHolding(550);
    FileSystemSizes sizes{.totalBytes = 1000, .freeBytes = 300};
    volume->refreshVolume(sizes);
    sizes.device = 8;
    EXPECT_TRUE(volume->mayBeSizesOfIt(sizes));
    volume->refreshVolume(sizes);
    sizes.device = 9;
    EXPECT_FALSE(volume->mayBeSizesOfIt(sizes));
    sizes.device = 0;
    EXPECT_TRUE(volume->mayBeSizesOfIt(sizes));
}

TEST(Volume, IgnoredChildrenAndABackupStoreCountAsFound)
{
    const auto volume = volumeHolding(400);
    volume->children()[2]->setIgnored(true);
    auto backups = makeNode<TimeMachine>({});
    backups->setTotalAllocation(200);
    volume->addChild(std::move(backups));
    volume->refreshVolume(FixedFileSystem(FileSystemSizes{1000, 300}));
    EXPECT_EQ(volume->unreadFile().totalAllocation(), 100U);
}

TEST(Volume, SizesThatNoDiskHasStopAtTheLargest)
{
    const auto volume = volumeHolding(600);
    volume->refreshVolume(FixedFileSystem(FileSystemSizes{0xFFFF'FFFF'FFFF'FFFF, 1000}));
    EXPECT_EQ(volume->volumeSize(), 0x7FFF'FFFF'FFFF'FFFFU);
    EXPECT_EQ(volume->totalAllocation(), 0x7FFF'FFFF'FFFF'FFFFU - 1000U);
}

TEST(Volume, ADiskWithMoreFreeThanThereIsHasNothingInUse)
{
    const auto volume = volumeHolding(600);
    volume->refreshVolume(FixedFileSystem(FileSystemSizes{1000, 1300}));
    EXPECT_EQ(volume->totalAllocation(), 0U);
    EXPECT_EQ(volume->freeFile().totalAllocation(), 1000U);
}

TEST(Volume, MissingSizesReadAsZeroAndKeepTheUnaccountedFigure)
{
    const auto volume = volumeHolding(600);
    volume->refreshVolume(FixedFileSystem(FileSystemSizes{1000, 300}));
    volume->refreshVolume(FixedFileSystem(std::nullopt));
    EXPECT_EQ(volume->volumeSize(), 0U);
    EXPECT_EQ(volume->freeSize(), 0U);
    EXPECT_EQ(volume->totalAllocation(), 0U);
    EXPECT_EQ(volume->unreadFile().totalAllocation(), 100U);
}

TEST(Volume, RefreshingSortsAndColoursTheChildren)
{
    const auto volume = volumeHolding(600);
    volume->refreshVolume(FixedFileSystem(FileSystemSizes{1000, 300}));
    EXPECT_EQ(volume->children()[0]->name(), "content");
    EXPECT_EQ(volume->children()[1]->name(), "Free Space");
    EXPECT_EQ(volume->children()[2]->name(), "Restricted Files");
    EXPECT_NE(volume->freeFile().hue(), 0);
}

TEST(Volume, AsksForItsMountPath)
{
    const FixedFileSystem fileSystem(FileSystemSizes{1000, 300});
    volumeHolding(1)->refreshVolume(fileSystem);
    EXPECT_EQ(fileSystem.askedFor(), "/mnt/disk");
}

TEST(Volume, RefreshingLogsBothReports)
{
    const auto volume = volumeHolding(600);
    testing::internal::CaptureStderr();
    volume->refreshVolume(FixedFileSystem(FileSystemSizes{1000, 300}));
    EXPECT_EQ(
        testing::internal::GetCapturedStderr(),
        "Volume Report { Total Size: 1000, Free Size: 300 }\n"
        "Scan report { Found Size: 600 }\n");
}

} // namespace
} // namespace tessera
