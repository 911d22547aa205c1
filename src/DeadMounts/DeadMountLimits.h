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

/// A worker that asks which files are open.
inline constexpr std::chrono::milliseconds kOpenFilesPatience{2000};

/// A worker that asks which files share what they take on the disk.
inline constexpr std::chrono::milliseconds kSharedExtentsPatience{2000};

/// A worker that looks at items one by one.
inline constexpr std::chrono::milliseconds kItemStatesPatience{2000};

/// The user, who asks for an item to be opened in another program.
inline constexpr std::chrono::milliseconds kItemPatience{5000};

/// Who asks what removing items will free, for all of it.
inline constexpr std::chrono::milliseconds kWillFreePatience{2000};

/// Who has had a question stopped, for its thread to end.
inline constexpr std::chrono::milliseconds kPatienceAfterAStop{100};

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
