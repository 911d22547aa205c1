// SPDX-License-Identifier: MIT
#include "Platform/Qt/QtMainThread.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <utility>

namespace tessera {

namespace {

QEvent::Type wakeEvent()
{
    static const auto kType = static_cast<QEvent::Type>(QEvent::registerEventType());
    return kType;
}

} // namespace

/// The jobs in their order, and the object that wakes the main loop for them. An event of Qt says
/// only that there is work, so that no work is lost or run twice when the loop ends.
class QtMainThread::Queue {
public:
    struct Job {
        std::function<void()> work;
        bool done = false;
    };

    Queue()
        : m_receiver(*this)
    {
    }

    std::shared_ptr<Job> add(std::function<void()> work)
    {
        auto job = std::make_shared<Job>();
        job->work = std::move(work);
        const std::lock_guard lock(m_mutex);
        if (m_closed) {
            job->done = true;
            return job;
        }
        m_jobs.push_back(job);
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the event queue takes it over
        QCoreApplication::postEvent(&m_receiver, new QEvent(wakeEvent()));
        return job;
    }

    void waitFor(const Job& job)
    {
        std::unique_lock lock(m_mutex);
        m_finished.wait(lock, [&job] { return job.done; });
    }

    void close()
    {
        std::deque<std::shared_ptr<Job>> dropped;
        const std::lock_guard lock(m_mutex);
        m_closed = true;
        for (const auto& job : m_jobs) {
            job->done = true;
        }
        m_jobs.swap(dropped);
        m_finished.notify_all();
    }

private:
    class Receiver final : public QObject {
    public:
        explicit Receiver(Queue& queue)
            : m_queue(queue)
        {
        }

        bool event(QEvent* event) override
        {
            if (event->type() != wakeEvent()) {
                return QObject::event(event);
            }
            m_queue.runFirst();
            return true;
        }

    private:
        Queue& m_queue;
    };

    void runFirst()
    {
        std::shared_ptr<Job> job;
        {
            const std::lock_guard lock(m_mutex);
            if (m_jobs.empty()) {
                return;
            }
            job = std::move(m_jobs.front());
            m_jobs.pop_front();
        }
        job->work();
        const std::lock_guard lock(m_mutex);
        job->done = true;
        m_finished.notify_all();
    }

    std::mutex m_mutex;
    std::condition_variable m_finished;
    std::deque<std::shared_ptr<Job>> m_jobs;
    bool m_closed = false;
    Receiver m_receiver;
};

QtMainThread::QtMainThread()
    : m_queue(std::make_unique<Queue>())
{
}

QtMainThread::~QtMainThread()
{
    m_queue->close();
}

void QtMainThread::close()
{
    m_queue->close();
}

void QtMainThread::perform(std::function<void()> work)
{
    (void)m_queue->add(std::move(work));
}

void QtMainThread::performAndWait(std::function<void()> work)
{
    const std::shared_ptr<Queue::Job> job = m_queue->add(std::move(work));
    m_queue->waitFor(*job);
}

} // namespace tessera
