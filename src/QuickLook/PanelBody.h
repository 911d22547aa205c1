// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

class QLabel;
class QPainter;

namespace tessera {

class PreviewView;

/// What the preview panel is made of: a header with a button and the item's name, the preview, and
/// a caption below it where there is one. It draws no ground of its own.
class PanelBody final : public QWidget {
    Q_OBJECT

public:
    explicit PanelBody(QWidget* parent);

    PreviewView& view() const { return *m_view; }

    /// Both are shortened where they do not fit; an empty caption takes no room.
    void setTexts(const QString& title, const QString& caption);

    /// The size in points that all of it wants, if it may have no more than `most`.
    QSize preferredSize(const QSize& most) const;

    /// What of `most` can be the preview's.
    static QSize mostContentSize(const QSize& most);

    /// The rounded ground that the body stands on.
    static void paintGround(QPainter& painter, const QRectF& place, const QPalette& palette);

    /// The body on its ground, as it will look at that size, in that many pixels a point.
    QPixmap picture(const QSize& size, double scale);

    /// The part of `place` that the ground covers, in whole points.
    static QRegion groundRegion(const QRect& place);

signals:
    void closeRequested();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* makeHeader();
    void fitTexts();

    QString m_titleText;
    QString m_captionText;
    QLabel* m_title = nullptr;
    QLabel* m_caption;
    PreviewView* m_view;
};

} // namespace tessera
