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

CommandContext whereRescanIsPossible(const CommandContext& context)
{
    CommandContext result = context;
    result.canRescan = true;
    return result;
}

const auto kAllForFolders = ElementsAre(
    Command::ZoomIn,
    Command::OpenItem,
    Command::OpenWith,
    Command::QuickLook,
    Command::ShowInFinder,
    Command::CopyPath,
    Command::OpenTerminal,
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

TEST(CommandContext, RescanIsEnabledWhenTheTreeScreenSaysSo)
{
    const auto folder = makeNode<Folder>("docs");
    EXPECT_FALSE(isEnabled(Command::Rescan, treeWith(folder.get())));
    EXPECT_TRUE(isEnabled(Command::Rescan, whereRescanIsPossible(treeWith(folder.get()))));
    EXPECT_TRUE(isEnabled(Command::Rescan, whereRescanIsPossible(treeWith(nullptr))));
    EXPECT_FALSE(
        isEnabled(Command::Rescan, whereRescanIsPossible({true, false, true, folder.get()})));
}

TEST(CommandContext, ReloadIsEnabledWhenTheMainWindowSaysSo)
{
    CommandContext context = treeWith(nullptr);
    EXPECT_FALSE(isEnabled(Command::Reload, context));
    context.canReload = true;
    EXPECT_TRUE(isEnabled(Command::Reload, context));
    EXPECT_TRUE(isEnabled(Command::Reload, {.hasHomeScreen = true, .canReload = true}));
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
