// SPDX-License-Identifier: MIT
#include "Model/Url.h"

#include <algorithm>
#include <array>

namespace tessera {

namespace {

constexpr std::string_view kScheme = "file://";
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

} // namespace

std::string_view lastPathComponent(std::string_view path)
{
    const std::string_view trimmed = withoutTrailingSlashes(path);
    const std::size_t slash = trimmed.rfind('/');
    if (slash == std::string_view::npos || trimmed.size() == 1) {
        return trimmed;
    }
    return trimmed.substr(slash + 1);
}

Url::Url(std::string_view path, bool isDirectory)
    : m_path(withoutTrailingSlashes(path))
    , m_isDirectory(isDirectory)
{
}

std::string Url::absoluteString() const
{
    std::string text(kScheme);
    text.reserve(kScheme.size() + m_path.size() + 1);
    for (const char c : m_path) {
        if (isPathCharacter(c)) {
            text += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        text += '%';
        text += kHexDigits[byte >> 4U];
        text += kHexDigits[byte & 0x0FU];
    }
    if (m_isDirectory && text.back() != '/') {
        text += '/';
    }
    return text;
}

} // namespace tessera
