// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Url.h"
#include "Utils/Workspace.h"

#include <string>
#include <vector>

namespace tessera::test {

/// A desktop that writes down what it is asked for.
class FakeWorkspace final : public Workspace {
public:
    [[nodiscard]] bool openUrl(const std::string& absoluteUrl) override
    {
        opened.push_back(absoluteUrl);
        return answer;
    }

    [[nodiscard]] bool reveal(const Url& item) override
    {
        revealed.push_back(item.path());
        return answer;
    }

    bool answer = true;
    std::vector<std::string> opened;
    std::vector<std::string> revealed;
};

} // namespace tessera::test
