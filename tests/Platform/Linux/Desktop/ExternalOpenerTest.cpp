// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/ExternalOpener.h"

#include "support/Machine/FileContent.h"
#include "support/Machine/SessionBus.h"
#include "support/Machine/TempTree.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <optional>
#include <string>

namespace tessera {
namespace {

class ExternalOpenerTest : public testing::Test {
protected:
    /// A program of the shell, for which $1 is the URL.
    std::string program(const std::string& lines) const
    {
        m_folder.writeFile("program", "#!/bin/sh\n" + lines + '\n');
        ::chmod(m_folder.pathOf("program").c_str(), 0700);
        return m_folder.pathOf("program");
    }

    static std::optional<bool> answerOf(const ExternalOpener& opener)
    {
        std::optional<bool> answer;
        opener("file:///a%20b/", [&answer](bool isOpened) { answer = isOpened; });
        test::SessionBus::runEventsUntil([&answer] { return answer.has_value(); });
        return answer;
    }

    test::TempTree m_folder;
};

TEST_F(ExternalOpenerTest, AProgramThatSucceedsHasOpenedTheUrl)
{
    EXPECT_EQ(answerOf(ExternalOpener(program("exit 0"))), true);
}

TEST_F(ExternalOpenerTest, AProgramThatFailsHasNot)
{
    EXPECT_EQ(answerOf(ExternalOpener(program("exit 3"))), false);
}

TEST_F(ExternalOpenerTest, AProgramThatCrashesHasNot)
{
    EXPECT_EQ(answerOf(ExternalOpener(program("kill -9 $$"))), false);
}

TEST_F(ExternalOpenerTest, AProgramThatCrashesIsAnsweredForOnce)
{
    int answers = 0;
    ExternalOpener(program("kill -9 $$"))("file:///a/", [&answers](bool) { ++answers; });
    test::SessionBus::runEventsUntil([&answers] { return answers > 0; });
    EXPECT_EQ(answers, 1);
}

TEST_F(ExternalOpenerTest, TheProgramHasNothingToRead)
{
    const std::string out = m_folder.pathOf("out");
    ASSERT_EQ(answerOf(ExternalOpener(program("readlink /proc/$$/fd/0 >" + out))), true);
    EXPECT_EQ(test::fileContent(out), "/dev/null\n");
}

TEST_F(ExternalOpenerTest, AProgramThatIsNotThereHasNot)
{
    EXPECT_EQ(answerOf(ExternalOpener("/no/such/program")), false);
}

TEST_F(ExternalOpenerTest, WhoFailsAfterLongHasShownSomethingBefore)
{
    EXPECT_EQ(answerOf(ExternalOpener(program("exit 3"), std::chrono::milliseconds(0))), true);
}

TEST_F(ExternalOpenerTest, TheUrlIsTheOnlyArgument)
{
    const std::string out = m_folder.pathOf("out");
    ASSERT_EQ(answerOf(ExternalOpener(program("echo $# \"$1\" >" + out))), true);
    EXPECT_EQ(test::fileContent(out), "1 file:///a%20b/\n");
}

TEST_F(ExternalOpenerTest, TheProgramIsInASessionOfItsOwn)
{
    const std::string out = m_folder.pathOf("out");
    ASSERT_EQ(
        answerOf(ExternalOpener(
            program("test $(cut -d ' ' -f 6 /proc/$$/stat) = $$ && echo own >" + out))),
        true);
    EXPECT_EQ(test::fileContent(out), "own\n");
}

} // namespace
} // namespace tessera
