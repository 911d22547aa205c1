// SPDX-License-Identifier: MIT
#include "Widgets/MediumDate.h"

#include <QDateTime>

#include <gtest/gtest.h>

namespace tessera {

namespace {

constexpr int kHour = 9;

std::int64_t someMoment()
{
    return QDateTime(QDate(2026, 11, 21), QTime(kHour, 30)).toSecsSinceEpoch();
}

std::string dateIn(QLocale::Language language, QLocale::Country country)
{
    return mediumDate(someMoment(), QLocale(language, country)).toStdString();
}

} // namespace

TEST(MediumDate, ADateHasNeitherWeekdayNorTime)
{
    EXPECT_EQ(dateIn(QLocale::English, QLocale::UnitedStates), "Nov 21, 2026");
}

TEST(MediumDate, TheOrderIsThatOfTheLocale)
{
    EXPECT_EQ(dateIn(QLocale::English, QLocale::UnitedKingdom), "21 Nov 2026");
}

TEST(MediumDate, WhatBelongsToTheDayIsKept)
{
    EXPECT_EQ(
        mediumDateFormat(QLocale(QLocale::German, QLocale::Germany)),
        QStringLiteral("d. MMM yyyy"));
}

TEST(MediumDate, AWeekdayAtTheEndGoesToo)
{
    EXPECT_EQ(
        mediumDateFormat(QLocale(QLocale::Hungarian, QLocale::Hungary)),
        QStringLiteral("yyyy. MMM d."));
}

TEST(MediumDate, ADateBefore1970IsADate)
{
    EXPECT_FALSE(mediumDate(-100000, QLocale::c()).isEmpty());
}

} // namespace tessera
