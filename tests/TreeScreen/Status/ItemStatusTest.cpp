// SPDX-License-Identifier: MIT
#include "TreeScreen/Status/ItemStatus.h"

#include "Layout/MultiLayoutObject.h"
#include "Model/Document.h"
#include "Model/FileSystemAttributes.h"
#include "Model/Volume.h"
#include "support/MakeTree.h"

#include <QLocale>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;

/// What is said of an item of a tree while its top, or the folder of that path, is in view.
class ItemStatusTest : public testing::Test {
protected:
    void show(std::string_view items) { tree = test::makeTree("/home/anna", items); }

    File& node(std::string_view path) const { return test::at(*tree, path); }

    static std::vector<std::string> figures(const File& item, const Folder& inView)
    {
        const QStringList shown = statusOf(item, inView).figures;
        std::vector<std::string> texts(static_cast<std::size_t>(shown.size()));
        std::ranges::transform(shown, texts.begin(), &QString::toStdString);
        return texts;
    }
    std::vector<std::string> figures(std::string_view path) const
    {
        return figures(node(path), *tree);
    }

    std::unique_ptr<TopFolder> tree;
};

TEST_F(ItemStatusTest, AFileHasItsSizeAndItsShareOfTheFolderInView)
{
    show("film:700000 song:300000");
    EXPECT_EQ(statusOf(node("film"), *tree).name, QStringLiteral("film"));
    EXPECT_THAT(figures("film"), ElementsAre("700 KB", "70.0% of anna"));
}

TEST_F(ItemStatusTest, AFolderHasTheNumberOfItemsDirectlyInIt)
{
    show("docs/ ( a:100 more/ ( b:100 c:100 ) ) d:700");
    EXPECT_THAT(figures("docs"), ElementsAre("300 B", "2 items", "30.0% of anna"));
}

TEST_F(ItemStatusTest, OneItemIsNotSeveral)
{
    show("docs/ ( a:100 ) empty/ ( ) b:100");
    EXPECT_THAT(figures("docs"), ElementsAre("100 B", "1 item", "50.0% of anna"));
    EXPECT_THAT(figures("empty"), ElementsAre("0 B", "0 items", "0.0% of anna"));
}

TEST_F(ItemStatusTest, AShareIsOfWhatIsInViewBeItFarAbove)
{
    show("docs/ ( more/ ( a:250 ) b:250 ) c:500");
    EXPECT_THAT(figures("docs/more/a"), ElementsAre("250 B", "25.0% of anna"));
    const auto& docs = static_cast<const Folder&>(node("docs"));
    EXPECT_THAT(figures(node("docs/more/a"), docs), ElementsAre("250 B", "50.0% of docs"));
}

TEST_F(ItemStatusTest, TheFolderInViewHasItsShareOfAllThatWasScanned)
{
    show("docs/ ( more/ ( a:250 ) b:250 ) c:500");
    const auto& more = static_cast<const Folder&>(node("docs/more"));
    EXPECT_THAT(figures(more, more), ElementsAre("250 B", "1 item", "25.0% of anna"));
}

TEST_F(ItemStatusTest, AllThatWasScannedIsAShareOfNothing)
{
    show("docs/ ( a:250 ) c:500");
    EXPECT_THAT(figures(*tree, *tree), ElementsAre("750 B", "2 items"));
}

TEST_F(ItemStatusTest, AShareTooSmallForTheFigureIsSaidToBeLess)
{
    show("a:1 b:999");
    EXPECT_THAT(figures("a"), ElementsAre("1 B", "0.1% of anna"));
    show("a:1 b:1000");
    EXPECT_THAT(figures("a"), ElementsAre("1 B", "less than 0.1% of anna"));
}

TEST_F(ItemStatusTest, AFolderWithoutAnySizeHasNoShares)
{
    show("empty/ ( )");
    EXPECT_THAT(figures("empty"), ElementsAre("0 B", "0 items"));
}

TEST_F(ItemStatusTest, WhatIsLeftOutOfThePictureStillBelongsToTheWhole)
{
    show("docs/ ( a:500 ) b:500");
    node("docs").setIgnored(true);
    EXPECT_THAT(figures("b"), ElementsAre("500 B", "50.0% of anna"));
}

TEST_F(ItemStatusTest, AFolderThatIsReadAnewSaysSo)
{
    show("docs/ ( a:500 ) b:500");
    node("docs").setRescanning(true);
    EXPECT_THAT(
        figures("docs"), ElementsAre("500 B", "1 item", "being rescanned", "50.0% of anna"));
}

TEST_F(ItemStatusTest, ANameOfAFileThatIsCountedElsewhereSaysWhere)
{
    show("docs/ ( x:700#5/2 ) other/ ( y:700#5/2 )");
    EXPECT_THAT(figures("docs/x"), ElementsAre("700 B", "100.0% of anna"));
    EXPECT_THAT(
        figures("other/y"),
        ElementsAre("one of 2 names of a file that is counted at /home/anna/docs/x"));
}

TEST_F(ItemStatusTest, ManyItemsAreCountedAsTheLocaleDoes)
{
    std::string items = "docs/ ( ";
    for (int i = 0; i < 1234; ++i) {
        items.append("f").append(std::to_string(i)).append(":1 ");
    }
    show(items + ")");
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_THAT(figures("docs"), ElementsAre("1 KB", "1.234 items", "100,0% of anna"));
    QLocale::setDefault(before);
}

TEST_F(ItemStatusTest, NoPartOfANameIsTakenForAPlaceInTheText)
{
    tree = test::makeTree("/home/%1%2", "a:100");
    EXPECT_THAT(figures("a"), ElementsAre("100 B", "100.0% of %1%2"));
}

TEST_F(ItemStatusTest, WhatWouldMisleadInANameIsShownAsSomethingElse)
{
    show("");
    // NOLINTNEXTLINE(misc-misleading-bidirectional): such names are what is tested
    auto hostile = makeNode<Folder>("a\n\xE2\x80\xAE<b>");
    const Folder& folder = *hostile;
    tree->insertChild(std::move(hostile));
    EXPECT_EQ(
        statusOf(folder, *tree).name,
        QStringLiteral("a") + QChar(0x240A) + QChar(0xFFFD) + QStringLiteral("<b>"));
}

TEST_F(ItemStatusTest, TheRootOfTheDiskIsCalledByItsPath)
{
    tree = test::makeTree("/", "a:100");
    EXPECT_EQ(statusOf(*tree, *tree).name, QStringLiteral("/"));
    EXPECT_THAT(figures("a"), ElementsAre("100 B", "100.0% of /"));
}

TEST_F(ItemStatusTest, AGroupOfSmallItemsHasTheirSumAndTheirNumber)
{
    show("a:30 b:20 c:950");
    MultiLayoutObject group;
    group.refs = {&node("a"), &node("b")};
    group.totalAllocation = 50;
    const ItemStatus status = statusOf(group, *tree);
    EXPECT_EQ(status.name, QStringLiteral("Small items"));
    EXPECT_THAT(
        status.figures,
        ElementsAre(
            QStringLiteral("50 B"), QStringLiteral("2 items"), QStringLiteral("5.0% of anna")));
}

TEST_F(ItemStatusTest, TheBoxOfANodeIsAsTheNode)
{
    show("a:30 b:20");
    LayoutObject box;
    box.ref = &node("a");
    EXPECT_EQ(statusOf(box, *tree), statusOf(node("a"), *tree));
}

/// A disk of 1000 bytes, of which 300 are free and 300 in a film and a folder.
class StatusOnADisk : public ItemStatusTest {
protected:
    StatusOnADisk()
    {
        auto volume = makeNode<Volume>("disk");
        volume->setOrigin("/mnt/disk");
        auto film = makeNode<Document>("film");
        film->setTotalAllocation(200);
        auto docs = makeNode<Folder>("docs");
        auto text = makeNode<Document>("text");
        text->setTotalAllocation(100);
        docs->addChild(std::move(text));
        volume->addChild(std::move(film));
        volume->addChild(std::move(docs));
        volume->refreshVolume(FileSystemSizes{.totalBytes = 1000, .freeBytes = 300});
        disk = volume.get();
        tree = std::move(volume);
    }

    Volume* disk = nullptr;
};

TEST_F(StatusOnADisk, SharesAreOfTheWholeDiskTheFreeSpaceIncluded)
{
    EXPECT_THAT(figures("film"), ElementsAre("200 B", "20.0% of disk"));
    EXPECT_THAT(figures(disk->freeFile(), *disk), ElementsAre("300 B", "30.0% of disk"));
    EXPECT_THAT(figures(disk->unreadFile(), *disk), ElementsAre("400 B", "40.0% of disk"));
}

TEST_F(StatusOnADisk, SpaceIsCalledWhatItsBoxIs)
{
    EXPECT_EQ(statusOf(disk->freeFile(), *disk).name, QStringLiteral("Free Space"));
    EXPECT_EQ(statusOf(disk->unreadFile(), *disk).name, QStringLiteral("Restricted Files"));
}

TEST_F(StatusOnADisk, SpaceIsNoItem)
{
    EXPECT_THAT(figures(*disk, *disk), ElementsAre("700 B", "2 items"));
}

TEST_F(StatusOnADisk, AFolderInViewHasItsShareOfTheDisk)
{
    const auto& docs = static_cast<const Folder&>(node("docs"));
    EXPECT_THAT(figures(docs, docs), ElementsAre("100 B", "1 item", "10.0% of disk"));
}

TEST_F(StatusOnADisk, WithoutTheSizeOfTheDiskThereAreNoShares)
{
    disk->refreshVolume(FileSystemSizes{});
    EXPECT_THAT(figures("film"), ElementsAre("200 B"));
}

} // namespace
} // namespace tessera
