// SPDX-License-Identifier: MIT
#include "KilledMovers.h"

#include <algorithm>
#include <csignal>
#include <cstddef>
#include <filesystem>
#include <map>
#include <set>
#include <sstream>
#include <system_error>
#include <thread>
#include <utility>

namespace tessera::test {

namespace {

/// A line that is glued to another one has too many words.
bool isWholeLine(const std::string& line)
{
    static const std::map<std::string, std::ptrdiff_t> spaces{
        {"trash", 9}, {"moved", 2}, {"stayed", 2}, {"returning", 3}, {"back", 3}};
    const auto kind = spaces.find(line.substr(0, line.find(' ')));
    return kind != spaces.end() && line.ends_with(" .")
        && std::count(line.begin(), line.end(), ' ') == kind->second;
}

} // namespace

KilledMovers::KilledMovers(std::string program, std::vector<std::string> arguments)
    : m_program(std::move(program))
    , m_arguments(std::move(arguments))
{
}

std::uintmax_t KilledMovers::journalBytes() const
{
    std::error_code error;
    const std::uintmax_t bytes = std::filesystem::file_size(m_journalPath, error);
    return error ? 0 : bytes;
}

std::unique_ptr<ChildProcess> KilledMovers::startMover(const std::string& output) const
{
    std::filesystem::remove(output);
    std::vector<std::string> arguments{m_tree.pathOf("home"), m_stateHome, m_tree.pathOf("work")};
    arguments.insert(arguments.end(), m_arguments.begin(), m_arguments.end());
    auto mover = std::make_unique<ChildProcess>(ChildProcessSetup{
        .program = m_program,
        .arguments = std::move(arguments),
        .environment = {},
        .outputPath = output,
        .errorPath = m_tree.pathOf("errors")});
    while (fileContent(output).empty() && !mover->exitStatus()) {
        std::this_thread::yield();
    }
    return mover;
}

void KilledMovers::killMovers(int count, std::minstd_rand& random) const
{
    std::vector<std::unique_ptr<ChildProcess>> movers;
    movers.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        movers.push_back(startMover(m_tree.pathOf("output" + std::to_string(i))));
    }
    const std::uintmax_t enough = journalBytes() + random() % 12'000;
    while (journalBytes() < enough && !movers.front()->exitStatus()) {
        std::this_thread::yield();
    }
    for (auto left = random() % 300; left > 0; --left) {
        std::this_thread::yield();
    }
    for (const auto& mover : movers) {
        EXPECT_FALSE(mover->exitStatus()) << fileContent(m_tree.pathOf("errors"));
        mover->signal(SIGKILL);
        mover->waitForExit();
    }
}

void KilledMovers::checkJournal() const
{
    std::istringstream text(journalText());
    for (std::string line; std::getline(text, line);) {
        EXPECT_TRUE(text.eof() || line.empty() || isWholeLine(line)) << line;
    }
    std::set<std::uint64_t> numbers;
    for (const TrashRecord& record : m_journal->records()) {
        numbers.insert(record.item.number);
    }
    EXPECT_EQ(numbers.size(), m_journal->records().size());
    EXPECT_FALSE(numbers.empty());
}

} // namespace tessera::test
