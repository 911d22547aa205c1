// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileTime.h"
#include "Base/Url.h"
#include "Scanning/DirectoryEnumerator.h"
#include "Scanning/ScanPurpose.h"
#include "Scanning/TreeBuilder.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

namespace tessera {

class ScannerRunReceiver;
class TopFolder;
class Volume;
struct ScanEnvironment;

/// One scan of one directory: what the worker thread does. Only stop() and isStopped() may be
/// called on another thread.
class ScannerRun final : public std::enable_shared_from_this<ScannerRun> {
public:
    /// Both references must outlive its work. With a path without links, the directory is reached
    /// by that alone.
    ScannerRun(
        ScannerRunReceiver& receiver,
        const ScanEnvironment& environment,
        Url url,
        ScanPurpose purpose,
        std::string pathWithoutLinks);

    void stop() { m_isStopped = true; }
    bool isStopped() const { return m_isStopped; }

    std::uint64_t objectsRead() const { return m_objectsRead; }
    std::uint64_t allocationRead() const { return m_allocationRead; }

    /// The worker: walks the directory, hands the tree over and reports.
    void performScan();

    /// The number of items at depth 1 and 2 below the directory; fewer when the run was stopped.
    std::uint32_t countUpperLevels(const std::string& path, const FileManager& manager) const;

private:
    enum class Mode : bool { Folder, Volume };

    void prepare();
    bool isHome() const;
    void measureVolume();
    const std::string& startPath() const;
    TreeBuilder walk();
    void visit(const DirectoryItem& item, DirectoryEnumerator& enumerator, TreeBuilder& tree);
    void visitUpperLevels(const DirectoryItem& item, const TreeBuilder& tree);
    bool isPassedBy(const DirectoryItem& item) const;
    void reportIfDue(const DirectoryItem& item, const TreeBuilder& tree);
    double percentComplete() const;
    std::unique_ptr<TopFolder> makeRoot() const;
    bool isBackupStore(const DirectoryItem& item) const;
    void addBackups(Volume& volume) const;
    void finish(TreeBuilder& tree);

    ScannerRunReceiver& m_receiver; ///< the worker holds it alive
    const ScanEnvironment& m_environment; ///< the receiver's
    const Url m_url;
    const ScanPurpose m_purpose;
    const LinksToStart m_links;
    std::string m_pathWithoutLinks;
    std::atomic<bool> m_isStopped = false;

    std::string m_userName; ///< last component of the home directory
    std::string m_hiddenUserName; ///< the same behind a dot
    Mode m_mode = Mode::Folder;
    bool m_isVolume = false;
    /// Inside a tree nothing that is mounted counts, but an encrypted home, which has a pass of its
    /// own.
    bool m_isMountedInTree = false;
    bool m_staysEmpty = false; ///< there is nothing to count nor to walk
    bool m_sawBackupStore = false;
    std::uint64_t m_usedBytes = 0; ///< what a volume's progress is measured against
    double m_levelTotal = 0; ///< what a folder's progress is measured against
    std::uint32_t m_levelRead = 0;
    std::uint64_t m_objectsRead = 0;
    std::uint64_t m_allocationRead = 0;
    double m_startTime = 0;
    FileTime m_began;
    double m_lastReportTime = 0;
};

} // namespace tessera
