// SPDX-License-Identifier: MIT
#include "HomeScreen/Recents/RecentsTableCell.h"

#include "Desktop/MountedVolumes.h"
#include "HomeScreen/Parts/SelectionBackground.h"
#include "HomeScreen/Places/PlaceIcons.h"
#include "HomeScreen/Places/PlaceNames.h"
#include "HomeScreen/Recents/RecentsTableModel.h"
#include "HomeScreen/Recents/RelativeDate.h"
#include "Language/SizeText.h"
#include "Model/UserDefaults.h"
#include "Widgets/DesktopFont.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QStyle>

#include <utility>

namespace tessera {

namespace {

constexpr int kSystemFontPixels = 13;
constexpr int kSmallFontPixels = 11;

// At the desktop's usual font, from the upper left corner of the cell.
constexpr int kRowHeight = 48;
constexpr QRect kIconFrame{7, 4, 38, 39};
constexpr QRect kTitleBox{54, 10, 219, 17};
constexpr QRect kSubtitleBox{54, 28, 154, 17};
/// From the right edge of the cell to the left one of the box. It stands beside the subtitle.
constexpr int kSizeFromRight = 70;
constexpr QSize kSizeBox{68, 17};
/// Between the cell and the right edge of the row, so that sizes do not touch the selection's edge.
constexpr int kRightMargin = 8;

/// What is selected where the user is not working has a pale background, on which the texts must
/// stay as dark as the others.
bool isHighlighted(const QStyleOptionViewItem& option)
{
    return option.state.testFlag(QStyle::State_Selected)
        && option.state.testFlag(QStyle::State_Active)
        && option.state.testFlag(QStyle::State_Enabled);
}

QFont systemFont(int pixels)
{
    QFont font = QApplication::font();
    font.setPixelSize(withDesktopFont(pixels));
    return font;
}

QRect textBox(const QRect& usual)
{
    return {
        widthWithDesktopFont(usual.x()),
        withDesktopFont(usual.y()),
        widthWithDesktopFont(usual.width()),
        withDesktopFont(usual.height())};
}

QRect iconFrame()
{
    const QSize size(
        widthWithDesktopFont(kIconFrame.width()), widthWithDesktopFont(kIconFrame.height()));
    const int top = kIconFrame.y() + (withDesktopFont(kRowHeight) - kRowHeight) / 2
        - (size.height() - kIconFrame.height()) / 2;
    return {QPoint(widthWithDesktopFont(kIconFrame.x()), top), size};
}

} // namespace

RecentsTableCell::RecentsTableCell(Services services, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_services(std::move(services))
{
}

QString RecentsTableCell::title(const RecentRecord& record) const
{
    const std::optional<MountedVolume> volume = m_services.volumes.volumeAt(record.path);
    if (volume && record.path != m_services.homeDirectory) {
        return localizedVolumeName(volume->url);
    }
    return pathWithTilde(record.path, m_services.realHomeDirectory);
}

QString RecentsTableCell::subtitle(const RecentRecord& record) const
{
    return tr("Last Scan: %1").arg(relativeDate(record.date, m_services.today(), QLocale()));
}

void RecentsTableCell::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto& model = dynamic_cast<const RecentsTableModel&>(*index.model());
    const RecentRecord& record = model.record(index.row());
    const QRect cell = option.rect.adjusted(0, 0, -kRightMargin, 0);
    painter->save();
    drawBackground(*painter, option);
    drawIcon(*painter, option, m_services.icon(Url(record.path, true)));
    const QRect title = textBox(kTitleBox).translated(cell.topLeft());
    drawText(*painter, title & cell, this->title(record), titleStyle(option));
    const QRect subtitle = textBox(kSubtitleBox).translated(cell.topLeft());
    drawText(*painter, subtitle, this->subtitle(record), subtitleStyle(option));
    const QPoint sizeCorner(
        cell.x() + cell.width() - widthWithDesktopFont(kSizeFromRight), subtitle.y());
    drawText(
        *painter,
        {sizeCorner, QSize(widthWithDesktopFont(kSizeBox.width()), subtitle.height())},
        sizeText(record.size),
        fileSizeStyle(option));
    painter->restore();
}

void RecentsTableCell::drawBackground(QPainter& painter, const QStyleOptionViewItem& option)
{
    if (option.state.testFlag(QStyle::State_Selected)) {
        paintSelectionBackground(painter, option.rect, option.palette, isHighlighted(option));
        paintIconBackground(painter, iconFrame().translated(option.rect.topLeft()), option.palette);
    } else if (option.state.testFlag(QStyle::State_HasFocus)) {
        paintSelectionOutline(painter, option.rect, option.palette);
    }
}

void RecentsTableCell::drawIcon(
    QPainter& painter, const QStyleOptionViewItem& option, const QIcon& icon)
{
    const QIcon::Mode mode
        = option.state.testFlag(QStyle::State_Enabled) ? QIcon::Normal : QIcon::Disabled;
    const QRect frame = iconFrame().translated(option.rect.topLeft());
    const qreal ratio = painter.device()->devicePixelRatioF();
    const QStyle& style = *QApplication::style();
    style.drawItemPixmap(
        &painter, frame, Qt::AlignCenter, pixmapIn(frame.size(), icon, ratio, mode));
}

QSize RecentsTableCell::sizeHint(
    const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const
{
    return {0, withDesktopFont(kRowHeight)};
}

RecentsTableCell::Style RecentsTableCell::titleStyle(const QStyleOptionViewItem& option)
{
    const HomeColors colors(option.palette);
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QColor usual = isEnabled ? colors.name : colors.faint;
    const QColor onPale = isSelected ? colors.inactiveName : usual;
    return {
        systemFont(kSystemFontPixels),
        isHighlighted(option) ? colors.selectedName : onPale,
        Qt::AlignLeft};
}

RecentsTableCell::Style RecentsTableCell::subtitleStyle(const QStyleOptionViewItem& option)
{
    const HomeColors colors(option.palette);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QColor onPale = isSelected ? colors.inactiveDetail : colors.faint;
    return {
        systemFont(kSmallFontPixels),
        isHighlighted(option) ? colors.selectedDetail : onPale,
        Qt::AlignLeft};
}

RecentsTableCell::Style RecentsTableCell::fileSizeStyle(const QStyleOptionViewItem& option)
{
    Style style = subtitleStyle(option);
    style.alignment = Qt::AlignRight;
    return style;
}

void RecentsTableCell::drawText(
    QPainter& painter, const QRect& box, const QString& text, const Style& style)
{
    painter.setFont(style.font);
    painter.setPen(style.color);
    const QString shown = QFontMetrics(style.font).elidedText(text, Qt::ElideRight, box.width());
    painter.drawText(box, static_cast<int>(style.alignment) | Qt::AlignVCenter, shown);
}

} // namespace tessera
