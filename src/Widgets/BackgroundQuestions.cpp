// SPDX-License-Identifier: MIT
#include "Widgets/BackgroundQuestions.h"

#include <QCoreApplication>
#include <QEvent>

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

/// The answered questions, by their numbers. The threads keep it alive, since one that is stuck may
/// come back long after the asker is gone.
class BackgroundQuestions::Arrivals {
public:
    explicit Arrivals(QObject& receiver)
        : m_receiver(&receiver)
    {
    }

    void add(int number)
    {
        const std::lock_guard lock(m_mutex);
        m_arrived.push_back(number);
        if (m_receiver != nullptr) {
            // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the queue owns it
            QCoreApplication::postEvent(m_receiver, new QEvent(arrivalEvent()));
        }
    }

    std::vector<int> takeAll()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_arrived, {});
    }

    void close()
    {
        const std::lock_guard lock(m_mutex);
        m_receiver = nullptr;
    }

private:
    std::mutex m_mutex;
    QObject* m_receiver;
    std::vector<int> m_arrived;
};

BackgroundQuestions::BackgroundQuestions()
    : m_arrivals(std::make_shared<Arrivals>(*this))
{
}

BackgroundQuestions::~BackgroundQuestions()
{
    m_arrivals->close();
}

void BackgroundQuestions::start(std::function<void()> question, std::function<void()> answered)
{
    const int number = ++m_lastNumber;
    m_answered.emplace(number, std::move(answered));
    const auto [thread, error] = m_threads->start(
        [arrivals = m_arrivals, number, question = std::move(question)]() mutable {
            question();
            question = nullptr; // with what it held, before anybody hears of the answer
            arrivals->add(number);
        });
    if (error) {
        m_answered.erase(number);
    }
}

void BackgroundQuestions::waitBriefly(std::chrono::milliseconds patience)
{
    (void)m_threads->waitForAll(patience);
    handOnAnswers();
}

void BackgroundQuestions::customEvent(QEvent* /*event*/)
{
    handOnAnswers();
}

void BackgroundQuestions::handOnAnswers()
{
    for (const int number : m_arrivals->takeAll()) {
        const auto found = m_answered.find(number);
        const std::function<void()> answered = std::move(found->second);
        m_answered.erase(found);
        answered();
    }
}

} // namespace tessera
