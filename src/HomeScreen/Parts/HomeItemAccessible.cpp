// SPDX-License-Identifier: MIT
#include "HomeScreen/Parts/HomeItemAccessible.h"

#include "HomeScreen/Parts/HomeItemView.h"

namespace tessera {

namespace {

QAccessibleInterface* makeHomeItemAccessible(const QString& /*className*/, QObject* object)
{
    auto* const item = qobject_cast<HomeItemView*>(object);
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): Qt owns it
    return item == nullptr ? nullptr : new HomeItemAccessible(*item);
}

} // namespace

HomeItemAccessible::HomeItemAccessible(HomeItemView& item)
    : QAccessibleWidget(&item)
{
}

QAccessible::State HomeItemAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.selectable = true;
    state.selected = qobject_cast<HomeItemView*>(object())->selected();
    return state;
}

void installHomeItemAccessible()
{
    QAccessible::installFactory(&makeHomeItemAccessible);
}

} // namespace tessera
