// SPDX-License-Identifier: MIT
#pragma once

#include "Model/File.h"

namespace tessera {

/// A regular file, or anything else that is not a directory.
class Document final : public File {
public:
    static constexpr NodeType kType = NodeType::Document;
    static bool isKind(NodeType type) { return type == kType; }

private:
    template <typename Node>
    friend std::unique_ptr<Node> makeNode(std::string_view fragment);

    Document()
        : File(kType)
    {
    }
};

} // namespace tessera
