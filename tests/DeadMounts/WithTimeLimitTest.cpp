// SPDX-License-Identifier: MIT
#include "DeadMounts/WithTimeLimit.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace tessera {
namespace {

struct Service {
    int answer = 0;
};

// Neither gets in the other's place.
static_assert(!std::is_convertible_v<const Service&, WithTimeLimit<Service>>);
static_assert(!std::is_convertible_v<WithTimeLimit<Service>, const Service&>);

TEST(WithTimeLimit, IsTheServiceItself)
{
    const Service service{42};
    const WithTimeLimit<Service> limited(service);
    EXPECT_EQ(limited->answer, 42);
    EXPECT_EQ(&*limited, &service);
}

} // namespace
} // namespace tessera
