// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/MotionPreference.h"

namespace tessera::test {

class FakeMotionPreference final : public MotionPreference {
public:
    [[nodiscard]] bool reducesMotion() const override { return reduced; }

    bool reduced = false;
};

} // namespace tessera::test
