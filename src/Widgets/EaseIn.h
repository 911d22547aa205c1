// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

/// The timing of motions that begin slowly: the cubic Bezier curve from (0, 0) to (1, 1) with the
/// control points (0.42, 0) and (1, 1). Takes the part of the time that has passed, 0 to 1, and
/// gives the part of the way.
double easeIn(double timePassed);

} // namespace tessera
