// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Workspace.h"

#include <chrono>
#include <string>

namespace tessera {

/// Has another program, such as xdg-open, open URLs. Main thread only.
class ExternalOpener {
public:
    /// What the program starts in its own place, and waits for, may fail long after it has shown
    /// something: a failure counts for so long only.
    static constexpr std::chrono::milliseconds kPatience{30'000};

    /// `program` is looked for as the shell does.
    explicit ExternalOpener(std::string program, std::chrono::milliseconds patience = kPatience);

    /// Starts the program with the URL as its argument. What it opens is independent of this
    /// process and may outlive it. The completion handler hears later how the program ended.
    void operator()(const std::string& absoluteUrl, const OpenCompletion& completionHandler) const;

private:
    std::string m_program;
    std::chrono::milliseconds m_patience;
};

} // namespace tessera
