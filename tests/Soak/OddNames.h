// SPDX-License-Identifier: MIT
#pragma once

#include "Random.h"

#include <string>

namespace tessera::test {

/// A name such as disks really have: mostly plain, now and then hidden, as long as names may be,
/// not UTF-8, with a line break, or one that looks like markup or an option. `number` tells it from
/// others.
std::string oddName(Random& random, int number);

} // namespace tessera::test
