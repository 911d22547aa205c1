// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Walk/LinuxFileManager.h"
#include "Scanning/TreeBuilder.h"
#include "support/Machine/RunProgram.h"
#include "support/Machine/WalkTree.h"

#include <memory>
#include <sstream>
#include <string>
#include <string_view>

namespace tessera::test {

/// Called with each item of a walk, before it joins the tree.
using OnScannedItem = std::function<void(const DirectoryItem& item)>;

/// The tree of the directory at `path` on the real file system, as a scan builds it.
inline std::unique_ptr<TopFolder> scanTree(
    const std::string& path, const ReadAheadOptions& options = {}, const OnScannedItem& onItem = {})
{
    auto root = makeNode<TopFolder>(lastPathComponent(path));
    root->setOrigin(path);
    TreeBuilder builder(std::move(root));
    const auto walk
        = LinuxFileManager(options).enumerator(path, ItemKeys::SizeAndHidden, LinksToStart::Follow);
    DirectoryItem item;
    while (builder.fetchNext(*walk, item)) {
        if (onItem) {
            onItem(item);
        }
        builder.add(item);
    }
    builder.closeAll();
    return builder.takeRoot();
}

/// Bytes that du finds on the file system of `path`, each file once, with the folders' own.
inline std::uint64_t bytesByDu(const std::string& path)
{
    const ProgramResult result
        = runProgram("du", {"--summarize", "--one-file-system", "--block-size=1", "--", path});
    std::istringstream output(result.standardOutput);
    std::uint64_t bytes = 0;
    output >> bytes;
    return bytes;
}

} // namespace tessera::test
