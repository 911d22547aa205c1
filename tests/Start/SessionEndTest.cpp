// SPDX-License-Identifier: MIT
#include "Start/SessionEnd.h"

#include "Desktop/UserAccount.h"
#include "MainWindow/MainWindowController.h"
#include "Start/AppDelegate.h"
#include "support/Fakes/FakeMainWindowServices.h"
#include "support/Fakes/FakeTrashHistory.h"

#include <QApplication>
#include <QEventLoop>
#include <QMainWindow>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OrdinaryUser final : public UserAccount {
public:
    [[nodiscard]] std::optional<PasswordEntry> realUser() const override
    {
        return PasswordEntry{"me", "/me"};
    }
    [[nodiscard]] std::string homeDirectory() const override { return "/me"; }
    [[nodiscard]] std::uint32_t userNumber() const override { return 0; }
};

/// A session manager that writes down what it is told.
class FakeQuestion final : public SessionQuestion {
public:
    void doNotRestart() override { told.emplace_back("no restart"); }
    [[nodiscard]] bool mayAskUser() override
    {
        told.emplace_back("may ask?");
        return letsAsk;
    }
    void doneAsking() override { told.emplace_back("asked"); }
    void keepSession() override { told.emplace_back("stay"); }

    bool letsAsk = true;
    std::vector<std::string> told;
};

class SessionEndTest : public testing::Test {
protected:
    SessionEndTest() { delegate.start(); }

    void compress() { services.treeScreen.targetsInUse = {"/data/X.zip"}; }
    test::FakeAlert& alert() { return services.treeScreen.alert; }
    bool hasKeptPlace() const
    {
        return services.rootModel.defaults.texts.contains("MainWindowFrame");
    }

    /// What a session manager's last word becomes, which has to end the event loop.
    static void quitInLoop()
    {
        QTimer::singleShot(0, qApp, [] {
            QEvent quit(QEvent::Quit);
            QCoreApplication::sendEvent(qApp, &quit);
        });
        QEventLoop().exec();
    }

    OrdinaryUser account;
    test::FakeTrashHistory history;
    test::FakeMainWindowServices services;
    AppDelegate delegate{
        {.mainWindow = services.get(),
         .userAccount = account,
         .trashHistory = history,
         .helpAddress = [](HelpPage /*page*/) { return std::string(); }}};
    SessionEnd end{delegate};
    FakeQuestion question;
};

TEST_F(SessionEndTest, ASessionThatIsOnlySavedRestartsNothing)
{
    SessionEnd::save(question);

    EXPECT_FALSE(hasKeptPlace());
    EXPECT_THAT(question.told, ElementsAre("no restart"));
}

TEST_F(SessionEndTest, ASessionThatEndsKeepsTheWindowsPlaceAndRestartsNothing)
{
    end.commit(question);

    EXPECT_TRUE(hasKeptPlace());
    EXPECT_THAT(question.told, ElementsAre("no restart"));
}

TEST_F(SessionEndTest, ThePlaceOfAClosedWindowIsTheOneItWasClosedAt)
{
    delegate.mainWindow()->window().hide();
    end.commit(question);

    EXPECT_FALSE(hasKeptPlace());
}

TEST_F(SessionEndTest, WhileAnArchiveIsMadeTheUserIsAskedOnce)
{
    compress();
    end.commit(question);

    ASSERT_EQ(alert().asked.size(), 1U);
    EXPECT_EQ(alert().asked.front().messageText, QStringLiteral("An archive is still being made"));
}

TEST_F(SessionEndTest, WhoeverAgreesHasTheSessionEnd)
{
    compress();
    alert().answer = Alert::kFirstButton;
    end.commit(question);

    EXPECT_THAT(question.told, ElementsAre("no restart", "may ask?", "asked"));
}

TEST_F(SessionEndTest, WhoeverCancelsKeepsTheSession)
{
    compress();
    alert().answer = Alert::kFirstButton + 1;
    end.commit(question);

    EXPECT_THAT(question.told, ElementsAre("no restart", "may ask?", "asked", "stay"));
}

TEST_F(SessionEndTest, WhereTheUserMayNotBeAskedNobodyAsks)
{
    compress();
    question.letsAsk = false;
    end.commit(question);

    EXPECT_THAT(alert().asked, IsEmpty());
    EXPECT_THAT(question.told, ElementsAre("no restart", "may ask?"));
}

TEST_F(SessionEndTest, ASessionThatIsOnlySavedAsksNothing)
{
    compress();
    SessionEnd::save(question);

    EXPECT_THAT(alert().asked, IsEmpty());
}

TEST_F(SessionEndTest, WhatTellsTheProgramToQuitIsObeyedWithoutAQuestion)
{
    compress();
    alert().answer = Alert::kFirstButton + 2;
    quitInLoop();

    EXPECT_THAT(alert().asked, IsEmpty());
    EXPECT_TRUE(delegate.mainWindow()->window().isVisible());
}

} // namespace
} // namespace tessera
