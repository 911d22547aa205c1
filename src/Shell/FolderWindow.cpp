// SPDX-License-Identifier: MIT
#include "Shell/FolderWindow.h"

#include "Model/NotificationCenter.h"
#include "Model/RootModel.h"
#include "TreeView/ToolbarPathControl.h"
#include "TreeView/ToolbarPathItem.h"
#include "TreeView/TreeMapView.h"
#include "TreeView/TreeViewController.h"
#include "TreeView/TreeViewServices.h"
#include "Utils/DisplayText.h"
#include "Utils/ProgressSteps.h"
#include "Utils/Util.h"

#include <QLabel>
#include <QProgressBar>
#include <QStackedWidget>
#include <QToolBar>
#include <QVBoxLayout>

namespace tessera {

namespace {

constexpr QSize kFirstSize{1080, 720};
constexpr QSize kLeastSize{320, 240};
constexpr int kProgressWidth = 480;
constexpr int kProgressSpacing = 12;

} // namespace

FolderWindow::FolderWindow(const TreeViewServices& services, RootModel& model)
    : m_model(model)
    , m_services(std::make_unique<const TreeViewServices>(services))
    , m_scanner(Scanner::create(services.scanEnvironment))
    , m_pages(new QStackedWidget(this))
    , m_treeView(new TreeMapView(services.defaults, m_pages))
    , m_toolbar(makeToolbar())
{
    addToolBar(m_toolbar);
    m_pages->addWidget(makeProgressPage());
    m_pages->addWidget(m_treeView);
    setCentralWidget(m_pages);
    setMinimumSize(kLeastSize);
    resize(kFirstSize);
    m_scanner->setDelegate(this);
    m_currentFolderObservation = NotificationCenter::defaultCenter().addObserver(
        "CurrentFolderChanged", [this](const NotificationObject&) { refreshPathControl(); });
}

FolderWindow::~FolderWindow()
{
    m_scanner->setDelegate(nullptr);
    m_scanner->cancel();
}

void FolderWindow::open(const Url& folder)
{
    setWindowTitle(displayText(folder.lastPathComponent()));
    m_toolbar->hide();
    m_pages->setCurrentIndex(0);
    m_scanner->scan(folder);
}

QWidget* FolderWindow::makeProgressPage()
{
    // NOLINTBEGIN(cppcoreguidelines-owning-memory): their parents own them
    auto* page = new QWidget(m_pages);
    auto* layout = new QVBoxLayout(page);
    m_progress = new QProgressBar(page);
    m_progress->setRange(0, kProgressSteps);
    m_progress->setFixedWidth(kProgressWidth);
    m_scannedPath = new QLabel(page);
    // NOLINTEND(cppcoreguidelines-owning-memory)
    m_scannedPath->setFixedWidth(kProgressWidth);
    m_scannedPath->setTextFormat(Qt::PlainText);
    layout->setSpacing(kProgressSpacing);
    layout->addStretch();
    layout->addWidget(m_progress, 0, Qt::AlignHCenter);
    layout->addWidget(m_scannedPath, 0, Qt::AlignHCenter);
    layout->addStretch();
    return page;
}

QToolBar* FolderWindow::makeToolbar()
{
    // NOLINTBEGIN(cppcoreguidelines-owning-memory): their parents own them
    auto* toolbar = new QToolBar(tr("Path"), this);
    auto* pathControlItem = new ToolbarPathItem(toolbar);
    // NOLINTEND(cppcoreguidelines-owning-memory)
    toolbar->setMovable(false);
    toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    toolbar->addWidget(pathControlItem);
    m_toolbarPathControl = &pathControlItem->pathControl();
    connect(m_toolbarPathControl, &ToolbarPathControl::clicked, this, &FolderWindow::pathSelected);
    return toolbar;
}

void FolderWindow::pathSelected()
{
    if (m_controller != nullptr) {
        m_controller->clickFolderPath(m_toolbarPathControl->clickedPathComponentCell()->url());
    }
}

void FolderWindow::refreshPathControl()
{
    if (m_controller == nullptr || m_controller->currentFolder() == nullptr) {
        return;
    }
    m_toolbarPathControl->setPathComponentCells(
        pathComponentCells(*m_controller->currentFolder(), m_services->compressing.icons));
    m_toolbarPathControl->refreshWidth();
    setWindowTitle(displayText(Util::getFolderTitle(*m_model.topFolder())));
}

void FolderWindow::scanUpdated(Scanner& scanner)
{
    m_progress->setValue(progressSteps(scanner.percentComplete()));
    m_scannedPath->setText(m_scannedPath->fontMetrics().elidedText(
        displayText(scanner.currentURL().path()), Qt::ElideMiddle, m_scannedPath->width()));
}

void FolderWindow::scanEnded(Scanner& scanner)
{
    m_controller.reset();
    m_model.setTopFolder(scanner.takeTopFolder());
    m_controller = std::make_unique<TreeViewController>(m_model, *m_treeView, *m_services);
    connect(
        m_controller.get(),
        &TreeViewController::treeChanged,
        this,
        &FolderWindow::refreshPathControl);
    refreshPathControl();
    m_toolbar->show();
    m_pages->setCurrentWidget(m_treeView);
    m_treeView->setFocus();
}

void FolderWindow::scanCancelled(Scanner& /*scanner*/) { }

} // namespace tessera
