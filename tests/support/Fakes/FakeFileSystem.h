// SPDX-License-Identifier: MIT
#pragma once

#include "Model/FileSystemAttributes.h"
#include "Scanning/ResourceValues.h"

#include <atomic>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace tessera::test {

/// A file system of fixed sizes, or one that gives no answer. Callable from any thread.
class FixedFileSystem final : public FileSystemAttributes {
public:
    explicit FixedFileSystem(std::optional<FileSystemSizes> sizes)
        : m_sizes(std::move(sizes))
    {
    }

    [[nodiscard]] std::optional<FileSystemSizes> attributesOfFileSystem(
        const std::string& path) const override
    {
        const std::lock_guard lock(m_mutex);
        m_askedFor = path;
        return m_sizes;
    }

    /// The last path; empty before anybody asked.
    std::string askedFor() const
    {
        const std::lock_guard lock(m_mutex);
        return m_askedFor;
    }

    void setSizes(std::optional<FileSystemSizes> sizes)
    {
        const std::lock_guard lock(m_mutex);
        m_sizes = std::move(sizes);
    }

private:
    mutable std::mutex m_mutex;
    mutable std::string m_askedFor;
    std::optional<FileSystemSizes> m_sizes;
};

/// Answers for paths that the test names.
class FakeResourceValues : public ResourceValues {
public:
    std::set<std::string> volumes;
    std::set<std::string> mountPoints; ///< beside the volumes
    std::set<std::string> directories;
    std::map<std::string, std::string> links; ///< where each leads
    std::map<std::string, std::uint64_t> sizes; ///< of single paths
    std::optional<std::uint64_t> size; ///< of all others
    std::optional<std::int64_t> modificationDate;
    mutable std::atomic<int> mountPointQuestions = 0;

    [[nodiscard]] bool isVolume(const std::string& path) const override
    {
        return volumes.contains(path);
    }

    [[nodiscard]] bool isMountPoint(const std::string& path) const override
    {
        ++mountPointQuestions;
        return mountPoints.contains(path) || isVolume(path);
    }

    [[nodiscard]] bool isSameDirectory(
        const std::string& path, const std::string& other) const override
    {
        return targetOf(path) == targetOf(other);
    }

    [[nodiscard]] bool isDirectory(const std::string& path) const override
    {
        return directories.contains(path);
    }

    [[nodiscard]] std::optional<std::uint64_t> allocatedSize(const std::string& path) const override
    {
        const auto found = sizes.find(path);
        return found != sizes.end() ? std::optional(found->second) : size;
    }

    [[nodiscard]] std::optional<std::int64_t> contentModificationDate(
        const std::string& /*path*/) const override
    {
        return modificationDate;
    }

private:
    const std::string& targetOf(const std::string& path) const
    {
        const auto found = links.find(path);
        return found != links.end() ? found->second : path;
    }
};

} // namespace tessera::test
