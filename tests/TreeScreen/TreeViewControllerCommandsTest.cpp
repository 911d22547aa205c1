// SPDX-License-Identifier: MIT
#include "Model/UserDefaults.h"
#include "TreeScreen/TreeViewControllerFixture.h"

#include <QClipboard>
#include <QGuiApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace tessera {
namespace {

class TreeViewControllerCommandsTest : public test::TreeViewControllerFixture { };

TEST_F(TreeViewControllerCommandsTest, WithoutASelectionNoCommandButRescanMakesSense)
{
    EXPECT_TRUE(canDo(Command::Rescan));
    for (const Command command :
         {Command::QuickLook,
          Command::ShowInFinder,
          Command::ZoomIn,
          Command::Ignore,
          Command::Compress,
          Command::MoveToTrash}) {
        EXPECT_FALSE(canDo(command));
    }
}

TEST_F(TreeViewControllerCommandsTest, OnlyFoldersAreZoomedIntoAndRescanned)
{
    select("docs");
    EXPECT_TRUE(canDo(Command::ZoomIn));
    EXPECT_TRUE(canDo(Command::Rescan));
    select("docs/a");
    EXPECT_FALSE(canDo(Command::ZoomIn));
    EXPECT_FALSE(canDo(Command::Rescan));
    EXPECT_TRUE(canDo(Command::MoveToTrash));
}

TEST_F(TreeViewControllerCommandsTest, SpaceIsNeitherMovedNorCompressed)
{
    const auto space = makeNode<FreeSpace>("");
    controller->setSelectedFile(space.get());
    for (const Command command : {Command::Compress, Command::MoveToTrash}) {
        EXPECT_FALSE(canDo(command));
        controller->perform(command);
    }
    EXPECT_EQ(services.archiver.program, "");
    EXPECT_TRUE(services.workspace.recycled.empty());
    controller->setSelectedFile(nullptr);
}

TEST_F(TreeViewControllerCommandsTest, OtherProgramsGetTheSelectedItem)
{
    select("docs/a");
    controller->perform(Command::OpenItem);
    controller->perform(Command::OpenTerminal);
    controller->perform(Command::Properties);
    EXPECT_EQ(
        services.otherPrograms.asked,
        (std::vector<std::string>{
            "open /data/docs/a", "terminal /data/docs", "properties /data/docs/a"}));
}

TEST_F(TreeViewControllerCommandsTest, WithoutASelectionTheFolderInViewHasAPathAndATerminal)
{
    controller->zoomInFolder(*nodeCast<Folder>(&node("docs")));
    controller->setSelectedFile(nullptr);
    controller->perform(Command::OpenItem);
    controller->perform(Command::Properties);
    controller->perform(Command::OpenTerminal);
    controller->perform(Command::CopyPath);
    EXPECT_EQ(services.otherPrograms.asked, std::vector<std::string>{"terminal /data/docs"});
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("/data/docs"));
    EXPECT_EQ(said(), QStringLiteral("The path of 'docs' is copied."));
}

TEST_F(TreeViewControllerCommandsTest, SpaceHasNoPathOfItsOwn)
{
    const auto space = makeNode<FreeSpace>("");
    controller->setSelectedFile(space.get());
    for (const Command command :
         {Command::OpenItem,
          Command::OpenWith,
          Command::CopyPath,
          Command::OpenTerminal,
          Command::Properties}) {
        EXPECT_FALSE(canDo(command));
        EXPECT_FALSE(controller->whyNot(command).isEmpty());
        controller->perform(command);
    }
    EXPECT_TRUE(services.otherPrograms.asked.empty());
    controller->setSelectedFile(nullptr);
}

TEST_F(TreeViewControllerCommandsTest, AnArchivedOriginalGoesToTheTrashAsTheVeryItemThatItWas)
{
    ExpectedItem expected;
    expected.state.identity = {3, 4};
    controller->trashOriginal(Url("/data/docs", true), expected);
    ASSERT_EQ(services.workspace.recycledItems.size(), 1U);
    EXPECT_EQ(services.workspace.recycledItems.front().url.path(), "/data/docs");
    ASSERT_TRUE(services.workspace.recycledItems.front().expected.has_value());
    EXPECT_EQ(
        services.workspace.recycledItems.front().expected->state.identity, (FileIdentity{3, 4}));
}

TEST_F(TreeViewControllerCommandsTest, AnArchivedOriginalGoesToTheTrashAfterTheUsualWarning)
{
    services.alert.answer = Alert::kFirstButton + 1;
    services.defaults.setBoolean(kWarnDeleteSystemKey, true);
    controller->trashOriginal(Url("/data/docs", true), {});
    EXPECT_EQ(services.alert.asked.size(), 1U);
    EXPECT_TRUE(services.workspace.recycled.empty());
}

TEST_F(TreeViewControllerCommandsTest, AnOriginalThatTheTreeDoesNotHaveStays)
{
    controller->trashOriginal(Url("/data/gone", true), {});
    controller->trashOriginal(Url("/elsewhere", true), {});
    EXPECT_TRUE(services.workspace.recycled.empty());
    EXPECT_EQ(services.alert.told.size(), 2U);
}

TEST_F(TreeViewControllerCommandsTest, ShowsAFileInTheFileManager)
{
    select("docs/a");
    controller->perform(Command::ShowInFinder);
    EXPECT_EQ(services.workspace.revealed, std::vector<std::string>{"/data/docs/a"});
}

TEST_F(TreeViewControllerCommandsTest, SaysWhenThereIsNoFileManager)
{
    services.workspace.answer = false;
    select("docs/a");
    controller->perform(Command::ShowInFinder);
    EXPECT_EQ(services.alert.told.size(), 1U);
}

TEST_F(TreeViewControllerCommandsTest, SaysSoAlsoWhenThatIsKnownLater)
{
    services.workspace.answersLater = true;
    select("docs");
    controller->perform(Command::ShowInFinder);
    ASSERT_TRUE(services.alert.told.empty());
    services.workspace.lateAnswer(false);
    ASSERT_EQ(services.alert.told.size(), 1U);
    EXPECT_TRUE(services.alert.told[0].informativeText.contains(QStringLiteral("'docs'")));
}

TEST_F(TreeViewControllerCommandsTest, NobodyIsToldWhenTheScreenIsGoneByThen)
{
    services.workspace.answersLater = true;
    select("docs");
    controller->perform(Command::ShowInFinder);
    controller.reset();
    services.workspace.lateAnswer(false);
    EXPECT_TRUE(services.alert.told.empty());
}

TEST_F(TreeViewControllerCommandsTest, MovesTheSelectedItemToTheTrash)
{
    select("c\xFF");
    controller->perform(Command::MoveToTrash);
    ASSERT_EQ(services.workspace.recycled.size(), 1U);
    EXPECT_EQ(services.workspace.recycled[0][0].path(), "/data/c\xFF");
}

TEST_F(TreeViewControllerCommandsTest, WhatIsInViewEndsWhenItIsTrashed)
{
    select("docs");
    const Url url = node("docs").url();
    controller->trashItem();
    controller->zoomIn();
    select("docs/a");
    ASSERT_EQ(controller->currentFolder(), &node("docs"));
    RecycleResult result;
    result.newUrls[url.absoluteString()] = Url("/trash/docs", true);
    ASSERT_TRUE(services.workspace.finishRecycling(result));
    EXPECT_EQ(controller->currentFolder(), model.topFolder());
    EXPECT_EQ(controller->selectedFile(), nullptr);
}

TEST_F(TreeViewControllerCommandsTest, CompressesTheSelectedItem)
{
    select("docs");
    controller->perform(Command::Compress);
    EXPECT_EQ(services.archiver.program, "/archiver");
    EXPECT_EQ(
        services.archiver.arguments,
        (std::vector<std::string>{
            "-c", "-k", "--sequesterRsrc", "--folder", "/data/docs", "/data/docs.zip"}));
    failToCompress();
}

TEST_F(TreeViewControllerCommandsTest, AnArchiveThatIsDoneWhenTheScreenIsGoneIsAnnouncedAllTheSame)
{
    std::vector<std::string> told;
    QObject::connect(&services.diskChanges, &DiskChanges::itemGone, [&](const Url& place) {
        told.push_back("gone: " + place.path());
    });
    QObject::connect(
        &services.diskChanges,
        &DiskChanges::itemCompressed,
        [&](const std::optional<Url>& archive) { told.push_back("made: " + archive->path()); });
    select("docs");
    controller->perform(Command::Compress);
    controller.reset();

    services.resourceValues.size = 1'000'000;
    services.archiver.output = "1 2\n"; // the file that it made
    services.archiver.onTerminated(0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return told.size() == 2; }));
    EXPECT_THAT(told, testing::ElementsAre("gone: /data/docs.zip.part", "made: /data/docs.zip"));
    // The window that says what was saved stays, and would outlive the services that it works with.
    emit qApp->aboutToQuit({});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST_F(TreeViewControllerCommandsTest, AnArchiveJoinsTheTree)
{
    services.resourceValues.size = 4096;
    emit services.diskChanges.itemCompressed(Url("/data/docs/a.zip", false));
    EXPECT_EQ(node("docs/a.zip").totalAllocation(), 4096U);
    EXPECT_EQ(node("docs/a.zip").type(), NodeType::Document);
    EXPECT_EQ(node("docs").totalAllocation(), 704096U);
    EXPECT_EQ(view.branches().front()->layoutItems().size(), 2U);
}

TEST_F(TreeViewControllerCommandsTest, AnArchiveJoinsAFolderBesideOneThatItsNameBeginsWith)
{
    services.resourceValues.size = 4096;
    model.topFolder()->insertChild(makeNode<Folder>("docs2"));
    emit services.diskChanges.itemCompressed(Url("/data/docs2/a.zip", false));
    ASSERT_EQ(node("docs2").totalAllocation(), 4096U);
    EXPECT_EQ(node("docs2/a.zip").type(), NodeType::Document);
}

TEST_F(TreeViewControllerCommandsTest, AnArchiveOfAScanOverALinkIsMadeWhereTheItemIs)
{
    model.topFolder()->setRealOrigin("/disk");
    select("docs");
    controller->perform(Command::Compress);
    EXPECT_EQ(
        services.archiver.arguments,
        (std::vector<std::string>{
            "-c", "-k", "--sequesterRsrc", "--folder", "/disk/docs", "/disk/docs.zip"}));
    failToCompress();
}

TEST_F(TreeViewControllerCommandsTest, AnArchiveOfAScanOverALinkJoinsTheTree)
{
    model.topFolder()->setRealOrigin("/disk");
    services.resourceValues.sizes["/disk/docs/a.zip"] = 4096;
    emit services.diskChanges.itemCompressed(Url("/disk/docs/a.zip", false));
    EXPECT_EQ(node("docs/a.zip").totalAllocation(), 4096U);
}

TEST_F(TreeViewControllerCommandsTest, AnArchiveThatARescanMetIsNotAddedTwice)
{
    services.resourceValues.size = 4096;
    select("docs/a");
    emit services.diskChanges.itemCompressed(Url("/data/docs/a", false));
    EXPECT_EQ(node("docs/a").totalAllocation(), 4096U);
    EXPECT_EQ(node("docs").totalAllocation(), 204096U);
    EXPECT_EQ(controller->selectedFile(), nullptr);
}

TEST_F(TreeViewControllerCommandsTest, AnArchiveThatCannotBeReadHasNoSize)
{
    emit services.diskChanges.itemCompressed(Url("/data/docs/a.zip", false));
    EXPECT_EQ(node("docs/a.zip").totalAllocation(), 0U);
}

TEST_F(TreeViewControllerCommandsTest, AnArchiveElsewhereIsNobodysConcern)
{
    emit services.diskChanges.itemCompressed(Url("/trash/a.zip", false));
    emit services.diskChanges.itemCompressed(std::nullopt);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 1000000U);
}

TEST_F(TreeViewControllerCommandsTest, ThePreviewHasOneItemWhateverIsSelected)
{
    controller->quickLook();
    EXPECT_EQ(panel.windowTitle(), QStringLiteral("Quick Look"));
    EXPECT_TRUE(files->opened().empty());
    select("docs/a");
    files->waitUntilAsked("/data/docs/a");
    EXPECT_EQ(files->opened(), std::vector<std::string>{"/data/docs/a"});
    EXPECT_TRUE(QTest::qWaitFor([this] { return panel.windowTitle() == QStringLiteral("a"); }));
}

TEST_F(TreeViewControllerCommandsTest, ThePreviewLooksWhereTheLinksToTheScanLed)
{
    model.topFolder()->setRealOrigin("/disk");
    select("docs/a");
    controller->quickLook();
    files->waitUntilAsked("/disk/docs/a");
    EXPECT_EQ(files->opened(), std::vector<std::string>{"/disk/docs/a"});
}

TEST_F(TreeViewControllerCommandsTest, ThePreviewGrowsOutOfTheSelectedBox)
{
    services.motion.reduced = false;
    select("c\xFF");
    const Rect box = view.findRectForFile(node("c\xFF")).value();
    controller->quickLook();
    const QRectF frame(view.mapToGlobal(QPointF(box.x, box.y)), QSizeF(box.width, box.height));
    EXPECT_TRUE(panel.animation().isRunning());
    EXPECT_EQ(panel.geometry(), frame.toAlignedRect());
}

TEST_F(TreeViewControllerCommandsTest, WhatIsNotInThePictureHasNoPlaceToGrowOutOf)
{
    services.motion.reduced = false;
    controller->quickLook();
    EXPECT_TRUE(panel.isOpen());
    EXPECT_FALSE(panel.animation().isRunning());
}

TEST_F(TreeViewControllerCommandsTest, KeysInThePreviewReachTheTreeScreen)
{
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier);
    QCoreApplication::sendEvent(&panel, &down);
    EXPECT_TRUE(down.isAccepted());
    EXPECT_EQ(controller->selectedFile(), &node("docs"));
    QKeyEvent up(QEvent::KeyRelease, Qt::Key_Left, Qt::NoModifier);
    QCoreApplication::sendEvent(&panel, &up);
    EXPECT_FALSE(up.isAccepted());
}

TEST_F(TreeViewControllerCommandsTest, SpaceOnTheWayBackOpensThePreviewOfWhatIsSelectedByThen)
{
    services.motion.reduced = false;
    select("docs/a");
    controller->quickLook();
    QTest::keyClick(&panel, Qt::Key_Escape);
    EXPECT_FALSE(panel.isOpen());
    select("docs/b");
    QTest::keyClick(&panel, Qt::Key_Space);
    EXPECT_TRUE(panel.isOpen());
    EXPECT_EQ(panel.windowTitle(), QStringLiteral("b"));
}

TEST_F(TreeViewControllerCommandsTest, GoingAwayTakesThePreviewAlong)
{
    select("docs/a");
    controller->quickLook();
    controller.reset();
    EXPECT_FALSE(panel.isOpen());
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(TreeViewControllerCommandsTest, GoingAwayAfterThePreviewMakesNoOther)
{
    select("docs/a");
    controller->quickLook();
    QuickLookPanel::releaseSharedInstance();
    controller.reset();
    EXPECT_THAT(
        QApplication::topLevelWidgets(),
        testing::Not(testing::Contains(testing::Property(
            &QObject::objectName, testing::Eq(QStringLiteral("quickLookPanel"))))));
}

TEST_F(TreeViewControllerCommandsTest, NobodyHearsThePreviewWhenTheScreenIsGone)
{
    controller.reset();
    EXPECT_FALSE(QObject::disconnect(&panel, &QuickLookPanel::keyPressed, nullptr, nullptr));
    EXPECT_FALSE(QObject::disconnect(&panel, &QuickLookPanel::reopenRequested, nullptr, nullptr));
}

} // namespace
} // namespace tessera
