// SPDX-License-Identifier: MIT
#pragma once

#include "LedgerPanel/LedgerAccount.h"

#include <QString>

#include <cstdint>
#include <system_error>

/// What the user reads of an account. Main thread only.
namespace tessera::ledger_texts {

/// What the line is about, with its number of folders if it has one.
[[nodiscard]] QString name(const LedgerLine& line, const LedgerAccount& account);
/// One or two sentences, and what the user can do.
[[nodiscard]] QString explanation(const LedgerLine& line, const LedgerAccount& account);
/// The size, rounded; where nobody knows it, that it is a part of the rest.
[[nodiscard]] QString number(const LedgerLine& line);
/// The size to the byte; empty where nobody knows it.
[[nodiscard]] QString exactNumber(const LedgerLine& line);

/// "1,234 bytes", as the locale writes numbers.
[[nodiscard]] QString exactBytes(std::int64_t bytes);
/// "1.2 KB", with a minus sign before it where it is below nothing.
[[nodiscard]] QString roundedBytes(std::int64_t bytes);

/// Why a folder could not be read.
[[nodiscard]] QString reason(const std::error_code& error);

} // namespace tessera::ledger_texts
