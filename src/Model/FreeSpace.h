// SPDX-License-Identifier: MIT
#pragma once

#include "Model/File.h"

namespace tessera {

/// The space of a volume that no file uses. Stands for no real file.
class FreeSpace final : public File {
public:
    static constexpr NodeType kType = NodeType::FreeSpace;
    static bool isKind(NodeType type) { return type == kType; }

private:
    template <typename Node>
    friend std::unique_ptr<Node> makeNode(std::string_view fragment);

    FreeSpace()
        : File(kType)
    {
    }
};

} // namespace tessera
