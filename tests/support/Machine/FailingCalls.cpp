// SPDX-License-Identifier: MIT
#include "support/Machine/FailingCalls.h"

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>

#include <cstddef>
#include <vector>

namespace tessera::test {

namespace {

constexpr unsigned short kLoad = BPF_LD | BPF_W | BPF_ABS;
constexpr unsigned short kJumpIfEqual = BPF_JMP | BPF_JEQ | BPF_K;
constexpr unsigned short kReturn = BPF_RET | BPF_K;
constexpr std::uint32_t kThirdArgument = offsetof(seccomp_data, args) + 2 * sizeof(std::uint64_t);

} // namespace

bool makeCallFail(const FailingCall& call)
{
    const auto number = static_cast<std::uint32_t>(call.number);
    const auto error = static_cast<std::uint32_t>(call.error);
    std::vector<sock_filter> program{
        {kLoad, 0, 0, offsetof(seccomp_data, nr)},
        {kJumpIfEqual, 1, 0, number},
        {kReturn, 0, 0, SECCOMP_RET_ALLOW}};
    if (call.thirdArgument) {
        program.push_back({kLoad, 0, 0, kThirdArgument});
        program.push_back({kJumpIfEqual, 1, 0, *call.thirdArgument});
        program.push_back({kReturn, 0, 0, SECCOMP_RET_ALLOW});
    }
    program.push_back({kReturn, 0, 0, SECCOMP_RET_ERRNO | error});
    const sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0
        && ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

} // namespace tessera::test
