// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

namespace tessera {

/// The texts of windows and menus that name parts of a system, in this system's words; all other
/// texts stay as they are. To be installed before the translations into the user's language, which
/// begin with these texts.
class LinuxWords final : public QTranslator {
public:
    [[nodiscard]] bool isEmpty() const override { return false; }

    /// A null string where the text names no part of a system.
    [[nodiscard]] QString translate(
        const char* context,
        const char* sourceText,
        const char* disambiguation = nullptr,
        int n = -1) const override;
};

} // namespace tessera
