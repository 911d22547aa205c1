// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>
#include <string_view>
#include <vector>

namespace tessera {

// Names of files in alerts. All need an application object.

/// As displayText(), but not longer than fits into one line.
[[nodiscard]] QString shortName(std::string_view name);

/// The same in quotation marks.
[[nodiscard]] QString quotedName(std::string_view name);

/// A sentence about what has the name, both as bytes, with the name as shortName() has it.
[[nodiscard]] QString withShortName(std::string_view sentence, std::string_view name);

/// The first names and how many more there are: "“a”, “b”, “c” and 4 more". One name at least.
[[nodiscard]] QString namesText(const std::vector<std::string>& names);

} // namespace tessera
