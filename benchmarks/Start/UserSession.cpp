// SPDX-License-Identifier: MIT
#include "Start/UserSession.h"

#include "Base/Url.h"
#include "Commands/CommandActions.h"
#include "MainWindow/Menus/IgnoreMenu.h"
#include "Model/Folder.h"
#include "Model/NodeLookup.h"
#include "Model/RootModel.h"
#include "QuickLook/QuickLookPanel.h"
#include "TreeScreen/Map/TreeMapView.h"

#include <QApplication>
#include <QDialog>
#include <QDropEvent>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMimeData>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>
#include <cassert>
#include <utility>

namespace tessera::bench {

namespace {

constexpr std::chrono::milliseconds kBetweenLooks{5};
constexpr std::chrono::milliseconds kTimeToSettle{250}; ///< what a step leads to may come later
constexpr std::chrono::minutes kPatience{1};
constexpr int kHoverMoves = 300;
constexpr int kHoverStride = 37; ///< shares no factor with the sides of the map, as a rule
const QPointF kTitle{12, 8}; ///< in a folder's box, from its corner
constexpr QSize kOtherSize{1000, 700};

template <typename Widget>
Widget* topLevel()
{
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        auto* const found = qobject_cast<Widget*>(widget);
        if (found != nullptr && found->isVisible()) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

UserSession::UserSession(SessionFolders folders, EventLoopWatch& watch)
    : m_folders(std::move(folders))
    , m_watch(watch)
{
    planStart();
    planTree();
    planIgnoring();
    planWindows();
    planSecondTree();
    m_timer.setInterval(kBetweenLooks);
    m_timer.callOnTimeout(this, &UserSession::goOn);
    m_timer.start();
}

void UserSession::planStart()
{
    plan(
        "start", [] {}, [] { return window().isVisible(); });
    plan(
        "hovering over the home screen", [this] { m_moves = 0; }, [this] { return hoverOn(); });
    plan(
        "a scan that is cancelled at a half",
        [this] { dropOnWindow(m_folders.tree); },
        [] { return cancelAtHalf(); });
    plan(
        "a scan",
        [this] { dropOnWindow(m_folders.tree); },
        [this] { return showsTreeOf(m_folders.tree); });
}

void UserSession::planTree()
{
    plan(
        "hovering over the tree", [this] { m_moves = 0; }, [this] { return hoverOn(); });
    plan("selecting a folder", [] { select(largestFolder()); });
    plan("zooming in", [] { perform(Command::ZoomIn); });
    plan("zooming out", [] { perform(Command::ZoomOut); });
    for (const int key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Up}) {
        plan("moving the selection", [key] { press(key); });
    }
    plan("a smaller window", [] { window().resize(kOtherSize); });
    plan("a larger window", [] { window().showMaximized(); });
    plan(
        "rescanning a large folder",
        [this] {
            select(largestFolder());
            m_rescanned = &largestFolder();
            perform(Command::Rescan);
        },
        [this] {
            const auto& children = RootModel::sharedInstance().topFolder()->children();
            return std::find(children.begin(), children.end(), m_rescanned) == children.end();
        });
}

void UserSession::planIgnoring()
{
    plan("ignoring a folder", [] {
        select(largestFolder());
        perform(Command::Ignore);
    });
    plan("ignoring hidden files", [] { chooseIgnoreEntry(IgnoreEntry::HiddenFiles); });
    plan("ignoring free space", [] { chooseIgnoreEntry(IgnoreEntry::FreeSpace); });
    plan("ignoring nothing", [] { chooseIgnoreEntry(IgnoreEntry::Reset); });
}

void UserSession::planWindows()
{
    plan("quick look at a folder", [] {
        select(largestFolder());
        perform(Command::QuickLook);
    });
    plan("moving on with quick look", [] { press(Qt::Key_Right); });
    plan("closing quick look", [] { QuickLookPanel::sharedInstance().dismiss(); });
    plan("preferences", [] { perform(Command::Preferences); });
    plan("closing the preferences", [] { topLevel<QDialog>()->close(); });
    plan(
        "the panel to choose a folder",
        [] { perform(Command::OpenFolder); },
        [] { return topLevel<QFileDialog>() != nullptr; });
    plan("closing that panel", [] { topLevel<QFileDialog>()->reject(); });
}

void UserSession::planSecondTree()
{
    plan("going home", [] { perform(Command::Home); });
    plan(
        "the first tree once more",
        [this] { dropOnWindow(m_folders.tree); },
        [this] { return showsTreeOf(m_folders.tree); });
    plan(
        "another scan while a tree is shown",
        [this] { dropOnWindow(m_folders.scratch); },
        [this] { return showsTreeOf(m_folders.scratch); });
    plan(
        "moving a large folder to the trash",
        [this] {
            select(*nodeAtPath(*RootModel::sharedInstance().topFolder(), m_folders.doomed));
            perform(Command::MoveToTrash);
        },
        [this] {
            return nodeAtPath(*RootModel::sharedInstance().topFolder(), m_folders.doomed)
                == nullptr;
        });
    plan(
        "the end", [] { perform(Command::Quit); }, [] { return false; });
}

void UserSession::plan(std::string name, std::function<void()> begin, std::function<bool()> isDone)
{
    m_steps.push_back({std::move(name), std::move(begin), isDone ? std::move(isDone) : [] {
                           return map() == nullptr || !map()->isZooming();
                       }});
}

void UserSession::goOn()
{
    const auto now = EventLoopWatch::Clock::now();
    const Step& step = m_steps.at(m_next);
    if (!m_isBegun) {
        m_isBegun = true;
        m_since = now;
        m_watch.setActivity(step.name);
        step.begin();
    } else if (now - m_since > kPatience) {
        m_problem = "there was no end to " + step.name;
        m_timer.stop();
        QApplication::exit(EXIT_FAILURE);
    } else if (step.isDone()) {
        ++m_next;
        m_isBegun = false;
        m_timer.start(kTimeToSettle);
        return;
    }
    m_timer.start(kBetweenLooks);
}

QMainWindow& UserSession::window()
{
    return *topLevel<QMainWindow>();
}

TreeMapView* UserSession::map()
{
    return window().findChild<TreeMapView*>();
}

bool UserSession::showsTreeOf(const std::string& path)
{
    const TopFolder* const top = RootModel::sharedInstance().topFolder();
    return map() != nullptr && top != nullptr && top->origin() == path;
}

void UserSession::perform(Command command)
{
    window().findChild<CommandActions*>()->action(command).trigger();
}

/// The program scans what is dropped on its window.
void UserSession::dropOnWindow(const std::string& folder)
{
    QMimeData data;
    data.setData(
        QStringLiteral("text/uri-list"),
        QByteArray::fromStdString(Url(folder, true).absoluteString()));
    const QPoint place = window().rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window(), &enter);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window(), &drop);
}

void UserSession::chooseIgnoreEntry(IgnoreEntry entry)
{
    const QList<QToolButton*> buttons = window().findChildren<QToolButton*>();
    for (const QToolButton* const button : buttons) {
        if (auto* const menu = qobject_cast<IgnoreMenu*>(button->menu())) {
            const QList<QAction*> entries = menu->actions();
            const auto found = std::ranges::find(entries, entry, [](const QAction* action) {
                return action->data().value<IgnoreEntry>();
            });
            (*found)->trigger();
        }
    }
}

void UserSession::pointAt(QPointF place, QEvent::Type type)
{
    QWidget* const target = map() != nullptr ? map() : window().childAt(place.toPoint());
    const bool isButton = type != QEvent::MouseMove;
    QMouseEvent event(
        type,
        place,
        target->mapToGlobal(place),
        isButton ? Qt::LeftButton : Qt::NoButton,
        type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
        Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}

void UserSession::press(int key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(map(), &event);
}

void UserSession::select(const File& file)
{
    const auto box = map()->findRectForFile(file, *map()->branches().front());
    const QPointF place = QPointF(box->x, box->y) + kTitle;
    pointAt(place, QEvent::MouseButtonPress);
    pointAt(place, QEvent::MouseButtonRelease);
}

bool UserSession::hoverOn()
{
    const QSize area = window().centralWidget()->size();
    const int way = m_moves * kHoverStride;
    pointAt(QPointF(way * kHoverStride % area.width(), way % area.height()), QEvent::MouseMove);
    return ++m_moves == kHoverMoves;
}

bool UserSession::cancelAtHalf()
{
    const auto* const indicator = window().findChild<QProgressBar*>(QStringLiteral("indicator"));
    if (indicator == nullptr) {
        return true;
    }
    auto* const cancel = window().findChild<QPushButton*>(QStringLiteral("cancelButton"));
    if (cancel->isEnabled() && indicator->value() * 2 > indicator->maximum()
        && indicator->maximum() > 0) {
        cancel->click();
    }
    return false;
}

Folder& UserSession::largestFolder()
{
    Folder* largest = nullptr;
    for (File* const child : RootModel::sharedInstance().topFolder()->children()) {
        auto* const folder = nodeCast<Folder>(child);
        const auto isLarger = [largest](const Folder& other) {
            return largest == nullptr || other.children().size() > largest->children().size();
        };
        if (folder != nullptr && isLarger(*folder)) {
            largest = folder;
        }
    }
    assert(largest != nullptr);
    return *largest;
}

} // namespace tessera::bench
