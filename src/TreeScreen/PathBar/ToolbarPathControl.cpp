// SPDX-License-Identifier: MIT
#include "TreeScreen/PathBar/ToolbarPathControl.h"

#include "TreeScreen/PathBar/PathComponentButton.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tessera {

namespace {

constexpr int kMarginAbove = 2;
constexpr double kEndMargin = 4.0;

int wholePoints(double length)
{
    return static_cast<int>(std::ceil(length));
}

} // namespace

ToolbarPathControl::ToolbarPathControl(QWidget* parent)
    : QWidget(parent)
{
    setAccessibleName(tr("Path of the folder in view"));
}

ToolbarPathControl::~ToolbarPathControl() = default;

void ToolbarPathControl::setFrame(const Rect& requested)
{
    m_toolbarRequestedRect = requested;
    const double width = std::min(requested.width, naturalSize().width());
    setGeometry(
        qRound(requested.x), qRound(requested.y), wholePoints(width), qRound(requested.height));
    placeButtons();
}

void ToolbarPathControl::refreshWidth()
{
    setFrame(Rect(m_toolbarRequestedRect));
}

void ToolbarPathControl::setPathComponents(const std::vector<PathComponent>& components)
{
    const bool hadFocus = focusedIndex().has_value();
    while (m_buttons.size() > components.size()) {
        removeLastButton();
    }
    for (std::size_t i = 0; i < components.size(); ++i) {
        if (i < m_buttons.size()) {
            m_buttons[i]->setComponent(components[i]);
        } else {
            m_buttons.push_back(addButton(components[i]));
        }
    }
    if (!m_buttons.empty()) {
        letTabReach(m_buttons.size() - 1);
        if (hadFocus) {
            m_buttons.back()->setFocus(Qt::OtherFocusReason);
        }
    }
    placeButtons();
}

std::vector<PathComponent> ToolbarPathControl::pathComponents() const
{
    std::vector<PathComponent> components;
    for (const PathComponentButton* button : m_buttons) {
        components.push_back(button->component());
    }
    return components;
}

QSizeF ToolbarPathControl::naturalSize() const
{
    QSizeF size(0, 0);
    for (const PathComponentButton* button : m_buttons) {
        const QSize natural = button->sizeHint();
        size.rwidth() += natural.width();
        size.setHeight(std::max<double>(size.height(), natural.height()));
    }
    return size + QSizeF(PathComponentButton::kLead + kEndMargin, 2 * kMarginAbove);
}

const PathComponent* ToolbarPathControl::clickedPathComponent() const
{
    return m_clickedComponent ? &*m_clickedComponent : nullptr;
}

QSize ToolbarPathControl::sizeHint() const
{
    return {wholePoints(naturalSize().width()), wholePoints(naturalSize().height())};
}

QSize ToolbarPathControl::minimumSizeHint() const
{
    return {wholePoints(kIconComponentWidth), sizeHint().height()};
}

void ToolbarPathControl::keyPressEvent(QKeyEvent* event)
{
    const std::optional<std::size_t> focused = focusedIndex();
    const bool isLeft = event->key() == Qt::Key_Left;
    if (!focused || (!isLeft && event->key() != Qt::Key_Right)) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (const auto next = shownIndex(*focused, isLeft ? -1 : 1)) {
        letTabReach(*next);
        m_buttons[*next]->setFocus(Qt::OtherFocusReason);
    }
}

void ToolbarPathControl::paintEvent(QPaintEvent* /*event*/)
{
    if (!m_widths.hasGap() || m_widths.widths.front() == 0) {
        return;
    }
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const QRectF gap(
        PathComponentButton::kLead + m_widths.widths.front(), 0, kPathGapWidth, height());
    painter.drawText(gap, Qt::AlignLeft | Qt::AlignVCenter, QString(QChar(0x2026)));
}

void ToolbarPathControl::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    placeButtons();
}

PathComponentButton* ToolbarPathControl::addButton(const PathComponent& component)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the parent owns it
    auto* const button = new PathComponentButton(component, this);
    connect(button, &PathComponentButton::clicked, this, [this, button] {
        m_clickedComponent = button->component();
        emit clicked();
    });
    button->show();
    return button;
}

void ToolbarPathControl::removeLastButton()
{
    PathComponentButton* const button = m_buttons.back();
    m_buttons.pop_back();
    button->hide();
    // It may be the one whose click is being handled.
    button->deleteLater();
}

void ToolbarPathControl::placeButtons()
{
    std::vector<double> natural;
    for (const PathComponentButton* button : m_buttons) {
        natural.push_back(button->sizeHint().width());
    }
    m_widths = pathComponentWidths(natural, width() - PathComponentButton::kLead - kEndMargin);
    // A button reaches beyond its component to the left and ends where the next one begins.
    double x = 0;
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        const double componentWidth = m_widths.widths[i];
        PathComponentButton* const button = m_buttons[i];
        const int buttonHeight = button->sizeHint().height();
        button->setGeometry(
            qRound(x), (height() - buttonHeight) / 2, qRound(componentWidth), buttonHeight);
        button->setVisible(componentWidth > 0);
        const bool isBeforeGap = i == 0 && m_widths.hasGap() && componentWidth > 0;
        x += componentWidth + (isBeforeGap ? kPathGapWidth : 0);
    }
    const bool isTabLost = std::any_of(m_buttons.begin(), m_buttons.end(), [](const auto* button) {
        return button->isHidden() && button->focusPolicy() != Qt::NoFocus;
    });
    if (isTabLost) {
        letTabReach(m_buttons.size() - 1);
    }
    update();
}

void ToolbarPathControl::letTabReach(std::size_t index)
{
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        m_buttons[i]->setFocusPolicy(i == index ? Qt::TabFocus : Qt::NoFocus);
    }
}

std::optional<std::size_t> ToolbarPathControl::focusedIndex() const
{
    const auto found = std::find_if(
        m_buttons.begin(), m_buttons.end(), [](const auto* button) { return button->hasFocus(); });
    if (found == m_buttons.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - m_buttons.begin());
}

std::optional<std::size_t> ToolbarPathControl::shownIndex(std::size_t from, int step) const
{
    const auto count = static_cast<std::ptrdiff_t>(m_buttons.size());
    for (auto i = static_cast<std::ptrdiff_t>(from) + step; i >= 0 && i < count; i += step) {
        const auto index = static_cast<std::size_t>(i);
        if (!m_buttons[index]->isHidden()) {
            return index;
        }
    }
    return std::nullopt;
}

} // namespace tessera
