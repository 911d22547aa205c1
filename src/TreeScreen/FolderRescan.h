// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"
#include "Scanning/HomePass.h"
#include "Scanning/ScanEnvironment.h"
#include "Scanning/ScannerDelegate.h"
#include "TreeScreen/RescanIndicator.h"

#include <QPointer>

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <system_error>

namespace tessera {

class Alert;
class File;
class Folder;
class TopFolder;
class TreeMapView;
class TreeScreen;

/// Scans one folder of the shown tree anew, in the background, and puts the new tree in its place.
/// One rescan runs at a time. Main thread only.
class FolderRescan final : private ScannerDelegate {
public:
    /// Why the folder of that path cannot be read; no error when it can. No part of the path may be
    /// a link. Answers at once.
    using FolderCheck = std::function<std::error_code(const std::string& path)>;

    /// All must outlive it. The indicator is put on the view.
    FolderRescan(
        ScanEnvironment environment,
        FolderCheck checkFolder,
        TreeMapView& treeView,
        Alert& alert,
        TreeScreen& screen);
    /// Cancels.
    ~FolderRescan() override;

    /// Does nothing while another rescan runs, or for a folder that no other folder holds.
    void rescan(Folder& folder);

    /// The folder being rescanned; null while none is.
    Folder* rescanFolder() const { return m_rescanFolder; }

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
    void scanUpdated(Scanner& scanner) override;
    void scanEnded(Scanner& scanner) override;
    void scanCancelled(Scanner& scanner) override;
    void scanFailed(Scanner& scanner, const std::error_code& problem) override;

    void noteChange(const File& node);
    void applyChanges(TopFolder& scanned);
    void end();
    void replace(Folder& folder, std::unique_ptr<TopFolder> scanned);
    void giveUp(Folder& folder, const std::error_code& problem);
    std::optional<Rect> indicatorFrame() const;
    void addIndicator();
    void removeIndicator();

    const ScanEnvironment m_environment;
    const FolderCheck m_checkFolder;
    TreeMapView& m_treeView;
    Alert& m_alert;
    TreeScreen& m_screen;
    std::shared_ptr<Scanner> m_rescanner;
    HomePass m_homePass;
    Folder* m_rescanFolder = nullptr;
    /// Absolute paths of what left or came inside the folder since its rescan began.
    std::set<std::string> m_changedPaths;
    QPointer<RescanIndicator> m_rescanIndicator;
};

} // namespace tessera
