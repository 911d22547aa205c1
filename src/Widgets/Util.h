// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <memory>
#include <string_view>

namespace tessera {

/// The stateless helpers of views and controllers. Main thread only.
class Util {
public:
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
