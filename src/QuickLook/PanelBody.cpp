// SPDX-License-Identifier: MIT
#include "QuickLook/PanelBody.h"

#include "QuickLook/PreviewView.h"
#include "Widgets/Images.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QRegion>
#include <QToolButton>
#include <QVBoxLayout>

namespace tessera {

namespace {

constexpr int kHeaderHeight = 36;
constexpr int kCaptionHeight = 28;
constexpr int kButtonPoints = 22;
constexpr int kSideMargin = 8;
constexpr int kTitlePixels = 13;
constexpr int kCaptionPixels = 11;
constexpr double kCornerRadius = 10;
constexpr int kBorderWidth = 1;
constexpr int kBorderAlpha = 70;

QLabel* makeLabel(const QString& name, int pixels, QFont::Weight weight, QWidget* parent)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the parent owns it
    auto* const label = new QLabel(parent);
    QFont font = label->font();
    font.setPixelSize(pixels);
    font.setWeight(weight);
    label->setFont(font);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QPainterPath roundedPath(const QRectF& place)
{
    QPainterPath path;
    path.addRoundedRect(place, kCornerRadius, kCornerRadius);
    return path;
}

QString elided(const QLabel& label, const QString& text, int width, Qt::TextElideMode mode)
{
    return label.fontMetrics().elidedText(text, mode, width);
}

} // namespace

// NOLINTBEGIN(cppcoreguidelines-owning-memory): their parents own them
PanelBody::PanelBody(QWidget* parent)
    : QWidget(parent)
    , m_caption(makeLabel(QStringLiteral("caption"), kCaptionPixels, QFont::Normal, this))
    , m_view(new PreviewView(this))
{
    m_caption->setFixedHeight(kCaptionHeight);
    m_caption->setForegroundRole(QPalette::PlaceholderText);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(kBorderWidth, 0, kBorderWidth, 0);
    layout->setSpacing(0);
    layout->addWidget(makeHeader());
    layout->addWidget(m_view, 1);
    layout->addWidget(m_caption);
}

QWidget* PanelBody::makeHeader()
{
    auto* const header = new QWidget(this);
    header->setFixedHeight(kHeaderHeight);
    auto* const close = new QToolButton(header);
    close->setObjectName(QStringLiteral("closeButton"));
    // A theme's icon is made for the theme's own windows, which may be light where these are dark.
    close->setIcon(imageNamed("close"));
    close->setAutoRaise(true);
    close->setFocusPolicy(Qt::NoFocus);
    close->setFixedSize(kButtonPoints, kButtonPoints);
    close->setAccessibleName(tr("Close"));
    close->setToolTip(tr("Close"));
    connect(close, &QToolButton::clicked, this, &PanelBody::closeRequested);
    m_title = makeLabel(QStringLiteral("title"), kTitlePixels, QFont::DemiBold, header);
    auto* const layout = new QHBoxLayout(header);
    layout->setContentsMargins(kSideMargin, 0, kSideMargin + kButtonPoints, 0);
    layout->setSpacing(0);
    layout->addWidget(close);
    layout->addWidget(m_title, 1);
    return header;
}
// NOLINTEND(cppcoreguidelines-owning-memory)

void PanelBody::setTexts(const QString& title, const QString& caption)
{
    m_titleText = title;
    m_captionText = caption;
    m_caption->setVisible(!caption.isEmpty());
    fitTexts();
}

void PanelBody::fitTexts()
{
    m_title->setText(elided(
        *m_title, m_titleText, width() - 2 * (kSideMargin + kButtonPoints), Qt::ElideMiddle));
    m_caption->setText(
        elided(*m_caption, m_captionText, width() - 2 * kSideMargin, Qt::ElideRight));
}

void PanelBody::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fitTexts();
}

QSize PanelBody::preferredSize(const QSize& most) const
{
    const int captionHeight = m_captionText.isEmpty() ? 0 : kCaptionHeight;
    return m_view->preferredSize(mostContentSize(most))
        + QSize(2 * kBorderWidth, kHeaderHeight + captionHeight);
}

QSize PanelBody::mostContentSize(const QSize& most)
{
    return most - QSize(2 * kBorderWidth, kHeaderHeight + kCaptionHeight);
}

void PanelBody::paintGround(QPainter& painter, const QRectF& place, const QPalette& palette)
{
    constexpr double kHalfBorder = kBorderWidth / 2.0;
    QColor border = palette.color(QPalette::WindowText);
    border.setAlpha(kBorderAlpha);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(roundedPath(place), palette.color(QPalette::Window));
    painter.setPen(QPen(border, kBorderWidth));
    painter.drawPath(
        roundedPath(place.adjusted(kHalfBorder, kHalfBorder, -kHalfBorder, -kHalfBorder)));
}

QPixmap PanelBody::picture(const QSize& size, double scale)
{
    resize(size);
    QPixmap picture(size * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paintGround(painter, QRectF(QPointF(0, 0), size), palette());
    render(&painter, {}, {}, QWidget::DrawChildren);
    return picture;
}

QRegion PanelBody::groundRegion(const QRect& place)
{
    return {roundedPath(place).toFillPolygon().toPolygon()};
}

} // namespace tessera
