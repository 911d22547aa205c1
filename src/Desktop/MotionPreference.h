// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

/// Whether the user asked the desktop to keep still. Main thread only.
class MotionPreference {
public:
    MotionPreference() = default;
    MotionPreference(const MotionPreference&) = delete;
    MotionPreference& operator=(const MotionPreference&) = delete;
    virtual ~MotionPreference() = default;

    /// True when what changes on screen is to change at once. Asked before each animation, so that
    /// a change of the setting counts from then on.
    [[nodiscard]] virtual bool reducesMotion() const = 0;
};

} // namespace tessera
