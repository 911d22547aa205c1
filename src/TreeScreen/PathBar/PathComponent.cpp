// SPDX-License-Identifier: MIT
#include "TreeScreen/PathBar/PathComponent.h"

#include "Base/DisplayText.h"
#include "Language/SizeText.h"
#include "Model/Folder.h"
#include "Widgets/ColorHelper.h"
#include "Widgets/IconProvider.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace tessera {

namespace {

constexpr int kFontPixels = 11;
constexpr int kImagePoints = 16;
constexpr double kImageTop = 1.0;

constexpr double kChevronLeft = 15.0; // from the frame's right side, as the next two
constexpr double kChevronTip = 7.0;
constexpr double kChevronHollow = 8.0;
constexpr double kChevronTop = 1.0;

constexpr double kTextLeft = 19.0;
constexpr double kTextTop = 4.0;
constexpr double kTextMargins = 32.0;
constexpr double kMinTextWidth = 4.0;
constexpr double kTitleShadowDrop = 1.0;

constexpr double kLeastHeight = 18.0;

constexpr std::uint32_t kTextHex = 0x000000;
constexpr std::uint32_t kShadowOnLightRgba = 0xFFFFFF7F;
constexpr std::uint32_t kShadowOnDarkRgba = 0x0000007F;
constexpr std::uint32_t kDarkGrayHex = 0x555555;
constexpr std::uint32_t kLightGrayHex = 0xAAAAAA;

void drawChevron(const Rect& frame, QPainter& painter, const QColor& color)
{
    const double right = frame.right();
    const double top = frame.y + kChevronTop;
    const double middle = top + frame.height / 2;
    QPainterPath chevron(QPointF(right - kChevronLeft, top));
    chevron.lineTo(right - kChevronTip, middle);
    chevron.lineTo(right - kChevronLeft, top + frame.height);
    chevron.lineTo(right - kChevronHollow, middle);
    chevron.closeSubpath();
    painter.fillPath(chevron, color);
}

} // namespace

PathComponent::PathComponent(IconProvider& icons)
    : m_icons(&icons)
    , m_font(QFontDatabase::systemFont(QFontDatabase::GeneralFont))
{
    m_font.setPixelSize(kFontPixels);
}

void PathComponent::setFile(const Url& file)
{
    m_url = file;
    m_image = m_icons->iconForUrl(file, kImagePoints, qGuiApp->devicePixelRatio());
    m_title = displayText(file.lastPathComponent());
}

void PathComponent::setFolder(const Folder& folder)
{
    m_url = folder.url();
    m_image = m_icons->icon(folder, kImagePoints, qGuiApp->devicePixelRatio());
    m_title = displayText(m_url.lastPathComponent());
    if (m_tag == kCurrentFolderTag) {
        m_title = QStringLiteral("%1 (%2)").arg(m_title, sizeText(folder.totalAllocation()));
    }
}

TextAttributes PathComponent::foreground(const QPalette& palette) const
{
    return textAttributes(
        isDark(palette) ? palette.color(QPalette::WindowText) : colorWithHex(kTextHex));
}

TextAttributes PathComponent::background(const QPalette& palette) const
{
    return textAttributes(colorWithRgba(isDark(palette) ? kShadowOnDarkRgba : kShadowOnLightRgba));
}

TextAttributes PathComponent::textAttributes(const QColor& color) const
{
    return {m_font, Qt::ElideRight, Qt::AlignLeft, color};
}

QSizeF PathComponent::naturalSize() const
{
    const QFontMetricsF metrics(m_font);
    const double textHeight = kTextTop + std::ceil(metrics.height());
    return {
        kTextMargins + std::ceil(metrics.horizontalAdvance(m_title)),
        std::max(kLeastHeight, textHeight)};
}

void PathComponent::draw(const Rect& frame, QPainter& painter, const QPalette& palette) const
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.drawPixmap(
        QRectF(frame.x, frame.y + kImageTop, kImagePoints, kImagePoints),
        m_image,
        QRectF(m_image.rect()));
    if (m_tag != kCurrentFolderTag) {
        drawChevron(frame, painter, colorWithHex(isDark(palette) ? kLightGrayHex : kDarkGrayHex));
    }
    const Rect text{
        frame.x + kTextLeft, frame.y + kTextTop, frame.width - kTextMargins, frame.height};
    if (text.width > kMinTextWidth) {
        drawTitle(text, painter, background(palette));
        drawTitle(text.translated(0, -kTitleShadowDrop), painter, foreground(palette));
    }
}

void PathComponent::drawTitle(
    const Rect& text, QPainter& painter, const TextAttributes& attributes) const
{
    const QFontMetricsF metrics(attributes.font);
    painter.setFont(attributes.font);
    painter.setPen(attributes.foreground);
    painter.drawText(
        QPointF(text.x, text.y + metrics.ascent()),
        metrics.elidedText(m_title, attributes.elideMode, text.width));
}

std::vector<PathComponent> pathComponents(const Folder& currentFolder, IconProvider& icons)
{
    std::vector<PathComponent> components;
    for (const Folder* folder = &currentFolder; folder != nullptr; folder = folder->parent()) {
        PathComponent& component = components.emplace_back(icons);
        component.setTag(folder == &currentFolder ? PathComponent::kCurrentFolderTag : 0);
        component.setFolder(*folder);
    }
    std::reverse(components.begin(), components.end());
    return components;
}

} // namespace tessera
