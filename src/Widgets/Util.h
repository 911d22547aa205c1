// SPDX-License-Identifier: MIT
#pragma once

#include "Base/CoreUtil.h"

#include <QWidget>
#include <Qt>

#include <memory>
#include <string_view>

namespace tessera {

/// The stateless helpers of views and controllers: those of the core and those that need a window
/// system. Main thread only.
class Util : public CoreUtil {
public:
    /// How views shorten a text that is too long: at its tail.
    static Qt::TextElideMode truncatedParagraphStyle() { return Qt::ElideRight; }

    /// Builds the interface file of that name and returns its top-level view; null when there is
    /// no such file or its view is no `View`.
    template <typename View>
    static std::unique_ptr<View> loadViewFromNib(std::string_view name)
    {
        std::unique_ptr<QWidget> topLevel = loadNib(name);
        auto* const view = qobject_cast<View*>(topLevel.get());
        if (view != nullptr) {
            static_cast<void>(topLevel.release());
        }
        return std::unique_ptr<View>(view);
    }

private:
    static std::unique_ptr<QWidget> loadNib(std::string_view name);
};

} // namespace tessera
