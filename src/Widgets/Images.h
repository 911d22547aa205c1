// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

#include <string_view>

namespace tessera {

/// The program's own picture of that name, sharp at every size; null when there is none. The
/// pictures are compiled into the program. Main thread only.
QIcon imageNamed(std::string_view name);

} // namespace tessera
