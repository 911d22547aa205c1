// SPDX-License-Identifier: MIT
#include "DrivenTreeScreen.h"

#include "EndToEnd/Desk/PixelColors.h"

namespace tessera::test {

namespace {

constexpr int kIconPixels = 16;

bool isBlackRow(const QImage& picture, int y)
{
    for (int x = 0; x < picture.width(); ++x) {
        if ((picture.pixel(x, y) & RGB_MASK) != 0) {
            return false;
        }
    }
    return true;
}

bool hasHueInColumn(const QImage& picture, int x)
{
    for (int y = 0; y < picture.height(); ++y) {
        if (hasHue(picture.pixel(x, y))) {
            return true;
        }
    }
    return false;
}

} // namespace

std::optional<QRect> mapOn(const XDesk& desk)
{
    const std::optional<XWindow> main = desk.window(XWindow::Kind::Main);
    const QImage picture = main ? desk.picture(main->frame) : QImage();
    // The map takes the window's whole width and alone has a black margin; bars do not.
    int top = 0;
    while (top < picture.height() && !isBlackRow(picture, top)) {
        ++top;
    }
    int bottom = picture.height();
    while (bottom > top && !isBlackRow(picture, bottom - 1)) {
        --bottom;
    }
    if (bottom == top) {
        return std::nullopt;
    }
    return QRect(0, top, picture.width(), bottom - top).translated(main->frame.topLeft());
}

std::vector<QPoint> pathIconsOn(const XDesk& desk)
{
    const std::optional<QRect> treeMap = mapOn(desk);
    if (!treeMap) {
        return {};
    }
    QRect bar = desk.window(XWindow::Kind::Main)->frame;
    bar.setBottom(treeMap->top() - 1);
    const QImage picture = desk.picture(bar);
    // Icons have colours, text and grooves are grey.
    std::vector<QPoint> icons;
    int left = 0;
    for (int x = 0; x < picture.width(); ++x) {
        if (!hasHueInColumn(picture, x)) {
            continue;
        }
        const bool isNext = icons.empty() || x > left + kIconPixels;
        if (isNext) {
            left = x;
            icons.push_back(bar.topLeft() + QPoint(x + kIconPixels / 2, picture.height() / 2));
        }
    }
    return icons;
}

} // namespace tessera::test
