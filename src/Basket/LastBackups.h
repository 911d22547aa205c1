// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tessera {

class File;

/// Backups that belong together in one folder, as some program lays them out.
struct BackupSet {
    enum class Program : std::uint8_t {
        Restic,
        Borg,
        Timeshift,
        Rsnapshot,
        BackInTime,
        Duplicity,
        TimeMachine,
    };

    Program program = Program::Restic;
    std::string folder; ///< absolute, in the tree, as bytes

    bool operator==(const BackupSet& other) const = default;
};

/// The sets of which no backup would be left without the items, told by names in the tree alone;
/// each once, in no particular order. The items are of one tree, and none lies in another.
///
/// A set is lost with its folder or a folder around it, with all its backups, and, where they share
/// one store, with any part of that store that all of them need. What is chosen deeper inside a
/// backup spoils that one, and the set is not told. Neither is what lies inside a backup.
///
/// Looks through each folder in the items, and around them, once. `looksThrough` hears of each.
[[nodiscard]] std::vector<BackupSet> lastBackupsAmong(
    const std::vector<const File*>& items,
    std::function<void(const File& folder)> looksThrough = [](const File& /*folder*/) {});

} // namespace tessera
