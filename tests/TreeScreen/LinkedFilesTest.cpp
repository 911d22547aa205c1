// SPDX-License-Identifier: MIT
// What becomes of files with other names when a folder is scanned anew, or one of them is trashed.
#include "FolderRescanFixture.h"

namespace tessera {
namespace {

class LinkedFilesOnScreen : public test::FolderRescanTest {
protected:
    LinkedFilesOnScreen()
        : FolderRescanTest("/me", "y:700#5/2 new:6")
    {
    }

    void show(std::string_view tree)
    {
        controller.reset();
        model.setTopFolder(test::makeTree("/data", tree));
        controller = std::make_unique<TreeViewController>(model, view, services.get());
    }

    void end()
    {
        services.mainThread.runUntil([this] { return !isRescanning(); });
    }
};

TEST_F(LinkedFilesOnScreen, TheNextNameOfATrashedFileTakesOverItsSize)
{
    show("docs/ ( x:700#5/2 ) other/ ( y:700#5/2 )");
    trash("docs/x");
    EXPECT_EQ(node("docs").totalAllocation(), 0U);
    EXPECT_EQ(node("other/y").totalAllocation(), 700U);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 700U);
}

TEST_F(LinkedFilesOnScreen, ATrashedNameInATrashOfTheTreeIsNotCountedAgain)
{
    show("docs/ ( x:700#5/2 ) y:700#5/2 trash/ ( files/ ( ) )");
    trashTo("docs", "/data/trash/files/docs");
    EXPECT_EQ(node("trash/files/docs/x").totalAllocation(), 0U);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 700U);
}

TEST_F(LinkedFilesOnScreen, WhatIsCountedOutsideIsNotCountedAgainInside)
{
    show("docs/ ( x:700#5/2 ) other/ ( y:700#5/2 )");
    rescan("other");
    end();
    EXPECT_EQ(node("docs").totalAllocation(), 700U);
    EXPECT_EQ(node("other/y").totalAllocation(), 0U);
    EXPECT_EQ(node("other").totalAllocation(), 6U);
}

TEST_F(LinkedFilesOnScreen, WhatIsCountedInsideStaysCountedThere)
{
    show("docs/ ( y:700#5/2 ) other/ ( x:700#5/2 )");
    rescan("docs");
    end();
    EXPECT_EQ(node("docs/y").totalAllocation(), 700U);
    EXPECT_EQ(node("other").totalAllocation(), 0U);
}

TEST_F(LinkedFilesOnScreen, ANameThatIsGonePassesItsSizeOn)
{
    show("docs/ ( old:900#8/2 ) other/ ( z:900#8/2 )");
    rescan("docs");
    end();
    EXPECT_EQ(node("other/z").totalAllocation(), 900U);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 900U + 706U);
}

TEST_F(LinkedFilesOnScreen, ANameThatIsTrashedMeanwhilePassesItsSizeOn)
{
    show("docs/ ( y:700#5/2 v:1 ) other/ ( x:700#5/2 )");
    rescan("docs");
    trash("docs/y");
    end();
    EXPECT_FALSE(has("docs/y"));
    EXPECT_EQ(node("other/x").totalAllocation(), 700U);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 706U);
}

/// What lies in the trash has come to the folder since its scan began.
TEST_F(LinkedFilesOnScreen, NamesThatAreTrashedIntoTheFolderMeanwhileCountOnce)
{
    for (const auto& [first, second] : {std::pair("a", "b"), std::pair("b", "a")}) {
        show("docs/ ( trash/ ( old:1 ) ) a:900#8/2 b:900#8/2");
        rescan("docs");
        trashTo(first, "/data/docs/trash-" + std::string(first));
        trashTo(second, "/data/docs/trash-" + std::string(second));
        end();
        EXPECT_EQ(node("docs").totalAllocation(), 706U + 900U);
    }
}

TEST_F(LinkedFilesOnScreen, AFolderThatIsGonePassesItsSizesOn)
{
    show("docs/ ( y:700#5/2 ) other/ ( x:700#5/2 )");
    services.files.makeUnreadable("");
    services.folderProblem = std::make_error_code(std::errc::no_such_file_or_directory);
    rescan("docs");
    end();
    EXPECT_FALSE(has("docs"));
    EXPECT_EQ(node("other/x").totalAllocation(), 700U);
}

} // namespace
} // namespace tessera
