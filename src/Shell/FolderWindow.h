// SPDX-License-Identifier: MIT
#pragma once

#include "Scanning/Scanner.h"
#include "Scanning/ScannerDelegate.h"

#include <QMainWindow>

#include <memory>

class QLabel;
class QProgressBar;
class QStackedWidget;

namespace tessera {

class FileSystemAttributes;
class MotionPreference;
class RootModel;
class TreeMapView;
class TreeViewController;
class UserDefaults;

/// The program's window on one folder: how far its scan is, then its picture. Closing it cancels
/// the scan.
class FolderWindow final : public QMainWindow, private ScannerDelegate {
    Q_OBJECT

public:
    /// All arguments must outlive the window.
    FolderWindow(
        const ScanEnvironment& environment,
        RootModel& model,
        const UserDefaults& defaults,
        const MotionPreference& motion);
    ~FolderWindow() override;

    /// Scans the folder and then shows it.
    void open(const Url& folder);

private:
    void scanUpdated(Scanner& scanner) override;
    void scanEnded(Scanner& scanner) override;
    void scanCancelled(Scanner& scanner) override;

    QWidget* makeProgressPage();

    RootModel& m_model;
    const FileSystemAttributes& m_fileSystem;
    const MotionPreference& m_motion;
    std::shared_ptr<Scanner> m_scanner;
    QStackedWidget* m_pages;
    QLabel* m_scannedPath = nullptr;
    QProgressBar* m_progress = nullptr;
    TreeMapView* m_treeView;
    std::unique_ptr<TreeViewController> m_controller;
};

} // namespace tessera
