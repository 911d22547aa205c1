// SPDX-License-Identifier: MIT
#include "TreeScreen/TrashNote.h"
#include "TreeScreen/TreeViewControllerFixture.h"
#include "support/BecomesActive.h"

#include <QPushButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class TrashNoteOnTheScreenTest : public test::TreeViewControllerFixture {
protected:
    TrashNoteOnTheScreenTest()
    {
        view.resize(760, 520);
        note().sayItem("video.mkv", 1'200'000'000);
    }

    TrashNote& note() { return *view.findChild<TrashNote*>(); }

    static MovedItem item(const std::string& name)
    {
        TrashedItem trashed;
        trashed.from = Url("/data/" + name, false);
        trashed.to = Url("/trash/" + name, false);
        return {trashed, 1000};
    }

    void comesBack(const std::string& name)
    {
        PutBackResult result;
        result.place = Url("/data/" + name, false);
        ASSERT_TRUE(services.workspace.finishPuttingBack(result));
    }

    std::string said() { return note().isVisible() ? note().accessibleName().toStdString() : ""; }

    QRect box(std::string_view path)
    {
        const Rect rect = view.findRectForFile(node(path)).value();
        return QRectF(rect.x, rect.y, rect.width, rect.height).toRect();
    }

    void selectAndShow(std::string_view path)
    {
        select(path);
        controller->renderTree();
    }

    void pressOpenTrash()
    {
        QTest::mouseClick(note().findChildren<QPushButton*>().at(1), Qt::LeftButton);
    }

    void pressUndo()
    {
        QTest::mouseClick(note().findChildren<QPushButton*>().at(0), Qt::LeftButton);
    }
};

TEST_F(TrashNoteOnTheScreenTest, SaysWhatHasGoneToTheTrash)
{
    services.trashUndo.itemsMoved({item("a\n")});
    EXPECT_EQ(said(), "“a␊” (1 KB) is in the trash. Its space is free once the trash is emptied.");
    services.trashUndo.itemsMoved({item("a"), item("b")});
    EXPECT_EQ(
        said(), "2 items (2 KB) are in the trash. Their space is free once the trash is emptied.");
}

TEST_F(TrashNoteOnTheScreenTest, PromisesNoSpaceOfFilesThatHaveOtherNames)
{
    MovedItem linked = item("a");
    linked.otherNames = OtherNames::OfTheFile;
    services.trashUndo.itemsMoved({linked});
    EXPECT_EQ(
        said(),
        "“a” is in the trash. It has other names: its space stays in use until all of them are "
        "gone.");
    services.trashUndo.itemsMoved({item("b"), linked});
    EXPECT_EQ(
        said(),
        "2 items are in the trash. Files among them have other names: their space stays in use "
        "until all of those are gone.");
    linked.otherNames = OtherNames::OfFilesInside;
    services.trashUndo.itemsMoved({linked});
    EXPECT_EQ(
        said(),
        "“a” is in the trash. Files in it have other names: their space stays in use until all of "
        "those are gone.");
}

TEST_F(TrashNoteOnTheScreenTest, UndoPutsBackWhatItTellsOf)
{
    services.trashUndo.itemsMoved({item("a")});
    pressUndo();
    ASSERT_EQ(services.workspace.putBacks.size(), 1);
    EXPECT_EQ(services.workspace.putBacks[0].item.from.path(), "/data/a");
    EXPECT_EQ(said(), "");
}

TEST_F(TrashNoteOnTheScreenTest, SaysWhyItCannotBeUndoneNow)
{
    services.trashUndo.itemsMoved({item("a")});
    services.trashUndo.undo();
    pressUndo();
    EXPECT_EQ(services.workspace.putBacks.size(), 1);
    EXPECT_TRUE(note().isVisible());
    EXPECT_FALSE(test::TreeViewControllerFixture::said().isEmpty());
}

TEST_F(TrashNoteOnTheScreenTest, EndsWhenTheItemIsBack)
{
    services.trashUndo.itemsMoved({item("a")});
    services.trashUndo.undo();
    EXPECT_TRUE(note().isVisible());
    comesBack("a");
    EXPECT_FALSE(note().isVisible());
}

TEST_F(TrashNoteOnTheScreenTest, StaysWhenAnotherItemIsBack)
{
    services.trashUndo.itemsMoved({item("a")});
    services.trashUndo.putBack({item("old")});
    comesBack("old");
    EXPECT_THAT(said(), HasSubstr("“a”"));
}

TEST_F(TrashNoteOnTheScreenTest, EndsWhenTheItemIsInTheTrashNoLonger)
{
    services.trashUndo.itemsMoved({item("z")});
    services.trashUndo.itemsMoved({item("a")});
    services.trashUndo.undo();
    PutBackResult result;
    result.obstacle = PutBackObstacle::ItemGone;
    EXPECT_TRUE(services.workspace.finishPuttingBack(result));
    EXPECT_EQ(said(), "") << "its button would put z back";
}

TEST_F(TrashNoteOnTheScreenTest, EndsWhenTheHistoryFindsTheItemGone)
{
    services.trashUndo.itemsMoved({item("z")});
    services.trashUndo.itemsMoved({item("a")});
    services.trashUndo.putBack({item("a")});
    PutBackResult result;
    result.obstacle = PutBackObstacle::ItemGone;
    EXPECT_TRUE(services.workspace.finishPuttingBack(result));
    EXPECT_EQ(said(), "");
}

TEST_F(TrashNoteOnTheScreenTest, UndoPutsBackWhatItTellsOfAfterARedo)
{
    services.trashUndo.itemsMoved({item("x")});
    services.trashUndo.undo();
    comesBack("x");
    services.trashUndo.redo();
    services.trashUndo.itemsMoved({item("b")});
    RecycleResult again;
    again.trashed.push_back(item("x").item);
    EXPECT_TRUE(services.workspace.finishRecycling(again));
    EXPECT_THAT(said(), HasSubstr("“b”"));
    pressUndo();
    EXPECT_EQ(services.workspace.putBacks.back().item, item("b").item);
}

TEST_F(TrashNoteOnTheScreenTest, StaysWhenThePictureIsDrawnAnew)
{
    controller->renderTree();
    EXPECT_TRUE(note().isVisible());
}

TEST_F(TrashNoteOnTheScreenTest, NeverCoversWhatIsSelected)
{
    for (const std::string_view path : {"docs", "docs/a", "docs/b", "c\xFF"}) {
        selectAndShow(path);
        EXPECT_FALSE(note().isVisible() && note().geometry().intersects(box(path))) << path;
    }
}

TEST_F(TrashNoteOnTheScreenTest, ComesBackWhenTheSelectionGoesAway)
{
    selectAndShow("docs");
    EXPECT_FALSE(note().isVisible()) << "the box reaches from edge to edge";
    controller->setSelectedFile(nullptr);
    controller->renderTree();
    EXPECT_TRUE(note().isVisible());
}

TEST_F(TrashNoteOnTheScreenTest, FollowsTheWindowWithWhatIsSelected)
{
    selectAndShow("c\xFF");
    view.resize(900, 700);
    EXPECT_FALSE(note().isVisible() && note().geometry().intersects(box("c\xFF")));
    EXPECT_TRUE(view.rect().contains(note().geometry()));
}

TEST_F(TrashNoteOnTheScreenTest, ThePicturesKeysGoOnWorking)
{
    ASSERT_TRUE(test::becomesActive(view));
    view.setFocus();
    note().sayItems(3, 5);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    EXPECT_NE(controller->selectedFile(), nullptr);
}

TEST_F(TrashNoteOnTheScreenTest, WhatAKeyCannotDoIsSaidAboveIt)
{
    controller->say(QStringLiteral("No."));
    const auto& other = *view.findChild<TreeNote*>();
    EXPECT_TRUE(other.isVisible());
    EXPECT_FALSE(other.geometry().intersects(note().geometry()));
}

TEST_F(TrashNoteOnTheScreenTest, OpensTheDesktopsTrash)
{
    pressOpenTrash();
    EXPECT_THAT(services.workspace.opened, ElementsAre("trash:///"));
    EXPECT_THAT(services.alert.told, IsEmpty());
}

TEST_F(TrashNoteOnTheScreenTest, SaysWhenNoProgramShowsTheTrash)
{
    services.workspace.answer = false;
    pressOpenTrash();
    ASSERT_EQ(services.alert.told.size(), 1);
    EXPECT_EQ(services.alert.told[0].messageText, QStringLiteral("The trash cannot be opened"));
}

TEST_F(TrashNoteOnTheScreenTest, NobodyIsToldWhenTheScreenIsGoneByThen)
{
    services.workspace.answersLater = true;
    pressOpenTrash();
    controller.reset();
    services.workspace.lateAnswer(false);
    EXPECT_THAT(services.alert.told, IsEmpty());
}

TEST_F(TrashNoteOnTheScreenTest, GoesWithTheScreen)
{
    controller.reset();
    EXPECT_EQ(view.findChild<TrashNote*>(), nullptr);
}

} // namespace
} // namespace tessera
