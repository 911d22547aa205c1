// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"
#include "Scanning/HomePass.h"
#include "Scanning/ScanEnvironment.h"
#include "Scanning/ScannerDelegate.h"
#include "TreeScreen/RescanIndicator.h"

#include <QPointer>
#include <QTimer>

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <system_error>
#include <vector>

namespace tessera {

class Alert;
class File;
class Folder;
class RootModel;
class TopFolder;
class TreeMapView;
class TreeScreen;

/// Scans one folder of the shown tree anew, in the background, and puts the new tree in its place.
/// One rescan runs at a time: the one that the user has asked for comes before those that the
/// program needs itself. Main thread only.
class FolderRescan final : private ScannerDelegate {
public:
    /// What the program has read for itself is shown no later than that, be it that other folders
    /// wait: each time the whole picture is drawn.
    static constexpr int kMilliseconds = 200;

    /// Why the folder of that path cannot be read; no error when it can. No part of the path may be
    /// a link. Answers at once.
    using FolderCheck = std::function<std::error_code(const std::string& path)>;

    /// All must outlive it. The model's tree is on screen; the indicator is put on the view.
    FolderRescan(
        RootModel& model,
        ScanEnvironment environment,
        FolderCheck checkFolder,
        TreeMapView& treeView,
        Alert& alert,
        TreeScreen& screen);
    /// Cancels.
    ~FolderRescan() override;

    /// Does nothing while the user waits for another rescan, or for a folder that no other folder
    /// holds.
    void rescan(Folder& folder);

    /// Scans the folder of that path anew, when its turn comes and if it is in the tree by then. It
    /// stays as it looks meanwhile, and nobody is told when it cannot be read.
    void bringUpToDate(const std::string& path);

    /// Whether a rescan runs that the user has asked for.
    bool isAskedFor() const { return m_rescanFolder != nullptr && m_reason == Reason::User; }

    /// The picture was rebuilt, or a zoom has begun: the bar follows the folder's box, and is out
    /// of sight during a zoom and where there is no box or a small one.
    void pictureChanged();

    /// The node leaves its place. If it is the folder, or one around it, the rescan ends without
    /// an effect. What lies inside may have been read already: it is taken out of the new tree too.
    void nodeWillLeave(const File& node);

    /// The same of a path that this tree has no node for, though the scanner may have met one.
    void pathWentAway(const std::string& path);

    /// The node has come to its place. If that is inside the folder, it joins the new tree too.
    void nodeCame(const File& node);

private:
    enum class Reason : std::uint8_t { User, Program };

    /// A folder that the program has read, but not put into the tree yet.
    struct ReadFolder {
        std::string path; ///< absolute
        std::unique_ptr<TopFolder> scanned;
        std::set<std::string> changedPaths; ///< since its rescan began
    };

    void scanUpdated(Scanner& scanner) override;
    void scanEnded(Scanner& scanner) override;
    void scanCancelled(Scanner& scanner) override;
    void scanFailed(Scanner& scanner, const std::error_code& problem) override;

    void begin();
    void beginNext();
    void putOff();
    void noteChange(const File& node);
    static void applyChanges(
        File& folder, TopFolder& scanned, const std::set<std::string>& changedPaths);
    void beginFor(Folder& folder);
    void showRead();
    void showReadIfLast();
    bool isScanningBelowRead() const;
    void end();
    std::error_code problemOf(const TopFolder& scanned) const;
    std::unique_ptr<File> replace(Folder& folder, std::unique_ptr<TopFolder> scanned);
    void giveUp(Folder& folder, const std::error_code& problem);
    std::optional<Rect> indicatorFrame() const;
    void addIndicator();
    void removeIndicator();
    void draw();

    RootModel& m_model;
    const ScanEnvironment m_environment;
    const FolderCheck m_checkFolder;
    TreeMapView& m_treeView;
    Alert& m_alert;
    TreeScreen& m_screen;
    std::shared_ptr<Scanner> m_rescanner;
    HomePass m_homePass;
    Folder* m_rescanFolder = nullptr;
    Reason m_reason = Reason::User;
    std::deque<std::string> m_waiting; ///< absolute paths of what is to be brought up to date
    QTimer m_next;
    /// Absolute paths of what left or came inside the folder since its rescan began.
    std::set<std::string> m_changedPaths;
    std::vector<ReadFolder> m_read; ///< in the order in which they were
    QTimer m_show; ///< what is read
    QPointer<RescanIndicator> m_rescanIndicator;
};

} // namespace tessera
