// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>

#include <cstdint>

namespace tessera {

/// A date as the locale writes it, with the month shortened and without the weekday and the time:
/// "Nov 21, 2026". QLocale has a long and a short form only, and the short one hides in which
/// order day and month stand.
QString mediumDateFormat(const QLocale& locale);

/// The day, in local time, of a moment given in seconds since 1970-01-01 00:00 UTC.
QString mediumDate(std::int64_t secondsSinceEpoch, const QLocale& locale);

} // namespace tessera
