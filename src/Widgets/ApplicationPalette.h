// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/ColorSchemePreference.h"

namespace tessera {

/// Keeps the colours of all windows dark or light as the user asked the desktop, while it lives.
///
/// Only where nobody else does: colours that come from the desktop's own plugin for Qt or from
/// another style than Fusion stay as they are, and so does what a Qt that follows the desktop by
/// itself chooses.
class ApplicationPalette final {
public:
    /// `preference` must outlive it, and so must the application object. Windows that are made
    /// afterwards have the right colours at once.
    explicit ApplicationPalette(ColorSchemePreference& preference);
    ApplicationPalette(const ApplicationPalette&) = delete;
    ApplicationPalette& operator=(const ApplicationPalette&) = delete;
    /// Leaves the colours as they are.
    ~ApplicationPalette();

private:
    void apply() const;

    ColorSchemePreference& m_preference;
};

} // namespace tessera
