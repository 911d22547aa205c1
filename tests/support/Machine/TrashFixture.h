// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Trash/FreedesktopTrash.h"
#include "support/Machine/FileContent.h"
#include "support/Machine/OwnMounts.h"
#include "support/Machine/TempTree.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tessera::test {

/// Everything below a folder, mounts included: for each item a line with its path, kind, mode,
/// inode and, unless it is a folder, its size and time. Equal when nothing has been touched.
std::vector<std::string> snapshotOf(const std::string& path);

/// Whether something has that name, be it a link that leads nowhere.
bool exists(const std::string& path);

/// The names in a folder, sorted; none when it is not there.
std::vector<std::string> namesIn(const std::string& path);

/// "home" with a trash that is still to be made, and "work" beside it on the same mount.
class TrashFixture : public testing::Test {
protected:
    TrashFixture();

    /// Moves the item of that name in the tree; a folder's name ends in a slash. Returns the error
    /// and notes where the item is.
    std::string move(const std::string& name);

    /// The same for an item that must stay where it is: nothing at all may change in the tree.
    std::string moveInVain(const std::string& name);

    const TempTree m_tree;
    OwnMounts m_mounts;
    const std::string m_homeTrash = m_tree.pathOf("home/.local/share/Trash");
    const std::string m_userId;
    const FreedesktopTrash m_trash;
    std::string m_newPath; ///< of the item moved last; empty when it was not moved
    TrashedItem m_trashed; ///< likewise
};

/// The same with an empty file system in memory at "disk".
class TrashOnAMount : public TrashFixture {
protected:
    void SetUp() override;

    const std::string m_disk = m_tree.pathOf("disk");
};

} // namespace tessera::test
