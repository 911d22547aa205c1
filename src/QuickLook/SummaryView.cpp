// SPDX-License-Identifier: MIT
#include "QuickLook/SummaryView.h"

#include "QuickLook/Summary.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace tessera {

namespace {

constexpr int kMargin = 24;
constexpr int kIconGap = 24;
constexpr int kTitleGap = 12;
constexpr int kRowGap = 3;
constexpr int kNamePixels = 16;
constexpr int kTextPixels = 12;
constexpr int kValueWidth = 190;
constexpr int kNameWidth = 292;
constexpr int kNameLines = 3;

QFont fontOf(const QWidget& widget, int pixels, QFont::Weight weight)
{
    QFont font = widget.font();
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

/// How much of the text stands on a line; a word goes to the next one unless that leaves most of
/// the line empty.
qsizetype lineLength(const QString& text, const QFontMetrics& metrics)
{
    qsizetype count = text.size();
    while (count > 1 && metrics.horizontalAdvance(text, static_cast<int>(count)) > kNameWidth) {
        --count;
    }
    if (count == text.size()) {
        return count;
    }
    const qsizetype blank = text.lastIndexOf(u' ', count - 1);
    return blank > count / 2 ? blank + 1 : count;
}

/// File names have few places to break a line at, and some have no end: any letter may end a
/// line, and what does not fit into the lines is left out of the middle.
QString brokenName(const QString& name, const QFontMetrics& metrics)
{
    QString rest = metrics.elidedText(name, Qt::ElideMiddle, kNameWidth * kNameLines);
    QString broken;
    while (!rest.isEmpty()) {
        const qsizetype count = lineLength(rest, metrics);
        broken += (broken.isEmpty() ? QString() : QStringLiteral("\n")) + rest.left(count);
        rest.remove(0, count);
    }
    return broken;
}

} // namespace

// NOLINTBEGIN(cppcoreguidelines-owning-memory): their parents own them
SummaryView::SummaryView(QWidget* parent)
    : QWidget(parent)
    , m_icon(addLabel(QStringLiteral("summaryIcon")))
    , m_name(addLabel(QStringLiteral("summaryName")))
    , m_note(addLabel(QStringLiteral("summaryNote")))
    , m_rows(new QGridLayout)
{
    m_name->setFont(fontOf(*this, kNamePixels, QFont::DemiBold));
    m_note->setFont(fontOf(*this, kTextPixels, QFont::Normal));
    m_note->setForegroundRole(QPalette::PlaceholderText);
    m_note->setWordWrap(true);
    m_rows->setHorizontalSpacing(kTitleGap);
    m_rows->setVerticalSpacing(kRowGap);
    m_rows->setColumnStretch(1, 1);

    auto* const texts = new QVBoxLayout;
    texts->setSpacing(kTitleGap);
    texts->addStretch();
    texts->addWidget(m_name);
    texts->addLayout(m_rows);
    texts->addWidget(m_note);
    texts->addStretch();
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(kMargin, 0, kMargin, 0);
    layout->setSpacing(kIconGap);
    layout->addWidget(m_icon, 0, Qt::AlignVCenter);
    layout->addLayout(texts, 1);
    m_icon->setFixedSize(kIconPoints, kIconPoints);
    m_icon->setAlignment(Qt::AlignCenter);
}

QLabel* SummaryView::addLabel(const QString& name)
{
    auto* const label = new QLabel(this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}
// NOLINTEND(cppcoreguidelines-owning-memory)

void SummaryView::setSummary(const Summary& summary, const QPixmap& icon)
{
    m_icon->setPixmap(icon);
    m_icon->setVisible(!icon.isNull());
    m_name->setText(brokenName(summary.name, QFontMetrics(m_name->font())));
    m_name->setAccessibleName(summary.name);
    m_note->setText(summary.note);
    m_note->setVisible(!summary.note.isEmpty());
    setRows(summary);
}

void SummaryView::setRows(const Summary& summary)
{
    while (QLayoutItem* const item = m_rows->takeAt(0)) {
        // A label that is merely going to be deleted would still be painted once.
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item; // NOLINT(cppcoreguidelines-owning-memory): the layout has given it away
    }
    int line = 0;
    for (const Summary::Row& row : summary.rows) {
        QLabel* const title = addLabel(QStringLiteral("summaryTitle"));
        QLabel* const value = addLabel(QStringLiteral("summaryValue"));
        title->setFont(fontOf(*this, kTextPixels, QFont::Normal));
        title->setForegroundRole(QPalette::PlaceholderText);
        title->setText(row.title);
        value->setFont(fontOf(*this, kTextPixels, QFont::Normal));
        value->setText(value->fontMetrics().elidedText(row.value, Qt::ElideMiddle, kValueWidth));
        value->setAccessibleName(row.title + QStringLiteral(": ") + row.value);
        m_rows->addWidget(title, line, 0, Qt::AlignLeft);
        m_rows->addWidget(value, line, 1, Qt::AlignLeft);
        // A layout shows new widgets only after the next turn of the loop; a picture may be
        // taken before that.
        title->show();
        value->show();
        ++line;
    }
}

} // namespace tessera
