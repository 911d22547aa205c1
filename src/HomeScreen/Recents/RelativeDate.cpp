// SPDX-License-Identifier: MIT
#include "HomeScreen/Recents/RelativeDate.h"

#include "Widgets/MediumDate.h"

#include <QCoreApplication>
#include <QDateTime>

namespace tessera {

QString relativeDate(std::chrono::sys_seconds moment, QDate today, const QLocale& locale)
{
    const auto seconds = moment.time_since_epoch().count();
    const QDate day = QDateTime::fromSecsSinceEpoch(seconds).date();
    if (day == today) {
        return QCoreApplication::translate("RelativeDate", "Today");
    }
    if (day.addDays(1) == today) {
        return QCoreApplication::translate("RelativeDate", "Yesterday");
    }
    return mediumDate(seconds, locale);
}

} // namespace tessera
