// SPDX-License-Identifier: MIT
#include "FileOps/CompressWindowController.h"

#include "Model/NotificationCenter.h"
#include "support/FakeAlert.h"
#include "support/FakeFileSystem.h"
#include "support/FakeIconProvider.h"
#include "support/FakeTask.h"
#include "support/FakeWorkspace.h"
#include "support/becomesActive.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace tessera {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

using State = CompressWindowController::State;

/// The file that the archiver says it has made, and how it says so.
constexpr FileIdentity kMade{2049, 12};
constexpr const char* kMadeLine = "2049 12\n";

class CompressWindowControllerTest : public testing::Test {
protected:
    CompressWindowControllerTest() { task.output = kMadeLine; }

    ~CompressWindowControllerTest() override
    {
        endProgram();
        controller.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    std::shared_ptr<CompressWindowController> makeController()
    {
        return CompressWindowController::make(
            {"/opt/archiver",
             [this] { return test::FakeTask::make(task); },
             workspace,
             files,
             icons,
             targetsInUse,
             alert},
            [this](std::chrono::milliseconds delay, std::function<void()> work) {
                delays.push_back(delay);
                delayed.push_back(std::move(work));
            });
    }

    void compress(std::string_view path = "/data/X", std::uint64_t bytes = 1'000'000)
    {
        controller->compressURL(Url(path, true), bytes);
    }

    /// What every controller hears that still works.
    static void endProgram() { emit qApp->aboutToQuit({}); }

    void endTool(int status) { std::exchange(task.onTerminated, {})(status); }

    int ticksUntilPosted(int most)
    {
        for (int tick = 1; tick <= most; ++tick) {
            controller->updateProgress();
            if (!posted.empty()) {
                return tick;
            }
        }
        return most + 1;
    }

    void moveToTrash()
    {
        RecycleResult result;
        result.newUrls.emplace("file:///data/X.zip.part", Url("/trash/X.zip.part", false));
        ASSERT_TRUE(workspace.finishRecycling(result));
    }

    void refuseTrash() { ASSERT_TRUE(workspace.finishRecycling({{}, "It cannot be moved."})); }

    void endDelay() { std::exchange(delayed, {}).at(0)(); }

    template <typename View>
    View* outlet(const char* name) const
    {
        return controller->window().findChild<View*>(QString::fromLatin1(name));
    }

    std::string status() const
    {
        return outlet<QLabel>("outputField")->accessibleName().toStdString();
    }

    double shownProgress() const
    {
        const auto* progress = outlet<QProgressBar>("progress");
        return static_cast<double>(progress->value()) / progress->maximum();
    }

    test::FakeTaskRecord task;
    test::FakeTaskRecord otherTask;
    test::FakeWorkspace workspace;
    test::FakeResourceValues files;
    test::FakeIconProvider icons;
    std::set<std::string> targetsInUse;
    test::FakeAlert alert;
    std::vector<std::chrono::milliseconds> delays;
    std::vector<std::function<void()>> delayed;
    std::shared_ptr<CompressWindowController> controller = makeController();
    std::vector<NotificationObject> posted;
    Observation observation = NotificationCenter::defaultCenter().addObserver(
        "ItemCompressed", [this](const NotificationObject& object) { posted.push_back(object); });
};

} // namespace

TEST_F(CompressWindowControllerTest, IsNewUntilItIsToldWhatToCompress)
{
    EXPECT_EQ(controller->state(), State::New);
    EXPECT_FALSE(controller->updateTimer().isActive());
}

TEST_F(CompressWindowControllerTest, RunsTheArchiverWithItsArgumentsInOrder)
{
    compress();

    EXPECT_EQ(task.program, "/opt/archiver");
    EXPECT_THAT(
        task.arguments, ElementsAre("-c", "-k", "--sequesterRsrc", "/data/X", "/data/X.zip"));
    EXPECT_EQ(controller->state(), State::Running);
}

TEST_F(CompressWindowControllerTest, HandsNamesThatAreNoTextOverAsTheyAre)
{
    compress("/data/\xFF\n");

    EXPECT_EQ(task.arguments.at(3), "/data/\xFF\n");
    EXPECT_EQ(task.arguments.at(4), "/data/\xFF\n.zip");
}

TEST_F(CompressWindowControllerTest, TheSecondArchiveOfAnItemIsNumberTwo)
{
    files.sizes["/data/X.zip"] = 5;
    compress();

    EXPECT_EQ(task.arguments.at(4), "/data/X 2.zip");
}

TEST_F(CompressWindowControllerTest, TakesTheFirstNumberThatIsFree)
{
    files.sizes = {{"/data/X.zip", 5}, {"/data/X 2.zip", 5}, {"/data/X 4.zip", 5}};
    compress();

    EXPECT_EQ(task.arguments.at(4), "/data/X 3.zip");
}

TEST_F(CompressWindowControllerTest, TwoAtOnceDoNotWriteTheSameArchive)
{
    compress();
    const auto other = CompressWindowController::make(
        {"/opt/archiver",
         [this] { return test::FakeTask::make(otherTask); },
         workspace,
         files,
         icons,
         targetsInUse,
         alert});
    other->compressURL(Url("/data/X", true), 1);

    EXPECT_EQ(otherTask.arguments.at(4), "/data/X 2.zip");
}

TEST_F(CompressWindowControllerTest, SaysWhatItCreates)
{
    compress("/data/some\xFF name");

    EXPECT_EQ(status(), "Creating 'some\uFFFD name.zip'");
}

TEST_F(CompressWindowControllerTest, ALongNameIsShortenedInItsMiddle)
{
    compress("/data/" + std::string(200, 'W'));
    const auto* field = outlet<QLabel>("outputField");

    EXPECT_THAT(status(), HasSubstr(std::string(200, 'W') + ".zip'"));
    EXPECT_TRUE(field->text().contains(QChar(0x2026)));
    EXPECT_TRUE(field->text().endsWith(QLatin1String(".zip'")));
    EXPECT_LE(field->fontMetrics().horizontalAdvance(field->text()), field->maximumWidth());
}

TEST_F(CompressWindowControllerTest, PollsEveryTenthOfASecond)
{
    compress();

    EXPECT_TRUE(controller->updateTimer().isActive());
    EXPECT_EQ(controller->updateTimer().interval(), 100);
}

TEST_F(CompressWindowControllerTest, ShowsTheArchivesShareOfTheItemsSize)
{
    compress();
    controller->updateProgress();
    EXPECT_EQ(shownProgress(), 0.0);

    files.sizes["/data/X.zip"] = 250'000;
    controller->updateProgress();
    EXPECT_EQ(shownProgress(), 0.25);
}

TEST_F(CompressWindowControllerTest, AnArchiveLargerThanItsSourceFillsTheBar)
{
    compress();
    files.sizes["/data/X.zip"] = 1'200'000;
    controller->updateProgress();

    EXPECT_EQ(shownProgress(), 1.0);
    EXPECT_EQ(controller->state(), State::Running);
}

TEST_F(CompressWindowControllerTest, ShowsTheArchivesIconOnceItExists)
{
    compress();
    controller->updateProgress();
    EXPECT_EQ(icons.askedCount, 0);

    files.sizes["/data/X.zip"] = 1;
    controller->updateProgress();
    controller->updateProgress();
    EXPECT_EQ(icons.askedCount, 1);
    EXPECT_EQ(
        outlet<QLabel>("outputIcon")->pixmap(Qt::ReturnByValue).deviceIndependentSize(),
        QSizeF(48, 48));
}

TEST_F(CompressWindowControllerTest, AfterSuccessATinyArchiveFillsTheBarInElevenTicks)
{
    compress("/data/X", 1'000'000'000);
    files.sizes["/data/X.zip"] = 4096;
    endTool(0);

    EXPECT_EQ(controller->state(), State::Succeeded);
    EXPECT_EQ(ticksUntilPosted(20), 11);
}

TEST_F(CompressWindowControllerTest, AnArchiveOfNoSizeFillsTheBarInTwelveTicks)
{
    compress();
    files.sizes["/data/X.zip"] = 0;
    endTool(0);

    EXPECT_EQ(ticksUntilPosted(20), 12);
}

TEST_F(CompressWindowControllerTest, AnArchiveOfHalfTheSizeFillsTheBarInSixTicks)
{
    compress();
    files.sizes["/data/X.zip"] = 500'000;
    endTool(0);

    EXPECT_EQ(ticksUntilPosted(20), 6);
}

TEST_F(CompressWindowControllerTest, TheBarFillsByATenthATick)
{
    compress();
    files.sizes["/data/X.zip"] = 250'000;
    endTool(0);
    controller->updateProgress();
    controller->updateProgress();

    EXPECT_EQ(shownProgress(), 0.45);
}

TEST_F(CompressWindowControllerTest, AnItemOfSizeZeroEndsAtTheNextTick)
{
    compress("/data/X", 0);
    files.sizes["/data/X.zip"] = 4096;
    controller->updateProgress();
    EXPECT_THAT(posted, IsEmpty());
    endTool(0);

    EXPECT_EQ(ticksUntilPosted(20), 1);
}

TEST_F(CompressWindowControllerTest, AnItemOfSizeZeroWaitsUntilItsArchiveHasASize)
{
    compress("/data/X", 0);
    endTool(0);
    EXPECT_EQ(ticksUntilPosted(50), 51);

    files.sizes["/data/X.zip"] = 4096;
    EXPECT_EQ(ticksUntilPosted(20), 1);
}

TEST_F(CompressWindowControllerTest, SuccessIsAnnouncedWithTheArchive)
{
    compress();
    files.sizes["/data/X.zip"] = 2'000'000;
    endTool(0);
    controller->updateProgress();

    EXPECT_THAT(posted, ElementsAre(NotificationObject(Url("/data/X.zip", false))));
    EXPECT_THAT(workspace.recycled, IsEmpty());
}

TEST_F(CompressWindowControllerTest, AfterSuccessTheWindowIsClosedAndTheTimerStopped)
{
    controller->showWindow();
    compress();
    files.sizes["/data/X.zip"] = 2'000'000;
    endTool(0);
    EXPECT_TRUE(controller->window().isVisible());
    controller->updateProgress();

    EXPECT_FALSE(controller->window().isVisible());
    EXPECT_FALSE(controller->updateTimer().isActive());
}

TEST_F(CompressWindowControllerTest, AFailureIsShown)
{
    compress();
    endTool(1);

    EXPECT_EQ(controller->state(), State::Failed);
    EXPECT_EQ(status(), "Compression Failed");
    EXPECT_TRUE(task.isDestroyed);
}

TEST_F(CompressWindowControllerTest, AfterAFailureTheNextTickMovesTheArchiveToTheTrash)
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

TEST_F(CompressWindowControllerTest, WhatTheArchiverFoundInItsWayIsNotMovedToTheTrash)
{
    task.output = "";
    compress();
    endTool(3);
    controller->updateProgress();

    EXPECT_EQ(status(), "Compression Failed");
    EXPECT_THAT(workspace.recycled, IsEmpty());
    EXPECT_FALSE(controller->updateTimer().isActive());
    endDelay();
    EXPECT_THAT(posted, ElementsAre(NotificationObject()));
}

TEST_F(CompressWindowControllerTest, WhoeverSaysNothingOfAFileHasMadeNone)
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

TEST_F(CompressWindowControllerTest, WhatAKilledToolHasMadeIsMovedToTheTrash)
{
    compress();
    endTool(137);
    controller->updateProgress();

    EXPECT_EQ(workspace.recycledFile, kMade);
}

TEST_F(CompressWindowControllerTest, ProgressIsReadFromThePartWhileThatIsThere)
{
    compress();
    files.sizes["/data/X.zip.part"] = 250'000;
    controller->updateProgress();

    EXPECT_EQ(shownProgress(), 0.25);
}

TEST_F(CompressWindowControllerTest, ANameWhosePartIsTakenIsTaken)
{
    files.sizes["/data/X.zip.part"] = 5;
    compress();

    EXPECT_EQ(task.arguments.at(4), "/data/X 2.zip");
}

TEST_F(CompressWindowControllerTest, ANameTooLongForItsEndingIsShortened)
{
    compress("/data/" + std::string(255, 'n'));

    EXPECT_EQ(task.arguments.at(4), "/data/" + std::string(251, 'n') + ".zip");
}

TEST_F(CompressWindowControllerTest, ThatTheDiskIsFullIsSaidWhenTheWindowIsGone)
{
    compress();
    endTool(4);
    controller->updateProgress();
    refuseTrash();
    endDelay();
    EXPECT_THAT(alert.told, IsEmpty());
    endDelay();

    ASSERT_THAT(alert.told, SizeIs(1));
    EXPECT_THAT(alert.told[0].informativeText.toStdString(), HasSubstr("The disk is full."));
}

TEST_F(CompressWindowControllerTest, OfOtherFailuresNothingIsSaidAfterwards)
{
    compress();
    endTool(1);
    controller->updateProgress();
    refuseTrash();
    endDelay();

    EXPECT_THAT(delayed, IsEmpty());
}

TEST_F(CompressWindowControllerTest, TheTrashedArchiveIsAnnouncedASecondLater)
{
    compress();
    endTool(1);
    controller->updateProgress();
    moveToTrash();
    EXPECT_THAT(delays, ElementsAre(std::chrono::seconds(1)));
    EXPECT_THAT(posted, IsEmpty());
    endDelay();

    EXPECT_THAT(posted, ElementsAre(NotificationObject(Url("/trash/X.zip.part", false))));
}

TEST_F(CompressWindowControllerTest, WhatCannotBeTrashedIsLoggedAndNothingAnnounced)
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

    EXPECT_THAT(posted, ElementsAre(NotificationObject()));
    EXPECT_FALSE(controller->window().isVisible());
}

TEST_F(CompressWindowControllerTest, HowTheToolEndedIsLogged)
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

TEST_F(CompressWindowControllerTest, CancellingTerminatesTheTool)
{
    compress();
    controller->cancelCompress();

    EXPECT_EQ(task.terminateCount, 1);
    EXPECT_EQ(controller->state(), State::Cancelled);
    EXPECT_EQ(status(), "Compression Canceled");
}

TEST_F(CompressWindowControllerTest, ACancelledToolEndsAsAFailedOne)
{
    compress();
    controller->cancelCompress();
    endTool(143);

    EXPECT_EQ(controller->state(), State::Failed);
    EXPECT_EQ(status(), "Compression Failed");
}

TEST_F(CompressWindowControllerTest, NothingIsTrashedWhileACancelledToolMayStillWrite)
{
    compress();
    controller->cancelCompress();
    controller->updateProgress();
    EXPECT_THAT(workspace.recycled, IsEmpty());
    endTool(143);
    controller->updateProgress();

    EXPECT_THAT(workspace.recycled, SizeIs(1));
}

TEST_F(CompressWindowControllerTest, CancelledAtTheLastMomentThereIsNoArchiveEither)
{
    compress();
    controller->cancelCompress();
    endTool(0);
    controller->updateProgress();

    EXPECT_THAT(workspace.recycled, SizeIs(1));
}

TEST_F(CompressWindowControllerTest, CancellingAfterTheToolsEndDoesNothing)
{
    compress();
    endTool(0);
    controller->cancelCompress();

    EXPECT_EQ(task.terminateCount, 0);
    EXPECT_EQ(controller->state(), State::Succeeded);
}

TEST_F(CompressWindowControllerTest, TheCancelButtonCancels)
{
    compress();
    QTest::mouseClick(outlet<QPushButton>("cancelButton"), Qt::LeftButton);

    EXPECT_EQ(controller->state(), State::Cancelled);
    EXPECT_FALSE(outlet<QPushButton>("cancelButton")->isEnabled());
}

TEST_F(CompressWindowControllerTest, EscapeCancelsAndLeavesTheWindowOpen)
{
    controller->showWindow();
    compress();
    controller->window().activateWindow();
    ASSERT_TRUE(test::becomesActive(controller->window()));
    QTest::keyClick(controller->window().windowHandle(), Qt::Key_Escape);

    EXPECT_TRUE(QTest::qWaitFor([this] { return controller->state() == State::Cancelled; }));
    EXPECT_TRUE(controller->window().isVisible());
}

TEST_F(CompressWindowControllerTest, ClosingTheWindowCancels)
{
    controller->showWindow();
    compress();
    controller->window().close();

    EXPECT_EQ(controller->state(), State::Cancelled);
    EXPECT_EQ(task.terminateCount, 1);
}

TEST_F(CompressWindowControllerTest, KeepsItselfAliveUntilItHasFinished)
{
    const std::weak_ptr<CompressWindowController> watched = controller;
    CompressWindowController& unheld = *controller;
    compress();
    controller.reset();
    EXPECT_FALSE(watched.expired());

    files.sizes["/data/X.zip"] = 2'000'000;
    endTool(0);
    unheld.updateProgress();
    EXPECT_TRUE(watched.expired());
    EXPECT_THAT(posted, SizeIs(1));
}

TEST_F(CompressWindowControllerTest, AtTheProgramsEndTheToolIsEndedAndItsArchiveTrashed)
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

TEST_F(CompressWindowControllerTest, AtTheProgramsEndAToolThatHasMadeNothingLeavesAllAsItIs)
{
    task.output = "";
    compress();
    endProgram();

    EXPECT_THAT(workspace.recycled, IsEmpty());
}

TEST_F(CompressWindowControllerTest, AtTheProgramsEndAFinishedArchiveStays)
{
    compress();
    endTool(0);
    endProgram();

    EXPECT_THAT(workspace.recycled, IsEmpty());
}

TEST_F(CompressWindowControllerTest, AtTheProgramsEndNothingIsTrashedTwice)
{
    compress();
    endTool(1);
    controller->updateProgress();
    endProgram();

    EXPECT_THAT(workspace.recycled, SizeIs(1));
}

TEST_F(CompressWindowControllerTest, TheNameIsFreeAgainAfterTheEnd)
{
    compress();
    endTool(1);
    controller->updateProgress();
    moveToTrash();
    endDelay();
    controller = makeController();
    compress();

    EXPECT_EQ(task.arguments.at(4), "/data/X.zip");
}

TEST_F(CompressWindowControllerTest, EveryControlHasAName)
{
    compress();
    EXPECT_FALSE(controller->window().windowTitle().isEmpty());
    for (const char* name : {"outputIcon", "outputField", "progress"}) {
        EXPECT_FALSE(outlet<QWidget>(name)->accessibleName().isEmpty()) << name;
    }
    EXPECT_FALSE(outlet<QPushButton>("cancelButton")->text().isEmpty());
}

} // namespace tessera
