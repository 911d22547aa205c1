// SPDX-License-Identifier: MIT
#include "Base/StartThread.h"

#include <thread>
#include <utility>

namespace tessera {

std::error_code startThread(std::function<void()> work)
{
    try {
        std::thread(std::move(work)).detach();
    } catch (const std::system_error& error) {
        return error.code();
    }
    return {};
}

} // namespace tessera
