// SPDX-License-Identifier: MIT
#include "LedgerPanel/LedgerRow.h"

#include "Base/DisplayText.h"
#include "LedgerPanel/LedgerBar.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionFocusRect>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace tessera {

namespace {

constexpr int kRowMargin = 6;
constexpr int kRowSpacing = 3;
constexpr int kSwatchSize = 10;
constexpr int kMostLines = 7; ///< of a list that are seen at once
/// Points of a column beside that of the paths, at first: two of them leave it room in the least
/// width.
constexpr int kMostColumnWidth = 72;

QLabel* makeText(QWidget* parent)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the parent owns it
    auto* const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QPixmap swatch(const QColor& color, double scale)
{
    QPixmap pixmap(QSize(kSwatchSize, kSwatchSize) * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(ledgerOutline());
    QPainter(&pixmap).fillRect(1, 1, kSwatchSize - 2, kSwatchSize - 2, color);
    return pixmap;
}

} // namespace

// NOLINTBEGIN(cppcoreguidelines-owning-memory): the row owns them
LedgerRow::LedgerRow(QWidget* parent)
    : QFrame(parent)
    , m_layout(new QVBoxLayout(this))
    , m_swatch(new QLabel(this))
    , m_name(makeText(this))
    , m_number(makeText(this))
    , m_explanation(makeText(this))
    , m_listButton(new QPushButton(this))
    , m_listView(new QTreeView(this))
    , m_more(makeText(this))
{
    setFocusPolicy(Qt::StrongFocus);
    m_layout->setContentsMargins(kRowMargin, kRowMargin, kRowMargin, kRowMargin);
    m_layout->setSpacing(kRowSpacing);
    makeHead();
    m_layout->addWidget(m_explanation);
    m_explanation->setForegroundRole(QPalette::PlaceholderText);
    makeListView();
    setList({}, nullptr);
}

void LedgerRow::makeHead()
{
    auto* const head = new QHBoxLayout;
    QFont bold = m_name->font();
    bold.setBold(true);
    m_name->setFont(bold);
    m_number->setWordWrap(false);
    m_number->setAlignment(Qt::AlignRight | Qt::AlignTop);
    m_swatch->setAlignment(Qt::AlignTop);
    m_swatch->setMargin(2);
    head->addWidget(m_swatch);
    head->addWidget(m_name, 1);
    head->addWidget(m_number);
    m_layout->addLayout(head);
}

void LedgerRow::makeListView()
{
    m_listButton->setCheckable(true);
    connect(m_listButton, &QPushButton::toggled, this, &LedgerRow::showList);
    m_listView->setModel(&m_model);
    m_listView->setRootIsDecorated(false);
    m_listView->setUniformRowHeights(true);
    m_listView->setTextElideMode(Qt::ElideMiddle);
    m_listView->header()->setStretchLastSection(false);
    connect(&m_model, &QAbstractItemModel::modelReset, this, &LedgerRow::sizeColumns);
    // Tab leaves a list and does not walk through thousands of lines.
    m_listView->setTabKeyNavigation(false);
    m_layout->addWidget(m_listButton, 0, Qt::AlignLeft);
    m_layout->addWidget(m_listView);
    m_layout->addWidget(m_more);
    showList(false);
}
// NOLINTEND(cppcoreguidelines-owning-memory)

void LedgerRow::setTexts(const LedgerRowTexts& texts)
{
    m_name->setText(texts.name);
    m_number->setText(texts.number);
    m_number->setToolTip(plainTooltip(texts.exactNumber));
    m_explanation->setText(texts.explanation);
    m_swatch->setVisible(texts.color.isValid());
    if (texts.color.isValid()) {
        m_swatch->setPixmap(swatch(texts.color, devicePixelRatioF()));
    }
    const QString& number = texts.exactNumber.isEmpty() ? texts.number : texts.exactNumber;
    setAccessibleName(tr("%1: %2").arg(texts.name, number));
    setAccessibleDescription(texts.explanation);
    m_number->setAccessibleName(number);
    m_listView->setAccessibleName(texts.name);
}

void LedgerRow::setList(const QString& buttonText, MakeList makeList)
{
    m_makeList = std::move(makeList);
    m_listButton->setText(buttonText);
    m_listButton->setVisible(!buttonText.isEmpty());
    if (buttonText.isEmpty()) {
        m_listButton->setChecked(false);
    }
    showList(m_listButton->isChecked());
}

bool LedgerRow::isListOpen() const
{
    return m_listButton->isChecked();
}

void LedgerRow::showList(bool shown)
{
    LedgerList list = shown && m_makeList != nullptr ? m_makeList() : LedgerList{};
    m_more->setText(list.more);
    m_more->setVisible(!list.more.isEmpty());
    // With the headings, and a scroll bar below.
    const int lines = std::min(static_cast<int>(list.rows.size()), kMostLines) + 2;
    m_listView->setFixedHeight(lines * (fontMetrics().height() + kRowSpacing));
    m_listView->setVisible(shown);
    m_model.setList(std::move(list));
}

/// The paths get what the others leave, which take what they need, up to a limit.
void LedgerRow::sizeColumns()
{
    QHeaderView& header = *m_listView->header();
    for (int column = 0; column < m_model.columnCount(); ++column) {
        const bool isWidest = column == m_model.list().widest;
        header.setSectionResizeMode(
            column, isWidest ? QHeaderView::Stretch : QHeaderView::Interactive);
        if (!isWidest) {
            m_listView->resizeColumnToContents(column);
            header.resizeSection(column, std::min(header.sectionSize(column), kMostColumnWidth));
        }
    }
}

void LedgerRow::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        QPainter painter(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

} // namespace tessera
