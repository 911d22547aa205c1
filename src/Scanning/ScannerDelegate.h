// SPDX-License-Identifier: MIT
#pragma once

#include <system_error>

namespace tessera {

class Scanner;

/// Learns on the main thread how a scan goes.
class ScannerDelegate {
public:
    ScannerDelegate() = default;
    ScannerDelegate(const ScannerDelegate&) = delete;
    ScannerDelegate& operator=(const ScannerDelegate&) = delete;
    virtual ~ScannerDelegate() = default;

    /// There is progress, at most every 0.1 s. The worker does not wait for this call.
    virtual void scanUpdated(Scanner& scanner) = 0;

    /// The scan is complete; the tree waits in the scanner. The worker waits for this call.
    virtual void scanEnded(Scanner& scanner) = 0;

    /// cancel() was called; comes before it returns.
    virtual void scanCancelled(Scanner& scanner) = 0;

    /// The scan could not begin, for want of a thread; nothing else is heard of it. Comes after
    /// scan() has returned.
    virtual void scanFailed(Scanner& scanner, const std::error_code& problem) = 0;
};

} // namespace tessera
