// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/Styles.h"

#include "Widgets/ColorHelper.h"

#include <QFontDatabase>

namespace tessera {

namespace {

constexpr int kPixelSize = 10;
constexpr std::uint32_t kShadowRgba = 0xFFFFFF33;
constexpr std::uint32_t kSizeRgba = 0x000000B0;
constexpr std::uint32_t kSelectedSizeRgba = 0xFFFFFFE0;

/// Never released: a font must not outlive the application object, as a static one would.
const TextAttributes& makeAttributes(Qt::AlignmentFlag alignment, const QColor& foreground)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(kPixelSize);
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): it lives as long as the process
    return *new TextAttributes{font, Qt::ElideRight, alignment, foreground};
}

} // namespace

const TextAttributes& Styles::textAttributes()
{
    static const TextAttributes& attributes = makeAttributes(Qt::AlignHCenter, Qt::black);
    return attributes;
}

const TextAttributes& Styles::selectedTextAttributes()
{
    static const TextAttributes& attributes = makeAttributes(Qt::AlignHCenter, Qt::white);
    return attributes;
}

const TextAttributes& Styles::folderTextAttributes()
{
    static const TextAttributes& attributes = makeAttributes(Qt::AlignLeft, colorWithHex(0x000000));
    return attributes;
}

const TextAttributes& Styles::selectedFolderTextAttributes()
{
    static const TextAttributes& attributes = makeAttributes(Qt::AlignLeft, Qt::white);
    return attributes;
}

const TextAttributes& Styles::folderSizeAttributes()
{
    static const TextAttributes& attributes
        = makeAttributes(Qt::AlignLeft, colorWithRgba(kSizeRgba));
    return attributes;
}

const TextAttributes& Styles::selectedFolderSizeAttributes()
{
    static const TextAttributes& attributes
        = makeAttributes(Qt::AlignLeft, colorWithRgba(kSelectedSizeRgba));
    return attributes;
}

const TextAttributes& Styles::folderShadowTextAttributes()
{
    static const TextAttributes& attributes
        = makeAttributes(Qt::AlignLeft, colorWithRgba(kShadowRgba));
    return attributes;
}

} // namespace tessera
