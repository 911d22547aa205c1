// SPDX-License-Identifier: MIT
#include "OpenItem/ItemOpening.h"

#include "Model/FreeSpace.h"
#include "Model/TopFolder.h"
#include "OpenItem/ProgramChooser.h"
#include "support/Fakes/FakeAlert.h"
#include "support/Fakes/FakeOtherPrograms.h"
#include "support/MakeTree.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QListWidget>
#include <QMimeData>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ItemOpeningTest : public testing::Test {
protected:
    void perform(Command command, const char* path) const
    {
        opening->perform(command, test::at(*top, path));
    }

    ProgramChooser* chooser() const { return window.findChild<ProgramChooser*>(); }

    std::unique_ptr<TopFolder> top = test::makeTree("/data", "docs/ ( a:700 ) c\xFF:50");
    test::FakeOtherPrograms programs;
    test::FakeAlert alert;
    QWidget window;
    std::unique_ptr<ItemOpening> opening = std::make_unique<ItemOpening>(programs, alert, window);
};

TEST_F(ItemOpeningTest, EachCommandAsksForItsOwn)
{
    perform(Command::OpenItem, "docs/a");
    perform(Command::OpenItem, "docs");
    perform(Command::OpenWith, "docs/a");
    perform(Command::Properties, "c\xFF");
    EXPECT_THAT(
        programs.asked,
        ElementsAre(
            "open /data/docs/a", "open /data/docs", "find /data/docs/a", "properties /data/c\xFF"));
}

TEST_F(ItemOpeningTest, ATerminalOpensInTheFolderOrInThatOfTheFile)
{
    perform(Command::OpenTerminal, "docs");
    perform(Command::OpenTerminal, "docs/a");
    opening->perform(Command::OpenTerminal, *top);
    EXPECT_THAT(
        programs.asked,
        ElementsAre("terminal /data/docs", "terminal /data/docs", "terminal /data"));
}

TEST_F(ItemOpeningTest, ThePathIsCopied)
{
    perform(Command::CopyPath, "c\xFF");
    const QMimeData* const copied = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(copied->data(QStringLiteral("text/plain")).toStdString(), "/data/c\xFF");
}

TEST_F(ItemOpeningTest, SpaceIsNoItem)
{
    const auto space = makeNode<FreeSpace>("");
    for (const Command command :
         {Command::OpenItem, Command::OpenWith, Command::OpenTerminal, Command::Properties}) {
        opening->perform(command, *space);
    }
    EXPECT_THAT(programs.asked, IsEmpty());
}

TEST_F(ItemOpeningTest, WhatWorksIsNotTold)
{
    perform(Command::OpenItem, "docs/a");
    programs.answer(HandOver::Done);
    EXPECT_THAT(alert.told, IsEmpty());
}

TEST_F(ItemOpeningTest, EachFailureIsToldInWordsOfItsOwn)
{
    std::set<QString> texts;
    for (const HandOver outcome :
         {HandOver::Gone,
          HandOver::MayNotLook,
          HandOver::NoAnswer,
          HandOver::IsProgram,
          HandOver::NoProgram,
          HandOver::Failed}) {
        perform(Command::OpenItem, "docs/a");
        programs.answer(outcome);
        EXPECT_EQ(alert.told.back().messageText, QStringLiteral("'a' cannot be opened"));
        texts.insert(alert.told.back().informativeText);
    }
    EXPECT_THAT(texts, SizeIs(6));
}

TEST_F(ItemOpeningTest, NamesAreShownAsTextThatChangesNothing)
{
    perform(Command::OpenItem, "c\xFF");
    programs.answer(HandOver::Gone);
    EXPECT_EQ(alert.told.back().messageText, QStringLiteral("'c\uFFFD' cannot be opened"));
}

TEST_F(ItemOpeningTest, WithoutAFileManagerOrATerminalThatIsSaid)
{
    perform(Command::Properties, "docs/a");
    programs.answer(HandOver::NoProgram);
    EXPECT_TRUE(alert.told.back().informativeText.contains(QStringLiteral("file manager")));
    perform(Command::OpenTerminal, "docs/a");
    programs.answer(HandOver::NoProgram);
    EXPECT_TRUE(alert.told.back().informativeText.contains(QStringLiteral("No terminal")));
}

TEST_F(ItemOpeningTest, TheChosenProgramOpensTheItem)
{
    perform(Command::OpenWith, "docs/a");
    EXPECT_EQ(chooser(), nullptr);
    programs.answerPrograms(HandOver::Done, {{"editor", "Editor"}});
    ASSERT_NE(chooser(), nullptr);
    QTest::keyClick(chooser()->findChild<QListWidget*>(), Qt::Key_Return);
    EXPECT_EQ(programs.asked.back(), "with editor /data/docs/a");
    programs.answer(HandOver::Failed);
    EXPECT_THAT(alert.told, SizeIs(1));
}

TEST_F(ItemOpeningTest, WithoutAChoiceThatIsSaid)
{
    perform(Command::OpenWith, "docs/a");
    programs.answerPrograms(HandOver::Done, {});
    perform(Command::OpenWith, "docs/a");
    programs.answerPrograms(HandOver::Gone, {});
    EXPECT_EQ(chooser(), nullptr);
    EXPECT_THAT(alert.told, SizeIs(2));
}

TEST_F(ItemOpeningTest, ThereIsOneChooserForWhatWasAskedLast)
{
    perform(Command::OpenWith, "docs/a");
    perform(Command::OpenWith, "c\xFF");
    programs.answerPrograms(HandOver::Done, {{"editor", "Editor"}});
    programs.answerPrograms(HandOver::Done, {{"editor", "Editor"}});
    EXPECT_EQ(window.findChildren<ProgramChooser*>().size(), 1);
    QTest::keyClick(chooser()->findChild<QListWidget*>(), Qt::Key_Return);
    EXPECT_EQ(programs.asked.back(), "with editor /data/c\xFF");
}

TEST_F(ItemOpeningTest, AnAnswerMayComeWhenTheScreenIsGone)
{
    perform(Command::OpenItem, "docs/a");
    perform(Command::OpenWith, "docs/a");
    opening.reset();
    programs.answer(HandOver::Gone);
    programs.answerPrograms(HandOver::Done, {{"editor", "Editor"}});
    EXPECT_THAT(alert.told, IsEmpty());
    EXPECT_EQ(chooser(), nullptr);
}

TEST_F(ItemOpeningTest, TheChooserGoesWithTheScreen)
{
    perform(Command::OpenWith, "docs/a");
    programs.answerPrograms(HandOver::Done, {{"editor", "Editor"}});
    opening.reset();
    EXPECT_EQ(chooser(), nullptr);
}

} // namespace
} // namespace tessera
