// SPDX-License-Identifier: MIT
#include "Base/DisplayText.h"

#include "Base/CharacterKinds.h"
#include "Base/ScriptNeeds.h"

#include <QStringDecoder>
#include <QTextDocument>

#include <algorithm>
#include <string>

namespace tessera {

namespace {

constexpr char32_t kFirstControlPicture = 0x2400;
constexpr char32_t kDeletePicture = 0x2421;
constexpr char32_t kDelete = 0x7F;

char32_t shown(std::u32string_view text, std::size_t index)
{
    const char32_t character = text[index];
    if (character < U' ') {
        return kFirstControlPicture + character;
    }
    if (character == kDelete) {
        return kDeletePicture;
    }
    const bool isMisleading
        = isControlCharacter(character) || steersText(character) || isInvisible(character);
    const bool isSeenByEffect = isJoiner(character) || isVariationSelector(character);
    return isMisleading || (isSeenByEffect && !isNeededByScript(text, index))
        ? char32_t{QChar::ReplacementCharacter}
        : character;
}

/// As QString::fromUtf8(), which takes an invisible mark in front for the file's byte order.
QString decoded(QByteArrayView bytes)
{
    QStringDecoder decoder(
        QStringDecoder::Utf8,
        QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    return decoder(bytes);
}

bool isPrintableAscii(char byte)
{
    return byte >= ' ' && byte < static_cast<char>(kDelete);
}

} // namespace

QString displayText(std::string_view bytes)
{
    const auto length = static_cast<qsizetype>(bytes.size());
    // Most names are.
    if (std::all_of(bytes.begin(), bytes.end(), isPrintableAscii)) {
        return QString::fromLatin1(bytes.data(), length);
    }
    const std::u32string characters = decoded({bytes.data(), length}).toStdU32String();
    std::u32string replaced = characters;
    for (std::size_t i = 0; i < characters.size(); ++i) {
        replaced[i] = shown(characters, i);
    }
    return QString::fromStdU32String(replaced);
}

QString plainTooltip(const QString& text)
{
    return Qt::mightBeRichText(text)
        ? QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text.toHtmlEscaped())
        : text;
}

} // namespace tessera
