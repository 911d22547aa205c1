// SPDX-License-Identifier: MIT
#pragma once

#include "Random.h"
#include "Sandbox.h"
#include "UserInput.h"

#include <QObject>
#include <QRect>

#include <cstdint>
#include <span>
#include <string>

class QDialog;
class QWidget;

namespace tessera {
class AppDelegate;
class LayoutObject;
class MainWindowController;
class TreeMapView;
class TreeViewController;
} // namespace tessera

namespace tessera::test {

/// What a user who tries everything does next, by chance and by what is on the screen.
class UserActions {
public:
    /// All must outlive it.
    UserActions(AppDelegate& program, const Sandbox& sandbox, Random& random);

    /// Begins an action and says which. It takes its course when the event loop goes on.
    std::string next();

    /// Closes what is open in front of the main window, one at a time; false when nothing is.
    static bool dismiss();

    /// Closes the main window, or what does not let it be closed.
    void leave();

    /// Clicks a folder's box in the picture; false when there is none.
    bool selectFolder();

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// Whether the user wants to see the end of the scan before they do anything else.
    bool isWatchingScan() const { return m_isWatchingScan; }

    /// Path of the folder whose scan was asked for last.
    const std::string& lastScanned() const { return m_scanned; }

private:
    enum class Scene : std::uint8_t { Anywhere, Question, Home, Scan, Tree };
    /// Returns details for the log.
    using Action = std::string (UserActions::*)();
    struct Row {
        Scene scene;
        int weight;
        const char* name;
        Action action;
    };

    static std::span<const Row> rows();
    Scene scene() const;
    const Row& pick(Scene scene);
    bool answersNow();

    std::string hover();
    std::string clickAnywhere();
    std::string pressAnyKey();
    std::string resize();
    std::string toggleFullScreen();
    std::string minimise();
    std::string openFolder();
    std::string openPreferences();
    std::string chooseCommand();
    std::string openMenu();
    std::string useQuickLook();

    std::string answer();
    std::string answerMenu(QWidget& popup);
    std::string answerDialog(QDialog& dialog);

    std::string scanPlace();
    std::string scanRecent();
    std::string clearRecents();
    std::string openFolderPanel();

    std::string cancelScan();
    std::string watchScan();

    std::string clickBox();
    std::string doubleClickBox();
    std::string openContextMenu();
    std::string clickPath();
    std::string goHome();
    std::string trash();
    std::string rescan();
    std::string compress();
    std::string openPreview();
    std::string ignore();
    std::string openIgnoreMenu();
    std::string zoom();

    MainWindowController& controller() const;
    QWidget& window() const;
    TreeMapView* map() const;
    QPoint anyPoint(const QWidget& widget);
    QPoint anyBox();
    std::string selection() const;

    AppDelegate& m_program;
    const Sandbox& m_sandbox;
    Random& m_random;
    UserInput m_input;
    bool m_isWatchingScan = false;
    std::string m_scanned;
    QObject m_scanListener;
};

} // namespace tessera::test
