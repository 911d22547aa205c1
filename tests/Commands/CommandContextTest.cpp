// SPDX-License-Identifier: MIT
#include "Commands/CommandContext.h"

#include "Model/Document.h"
#include "Model/Folder.h"
#include "Model/FreeSpace.h"
#include "Model/TimeMachine.h"
#include "Model/TopFolder.h"
#include "Model/Unknown.h"
#include "Model/Volume.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The enabled ones of all commands of the menus that have a rule.
std::vector<Command> enabledCommands(const CommandContext& context)
{
    std::vector<Command> enabled;
    for (const Command command :
         {Command::ZoomOut,
          Command::ZoomIn,
          Command::OpenItem,
          Command::OpenWith,
          Command::QuickLook,
          Command::ShowInFinder,
          Command::CopyPath,
          Command::OpenTerminal,
          Command::Rescan,
          Command::Ignore,
          Command::Compress,
          Command::AddToBasket,
          Command::MoveToTrash,
          Command::Properties,
          Command::Home}) {
        if (isEnabled(command, context)) {
            enabled.push_back(command);
        }
    }
    return enabled;
}

CommandContext treeWith(const File* selected)
{
    return {false, true, true, selected};
}

const auto kAllForFolders = ElementsAre(
    Command::ZoomIn,
    Command::OpenItem,
    Command::OpenWith,
    Command::QuickLook,
    Command::ShowInFinder,
    Command::CopyPath,
    Command::OpenTerminal,
    Command::Rescan,
    Command::Ignore,
    Command::Compress,
    Command::AddToBasket,
    Command::MoveToTrash,
    Command::Properties,
    Command::Home);

TEST(CommandContext, OnTheHomeScreenNoCommandOfTheTreeIsEnabled)
{
    EXPECT_THAT(enabledCommands({true, false, true, nullptr}), IsEmpty());
}

TEST(CommandContext, WithoutATreeScreenASelectionDoesNotCount)
{
    const auto folder = makeNode<Folder>("docs");
    EXPECT_THAT(enabledCommands({true, false, false, folder.get()}), IsEmpty());
}

TEST(CommandContext, WithNothingSelectedTheWayHomeIsOpenAndWhatIsAboutTheFolderInView)
{
    EXPECT_THAT(
        enabledCommands(treeWith(nullptr)),
        ElementsAre(Command::CopyPath, Command::OpenTerminal, Command::Home));
}

TEST(CommandContext, TheWayHomeIsOpenWheneverThereIsNoHomeScreen)
{
    EXPECT_TRUE(isEnabled(Command::Home, {false, false, true, nullptr}));
    EXPECT_FALSE(isEnabled(Command::Home, {true, true, true, nullptr}));
}

TEST(CommandContext, ZoomOutIsDisabledWhileTheRootIsInView)
{
    EXPECT_FALSE(isEnabled(Command::ZoomOut, {false, true, true, nullptr}));
    EXPECT_TRUE(isEnabled(Command::ZoomOut, {false, true, false, nullptr}));
}

TEST(CommandContext, ASelectedFolderEnablesAllElseThatActsOnItems)
{
    const auto folder = makeNode<Folder>("docs");
    EXPECT_THAT(enabledCommands(treeWith(folder.get())), kAllForFolders);
}

TEST(CommandContext, TheRootsOfScansAreFoldersToo)
{
    const auto top = makeNode<TopFolder>("top");
    const auto volume = makeNode<Volume>("disk");
    EXPECT_THAT(enabledCommands(treeWith(top.get())), kAllForFolders);
    EXPECT_THAT(enabledCommands(treeWith(volume.get())), kAllForFolders);
}

TEST(CommandContext, ASelectedDocumentEnablesWhatNeedsNoFolder)
{
    const auto document = makeNode<Document>("a");
    EXPECT_THAT(
        enabledCommands(treeWith(document.get())),
        ElementsAre(
            Command::OpenItem,
            Command::OpenWith,
            Command::QuickLook,
            Command::ShowInFinder,
            Command::CopyPath,
            Command::OpenTerminal,
            Command::Compress,
            Command::AddToBasket,
            Command::MoveToTrash,
            Command::Properties,
            Command::Home));
}

TEST(CommandContext, BoxesThatStandForNoItemEnableQuickLookAndShowInFinderOnly)
{
    const auto freeSpace = makeNode<FreeSpace>("");
    const auto unknown = makeNode<Unknown>("");
    const auto timeMachine = makeNode<TimeMachine>("");
    const auto both = ElementsAre(Command::QuickLook, Command::ShowInFinder, Command::Home);
    EXPECT_THAT(enabledCommands(treeWith(freeSpace.get())), both);
    EXPECT_THAT(enabledCommands(treeWith(unknown.get())), both);
    EXPECT_THAT(enabledCommands(treeWith(timeMachine.get())), both);
}

TEST(CommandContext, WhateverIsSelectedCanBeOpened)
{
    const auto folder = makeNode<Folder>("docs");
    const auto freeSpace = makeNode<FreeSpace>("");
    EXPECT_TRUE(isEnabled(Command::Open, treeWith(folder.get())));
    EXPECT_TRUE(isEnabled(Command::Open, treeWith(freeSpace.get())));
    EXPECT_FALSE(isEnabled(Command::Open, treeWith(nullptr)));
}

TEST(CommandContext, RescanIsOfTheSelectedFolderOrTheOneInView)
{
    const auto folder = makeNode<Folder>("docs");
    const auto document = makeNode<Document>("a");
    CommandContext context = treeWith(nullptr);
    EXPECT_FALSE(isEnabled(Command::Rescan, context));
    context.folderInView = folder.get();
    EXPECT_TRUE(isEnabled(Command::Rescan, context));
    context.selectedFile = document.get();
    EXPECT_FALSE(isEnabled(Command::Rescan, context));
    context.selectedFile = folder.get();
    EXPECT_TRUE(isEnabled(Command::Rescan, context));
}

TEST(CommandContext, RescanWaitsForAnotherAndStaysOutOfMountPoints)
{
    const auto folder = makeNode<Folder>("docs");
    CommandContext context = treeWith(folder.get());
    context.rescanObstacle = RescanObstacle::AnotherRescan;
    EXPECT_TRUE(whyDisabled(Command::Rescan, context).startsWith(QStringLiteral("A rescan is")));
    context.rescanObstacle = RescanObstacle::MountPoint;
    EXPECT_TRUE(whyDisabled(Command::Rescan, context)
                    .startsWith(QStringLiteral("A disk is mounted at "
                                               "'docs'.")));
}

TEST(CommandContext, WhileAScanRunsNothingIsReloaded)
{
    EXPECT_TRUE(isEnabled(Command::Reload, treeWith(nullptr)));
    EXPECT_TRUE(isEnabled(Command::Reload, {.hasHomeScreen = true}));
    EXPECT_FALSE(isEnabled(Command::Reload, {.hasHomeScreen = true, .isScanRunning = true}));
}

TEST(CommandContext, UndoAndRedoAreEnabledUnlessSomethingSpeaksAgainstThem)
{
    CommandContext context;
    context.whyNoUndo = QStringLiteral("No undo.");
    EXPECT_EQ(whyDisabled(Command::Undo, context), QStringLiteral("No undo."));
    EXPECT_TRUE(isEnabled(Command::Redo, context));
    context.whyNoRedo = QStringLiteral("No redo.");
    EXPECT_EQ(whyDisabled(Command::Redo, context), QStringLiteral("No redo."));
}

TEST(CommandContext, WithoutATreeThereMustBeAScanFirst)
{
    const QString scan = QStringLiteral("Scan a disk or a folder first.");
    const QString wait = QStringLiteral("A scan is running. Wait until it has ended.");
    for (const Command command : {Command::MoveToTrash, Command::ZoomOut, Command::SpaceLedger}) {
        EXPECT_EQ(whyDisabled(command, {.hasHomeScreen = true}), scan);
        EXPECT_EQ(whyDisabled(command, {.hasHomeScreen = true, .isScanRunning = true}), wait);
    }
    EXPECT_EQ(whyDisabled(Command::Home, {.hasHomeScreen = true, .isScanRunning = true}), wait);
    EXPECT_NE(whyDisabled(Command::Home, {.hasHomeScreen = true}), wait);
}

TEST(CommandContext, TheWayOutSaysWhatWasScanned)
{
    const auto folder = makeNode<Folder>("docs");
    CommandContext context = treeWith(nullptr);
    context.folderInView = folder.get();
    EXPECT_TRUE(whyDisabled(Command::ZoomOut, context).startsWith(QStringLiteral("'docs' is all")));
}

/// All states that make a difference to some command, as far as they go together.
std::vector<CommandContext> allContexts(const std::vector<const File*>& selections)
{
    std::vector<CommandContext> contexts;
    for (const bool isScanRunning : {false, true}) {
        contexts.push_back({.hasHomeScreen = true, .isScanRunning = isScanRunning});
    }
    for (const File* const selected : selections) {
        for (const auto obstacle :
             {RescanObstacle::None, RescanObstacle::AnotherRescan, RescanObstacle::MountPoint}) {
            for (const bool isOfDisk : {false, true}) {
                contexts.push_back(
                    {.hasTreeScreen = true,
                     .isRootInView = !isOfDisk,
                     .selectedFile = selected,
                     .rescanObstacle = obstacle,
                     .isDiskScanned = isOfDisk});
            }
        }
    }
    return contexts;
}

TEST(CommandContext, WhatIsDisabledSaysWhyInASentence)
{
    const auto folder = makeNode<Folder>("docs");
    const auto document = makeNode<Document>("a");
    const auto freeSpace = makeNode<FreeSpace>("");
    std::size_t disabled = 0;
    for (CommandContext& context :
         allContexts({nullptr, folder.get(), document.get(), freeSpace.get()})) {
        context.whyNoUndo = QStringLiteral("There is nothing to undo.");
        context.whyNoRedo = QStringLiteral("There is nothing to redo.");
        for (int number = 0; number <= static_cast<int>(Command::About); ++number) {
            const auto command = static_cast<Command>(number);
            const QString reason = whyDisabled(command, context);
            EXPECT_EQ(isEnabled(command, context), reason.isEmpty()) << number;
            if (!reason.isEmpty()) {
                ++disabled;
                EXPECT_GE(reason.count(QLatin1Char(' ')), 3) << number;
                EXPECT_TRUE(reason.endsWith(QLatin1Char('.'))) << number;
                EXPECT_FALSE(reason.contains(QLatin1Char('%'))) << number;
            }
        }
    }
    EXPECT_GT(disabled, 100U);
}

TEST(CommandContext, TheBasketIsOfATreeOnScreen)
{
    EXPECT_TRUE(isEnabled(Command::Basket, treeWith(nullptr)));
    EXPECT_FALSE(isEnabled(Command::Basket, {true, false, true, nullptr}));
}

TEST(CommandContext, OtherEntriesAreAlwaysEnabled)
{
    for (const Command command :
         {Command::OpenFolder,
          Command::Preferences,
          Command::Quit,
          Command::FullScreen,
          Command::Features,
          Command::Questions,
          Command::About}) {
        const int number = static_cast<int>(command);
        EXPECT_TRUE(isEnabled(command, {true, false, true, nullptr})) << number;
        EXPECT_TRUE(isEnabled(command, treeWith(nullptr))) << number;
    }
}

} // namespace
} // namespace tessera
