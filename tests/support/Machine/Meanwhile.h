// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>

namespace tessera::test {

/// Calls to the system that this program goes through functions of its own for.
enum class Call : std::uint8_t { Rename, Sync, ChangeMode, Open };

/// What another program does right before this thread's next call of that kind; once.
class Meanwhile {
public:
    Meanwhile(Call call, std::function<void()> happens);
    Meanwhile(const Meanwhile&) = delete;
    Meanwhile& operator=(const Meanwhile&) = delete;
    ~Meanwhile();
};

/// To be called by the functions that make the call.
void aboutTo(Call call);

} // namespace tessera::test
