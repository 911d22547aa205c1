// SPDX-License-Identifier: MIT
#include "Compress/CompressWindowFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using State = CompressWindowController::State;

class CompressWindowControllerTest : public test::CompressWindowFixture { };

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
        task.arguments,
        ElementsAre("-c", "-k", "--sequesterRsrc", "--folder", "/data/X", "/data/X.zip"));
    EXPECT_EQ(controller->state(), State::Running);
}

TEST_F(CompressWindowControllerTest, TellsTheArchiverThatAFileIsNoFolder)
{
    controller->compressURL(Url("/data/X", false), 1);

    EXPECT_EQ(task.arguments.at(3), "--file");
}

TEST_F(CompressWindowControllerTest, HandsNamesThatAreNoTextOverAsTheyAre)
{
    compress("/data/\xFF\n");

    EXPECT_EQ(task.arguments.at(4), "/data/\xFF\n");
    EXPECT_EQ(task.arguments.back(), "/data/\xFF\n.zip");
}

TEST_F(CompressWindowControllerTest, TheSecondArchiveOfAnItemIsNumberTwo)
{
    files.sizes["/data/X.zip"] = 5;
    compress();

    EXPECT_EQ(task.arguments.back(), "/data/X 2.zip");
}

TEST_F(CompressWindowControllerTest, TakesTheFirstNumberThatIsFree)
{
    files.sizes = {{"/data/X.zip", 5}, {"/data/X 2.zip", 5}, {"/data/X 4.zip", 5}};
    compress();

    EXPECT_EQ(task.arguments.back(), "/data/X 3.zip");
}

TEST_F(CompressWindowControllerTest, TwoAtOnceDoNotWriteTheSameArchive)
{
    compress();
    const auto other = CompressWindowController::make(services(otherTask));
    other->compressURL(Url("/data/X", true), 1);

    EXPECT_EQ(otherTask.arguments.at(5), "/data/X 2.zip");
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

    EXPECT_THAT(posted, ElementsAre(Url("/data/X.zip", false)));
    EXPECT_THAT(workspace.recycled, IsEmpty());
}

TEST_F(CompressWindowControllerTest, AfterSuccessTheTimerIsStopped)
{
    controller->showWindow();
    compress();
    files.sizes["/data/X.zip"] = 2'000'000;
    endTool(0);
    EXPECT_TRUE(controller->window().isVisible());
    controller->updateProgress();

    EXPECT_FALSE(controller->updateTimer().isActive());
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
