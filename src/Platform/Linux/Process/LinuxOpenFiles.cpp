// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/LinuxOpenFiles.h"

#include "Platform/Linux/Process/OpenFilesSearch.h"

#include <utility>

namespace tessera {

LinuxOpenFiles::LinuxOpenFiles(std::chrono::milliseconds patience, std::string proc)
    : m_patience(patience)
    , m_proc(std::move(proc))
{
}

OpenFilesAnswer LinuxOpenFiles::withoutNames(
    std::uint64_t device, const std::stop_token& stop) const
{
    if (device == 0) {
        return {};
    }
    return search([device] { return WantedFiles::withoutNames(device); }, stop);
}

OpenFilesAnswer LinuxOpenFiles::among(
    const std::vector<FileIdentity>& files, const std::stop_token& stop) const
{
    return search([&files] { return WantedFiles::among(files); }, stop);
}

OpenFilesAnswer LinuxOpenFiles::search(
    const std::function<WantedFiles()>& wanted, const std::stop_token& stop) const
{
    // Many files take a while to be sorted, which is part of the time.
    const QuestionThreads::Clock::time_point until = QuestionThreads::Clock::now() + m_patience;
    return answerUntil<OpenFilesAnswer>(
        *m_threads,
        until,
        stop,
        [order = OpenFilesSearch::Order{m_proc, wanted(), until, stop}](
            AnswerSoFar<OpenFilesAnswer>& answer) { OpenFilesSearch(order, answer).run(); });
}

} // namespace tessera
