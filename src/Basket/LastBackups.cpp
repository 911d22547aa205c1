// SPDX-License-Identifier: MIT
#include "Basket/LastBackups.h"

#include "Base/FolderAround.h"
#include "Model/Folder.h"
#include "Model/NodeLookup.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <optional>
#include <span>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace tessera {

namespace {

using Program = BackupSet::Program;
using Nodes = std::unordered_set<const File*>;

bool isDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}

/// Whether the name has a digit wherever the pattern has a 0, and is the same elsewhere.
bool isLike(std::string_view name, std::string_view pattern)
{
    return std::ranges::equal(name, pattern, [](char letter, char wanted) {
        return wanted == '0' ? isDigit(letter) : letter == wanted;
    });
}

/// "index.7" for "index".
bool isNumbered(std::string_view name, std::string_view stem)
{
    return name.size() > stem.size() + 1 && name.starts_with(stem) && name[stem.size()] == '.'
        && std::ranges::all_of(name.substr(stem.size() + 1), isDigit);
}

/// One item of a folder in which backups share a store.
struct StorePart {
    std::string_view name;
    bool isFolder;
};

/// https://restic.readthedocs.io/en/stable/100_references.html, "Repository Layout": every
/// repository has these. Without any of them nothing can be restored, at least not before somebody
/// makes a new index.
constexpr auto kResticParts = std::to_array<StorePart>(
    {{"config", false}, {"data", true}, {"index", true}, {"keys", true}, {"snapshots", true}});

/// https://borgbackup.readthedocs.io/en/stable/internals/data-structures.html, "Repository": the
/// segments are in data, their index beside that is made again where it is lost.
constexpr auto kBorgParts
    = std::to_array<StorePart>({{"README", false}, {"config", false}, {"data", true}});

/// hdiutil(1), "UDSB": a sparse bundle is a folder that has its disk image in the files of bands.
/// Backups over the network are in one, named ".backupbundle" since macOS 11.
constexpr auto kBundleParts = std::to_array<StorePart>({{"bands", true}});

/// The items of a folder, whatever is chosen of them.
class BackupFolder {
public:
    explicit BackupFolder(const Folder& folder)
        : m_folder(&folder)
    {
    }

    /// What set the folder is, if it is one.
    std::optional<Program> program()
    {
        if (isStore(kResticParts)) {
            return become(Program::Restic, kResticParts);
        }
        if (isStore(kBorgParts) && hasBorgIndex()) {
            return become(Program::Borg, kBorgParts);
        }
        const std::string_view name = m_folder->fragment();
        if (name.ends_with(".sparsebundle") || name.ends_with(".backupbundle")) {
            return become(Program::TimeMachine, kBundleParts);
        }
        for (const auto& [program, pattern] : kSeries) {
            if (findSeries(program, pattern)) {
                return program;
            }
        }
        return findDuplicity() ? std::optional(Program::Duplicity) : std::nullopt;
    }

    /// Whether none of its backups is left without those.
    bool isLostWithout(const Nodes& items) const
    {
        const bool isStoreSpoilt = std::ranges::any_of(
            m_store, [&items](const File* part) { return items.contains(part); });
        return isStoreSpoilt
            || (!m_backups.empty()
                && std::ranges::all_of(m_backups, [&items](const Backup& backup) {
                       return std::ranges::any_of(
                           backup, [&items](const File* part) { return items.contains(part); });
                   }));
    }

    /// Whether the item is one of its backups, as a whole.
    bool isBackup(const File& item) const
    {
        return std::ranges::any_of(m_backups, [&item](const Backup& backup) {
            return backup.size() == 1 && backup.front() == &item;
        });
    }

private:
    /// Items without any of which it cannot be restored.
    using Backup = std::vector<const File*>;

    struct Series {
        Program program;
        std::string_view pattern; ///< of the folders' names, as isLike() has it; empty: numbered
    };

    static constexpr auto kSeries = std::to_array<Series>({
        // https://github.com/linuxmint/timeshift: timeshift/snapshots/2026-01-31_18-00-01
        {Program::Timeshift, "0000-00-00_00-00-00"},
        // https://rsnapshot.org/rsnapshot/docs/docbook/rest.html: hourly.0, daily.6, alpha.0
        {Program::Rsnapshot, {}},
        // https://backintime.readthedocs.io: backintime/HOST/USER/PROFILE/20260131-180001-123
        {Program::BackInTime, "00000000-000000-000"},
        // tmutil(8): Backups.backupdb/MACHINE/2026-01-31-180001
        {Program::TimeMachine, "0000-00-00-000000"},
    });

    bool isStore(std::span<const StorePart> parts) const
    {
        const auto count = std::ranges::count_if(
            m_folder->children(), [parts](const File* child) { return isAmong(*child, parts); });
        return static_cast<std::size_t>(count) == parts.size();
    }

    static bool isAmong(const File& item, std::span<const StorePart> parts)
    {
        return std::ranges::any_of(parts, [&item](const StorePart& part) {
            return item.fragment() == part.name && item.isFolder() == part.isFolder;
        });
    }

    bool hasBorgIndex() const
    {
        return std::ranges::any_of(m_folder->children(), [](const File* child) {
            return isNumbered(child->fragment(), "index") || isNumbered(child->fragment(), "hints");
        });
    }

    Program become(Program program, std::span<const StorePart> parts)
    {
        std::ranges::copy_if(
            m_folder->children(), std::back_inserter(m_store), [parts](const File* child) {
                return isAmong(*child, parts);
            });
        return program;
    }

    bool findSeries(Program program, std::string_view pattern)
    {
        m_backups.clear();
        for (const File* const child : m_folder->children()) {
            const std::string_view name = child->fragment();
            const bool isOne = pattern.empty() ? isRsnapshot(name) : isLike(name, pattern);
            if (isOne && child->isFolder()) {
                m_backups.push_back({child});
            }
        }
        return !m_backups.empty() && isPlaceOf(program);
    }

    /// The intervals that it has always had, and those of its present example.
    static bool isRsnapshot(std::string_view name)
    {
        constexpr auto kIntervals = std::to_array<std::string_view>(
            {"hourly", "daily", "weekly", "monthly", "yearly", "alpha", "beta", "gamma", "delta"});
        return std::ranges::any_of(
            kIntervals, [name](std::string_view interval) { return isNumbered(name, interval); });
    }

    /// Folders around it have the names that the program gives them.
    bool isPlaceOf(Program program) const
    {
        const std::string path = m_folder->absolutePath();
        const std::string_view parent = folderAround(path);
        switch (program) {
        case Program::Timeshift:
            return path.ends_with("/timeshift/snapshots");
        case Program::BackInTime:
            return folderAround(folderAround(parent)).ends_with("/backintime");
        case Program::TimeMachine:
            return parent.ends_with("/Backups.backupdb");
        default:
            return true;
        }
    }

    /// duplicity(1), "File names": duplicity-full.20260131T180001Z.manifest.gpg has the list of
    /// volumes like duplicity-full.20260131T180001Z.vol1.difftar.gpg. Increments are worth nothing
    /// without it.
    bool findDuplicity()
    {
        m_backups.clear();
        for (const File* const child : m_folder->children()) {
            const std::string_view time = timeOfFull(child->fragment());
            const bool isManifest = !time.empty()
                && child->fragment().substr(kFull.size() + time.size()).starts_with(".manifest");
            if (isManifest && !child->isFolder()) {
                m_backups.push_back(filesOfFull(time));
            }
        }
        return !m_backups.empty();
    }

    Backup filesOfFull(std::string_view time) const
    {
        Backup files;
        std::ranges::copy_if(
            m_folder->children(), std::back_inserter(files), [time](const File* child) {
                return timeOfFull(child->fragment()) == time;
            });
        return files;
    }

    /// Nothing where it is no file of a full backup.
    static std::string_view timeOfFull(std::string_view name)
    {
        if (!name.starts_with(kFull)) {
            return {};
        }
        name.remove_prefix(kFull.size());
        return name.substr(0, std::min(name.find('.'), name.size()));
    }

    static constexpr std::string_view kFull = "duplicity-full.";

    const Folder* m_folder;
    std::vector<const File*> m_store; ///< parts of the store that all its backups share
    std::vector<Backup> m_backups; ///< where each is an item of its own
};

/// Finds the sets of which nothing is left.
class LastBackups {
public:
    using Listener = std::function<void(const File& folder)>;

    LastBackups(const std::vector<const File*>& items, Listener looksThrough)
        : m_items(items.begin(), items.end())
        , m_looksThrough(std::move(looksThrough))
    {
        for (const File* const item : items) {
            if (!isPartOfOne(*item)) {
                lookInto(*item);
            }
        }
    }

    std::vector<BackupSet> take() { return std::move(m_lost); }

private:
    /// Nothing where it is no set.
    std::optional<BackupSet> setOf(const Folder& folder, BackupFolder& items)
    {
        m_looksThrough(folder);
        const std::optional<Program> program = items.program();
        return program ? std::optional(BackupSet{*program, folder.absolutePath()}) : std::nullopt;
    }

    /// Whether what is in the item is no set of its own, because the folder around it is one.
    bool isPartOfOne(const File& item)
    {
        const Folder* const parent = item.parent();
        if (parent == nullptr) {
            return false;
        }
        const auto [around, isNew] = m_around.try_emplace(parent);
        if (isNew) {
            BackupFolder folder(*parent);
            if (const std::optional<BackupSet> set = setOf(*parent, folder)) {
                if (folder.isLostWithout(m_items)) {
                    m_lost.push_back(*set);
                }
                around->second = std::move(folder);
            }
        }
        return around->second && around->second->isBackup(item);
    }

    void lookInto(const File& item)
    {
        std::vector<const Folder*> left;
        if (const auto* const folder = nodeCast<Folder>(&item)) {
            left.push_back(folder);
        }
        while (!left.empty()) {
            const Folder* const folder = left.back();
            left.pop_back();
            BackupFolder items(*folder);
            if (std::optional<BackupSet> set = setOf(*folder, items)) {
                m_lost.push_back(std::move(*set));
                continue;
            }
            for (const File* const child : folder->children()) {
                if (const auto* const inside = nodeCast<Folder>(child)) {
                    left.push_back(inside);
                }
            }
        }
    }

    Nodes m_items;
    Listener m_looksThrough;
    std::vector<BackupSet> m_lost;
    /// The folders around items, with what is in those that are sets.
    std::unordered_map<const Folder*, std::optional<BackupFolder>> m_around;
};

} // namespace

std::vector<BackupSet> lastBackupsAmong(
    const std::vector<const File*>& items, std::function<void(const File& folder)> looksThrough)
{
    return LastBackups(items, std::move(looksThrough)).take();
}

} // namespace tessera
