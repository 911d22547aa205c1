// SPDX-License-Identifier: MIT
// What the window says when the archive is made.
#include "Compress/CompressWindowFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CompressResultTest : public test::CompressWindowFixture {
protected:
    CompressResultTest() { setArchive(test::kMade); }

    void setArchive(const FileIdentity& identity)
    {
        ItemAnswer archive{ItemAnswer::Outcome::Known, {}};
        archive.state.identity = identity;
        itemStates->setAnswer("/data/X.zip", archive);
    }

    void listen()
    {
        QObject::connect(
            controller.get(),
            &CompressWindowController::originalToTrash,
            &listener,
            [this](const Url& original, const ExpectedItem&) { wanted.push_back(original); });
    }

    /// With an archive of that many bytes.
    void makeArchive(std::uint64_t bytes)
    {
        controller->showWindow();
        compress();
        files.sizes["/data/X.zip"] = bytes;
        endTool(0);
        EXPECT_LE(ticksUntilPosted(50), 50);
    }

    QString resultText() const { return outlet<QLabel>("resultField")->text(); }
    QPushButton& trashButton() const { return *outlet<QPushButton>("trashButton"); }

    /// Presses the button, and waits until the text is another than that while it looks.
    void wantOriginalInTrash()
    {
        trashButton().click();
        const QString looking = resultText();
        EXPECT_FALSE(trashButton().isEnabled());
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return resultText() != looking || !controller->window().isVisible(); }));
    }

    QObject listener;
    std::vector<Url> wanted;
};

} // namespace

TEST_F(CompressResultTest, TheWindowStaysAndSaysWhatTheArchiveSaves)
{
    makeArchive(340'000);
    EXPECT_TRUE(controller->window().isVisible());
    EXPECT_EQ(status(), "Created 'X.zip'");
    EXPECT_EQ(resultText(), QStringLiteral("1.0 MB → 340 KB. The archive takes 660 KB less."));
    EXPECT_TRUE(outlet<QProgressBar>("progress")->isHidden());
}

TEST_F(CompressResultTest, AnArchiveThatIsNotSmallerSavesNothing)
{
    listen();
    for (const std::uint64_t bytes : {1'000'000U, 1'100'000U}) {
        posted.clear();
        makeArchive(bytes);
        EXPECT_TRUE(resultText().endsWith(QStringLiteral("The archive saves nothing.")));
        EXPECT_TRUE(trashButton().isHidden());
        outlet<QPushButton>("cancelButton")->click();
        files.sizes.clear();
        controller = makeController();
        listen();
    }
}

TEST_F(CompressResultTest, TheArchiveIsAnnouncedBeforeTheWindowCloses)
{
    makeArchive(340'000);
    EXPECT_THAT(posted, ElementsAre(Url("/data/X.zip", false)));
    EXPECT_THAT(targetsInUse, IsEmpty());
}

TEST_F(CompressResultTest, CloseAndEscapeCloseTheWindow)
{
    makeArchive(340'000);
    EXPECT_EQ(outlet<QPushButton>("cancelButton")->text(), QStringLiteral("Close"));
    EXPECT_EQ(outlet<QPushButton>("cancelButton")->shortcut(), QKeySequence(Qt::Key_Escape));
    outlet<QPushButton>("cancelButton")->click();
    EXPECT_FALSE(controller->window().isVisible());
    EXPECT_EQ(controller.use_count(), 1);
    EXPECT_EQ(task.terminateCount, 0);
}

TEST_F(CompressResultTest, TheProgramsEndClosesTheWindowAndMovesNothing)
{
    makeArchive(340'000);
    endProgram();
    EXPECT_EQ(controller.use_count(), 1);
    EXPECT_THAT(workspace.recycled, IsEmpty());
}

TEST_F(CompressResultTest, TheOriginalIsOfferedToTheTrashWhereSomebodyTakesIt)
{
    makeArchive(340'000);
    EXPECT_TRUE(trashButton().isHidden());
    outlet<QPushButton>("cancelButton")->click();
    posted.clear();
    files.sizes.clear();
    controller = makeController();
    listen();
    makeArchive(340'000);
    EXPECT_FALSE(trashButton().isHidden());
    EXPECT_FALSE(trashButton().isDefault());
}

TEST_F(CompressResultTest, AnOriginalThatHasNotChangedGoesToTheTrashByTheScreen)
{
    listen();
    makeArchive(340'000);
    wantOriginalInTrash();
    EXPECT_THAT(wanted, ElementsAre(Url("/data/X", true)));
    EXPECT_FALSE(controller->window().isVisible());
    EXPECT_THAT(workspace.recycled, IsEmpty());
}

TEST_F(CompressResultTest, AnOriginalThatMayHaveChangedStays)
{
    listen();
    itemChanges->answer = ItemChanges::Answer::Some;
    makeArchive(340'000);
    wantOriginalInTrash();
    EXPECT_TRUE(resultText().endsWith(QStringLiteral("It stays.")));
    EXPECT_TRUE(trashButton().isHidden());
    EXPECT_THAT(wanted, IsEmpty());
}

TEST_F(CompressResultTest, WithoutTheArchiveTheOriginalStays)
{
    listen();
    makeArchive(340'000);
    setArchive({1, 1});
    wantOriginalInTrash();
    EXPECT_TRUE(resultText().endsWith(QStringLiteral("The original stays.")));
    EXPECT_THAT(wanted, IsEmpty());
}

TEST_F(CompressResultTest, TheScreenMayBeGoneByThen)
{
    auto screen = std::make_unique<QObject>();
    QObject::connect(
        controller.get(),
        &CompressWindowController::originalToTrash,
        screen.get(),
        [](const Url&, const ExpectedItem&) { FAIL(); });
    makeArchive(340'000);
    screen.reset();
    wantOriginalInTrash();
    EXPECT_TRUE(resultText().contains(QStringLiteral("not on screen any more")));
}

TEST_F(CompressResultTest, TheWindowMayCloseWhileItLooks)
{
    listen();
    makeArchive(340'000);
    trashButton().click();
    outlet<QPushButton>("cancelButton")->click();
    controller.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_THAT(wanted, IsEmpty());
    controller = makeController();
}

} // namespace tessera
