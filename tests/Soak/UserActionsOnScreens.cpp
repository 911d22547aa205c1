// SPDX-License-Identifier: MIT
#include "HomeScreen/Grid/CollectionItemView.h"
#include "MainWindow/MainWindowController.h"
#include "Model/File.h"
#include "OpenWindows.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/PathBar/PathComponentButton.h"
#include "TreeScreen/Picture/TreeBranch.h"
#include "TreeScreen/TreeViewController.h"
#include "UserActions.h"

#include <QListView>
#include <QMainWindow>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>
#include <vector>

namespace tessera::test {

namespace {

constexpr std::uint64_t kMostToCompress = 4'000'000;

/// All boxes of a picture, from the outermost level inwards.
std::vector<QPoint> boxCentres(const TreeMapView& map, bool foldersOnly)
{
    std::vector<QPoint> centres;
    std::vector<const TreeBranch*> open;
    for (const auto& top : map.branches()) {
        open.push_back(top.get());
    }
    while (!open.empty()) {
        const TreeBranch& branch = *open.back();
        open.pop_back();
        for (const auto& item : branch.layoutItems()) {
            const bool isFolder = item->ref != nullptr && item->ref->isFolder();
            // A folder's title is at its top, below that begins what is in it.
            const double down
                = isFolder ? std::min(6.0, item->rect.height / 2) : item->rect.height / 2;
            if (isFolder || !foldersOnly) {
                const Rect box = branch.convertToTreeView(item->rect);
                centres.push_back(QPointF(box.x + box.width / 2, box.y + down).toPoint());
            }
        }
        for (const auto& nested : branch.subBranches()) {
            open.push_back(nested.get());
        }
    }
    return centres;
}

} // namespace

// The home screen

std::string UserActions::scanPlace()
{
    const auto places = visible<CollectionItemView>(window());
    if (places.empty()) {
        return "none";
    }
    QWidget* const place = m_random.pick(places);
    if (m_random.oneIn(2)) {
        m_input.doubleClick(*place, place->rect().center());
        return "by a double click on " + classOf(*place);
    }
    m_input.click(*place, place->rect().center());
    press(Qt::Key_Return);
    return "by the keyboard";
}

std::string UserActions::scanRecent()
{
    const auto lists = visible<QListView>(window());
    const int rows = lists.empty() ? 0 : lists.front()->model()->rowCount();
    if (rows == 0) {
        return "none";
    }
    QListView& list = *lists.front();
    const int row = m_random.below(rows);
    m_input.doubleClick(*list.viewport(), list.visualRect(list.model()->index(row, 0)).center());
    return std::to_string(row);
}

std::string UserActions::clearRecents()
{
    if (auto* const button
        = window().findChild<QPushButton*>(QStringLiteral("clearRecentsButton"))) {
        m_input.click(*button, button->rect().center());
    }
    return {};
}

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): an action like the others
std::string UserActions::openFolderPanel()
{
    press(Qt::Key_O, Qt::ControlModifier);
    return {};
}

// The scan

std::string UserActions::cancelScan()
{
    auto* const button = window().findChild<QPushButton*>(QStringLiteral("cancelButton"));
    if (button == nullptr || m_random.oneIn(2)) {
        press(Qt::Key_Escape);
        return "by the keyboard";
    }
    m_input.click(*button, button->rect().center());
    return {};
}

std::string UserActions::watchScan()
{
    // The system's folders are as large as they happen to be.
    if (controller().state() == ScreenState::Scanning && !m_sandbox.holds(m_scanned + '/')) {
        return "too large, cancelled " + cancelScan();
    }
    m_isWatchingScan = true;
    return percentEncoded(m_scanned);
}

// The tree

QPoint UserActions::anyBox()
{
    const std::vector<QPoint> boxes = boxCentres(*map(), false);
    return boxes.empty() ? anyPoint(*map()) : m_random.pick(boxes);
}

bool UserActions::selectFolder()
{
    const std::vector<QPoint> boxes
        = map() == nullptr ? std::vector<QPoint>() : boxCentres(*map(), true);
    if (boxes.empty()) {
        return false;
    }
    m_input.click(*map(), m_random.pick(boxes));
    return true;
}

std::string UserActions::clickBox()
{
    m_input.click(*map(), anyBox());
    return {};
}

std::string UserActions::doubleClickBox()
{
    m_input.doubleClick(*map(), anyBox());
    return {};
}

std::string UserActions::openContextMenu()
{
    m_input.click(*map(), anyBox(), Qt::RightButton);
    return {};
}

std::string UserActions::clickPath()
{
    const auto components = visible<PathComponentButton>(window());
    if (components.empty()) {
        return "none";
    }
    QWidget* const component = m_random.pick(components);
    m_input.click(*component, component->rect().center());
    return std::to_string(components.size()) + " components";
}

std::string UserActions::goHome()
{
    QWidget& button = controller().toolbar().toolbarHomeButton();
    m_input.click(button, button.rect().center());
    return {};
}

std::string UserActions::trash()
{
    m_input.click(*map(), anyBox());
    press(Qt::Key_Delete);
    return "after " + selection();
}

std::string UserActions::rescan()
{
    selectFolder();
    press(Qt::Key_F5);
    return "after " + selection();
}

std::string UserActions::compress()
{
    const TreeViewController* const tree = controller().treeVC();
    if (tree == nullptr || tree->selectedFile() == nullptr
        || tree->selectedFile()->totalAllocation() > kMostToCompress) {
        return clickBox() + "too large";
    }
    press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    return selection();
}

std::string UserActions::openPreview()
{
    press(Qt::Key_Space);
    return selection();
}

std::string UserActions::ignore()
{
    selectFolder();
    press(Qt::Key_I, Qt::ControlModifier);
    return "after " + selection();
}

std::string UserActions::openIgnoreMenu()
{
    QWidget& button = controller().toolbar().toolbarIgnoreButton();
    m_input.click(button, button.rect().center());
    return {};
}

std::string UserActions::zoom()
{
    const bool in = m_random.oneIn(2);
    press(in ? Qt::Key_Plus : Qt::Key_Minus, Qt::ControlModifier);
    return in ? "in" : "out";
}

} // namespace tessera::test
