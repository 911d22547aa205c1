// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tessera {

/// The title of a menu's entry as it reads where nobody types its letter: "&Open" without the sign,
/// and "開く(&O)", as languages without Latin letters have it, without the brackets, too.
[[nodiscard]] QString withoutMnemonic(QString title);

} // namespace tessera
