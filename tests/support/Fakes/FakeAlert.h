// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Alert.h"

#include <functional>
#include <vector>

namespace tessera::test {

/// Gives every question the same answer and writes down what was said.
class FakeAlert final : public Alert {
public:
    [[nodiscard]] int runModal(const AlertText& text) override
    {
        asked.push_back(text);
        if (meanwhile) {
            meanwhile();
        }
        return answer;
    }
    void beginSheet(const AlertText& text) override { told.push_back(text); }

    int answer = kFirstButton;
    std::function<void()> meanwhile; ///< what happens while a question is open
    std::vector<AlertText> asked;
    std::vector<AlertText> told;
};

} // namespace tessera::test
