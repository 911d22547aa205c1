// SPDX-License-Identifier: MIT
#include "ScanScreen/DockImage.h"

#include "Widgets/Bar.h"
#include "Widgets/ColorHelper.h"
#include "Widgets/Images.h"

#include <QIcon>
#include <QLabel>

namespace tessera {

namespace {

constexpr std::uint32_t kLightHex = 0x6485F4;
constexpr std::uint32_t kDarkHex = 0x2B5CF1;
constexpr int kBarMargin = 6; ///< on either side
constexpr int kBarBottom = 10; ///< from the picture's lower edge
constexpr int kBarHeight = 20;

} // namespace

// NOLINTBEGIN(cppcoreguidelines-owning-memory): the parent owns them
DockImage::DockImage()
    : m_imageView(new QLabel(this))
    , m_barView(new Bar(this))
// NOLINTEND(cppcoreguidelines-owning-memory)
{
    setAttribute(Qt::WA_TranslucentBackground);
    // The launcher has it beside other programs' pictures, whatever this one's windows look like.
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::WindowText, Qt::black);
    m_barView->setPalette(palette);
    m_barView->setLightColor(colorWithHex(kLightHex));
    m_barView->setDarkColor(colorWithHex(kDarkHex));
}

void DockImage::setFrame(const QRect& frame)
{
    setGeometry(frame);
    m_imageView->setGeometry(rect());
    m_imageView->setPixmap(imageNamed("bullseye").pixmap(frame.size(), devicePixelRatioF()));
    m_barView->setGeometry(
        kBarMargin,
        frame.height() - kBarBottom - kBarHeight,
        frame.width() - 2 * kBarMargin,
        kBarHeight);
}

void DockImage::setPercent(double fraction)
{
    m_barView->setPercentFilled(fraction);
}

double DockImage::percent() const
{
    return m_barView->percentFilled();
}

} // namespace tessera
