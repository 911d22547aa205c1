// SPDX-License-Identifier: MIT
#include "TreeScreen/Tooltip/TooltipField.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <cstddef>

namespace tessera {

namespace {

constexpr double kPitchPerPixel = 1.2;

/// Shaping costs time by the letter, and a path may have a million. No field shows more than this
/// many from either end.
constexpr qsizetype kMaxShapedLength = 512;

QString withoutUnseenMiddle(const QString& text)
{
    if (text.size() <= 2 * kMaxShapedLength) {
        return text;
    }
    return text.first(kMaxShapedLength) + QChar(0x2026) + text.last(kMaxShapedLength);
}

/// The paragraphs; a return at the very end opens no further one.
QStringList paragraphsOf(const QString& text)
{
    if (text.isEmpty()) {
        return {};
    }
    QStringList paragraphs = text.split(QLatin1Char('\r'));
    if (paragraphs.last().isEmpty()) {
        paragraphs.removeLast();
    }
    return paragraphs;
}

/// Breaks one paragraph, after at most `limit` lines no further.
std::vector<QString> brokenLines(
    const QString& paragraph, const QFont& font, double width, int limit)
{
    if (paragraph.isEmpty()) {
        return {QString()};
    }
    QTextLayout layout(paragraph, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    std::vector<QString> lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.push_back(paragraph.mid(line.textStart(), line.textLength()));
        if (static_cast<int>(lines.size()) >= limit) {
            break;
        }
    }
    layout.endLayout();
    return lines;
}

} // namespace

TooltipField::TooltipField(QWidget* parent)
    : QWidget(parent)
{
}

void TooltipField::setTextPixels(int pixels)
{
    QFont changed = font();
    changed.setPixelSize(pixels);
    setFont(changed);
}

void TooltipField::setBold(bool bold)
{
    QFont changed = font();
    changed.setBold(bold);
    setFont(changed);
}

void TooltipField::setDimmed(bool dimmed)
{
    m_dimmed = dimmed;
    update();
}

void TooltipField::setWrapping(bool wrapping)
{
    m_wrapping = wrapping;
    layOut();
}

void TooltipField::setText(const QString& text)
{
    if (text != m_text) {
        m_text = text;
        layOut();
    }
}

double TooltipField::neededHeight() const
{
    return static_cast<double>(m_neededLines) * linePitch();
}

int TooltipField::linePitch() const
{
    return qRound(fontInfo().pixelSize() * kPitchPerPixel);
}

void TooltipField::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(m_dimmed ? QPalette::PlaceholderText : QPalette::WindowText));
    const QFontMetricsF metrics(font(), this);
    // A single line stands in the middle of the field's height, several begin at its top.
    const double pitch = m_wrapping ? linePitch() : height();
    double baseline = (pitch + metrics.ascent() - metrics.descent()) / 2;
    for (const QString& line : m_shownLines) {
        painter.drawText(QPointF(0, qRound(baseline)), line);
        baseline += pitch;
    }
}

void TooltipField::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layOut();
}

void TooltipField::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        layOut();
    }
}

int TooltipField::roomForLines() const
{
    return std::max(1, height() / linePitch());
}

void TooltipField::layOut()
{
    m_shownLines.clear();
    if (m_wrapping) {
        layOutWrapping();
    } else {
        m_neededLines = 1;
        m_shownLines.push_back(
            QFontMetricsF(font(), this)
                .elidedText(withoutUnseenMiddle(m_text), Qt::ElideMiddle, width()));
    }
    update();
}

void TooltipField::layOutWrapping()
{
    const int room = roomForLines();
    const QStringList paragraphs = paragraphsOf(m_text);
    for (const QString& paragraph : paragraphs) {
        const int limit = room + 1 - static_cast<int>(m_shownLines.size());
        if (limit <= 0) {
            break;
        }
        std::ranges::copy(
            brokenLines(withoutUnseenMiddle(paragraph), font(), width(), limit),
            std::back_inserter(m_shownLines));
    }
    m_neededLines = static_cast<int>(m_shownLines.size());
    if (m_neededLines <= room) {
        return;
    }
    if (paragraphs.size() == 1) {
        foldIntoRoom(withoutUnseenMiddle(paragraphs.first()));
        return;
    }
    m_shownLines.clear();
    const QFontMetricsF metrics(font(), this);
    for (const QString& paragraph :
         paragraphs.first(std::min<qsizetype>(room, paragraphs.size()))) {
        m_shownLines.push_back(
            metrics.elidedText(withoutUnseenMiddle(paragraph), Qt::ElideMiddle, width()));
    }
}

void TooltipField::foldIntoRoom(const QString& paragraph)
{
    m_shownLines.resize(static_cast<std::size_t>(roomForLines() - 1));
    qsizetype shown = 0;
    for (const QString& line : m_shownLines) {
        shown += line.size();
    }
    m_shownLines.push_back(
        QFontMetricsF(font(), this).elidedText(paragraph.mid(shown), Qt::ElideLeft, width()));
}

} // namespace tessera
