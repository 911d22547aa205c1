// SPDX-License-Identifier: MIT
#include "OddNames.h"

#include <vector>

namespace tessera::test {

namespace {

constexpr int kPlainOfEach = 3;
constexpr std::size_t kLongestName = 255;

} // namespace

std::string oddName(Random& random, int number)
{
    const std::string digits = std::to_string(number);
    if (!random.oneIn(kPlainOfEach)) {
        return "item " + digits;
    }
    const std::string longName(kLongestName - digits.size(), 'w');
    const std::vector<std::string> starts{
        ".hidden ",
        longName,
        "not \xFF\xFE utf-8 ",
        "two\nlines ",
        "<b>bold ",
        "--option ",
        "100% & ümlaut ",
        "pic.png ",
        " ",
    };
    return random.pick(starts) + digits;
}

} // namespace tessera::test
