// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

namespace tessera::test {

/// A system call that is to fail, by its number.
struct FailingCall {
    long number = 0;
    int error = 0; ///< errno
    std::optional<std::uint32_t> thirdArgument; ///< only with this one
};

/// From now on the calling thread, with all that it starts and the program it becomes, gets the
/// error for every such call.
/// False when the system does not let it be arranged.
[[nodiscard]] bool makeCallFail(const FailingCall& call);

} // namespace tessera::test
