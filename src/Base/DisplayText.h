// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>

namespace tessera {

/// A file's name as shown on one line: bytes that are not UTF-8 become U+FFFD, control characters
/// become their pictures (U+2400 and following, U+2421 for DEL), and what would break the line,
/// turn the direction of the text around it or leave no trace of itself becomes U+FFFD too.
/// Invisible joiners stay where the script needs them.
QString displayText(std::string_view bytes);

/// The same text for where Qt takes what looks like markup for such: in tooltips.
QString plainTooltip(const QString& text);

} // namespace tessera
