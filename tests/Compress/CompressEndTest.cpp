// SPDX-License-Identifier: MIT
#include "Compress/CompressWindowFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {

namespace {

using test::kMade;
using test::kMadeLine;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

using State = CompressWindowController::State;

class CompressEndTest : public test::CompressWindowFixture { };

} // namespace

TEST_F(CompressEndTest, AFailureIsShown)
{
    compress();
    endTool(1);

    EXPECT_EQ(controller->state(), State::Failed);
    EXPECT_EQ(status(), "Compression Failed");
    EXPECT_TRUE(task.isDestroyed);
}

TEST_F(CompressEndTest, AfterAFailureTheNextTickMovesTheArchiveToTheTrash)
{
    compress();
    endTool(1);
    EXPECT_THAT(workspace.recycled, IsEmpty());
    controller->updateProgress();

    EXPECT_THAT(
        workspace.recycled,
        ElementsAre(ElementsAre(Url("/data/X.zip.part", false), Url("/data/X.zip", false))));
    EXPECT_EQ(workspace.recycledFile, kMade);
    EXPECT_FALSE(controller->updateTimer().isActive());
}

TEST_F(CompressEndTest, WhatTheArchiverFoundInItsWayIsNotMovedToTheTrash)
{
    task.output = "";
    compress();
    endTool(3);
    controller->updateProgress();

    EXPECT_EQ(status(), "Compression Failed");
    EXPECT_THAT(workspace.recycled, IsEmpty());
    EXPECT_FALSE(controller->updateTimer().isActive());
    endDelay();
    EXPECT_THAT(posted, ElementsAre(std::nullopt));
}

TEST_F(CompressEndTest, WhoeverSaysNothingOfAFileHasMadeNone)
{
    // Bad usage, stopped before the start, no such program, killed.
    for (const int status : {2, 1, 127, 137}) {
        task.output = "";
        controller = makeController();
        compress();
        endTool(status);
        controller->updateProgress();
        endDelay();
    }
    EXPECT_THAT(workspace.recycled, IsEmpty());
    EXPECT_THAT(posted, SizeIs(4));
}

TEST_F(CompressEndTest, WhatAKilledToolHasMadeIsMovedToTheTrash)
{
    compress();
    endTool(137);
    controller->updateProgress();

    EXPECT_EQ(workspace.recycledFile, kMade);
}

TEST_F(CompressEndTest, ProgressIsReadFromThePartWhileThatIsThere)
{
    compress();
    files.sizes["/data/X.zip.part"] = 250'000;
    controller->updateProgress();

    EXPECT_EQ(shownProgress(), 0.25);
}

TEST_F(CompressEndTest, ANameWhosePartIsTakenIsTaken)
{
    files.sizes["/data/X.zip.part"] = 5;
    compress();

    EXPECT_EQ(task.arguments.at(5), "/data/X 2.zip");
}

TEST_F(CompressEndTest, ANameTooLongForItsEndingIsShortened)
{
    compress("/data/" + std::string(255, 'n'));

    EXPECT_EQ(task.arguments.at(5), "/data/" + std::string(251, 'n') + ".zip");
}

TEST_F(CompressEndTest, ThatTheDiskIsFullIsSaidBeforeTheEnd)
{
    alert.meanwhile = [this] {
        EXPECT_THAT(posted, IsEmpty());
        EXPECT_THAT(targetsInUse, ElementsAre("/data/X.zip"));
        EXPECT_FALSE(controller->window().isVisible());
    };
    controller->showWindow();
    compress();
    endTool(4);
    controller->updateProgress();
    moveToTrash();
    endDelay();

    ASSERT_THAT(alert.asked, SizeIs(1));
    EXPECT_EQ(
        alert.asked[0].informativeText.toStdString(),
        "The disk is full. Nothing is left of the incomplete archive but an empty file in the "
        "trash.");
    EXPECT_THAT(posted, SizeIs(1));
    EXPECT_THAT(targetsInUse, IsEmpty());
}

TEST_F(CompressEndTest, WhatAFullDiskLeavesBesideTheItemIsNamed)
{
    compress();
    endTool(4);
    controller->updateProgress();
    refuseTrash();
    endDelay();

    ASSERT_THAT(alert.asked, SizeIs(1));
    EXPECT_EQ(
        alert.asked[0].informativeText.toStdString(),
        "The disk is full. Of the incomplete archive an empty file is left, which could not be "
        "moved to the trash: 'X.zip.part'.");
}

TEST_F(CompressEndTest, OfAFullDiskThatTookNoFileNoFileIsSpoken)
{
    task.output.clear();
    compress();
    endTool(4);
    controller->updateProgress();
    endDelay();

    ASSERT_THAT(alert.asked, SizeIs(1));
    EXPECT_EQ(alert.asked[0].informativeText.toStdString(), "The disk is full.");
}

TEST_F(CompressEndTest, AProgramThatEndsInsteadOfAnAnswerHearsNoMore)
{
    alert.meanwhile = [] { endProgram(); };
    compress();
    endTool(4);
    controller->updateProgress();
    moveToTrash();
    endDelay();

    EXPECT_THAT(posted, IsEmpty());
    EXPECT_THAT(targetsInUse, IsEmpty());
}

TEST_F(CompressEndTest, ThePartIsGoneWhenTheArchiveHasItsName)
{
    compress();
    endTool(0);
    files.sizes["/data/X.zip"] = 0;
    EXPECT_EQ(ticksUntilPosted(20), 12);

    EXPECT_THAT(gone, ElementsAre(Url("/data/X.zip.part", false)));
}

TEST_F(CompressEndTest, ThePartIsGoneWhenItIsInTheTrash)
{
    compress();
    endTool(1);
    controller->updateProgress();
    moveToTrash();
    endDelay();

    EXPECT_THAT(gone, ElementsAre(Url("/data/X.zip.part", false)));
}

TEST_F(CompressEndTest, APartThatCannotBeTrashedIsNotGone)
{
    compress();
    endTool(1);
    controller->updateProgress();
    refuseTrash();
    endDelay();

    EXPECT_THAT(gone, IsEmpty());
}

TEST_F(CompressEndTest, OfOtherFailuresNothingIsSaidAfterwards)
{
    compress();
    endTool(1);
    controller->updateProgress();
    refuseTrash();
    endDelay();

    EXPECT_THAT(alert.asked, IsEmpty());
}

TEST_F(CompressEndTest, TheTrashedArchiveIsAnnouncedASecondLater)
{
    compress();
    endTool(1);
    controller->updateProgress();
    moveToTrash();
    EXPECT_THAT(delays, ElementsAre(std::chrono::seconds(1)));
    EXPECT_THAT(posted, IsEmpty());
    endDelay();

    EXPECT_THAT(posted, ElementsAre(Url("/trash/X.zip.part", false)));
}

TEST_F(CompressEndTest, WhatCannotBeTrashedIsLoggedAndNothingAnnounced)
{
    controller->showWindow();
    compress();
    endTool(1);
    controller->updateProgress();
    testing::internal::CaptureStderr();
    refuseTrash();
    EXPECT_THAT(
        testing::internal::GetCapturedStderr(), HasSubstr("Error deleting incomplete archive"));
    endDelay();

    EXPECT_THAT(posted, ElementsAre(std::nullopt));
    EXPECT_FALSE(controller->window().isVisible());
}

TEST_F(CompressEndTest, HowTheToolEndedIsLogged)
{
    compress();
    testing::internal::CaptureStderr();
    endTool(0);
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("Task succeeded."));

    controller = makeController();
    compress();
    testing::internal::CaptureStderr();
    endTool(1);
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("Task failed."));
}

TEST_F(CompressEndTest, CancellingTerminatesTheTool)
{
    compress();
    controller->cancelCompress();

    EXPECT_EQ(task.terminateCount, 1);
    EXPECT_EQ(controller->state(), State::Cancelled);
    EXPECT_EQ(status(), "Compression Canceled");
}

TEST_F(CompressEndTest, ACancelledToolEndsAsAFailedOne)
{
    compress();
    controller->cancelCompress();
    endTool(143);

    EXPECT_EQ(controller->state(), State::Failed);
    EXPECT_EQ(status(), "Compression Failed");
}

TEST_F(CompressEndTest, NothingIsTrashedWhileACancelledToolMayStillWrite)
{
    compress();
    controller->cancelCompress();
    controller->updateProgress();
    EXPECT_THAT(workspace.recycled, IsEmpty());
    endTool(143);
    controller->updateProgress();

    EXPECT_THAT(workspace.recycled, SizeIs(1));
}

TEST_F(CompressEndTest, CancelledAtTheLastMomentThereIsNoArchiveEither)
{
    compress();
    controller->cancelCompress();
    endTool(0);
    controller->updateProgress();

    EXPECT_THAT(workspace.recycled, SizeIs(1));
}

TEST_F(CompressEndTest, CancellingAfterTheToolsEndDoesNothing)
{
    compress();
    endTool(0);
    controller->cancelCompress();

    EXPECT_EQ(task.terminateCount, 0);
    EXPECT_EQ(controller->state(), State::Succeeded);
}

TEST_F(CompressEndTest, TheCancelButtonCancels)
{
    compress();
    QTest::mouseClick(outlet<QPushButton>("cancelButton"), Qt::LeftButton);

    EXPECT_EQ(controller->state(), State::Cancelled);
    EXPECT_FALSE(outlet<QPushButton>("cancelButton")->isEnabled());
}

TEST_F(CompressEndTest, EscapeCancelsAndLeavesTheWindowOpen)
{
    controller->showWindow();
    compress();
    controller->window().activateWindow();
    ASSERT_TRUE(test::becomesActive(controller->window()));
    QTest::keyClick(controller->window().windowHandle(), Qt::Key_Escape);

    EXPECT_TRUE(QTest::qWaitFor([this] { return controller->state() == State::Cancelled; }));
    EXPECT_TRUE(controller->window().isVisible());
}

TEST_F(CompressEndTest, ClosingTheWindowCancels)
{
    controller->showWindow();
    compress();
    controller->window().close();

    EXPECT_EQ(controller->state(), State::Cancelled);
    EXPECT_EQ(task.terminateCount, 1);
}

TEST_F(CompressEndTest, KeepsItselfAliveUntilItHasFinishedAndItsWindowIsClosed)
{
    const std::weak_ptr<CompressWindowController> watched = controller;
    CompressWindowController& unheld = *controller;
    compress();
    controller.reset();
    EXPECT_FALSE(watched.expired());

    files.sizes["/data/X.zip"] = 2'000'000;
    endTool(0);
    unheld.updateProgress();
    EXPECT_THAT(posted, SizeIs(1));
    EXPECT_FALSE(watched.expired());
    unheld.window().findChild<QPushButton*>(QStringLiteral("cancelButton"))->click();
    EXPECT_TRUE(watched.expired());
}

TEST_F(CompressEndTest, AtTheProgramsEndTheToolIsEndedAndItsArchiveTrashed)
{
    task.output = "";
    task.outputWhenStopped = kMadeLine;
    compress();
    endProgram();

    EXPECT_TRUE(task.isStopped);
    EXPECT_TRUE(task.isDestroyed);
    EXPECT_THAT(
        workspace.recycled,
        ElementsAre(ElementsAre(Url("/data/X.zip.part", false), Url("/data/X.zip", false))));
    EXPECT_EQ(workspace.recycledFile, kMade);
    EXPECT_THAT(posted, IsEmpty());
}

TEST_F(CompressEndTest, AtTheProgramsEndAToolThatHasMadeNothingLeavesAllAsItIs)
{
    task.output = "";
    compress();
    endProgram();

    EXPECT_THAT(workspace.recycled, IsEmpty());
}

TEST_F(CompressEndTest, AtTheProgramsEndAFinishedArchiveStays)
{
    compress();
    endTool(0);
    endProgram();

    EXPECT_THAT(workspace.recycled, IsEmpty());
}

TEST_F(CompressEndTest, AtTheProgramsEndNothingIsTrashedTwice)
{
    compress();
    endTool(1);
    controller->updateProgress();
    endProgram();

    EXPECT_THAT(workspace.recycled, SizeIs(1));
}

TEST_F(CompressEndTest, TheNameIsFreeAgainAfterTheEnd)
{
    compress();
    endTool(1);
    controller->updateProgress();
    moveToTrash();
    endDelay();
    controller = makeController();
    compress();

    EXPECT_EQ(task.arguments.at(5), "/data/X.zip");
}

} // namespace tessera
