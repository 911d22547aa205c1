// SPDX-License-Identifier: MIT
#pragma once

#include "Scanning/DirectoryEnumerator.h"
#include "Scanning/Scanner.h"
#include "Scanning/TreeBuilder.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

namespace tessera {

class Volume;

/// One scan of one directory: what the worker thread does. Only stop() and isStopped() may be
/// called on another thread.
class Scanner::Run : public std::enable_shared_from_this<Scanner::Run> {
public:
    /// With a path without links, the directory is reached by that alone.
    Run(Scanner& scanner, Url url, ScanPurpose purpose, std::string pathWithoutLinks);

    void stop() { _stop = true; }
    bool isStopped() const { return _stop; }

    std::uint64_t objectsRead() const { return m_objectsRead; }
    std::uint64_t allocationRead() const { return m_allocationRead; }

    /// The worker: walks the directory, hands the tree over and reports.
    void _performScan();

    /// The number of items at depth 1 and 2 below the directory; fewer when the run was stopped.
    std::uint32_t _getLevel2Items(const std::string& path, const FileManager& manager) const;

private:
    enum class Mode : bool { Folder, Volume };

    void prepare();
    bool isHome() const;
    void measureVolume();
    bool isMountedInTree() const;
    const std::string& startPath() const;
    TreeBuilder walk();
    void visit(const DirectoryItem& item, DirectoryEnumerator& enumerator, TreeBuilder& tree);
    void visitUpperLevels(
        const DirectoryItem& item, DirectoryEnumerator& enumerator, const TreeBuilder& tree);
    void reportIfDue(const DirectoryItem& item, const TreeBuilder& tree);
    double percentComplete() const;
    std::unique_ptr<TopFolder> makeRoot() const;
    bool isBackupStore(const DirectoryItem& item) const;
    void addBackups(Volume& volume) const;
    void finish(TreeBuilder& tree);

    const ScanEnvironment& environment() const { return m_scanner.m_environment; }

    Scanner& m_scanner; ///< the worker holds it alive
    const Url m_url;
    const ScanPurpose m_purpose;
    const LinksToStart m_links;
    std::string m_pathWithoutLinks;
    std::atomic<bool> _stop = false;

    std::string m_userName; ///< last component of the home directory
    std::string m_hiddenUserName; ///< the same behind a dot
    Mode m_mode = Mode::Folder;
    bool m_isVolume = false;
    bool m_staysEmpty = false; ///< there is nothing to count nor to walk
    bool m_sawBackupStore = false;
    std::uint64_t m_usedBytes = 0; ///< what a volume's progress is measured against
    double m_levelTotal = 0; ///< what a folder's progress is measured against
    std::uint32_t m_levelRead = 0;
    std::uint64_t m_objectsRead = 0;
    std::uint64_t m_allocationRead = 0;
    double m_startTime = 0;
    double m_lastReportTime = 0;
};

} // namespace tessera
