// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QStackedWidget>
#include <QString>

class QKeyEvent;
class QLabel;
class QPlainTextEdit;
class QScrollArea;
class QVBoxLayout;

namespace tessera {

class ImageView;
class SummaryView;
struct ItemFacts;
struct Preview;
struct PreviewPages;

/// The content of the preview panel: a picture, pages, a text or a summary. It never takes the
/// keyboard's focus; handleKey() is for whoever has it.
class PreviewView final : public QStackedWidget {
    Q_OBJECT

public:
    explicit PreviewView(QWidget* parent = nullptr);

    /// The item's content or, where there is none to show, its summary.
    void showPreview(const ItemFacts& facts, const Preview& preview, const QPixmap& icon);

    /// What is known without a look at the file.
    void showSummary(const ItemFacts& facts, const QPixmap& icon);

    /// That there is no item, and nothing of the last one kept.
    void showNothing();

    /// The size in points that the content wants, if it may have no more than `most`.
    QSize preferredSize(const QSize& most) const;

    /// Whether the content fills the view from edge to edge.
    bool hasContent() const;

    /// Scrolls by a page or copies what is selected; false when the key means neither, or there
    /// is nothing to scroll or to copy.
    bool handleKey(const QKeyEvent& event);

private:
    void showText(const QString& text, const QString& name);
    void showPages(const PreviewPages& pages, const QString& name);
    void clearPages();

    QLabel* m_nothing;
    SummaryView* m_summary;
    ImageView* m_picture;
    QPlainTextEdit* m_text;
    QScrollArea* m_pages;
    QVBoxLayout* m_pageColumn = nullptr;
};

} // namespace tessera
