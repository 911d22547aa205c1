// SPDX-License-Identifier: MIT
#include "TreeScreen/PathBar/ToolbarPathItem.h"

#include "TreeScreen/PathBar/ToolbarPathControl.h"

#include <QResizeEvent>

namespace tessera {

ToolbarPathItem::ToolbarPathItem(QWidget* parent)
    : QWidget(parent)
    , m_pathControl(new ToolbarPathControl(this))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize ToolbarPathItem::sizeHint() const
{
    return m_pathControl->sizeHint();
}

QSize ToolbarPathItem::minimumSizeHint() const
{
    return m_pathControl->minimumSizeHint();
}

void ToolbarPathItem::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_pathControl->setFrame({0, 0, static_cast<double>(width()), static_cast<double>(height())});
}

} // namespace tessera
