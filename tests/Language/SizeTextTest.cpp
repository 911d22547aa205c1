// SPDX-License-Identifier: MIT
#include "Language/SizeText.h"

#include "Language/Translations.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace tessera {
namespace {

class SizeText : public testing::Test {
protected:
    ~SizeText() override { QLocale::setDefault(m_before); }

private:
    QLocale m_before;
};

TEST_F(SizeText, IsWhatTheUserReadsInEnglish)
{
    QLocale::setDefault(QLocale(QLocale::English));
    EXPECT_EQ(sizeText(0), QStringLiteral("0 B"));
    EXPECT_EQ(sizeText(2500), QStringLiteral("2 KB"));
    EXPECT_EQ(sizeText(1'250'000), QStringLiteral("1.2 MB"));
    EXPECT_EQ(sizeText(1'234'567'890), QStringLiteral("1.2 GB"));
    EXPECT_EQ(sizeText(5'000'000'000'000), QStringLiteral("5.0 TB"));
}

TEST_F(SizeText, HasTheDecimalSignOfTheLocale)
{
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(sizeText(1'234'567'890), QStringLiteral("1,2 GB"));
}

TEST_F(SizeText, HasTheDigitsOfTheLocale)
{
    QLocale::setDefault(QLocale(QLocale::Persian, QLocale::Iran));
    EXPECT_EQ(sizeText(1'234'567'890), QStringLiteral("۱٫۲ GB"));
}

TEST_F(SizeText, GroupsNoDigits)
{
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(sizeText(5'000'000'000'000'000), QStringLiteral("5000,0 TB"));
}

TEST_F(SizeText, HasTheUnitsOfTheLanguage)
{
    QLocale::setDefault(QLocale(QLocale::German));
    const Translations translations({QStringLiteral("de")});
    EXPECT_EQ(sizeText(2000), QStringLiteral("2\u00A0kB"));
}

} // namespace
} // namespace tessera
