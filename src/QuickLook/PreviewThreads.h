// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

namespace tessera {

/// The threads that look at files for previews, all of the process. One that ends late must not
/// meet a program that has taken down what its decoder uses. Callable from any thread.
class PreviewThreads {
public:
    static void start(std::function<void()> work);

    /// Waits until all have ended, to be called before the program ends; false when some are stuck
    /// in the system beyond that time, which are then left alone.
    static bool waitForEnd(std::chrono::milliseconds timeLimit);
};

} // namespace tessera
