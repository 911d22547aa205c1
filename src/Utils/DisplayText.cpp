// SPDX-License-Identifier: MIT
#include "Utils/DisplayText.h"

#include <QTextDocument>

namespace tessera {

namespace {

constexpr char16_t kFirstControlPicture = 0x2400;
constexpr char16_t kDeletePicture = 0x2421;
constexpr char16_t kDelete = 0x7F;
constexpr char16_t kLastC1Control = 0x9F;

bool steersText(char16_t unit)
{
    const bool isC1Control = unit > kDelete && unit <= kLastC1Control;
    const bool isDirectionMark = unit == 0x200E || unit == 0x200F || unit == 0x061C;
    const bool isSeparatorOrEmbedding = unit >= 0x2028 && unit <= 0x202E;
    const bool isIsolate = unit >= 0x2066 && unit <= 0x2069;
    return isC1Control || isDirectionMark || isSeparatorOrEmbedding || isIsolate;
}

QChar shown(QChar character)
{
    const char16_t unit = character.unicode();
    if (unit < u' ') {
        return {static_cast<char16_t>(kFirstControlPicture + unit)};
    }
    if (unit == kDelete) {
        return {kDeletePicture};
    }
    return steersText(unit) ? QChar(QChar::ReplacementCharacter) : character;
}

} // namespace

QString displayText(std::string_view bytes)
{
    QString text = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    for (QChar& character : text) {
        character = shown(character);
    }
    return text;
}

QString plainTooltip(const QString& text)
{
    return Qt::mightBeRichText(text)
        ? QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text.toHtmlEscaped())
        : text;
}

} // namespace tessera
