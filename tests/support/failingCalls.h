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

/// From now on this process, and whatever program it becomes, gets the error for every such call.
/// False when the system does not let it be arranged.
[[nodiscard]] bool makeCallFail(const FailingCall& call);

} // namespace tessera::test
