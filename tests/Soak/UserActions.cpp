// SPDX-License-Identifier: MIT
#include "UserActions.h"

#include "Base/Url.h"
#include "MainWindow/MainWindowController.h"
#include "Model/File.h"
#include "OpenWindows.h"
#include "QuickLook/QuickLookPanel.h"
#include "Start/AppDelegate.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/TreeViewController.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

#include <algorithm>
#include <array>
#include <filesystem>
#include <vector>

namespace tessera::test {

namespace {

constexpr int kOftenAnswered = 4; // of so many actions one leaves open what needs an answer
constexpr int kSeldomAnswered = 5; // of so many actions one answers what needs no answer
constexpr int kLeastWidth = 400;
constexpr int kMostWidth = 1800;
constexpr int kLeastHeight = 300;
constexpr int kMostHeight = 1100;

} // namespace

UserActions::UserActions(AppDelegate& program, const Sandbox& sandbox, Random& random)
    : m_program(program)
    , m_sandbox(sandbox)
    , m_random(random)
{
    QObject::connect(
        &controller(), &MainWindowController::scanStarted, &m_scanListener, [this](const Url& url) {
            m_scanned = url.path();
        });
}

std::span<const UserActions::Row> UserActions::rows()
{
    using A = UserActions;
    static constexpr std::array kRows{
        Row{Scene::Anywhere, 10, "hover", &A::hover},
        Row{Scene::Anywhere, 3, "click anywhere", &A::clickAnywhere},
        Row{Scene::Anywhere, 6, "press a key", &A::pressAnyKey},
        Row{Scene::Anywhere, 5, "resize", &A::resize},
        Row{Scene::Anywhere, 2, "full screen", &A::toggleFullScreen},
        Row{Scene::Anywhere, 1, "minimise", &A::minimise},
        Row{Scene::Anywhere, 3, "open a folder from outside", &A::openFolder},
        Row{Scene::Anywhere, 3, "preferences", &A::openPreferences},
        Row{Scene::Anywhere, 8, "menu command", &A::chooseCommand},
        Row{Scene::Anywhere, 2, "open a menu", &A::openMenu},
        Row{Scene::Anywhere, 4, "use the preview", &A::useQuickLook},
        Row{Scene::Question, 1, "answer", &A::answer},
        Row{Scene::Home, 20, "scan a place", &A::scanPlace},
        Row{Scene::Home, 20, "scan a recent folder", &A::scanRecent},
        Row{Scene::Home, 1, "clear recents", &A::clearRecents},
        Row{Scene::Home, 2, "open folder", &A::openFolderPanel},
        Row{Scene::Scan, 15, "cancel the scan", &A::cancelScan},
        Row{Scene::Scan, 15, "open another folder", &A::openFolder},
        Row{Scene::Scan, 60, "watch the scan", &A::watchScan},
        Row{Scene::Tree, 14, "click a box", &A::clickBox},
        Row{Scene::Tree, 12, "double click a box", &A::doubleClickBox},
        Row{Scene::Tree, 8, "context menu", &A::openContextMenu},
        Row{Scene::Tree, 6, "click the path bar", &A::clickPath},
        Row{Scene::Tree, 2, "home", &A::goHome},
        Row{Scene::Tree, 8, "trash", &A::trash},
        Row{Scene::Tree, 10, "rescan", &A::rescan},
        Row{Scene::Tree, 6, "compress", &A::compress},
        Row{Scene::Tree, 6, "open the preview", &A::openPreview},
        Row{Scene::Tree, 4, "ignore", &A::ignore},
        Row{Scene::Tree, 6, "ignore menu", &A::openIgnoreMenu},
        Row{Scene::Tree, 8, "zoom", &A::zoom},
    };
    return kRows;
}

UserActions::Scene UserActions::scene() const
{
    switch (controller().state()) {
    case ScreenState::Tree:
        return Scene::Tree;
    case ScreenState::Scanning:
    case ScreenState::Cancelling:
        return Scene::Scan;
    default:
        return Scene::Home;
    }
}

const UserActions::Row& UserActions::pick(Scene scene)
{
    const auto weight = [scene](const Row& row) {
        const bool fits
            = row.scene == scene || (row.scene == Scene::Anywhere && scene != Scene::Question);
        return fits ? row.weight : 0;
    };
    int total = 0;
    for (const Row& row : rows()) {
        total += weight(row);
    }
    int left = m_random.below(total);
    return *std::ranges::find_if(rows(), [&](const Row& row) {
        left -= weight(row);
        return left < 0;
    });
}

/// Some questions are left alone, to see what else can be done meanwhile.
bool UserActions::answersNow()
{
    const QDialog* const dialog = openDialog();
    const bool mustBeAnswered
        = QApplication::activePopupWidget() != nullptr || (dialog != nullptr && dialog->isModal());
    // Keys in the folder chooser could do what no user of it means.
    return qobject_cast<const QFileDialog*>(dialog) != nullptr
        || (mustBeAnswered && !m_random.oneIn(kOftenAnswered))
        || (dialog != nullptr && m_random.oneIn(kSeldomAnswered));
}

std::string UserActions::next()
{
    const Row& row = pick(answersNow() ? Scene::Question : scene());
    m_isWatchingScan = false;
    return std::string(row.name) + ": " + (this->*row.action)();
}

MainWindowController& UserActions::controller() const
{
    return *m_program.mainWindow();
}

QWidget& UserActions::window() const
{
    return controller().window();
}

TreeMapView* UserActions::map() const
{
    const std::vector<TreeMapView*> maps = visible<TreeMapView>(window());
    return maps.empty() ? nullptr : maps.front();
}

QPoint UserActions::anyPoint(const QWidget& widget)
{
    return {
        m_random.below(std::max(1, widget.width())), m_random.below(std::max(1, widget.height()))};
}

std::string UserActions::selection() const
{
    const TreeViewController* const tree = controller().treeVC();
    const File* const file = tree == nullptr ? nullptr : tree->selectedFile();
    return file == nullptr ? "nothing" : percentEncoded(file->name());
}

void UserActions::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    UserInput::key(key, modifiers);
}

// Anywhere

std::string UserActions::hover()
{
    const QPoint point = map() != nullptr ? map()->mapTo(&window(), anyBox()) : anyPoint(window());
    m_input.move(window(), point);
    return std::to_string(point.x()) + ',' + std::to_string(point.y());
}

std::string UserActions::clickAnywhere()
{
    const QPoint point = anyPoint(window());
    m_input.click(window(), point);
    return std::to_string(point.x()) + ',' + std::to_string(point.y());
}

std::string UserActions::pressAnyKey()
{
    static const std::vector<QKeyCombination> kKeys{
        Qt::Key_Tab,
        Qt::Key_Left,
        Qt::Key_Right,
        Qt::Key_Up,
        Qt::Key_Down,
        Qt::Key_Return,
        Qt::Key_Escape,
        Qt::Key_Backspace,
        Qt::Key_Space,
        Qt::Key_Delete,
        Qt::Key_F5,
        Qt::Key_Menu,
        Qt::ALT | Qt::Key_Up,
        Qt::ALT | Qt::Key_Down,
        Qt::ALT | Qt::Key_Home,
        Qt::CTRL | Qt::Key_I,
        Qt::CTRL | Qt::Key_Y,
        Qt::SHIFT | Qt::Key_Tab,
    };
    const QKeyCombination key = m_random.pick(kKeys);
    press(key.key(), key.keyboardModifiers());
    return QKeySequence(key).toString().toStdString();
}

std::string UserActions::resize()
{
    const QSize size(
        m_random.between(kLeastWidth, kMostWidth), m_random.between(kLeastHeight, kMostHeight));
    window().resize(size);
    return std::to_string(size.width()) + 'x' + std::to_string(size.height());
}

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): a row of the table above
std::string UserActions::toggleFullScreen()
{
    press(Qt::Key_F11);
    return {};
}

std::string UserActions::minimise()
{
    window().showMinimized();
    QTimer::singleShot(0, &m_program, [this] { m_program.openFromElsewhere({}); });
    return {};
}

std::string UserActions::openFolder()
{
    std::vector<std::string> folders{m_sandbox.disk(), m_sandbox.path(), m_sandbox.volume()};
    std::error_code ignored;
    for (std::filesystem::directory_iterator at(m_sandbox.disk(), ignored), end;
         at != end && !ignored;
         at.increment(ignored)) {
        folders.push_back(at->path().string()); // a file now and then is a user's mistake
    }
    std::sort(folders.begin() + 3, folders.end());
    const std::string folder = m_random.oneIn(2) ? folders.front() : m_random.pick(folders);
    m_program.openFromElsewhere(Url(folder, true));
    return percentEncoded(folder);
}

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): a row of the table above
std::string UserActions::openPreferences()
{
    press(Qt::Key_Comma, Qt::ControlModifier);
    return {};
}

std::string UserActions::chooseCommand()
{
    std::vector<QAction*> enabled;
    const QList<QAction*> all = window().actions();
    std::ranges::copy_if(all, std::back_inserter(enabled), [](const QAction* action) {
        return action->isEnabled() && action->shortcut() != QKeySequence(Qt::CTRL | Qt::Key_Q);
    });
    QAction* const action = m_random.pick(enabled);
    // From the event loop, for it may ask something and wait for the answer.
    QTimer::singleShot(0, action, &QAction::trigger);
    return action->text().toStdString();
}

std::string UserActions::openMenu()
{
    auto* const bar = window().findChild<QMenuBar*>();
    const QList<QAction*> menus = bar->actions();
    QAction* const menu = m_random.pick(std::vector<QAction*>(menus.begin(), menus.end()));
    m_input.click(*bar, bar->actionGeometry(menu).center());
    return menu->text().toStdString();
}

std::string UserActions::useQuickLook()
{
    QuickLookPanel& panel = QuickLookPanel::sharedInstance();
    if (!panel.isOpen() || panel.windowHandle() == nullptr) {
        return "closed";
    }
    switch (m_random.below(4)) {
    case 0:
        panel.resize(m_random.between(100, 900), m_random.between(100, 700));
        return "resize";
    case 1:
        m_input.drag(panel, anyPoint(panel), anyPoint(panel));
        return "drag";
    case 2:
        press(m_random.oneIn(2) ? Qt::Key_Left : Qt::Key_Down);
        return "another item";
    default:
        press(Qt::Key_Escape);
        return "close";
    }
}

// Questions

bool UserActions::dismiss()
{
    if (QApplication::activePopupWidget() != nullptr) {
        press(Qt::Key_Escape);
        return true;
    }
    QuickLookPanel::sharedInstance().dismiss();
    if (QDialog* const dialog = openDialog()) {
        dialog->reject();
        return true;
    }
    return false;
}

void UserActions::leave()
{
    if (QApplication::activePopupWidget() != nullptr
        || QApplication::activeModalWidget() != nullptr) {
        press(Qt::Key_Escape);
    } else {
        QTimer::singleShot(0, &window(), &QWidget::close);
    }
}

std::string UserActions::answer()
{
    if (QWidget* const popup = QApplication::activePopupWidget()) {
        return answerMenu(*popup);
    }
    return answerDialog(*openDialog());
}

std::string UserActions::answerMenu(QWidget& popup)
{
    const auto* const menu = qobject_cast<QMenu*>(&popup);
    std::vector<QAction*> enabled;
    const QList<QAction*> all = popup.actions();
    std::ranges::copy_if(all, std::back_inserter(enabled), [](const QAction* action) {
        return action->isEnabled() && !action->isSeparator() && action->menu() == nullptr
            && action->shortcut() != QKeySequence(Qt::CTRL | Qt::Key_Q);
    });
    if (menu == nullptr || enabled.empty() || m_random.oneIn(kOftenAnswered)) {
        press(m_random.oneIn(2) ? Qt::Key_Escape : Qt::Key_Down);
        return "by a key";
    }
    QAction* const chosen = m_random.pick(enabled);
    m_input.click(*menu, menu->actionGeometry(chosen).center());
    return chosen->text().toStdString();
}

std::string UserActions::answerDialog(QDialog& dialog)
{
    const std::string name = classOf(dialog) + ' ';
    if (auto* const panel = qobject_cast<QFileDialog*>(&dialog)) {
        const bool accepts = m_random.oneIn(2);
        panel->setDirectory(QString::fromStdString(m_sandbox.disk()));
        QTimer::singleShot(0, panel, [&dialog, accepts] {
            if (dialog.isVisible()) {
                dialog.done(accepts ? QDialog::Accepted : QDialog::Rejected);
            }
        });
        return name + (accepts ? "choose" : "cancel");
    }
    std::vector<QWidget*> controls;
    for (auto* const button : visible<QAbstractButton>(dialog)) {
        controls.push_back(button);
    }
    for (auto* const box : visible<QComboBox>(dialog)) {
        controls.push_back(box);
    }
    if (controls.empty() || m_random.oneIn(3)) {
        press(m_random.oneIn(2) ? Qt::Key_Escape : Qt::Key_Return);
        return name + "by a key";
    }
    QWidget* const control = m_random.pick(controls);
    m_input.click(*control, control->rect().center());
    return name + classOf(*control);
}

} // namespace tessera::test
