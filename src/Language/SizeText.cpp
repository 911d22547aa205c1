// SPDX-License-Identifier: MIT
#include "Language/SizeText.h"

#include "Base/ByteSize.h"

#include <QCoreApplication>
#include <QLocale>

#include <array>
#include <cstddef>

namespace tessera {

namespace {

/// In the order of the units.
constexpr std::array kPatterns{
    //: %1 is a number, the rest the unit: of bytes
    QT_TRANSLATE_NOOP("SizeText", "%1 B"),
    //: of thousands of bytes
    QT_TRANSLATE_NOOP("SizeText", "%1 KB"),
    QT_TRANSLATE_NOOP("SizeText", "%1 MB"),
    QT_TRANSLATE_NOOP("SizeText", "%1 GB"),
    QT_TRANSLATE_NOOP("SizeText", "%1 TB"),
};
static_assert(kPatterns.size() == static_cast<std::size_t>(ByteUnit::Terabyte) + 1);

/// The digits stay as they were rounded; QLocale would round once more, in another way.
QString localized(const std::string& number)
{
    const QLocale locale;
    const char32_t zero = locale.zeroDigit().toUcs4().at(0);
    QString text;
    for (const char character : number) {
        if (character == '.') {
            text += locale.decimalPoint();
        } else {
            const char32_t digit = zero + static_cast<char32_t>(character - '0');
            text += QString::fromUcs4(&digit, 1);
        }
    }
    return text;
}

} // namespace

QString sizeText(std::uint64_t bytes)
{
    const ByteFigure figure = byteFigure(bytes);
    const char* const pattern = kPatterns.at(static_cast<std::size_t>(figure.unit));
    return QCoreApplication::translate("SizeText", pattern).arg(localized(figure.number));
}

} // namespace tessera
