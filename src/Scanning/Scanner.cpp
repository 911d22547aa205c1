// SPDX-License-Identifier: MIT
#include "Scanning/Scanner.h"

#include "Scanning/MainThread.h"
#include "Scanning/ScannerDelegate.h"
#include "Scanning/ScannerRun.h"

#include <utility>

namespace tessera {

std::shared_ptr<Scanner> Scanner::create(const ScanEnvironment& environment)
{
    return std::shared_ptr<Scanner>(new Scanner(environment));
}

Scanner::Scanner(ScanEnvironment environment)
    : m_environment(std::move(environment))
{
}

Scanner::~Scanner() = default;

void Scanner::scan(const Url& url, ScanPurpose purpose)
{
    ScannerRunReceiver& receiver = *this;
    auto run = std::make_shared<ScannerRun>(
        receiver, m_environment, url, purpose, std::exchange(m_pathWithoutLinks, std::string()));
    {
        const std::lock_guard lock(m_mutex);
        if (m_run != nullptr) {
            m_run->stop();
        }
        m_run = run;
        m_currentURL = url;
        m_topFolder = nullptr;
        m_fileVaults.clear();
    }
    m_percentComplete = 0.0;
    const std::error_code problem
        = m_environment.workers->start([self = shared_from_this(), run]() mutable {
              run->performScan();
              // The scanner may die here, with a tree that nobody took.
              run.reset();
              self.reset();
          });
    if (problem) {
        notifyFailed(run, problem);
    }
}

void Scanner::cancel()
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_run != nullptr) {
            m_run->stop();
        }
    }
    if (ScannerDelegate* delegate = m_delegate) {
        delegate->scanCancelled(*this);
    }
}

Url Scanner::currentURL() const
{
    const std::lock_guard lock(m_mutex);
    return m_currentURL;
}

TopFolder* Scanner::topFolder() const
{
    const std::lock_guard lock(m_mutex);
    return m_topFolder.get();
}

std::unique_ptr<TopFolder> Scanner::takeTopFolder()
{
    const std::lock_guard lock(m_mutex);
    return std::move(m_topFolder);
}

std::vector<Url> Scanner::fileVaults() const
{
    const std::lock_guard lock(m_mutex);
    return m_fileVaults;
}

/// To be called with the mutex held.
bool Scanner::isCurrent(const ScannerRun& run) const
{
    return m_run.get() == &run;
}

void Scanner::publishProgress(const ScannerRun& run, const Url& url, double percent)
{
    const std::lock_guard lock(m_mutex);
    if (!isCurrent(run)) {
        return;
    }
    m_currentURL = url;
    m_percentComplete = percent;
    m_objectsRead = run.objectsRead();
    m_allocationRead = run.allocationRead();
}

void Scanner::addFileVault(const ScannerRun& run, const Url& url)
{
    const std::lock_guard lock(m_mutex);
    if (isCurrent(run)) {
        m_fileVaults.push_back(url);
    }
}

void Scanner::publishTopFolder(const ScannerRun& run, std::unique_ptr<TopFolder> root)
{
    const std::lock_guard lock(m_mutex);
    if (isCurrent(run)) {
        m_topFolder = std::move(root);
    }
}

// Whether the run was stopped is asked once more on the main thread: a report that was on its way
// while the scan was cancelled is not delivered.

void Scanner::notifyUpdated(const std::shared_ptr<ScannerRun>& run)
{
    m_environment.mainThread.perform([self = shared_from_this(), run] {
        ScannerDelegate* delegate = self->m_delegate;
        if (delegate != nullptr && !run->isStopped()) {
            delegate->scanUpdated(*self);
        }
    });
}

void Scanner::notifyEnded(const std::shared_ptr<ScannerRun>& run)
{
    m_environment.mainThread.performAndWait([self = shared_from_this(), run] {
        ScannerDelegate* delegate = self->m_delegate;
        if (delegate != nullptr && !run->isStopped()) {
            delegate->scanEnded(*self);
        }
    });
}

void Scanner::notifyFailed(const std::shared_ptr<ScannerRun>& run, const std::error_code& problem)
{
    m_environment.mainThread.perform([self = shared_from_this(), run, problem] {
        ScannerDelegate* delegate = self->m_delegate;
        if (delegate != nullptr && !run->isStopped()) {
            delegate->scanFailed(*self, problem);
        }
    });
}

} // namespace tessera
