// SPDX-License-Identifier: MIT
#include "support/Fakes/FakeDirectoryEnumerator.h"

#include "support/TreeText.h"

#include <cerrno>
#include <utility>

namespace tessera::test {

namespace {

constexpr std::uint64_t kDevice = 1;

} // namespace

FakeFileManager::FakeFileManager(std::string_view items)
{
    std::vector<std::string> folders;
    for (const TreeTextItem& item : parseTreeText(items)) {
        folders.resize(item.level - 1);
        const std::string prefix = folders.empty() ? std::string() : folders.back() + '/';
        const std::string name(item.name);
        m_entries.push_back(
            {prefix + name,
             name,
             item.level,
             item.isDirectory,
             item.isHidden,
             item.bytes,
             item.inode,
             item.linkCount});
        folders.push_back(prefix + name);
    }
}

void FakeFileManager::makeUnreadable(std::string_view path)
{
    m_unreadable.emplace(path);
}

void FakeFileManager::makeVanish(std::string_view path)
{
    m_vanishing.emplace(path);
}

void FakeFileManager::makeAppearLate(std::string_view path)
{
    m_late.emplace(path);
}

void FakeFileManager::onItem(std::function<void(const std::string& path)> action)
{
    m_onItem = std::move(action);
}

std::unique_ptr<DirectoryEnumerator> FakeFileManager::enumerator(
    const std::string& path, ItemKeys keys, LinksToStart links) const
{
    m_enumeratedPaths.push_back(path);
    m_linksToStarts.push_back(links);
    return std::make_unique<FakeDirectoryEnumerator>(*this, keys);
}

std::string FakeFileManager::pathWithoutLinks(const std::string& path) const
{
    const auto found = m_pathsWithoutLinks.find(path);
    return found == m_pathsWithoutLinks.end() ? path : found->second;
}

FakeDirectoryEnumerator::FakeDirectoryEnumerator(const FakeFileManager& fileManager, ItemKeys keys)
    : m_fileManager(fileManager)
    , m_keys(keys)
    , m_isFirst(fileManager.m_enumeratedPaths.size() == 1)
{
    if (fileManager.m_unreadable.contains("")) {
        passOver(0);
    }
}

const EnteredDirectory* FakeDirectoryEnumerator::entered() const
{
    return m_entered ? &*m_entered : nullptr;
}

void FakeDirectoryEnumerator::enter()
{
    m_entered.reset();
    if (const auto path = std::exchange(m_unentered, std::nullopt)) {
        m_entered.emplace();
        const auto own = m_fileManager.m_ownAllocations.find(*path);
        m_entered->allocatedBytes = own == m_fileManager.m_ownAllocations.end() ? 0 : own->second;
        if (m_fileManager.m_unreadable.contains(*path)) {
            m_entered->problem = std::error_code(EACCES, std::system_category());
        }
    }
}

bool FakeDirectoryEnumerator::next(DirectoryItem& item)
{
    enter();
    const auto& entries = m_fileManager.m_entries;
    while (m_position < entries.size() && isMissing(entries[m_position].path)) {
        passOver(entries[m_position++].level);
    }
    if (m_position == entries.size()) {
        return false;
    }
    const FakeFileManager::Entry& entry = entries[m_position++];
    if (m_fileManager.m_onItem) {
        m_fileManager.m_onItem(entry.path);
    }
    const bool hasKeys = m_keys == ItemKeys::SizeAndHidden;
    item
        = {entry.name,
           entry.level,
           entry.isDirectory,
           hasKeys && entry.isHidden,
           hasKeys ? entry.bytes : 0,
           hasKeys ? entry.linkCount : 0,
           {kDevice, hasKeys ? entry.inode : 0}};
    m_lastLevel = entry.level;
    if (entry.isDirectory) {
        m_unentered = entry.path;
    }
    if (m_fileManager.m_unreadable.contains(entry.path)) {
        passOver(entry.level);
    }
    return true;
}

bool FakeDirectoryEnumerator::isMissing(const std::string& path) const
{
    return m_fileManager.m_vanishing.contains(path)
        || (m_isFirst && m_fileManager.m_late.contains(path));
}

void FakeDirectoryEnumerator::skipDescendants()
{
    m_unentered.reset();
    passOver(m_lastLevel);
}

void FakeDirectoryEnumerator::passOver(unsigned level)
{
    const auto& entries = m_fileManager.m_entries;
    while (m_position < entries.size() && entries[m_position].level > level) {
        ++m_position;
    }
}

} // namespace tessera::test
