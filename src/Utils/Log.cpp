// SPDX-License-Identifier: MIT
#include "Utils/Log.h"

#include <cstdarg>
#include <cstdio>
#include <string>

namespace tessera {

namespace {

constexpr unsigned char kFirstPrintable = 0x20;
constexpr unsigned char kDelete = 0x7F;

std::string withoutControlCharacters(const std::string& text)
{
    constexpr const char* kHexDigits = "0123456789abcdef";
    std::string shown;
    shown.reserve(text.size() + 1);
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= kFirstPrintable && byte != kDelete) {
            shown += c;
            continue;
        }
        shown += "\\x";
        shown += kHexDigits[byte >> 4U];
        shown += kHexDigits[byte & 0x0FU];
    }
    return shown;
}

} // namespace

void logLine(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    std::va_list again;
    va_copy(again, arguments);
    // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): the checker does not follow va_start
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    if (length >= 0) {
        std::string text(static_cast<std::size_t>(length) + 1, '\0');
        (void)std::vsnprintf(text.data(), text.size(), format, again);
        text.pop_back();
        const std::string line = withoutControlCharacters(text) + '\n';
        (void)std::fwrite(line.data(), 1, line.size(), stderr);
    }
    va_end(again);
}

} // namespace tessera
