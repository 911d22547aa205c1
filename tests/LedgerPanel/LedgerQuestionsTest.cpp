// SPDX-License-Identifier: MIT
#include "LedgerPanel/LedgerQuestions.h"

#include "support/Fakes/FakeLedgerServices.h"

#include <QCoreApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <vector>

namespace tessera {
namespace {

class LedgerQuestionsTest : public testing::Test {
protected:
    LedgerQuestionsTest() { listenTo(questions); }

    void listenTo(const LedgerQuestions& asker)
    {
        QObject::connect(
            &asker, &LedgerQuestions::answered, &receiver, [this](const DiskAnswer& answer) {
                answers.push_back(answer);
            });
    }

    bool isAnswered(std::size_t times)
    {
        return QTest::qWaitFor([this, times] { return answers.size() >= times; });
    }

    test::FakeLedgerServices services;
    QObject receiver;
    std::vector<DiskAnswer> answers;
    LedgerQuestions questions{services.get()};
};

TEST_F(LedgerQuestionsTest, BringSizesOpenFilesAndCoveredFolders)
{
    services.openFiles->setAnswer(
        {.files = {{.identity = {}, .allocatedBytes = 5, .holders = {}}}});
    services.coveredFolders->setCovered(
        std::vector<CoveredFolder>{{.path = "/dev", .type = "devtmpfs"}});
    questions.ask("/mnt/link/", "/mnt/disk/");
    ASSERT_TRUE(isAnswered(1));
    EXPECT_EQ(answers[0].sizes->totalBytes, 1000U);
    EXPECT_EQ(answers[0].open.allocatedBytes(), 5U);
    EXPECT_EQ(answers[0].covered->size(), 1U);
    EXPECT_FALSE(questions.isAsking());
}

TEST_F(LedgerQuestionsTest, AskForTheDiskThatIsMountedThere)
{
    questions.ask("/mnt/link/", "/mnt/disk/");
    ASSERT_TRUE(isAnswered(1));
    EXPECT_EQ(services.fileSystem->askedFor(), "/mnt/link/");
    EXPECT_EQ(services.openFiles->askedFor(), 7U);
    EXPECT_EQ(services.coveredFolders->askedFor(), "/mnt/disk");
}

TEST_F(LedgerQuestionsTest, KeepTheSlashOfTheRoot)
{
    questions.ask("/", "/");
    ASSERT_TRUE(isAnswered(1));
    EXPECT_EQ(services.coveredFolders->askedFor(), "/");
}

TEST_F(LedgerQuestionsTest, AskForNoFilesWhereTheDiskDoesNotAnswer)
{
    services.fileSystem->setSizes(std::nullopt);
    questions.ask("/", "/");
    ASSERT_TRUE(isAnswered(1));
    EXPECT_FALSE(answers[0].sizes);
    EXPECT_EQ(services.openFiles->asked(), 0);
}

TEST_F(LedgerQuestionsTest, DropTheAnswerToWhatWasAskedBefore)
{
    services.openFiles->setSilent(true);
    questions.ask("/first", "/first");
    services.openFiles->waitUntilAsked(1);
    services.openFiles->setSilent(false);
    services.fileSystem->setSizes(FileSystemSizes{.totalBytes = 77, .device = 8});
    questions.ask("/second", "/second");
    ASSERT_TRUE(isAnswered(1));
    QCoreApplication::processEvents();
    ASSERT_EQ(answers.size(), 1U);
    EXPECT_EQ(answers[0].sizes->totalBytes, 77U);
}

TEST_F(LedgerQuestionsTest, AreStoppedByACancel)
{
    services.openFiles->setSilent(true);
    questions.ask("/first", "/first");
    services.openFiles->waitUntilAsked(1);
    // The answer that this ends is on its way before that to the next question.
    questions.cancel();
    EXPECT_FALSE(questions.isAsking());
    services.openFiles->setSilent(false);
    questions.ask("/second", "/second");
    ASSERT_TRUE(isAnswered(1));
    EXPECT_EQ(answers.size(), 1U);
}

TEST_F(LedgerQuestionsTest, GiveUpWhenTheAnswerNeverComes)
{
    LedgerQuestions impatient(services.get(), std::chrono::milliseconds(0));
    listenTo(impatient);
    services.openFiles->setSilent(true);
    impatient.ask("/", "/");
    ASSERT_TRUE(isAnswered(1));
    EXPECT_FALSE(answers[0].sizes);
    EXPECT_FALSE(impatient.isAsking());
}

} // namespace
} // namespace tessera
