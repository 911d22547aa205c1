// SPDX-License-Identifier: MIT
#include "TreeScreen/Tooltip/TooltipWindow.h"

#include "ui_TooltipWindow.h"

#include <QEvent>
#include <QPainter>
#include <QToolTip>

namespace tessera {

namespace {

constexpr double kDimmedTextShare = 0.62;
constexpr double kBorderShare = 0.25;

/// `share` of the one colour over the rest of the other.
QColor blended(const QColor& over, const QColor& under, double share)
{
    const auto channel
        = [share](int above, int below) { return qRound(above * share + below * (1 - share)); };
    return {
        channel(over.red(), under.red()),
        channel(over.green(), under.green()),
        channel(over.blue(), under.blue())};
}

} // namespace

TooltipWindow::TooltipWindow(QWidget* parent)
    : QWidget(
        parent,
        Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowTransparentForInput
            | Qt::WindowDoesNotAcceptFocus)
    , m_ui(std::make_unique<Ui::TooltipWindow>())
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
    adoptTooltipColours();
    m_ui->setupUi(this);
}

TooltipWindow::~TooltipWindow() = default;

bool TooltipWindow::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationPaletteChange) {
        adoptTooltipColours();
    }
    return QWidget::event(event);
}

void TooltipWindow::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QColor ground = palette().color(QPalette::Window);
    // Filled edges stay one point wide at every scale factor.
    painter.fillRect(rect(), blended(palette().color(QPalette::WindowText), ground, kBorderShare));
    painter.fillRect(rect().adjusted(1, 1, -1, -1), ground);
}

void TooltipWindow::adoptTooltipColours()
{
    const QPalette tooltips = QToolTip::palette();
    const QColor ground = tooltips.color(QPalette::Inactive, QPalette::ToolTipBase);
    const QColor text = tooltips.color(QPalette::Inactive, QPalette::ToolTipText);
    QPalette own = palette();
    own.setColor(QPalette::Window, ground);
    own.setColor(QPalette::WindowText, text);
    own.setColor(QPalette::PlaceholderText, blended(text, ground, kDimmedTextShare));
    setPalette(own);
}

} // namespace tessera
