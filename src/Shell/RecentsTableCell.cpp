// SPDX-License-Identifier: MIT
#include "Shell/RecentsTableCell.h"

#include "Model/MountedVolumes.h"
#include "Model/UserDefaults.h"
#include "Shell/PlaceNames.h"
#include "Shell/RecentsTableModel.h"
#include "Shell/RelativeDate.h"
#include "Shell/SelectionBackground.h"
#include "Utils/Util.h"

#include <QFontDatabase>
#include <QIcon>
#include <QPainter>

#include <utility>

namespace tessera {

namespace {

constexpr int kRowHeight = 48;
constexpr int kSystemFontPixels = 13;
constexpr int kSmallFontPixels = 11;

// From the upper left corner of the cell.
constexpr QRect kIconFrame{7, 4, 38, 39};
constexpr QRect kTitleBox{54, 10, 219, 17};
constexpr QRect kSubtitleBox{54, 28, 154, 17};
/// From the right edge of the cell to the left one of the box. It stands beside the subtitle.
constexpr int kSizeFromRight = 70;
constexpr QSize kSizeBox{68, 17};

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
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(pixels);
    return font;
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
    const QPoint corner = option.rect.topLeft();
    painter->save();
    if (option.state.testFlag(QStyle::State_Selected)) {
        paintSelectionBackground(*painter, option.rect, option.palette, isHighlighted(option));
    }
    const QIcon::Mode mode
        = option.state.testFlag(QStyle::State_Enabled) ? QIcon::Normal : QIcon::Disabled;
    m_services.icon(Url(record.path, true))
        .paint(painter, kIconFrame.translated(corner), Qt::AlignCenter, mode);
    drawText(*painter, kTitleBox.translated(corner), title(record), titleStyle(option));
    drawText(*painter, kSubtitleBox.translated(corner), subtitle(record), subtitleStyle(option));
    const QPoint sizeCorner(
        option.rect.x() + option.rect.width() - kSizeFromRight, corner.y() + kSubtitleBox.y());
    drawText(
        *painter,
        QRect(sizeCorner, kSizeBox),
        QString::fromStdString(Util::formatSize(record.size)),
        fileSizeStyle(option));
    painter->restore();
}

QSize RecentsTableCell::sizeHint(
    const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const
{
    return {0, kRowHeight};
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
    const QString shown
        = QFontMetrics(style.font).elidedText(text, Util::truncatedParagraphStyle(), box.width());
    painter.drawText(box, static_cast<int>(style.alignment) | Qt::AlignVCenter, shown);
}

} // namespace tessera
