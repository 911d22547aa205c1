// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>

namespace tessera::test {

/// Takes what the super-user may do beyond others away for a while.
class OrdinaryRights {
public:
    OrdinaryRights()
    {
        Capabilities none = m_before;
        for (__user_cap_data_struct& part : none) {
            part.effective = 0;
        }
        set(none);
    }
    OrdinaryRights(const OrdinaryRights&) = delete;
    OrdinaryRights& operator=(const OrdinaryRights&) = delete;
    ~OrdinaryRights() { set(m_before); }

private:
    using Capabilities = std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3>;

    static Capabilities current()
    {
        Capabilities capabilities{};
        __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
        EXPECT_EQ(::syscall(SYS_capget, &header, capabilities.data()), 0);
        return capabilities;
    }

    static void set(const Capabilities& capabilities)
    {
        __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
        EXPECT_EQ(::syscall(SYS_capset, &header, capabilities.data()), 0);
    }

    Capabilities m_before = current();
};

} // namespace tessera::test
