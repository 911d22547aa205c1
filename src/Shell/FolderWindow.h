// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Observation.h"
#include "Scanning/Scanner.h"
#include "Scanning/ScannerDelegate.h"

#include <QMainWindow>

#include <memory>

class QLabel;
class QProgressBar;
class QStackedWidget;
class QToolBar;

namespace tessera {

class RootModel;
class ToolbarPathControl;
class TreeMapView;
class TreeViewController;
struct TreeViewServices;

/// The program's window on one folder: how far its scan is, then its picture below the path bar.
/// Closing it cancels the scan.
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
    QToolBar* makeToolbar();
    void pathSelected();
    void refreshPathControl();

    RootModel& m_model;
    const std::unique_ptr<const TreeViewServices> m_services;
    std::shared_ptr<Scanner> m_scanner;
    QStackedWidget* m_pages;
    QLabel* m_scannedPath = nullptr;
    QProgressBar* m_progress = nullptr;
    TreeMapView* m_treeView;
    ToolbarPathControl* m_toolbarPathControl = nullptr;
    QToolBar* m_toolbar;
    std::unique_ptr<TreeViewController> m_controller;
    Observation m_currentFolderObservation;
};

} // namespace tessera
