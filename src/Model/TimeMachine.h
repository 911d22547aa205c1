// SPDX-License-Identifier: MIT
#pragma once

#include "Model/File.h"

namespace tessera {

/// The space of a volume's backup store, which a scan does not walk. Stands for no real file.
class TimeMachine final : public File {
public:
    static constexpr NodeType kType = NodeType::TimeMachine;
    static bool isKind(NodeType type) { return type == kType; }

private:
    template <typename Node>
    friend std::unique_ptr<Node> makeNode(std::string_view fragment);

    TimeMachine()
        : File(kType)
    {
    }
};

} // namespace tessera
