// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDockWidget>
#include <QObject>

#include <vector>

class QMainWindow;

namespace tessera {

class UserDefaults;

/// The panels at the sides of the main window, for what is read or collected beside the picture of
/// a tree. Each stands at the right until the user drags it to the left, in a place of its own or
/// as a tab of another; the user closes it with its button, and everything is as it was at the next
/// start: which are open, where, and how wide.
///
/// They are about the tree on screen. Without one they are out of sight, and open again with the
/// next tree. They share the window's room with the picture, which keeps enough to be of use, and
/// never change the window's size.
///
/// F6 takes the keyboard from the picture to the panels in sight, one after the other, and back;
/// Escape gives it back at once. Main thread only.
class SidePanels final : public QObject {
    Q_OBJECT

public:
    /// How wide a panel is before the user chooses, and how small it and the picture may get, in
    /// points. A panel's content must be of use at the least size: it may scroll.
    static constexpr int kUsualWidth = 300;
    static constexpr int kLeastWidth = 240;
    static constexpr int kLeastHeight = 80;
    static constexpr int kLeastPictureWidth = 240;

    /// Both must outlive it. The window has its central widget and its toolbars by now.
    SidePanels(QMainWindow& window, UserDefaults& defaults);
    ~SidePanels() override;

    /// Makes a closed panel. The window owns it, and it owns the content, which takes the keyboard
    /// when it is given the focus, or has a focus proxy that does. The panel is remembered by its
    /// object name, which stays what it is for ever.
    QDockWidget& add(const char* objectName, const QString& title, QWidget* content);

    /// Takes up what was remembered. To be called when all panels were added; without a record, or
    /// with one that is broken, all are closed.
    void restore();
    /// Remembers it. Others write the settings to the disk.
    void save();

    /// Whether there is a tree on screen for the panels to be about; at first there is none.
    void setTreeDisplayed(bool displayed);

    /// Whether the user wants it open, also while there is no tree.
    bool isOpen(const QDockWidget& panel) const;
    /// Whether it can be seen: it is open, there is a tree, and no other panel's tab is before it.
    static bool isInSight(const QDockWidget& panel);

    /// Opens it or brings it to the front; the keyboard stays where it is.
    void open(QDockWidget& panel);
    /// The keyboard goes back to the picture if it was in there.
    void close(QDockWidget& panel);
    /// For a command: closes the panel if it is in sight, else opens it and gives it the keyboard.
    void toggle(QDockWidget& panel);

signals:
    /// The user or the program has opened the panel, or closed it. Coming and going with the tree
    /// is neither.
    void opened(QDockWidget* panel);
    void closed(QDockWidget* panel);
    /// The picture is to have the keyboard.
    void backToPicture();

private:
    struct Entry {
        QDockWidget* panel;
        bool isOpen = false;
        bool hadWidth = false; ///< has been in sight, or was remembered
    };

    bool eventFilter(QObject* watched, QEvent* event) override;

    Entry& entryOf(const QObject& panel);
    const Entry& entryOf(const QObject& panel) const;
    bool readLayout();
    void putInOrder();
    void showOpenOnes();
    void giveFirstWidth(Entry& entry);
    void focusNext();
    void leave(const QDockWidget& panel);

    QMainWindow& m_window;
    UserDefaults& m_defaults;
    std::vector<Entry> m_entries;
    /// Qt's own record of where everything is and how large, from when a tree was displayed last.
    QByteArray m_layout;
    bool m_isTreeDisplayed = false;
};

} // namespace tessera
