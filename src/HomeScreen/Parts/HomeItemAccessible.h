// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

namespace tessera {

class HomeItemView;

/// Tells screen readers whether an item of the home screen is selected.
class HomeItemAccessible final : public QAccessibleWidget {
public:
    explicit HomeItemAccessible(HomeItemView& item);

    [[nodiscard]] QAccessible::State state() const override;
};

/// Has screen readers ask in this way; further calls do nothing.
void installHomeItemAccessible();

} // namespace tessera
