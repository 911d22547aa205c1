// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

/// Writes one line to standard error, from any thread, in one piece. `format` and what follows
/// are as for std::printf, but the decimal sign of %f would be the locale's: numbers with one go in
/// as text of decimals(). Names of files may hold anything, so the message goes out as
/// terminalText(): it always stays one line and commands no terminal.
[[gnu::format(printf, 1, 2)]] void logLine(const char* format, ...);

} // namespace tessera
