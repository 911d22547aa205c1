// SPDX-License-Identifier: MIT
#include "About/AboutWindow.h"

#include "support/Fakes/FakeTask.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class AboutWindowTest : public testing::Test {
protected:
    std::string versions() const { return window->versions().toStdString(); }

    const QPlainTextEdit& text(const char* name) const
    {
        return *window->findChild<QPlainTextEdit*>(QString::fromLatin1(name));
    }

    test::FakeTaskRecord task;
    std::unique_ptr<AboutWindow> window = std::make_unique<AboutWindow>(AboutServices{
        .libraries = {{"GLib", "2.74.6"}},
        .makeTask = [this] { return test::FakeTask::make(task); },
        .archiver = "/opt/archiver"});
};

TEST_F(AboutWindowTest, SaysTheVersionsOfTheProgramAndItsLibraries)
{
    EXPECT_THAT(versions(), testing::MatchesRegex("Tessera [0-9.]+\n(.|\n)*"));
    EXPECT_THAT(versions(), HasSubstr(std::string("\nQt ") + qVersion() + '\n'));
    EXPECT_THAT(versions(), HasSubstr("\nGLib 2.74.6\n"));
}

TEST_F(AboutWindowTest, AsksTheArchiverForItsOwn)
{
    EXPECT_EQ(task.program, "/opt/archiver");
    EXPECT_THAT(task.arguments, ElementsAre("--libraries"));
    task.output = "libarchive 3.6.2\n";
    std::exchange(task.onTerminated, {})(0);
    EXPECT_THAT(versions(), HasSubstr("\nlibarchive 3.6.2\n"));
    EXPECT_EQ(text("versions").toPlainText(), window->versions());
    EXPECT_TRUE(task.isDestroyed);
}

TEST_F(AboutWindowTest, AnArchiverThatDoesNotTellIsNotMentioned)
{
    task.output = "usage of it\n";
    std::exchange(task.onTerminated, {})(2);
    EXPECT_THAT(versions(), Not(HasSubstr("usage")));
}

TEST_F(AboutWindowTest, TheArchiverMayAnswerWhenTheWindowIsGone)
{
    window.reset();
    EXPECT_TRUE(task.isDestroyed);
}

TEST_F(AboutWindowTest, TheVersionsAreCopiedAsTheyAreShown)
{
    for (QPushButton* const button : window->findChildren<QPushButton*>()) {
        if (button->text() == QStringLiteral("&Copy Versions")) {
            button->click();
        }
    }
    EXPECT_EQ(QGuiApplication::clipboard()->text(), window->versions());
}

TEST_F(AboutWindowTest, TheWholeLicenseCanBeRead)
{
    const std::string license = text("license").toPlainText().toStdString();
    EXPECT_THAT(license, testing::StartsWith("MIT License\n"));
    EXPECT_THAT(license, HasSubstr("THE SOFTWARE IS PROVIDED \"AS IS\""));
    EXPECT_TRUE(text("license").isReadOnly());
}

TEST_F(AboutWindowTest, EscapeAndEnterCloseIt)
{
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        window->showWindow(nullptr);
        QTest::keyClick(window.get(), key);
        EXPECT_FALSE(window->isVisible());
    }
}

} // namespace
} // namespace tessera
