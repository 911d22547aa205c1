// SPDX-License-Identifier: MIT
#include "Base/Url.h"

#include <algorithm>
#include <array>

namespace tessera {

namespace {

constexpr std::string_view kScheme = "file:";
constexpr std::string_view kHostMark = "//";
constexpr std::array<char, 16> kHexDigits{
    '0', '1', '2', '3', '4', '5', '6', '7', '8', '9', 'A', 'B', 'C', 'D', 'E', 'F'};

std::string_view withoutTrailingSlashes(std::string_view path)
{
    while (path.size() > 1 && path.back() == '/') {
        path.remove_suffix(1);
    }
    return path;
}

/// RFC 3986, section 3.3: pchar without "%", and the slash between the segments. The semicolon is
/// legal but split off as a parameter by old readers, so it is encoded too.
bool isPathCharacter(char c)
{
    const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    const bool isDigit = c >= '0' && c <= '9';
    return isLetter || isDigit
        || std::string_view("-._~!$&'()*+,=:@/").find(c) != std::string_view::npos;
}

std::optional<unsigned> hexDigitValue(char c)
{
    if (c >= 'a' && c <= 'f') {
        c = static_cast<char>(c - 'a' + 'A');
    }
    const std::size_t value = std::string_view(kHexDigits.data(), kHexDigits.size()).find(c);
    return value != std::string_view::npos ? std::optional(static_cast<unsigned>(value))
                                           : std::nullopt;
}

} // namespace

std::string percentEncoded(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        if (isPathCharacter(c)) {
            text += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        text += '%';
        text += kHexDigits[byte >> 4U];
        text += kHexDigits[byte & 0x0FU];
    }
    return text;
}

std::optional<std::string> percentDecoded(std::string_view text)
{
    constexpr std::size_t kEscapeLength = 3;
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        if (text.front() != '%') {
            bytes += text.front();
            text.remove_prefix(1);
            continue;
        }
        if (text.size() < kEscapeLength) {
            return std::nullopt;
        }
        const std::optional<unsigned> high = hexDigitValue(text[1]);
        const std::optional<unsigned> low = hexDigitValue(text[2]);
        if (!high || !low) {
            return std::nullopt;
        }
        bytes += static_cast<char>((*high << 4U) | *low);
        text.remove_prefix(kEscapeLength);
    }
    return bytes;
}

std::string_view lastPathComponent(std::string_view path)
{
    const std::string_view trimmed = withoutTrailingSlashes(path);
    const std::size_t slash = trimmed.rfind('/');
    if (slash == std::string_view::npos || trimmed.size() == 1) {
        return trimmed;
    }
    return trimmed.substr(slash + 1);
}

bool startsWithWord(std::string_view text, std::string_view lowerCaseWord)
{
    return text.size() >= lowerCaseWord.size()
        && std::equal(
               lowerCaseWord.begin(), lowerCaseWord.end(), text.begin(), [](char expected, char c) {
                   return expected == c || (c >= 'A' && c <= 'Z' && expected == c - 'A' + 'a');
               });
}

Url::Url(std::string_view path, bool isDirectory)
    : m_path(withoutTrailingSlashes(path))
    , m_isDirectory(isDirectory)
{
}

bool Url::isWrittenIn(std::string_view text)
{
    return startsWithWord(text, kScheme);
}

std::optional<Url> Url::fromAbsoluteString(std::string_view text)
{
    constexpr std::string_view kLocalHost = "localhost";
    if (!isWrittenIn(text)) {
        return std::nullopt;
    }
    text.remove_prefix(kScheme.size());
    if (text.starts_with(kHostMark)) {
        text.remove_prefix(kHostMark.size());
        if (startsWithWord(text, kLocalHost)) {
            text.remove_prefix(kLocalHost.size());
        }
    }
    const std::optional<std::string> path = percentDecoded(text);
    // No path has a zero byte in it: the system would read another, shorter one.
    if (!path || !path->starts_with('/') || path->find('\0') != std::string::npos) {
        return std::nullopt;
    }
    return Url(*path, path->ends_with('/'));
}

std::string Url::absoluteString() const
{
    std::string text = std::string(kScheme).append(kHostMark) + percentEncoded(m_path);
    if (m_isDirectory && text.back() != '/') {
        text += '/';
    }
    return text;
}

} // namespace tessera
