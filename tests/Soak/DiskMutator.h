// SPDX-License-Identifier: MIT
#pragma once

#include "Random.h"

#include <condition_variable>
#include <cstdint>
#include <filesystem>
#include <mutex>
#include <stop_token>
#include <string>
#include <thread>

namespace tessera::test {

/// What else happens on a disk while a program looks at it: a thread that keeps making, growing,
/// removing, renaming and locking files and folders below one folder, and follows no link out of
/// it.
class DiskMutator {
public:
    DiskMutator(std::string path, std::uint64_t seed, std::chrono::milliseconds pause);
    DiskMutator(const DiskMutator&) = delete;
    DiskMutator& operator=(const DiskMutator&) = delete;
    ~DiskMutator() = default;

    /// Nothing changes any more when it returns.
    void stop();

    /// How many changes were made; to be asked after stop().
    int changes() const { return m_changes; }

private:
    void run(const std::stop_token& stop);
    void change();
    bool perform(const std::filesystem::path& folder);
    bool addFile(const std::filesystem::path& folder);
    bool growFile(const std::filesystem::path& folder);
    bool removeItem(const std::filesystem::path& folder);
    bool renameItem(const std::filesystem::path& folder);
    bool lockFolder(const std::filesystem::path& folder);

    std::filesystem::path anyFolder();
    std::filesystem::path anyItemIn(const std::filesystem::path& folder);
    std::filesystem::path newPathIn(const std::filesystem::path& folder);

    const std::filesystem::path m_root;
    Random m_random;
    const std::chrono::milliseconds m_pause;
    int m_changes = 0;
    int m_number = 1000000; ///< apart from those that the disk began with
    std::filesystem::path m_locked;
    std::mutex m_mutex;
    std::condition_variable_any m_wake;
    std::jthread m_thread;
};

} // namespace tessera::test
