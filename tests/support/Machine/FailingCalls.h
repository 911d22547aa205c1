// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
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

/// Does the work on a thread of its own, where one of its calls about files, the one of that place
/// from 1 on, is not made and reports the error, and all others are made. Whether there were so
/// many of them; nothing when the system does not let it be arranged.
[[nodiscard]] std::optional<bool> withOneCallFailing(
    int place, int error, const std::function<void()>& work);

} // namespace tessera::test
