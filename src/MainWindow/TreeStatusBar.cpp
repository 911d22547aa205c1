// SPDX-License-Identifier: MIT
#include "MainWindow/TreeStatusBar.h"

#include "Model/UserDefaults.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Status/StatusLine.h"
#include "TreeScreen/TreeViewController.h"

#include <QLayout>
#include <QMainWindow>
#include <QStatusBar>

#include <string_view>

namespace tessera {

namespace {

constexpr int kSideMargin = 6; ///< of the line in the bar

} // namespace

TreeStatusBar::TreeStatusBar(QMainWindow& window, UserDefaults& defaults)
    : m_window(window)
    , m_defaults(defaults)
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the window owns it
    , m_line(new StatusLine)
{
    QStatusBar& bar = *m_window.statusBar();
    bar.setAccessibleName(tr("Status line"));
    // The window has borders to be resized by.
    bar.setSizeGripEnabled(false);
    bar.setContentsMargins(kSideMargin, 0, kSideMargin, 0);
    bar.addWidget(m_line, 1);
    m_changes = m_defaults.addChangeObserver([this](std::string_view key) {
        if (key == kStatusLineKey) {
            place();
        }
    });
    place();
}

TreeStatusBar::~TreeStatusBar() = default;

bool TreeStatusBar::isOn() const
{
    return m_defaults.boolean(kStatusLineKey);
}

void TreeStatusBar::toggle()
{
    m_defaults.setBoolean(kStatusLineKey, !isOn());
}

void TreeStatusBar::treeComes()
{
    m_isTreeDisplayed = true;
    place();
}

void TreeStatusBar::connectTo(const TreeViewController& screen, const TreeMapView& picture)
{
    m_screen = &screen;
    connect(&picture, &TreeMapView::pointedAt, this, &TreeStatusBar::pointAt);
    const auto forgetPointer = [this] {
        m_pointedAt = nullptr;
        refresh();
    };
    connect(&screen, &TreeViewController::selectionChanged, this, forgetPointer);
    connect(&screen, &TreeViewController::currentFolderChanged, this, forgetPointer);
    // Sizes and names are others perhaps. Before the picture is rebuilt its boxes may stand for
    // nodes that are gone.
    connect(&screen, &TreeViewController::pictureRebuilt, this, &TreeStatusBar::refresh);
    refresh();
}

void TreeStatusBar::treeLeaves()
{
    m_screen = nullptr;
    m_pointedAt = nullptr;
    m_isTreeDisplayed = false;
    place();
}

void TreeStatusBar::place()
{
    m_window.statusBar()->setVisible(m_isTreeDisplayed && isOn());
    // Who draws the picture now is to know how large it is.
    m_window.layout()->activate();
    refresh();
}

void TreeStatusBar::pointAt(const LayoutObject* box)
{
    // The pointer mostly moves within a box.
    if (box != m_pointedAt) {
        m_pointedAt = box;
        refresh();
    }
}

void TreeStatusBar::refresh()
{
    const Folder* const inView = m_screen == nullptr ? nullptr : m_screen->currentFolder();
    if (inView == nullptr || !isOn()) {
        m_line->setStatus({});
        return;
    }
    const File* const selected = m_screen->selectedFile();
    if (m_pointedAt != nullptr) {
        m_line->setStatus(statusOf(*m_pointedAt, *inView));
    } else {
        m_line->setStatus(statusOf(selected != nullptr ? *selected : *inView, *inView));
    }
}

} // namespace tessera
