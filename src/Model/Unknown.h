// SPDX-License-Identifier: MIT
#pragma once

#include "Model/File.h"

namespace tessera {

/// Used space of a volume that the scan could not see. Stands for no real file.
class Unknown final : public File {
public:
    static constexpr NodeType kType = NodeType::Unknown;
    static bool isKind(NodeType type) { return type == kType; }

private:
    template <typename Node>
    friend std::unique_ptr<Node> makeNode(std::string_view fragment);

    Unknown()
        : File(kType)
    {
    }
};

} // namespace tessera
