// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace tessera {

class ScannerRun;
class TopFolder;
class Url;

/// Takes what a run of the scanner finds, on the run's worker thread. A run that is not the
/// scanner's latest is not listened to.
class ScannerRunReceiver {
public:
    ScannerRunReceiver() = default;
    ScannerRunReceiver(const ScannerRunReceiver&) = delete;
    ScannerRunReceiver& operator=(const ScannerRunReceiver&) = delete;
    virtual ~ScannerRunReceiver() = default;

    /// Whether there is anybody to be notified.
    [[nodiscard]] virtual bool hasListener() const = 0;

    virtual void publishProgress(const ScannerRun& run, const Url& url, double percent) = 0;
    virtual void addFileVault(const ScannerRun& run, const Url& url) = 0;
    virtual void publishTopFolder(const ScannerRun& run, std::unique_ptr<TopFolder> root) = 0;

    /// Does not wait.
    virtual void notifyUpdated(const std::shared_ptr<ScannerRun>& run) = 0;
    /// Returns when the listener has heard it.
    virtual void notifyEnded(const std::shared_ptr<ScannerRun>& run) = 0;
};

} // namespace tessera
