// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Folder.h"

#include <string>

namespace tessera {

/// The root of a scan. It knows its own absolute path, also after it was spliced into another
/// tree in place of a rescanned folder.
class TopFolder : public Folder {
public:
    static constexpr NodeType kType = NodeType::TopFolder;
    static bool isKind(NodeType type) { return type >= NodeType::TopFolder; }

    ~TopFolder() = default;

    /// Absolute path of the scanned directory, as bytes.
    const std::string& origin() const { return m_origin; }
    void setOrigin(std::string origin) { m_origin = std::move(origin); }

    /// The same directory's path with no link in it, as it was when the directory was scanned; the
    /// origin itself where nobody told otherwise.
    const std::string& realOrigin() const { return m_realOrigin.empty() ? m_origin : m_realOrigin; }
    void setRealOrigin(std::string path) { m_realOrigin = std::move(path); }

protected:
    explicit TopFolder(NodeType type)
        : Folder(type)
    {
    }

private:
    template <typename Node>
    friend std::unique_ptr<Node> makeNode(std::string_view fragment);
    friend class File;

    TopFolder()
        : Folder(kType)
    {
    }

    std::string m_origin;
    std::string m_realOrigin;
};

} // namespace tessera
