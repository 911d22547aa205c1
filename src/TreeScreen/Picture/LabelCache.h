// SPDX-License-Identifier: MIT
#pragma once

#include "TreeScreen/Picture/PixelCanvas.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

class QFont;
class QGlyphRun;
class QString;

namespace tessera {

/// One line of text ready to be placed, in whole device pixels.
struct ShapedLabel {
    struct Glyph {
        const GlyphMask* mask;
        int penX; ///< from the start of the line
        int offsetY; ///< from the baseline, downward
    };

    std::vector<Glyph> glyphs;
    std::vector<int> ends; ///< where the line can be cut, ascending; the last is its width
    int inkAscent = 0; ///< how far its ink reaches above the baseline
    bool runsLeftward = false; ///< holds right-to-left text, whose tail is not at the right

    int width() const { return ends.empty() ? 0 : ends.back(); }
};

/// The labels' text as pixels. Shaping text and drawing its glyphs is slow, and a resized window
/// shows the same names over and over, so both are kept; cutting a line to its width is then
/// arithmetic. Holds no font objects, so that it may outlive the application object.
///
/// prepare() needs the main thread. Between calls to it, any threads may call find().
class LabelCache {
public:
    /// Starts a picture: `pixelSize` is the font's size in device pixels.
    void setFontSize(int pixelSize);

    /// Makes ready what find() is to return for the same name and width.
    void prepare(std::string_view name, int width);

    /// The name's line, or null when it was not prepared. It may be wider than `width`.
    const ShapedLabel* find(std::string_view name, int width) const;

    /// The mark that stands for what was cut off.
    const ShapedLabel& ellipsis() const { return m_ellipsis; }

    /// From the top of a box of that height to the line's baseline. Letters that are higher than
    /// the font says, such as those with two accents, move it down as far as there is room below.
    int baseline(const ShapedLabel& label, int height) const;

private:
    struct TextHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const noexcept
        {
            return std::hash<std::string_view>{}(text);
        }
    };

    static std::string elidedKey(std::string_view name, int width);
    QFont font() const;
    ShapedLabel shape(const QString& text);
    void addGlyphs(const QGlyphRun& run, double ascent, ShapedLabel& label);

    int m_pixelSize = 0;
    int m_ascent = 0;
    int m_descent = 0;
    ShapedLabel m_ellipsis;
    std::unordered_map<std::string, ShapedLabel, TextHash, std::equal_to<>> m_labels;
    std::map<std::pair<std::string, std::uint32_t>, GlyphMask> m_glyphs; ///< by font and index
};

} // namespace tessera
