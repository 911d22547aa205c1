// SPDX-License-Identifier: MIT
#include "QuickLook/PreviewView.h"

#include "QuickLook/ImageView.h"
#include "QuickLook/Summary.h"
#include "QuickLook/SummaryView.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextOption>
#include <QVBoxLayout>

#include <variant>

namespace tessera {

namespace {

constexpr QSize kTextSize{720, 520};
constexpr QSize kSummarySize{460, 220};
constexpr QSize kLeastPictureSize{360, 200};
constexpr int kPagesHeight = 900;
constexpr int kPageGap = 12;
constexpr int kTextMargin = 10;
constexpr int kContentTextPixels = 12;

// NOLINTBEGIN(cppcoreguidelines-owning-memory): their parents own them
QPlainTextEdit* makeTextView(QWidget* parent)
{
    auto* const view = new QPlainTextEdit(parent);
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(kContentTextPixels);
    view->setFont(font);
    view->setReadOnly(true);
    view->setUndoRedoEnabled(false);
    view->setTextInteractionFlags(Qt::TextSelectableByMouse);
    view->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    view->setFocusPolicy(Qt::NoFocus);
    view->setFrameShape(QFrame::NoFrame);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->document()->setDocumentMargin(kTextMargin);
    return view;
}

QScrollArea* makePagesView(QWidget* parent)
{
    auto* const view = new QScrollArea(parent);
    view->setWidgetResizable(true);
    view->setFocusPolicy(Qt::NoFocus);
    view->setFrameShape(QFrame::NoFrame);
    view->setBackgroundRole(QPalette::Mid);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return view;
}

QLabel* makeNothingView(QWidget* parent)
{
    auto* const view = new QLabel(PreviewView::tr("Nothing is selected"), parent);
    view->setObjectName(QStringLiteral("nothing"));
    view->setAlignment(Qt::AlignCenter);
    view->setForegroundRole(QPalette::PlaceholderText);
    return view;
}

} // namespace

PreviewView::PreviewView(QWidget* parent)
    : QStackedWidget(parent)
    , m_nothing(makeNothingView(this))
    , m_summary(new SummaryView(this))
    , m_picture(new ImageView(this))
    , m_text(makeTextView(this))
    , m_pages(makePagesView(this))
{
    addWidget(m_nothing);
    addWidget(m_summary);
    addWidget(m_picture);
    addWidget(m_text);
    addWidget(m_pages);
    clearPages();
}

void PreviewView::clearPages()
{
    auto* const column = new QWidget;
    m_pageColumn = new QVBoxLayout(column);
    m_pageColumn->setContentsMargins(kPageGap, kPageGap, kPageGap, kPageGap);
    m_pageColumn->setSpacing(kPageGap);
    m_pages->setWidget(column);
}
// NOLINTEND(cppcoreguidelines-owning-memory)

void PreviewView::showPreview(const ItemFacts& facts, const Preview& preview, const QPixmap& icon)
{
    showNothing();
    if (const auto* picture = std::get_if<PreviewPicture>(&preview.content)) {
        m_picture->setImage(picture->image);
        m_picture->setAccessibleName(tr("Picture %1").arg(facts.name));
        m_picture->setAccessibleDescription(captionOf(facts, preview));
        setCurrentWidget(m_picture);
    } else if (const auto* text = std::get_if<PreviewText>(&preview.content)) {
        showText(text->text, facts.name);
    } else if (const auto* pages = std::get_if<PreviewPages>(&preview.content)) {
        showPages(*pages, facts.name);
    } else {
        m_summary->setSummary(summaryOf(facts, &preview), icon);
        setCurrentWidget(m_summary);
    }
}

void PreviewView::showSummary(const ItemFacts& facts, const QPixmap& icon)
{
    showNothing();
    m_summary->setSummary(summaryOf(facts, nullptr), icon);
    setCurrentWidget(m_summary);
}

void PreviewView::showNothing()
{
    if (currentWidget() == m_text) {
        m_text->clear();
    } else if (currentWidget() == m_pages) {
        clearPages();
    }
    m_picture->setImage({});
    setCurrentWidget(m_nothing);
}

void PreviewView::showText(const QString& text, const QString& name)
{
    m_text->setPlainText(text);
    m_text->setAccessibleName(tr("Text of %1").arg(name));
    setCurrentWidget(m_text);
}

void PreviewView::showPages(const PreviewPages& pages, const QString& name)
{
    clearPages();
    int number = 0;
    for (const QImage& page : pages.pages) {
        ++number;
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the layout's widget owns it
        auto* const view = new ImageView;
        view->setImage(page);
        view->setFixedSize(view->sizeHint());
        view->setAccessibleName(tr("Page %1 of %2").arg(number).arg(name));
        m_pageColumn->addWidget(view, 0, Qt::AlignHCenter);
    }
    m_pageColumn->addStretch();
    setCurrentWidget(m_pages);
}

QSize PreviewView::preferredSize(const QSize& most) const
{
    if (currentWidget() == m_text) {
        return kTextSize.boundedTo(most);
    }
    if (currentWidget() == m_pages) {
        const int width = m_pages->widget()->sizeHint().width()
            + m_pages->verticalScrollBar()->sizeHint().width();
        return QSize(width, kPagesHeight).boundedTo(most);
    }
    if (currentWidget() == m_picture) {
        QSize size = m_picture->sizeHint();
        if (size.width() > most.width() || size.height() > most.height()) {
            size.scale(most, Qt::KeepAspectRatio);
        }
        return size.expandedTo(kLeastPictureSize);
    }
    return kSummarySize.expandedTo(QSize(0, m_summary->sizeHint().height())).boundedTo(most);
}

bool PreviewView::hasContent() const
{
    return currentWidget() != m_nothing && currentWidget() != m_summary;
}

bool PreviewView::handleKey(const QKeyEvent& event)
{
    const auto* const scrolled = qobject_cast<QAbstractScrollArea*>(currentWidget());
    if (scrolled == nullptr) {
        return false;
    }
    if (event.matches(QKeySequence::Copy)) {
        const bool hasSelection = currentWidget() == m_text && m_text->textCursor().hasSelection();
        if (hasSelection) {
            m_text->copy();
        }
        return hasSelection;
    }
    const int pages
        = (event.key() == Qt::Key_PageDown ? 1 : 0) - (event.key() == Qt::Key_PageUp ? 1 : 0);
    if (pages == 0) {
        return false;
    }
    QScrollBar* const bar = scrolled->verticalScrollBar();
    bar->triggerAction(pages > 0 ? QScrollBar::SliderPageStepAdd : QScrollBar::SliderPageStepSub);
    return true;
}

} // namespace tessera
