// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

class UserDefaults;

/// Registers what the program's settings are where the user has stored nothing.
void registerDefaults(UserDefaults& defaults);

} // namespace tessera
