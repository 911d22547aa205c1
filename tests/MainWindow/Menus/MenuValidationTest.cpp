// SPDX-License-Identifier: MIT
#include "MainWindow/Menus/MenuValidation.h"

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

/// The enabled ones of all tags that have a rule.
std::vector<int> enabledTags(const MenuContext& context)
{
    std::vector<int> enabled;
    for (const int tag : {31, 32, 33, 34, 35, 36, 37, 38, 41}) {
        if (validateMenuItem(tag, context)) {
            enabled.push_back(tag);
        }
    }
    return enabled;
}

MenuContext treeWith(const File* selected)
{
    return {false, true, true, selected};
}

MenuContext whereRescanIsPossible(const MenuContext& context)
{
    MenuContext result = context;
    result.canRescan = true;
    return result;
}

TEST(MenuValidation, OnTheHomeScreenNoCommandOfTheTreeIsEnabled)
{
    EXPECT_THAT(enabledTags({true, false, true, nullptr}), IsEmpty());
}

TEST(MenuValidation, WithoutATreeScreenASelectionDoesNotCount)
{
    const auto folder = makeNode<Folder>("docs");
    EXPECT_THAT(enabledTags({true, false, false, folder.get()}), IsEmpty());
}

TEST(MenuValidation, WithNothingSelectedOnlyTheWayHomeIsOpen)
{
    EXPECT_THAT(enabledTags(treeWith(nullptr)), ElementsAre(41));
}

TEST(MenuValidation, TheWayHomeIsOpenWheneverThereIsNoHomeScreen)
{
    EXPECT_TRUE(validateMenuItem(41, {false, false, true, nullptr}));
    EXPECT_FALSE(validateMenuItem(41, {true, true, true, nullptr}));
}

TEST(MenuValidation, ZoomOutIsDisabledWhileTheRootIsInView)
{
    EXPECT_FALSE(validateMenuItem(31, {false, true, true, nullptr}));
    EXPECT_TRUE(validateMenuItem(31, {false, true, false, nullptr}));
}

TEST(MenuValidation, ASelectedFolderEnablesAllElseThatActsOnItems)
{
    const auto folder = makeNode<Folder>("docs");
    EXPECT_THAT(enabledTags(treeWith(folder.get())), ElementsAre(32, 33, 34, 36, 37, 38, 41));
}

TEST(MenuValidation, TheRootsOfScansAreFoldersToo)
{
    const auto top = makeNode<TopFolder>("top");
    const auto volume = makeNode<Volume>("disk");
    EXPECT_THAT(enabledTags(treeWith(top.get())), ElementsAre(32, 33, 34, 36, 37, 38, 41));
    EXPECT_THAT(enabledTags(treeWith(volume.get())), ElementsAre(32, 33, 34, 36, 37, 38, 41));
}

TEST(MenuValidation, ASelectedDocumentEnablesWhatNeedsNoFolder)
{
    const auto document = makeNode<Document>("a");
    EXPECT_THAT(enabledTags(treeWith(document.get())), ElementsAre(33, 34, 37, 38, 41));
}

TEST(MenuValidation, BoxesThatStandForNoItemEnableQuickLookAndShowInFinderOnly)
{
    const auto freeSpace = makeNode<FreeSpace>("");
    const auto unknown = makeNode<Unknown>("");
    const auto timeMachine = makeNode<TimeMachine>("");
    EXPECT_THAT(enabledTags(treeWith(freeSpace.get())), ElementsAre(33, 34, 41));
    EXPECT_THAT(enabledTags(treeWith(unknown.get())), ElementsAre(33, 34, 41));
    EXPECT_THAT(enabledTags(treeWith(timeMachine.get())), ElementsAre(33, 34, 41));
}

TEST(MenuValidation, RescanIsEnabledWhenTheTreeScreenSaysSo)
{
    const auto folder = makeNode<Folder>("docs");
    EXPECT_FALSE(validateMenuItem(35, treeWith(folder.get())));
    EXPECT_TRUE(validateMenuItem(35, whereRescanIsPossible(treeWith(folder.get()))));
    EXPECT_TRUE(validateMenuItem(35, whereRescanIsPossible(treeWith(nullptr))));
    EXPECT_FALSE(validateMenuItem(35, whereRescanIsPossible({true, false, true, folder.get()})));
}

TEST(MenuValidation, OtherEntriesAreAlwaysEnabled)
{
    for (const int tag : {0, 21, 62, 64, 1000}) {
        EXPECT_TRUE(validateMenuItem(tag, {true, false, true, nullptr})) << tag;
        EXPECT_TRUE(validateMenuItem(tag, treeWith(nullptr))) << tag;
    }
}

} // namespace
} // namespace tessera
