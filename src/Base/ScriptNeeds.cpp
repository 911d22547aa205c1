// SPDX-License-Identifier: MIT
#include "Base/ScriptNeeds.h"

#include "Base/CharacterKinds.h"

#include <QChar>

#include <algorithm>
#include <array>

namespace tessera {

namespace {

constexpr char32_t kZeroWidthJoiner = 0x200D;
constexpr char32_t kFirstCommonSelector = 0xFE00;
constexpr char32_t kLastAscii = 0x7F;
constexpr char32_t kEmojiLook = 0xFE0F;
constexpr char32_t kKeycap = 0x20E3;
constexpr char32_t kInformationSource = 0x2139;
constexpr char32_t kFirstIdeographicSelector = 0xE0100;

/// Stands for what is before the first and behind the last character.
constexpr char32_t kNothing = U' ';

/// The scripts whose letters take another shape beside each other, so that their spelling needs
/// joiners: those written in one stroke, and those that stack consonants.
constexpr std::array kJoiningScripts{
    QChar::Script_Arabic,     QChar::Script_Syriac,     QChar::Script_Nko,
    QChar::Script_Mandaic,    QChar::Script_Mongolian,  QChar::Script_PhagsPa,
    QChar::Script_Manichaean, QChar::Script_Adlam,      QChar::Script_HanifiRohingya,
    QChar::Script_Sogdian,    QChar::Script_Devanagari, QChar::Script_Bengali,
    QChar::Script_Gurmukhi,   QChar::Script_Gujarati,   QChar::Script_Oriya,
    QChar::Script_Tamil,      QChar::Script_Telugu,     QChar::Script_Kannada,
    QChar::Script_Malayalam,  QChar::Script_Sinhala,    QChar::Script_Tibetan,
    QChar::Script_Myanmar,    QChar::Script_Khmer,      QChar::Script_Balinese,
    QChar::Script_Javanese,   QChar::Script_Newa,       QChar::Script_Grantha,
};

bool hasJoiningScript(char32_t character)
{
    const QChar::Script script = QChar::script(character);
    return std::find(kJoiningScripts.begin(), kJoiningScripts.end(), script)
        != kJoiningScripts.end();
}

char32_t characterAt(std::u32string_view text, std::size_t index)
{
    return index < text.size() ? text[index] : kNothing;
}

char32_t characterBefore(std::u32string_view text, std::size_t index)
{
    return index > 0 ? text[index - 1] : kNothing;
}

/// The letter or picture before, over the marks that sit on it and belong to any script and the
/// selector of its look.
char32_t letterBefore(std::u32string_view text, std::size_t index)
{
    char32_t before = characterBefore(text, index);
    while (QChar::script(before) == QChar::Script_Inherited && !isJoiner(before)) {
        before = characterBefore(text, --index);
    }
    return before;
}

/// Whether the letter, at the end of a word, looks different when told that another follows.
bool canBeShapedAtItsEnd(char32_t letter)
{
    constexpr unsigned char kVirama = 9;
    const QChar::JoiningType joining = QChar::joiningType(letter);
    return QChar::combiningClass(letter) == kVirama || joining == QChar::Joining_Dual
        || joining == QChar::Joining_Left;
}

bool isPicture(char32_t character)
{
    // Pictures newer than Qt's tables are of no category there yet.
    constexpr char32_t kFirstPicture = 0x1F000;
    constexpr char32_t kLastPicture = 0x1FBFF;
    const QChar::Category category = QChar::category(character);
    // Some arrows are mathematical signs.
    return (character >= kFirstPicture && character <= kLastPicture)
        || category == QChar::Symbol_Other
        || (category == QChar::Symbol_Math && character > kLastAscii);
}

bool isJoinerNeeded(std::u32string_view text, std::size_t index)
{
    const char32_t letter = letterBefore(text, index);
    const char32_t next = characterAt(text, index + 1);
    if (hasJoiningScript(letter) && QChar::script(letter) == QChar::script(next)) {
        return true;
    }
    if (text[index] != kZeroWidthJoiner) {
        return false;
    }
    if (hasJoiningScript(letter) && canBeShapedAtItsEnd(letter)) {
        return !QChar::isLetter(next) && !isJoiner(next);
    }
    return isPicture(letter) && isPicture(next);
}

bool hasSeveralLooks(char32_t character)
{
    const bool isSign = QChar::isSymbol(character) || QChar::isPunct(character);
    return (isSign && character > kLastAscii) || isPicture(character)
        || character == kInformationSource || QChar::script(character) == QChar::Script_Han
        || QChar::script(character) == QChar::Script_Myanmar
        || QChar::script(character) == QChar::Script_PhagsPa;
}

bool isSelectorNeeded(std::u32string_view text, std::size_t index)
{
    const char32_t selector = text[index];
    const char32_t before = characterBefore(text, index);
    if (selector >= kFirstIdeographicSelector) {
        return QChar::script(before) == QChar::Script_Han;
    }
    if (selector < kFirstCommonSelector) {
        return QChar::script(before) == QChar::Script_Mongolian;
    }
    const bool isOfKeycap = selector == kEmojiLook && characterAt(text, index + 1) == kKeycap;
    return isOfKeycap || hasSeveralLooks(before);
}

} // namespace

bool isNeededByScript(std::u32string_view text, std::size_t index)
{
    return isJoiner(text[index]) ? isJoinerNeeded(text, index) : isSelectorNeeded(text, index);
}

} // namespace tessera
