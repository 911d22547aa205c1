// SPDX-License-Identifier: MIT
#pragma once

#include "Model/File.h"

#include <QString>
#include <QTimer>
#include <QTreeView>

#include <string>
#include <vector>

namespace tessera {

class BasketModel;

/// The rows of the basket. Has the model work out the figures of the rows that are in sight, one at
/// each turn of the event loop. What is selected stays so when the model is brought up to date.
/// Main thread only.
class BasketList final : public QTreeView {
    Q_OBJECT

public:
    /// The model must outlive it.
    explicit BasketList(BasketModel& model, QWidget* parent = nullptr);
    ~BasketList() override;

    /// Whether figures are worked out; at first none are.
    void setAtWork(bool isAtWork);
    /// Why no rows may be taken out; empty, as at first, when they may.
    void setObstacle(const QString& obstacle) { m_obstacle = obstacle; }

    /// What is said while there are no rows.
    void setPlaceholder(const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void showRequested(tessera::File* item);
    /// Each is in the basket.
    void removeRequested(const std::vector<tessera::File*>& items);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    /// By their paths: nodes may be gone.
    struct Kept {
        std::vector<std::string> selected;
        std::string current;
        int currentRow = -1;
    };

    void keep();
    void restore();
    void workOutNext();
    void showCurrent();
    void removeSelected();

    BasketModel& m_model;
    QString m_placeholder;
    Kept m_kept;
    QTimer m_work;
    bool m_isAtWork = false;
    QString m_obstacle;
};

} // namespace tessera
