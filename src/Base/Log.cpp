// SPDX-License-Identifier: MIT
#include "Base/Log.h"

#include "Base/TerminalText.h"

#include <cstdarg>
#include <cstdio>
#include <string>

namespace tessera {

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
        const std::string line = terminalText(text) + '\n';
        (void)std::fwrite(line.data(), 1, line.size(), stderr);
    }
    va_end(again);
}

} // namespace tessera
