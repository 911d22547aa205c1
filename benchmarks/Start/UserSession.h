// SPDX-License-Identifier: MIT
#pragma once

#include "Start/EventLoopWatch.h"

#include <QEvent>
#include <QObject>
#include <QPointF>
#include <QTimer>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

class QMainWindow;

namespace tessera {

class File;
class Folder;
class TreeMapView;
enum class Command : std::uint8_t;
enum class IgnoreEntry : std::uint8_t;

} // namespace tessera

namespace tessera::bench {

/// What a session works on; paths of folders.
struct SessionFolders {
    std::string tree; ///< is only looked at
    std::string scratch; ///< holds `doomed`
    std::string doomed; ///< goes to the trash
};

/// Goes through all that a user can do with the program's one window, from the home screen to the
/// end of the program, by timers of the program's own event loop.
class UserSession final : public QObject {
public:
    /// Tells the watch what it does. Starts with the program's event loop.
    UserSession(SessionFolders folders, EventLoopWatch& watch);

    /// Empty, or what did not come about in time; the program was ended then.
    const std::string& problem() const { return m_problem; }
    std::size_t stepsDone() const { return m_next; }

private:
    struct Step {
        std::string name;
        std::function<void()> begin;
        std::function<bool()> isDone; ///< asked again and again; may do more
    };

    void planStart();
    void planTree();
    void planIgnoring();
    void planWindows();
    void planSecondTree();
    void plan(std::string name, std::function<void()> begin, std::function<bool()> isDone = {});
    void goOn();

    static QMainWindow& window();
    static TreeMapView* map();
    static bool showsTreeOf(const std::string& path);
    static void perform(Command command);
    static void dropOnWindow(const std::string& folder);
    static void chooseIgnoreEntry(IgnoreEntry entry);
    static void pointAt(QPointF place, QEvent::Type type);
    static void press(int key);
    static void select(const File& file);
    static bool cancelAtHalf();
    static Folder& largestFolder();
    bool hoverOn();

    const SessionFolders m_folders;
    EventLoopWatch& m_watch;
    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    bool m_isBegun = false;
    EventLoopWatch::Clock::time_point m_since;
    QTimer m_timer;
    std::string m_problem;
    int m_moves = 0;
    const Folder* m_rescanned = nullptr;
};

} // namespace tessera::bench
