// SPDX-License-Identifier: MIT
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Session/TreeWindowFixture.h"
#include "support/Machine/FileContent.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace tessera::test {
namespace {

using std::filesystem::exists;

/// So long that no archiver gets to its end while a test runs; it takes no room on the disk.
constexpr std::uintmax_t kEndlessBytes = std::uintmax_t{1} << 42U;

bool isRunning(const std::filesystem::path& process)
{
    const std::string status = fileContent((process / "stat").string());
    return !status.empty() && status.find(") Z ") == std::string::npos;
}

/// The process that was started with the argument.
std::optional<pid_t> processWithArgument(const std::string& argument)
{
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const std::string name = entry.path().filename().string();
        const bool isProcess = name.find_first_not_of("0123456789") == std::string::npos;
        if (isProcess && isRunning(entry.path())
            && fileContent((entry.path() / "cmdline").string()).find('\0' + argument + '\0')
                != std::string::npos) {
            return std::stoi(name);
        }
    }
    return std::nullopt;
}

/// A document is being compressed that takes for ever.
class EndlessCompression : public TreeWindow {
protected:
    void SetUp() override
    {
        std::filesystem::resize_file(tree.pathOf("movie"), kEndlessBytes);
        TreeWindow::SetUp();
        ASSERT_TRUE(pick("movie", MenuEntry::Compress));
        ASSERT_TRUE(opens(XWindow::Kind::Dialog));
        ASSERT_TRUE(eventually([this] { return exists(part()); }));
    }

    std::string archive() const { return tree.pathOf("movie.zip"); }
    /// What it is called while it is not complete.
    std::string part() const { return tree.pathOf("movie.zip.part"); }
    std::optional<pid_t> archiver() const { return processWithArgument(archive()); }

    /// The partial archive is in the trash, the item is as it was, and nobody is writing.
    void expectOnlyTheTrashHasAnArchive()
    {
        EXPECT_TRUE(closes(XWindow::Kind::Dialog));
        expectThePartInTheTrash();
        EXPECT_TRUE(shows({}, "movie"));
    }

    void expectThePartInTheTrash()
    {
        EXPECT_FALSE(exists(archive()));
        EXPECT_FALSE(exists(part()));
        EXPECT_FALSE(archiver().has_value());
        EXPECT_TRUE(exists(program->dataFolder() + "/Trash/files/movie.zip.part"));
        EXPECT_EQ(std::filesystem::file_size(tree.pathOf("movie")), kEndlessBytes);
    }

    void expectAnOrderlyEndBy(int signal)
    {
        program->process().signal(signal);
        EXPECT_EQ(program->process().waitForExit(), 0) << log();
        expectThePartInTheTrash();
    }
};

TEST_F(EndlessCompression, AKilledArchiverLeavesNothingBesideTheItem)
{
    const std::optional<pid_t> process = archiver();
    ASSERT_TRUE(process.has_value());
    ::kill(*process, SIGKILL);
    expectOnlyTheTrashHasAnArchive();
}

TEST_F(EndlessCompression, CancellingLeavesNothingBesideTheItem)
{
    ASSERT_TRUE(rejectDialog());
    expectOnlyTheTrashHasAnArchive();
}

TEST_F(EndlessCompression, TerminatingTheProgramLeavesNothingBesideTheItem)
{
    expectAnOrderlyEndBy(SIGTERM);
}

TEST_F(EndlessCompression, InterruptingTheProgramLeavesNothingBesideTheItem)
{
    expectAnOrderlyEndBy(SIGINT);
}

TEST_F(EndlessCompression, TheEndOfItsTerminalLeavesNothingBesideTheItem)
{
    expectAnOrderlyEndBy(SIGHUP);
}

TEST_F(EndlessCompression, TerminatingTheProgramWhileItAsksLeavesNothingBesideTheItem)
{
    const XWindow compressing = *program->window(XWindow::Kind::Dialog);
    desk().requestClose(mainWindow());
    ASSERT_TRUE(
        eventually([&] { return program->window(XWindow::Kind::Dialog)->id != compressing.id; }));
    expectAnOrderlyEndBy(SIGTERM);
}

TEST_F(EndlessCompression, GoesOnInTheBackgroundWhenTheUserClosesTheMainWindow)
{
    const XWindow compressing = *program->window(XWindow::Kind::Dialog);
    desk().requestClose(mainWindow());
    ASSERT_TRUE(
        eventually([&] { return program->window(XWindow::Kind::Dialog)->id != compressing.id; }));
    ASSERT_TRUE(becomesActive(XWindow::Kind::Dialog));
    desk().typeKey(key::kReturn);
    EXPECT_TRUE(closes(XWindow::Kind::Main));
    const std::optional<pid_t> process = archiver();
    ASSERT_TRUE(process.has_value());
    ::kill(*process, SIGKILL);
    EXPECT_EQ(program->process().waitForExit(), 0) << log();
    expectThePartInTheTrash();
}

} // namespace
} // namespace tessera::test
