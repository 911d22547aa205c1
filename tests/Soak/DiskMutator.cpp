// SPDX-License-Identifier: MIT
#include "DiskMutator.h"

#include "OddNames.h"

#include <algorithm>
#include <fstream>
#include <system_error>
#include <utility>
#include <vector>

namespace tessera::test {

namespace {

namespace fs = std::filesystem;

constexpr int kKinds = 12;
constexpr int kMostBytes = 200000;
constexpr int kMostLevels = 5;

/// As far as the folder can be read before it vanishes, in an order that can be repeated.
std::vector<fs::path> itemsIn(const fs::path& folder)
{
    std::vector<fs::path> items;
    std::error_code error;
    for (fs::directory_iterator at(folder, error); at != fs::directory_iterator() && !error;
         at.increment(error)) {
        items.push_back(at->path());
    }
    std::sort(items.begin(), items.end());
    return items;
}

bool isRealFolder(const fs::path& path)
{
    std::error_code error;
    return fs::is_directory(fs::symlink_status(path, error));
}

} // namespace

DiskMutator::DiskMutator(std::string path, std::uint64_t seed, std::chrono::milliseconds pause)
    : m_root(std::move(path))
    , m_random(seed)
    , m_pause(pause)
    , m_thread([this](const std::stop_token& stop) { run(stop); })
{
}

void DiskMutator::stop()
{
    m_thread.request_stop();
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void DiskMutator::run(const std::stop_token& stop)
{
    while (!stop.stop_requested()) {
        change();
        std::unique_lock lock(m_mutex);
        m_wake.wait_for(lock, stop, m_pause, [] { return false; });
    }
    std::error_code ignored;
    fs::permissions(m_locked, fs::perms::owner_all, ignored);
}

void DiskMutator::change()
{
    // The program moves and removes things as well, so that any of this may meet nothing.
    if (perform(anyFolder())) {
        ++m_changes;
    }
}

bool DiskMutator::perform(const fs::path& folder)
{
    std::error_code error;
    switch (m_random.below(kKinds)) {
    case 0:
        return fs::create_directory(newPathIn(folder), error);
    case 1:
        fs::create_symlink(m_root, newPathIn(folder), error);
        return !error;
    case 2:
        fs::create_hard_link(anyItemIn(folder), newPathIn(folder), error);
        return !error;
    case 3:
    case 4:
        return renameItem(folder);
    case 5:
    case 6:
        return removeItem(folder);
    case 7:
        return lockFolder(folder);
    case 8:
    case 9:
        return growFile(folder);
    default:
        return addFile(folder);
    }
}

bool DiskMutator::addFile(const fs::path& folder)
{
    std::ofstream file(newPathIn(folder));
    file << std::string(static_cast<std::size_t>(m_random.below(kMostBytes)), 'n');
    return file.good();
}

bool DiskMutator::growFile(const fs::path& folder)
{
    const fs::path item = anyItemIn(folder);
    std::error_code error;
    if (!fs::is_regular_file(fs::symlink_status(item, error))) {
        return false;
    }
    std::ofstream file(item, std::ios::app);
    file << std::string(static_cast<std::size_t>(m_random.below(kMostBytes)), 'g');
    return file.good();
}

bool DiskMutator::removeItem(const fs::path& folder)
{
    const fs::path item = anyItemIn(folder);
    std::error_code error;
    // Top folders stay, lest the disk be empty in the end.
    return !item.empty() && folder != m_root && fs::remove_all(item, error) > 0 && !error;
}

bool DiskMutator::renameItem(const fs::path& folder)
{
    const fs::path item = anyItemIn(folder);
    std::error_code error;
    fs::rename(item, newPathIn(m_random.oneIn(2) ? folder : anyFolder()), error);
    return !error;
}

bool DiskMutator::lockFolder(const fs::path& folder)
{
    std::error_code error;
    if (!m_locked.empty()) {
        fs::permissions(m_locked, fs::perms::owner_all, error);
        m_locked.clear();
    } else if (folder != m_root) {
        fs::permissions(folder, fs::perms::none, error);
        m_locked = folder;
    }
    return !error;
}

fs::path DiskMutator::anyFolder()
{
    fs::path folder = m_root;
    for (int level = m_random.below(kMostLevels); level > 0; --level) {
        std::vector<fs::path> folders = itemsIn(folder);
        std::erase_if(folders, [](const fs::path& path) { return !isRealFolder(path); });
        if (folders.empty()) {
            break;
        }
        folder = m_random.pick(folders);
    }
    return folder;
}

fs::path DiskMutator::anyItemIn(const fs::path& folder)
{
    const std::vector<fs::path> items = itemsIn(folder);
    return items.empty() ? fs::path() : m_random.pick(items);
}

fs::path DiskMutator::newPathIn(const fs::path& folder)
{
    return folder / oddName(m_random, m_number++);
}

} // namespace tessera::test
