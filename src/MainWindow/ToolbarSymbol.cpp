// SPDX-License-Identifier: MIT
#include "MainWindow/ToolbarSymbol.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <cmath>
#include <numbers>

namespace tessera {

namespace {

// Symbols are designed in a square of this side, y downward.
constexpr double kSide = 20;
constexpr double kPenWidth = 1.6;
constexpr QPointF kMiddle(kSide / 2, kSide / 2);

QPainterPath house()
{
    QPainterPath path;
    path.moveTo(2, 10.5);
    path.lineTo(10, 3);
    path.lineTo(18, 10.5);
    path.moveTo(4.5, 8.5);
    path.lineTo(4.5, 17);
    path.lineTo(15.5, 17);
    path.lineTo(15.5, 8.5);
    path.moveTo(8, 17);
    path.lineTo(8, 12);
    path.lineTo(12, 12);
    path.lineTo(12, 17);
    return path;
}

QPainterPath gear()
{
    constexpr int kTeeth = 8;
    constexpr double kInner = 5.8;
    constexpr double kOuter = 8.2;
    constexpr double kHole = 2.6;
    constexpr double kStep = 2 * std::numbers::pi / kTeeth;
    const auto at = [](double angle, double radius) {
        return kMiddle + QPointF(std::cos(angle), std::sin(angle)) * radius;
    };
    QPainterPath path;
    for (int i = 0; i < kTeeth; ++i) {
        const double middle = i * kStep;
        const QPointF begin = at(middle - kStep * 0.30, kInner);
        if (i == 0) {
            path.moveTo(begin);
        } else {
            path.lineTo(begin);
        }
        path.lineTo(at(middle - kStep * 0.17, kOuter));
        path.lineTo(at(middle + kStep * 0.17, kOuter));
        path.lineTo(at(middle + kStep * 0.30, kInner));
    }
    path.closeSubpath();
    path.addEllipse(kMiddle, kHole, kHole);
    return path;
}

QPainterPath crossedEye()
{
    constexpr double kPupil = 2.4;
    QPainterPath path;
    path.moveTo(1.5, 10);
    path.quadTo(10, 0.5, 18.5, 10);
    path.quadTo(10, 19.5, 1.5, 10);
    path.closeSubpath();
    path.addEllipse(kMiddle, kPupil, kPupil);
    path.moveTo(3.5, 16.5);
    path.lineTo(16.5, 3.5);
    return path;
}

QPainterPath pathOf(ToolbarSymbol symbol)
{
    switch (symbol) {
    case ToolbarSymbol::Home:
        return house();
    case ToolbarSymbol::Actions:
        return gear();
    case ToolbarSymbol::Ignore:
        break;
    }
    return crossedEye();
}

class SymbolEngine final : public QIconEngine {
public:
    explicit SymbolEngine(ToolbarSymbol symbol)
        : m_path(pathOf(symbol))
    {
    }

    void paint(
        QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor color = QGuiApplication::palette().color(group, QPalette::ButtonText);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / kSide, rect.height() / kSide);
        painter->setPen(QPen(color, kPenWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(m_path);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return picture;
    }

    QIconEngine* clone() const override
    {
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the icon that asks for it owns it
        return new SymbolEngine(*this);
    }

private:
    QPainterPath m_path;
};

} // namespace

QIcon iconOf(ToolbarSymbol symbol)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the icon owns it
    return QIcon(new SymbolEngine(symbol));
}

} // namespace tessera
