// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class QString;

namespace tessera {

/// What somebody on the bus says lets a window come to the front; empty when it is no such thing:
/// printable ASCII of at most 256 bytes. It ends up in the environment, and anybody in the session
/// may say anything.
[[nodiscard]] std::string activationTokenIn(const QString& text);

} // namespace tessera
