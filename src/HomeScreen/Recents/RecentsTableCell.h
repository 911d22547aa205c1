// SPDX-License-Identifier: MIT
#pragma once

#include "HomeScreen/Parts/HomeColors.h"

#include <QDate>
#include <QStyledItemDelegate>

#include <functional>
#include <string>

class QIcon;

namespace tessera {

class MountedVolumes;
class Url;
struct RecentRecord;

/// Draws one recent scan: icon, title, when it was and how large the folder was then, each in a
/// fixed place of the row. The row that a key would select has an outline.
class RecentsTableCell final : public QStyledItemDelegate {
    Q_OBJECT

public:
    /// What the cell asks for; all of it must outlive the cell.
    struct Services {
        const MountedVolumes& volumes;
        std::string homeDirectory; ///< of the process; over no link, as scans are recorded
        std::string realHomeDirectory; ///< of the user who started it
        std::function<QIcon(const Url& folder)> icon;
        std::function<QDate()> today = QDate::currentDate;
    };

    explicit RecentsTableCell(Services services, QObject* parent = nullptr);

    QString title(const RecentRecord& record) const;
    QString subtitle(const RecentRecord& record) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index)
        const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    struct Style {
        QFont font;
        QColor color;
        Qt::Alignment alignment;
    };

    static Style titleStyle(const QStyleOptionViewItem& option);
    static Style subtitleStyle(const QStyleOptionViewItem& option);
    static Style fileSizeStyle(const QStyleOptionViewItem& option);
    static void drawBackground(QPainter& painter, const QStyleOptionViewItem& option);
    static void drawIcon(QPainter& painter, const QStyleOptionViewItem& option, const QIcon& icon);
    static void drawText(
        QPainter& painter, const QRect& box, const QString& text, const Style& style);

    Services m_services;
};

} // namespace tessera
