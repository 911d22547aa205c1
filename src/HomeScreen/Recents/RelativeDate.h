// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QLocale>
#include <QString>

#include <chrono>

namespace tessera {

/// The day of that moment, in local time: as a word where it is today or yesterday, otherwise as
/// the locale writes a date of medium length.
QString relativeDate(std::chrono::sys_seconds moment, QDate today, const QLocale& locale);

} // namespace tessera
