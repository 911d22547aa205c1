// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"

#include <QObject>

#include <set>
#include <string>

namespace tessera {

class Alert;
class DiskChanges;
class File;
class RootModel;
class TreeScreen;
class UserDefaults;
class Workspace;
struct RecycleResult;

/// Moves items to the trash, after a warning where that is risky, and their nodes after them. At
/// most one warning is given: who accepts the one for system folders gets none for hidden items.
/// A move that ends when the trasher is gone is told as a change of the disk. Main thread only.
class ItemTrasher final : public QObject {
    Q_OBJECT

public:
    /// All must outlive it.
    ItemTrasher(
        RootModel& model,
        const UserDefaults& defaults,
        Workspace& workspace,
        Alert& alert,
        DiskChanges& diskChanges,
        TreeScreen& screen);

    /// Asks the desktop to move the item and returns; the tree changes when that is done. Does
    /// nothing while the item, or a folder around it, is on its way already, and for space that is
    /// no item.
    void trash(const File& item);

private:
    bool mayTrash(const File& item) const;
    bool confirmSystem(const File& item) const;
    bool confirmHidden(const File& item) const;
    bool needsSystemWarning(const Url& place) const;
    bool ask(const QString& question) const;
    bool isOnItsWay(const std::string& path) const;

    void recycled(const Url& place, const std::string& path, const RecycleResult& result);
    void moveNode(const std::string& from, const Url* to);

    RootModel& m_model;
    const UserDefaults& m_defaults;
    Workspace& m_workspace;
    Alert& m_alert;
    DiskChanges& m_diskChanges;
    TreeScreen& m_screen;
    std::set<std::string> m_onTheirWay; ///< absolute paths on the disk
};

} // namespace tessera
