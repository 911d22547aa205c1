// SPDX-License-Identifier: MIT
#include "Basket/ChosenStates.h"

#include "Base/FolderAround.h"
#include "DeadMounts/DeadMountLimits.h"
#include "Scanning/WayBack.h"

#include <algorithm>
#include <utility>

namespace tessera {

ChosenStates::ChosenStates(
    std::shared_ptr<const ItemStates> itemStates, MainThread& mainThread, Told told)
    : m_itemStates(std::move(itemStates))
    , m_wayBack(WayBack::make(mainThread))
    , m_told(std::move(told))
{
}

ChosenStates::~ChosenStates()
{
    m_stop.request_stop();
    m_wayBack->close();
    (void)m_threads->waitForAll(kWorkerPatience);
}

void ChosenStates::lookAt(const Url& place, const FileTime& scanned)
{
    const std::uint64_t number = ++m_lastNumber;
    m_looks.insert_or_assign(place.path(), Look{number, scanned, std::nullopt});
    ask({place.path(), number, scanned});
}

void ChosenStates::lookAgain(const Url& place, const FileTime& scanned)
{
    const auto look = m_looks.find(place.path());
    if (look == m_looks.end()) {
        lookAt(place, scanned);
    } else {
        ask({place.path(), look->second.number, scanned});
    }
}

void ChosenStates::lookAtUnknown()
{
    if (!isComplete()) {
        return;
    }
    for (const auto& [path, look] : m_looks) {
        if (!look.state) {
            m_waiting.push_back({path, look.number, look.scanned});
        }
    }
    askNext();
}

void ChosenStates::forget(const Url& place)
{
    m_looks.erase(place.path());
}

std::optional<ExpectedItem> ChosenStates::expectedAt(const Url& place) const
{
    const auto look = m_looks.find(place.path());
    if (look == m_looks.end() || !look->second.state) {
        return std::nullopt;
    }
    return ExpectedItem{*look->second.state, look->second.scanned};
}

void ChosenStates::ask(Request request)
{
    m_waiting.push_back(std::move(request));
    if (m_asking.empty()) {
        askNext();
    }
}

void ChosenStates::askNext()
{
    m_asking = std::exchange(m_waiting, {});
    if (m_asking.empty()) {
        return;
    }
    std::vector<std::string> paths;
    for (const Request& request : m_asking) {
        paths.push_back(request.path);
    }
    const auto tell = [this, wayBack = m_wayBack](std::vector<ItemAnswer> answers) {
        wayBack->perform([this, answers = std::move(answers)] { heard(answers); });
    };
    const auto [thread, error]
        = m_threads->start([tell, paths, itemStates = m_itemStates, stop = m_stop.get_token()] {
              tell(itemStates->statesOf(paths, stop));
          });
    if (error) {
        tell(std::vector<ItemAnswer>(paths.size()));
    }
}

void ChosenStates::heard(const std::vector<ItemAnswer>& answers)
{
    std::vector<Request> asked = std::exchange(m_asking, {});
    std::vector<std::string> lost;
    for (std::size_t i = 0; i < asked.size(); ++i) {
        if (isWanted(asked[i]) && !take(asked[i], answers[i])) {
            m_looks.erase(asked[i].path);
            lost.push_back(asked[i].path);
        }
    }
    // They are looked at one after the other: what has no answer at the end was waited for, or
    // was behind that.
    const auto lastHeard
        = std::ranges::find_if(answers.rbegin(), answers.rend(), [](const ItemAnswer& answer) {
              return answer.outcome != ItemAnswer::Outcome::NotLookedAt;
          });
    asked.erase(asked.begin(), asked.begin() + (answers.rend() - lastHeard));
    askAgain(std::move(asked));
    askNext();
    if (m_told) {
        m_told(lost);
    }
}

bool ChosenStates::isWanted(const Request& request) const
{
    const auto look = m_looks.find(request.path);
    return look != m_looks.end() && look->second.number == request.number;
}

/// False when the item that was chosen is not there any more.
bool ChosenStates::take(const Request& request, const ItemAnswer& answer)
{
    Look& look = m_looks.at(request.path);
    if (answer.outcome == ItemAnswer::Outcome::Gone) {
        return !look.state;
    }
    if (answer.outcome != ItemAnswer::Outcome::Known) {
        return true;
    }
    if (look.state) {
        if (!isSameItem(*look.state, answer.state)) {
            return false;
        }
        look.scanned = std::max(look.scanned, request.scanned);
    }
    look.state = answer.state;
    return true;
}

/// The first of them is what was waited for: it gets its next try behind all others, and after it
/// nothing that lies in the same folder is to be waited for.
void ChosenStates::askAgain(std::vector<Request> unanswered)
{
    constexpr int kMostTries = 3;
    if (unanswered.empty()) {
        return;
    }
    const std::string folder(folderAround(unanswered.front().path));
    std::rotate(unanswered.begin(), unanswered.begin() + 1, unanswered.end());
    std::stable_partition(unanswered.begin(), unanswered.end(), [&folder](const Request& request) {
        return folderAround(request.path) != folder;
    });
    for (Request& request : unanswered) {
        if (++request.tries < kMostTries && isWanted(request)) {
            m_waiting.push_back(std::move(request));
        }
    }
}

} // namespace tessera
