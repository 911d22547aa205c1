// SPDX-License-Identifier: MIT
#include "Platform/Linux/Programs/LinuxOtherPrograms.h"

#include "Platform/Qt/QtMainThread.h"
#include "support/Machine/FileContent.h"
#include "support/Machine/SessionBus.h"
#include "support/Machine/TempTree.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QEvent>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <future>
#include <optional>
#include <string>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;

constexpr std::chrono::minutes kLong(1);

/// The desktop of these tests: programs that write down what they are to open, and which of them is
/// for what. GIO reads where they are once in a process.
class OwnDesktop {
public:
    static const OwnDesktop& instance()
    {
        static const OwnDesktop desktop;
        return desktop;
    }

    /// What the program was given, and a newline behind each.
    std::string openedIn(const std::string& program) const
    {
        return test::fileContent(m_folder.pathOf(program + ".opened"));
    }

    void forget() const
    {
        for (const char* const program : {"editor", "python", "runner", "viewer"}) {
            ::unlink(m_folder.pathOf(std::string(program) + ".opened").c_str());
        }
    }

private:
    OwnDesktop()
    {
        m_folder.makeFolder("applications");
        addProgram("editor", "text/plain;application/x-zerosize;");
        // As Debian's python3.11 says of itself.
        addProgram("python", "text/x-python;text/x-python3;", "NoDisplay=true\n");
        addProgram(
            "runner",
            "application/x-desktop;application/x-executable;application/x-pie-executable;"
            "application/x-sharedlib;application/x-java-archive;application/java-archive;"
            "application/x-shellscript;");
        addProgram("viewer", "inode/directory;image/png;");
        m_folder.writeFile(
            "applications/mimeapps.list",
            "[Default Applications]\ntext/plain=editor.desktop\ninode/directory=viewer.desktop\n"
            "text/x-python=python.desktop\ntext/x-python3=python.desktop\n"
            "application/x-desktop=runner.desktop\napplication/x-executable=runner.desktop\n"
            "application/x-pie-executable=runner.desktop\n"
            "application/x-shellscript=runner.desktop\n"
            "application/x-sharedlib=runner.desktop\n");
        qputenv("XDG_DATA_HOME", QByteArray::fromStdString(m_folder.path()));
        qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(m_folder.path()));
        // The kinds of files are the system's.
        qputenv("XDG_DATA_DIRS", "/usr/share");
    }

    void addProgram(
        const std::string& name, const std::string& types, const std::string& more = {}) const
    {
        const std::string script = m_folder.pathOf(name);
        m_folder.writeFile(name, "#!/bin/sh\nprintf '%s\\n' \"$@\" >> '" + script + ".opened'\n");
        ::chmod(script.c_str(), 0700);
        m_folder.writeFile(
            "applications/" + name + ".desktop",
            "[Desktop Entry]\nType=Application\nName=" + name + "\nIcon=" + name
                + "-icon\nExec=" + script + " %f\nMimeType=" + types + '\n' + more);
    }

    test::TempTree m_folder;
};

/// Remembers what it is asked for.
class PropertiesFileManager final : public QDBusVirtualObject {
public:
    QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        calls.push_back(
            message.member().toStdString() + ' '
            + message.arguments().at(0).toStringList().join(QLatin1Char(' ')).toStdString());
        return connection.send(
            refuses ? message.createErrorReply(QDBusError::UnknownMethod, QStringLiteral("No."))
                    : message.createReply());
    }

    std::vector<std::string> calls;
    bool refuses = false;
};

class LinuxOtherProgramsTest : public testing::Test {
protected:
    LinuxOtherProgramsTest() { desktop.forget(); }

    Url file(const std::string& name, const std::string& content) const
    {
        items.writeFile(name, content);
        return {items.pathOf(name), false};
    }

    LinuxOtherPrograms make(
        const QDBusConnection& bus = QDBusConnection(QString()),
        std::chrono::milliseconds patience = kLong,
        LinuxOtherPrograms::Look look = gio_programs::lookAt)
    {
        return {bus, mainThread, terminals, patience, std::move(look)};
    }

    /// What is heard of something that is asked for.
    template <typename Ask>
    static HandOver heardOf(Ask ask)
    {
        std::optional<HandOver> heard;
        ask([&heard](HandOver outcome) { heard = outcome; });
        test::SessionBus::runEventsUntil([&heard] { return heard.has_value(); });
        EXPECT_TRUE(heard.has_value());
        return heard.value_or(HandOver::Failed);
    }

    HandOver open(const Url& item)
    {
        LinuxOtherPrograms programs = make();
        return heardOf([&](auto completion) { programs.open(item, completion); });
    }

    /// Waits until the program has been given something.
    std::string openedIn(const std::string& program) const
    {
        test::SessionBus::runEventsUntil([&] { return !desktop.openedIn(program).empty(); });
        return desktop.openedIn(program);
    }

    /// Waits until what was started has ended, and what was kept for it is gone.
    static void runEventsUntilNoProgramRuns()
    {
        test::SessionBus::runEventsUntil([] {
            siginfo_t ended = {};
            // Looked at alone: who started it hears of its end from the kernel itself.
            return ::waitid(P_ALL, 0, &ended, WEXITED | WNOHANG | WNOWAIT | __WALL) == -1
                && errno == ECHILD;
        });
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Before GIO is used.
    const OwnDesktop& desktop = OwnDesktop::instance();
    QtMainThread mainThread;
    test::TempTree items;
    std::vector<TerminalCommand> terminals;
};

TEST_F(LinuxOtherProgramsTest, AFileOpensInTheProgramThatTheDesktopHasForIt)
{
    const Url text = file("a.txt", "words\n");
    EXPECT_EQ(open(text), HandOver::Done);
    EXPECT_EQ(openedIn("editor"), text.path() + '\n');
}

TEST_F(LinuxOtherProgramsTest, AFolderOpensInTheFileManager)
{
    items.makeFolder("docs");
    EXPECT_EQ(open(Url(items.pathOf("docs"), true)), HandOver::Done);
    EXPECT_EQ(openedIn("viewer"), items.pathOf("docs") + '\n');
}

TEST_F(LinuxOtherProgramsTest, NamesAreBytesThatNobodyReads)
{
    for (const char* const name :
         {"-rf.txt", "$(touch x) `touch y`; \"'%f.txt", "not \xFF UTF-8.txt", "two\nlines.txt"}) {
        desktop.forget();
        const Url text = file(name, "words\n");
        EXPECT_EQ(open(text), HandOver::Done) << name;
        EXPECT_EQ(openedIn("editor"), text.path() + '\n') << name;
    }
}

TEST_F(LinuxOtherProgramsTest, AProgramIsNotOpenedWhateverSaysThatItOpensPrograms)
{
    const std::string elf = test::fileContent("/bin/true");
    ASSERT_FALSE(elf.empty());
    for (const Url& program :
         {file("program", elf),
          file("a.desktop", "[Desktop Entry]\nType=Application\nName=a\nExec=touch /tmp/a\n"),
          file("a.jar", "PK\3\4"),
          file("setup.exe", "MZ"),
          file("b.appimage", elf)}) {
        ::chmod(program.path().c_str(), 0700);
        EXPECT_EQ(open(program), HandOver::IsProgram) << program.path();
    }
    EXPECT_EQ(desktop.openedIn("runner"), "");
}

TEST_F(LinuxOtherProgramsTest, ALinkToAProgramIsNotOpened)
{
    items.makeSymbolicLink("harmless", "/bin/true");
    EXPECT_EQ(open(Url(items.pathOf("harmless"), false)), HandOver::IsProgram);
}

/// Its own language's program would run it.
TEST_F(LinuxOtherProgramsTest, AScriptOpensAsText)
{
    for (const Url& script :
         {file("a.py", "#!/usr/bin/python3\nprint(1)\n"), file("a.sh", "#!/bin/sh\nexit\n")}) {
        desktop.forget();
        ::chmod(script.path().c_str(), 0700);
        EXPECT_EQ(open(script), HandOver::Done);
        EXPECT_EQ(openedIn("editor"), script.path() + '\n');
    }
    EXPECT_EQ(desktop.openedIn("python"), "");
    EXPECT_EQ(desktop.openedIn("runner"), "");
}

TEST_F(LinuxOtherProgramsTest, WhatIsGoneIsSaidToBeGone)
{
    const Url gone(items.pathOf("gone"), false);
    EXPECT_EQ(open(gone), HandOver::Gone);
    LinuxOtherPrograms programs = make();
    EXPECT_EQ(
        heardOf([&](auto heard) { programs.openWith(gone, "editor.desktop", heard); }),
        HandOver::Gone);
    EXPECT_EQ(heardOf([&](auto heard) { programs.openTerminal(gone, heard); }), HandOver::Gone);
    EXPECT_EQ(heardOf([&](auto heard) { programs.showProperties(gone, heard); }), HandOver::Gone);
}

TEST_F(LinuxOtherProgramsTest, ThereMayBeNoProgramForIt)
{
    EXPECT_EQ(open(file("a.ogg", "OggS")), HandOver::NoProgram);
}

TEST_F(LinuxOtherProgramsTest, TheProgramsForAFileComeBeforeAllOthersAndHiddenOnesNowhere)
{
    LinuxOtherPrograms programs = make();
    std::optional<std::vector<ProgramChoice>> found;
    programs.findPrograms(
        file("a.txt", "words\n"), [&](HandOver outcome, const std::vector<ProgramChoice>& all) {
            EXPECT_EQ(outcome, HandOver::Done);
            found = all;
        });
    test::SessionBus::runEventsUntil([&] { return found.has_value(); });
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(found->front(), (ProgramChoice{"editor.desktop", "editor", "editor-icon", true}));
    EXPECT_EQ(std::ranges::count(*found, "editor.desktop", &ProgramChoice::id), 1);
    const auto viewer = std::ranges::find(*found, "viewer.desktop", &ProgramChoice::id);
    ASSERT_NE(viewer, found->end());
    EXPECT_FALSE(viewer->isForItem);
    EXPECT_EQ(std::ranges::count(*found, "python.desktop", &ProgramChoice::id), 0);
    EXPECT_TRUE(std::ranges::is_partitioned(*found, &ProgramChoice::isForItem));
}

TEST_F(LinuxOtherProgramsTest, AFileOpensInTheProgramThatTheUserChose)
{
    const Url text = file("a.txt", "words\n");
    LinuxOtherPrograms programs = make();
    EXPECT_EQ(
        heardOf([&](auto heard) { programs.openWith(text, "viewer.desktop", heard); }),
        HandOver::Done);
    EXPECT_EQ(openedIn("viewer"), text.path() + '\n');
    EXPECT_EQ(
        heardOf([&](auto heard) { programs.openWith(text, "missing.desktop", heard); }),
        HandOver::NoProgram);
}

TEST_F(LinuxOtherProgramsTest, ADiskThatAnswersTooLateOpensNothingAnyMore)
{
    std::promise<void> revive;
    const std::shared_future<void> life = revive.get_future().share();
    std::promise<void> hasAnswered;
    LinuxOtherPrograms programs
        = make(QDBusConnection(QString()), std::chrono::milliseconds(1), [&](const auto& path) {
              life.wait();
              ItemLook look = gio_programs::lookAt(path);
              hasAnswered.set_value();
              return look;
          });
    const Url text = file("a.txt", "words\n");
    EXPECT_EQ(heardOf([&](auto heard) { programs.open(text, heard); }), HandOver::NoAnswer);
    revive.set_value();
    hasAnswered.get_future().wait();
    // What is opened after it is opened later.
    EXPECT_EQ(open(file("b.txt", "words\n")), HandOver::Done);
    EXPECT_EQ(openedIn("editor"), items.pathOf("b.txt") + '\n');
}

TEST_F(LinuxOtherProgramsTest, NobodyHearsOfAnswersWhenItIsGone)
{
    bool isHeard = false;
    const Url text = file("a.png", "");
    {
        LinuxOtherPrograms programs = make();
        programs.open(text, [&isHeard](HandOver) { isHeard = true; });
    }
    EXPECT_EQ(open(Url(items.pathOf("gone"), false)), HandOver::Gone);
    EXPECT_FALSE(isHeard);
}

/// The first that is installed.
TEST_F(LinuxOtherProgramsTest, ATerminalOpensInTheFolder)
{
    const std::string terminal = items.pathOf("terminal");
    items.writeFile("terminal", "#!/bin/sh\n/bin/pwd > \"$1\"\n");
    ::chmod(terminal.c_str(), 0700);
    terminals = {{items.pathOf("missing")}, {terminal, {items.pathOf("where")}}, {"/bin/false"}};
    LinuxOtherPrograms programs = make();
    for (const char* const name : {"docs", "-rf $(touch x) '\"", "not \xFF UTF-8", "two\nlines"}) {
        items.makeFolder(name);
        const Url folder(items.pathOf(name), true);
        std::filesystem::remove(items.pathOf("where"));
        EXPECT_EQ(
            heardOf([&](auto heard) { programs.openTerminal(folder, heard); }), HandOver::Done);
        const auto where = [&] { return test::fileContent(items.pathOf("where")); };
        test::SessionBus::runEventsUntil([&] { return !where().empty(); });
        EXPECT_EQ(where(), folder.path() + '\n');
    }
    runEventsUntilNoProgramRuns();
}

TEST_F(LinuxOtherProgramsTest, ThereMayBeNoTerminal)
{
    terminals = {{items.pathOf("missing")}};
    LinuxOtherPrograms programs = make();
    const Url folder(items.path(), true);
    EXPECT_EQ(
        heardOf([&](auto heard) { programs.openTerminal(folder, heard); }), HandOver::NoProgram);
}

TEST_F(LinuxOtherProgramsTest, NoTerminalOpensInAFile)
{
    terminals = {{"/bin/true"}};
    LinuxOtherPrograms programs = make();
    const Url text = file("a.txt", "words\n");
    EXPECT_EQ(
        heardOf([&](auto heard) { programs.openTerminal(text, heard); }), HandOver::MayNotLook);
}

TEST_F(LinuxOtherProgramsTest, TheFileManagerIsAskedForProperties)
{
    test::SessionBus sessionBus;
    ASSERT_TRUE(sessionBus.start());
    PropertiesFileManager fileManager;
    QDBusConnection bus = sessionBus.connection(QStringLiteral("tessera-test-properties"));
    ASSERT_TRUE(
        bus.registerVirtualObject(QStringLiteral("/org/freedesktop/FileManager1"), &fileManager));
    ASSERT_TRUE(bus.registerService(QStringLiteral("org.freedesktop.FileManager1")));
    LinuxOtherPrograms programs = make(sessionBus.connection(QStringLiteral("tessera-test-asks")));
    const Url text = file("a \xFF", "words\n");
    const auto ask
        = [&] { return heardOf([&](auto heard) { programs.showProperties(text, heard); }); };
    EXPECT_EQ(ask(), HandOver::Done);
    EXPECT_THAT(fileManager.calls, ElementsAre("ShowItemProperties " + text.absoluteString()));
    fileManager.refuses = true;
    EXPECT_EQ(ask(), HandOver::NoProgram);
}

TEST_F(LinuxOtherProgramsTest, WithoutABusThereIsNoFileManager)
{
    LinuxOtherPrograms programs = make();
    const Url text = file("a.txt", "words\n");
    EXPECT_EQ(
        heardOf([&](auto heard) { programs.showProperties(text, heard); }), HandOver::NoProgram);
}

} // namespace
} // namespace tessera
