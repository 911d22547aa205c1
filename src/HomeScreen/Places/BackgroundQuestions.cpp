// SPDX-License-Identifier: MIT
#include "HomeScreen/Places/BackgroundQuestions.h"

#include "Base/StartThread.h"

#include <QCoreApplication>
#include <QEvent>

#include <condition_variable>
#include <mutex>
#include <vector>

namespace tessera {

namespace {

QEvent::Type arrivalEvent()
{
    static const auto kType = static_cast<QEvent::Type>(QEvent::registerEventType());
    return kType;
}

} // namespace

/// What the threads and the asker have in common. The threads keep it alive, since one that is
/// stuck may come back long after the asker is gone.
class BackgroundQuestions::Desk {
public:
    explicit Desk(QObject& receiver)
        : m_receiver(&receiver)
    {
    }

    void addOpen()
    {
        const std::lock_guard lock(m_mutex);
        ++m_open;
    }

    /// Of a question that nobody will answer.
    void removeOpen()
    {
        const std::lock_guard lock(m_mutex);
        --m_open;
    }

    void addArrived(int number)
    {
        const std::lock_guard lock(m_mutex);
        --m_open;
        m_arrived.push_back(number);
        if (m_receiver != nullptr) {
            // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the queue owns it
            QCoreApplication::postEvent(m_receiver, new QEvent(arrivalEvent()));
        }
        m_changed.notify_all();
    }

    std::vector<int> takeArrived()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_arrived, {});
    }

    void waitForAll(std::chrono::milliseconds patience)
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait_for(lock, patience, [this] { return m_open == 0; });
    }

    void close()
    {
        const std::lock_guard lock(m_mutex);
        m_receiver = nullptr;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    QObject* m_receiver;
    std::vector<int> m_arrived;
    int m_open = 0;
};

BackgroundQuestions::BackgroundQuestions()
    : m_desk(std::make_shared<Desk>(*this))
{
}

BackgroundQuestions::~BackgroundQuestions()
{
    m_desk->close();
}

void BackgroundQuestions::start(std::function<void()> question, std::function<void()> answered)
{
    const int number = ++m_lastNumber;
    m_answered.emplace(number, std::move(answered));
    m_desk->addOpen();
    // A thread that is stuck in the system can neither be ended nor waited for.
    const std::error_code error
        = startThread([desk = m_desk, number, question = std::move(question)]() mutable {
              question();
              question = nullptr; // with what it held, before anybody hears of the answer
              desk->addArrived(number);
          });
    if (error) {
        m_desk->removeOpen();
        m_answered.erase(number);
    }
}

void BackgroundQuestions::waitBriefly(std::chrono::milliseconds patience)
{
    m_desk->waitForAll(patience);
    handOnAnswers();
}

void BackgroundQuestions::customEvent(QEvent* /*event*/)
{
    handOnAnswers();
}

void BackgroundQuestions::handOnAnswers()
{
    for (const int number : m_desk->takeArrived()) {
        const auto found = m_answered.find(number);
        const std::function<void()> answered = std::move(found->second);
        m_answered.erase(found);
        answered();
    }
}

} // namespace tessera
