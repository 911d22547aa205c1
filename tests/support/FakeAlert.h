// SPDX-License-Identifier: MIT
#pragma once

#include "Utils/Alert.h"

#include <vector>

namespace tessera::test {

/// Gives every question the same answer and writes down what was said.
class FakeAlert final : public Alert {
public:
    [[nodiscard]] int runModal(const AlertText& text) override
    {
        asked.push_back(text);
        return answer;
    }
    void beginSheet(const AlertText& text) override { told.push_back(text); }

    int answer = kFirstButton;
    std::vector<AlertText> asked;
    std::vector<AlertText> told;
};

} // namespace tessera::test
