// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"
#include "DeadMounts/QuestionThreads.h"
#include "Desktop/ExpectedItem.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <unordered_map>
#include <vector>

namespace tessera {

class MainThread;
class WayBack;

/// What items were when the user chose them, for comparing when they are removed. Each is looked at
/// off the main thread, at once or together with others that are chosen meanwhile. Main thread
/// only.
class ChosenStates {
public:
    /// Is told whenever more is known, with the places at which another item has been found than
    /// the one that was chosen, or none any more where one had been. They are forgotten by then.
    using Told = std::function<void(const std::vector<std::string>& lost)>;

    /// `mainThread` must outlive it.
    ChosenStates(
        std::shared_ptr<const ItemStates> itemStates, MainThread& mainThread, Told told = {});
    ChosenStates(const ChosenStates&) = delete;
    ChosenStates& operator=(const ChosenStates&) = delete;
    /// Waits for the thread under way, which ends soon.
    ~ChosenStates();

    /// Has the item looked at that is chosen now, as placeOnDisk() names it. `scanned` is
    /// ExpectedItem::scanned.
    void lookAt(const Url& place, const FileTime& scanned);

    /// Has an item that was chosen looked at once more, of which a scan tells that began then. The
    /// same item counts with what it is now, and with that scan; any other is none that was chosen.
    void lookAgain(const Url& place, const FileTime& scanned);

    /// Has all looked at once more of which nobody has told anything.
    void lookAtUnknown();

    void forget(const Url& place);

    /// Whether all that was to be looked at was, as far as it could.
    bool isComplete() const { return m_asking.empty() && m_waiting.empty(); }

    /// What is to stand there still. Nothing before that is known, nor where nobody tells: then
    /// nobody can say later that the item is the same.
    std::optional<ExpectedItem> expectedAt(const Url& place) const;

private:
    struct Look {
        std::uint64_t number = 0; ///< of the choice
        FileTime scanned;
        std::optional<ItemState> state;
    };

    /// A request that waits for its turn, or for its answer.
    struct Request {
        std::string path;
        std::uint64_t number = 0; ///< of the choice
        FileTime scanned;
        int tries = 0; ///< that were in vain
    };

    void ask(Request request);
    void askNext();
    void heard(const std::vector<ItemAnswer>& answers);
    bool isWanted(const Request& request) const;
    bool take(const Request& request, const ItemAnswer& answer);
    void askAgain(std::vector<Request> unanswered);

    std::shared_ptr<const ItemStates> m_itemStates; ///< a thread that is stuck keeps it
    std::shared_ptr<WayBack> m_wayBack; ///< shared with the threads
    Told m_told;
    std::shared_ptr<QuestionThreads> m_threads = QuestionThreads::make();
    std::stop_source m_stop;
    std::unordered_map<std::string, Look> m_looks; ///< by the items' paths
    std::vector<Request> m_waiting;
    std::vector<Request> m_asking;
    std::uint64_t m_lastNumber = 0;
};

} // namespace tessera
