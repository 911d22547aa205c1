// SPDX-License-Identifier: MIT
#include "TreeView/LabelCache.h"

#include "TreeView/Styles.h"
#include "Utils/DisplayText.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QImage>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>

#include <cmath>

namespace tessera {

namespace {

constexpr std::size_t kMaxLabels = 20000;
constexpr char16_t kEllipsis = 0x2026;

/// What tells the fonts of one size apart; their objects are not kept.
std::string fontKey(const QRawFont& font)
{
    const QString name = font.familyName() + QLatin1Char('/') + font.styleName();
    return name.toStdString() + '/' + std::to_string(font.weight());
}

/// `image` is transparent but for the glyph; `origin` is the pen's place on the baseline.
GlyphMask cropped(const QImage& image, QPoint origin)
{
    PixelRect ink{image.width(), image.height(), 0, 0};
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 0) {
                ink
                    = {std::min(ink.left, x),
                       std::min(ink.top, y),
                       std::max(ink.right, x + 1),
                       std::max(ink.bottom, y + 1)};
            }
        }
    }
    if (ink.isEmpty()) {
        return {};
    }
    GlyphMask mask{ink.left - origin.x(), ink.top - origin.y(), ink.width(), ink.height(), {}};
    for (int y = ink.top; y < ink.bottom; ++y) {
        for (int x = ink.left; x < ink.right; ++x) {
            mask.coverage.push_back(static_cast<std::uint8_t>(qAlpha(image.pixel(x, y))));
        }
    }
    return mask;
}

/// The places between what a reader takes for single characters.
std::vector<int> cutPlaces(const QTextLayout& layout, const QTextLine& line)
{
    std::vector<int> places;
    int position = 0;
    const int end = static_cast<int>(layout.text().size());
    while (position < end) {
        position = std::max(layout.nextCursorPosition(position), position + 1);
        places.push_back(static_cast<int>(std::ceil(line.cursorToX(position))));
    }
    return places;
}

} // namespace

void LabelCache::setFontSize(int pixelSize)
{
    if (pixelSize == m_pixelSize && m_labels.size() < kMaxLabels) {
        return;
    }
    m_labels.clear();
    m_glyphs.clear();
    m_pixelSize = pixelSize;
    m_ascent = static_cast<int>(std::lround(QFontMetricsF(font()).ascent()));
    m_ellipsis = shape(QString(QChar(kEllipsis)));
}

void LabelCache::prepare(std::string_view name, int width)
{
    auto found = m_labels.find(name);
    if (found == m_labels.end()) {
        found = m_labels.emplace(name, shape(displayText(name))).first;
    }
    const ShapedLabel& whole = found->second;
    if (!whole.runsLeftward || whole.width() <= width) {
        return;
    }
    std::string key = elidedKey(name, width);
    if (!m_labels.contains(key)) {
        const QFontMetricsF metrics(font());
        const QString text = metrics.elidedText(displayText(name), Qt::ElideRight, width);
        m_labels.emplace(std::move(key), shape(text));
    }
}

const ShapedLabel* LabelCache::find(std::string_view name, int width) const
{
    auto found = m_labels.find(name);
    if (found == m_labels.end()) {
        return nullptr;
    }
    if (found->second.runsLeftward && found->second.width() > width) {
        found = m_labels.find(elidedKey(name, width));
    }
    return found != m_labels.end() ? &found->second : nullptr;
}

std::string LabelCache::elidedKey(std::string_view name, int width)
{
    // No name of a file holds a zero byte.
    return std::string(name) + '\0' + std::to_string(width);
}

QFont LabelCache::font() const
{
    QFont font = Styles::textAttributes().font;
    font.setPixelSize(m_pixelSize);
    // Whole pixels for every stem and every step of the pen: small text stays crisp, and a glyph
    // looks the same wherever it stands.
    font.setHintingPreference(QFont::PreferFullHinting);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

ShapedLabel LabelCache::shape(const QString& text)
{
    QTextLayout layout(text, font());
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(Qt::LeftToRight);
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    ShapedLabel label;
    if (!line.isValid()) {
        return label;
    }
    for (const QGlyphRun& run : layout.glyphRuns()) {
        addGlyphs(run, line.ascent(), label);
        label.runsLeftward = label.runsLeftward || run.isRightToLeft();
    }
    label.ends = label.runsLeftward
        ? std::vector<int>{static_cast<int>(std::ceil(line.naturalTextWidth()))}
        : cutPlaces(layout, line);
    return label;
}

void LabelCache::addGlyphs(const QGlyphRun& run, double ascent, ShapedLabel& label)
{
    const QList<quint32> glyphs = run.glyphIndexes();
    const QList<QPointF> positions = run.positions();
    for (qsizetype i = 0; i < glyphs.size(); ++i) {
        const GlyphMask& mask = glyphMask(run, glyphs[i]);
        if (!mask.coverage.empty()) {
            label.glyphs.push_back(
                {&mask,
                 static_cast<int>(std::lround(positions[i].x())),
                 static_cast<int>(std::lround(positions[i].y() - ascent))});
        }
    }
}

const GlyphMask& LabelCache::glyphMask(const QGlyphRun& run, std::uint32_t glyph)
{
    const QRawFont rawFont = run.rawFont();
    const auto [place, isNew] = m_glyphs.try_emplace({fontKey(rawFont), glyph});
    if (isNew) {
        // Ink may reach beyond the font's own box in every direction.
        const QRect box = rawFont.boundingRect(glyph).toAlignedRect().adjusted(-2, -2, 2, 2);
        QImage image(box.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QGlyphRun single;
        single.setRawFont(rawFont);
        single.setGlyphIndexes({glyph});
        single.setPositions({QPointF(0, 0)});
        QPainter painter(&image);
        painter.drawGlyphRun(-box.topLeft(), single);
        painter.end();
        place->second = cropped(image, -box.topLeft());
    }
    return place->second;
}

} // namespace tessera
