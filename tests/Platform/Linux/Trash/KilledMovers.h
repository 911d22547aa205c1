// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Trash/TrashJournalFile.h"
#include "PutBackFixture.h"
#include "support/Machine/ChildProcess.h"

#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace tessera::test {

/// A trash that programs use which are killed at any moment.
class KilledMovers : public PutBackFixture {
protected:
    static constexpr int kRounds = 50;
    static constexpr int kNightlyRounds = 1000;

    /// `program` gets the home, the folder for states and "work", and then these arguments. It
    /// writes to its output when it begins to move items.
    explicit KilledMovers(std::string program, std::vector<std::string> arguments = {});

    /// Kills movers that work on the same items when they have written some more to their journal.
    void killMovers(int count, std::minstd_rand& random) const;

    /// Every line is whole but one that was being written, and every move has its own number.
    void checkJournal() const;

private:
    std::uintmax_t journalBytes() const;
    std::unique_ptr<ChildProcess> startMover(const std::string& output) const;

    const std::string m_program;
    const std::vector<std::string> m_arguments;
    const std::string m_journalPath = trashJournalPath(m_stateHome);
};

} // namespace tessera::test
