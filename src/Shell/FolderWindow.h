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

class RootModel;
class TreeMapView;
class TreeViewController;
struct TreeViewServices;

/// The program's window on one folder: how far its scan is, then its picture. Closing it cancels
/// the scan.
class FolderWindow final : public QMainWindow, private ScannerDelegate {
    Q_OBJECT

public:
    /// The model, and all that the services refer to, must outlive the window.
    FolderWindow(const TreeViewServices& services, RootModel& model);
    ~FolderWindow() override;

    /// Scans the folder and then shows it.
    void open(const Url& folder);

private:
    void scanUpdated(Scanner& scanner) override;
    void scanEnded(Scanner& scanner) override;
    void scanCancelled(Scanner& scanner) override;

    QWidget* makeProgressPage();

    RootModel& m_model;
    const std::unique_ptr<const TreeViewServices> m_services;
    std::shared_ptr<Scanner> m_scanner;
    QStackedWidget* m_pages;
    QLabel* m_scannedPath = nullptr;
    QProgressBar* m_progress = nullptr;
    TreeMapView* m_treeView;
    std::unique_ptr<TreeViewController> m_controller;
};

} // namespace tessera
