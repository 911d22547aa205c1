// SPDX-License-Identifier: MIT
#include "Widgets/MediumDate.h"

#include <QDateTime>
#include <QRegularExpression>

namespace tessera {

QString mediumDateFormat(const QLocale& locale)
{
    // The weekday goes together with the comma or space that sets it off.
    static const QRegularExpression leadingWeekday(QStringLiteral("^dddd?[,\\s]*"));
    static const QRegularExpression otherWeekday(QStringLiteral("[,\\s]*dddd?"));
    QString format = locale.dateFormat(QLocale::LongFormat);
    format.remove(leadingWeekday);
    format.remove(otherWeekday);
    format.replace(QLatin1String("MMMM"), QLatin1String("MMM"));
    return format.trimmed();
}

QString mediumDate(std::int64_t secondsSinceEpoch, const QLocale& locale)
{
    const QDate day = QDateTime::fromSecsSinceEpoch(secondsSinceEpoch).date();
    return locale.toString(day, mediumDateFormat(locale));
}

} // namespace tessera
