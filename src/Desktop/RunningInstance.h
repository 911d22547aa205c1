// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"

#include <functional>
#include <string>

namespace tessera {

/// Lets a second start of the program in the same session hand its folder over to the first, so
/// that there is one window. Main thread only.
class RunningInstance {
public:
    /// Gets the folder that a later start was to open; an empty URL when it named none, and only
    /// the window is to come to the front. By the token, which may be empty, the desktop lets it;
    /// it is printable ASCII of at most 256 bytes.
    using Handler = std::function<void(const Url& folder, const std::string& activationToken)>;

    RunningInstance() = default;
    RunningInstance(const RunningInstance&) = delete;
    RunningInstance& operator=(const RunningInstance&) = delete;
    virtual ~RunningInstance() = default;

    /// True when another process runs already and has taken the folder, which may be empty. Else
    /// this process is the one from now on, or there is no way to tell, and it runs on its own. A
    /// process that does not answer within two seconds counts as none.
    [[nodiscard]] virtual bool handOver(const Url& folder) = 0;

    /// Called from the event loop for each later start. What comes before a handler is set is kept
    /// for it.
    virtual void setHandler(Handler handler) = 0;

    /// From now on this process is not the one any more, and the next start is the first again.
    /// Once it is not, nothing happens.
    virtual void giveUp() = 0;
};

} // namespace tessera
