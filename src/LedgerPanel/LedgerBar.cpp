// SPDX-License-Identifier: MIT
#include "LedgerPanel/LedgerBar.h"

#include "TreeScreen/Picture/BranchPalette.h"
#include "Widgets/ColorHelper.h"
#include "Widgets/RoundedRect.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace tessera {

namespace {

constexpr int kBarHeight = 14;
constexpr double kBarRadius = 3;
constexpr std::uint8_t kFilesSlot = 1;
constexpr std::uint8_t kFoldersSlot = 3;
constexpr std::uint8_t kHeldOpenSlot = 5;
constexpr std::uint8_t kReservedSlot = 4;
constexpr std::uint32_t kRestHex = 0x999999; ///< that of Restricted Files
constexpr std::uint32_t kOutlineHex = 0x858C85;

double shareOf(const LedgerLine& line)
{
    return static_cast<double>(std::max<std::int64_t>(line.bytes, 0));
}

} // namespace

QColor ledgerColor(LedgerLine::Kind kind)
{
    using Kind = LedgerLine::Kind;
    switch (kind) {
    case Kind::Files:
        return branchPaletteColor(kFilesSlot);
    case Kind::Folders:
        return branchPaletteColor(kFoldersSlot);
    case Kind::HeldOpen:
        return branchPaletteColor(kHeldOpenSlot);
    case Kind::Reserved:
        return branchPaletteColor(kReservedSlot);
    case Kind::Rest:
        return colorWithHex(kRestHex);
    case Kind::Available:
        return Qt::black;
    case Kind::UnreadableFolders:
    case Kind::CoveredFolders:
    case Kind::FoldersLeftOut:
        break;
    }
    return {};
}

QColor ledgerOutline()
{
    return colorWithHex(kOutlineHex);
}

LedgerBar::LedgerBar(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Shares of the disk"));
}

void LedgerBar::setLines(std::vector<LedgerLine> lines)
{
    m_lines = std::move(lines);
    update();
}

QSize LedgerBar::sizeHint() const
{
    return {kBarHeight, kBarHeight};
}

void LedgerBar::paintEvent(QPaintEvent* /*event*/)
{
    double sum = 0;
    for (const LedgerLine& line : m_lines) {
        sum += shareOf(line);
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath outline;
    addRoundedRectToPath(outline, {0.5, 0.5, width() - 1.0, height() - 1.0}, kBarRadius);
    painter.setClipPath(outline);
    double left = 0;
    for (const LedgerLine& line : m_lines) {
        const double share = sum > 0 ? width() * shareOf(line) / sum : 0;
        // To the end: the next one covers what is too much, and nothing shows between two.
        if (share > 0) {
            painter.fillRect(QRectF(left, 0, width() - left, height()), ledgerColor(line.kind));
        }
        left += share;
    }
    painter.setClipping(false);
    painter.setPen(ledgerOutline());
    painter.drawPath(outline);
}

} // namespace tessera
