// SPDX-License-Identifier: MIT
#pragma once

#include "History/TrashRecord.h"

#include <QObject>
#include <QSortFilterProxyModel>

#include <memory>
#include <string>
#include <vector>

class QAction;
class QPoint;
class QPushButton;
class QWidget;

namespace Ui {
class HistoryWindow;
}

namespace tessera {

class Alert;
class TrashHistory;
class TrashHistoryModel;
class UserDefaults;
class Workspace;

/// What the window of the history needs; whatever is referred to must outlive it.
struct HistoryWindowServices {
    TrashHistory& history;
    Workspace& workspace;
    Alert& alert;
    UserDefaults& defaults; ///< where the window's place and its columns are remembered
    std::string homeDirectory; ///< of the user who started the program, as bytes; shown as "~"
};

/// The window that lists what was moved to the trash, the newest first, and has an item put back or
/// shown where it is now. It is independent of the main window's screens. The list is read anew
/// whenever the window is shown or becomes the active one. Main thread only.
class HistoryWindowController final : public QObject {
    Q_OBJECT

public:
    /// The window is hidden at first.
    explicit HistoryWindowController(const HistoryWindowServices& services);
    ~HistoryWindowController() override;

    /// Shows the window where it was the last time, or brings it to the front.
    void showWindow();
    QWidget& window() const { return *m_window; }

    /// To be called when something has gone to the trash or come back. Keeps what is selected and
    /// in view.
    void refresh();

    /// What is being put back, or waits for that, be it asked for here or elsewhere.
    void setComingBack(std::vector<TrashedItem> items);

signals:
    /// That item is to leave the trash for where it was.
    void putBackRequested(const tessera::TrashRecord& record);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    void setUpTable();
    void setUpActions();
    QAction* makeAction(const QString& title, const QString& keys, QPushButton& button);
    void restore();
    void save() const;
    void showMenu(const QPoint& inTable) const;

    void read();
    void beginAtTheNewest();
    void take(const std::vector<TrashRecord>& records);
    void setRecordsKeepingView(const std::vector<TrashRecord>& records);
    void tellStatus();
    void validate();

    const TrashRecord* selected() const;
    void putBack();
    void reveal();

    const HistoryWindowServices m_services;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<Ui::HistoryWindow> m_ui;
    TrashHistoryModel* m_model;
    QSortFilterProxyModel m_sorted;
    QAction* m_show = nullptr;
    QAction* m_putBack = nullptr;
    bool m_isReading = false;
    bool m_mustReadAgain = false; ///< something has changed since the reading began
    bool m_hasRead = false;
};

} // namespace tessera
