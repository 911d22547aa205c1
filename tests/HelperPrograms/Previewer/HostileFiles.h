// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tessera::test {

/// A PDF of ten levels of drawings, each of which draws the next one ten times: 10^10 rectangles,
/// which the reader keeps in memory.
std::string pdfThatTakesAllMemory();

/// A PDF whose one page is a shading that takes hundreds of thousands of steps for each pixel.
std::string pdfThatNeverEnds();

/// A progressive JPEG of a few hundred bytes that claims to be 16,000 pixels wide and high. Its
/// decoder keeps coefficients of the whole image.
std::string jpegThatTakesAllMemory();

} // namespace tessera::test
