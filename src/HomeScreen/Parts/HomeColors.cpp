// SPDX-License-Identifier: MIT
#include "HomeScreen/Parts/HomeColors.h"

#include "Widgets/ColorHelper.h"

namespace tessera {

HomeColors::HomeColors(const QPalette& palette)
    : name(Qt::black)
    , detail(colorWithHex(0x555555))
    , faint(colorWithHex(0x6E6E6E))
    , selectedName(Qt::white)
    , selectedDetail(colorWithHex(0xE6E9F1))
    , selection(colorWithHex(0x2E66C4))
    , inactiveSelection(colorWithHex(0xD4D4D4))
    , inactiveName(Qt::black)
    , inactiveDetail(colorWithHex(0x555555))
    , panelTop(colorWithHex(0xD2D2D2))
    , panelBottom(colorWithHex(0xA0A0AA))
    , buttonTop(colorWithHex(0xF8F8F8))
    , buttonBottom(colorWithHex(0xE6E6E6))
    , outline(colorWithHex(0x9B9B9B))
{
    if (!isDark(palette)) {
        return;
    }
    name = colorWithHex(0xF2F2F2);
    detail = colorWithHex(0xB4B4B8);
    faint = colorWithHex(0x9A9A9E);
    selectedDetail = colorWithHex(0xDCE0EA);
    selection = colorWithHex(0x2B60BA);
    inactiveSelection = colorWithHex(0x4A4C54);
    inactiveName = name;
    inactiveDetail = colorWithHex(0xC3C7D1);
    panelTop = colorWithHex(0x54545A);
    panelBottom = colorWithHex(0x3E3E46);
    buttonTop = colorWithHex(0x56565A);
    buttonBottom = colorWithHex(0x46464A);
    outline = colorWithHex(0x6A6A70);
}

} // namespace tessera
