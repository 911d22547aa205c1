// SPDX-License-Identifier: MIT
#include "QuickLook/Reading/PreviewLoader.h"

#include "DeadMounts/DeadMountLimits.h"
#include "DeadMounts/QuestionThreads.h"
#include "QuickLook/Reading/PreviewReading.h"

#include <QCoreApplication>
#include <QEvent>

#include <mutex>
#include <stop_token>
#include <utility>

namespace tessera {

namespace {

QEvent::Type arrivalEvent()
{
    static const auto kType = static_cast<QEvent::Type>(QEvent::registerEventType());
    return kType;
}

} // namespace

struct PreviewLoader::Look {
    PreviewRequest request;
    std::stop_source cancelling;
    Preview preview;
};

/// What the threads and the loader have in common. The threads keep it alive, since one that is
/// stuck may come back long after the loader is gone.
class PreviewLoader::Crew : public std::enable_shared_from_this<Crew> {
public:
    Crew(
        std::shared_ptr<const FileReader> files,
        std::shared_ptr<const RasterDecoder> decoder,
        std::shared_ptr<QuestionThreads> threads,
        QObject& receiver)
        : m_files(std::move(files))
        , m_decoder(std::move(decoder))
        , m_pool(std::move(threads))
        , m_receiver(&receiver)
    {
    }

    /// Starts the look, or has it wait for a thread; one that waited already is dropped. Where the
    /// system has no thread left, that is what the look brings.
    void add(std::shared_ptr<Look> look)
    {
        const std::lock_guard lock(m_mutex);
        if (m_threads == kMostPreviewThreads) {
            m_waiting = std::move(look);
            return;
        }
        ++m_threads;
        if (const std::error_code error
            = m_pool->start([crew = shared_from_this(), look] { crew->run(look); }).error) {
            --m_threads;
            look->preview.file.error = error;
            bring(std::move(look));
        }
    }

    void dropWaiting()
    {
        const std::lock_guard lock(m_mutex);
        m_waiting.reset();
    }

    std::shared_ptr<Look> takeArrived()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_arrived, nullptr);
    }

    void close()
    {
        const std::lock_guard lock(m_mutex);
        m_receiver = nullptr;
        m_waiting.reset();
        m_arrived.reset();
    }

private:
    void run(std::shared_ptr<Look> look)
    {
        while (look != nullptr) {
            look->preview
                = readPreview(*m_files, *m_decoder, look->request, look->cancelling.get_token());
            look = handOver(std::move(look));
        }
    }

    /// Returns the look that waited; without one, the thread counts as ended.
    std::shared_ptr<Look> handOver(std::shared_ptr<Look> done)
    {
        const std::lock_guard lock(m_mutex);
        if (m_receiver != nullptr && !done->cancelling.stop_requested()) {
            bring(std::move(done));
        }
        if (m_waiting == nullptr) {
            --m_threads;
        }
        return std::exchange(m_waiting, nullptr);
    }

    /// With the mutex held, and a receiver.
    void bring(std::shared_ptr<Look> done)
    {
        m_arrived = std::move(done);
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the event queue takes it over
        QCoreApplication::postEvent(m_receiver, new QEvent(arrivalEvent()));
    }

    const std::shared_ptr<const FileReader> m_files;
    const std::shared_ptr<const RasterDecoder> m_decoder;
    const std::shared_ptr<QuestionThreads> m_pool;
    std::mutex m_mutex;
    QObject* m_receiver;
    int m_threads = 0;
    std::shared_ptr<Look> m_waiting;
    std::shared_ptr<Look> m_arrived;
};

PreviewLoader::PreviewLoader(
    std::shared_ptr<const FileReader> files,
    std::shared_ptr<const RasterDecoder> decoder,
    std::shared_ptr<QuestionThreads> threads,
    std::function<void(Preview)> show)
    : m_crew(
        std::make_shared<Crew>(std::move(files), std::move(decoder), std::move(threads), *this))
    , m_show(std::move(show))
{
}

PreviewLoader::~PreviewLoader()
{
    cancel();
    m_crew->close();
}

void PreviewLoader::load(const PreviewRequest& request)
{
    cancel();
    m_current = std::make_shared<Look>();
    m_current->request = request;
    m_crew->add(m_current);
}

void PreviewLoader::cancel()
{
    if (m_current != nullptr) {
        m_current->cancelling.request_stop();
        m_current.reset();
    }
    m_crew->dropWaiting();
}

bool PreviewLoader::event(QEvent* event)
{
    if (event->type() != arrivalEvent()) {
        return QObject::event(event);
    }
    // Another look may have been asked for since this one arrived.
    const std::shared_ptr<Look> arrived = m_crew->takeArrived();
    if (arrived != nullptr && arrived == m_current) {
        m_current.reset();
        m_show(std::move(arrived->preview));
    }
    return true;
}

} // namespace tessera
