// SPDX-License-Identifier: MIT
#pragma once

#include "Layout/Rect.h"
#include "Scanning/HomePass.h"
#include "Scanning/ScanEnvironment.h"
#include "Scanning/ScannerDelegate.h"
#include "TreeView/RescanIndicator.h"

#include <QPointer>

#include <memory>
#include <optional>

namespace tessera {

class Alert;
class File;
class Folder;
class TreeMapView;
class TreeScreen;

/// Scans one folder of the shown tree anew, in the background, and puts the new tree in its place.
/// One rescan runs at a time. Main thread only.
class FolderRescan final : private ScannerDelegate {
public:
    /// All must outlive it. The indicator is put on the view.
    FolderRescan(
        ScanEnvironment environment, TreeMapView& treeView, Alert& alert, TreeScreen& screen);
    /// Cancels.
    ~FolderRescan() override;

    /// Does nothing while another rescan runs, or for a folder that no other folder holds.
    void rescan(Folder& folder);

    /// The folder being rescanned; null while none is.
    Folder* rescanFolder() const { return m_rescanFolder; }

    /// The bar over the folder's box; null while there is none. A cancelled rescan leaves its own
    /// behind.
    RescanIndicator* rescanIndicator() const { return m_rescanIndicator; }

    /// The picture was rebuilt: the bar follows the folder's box, and is out of sight where there
    /// is none or a small one.
    void pictureChanged();

    /// The folder, or one around it, leaves its place: the rescan ends without an effect.
    void nodeWillLeave(const File& node);

private:
    void scanUpdated(Scanner& scanner) override;
    void scanEnded(Scanner& scanner) override;
    void scanCancelled(Scanner& scanner) override;
    void scanFailed(Scanner& scanner, const std::error_code& problem) override;

    std::optional<Rect> indicatorFrame() const;
    void addIndicator();
    void removeIndicator();

    const ScanEnvironment m_environment;
    TreeMapView& m_treeView;
    Alert& m_alert;
    TreeScreen& m_screen;
    std::shared_ptr<Scanner> m_rescanner;
    HomePass m_homePass;
    Folder* m_rescanFolder = nullptr;
    QPointer<RescanIndicator> m_rescanIndicator;
};

} // namespace tessera
