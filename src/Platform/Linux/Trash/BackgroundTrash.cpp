// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/BackgroundTrash.h"

#include "Base/StartThread.h"
#include "DeadMounts/DeadMountLimits.h"
#include "Scanning/MainThread.h"

#include <algorithm>
#include <mutex>
#include <utility>

namespace tessera {

namespace {

/// Neither the items nor their disks are to blame.
constexpr const char* kNoThread
    = "Nothing was moved to the trash, because the system is too busy to begin with it. Close some "
      "programs and try again.";

} // namespace

/// The way back to the main thread, closed once the owner is gone: a worker may end much later.
class BackgroundTrash::Delivery : public std::enable_shared_from_this<Delivery> {
public:
    explicit Delivery(MainThread& mainThread)
        : m_mainThread(&mainThread)
    {
    }

    void tell(RecycleCompletion completion, RecycleResult result)
    {
        const std::lock_guard lock(m_mutex);
        if (m_mainThread == nullptr) {
            return;
        }
        m_mainThread->perform([self = shared_from_this(),
                               completion = std::move(completion),
                               result = std::move(result)] {
            // The owner may have gone while this was waiting for its turn.
            if (self->isOpen()) {
                completion(result);
            }
        });
    }

    void close()
    {
        const std::lock_guard lock(m_mutex);
        m_mainThread = nullptr;
    }

private:
    bool isOpen() const
    {
        const std::lock_guard lock(m_mutex);
        return m_mainThread != nullptr;
    }

    mutable std::mutex m_mutex;
    MainThread* m_mainThread;
};

BackgroundTrash::BackgroundTrash(MainThread& mainThread, Mover mover)
    : m_mover(std::move(mover))
    , m_delivery(std::make_shared<Delivery>(mainThread))
{
}

BackgroundTrash::~BackgroundTrash()
{
    m_delivery->close();
    const auto deadline = std::chrono::steady_clock::now() + kWorkerPatience;
    for (const std::future<void>& move : m_moves) {
        (void)move.wait_until(deadline);
    }
}

void BackgroundTrash::recycle(std::vector<Url> urls, RecycleCompletion completionHandler)
{
    perform(
        [mover = m_mover, urls = std::move(urls)] { return mover(urls); },
        std::move(completionHandler));
}

void BackgroundTrash::perform(Move move, RecycleCompletion completionHandler)
{
    forgetEndedMoves();
    const auto ended = std::make_shared<std::promise<void>>();
    std::future<void> end = ended->get_future();
    const std::error_code error = startThread([move = std::move(move),
                                               delivery = m_delivery,
                                               completion = completionHandler,
                                               ended]() mutable {
        delivery->tell(std::move(completion), move());
        ended->set_value();
    });
    if (error) {
        m_delivery->tell(std::move(completionHandler), {{}, kNoThread});
    } else {
        m_moves.push_back(std::move(end));
    }
}

void BackgroundTrash::forgetEndedMoves()
{
    std::erase_if(m_moves, [](const std::future<void>& move) {
        return move.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    });
}

} // namespace tessera
