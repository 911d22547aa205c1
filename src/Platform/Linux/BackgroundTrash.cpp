// SPDX-License-Identifier: MIT
#include "Platform/Linux/BackgroundTrash.h"

#include "Platform/Linux/FileSystemQuestions.h"
#include "Scanning/MainThread.h"

#include <algorithm>
#include <mutex>
#include <thread>
#include <utility>

namespace tessera {

/// The way back to the main thread, closed once the owner is gone: a worker may end much later.
class BackgroundTrash::Delivery {
public:
    explicit Delivery(MainThread& mainThread)
        : m_mainThread(&mainThread)
    {
    }

    void perform(std::function<void()> work)
    {
        const std::lock_guard lock(m_mutex);
        if (m_mainThread != nullptr) {
            m_mainThread->perform(std::move(work));
        }
    }

    void close()
    {
        const std::lock_guard lock(m_mutex);
        m_mainThread = nullptr;
    }

    bool isOpen() const
    {
        const std::lock_guard lock(m_mutex);
        return m_mainThread != nullptr;
    }

private:
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
    std::promise<void> ended;
    m_moves.push_back(ended.get_future());
    std::thread([move = std::move(move),
                 delivery = m_delivery,
                 completion = std::move(completionHandler),
                 ended = std::move(ended)]() mutable {
        RecycleResult result = move();
        delivery->perform(
            [delivery, completion = std::move(completion), result = std::move(result)] {
                // The owner may have gone while this was waiting for its turn.
                if (delivery->isOpen()) {
                    completion(result);
                }
            });
        ended.set_value();
    }).detach();
}

void BackgroundTrash::forgetEndedMoves()
{
    std::erase_if(m_moves, [](const std::future<void>& move) {
        return move.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    });
}

} // namespace tessera
