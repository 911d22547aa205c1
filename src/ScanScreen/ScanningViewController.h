// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"
#include "Model/TopFolder.h"
#include "ScanScreen/DockImage.h"
#include "ScanScreen/FileRate.h"
#include "Scanning/HomePass.h"
#include "Scanning/ScanEnvironment.h"
#include "Scanning/ScannerDelegate.h"
#include "Widgets/PlaceLook.h"

#include <QObject>

#include <functional>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

class QString;
class QWidget;

namespace Ui {
class ScanView;
}

namespace tessera {

class Alert;
class DockTile;
class EndNotices;
class RootModel;
class Scanner;

/// What the scan screen needs from the system and the desktop; each must outlive it.
struct ScanningServices {
    ScanEnvironment scanEnvironment;
    DockTile& dockTile;
    Alert& alert;
    std::function<PlaceLook(const Url& folder)> look;
    /// Why a folder cannot be read, by its path; no error when it can.
    std::function<std::error_code(const std::string& path)> checkFolder;
    EndNotices* notices
        = nullptr; ///< hears of each end but those that the user wanted; may be null
};

/// The controller of the panel that shows how far a scan is. It serves one scan: at the end it
/// gives the tree to the model, notes it as recent and emits scanComplete(), or else
/// scanCancelled(). Who hears that may destroy it. A folder that cannot be read at all is told to
/// the user and counts as cancelled. Main thread only.
class ScanningViewController final : public QObject, private ScannerDelegate {
    Q_OBJECT

public:
    /// Height that the view is made for, in points; its width is free. With a large font it needs
    /// more.
    static constexpr int kViewHeight = 230;

    /// The model must outlive the controller.
    ScanningViewController(RootModel& model, ScanningServices services);
    /// Stops a scan that still runs, and emits nothing.
    ~ScanningViewController() override;

    /// The panel. It may be put into another widget, which must not die before the controller.
    QWidget& view() const { return *m_view; }

    void startScanning(const Url& url);

    /// Cancels the scan; nothing when none runs.
    void stopScan();

    /// What is being scanned; empty when nothing is.
    const Url& rootURL() const { return m_rootURL; }
    /// The home folder's surroundings, while an encrypted home folder is scanned in a second pass.
    const TopFolder* fileVault() const { return m_homePass.surroundings(); }
    const DockImage& dockImage() const { return m_dockImage; }

signals:
    /// The model has the tree.
    void scanComplete();
    /// The scan has ended without a tree.
    void scanCancelled();

private:
    void scanUpdated(Scanner& scanner) override;
    void scanEnded(Scanner& scanner) override;
    void scanCancelled(Scanner& scanner) override;
    void scanFailed(Scanner& scanner, const std::error_code& problem) override;

    void sayThatItFailed(const Url& folder, const std::error_code& problem);
    void giveNotice(const QString& title, const QString& text) const;
    void endWithoutTree();
    void showPath(const Url& current);
    void startAnimation();
    void stopAnimation();

    RootModel& m_model;
    const ScanningServices m_services;
    std::unique_ptr<QWidget> m_view;
    std::unique_ptr<Ui::ScanView> m_ui;
    DockImage m_dockImage;
    FileRate m_rate;
    std::shared_ptr<Scanner> m_scanner;
    Url m_rootURL;
    double m_begun = 0; ///< seconds of the notices' clock
    HomePass m_homePass;
};

} // namespace tessera
