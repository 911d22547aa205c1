// SPDX-License-Identifier: MIT
#include "TreeScreen/Status/StatusLine.h"

#include <QAccessibleWidget>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace tessera {

namespace {

const QString kSeparator = QStringLiteral("  ·  ");

/// The name keeps this part of the line, be the figures as long as they like.
constexpr int kLeastPartOfName = 3;

class StatusLineAccessible final : public QAccessibleWidget {
public:
    explicit StatusLineAccessible(StatusLine& line)
        : QAccessibleWidget(&line, QAccessible::StaticText)
        , m_line(line)
    {
    }

    QString text(QAccessible::Text what) const override
    {
        const bool isAsked = what == QAccessible::Name || what == QAccessible::Value;
        return isAsked ? m_line.text() : QAccessibleWidget::text(what);
    }

private:
    const StatusLine& m_line;
};

QAccessibleInterface* makeStatusLineAccessible(const QString& /*className*/, QObject* object)
{
    auto* const line = qobject_cast<StatusLine*>(object);
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): Qt owns it
    return line == nullptr ? nullptr : new StatusLineAccessible(*line);
}

void installStatusLineAccessible()
{
    static const bool isInstalled = [] {
        QAccessible::installFactory(&makeStatusLineAccessible);
        return true;
    }();
    Q_UNUSED(isInstalled)
}

} // namespace

StatusLine::StatusLine(QWidget* parent)
    : QWidget(parent)
{
    installStatusLineAccessible();
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void StatusLine::setStatus(const ItemStatus& status)
{
    if (status == m_status) {
        return;
    }
    m_status = status;
    QAccessibleEvent changed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&changed);
    update();
}

QString StatusLine::text() const
{
    return (QStringList(m_status.name) + m_status.figures).join(QStringLiteral(", "));
}

StatusLine::Parts StatusLine::shownParts() const
{
    const QFontMetrics metrics = fontMetrics();
    const QString figures
        = m_status.figures.isEmpty() ? QString() : kSeparator + m_status.figures.join(kSeparator);
    const int roomForName
        = std::max(width() - metrics.horizontalAdvance(figures), width() / kLeastPartOfName);
    Parts parts;
    parts.name = metrics.elidedText(m_status.name, Qt::ElideMiddle, roomForName);
    const int roomForFigures = width() - metrics.horizontalAdvance(parts.name);
    parts.figures = metrics.elidedText(figures, Qt::ElideRight, roomForFigures);
    return parts;
}

QSize StatusLine::sizeHint() const
{
    return {0, fontMetrics().height()};
}

void StatusLine::paintEvent(QPaintEvent* /*event*/)
{
    const Parts parts = shownParts();
    const int nameWidth = fontMetrics().horizontalAdvance(parts.name);
    QPainter painter(this);
    painter.setLayoutDirection(layoutDirection());
    painter.setPen(palette().color(foregroundRole()));
    // Apart from each other, lest the direction of a name's letters carries the figures along.
    const auto draw = [&](const QRect& part, const QString& text) {
        painter.drawText(
            QStyle::visualRect(layoutDirection(), rect(), part),
            static_cast<int>(
                QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter)
                | Qt::TextSingleLine,
            text);
    };
    draw(QRect(0, 0, nameWidth, height()), parts.name);
    draw(QRect(nameWidth, 0, width() - nameWidth, height()), parts.figures);
}

} // namespace tessera
