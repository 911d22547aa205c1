// SPDX-License-Identifier: MIT
#include "HomeScreen/Parts/HomeItemView.h"

#include "HomeScreen/Parts/HomeColors.h"
#include "HomeScreen/Parts/SelectionBackground.h"

#include <QAccessible>
#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QPainter>

namespace tessera {

void HomeItemView::setSelected(bool selected)
{
    const bool isChange = m_selected != selected;
    m_selected = selected;
    updateColors();
    update();
    if (isChange) {
        tellScreenReaders();
    }
}

void HomeItemView::tellScreenReaders()
{
    QAccessible::State changed;
    changed.selected = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void HomeItemView::setUnavailable(bool unavailable)
{
    m_unavailable = unavailable;
    updateAlphaValue();
    update();
}

double HomeItemView::alphaValue() const
{
    const auto* const effect = qobject_cast<QGraphicsOpacityEffect*>(graphicsEffect());
    return effect != nullptr ? effect->opacity() : 1.0;
}

HomeItemView::TextColors HomeItemView::textColors() const
{
    const HomeColors colors(palette());
    if (!m_selected) {
        return {colors.name, colors.detail};
    }
    // Where the user is not working, the background is too pale for white texts.
    const bool isPale = isVisible() && !isActiveWindow();
    return isPale ? TextColors{colors.inactiveName, colors.inactiveDetail}
                  : TextColors{colors.selectedName, colors.selectedDetail};
}

void HomeItemView::setAlphaValue(double alpha)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the view owns it
    auto* const effect = new QGraphicsOpacityEffect;
    effect->setOpacity(alpha);
    setGraphicsEffect(effect);
}

void HomeItemView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (m_selected) {
        paintSelectionBackground(painter, rect(), palette(), isActiveWindow());
        paintIconBackground(painter, imageView().geometry(), palette());
    } else if (isNextForKeys()) {
        paintSelectionOutline(painter, rect(), palette());
    }
}

void HomeItemView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange) {
        updateColors();
    }
    CollectionItemView::changeEvent(event);
}

bool HomeItemView::event(QEvent* event)
{
    const bool result = CollectionItemView::event(event);
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate) {
        updateColors();
        update();
    }
    return result;
}

} // namespace tessera
