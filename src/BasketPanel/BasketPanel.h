// SPDX-License-Identifier: MIT
#pragma once

#include "BasketPanel/BasketModel.h"
#include "Freeing/WillFreeQuestion.h"

#include <QTimer>
#include <QWidget>

#include <chrono>
#include <string>
#include <vector>

class QLabel;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

namespace tessera {

class BasketKeeper;
class BasketList;
class File;
class MainThread;
class NameLabel;
class WillFreeView;
struct FreedSpace;

/// Shows what the user has collected and what moving it to the trash will free, and on top the same
/// of what is selected. It takes items out of the basket; it moves nothing, but says when the user
/// wants that. While it is out of sight it does nothing. Main thread only.
class BasketPanel final : public QWidget {
    Q_OBJECT

public:
    /// How long changes are collected before they are shown, all at once.
    static constexpr int kTogetherMilliseconds = 30;

    /// The keeper and the main thread must outlive it.
    BasketPanel(
        BasketKeeper& keeper,
        const FreeingServices& freeing,
        MainThread& mainThread,
        std::chrono::milliseconds patience = kWillFreePatience);
    ~BasketPanel() override;

    /// What the head is about: the selected item, or the folder in view; null for nothing. To be
    /// called before a node that it was told of dies.
    void setSubject(const File* subject);
    /// Sizes in the tree are others than before.
    void treeChanged();

    /// Whether nothing covers its place, such as a panel whose tab is before its own; at first
    /// nothing does.
    void setInFront(bool isInFront);

    /// Whether all items are on their way to the trash. Until that is over nothing is taken out
    /// here: it might be gone already.
    void setMoving(bool isMoving);

signals:
    /// What the head is about is to go into the basket, or out of it.
    void toggleRequested();
    void showRequested(tessera::File* item);
    /// All that is in the basket is to move to the trash; `freed` is what the disk has just said of
    /// that.
    void moveAllRequested(const tessera::FreedSpace& freed);
    /// A box was dropped onto the panel: the path of its item in the tree, as bytes.
    void dropped(const std::string& pathInTree);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    /// Hands the keyboard on to the list.
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    void makeScroll(QWidget* content);
    void makeHead(QVBoxLayout& layout);
    void makeList(QVBoxLayout& layout);
    void makeFoot(QVBoxLayout& layout);
    void connectParts();
    QPushButton* makeButton(const char* objectName);

    bool isInSight() const;
    void refreshSoon();
    void refresh();
    void rest();
    void basketChanged();
    void showSubject();
    void showBasket();
    void showTotal();
    void showButtons();
    QString whyNoToggle() const;
    QString whyNoMove() const;
    void disable(QPushButton& button, const QString& reason);

    void startMoveAll();
    void heardOfAll(const FreedSpace& freed);
    void remove(const std::vector<File*>& items);
    void setDragOver(bool isDragOver);

    BasketKeeper& m_keeper;
    BasketModel m_model;
    const File* m_subject = nullptr;
    bool m_isSubjectStale = true; ///< the head is about another one, or of another size
    bool m_isInFront = true;
    bool m_isMoving = false;
    bool m_isMoveWanted = false; ///< and waits for what the disk says
    bool m_isDragOver = false;
    QTimer m_later{this}; ///< runs while changes are collected
    QScrollArea* m_scroll;
    QWidget* m_head;
    NameLabel* m_name;
    QLabel* m_size;
    WillFreeView* m_subjectFreed;
    QPushButton* m_toggle;
    BasketList* m_list;
    QLabel* m_total;
    QPushButton* m_empty;
    WillFreeView* m_allFreed;
    QPushButton* m_moveAll;
};

} // namespace tessera
