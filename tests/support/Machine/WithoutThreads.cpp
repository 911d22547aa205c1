// SPDX-License-Identifier: MIT
#include "support/Machine/WithoutThreads.h"

#include "support/Machine/FailingCalls.h"

#include <sys/syscall.h>

#include <cerrno>
#include <thread>

namespace tessera::test {

bool withoutThreads(const std::function<void()>& work)
{
    bool isArranged = false;
    std::thread([&] {
        isArranged
            = makeCallFail({SYS_clone3, EAGAIN, {}}) && makeCallFail({SYS_clone, EAGAIN, {}});
        if (isArranged) {
            work();
        }
    }).join();
    return isArranged;
}

} // namespace tessera::test
