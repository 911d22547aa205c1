// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>

namespace tessera {

// How long is waited for a file system that gives no answer, as a network mount whose server is
// gone gives none for minutes, and how many threads may wait with it.

/// A worker, before a file system counts as dead.
inline constexpr std::chrono::milliseconds kWorkerPatience{2000};

/// The main thread, too: too short to be noticed, long enough for any file system that is alive and
/// awake.
inline constexpr std::chrono::milliseconds kMainThreadPatience{80};

/// The home screen, with its picture, for the sizes and locations that workers ask for: as short,
/// and as long, as that.
inline constexpr std::chrono::milliseconds kHomeScreenPatience{50};

/// The program's end, for scans.
inline constexpr std::chrono::milliseconds kPatienceWithScansAtTheEnd{2000};

/// The program's end, for what the preview panel looks at: a decoder is killed at once; a file
/// system may take its time.
inline constexpr std::chrono::milliseconds kPatienceWithPreviewsAtTheEnd{500};

/// Threads of one asker that are stuck beyond its patience; then no more are started.
inline constexpr std::size_t kMostStuckThreads = 32;

/// The preview panel: enough to go on when a dead mount holds some of them. Each decodes one file
/// at a time.
inline constexpr int kMostPreviewThreads = 4;

} // namespace tessera
