// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>
#include <vector>

namespace tessera {

class DiskChanges;
class TreeViewController;

/// What the program itself changes on the disk while a scan runs: moves to the trash and back,
/// and archives, that end only now. No tree is on screen that could hear of it, and the scan may
/// have passed the place before. Main thread only.
class ChangesDuringScan final : public QObject {
public:
    explicit ChangesDuringScan(const DiskChanges& changes);

    /// What has changed before is on the disk as the scan will find it.
    void scanBegins() { m_changes.clear(); }

    /// Tells the screen that shows the new tree, in the order of the changes.
    void tell(TreeViewController& screen);

private:
    std::vector<std::function<void(TreeViewController&)>> m_changes; ///< each tells of one
};

} // namespace tessera
