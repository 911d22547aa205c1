// SPDX-License-Identifier: MIT
#pragma once

#include "Base/NotificationCenter.h"

#include <string>
#include <utility>
#include <vector>

namespace tessera {

/// What the program itself changes on the disk while a scan runs: moves to the trash and archives
/// that end only now. No tree is on screen that could hear of it, and the scan may have passed the
/// place before. Main thread only.
class ChangesDuringScan {
public:
    ChangesDuringScan();

    /// What has changed before is on the disk as the scan will find it.
    void scanBegins() { m_changes.clear(); }

    /// Posts the notifications once more, for the screen that shows the new tree.
    void tellAgain();

private:
    Observation observe(const std::string& name);

    std::vector<std::pair<std::string, NotificationObject>> m_changes;
    std::vector<Observation> m_observations;
};

} // namespace tessera
