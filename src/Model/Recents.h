// SPDX-License-Identifier: MIT
#pragma once

#include "Model/UserDefaults.h"

#include <chrono>
#include <functional>
#include <vector>

namespace tessera {

class RecentDocuments;
class TopFolder;

/// Now, to the second.
std::chrono::sys_seconds currentDate();

/// The list of recent scans, kept in the user's settings and in step with the desktop's own list
/// of recent documents: a record lives only as long as the desktop lists its folder. Main thread
/// only.
class Recents final {
public:
    using Clock = std::function<std::chrono::sys_seconds()>;

    /// Loads the list. Both services must outlive this object.
    Recents(UserDefaults& defaults, RecentDocuments& documents, Clock clock = currentDate);

    /// Newest first.
    const std::vector<RecentRecord>& recentsList() const { return m_mutableList; }

    /// Reads the stored records again, without those that the desktop no longer lists.
    void reload();

    /// Stores the list, on disk at once.
    void save();

    /// Puts the folder, with its present size, in front of both lists, and saves.
    void addToList(const TopFolder& folder);

    /// Empties both lists, and saves.
    void clearList();

private:
    UserDefaults& m_defaults;
    RecentDocuments& m_documents;
    Clock m_clock;
    std::vector<RecentRecord> m_mutableList;
};

} // namespace tessera
