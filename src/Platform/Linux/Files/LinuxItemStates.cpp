// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/LinuxItemStates.h"

#include "DeadMounts/AnswerSoFar.h"
#include "Platform/Linux/Files/HeldItem.h"
#include "Platform/Linux/Files/LongPath.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstddef>

namespace tessera {

namespace {

using Answers = std::vector<ItemAnswer>;
using Outcome = ItemAnswer::Outcome;

ItemState::Kind kindOf(const FileStatus& status)
{
    if (status.isDirectory) {
        return ItemState::Kind::Folder;
    }
    if (status.isRegular) {
        return ItemState::Kind::File;
    }
    return S_ISLNK(status.mode) ? ItemState::Kind::SymbolicLink : ItemState::Kind::Other;
}

Outcome outcomeAfter(int error)
{
    switch (error) {
    case 0:
        return Outcome::Known;
    case ENOENT:
    case ENOTDIR:
    case ELOOP:
        return Outcome::Gone;
    case EACCES:
    case EPERM:
        return Outcome::MayNotLook;
    default:
        return Outcome::NotLookedAt;
    }
}

ItemAnswer lookAt(const std::string& path)
{
    const NamedPlace place = openFolderOfWithoutLinks(path);
    if (place.error != 0) {
        return {outcomeAfter(place.error)};
    }
    const HeldItem found = holdItemAt(place.folder, place.name);
    return found.error == 0 ? ItemAnswer{Outcome::Known, itemStateOf(found.status, found.birth)}
                            : ItemAnswer{outcomeAfter(found.error)};
}

FileTime timeOf(std::uint64_t nanoseconds)
{
    constexpr std::uint64_t kNanosecondsPerSecond = 1'000'000'000;
    return {
        static_cast<std::int64_t>(nanoseconds / kNanosecondsPerSecond),
        static_cast<std::uint32_t>(nanoseconds % kNanosecondsPerSecond)};
}

} // namespace

ItemState itemStateOf(const FileStatus& status, std::optional<std::uint64_t> birth)
{
    ItemState state{
        kindOf(status),
        status.identity,
        status.linkCount,
        status.allocatedBytes,
        {status.modified, status.modifiedNanoseconds},
        {status.changed, status.changedNanoseconds},
        status.owner};
    if (birth) {
        state.birth = timeOf(*birth);
    }
    return state;
}

LinuxItemStates::LinuxItemStates(std::chrono::milliseconds patience)
    : m_patience(patience)
{
}

std::vector<ItemAnswer> LinuxItemStates::statesOf(
    const std::vector<std::string>& paths, const std::stop_token& stop) const
{
    const auto until = QuestionThreads::Clock::now() + m_patience;
    auto answers = answerUntil<Answers>(
        *m_threads, until, stop, [paths, until, stop](AnswerSoFar<Answers>& soFar) {
            soFar.change([&paths](Answers& empty) { empty.resize(paths.size()); });
            for (std::size_t i = 0; i < paths.size(); ++i) {
                if (stop.stop_requested() || QuestionThreads::Clock::now() >= until) {
                    return;
                }
                const ItemAnswer answer = lookAt(paths[i]);
                soFar.change([i, &answer](Answers& found) { found[i] = answer; });
            }
        });
    answers.resize(paths.size());
    return answers;
}

} // namespace tessera
