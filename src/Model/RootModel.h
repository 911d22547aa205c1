// SPDX-License-Identifier: MIT
#pragma once

#include "Model/PictureFilter.h"
#include "Model/Recents.h"
#include "Model/TopFolder.h"

#include <memory>
#include <string>
#include <vector>

namespace tessera {

class RecentDocuments;
class StandardFolders;
class UserDefaults;

/// What the model needs from the system; each must outlive it.
struct RootModelServices {
    UserDefaults& defaults;
    RecentDocuments& recentDocuments;
    const StandardFolders& standardFolders;
};

/// The model behind the windows: the tree on screen, how it is shown, and the recent scans. The
/// program has one of it; tests make their own. Main thread only.
class RootModel final {
public:
    explicit RootModel(const RootModelServices& services);

    /// Says what the shared model will be made from. To be called once, before sharedInstance().
    static void setServices(const RootModelServices& services);

    /// The program's one model, made at the first call. It is never destroyed: the process ends
    /// without taking a tree of millions of nodes apart.
    static RootModel& sharedInstance();

    /// Root of the tree on screen; null until the first scan has ended.
    TopFolder* topFolder() const { return m_topFolder.get(); }

    /// Releases the previous tree and applies the picture filter to the new one.
    void setTopFolder(std::unique_ptr<TopFolder> topFolder);

    PictureFilter& pictureFilter() { return m_pictureFilter; }
    const PictureFilter& pictureFilter() const { return m_pictureFilter; }

    /// Marks the tree's pseudo nodes after the picture filter has changed. Sizes stay as they are.
    void applyPictureFilter();

    Recents& recents() { return m_recents; }

    /// Whether the real user of the process is "root".
    bool isRunningAsRoot() const { return m_isRunningAsRoot; }
    void setIsRunningAsRoot(bool on) { m_isRunningAsRoot = on; }

    /// Absolute URL strings. What starts with one of them is the user's own rather than the
    /// system's.
    std::vector<std::string>& nonSystemFolders() { return m_nonSystemFolders; }
    const std::vector<std::string>& nonSystemFolders() const { return m_nonSystemFolders; }

private:
    void loadNonSystemFolders(const StandardFolders& folders);

    std::unique_ptr<TopFolder> m_topFolder;
    PictureFilter m_pictureFilter;
    Recents m_recents;
    bool m_isRunningAsRoot = false;
    std::vector<std::string> m_nonSystemFolders;
};

} // namespace tessera
