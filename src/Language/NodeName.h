// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>

namespace tessera {

class File;

/// The node's name as windows show it: the program's own names, such as that of the free space, in
/// the user's language. File::name() is the same in every language.
[[nodiscard]] QString shownName(const File& node);

/// The same as bytes, for the picture, which shows names that are no text as it likes.
[[nodiscard]] std::string shownNameBytes(const File& node);

} // namespace tessera
