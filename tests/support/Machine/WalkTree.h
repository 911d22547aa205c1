// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Walk/LinuxFileManager.h"

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace tessera::test {

/// An item of a walk, with its path from where the walk started.
struct WalkedItem {
    std::string path;
    bool isDirectory = false;
    bool isHidden = false;
    std::uint64_t allocatedBytes = 0;

    bool operator==(const WalkedItem& other) const = default;
    bool operator<(const WalkedItem& other) const { return path < other.path; }
};

std::ostream& operator<<(std::ostream& stream, const WalkedItem& item);

/// Reads every folder on demand, so that a test knows what was read when.
inline constexpr ReadAheadOptions kOnDemand{0, 0};

/// Called when an item was fetched, before the next one is.
using OnItem = std::function<void(const WalkedItem& item, DirectoryEnumerator& enumerator)>;

/// All items below the directory at `path`, in order, with their keys.
std::vector<WalkedItem> walkTree(
    const std::string& path, const ReadAheadOptions& options = {}, const OnItem& onItem = {});

/// Their paths, sorted.
std::vector<std::string> sortedPaths(
    const std::string& path, const ReadAheadOptions& options = {}, const OnItem& onItem = {});

/// The item of that path in a walk; fails the test when there is none.
WalkedItem itemAt(const std::vector<WalkedItem>& items, const std::string& path);

/// How many items a walk finds; for trees whose paths would be too long to keep.
std::size_t countItems(const std::string& path, const ReadAheadOptions& options = {});

/// Runs `action` in a child process, which may change its rights, limits and mounts, and returns
/// what it returned there; -1 when it did not end by itself.
int inChildProcess(const std::function<int()>& action);

} // namespace tessera::test
