// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"
#include "Model/TopFolder.h"
#include "Scanning/ScanEnvironment.h"
#include "Scanning/ScanPurpose.h"
#include "Scanning/ScannerRunReceiver.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace tessera {

class ScannerDelegate;

/// Walks a directory on a worker thread of its own and builds the tree of it. Made, started,
/// cancelled and dropped on the main thread; it may be dropped right after cancel(), and started
/// again at any time: what an earlier run still has to say is then dropped.
class Scanner final : public std::enable_shared_from_this<Scanner>, private ScannerRunReceiver {
public:
    /// Shared, because the worker keeps the scanner alive beyond an owner that drops it. All that
    /// the environment refers to must live until its workers have ended.
    [[nodiscard]] static std::shared_ptr<Scanner> create(const ScanEnvironment& environment);

    ~Scanner() override;

    /// Not owned. A delegate that dies before the scanner's end must be taken away first.
    ScannerDelegate* delegate() const { return m_delegate; }
    void setDelegate(ScannerDelegate* delegate) { m_delegate = delegate; }

    /// The directory that is scanned next was in an earlier scan's tree, and is reached by this
    /// path without links alone.
    void setPathWithoutLinks(std::string path) { m_pathWithoutLinks = std::move(path); }

    /// Starts a worker on the directory and returns at once.
    void scan(const Url& url, ScanPurpose purpose = ScanPurpose::NewTree);

    /// Asks the worker to stop, which it does at its next item, and tells the delegate.
    void cancel();

    // As of the last progress report; readable on any thread.

    /// The item reported last.
    Url currentURL() const;
    /// A fraction from 0.0. Not clamped: it may pass 1, or be no number at all.
    double percentComplete() const { return m_percentComplete; }
    /// Items met so far.
    std::uint64_t objectsRead() const { return m_objectsRead; }
    /// Bytes on disk of the items met so far, folders excepted.
    std::uint64_t allocationRead() const { return m_allocationRead; }

    /// The finished root, null until then. A cancelled scan has one too, a little later.
    TopFolder* topFolder() const;
    std::unique_ptr<TopFolder> takeTopFolder();

    /// Home folders met that are mounted there and therefore empty in the tree.
    std::vector<Url> fileVaults() const;

private:
    explicit Scanner(ScanEnvironment environment);

    [[nodiscard]] bool hasListener() const override { return m_delegate != nullptr; }
    void publishProgress(const ScannerRun& run, const Url& url, double percent) override;
    void addFileVault(const ScannerRun& run, const Url& url) override;
    void publishTopFolder(const ScannerRun& run, std::unique_ptr<TopFolder> root) override;
    void notifyUpdated(const std::shared_ptr<ScannerRun>& run) override;
    void notifyEnded(const std::shared_ptr<ScannerRun>& run) override;
    void notifyFailed(const std::shared_ptr<ScannerRun>& run, const std::error_code& problem);

    bool isCurrent(const ScannerRun& run) const;

    const ScanEnvironment m_environment;
    std::string m_pathWithoutLinks; ///< for the next scan; empty unless it was told
    std::atomic<ScannerDelegate*> m_delegate = nullptr;
    std::atomic<double> m_percentComplete = 0;
    std::atomic<std::uint64_t> m_objectsRead = 0;
    std::atomic<std::uint64_t> m_allocationRead = 0;

    mutable std::mutex m_mutex; ///< guards what follows: what is too large to be atomic
    std::shared_ptr<ScannerRun> m_run;
    Url m_currentURL;
    std::unique_ptr<TopFolder> m_topFolder;
    std::vector<Url> m_fileVaults;
};

} // namespace tessera
