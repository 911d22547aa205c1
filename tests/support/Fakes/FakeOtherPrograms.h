// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/OtherPrograms.h"

#include <deque>
#include <string>
#include <utility>
#include <vector>

namespace tessera::test {

/// Writes down what other programs are asked for, and answers when the test says so.
class FakeOtherPrograms final : public OtherPrograms {
public:
    void open(const Url& item, Completion completion) override
    {
        note("open", item, std::move(completion));
    }

    void findPrograms(const Url& item, ProgramsCompletion completion) override
    {
        asked.push_back("find " + item.path());
        m_findings.push_back(std::move(completion));
    }

    void openWith(const Url& item, const std::string& programId, Completion completion) override
    {
        note("with " + programId, item, std::move(completion));
    }

    void openTerminal(const Url& folder, Completion completion) override
    {
        note("terminal", folder, std::move(completion));
    }

    void showProperties(const Url& item, Completion completion) override
    {
        note("properties", item, std::move(completion));
    }

    /// Answers the oldest question that waits.
    void answer(HandOver outcome)
    {
        const Completion completion = std::move(m_completions.front());
        m_completions.pop_front();
        completion(outcome);
    }

    void answerPrograms(HandOver outcome, const std::vector<ProgramChoice>& programs)
    {
        const ProgramsCompletion completion = std::move(m_findings.front());
        m_findings.pop_front();
        completion(outcome, programs);
    }

    std::vector<std::string> asked; ///< what for, and the item's path

private:
    void note(const std::string& what, const Url& item, Completion completion)
    {
        asked.push_back(what + " " + item.path());
        m_completions.push_back(std::move(completion));
    }

    std::deque<Completion> m_completions;
    std::deque<ProgramsCompletion> m_findings;
};

} // namespace tessera::test
