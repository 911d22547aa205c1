// SPDX-License-Identifier: MIT
#include "QuickLook/Reading/TextOrBinary.h"

#include <QStringDecoder>

#include <algorithm>

namespace tessera {

namespace {

/// A text may hold a stray control character, a program holds many.
constexpr double kMostSteeringShare = 0.01;
constexpr qsizetype kLongestLine = 2000;
constexpr char16_t kFirstControlPicture = 0x2400;
constexpr char16_t kDeletePicture = 0x2421;
constexpr char16_t kDelete = 0x7F;
constexpr char16_t kLastC1Control = 0x9F;
constexpr char16_t kEscape = 0x1B;
constexpr char16_t kNextLine = 0x85;

/// Whether texts have no use for the character. Those that do use it: blanks, and the escape that
/// begins a colour in a log.
bool isForeignToTexts(QChar character)
{
    const char16_t unit = character.unicode();
    const bool isControl = unit < u' ' || (unit >= kDelete && unit <= kLastC1Control);
    return isControl && !character.isSpace() && unit != kEscape && unit != u'\b'
        && unit != kNextLine;
}

bool looksLikeText(const QString& text)
{
    const auto foreign = static_cast<double>(std::ranges::count_if(text, isForeignToTexts));
    return foreign <= kMostSteeringShare * static_cast<double>(text.size());
}

std::optional<QStringConverter::Encoding> markedEncoding(std::string_view bytes)
{
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) {
        return QStringConverter::Utf16;
    }
    return std::nullopt;
}

std::optional<QString> decodedAs(
    QStringConverter::Encoding encoding, std::string_view bytes, TextExtent extent)
{
    // Between calls a decoder keeps what may be the beginning of a character; without a next call
    // that is an error, unless the file goes on.
    const auto flags = extent == TextExtent::Whole ? QStringConverter::Flag::Stateless
                                                   : QStringConverter::Flag::Default;
    QStringDecoder decoder(encoding, flags);
    QString text = decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    return decoder.hasError() ? std::nullopt : std::optional(std::move(text));
}

QChar shown(QChar character)
{
    const char16_t unit = character.unicode();
    if (unit == u'\t' || unit >= u' ') {
        return unit == kDelete ? QChar(kDeletePicture) : character;
    }
    return {static_cast<char16_t>(kFirstControlPicture + unit)};
}

/// The text in lines that a view can lay out at once, with nothing in it that steers the view.
QString readable(const QString& text)
{
    QString lines;
    lines.reserve(text.size());
    qsizetype lineLength = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        const bool isReturn = character == u'\r';
        if (isReturn && i + 1 < text.size() && text[i + 1] == u'\n') {
            continue;
        }
        const bool endsLine = isReturn || character == u'\n';
        // The break must not stand inside a surrogate pair.
        const bool isFull = lineLength >= kLongestLine && !character.isLowSurrogate();
        if (endsLine || isFull) {
            lines += u'\n';
            lineLength = 0;
        }
        if (!endsLine) {
            lines += shown(character);
            ++lineLength;
        }
    }
    return lines;
}

std::optional<QString> decoded(std::string_view bytes, TextExtent extent)
{
    if (const auto encoding = markedEncoding(bytes)) {
        return decodedAs(*encoding, bytes, extent);
    }
    if (bytes.find('\0') != std::string_view::npos) {
        return std::nullopt;
    }
    if (auto text = decodedAs(QStringConverter::Utf8, bytes, extent)) {
        return text;
    }
    return decodedAs(QStringConverter::Latin1, bytes, extent);
}

} // namespace

std::optional<QString> decodedText(std::string_view bytes, TextExtent extent)
{
    const auto text = decoded(bytes, extent);
    if (!text || !looksLikeText(*text)) {
        return std::nullopt;
    }
    return readable(*text);
}

} // namespace tessera
