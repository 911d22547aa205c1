// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileTime.h"
#include "Model/Folder.h"
#include "Model/LinkedNames.h"
#include "Model/ScanFindings.h"

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

    /// When the scan of it began, as timeBeforeChanges() tells it; 1970 where there was none.
    const FileTime& scanBegan() const { return m_scanBegan; }
    void setScanBegan(const FileTime& time) { m_scanBegan = time; }

    /// Of the whole tree below, while this is its root. Spliced into another tree it knows none:
    /// the root does.
    LinkedNames& linkedNames() { return m_linkedNames; }
    const LinkedNames& linkedNames() const { return m_linkedNames; }

    /// Of the whole tree below, likewise.
    ScanFindings& findings() { return m_findings; }
    const ScanFindings& findings() const { return m_findings; }

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
    FileTime m_scanBegan;
    LinkedNames m_linkedNames;
    ScanFindings m_findings;
};

/// The root of the scan that the node is in, whatever was spliced into that; null in a tree that is
/// no scan's.
[[nodiscard]] const TopFolder* rootOfScan(const File& node);
[[nodiscard]] TopFolder* rootOfScan(File& node);

/// When the scan began that has read the node last; 1970 in a tree that is no scan's.
[[nodiscard]] FileTime scanBeganOf(const File& node);

} // namespace tessera
