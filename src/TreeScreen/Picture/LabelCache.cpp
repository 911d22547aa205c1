// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/LabelCache.h"

#include "Base/DisplayText.h"
#include "TreeScreen/Picture/Styles.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QImage>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace tessera {

namespace {

constexpr std::size_t kMaxLabels = 20000;
constexpr char16_t kEllipsis = 0x2026;

/// No text is of this colour, so only glyphs that take the pen's come out in it.
constexpr QRgb kPen = 0xFFFF00FF;

/// Where no font has a script, Qt has a stand-in draw one and the same box for every character.
bool isStandIn(const QRawFont& font)
{
    const QList<quint32> glyphs = font.glyphIndexesForString(QStringLiteral("a "));
    return glyphs.size() == 2 && glyphs.front() != 0 && glyphs.front() == glyphs.back();
}

/// What tells the fonts of one size apart; their objects are not kept. Empty for the stand-in,
/// which crashes when it is asked for its name.
std::string fontKey(const QRawFont& font)
{
    if (isStandIn(font)) {
        return {};
    }
    const QString name = font.familyName() + QLatin1Char('/') + font.styleName();
    return name.toStdString() + '/' + std::to_string(font.weight());
}

/// The pixels of an otherwise transparent image that hold something.
PixelRect inkOf(const QImage& image)
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
    return ink;
}

/// Whether the premultiplied pixel is a thinner kPen and nothing else.
bool isOfPen(QRgb pixel)
{
    return qRed(pixel) == qAlpha(pixel) && qGreen(pixel) == 0 && qBlue(pixel) == qAlpha(pixel);
}

/// `image` is transparent but for the glyph; `origin` is the pen's place on the baseline.
GlyphMask cropped(const QImage& image, QPoint origin)
{
    const PixelRect ink = inkOf(image);
    if (ink.isEmpty()) {
        return {};
    }
    GlyphMask mask{ink.left - origin.x(), ink.top - origin.y(), ink.width(), ink.height(), {}, {}};
    const auto* const pixels = reinterpret_cast<const QRgb*>(image.constBits());
    for (int y = ink.top; y < ink.bottom; ++y) {
        const QRgb* const row = pixels + static_cast<std::ptrdiff_t>(y) * image.width();
        mask.colors.insert(mask.colors.end(), row + ink.left, row + ink.right);
    }
    std::transform(
        mask.colors.begin(), mask.colors.end(), std::back_inserter(mask.coverage), [](QRgb pixel) {
            return static_cast<std::uint8_t>(qAlpha(pixel));
        });
    if (std::all_of(mask.colors.begin(), mask.colors.end(), isOfPen)) {
        mask.colors = {};
    }
    return mask;
}

/// The box that stands for a character that no font has, a little narrower than its place.
GlyphMask boxGlyph(int pixelSize)
{
    constexpr int kStrokesPerSize = 10;
    constexpr int kStrokesBeside = 3;
    const int stroke = std::max(pixelSize / kStrokesPerSize, 1);
    const int extent = std::max(pixelSize - kStrokesBeside * stroke, 2 * stroke);
    QImage image(extent, extent, QImage::Format_ARGB32_Premultiplied);
    image.fill(kPen);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillRect(image.rect().adjusted(stroke, stroke, -stroke, -stroke), Qt::transparent);
    painter.end();
    return cropped(image, QPoint(-stroke, extent));
}

GlyphMask glyphOf(const QRawFont& font, std::uint32_t glyph)
{
    // Ink may reach beyond the font's own box in every direction.
    const QRect box = font.boundingRect(glyph).toAlignedRect().adjusted(-2, -2, 2, 2);
    QImage image(box.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QGlyphRun single;
    single.setRawFont(font);
    single.setGlyphIndexes({glyph});
    single.setPositions({QPointF(0, 0)});
    QPainter painter(&image);
    painter.setPen(QColor(kPen));
    painter.drawGlyphRun(-box.topLeft(), single);
    painter.end();
    return cropped(image, -box.topLeft());
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
    const QFontMetricsF metrics(font());
    m_ascent = static_cast<int>(std::ceil(metrics.ascent()));
    m_descent = static_cast<int>(std::ceil(metrics.descent()));
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

int LabelCache::baseline(const ShapedLabel& label, int height) const
{
    const int lowest = std::max(height - m_descent, m_ascent);
    return std::clamp(label.inkAscent, m_ascent, lowest);
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
    // The tail of a name that begins in a right-to-left script is at its left.
    option.setTextDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
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
    const QRawFont font = run.rawFont();
    const std::string key = fontKey(font);
    const QList<quint32> glyphs = run.glyphIndexes();
    const QList<QPointF> positions = run.positions();
    for (qsizetype i = 0; i < glyphs.size(); ++i) {
        const auto [place, isNew] = m_glyphs.try_emplace({key, glyphs[i]});
        GlyphMask& mask = place->second;
        if (isNew) {
            mask = key.empty() ? boxGlyph(m_pixelSize) : glyphOf(font, glyphs[i]);
        }
        if (mask.coverage.empty()) {
            continue;
        }
        const int offsetY = static_cast<int>(std::lround(positions[i].y() - ascent));
        label.glyphs.push_back({&mask, static_cast<int>(std::lround(positions[i].x())), offsetY});
        label.inkAscent = std::max(label.inkAscent, -(offsetY + mask.top));
    }
}

} // namespace tessera
