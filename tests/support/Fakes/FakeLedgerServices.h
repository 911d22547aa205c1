// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/CoveredFolders.h"
#include "Desktop/OpenFiles.h"
#include "LedgerPanel/LedgerServices.h"
#include "support/Fakes/FakeFileSystem.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tessera::test {

/// Holds what the test says, for every disk. Callable from any thread.
class FakeOpenFiles final : public OpenFiles {
public:
    explicit FakeOpenFiles(OpenFilesAnswer answer = {.isCutShort = false})
        : m_answer(std::move(answer))
    {
    }

    [[nodiscard]] OpenFilesAnswer withoutNames(
        std::uint64_t device, const std::stop_token& stop) const override
    {
        std::unique_lock lock(m_mutex);
        ++m_asked;
        m_device = device;
        m_changed.notify_all();
        // A system that answers late, or never; a stop is all that ends that.
        (void)m_changed.wait(lock, stop, [this] { return !m_isSilent; });
        return m_answer;
    }

    [[nodiscard]] OpenFilesAnswer among(
        const std::vector<FileIdentity>& /*files*/, const std::stop_token& /*stop*/) const override
    {
        return m_answer;
    }

    void setAnswer(OpenFilesAnswer answer)
    {
        const std::lock_guard lock(m_mutex);
        m_answer = std::move(answer);
    }

    /// Whether questions have to wait.
    void setSilent(bool silent)
    {
        const std::lock_guard lock(m_mutex);
        m_isSilent = silent;
        m_changed.notify_all();
    }

    void waitUntilAsked(int times) const
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this, times] { return m_asked >= times; });
    }

    int asked() const
    {
        const std::lock_guard lock(m_mutex);
        return m_asked;
    }

    std::uint64_t askedFor() const
    {
        const std::lock_guard lock(m_mutex);
        return m_device;
    }

private:
    mutable std::mutex m_mutex;
    mutable std::condition_variable_any m_changed;
    mutable int m_asked = 0;
    mutable std::uint64_t m_device = 0;
    OpenFilesAnswer m_answer;
    bool m_isSilent = false;
};

/// What is covered, for every folder. Callable from any thread.
class FakeCoveredFolders final : public CoveredFolders {
public:
    [[nodiscard]] std::optional<std::vector<CoveredFolder>> coveredInside(
        const std::string& folder) const override
    {
        const std::lock_guard lock(m_mutex);
        m_askedFor = folder;
        return m_covered;
    }

    void setCovered(std::optional<std::vector<CoveredFolder>> covered)
    {
        const std::lock_guard lock(m_mutex);
        m_covered = std::move(covered);
    }

    std::string askedFor() const
    {
        const std::lock_guard lock(m_mutex);
        return m_askedFor;
    }

private:
    mutable std::mutex m_mutex;
    mutable std::string m_askedFor;
    std::optional<std::vector<CoveredFolder>> m_covered = std::vector<CoveredFolder>();
};

/// A disk for the ledger to ask about.
struct FakeLedgerServices {
    std::shared_ptr<FixedFileSystem> fileSystem = std::make_shared<FixedFileSystem>(FileSystemSizes{
        .totalBytes = 1000,
        .freeBytes = 300,
        .availableBytes = 250,
        .reservedBytes = 50,
        .blockBytes = 1,
        .type = "ext4",
        .device = 7});
    std::shared_ptr<FakeOpenFiles> openFiles = std::make_shared<FakeOpenFiles>();
    std::shared_ptr<FakeCoveredFolders> coveredFolders = std::make_shared<FakeCoveredFolders>();

    LedgerServices get() const { return {fileSystem, openFiles, coveredFolders}; }
};

} // namespace tessera::test
