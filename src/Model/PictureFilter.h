// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

/// What the picture leaves out. The tree's sizes stay as they are.
class PictureFilter final {
public:
    /// The free space of a volume.
    bool ignoreFreeSpace() const { return m_ignoreFreeSpace; }
    void setIgnoreFreeSpace(bool on) { m_ignoreFreeSpace = on; }

    /// Nodes that the file system hides.
    bool ignoreHiddenFiles() const { return m_ignoreHiddenFiles; }
    void setIgnoreHiddenFiles(bool on) { m_ignoreHiddenFiles = on; }

    /// The space of a volume that the scan could not account for.
    bool ignoreRestrictedFiles() const { return m_ignoreRestrictedFiles; }
    void setIgnoreRestrictedFiles(bool on) { m_ignoreRestrictedFiles = on; }

private:
    bool m_ignoreFreeSpace = false;
    bool m_ignoreHiddenFiles = false;
    bool m_ignoreRestrictedFiles = false;
};

} // namespace tessera
