// SPDX-License-Identifier: MIT
#include "Scanning/ScannerRun.h"

#include "Base/Decimals.h"
#include "Base/Log.h"
#include "Model/Allocation.h"
#include "Model/FileSystemAttributes.h"
#include "Model/TimeMachine.h"
#include "Model/Volume.h"
#include "Scanning/ResourceValues.h"
#include "Scanning/ScanEnvironment.h"
#include "Scanning/ScannerRunReceiver.h"

#include <cinttypes>
#include <utility>

namespace tessera {

namespace {

constexpr double kReportIntervalSeconds = 0.1;

constexpr int kTimeDecimals = 4;

/// Progress in a folder is counted in the items of this many levels.
constexpr unsigned kCountedLevels = 2;

/// A backup store holds links to most of its volume, many times over; walking it would take hours.
constexpr std::string_view kBackupStoreName = "Backups.backupdb";

} // namespace

ScannerRun::ScannerRun(
    ScannerRunReceiver& receiver,
    const ScanEnvironment& environment,
    Url url,
    ScanPurpose purpose,
    std::string pathWithoutLinks)
    : m_receiver(receiver)
    , m_environment(environment)
    , m_url(std::move(url))
    , m_purpose(purpose)
    , m_links(pathWithoutLinks.empty() ? LinksToStart::Follow : LinksToStart::Refuse)
    , m_pathWithoutLinks(std::move(pathWithoutLinks))
{
}

const std::string& ScannerRun::startPath() const
{
    return m_links == LinksToStart::Follow ? m_url.path() : m_pathWithoutLinks;
}

std::uint32_t ScannerRun::countUpperLevels(
    const std::string& path, const FileManager& manager) const
{
    const auto enumerator = manager.enumerator(path, ItemKeys::None, m_links);
    std::uint32_t count = 0;
    DirectoryItem item;
    while (!isStopped() && enumerator->next(item)) {
        ++count;
        if (item.level == kCountedLevels) {
            enumerator->skipDescendants();
        }
    }
    return count;
}

void ScannerRun::performScan()
{
    m_startTime = m_environment.clock();
    m_lastReportTime = m_startTime;
    m_began = timeBeforeChanges();
    prepare();
    TreeBuilder tree = walk();
    finish(tree);
    if (m_receiver.hasListener() && !isStopped()) {
        m_receiver.notifyEnded(shared_from_this());
    }
}

void ScannerRun::prepare()
{
    m_userName = lastPathComponent(m_environment.homeDirectory);
    m_hiddenUserName = "." + m_userName;
    if (m_links == LinksToStart::Follow) {
        m_pathWithoutLinks = m_environment.fileManager.pathWithoutLinks(m_url.path());
    }
    m_isVolume
        = m_purpose == ScanPurpose::NewTree && m_environment.resourceValues.isVolume(m_url.path());
    m_mode = m_isVolume && !isHome() ? Mode::Volume : Mode::Folder;
    m_isMountedInTree = m_purpose == ScanPurpose::PartOfTree
        && m_environment.resourceValues.isMountPoint(m_url.path());
    m_staysEmpty = m_isMountedInTree && m_url.lastPathComponent() != m_userName;
    if (m_mode == Mode::Volume) {
        measureVolume();
    } else if (!m_staysEmpty) {
        m_levelTotal = countUpperLevels(startPath(), m_environment.fileManager);
    }
}

/// Also where the user has chosen another way there than the system's own.
bool ScannerRun::isHome() const
{
    const std::string& home = m_environment.homeDirectory;
    return m_url.path() == home || m_environment.resourceValues.isSameDirectory(m_url.path(), home);
}

void ScannerRun::measureVolume()
{
    const FileSystemSizes sizes
        = m_environment.fileSystemAttributes.attributesOfFileSystem(m_url.path())
              .value_or(FileSystemSizes{});
    m_usedBytes = saturatingDifference(sizes.totalBytes, sizes.freeBytes);
}

std::unique_ptr<TopFolder> ScannerRun::makeRoot() const
{
    std::unique_ptr<TopFolder> root = m_mode == Mode::Folder
        ? makeNode<TopFolder>(m_url.lastPathComponent())
        : makeNode<Volume>(m_url.lastPathComponent());
    root->setOrigin(m_url.path());
    root->setRealOrigin(m_pathWithoutLinks);
    root->setScanBegan(m_began);
    if (m_isMountedInTree) {
        root->findings().addMounted(*root);
    }
    return root;
}

TreeBuilder ScannerRun::walk()
{
    TreeBuilder tree(makeRoot());
    // When stopped, a folder that is slow to open would only hold up the end.
    if (isStopped() || m_staysEmpty) {
        return tree;
    }
    const auto enumerator
        = m_environment.fileManager.enumerator(startPath(), ItemKeys::SizeAndHidden, m_links);
    DirectoryItem item;
    while (tree.fetchNext(*enumerator, item) && !isStopped()) {
        visit(item, *enumerator, tree);
    }
    return tree;
}

void ScannerRun::visit(
    const DirectoryItem& item, DirectoryEnumerator& enumerator, TreeBuilder& tree)
{
    bool isLeftOut = false;
    if (item.level <= kCountedLevels) {
        visitUpperLevels(item, tree);
        isLeftOut = isPassedBy(item);
    }
    m_allocationRead = saturatingSum(m_allocationRead, tree.add(item));
    if (isLeftOut) {
        enumerator.skipDescendants();
        tree.leaveOutLast();
    }
    ++m_objectsRead;
    reportIfDue(item, tree);
}

void ScannerRun::visitUpperLevels(const DirectoryItem& item, const TreeBuilder& tree)
{
    if (item.isDirectory && item.name == m_userName) {
        const std::string path = tree.pathOf(item.level, item.name);
        if (m_environment.resourceValues.isMountPoint(path)) {
            m_receiver.addFileVault(*this, Url(path, true));
        }
    }
    ++m_levelRead;
    m_sawBackupStore = m_sawBackupStore || isBackupStore(item);
}

/// Folders that are not walked on purpose. What the user's encrypted home is made of would count
/// beside the home.
bool ScannerRun::isPassedBy(const DirectoryItem& item) const
{
    const bool isEncryptedHome = item.isHidden && item.name == m_hiddenUserName;
    return item.isDirectory && (isEncryptedHome || isBackupStore(item));
}

/// What a volume holds beyond what was walked is known; of a folder nothing is, so there the store
/// is walked like any other.
bool ScannerRun::isBackupStore(const DirectoryItem& item) const
{
    return m_mode == Mode::Volume && item.level == 1 && item.isDirectory
        && item.name == kBackupStoreName;
}

void ScannerRun::reportIfDue(const DirectoryItem& item, const TreeBuilder& tree)
{
    if (!m_receiver.hasListener()) {
        return;
    }
    const double now = m_environment.clock();
    if (!(m_lastReportTime - now < -kReportIntervalSeconds)) {
        return;
    }
    const Url url(tree.pathOf(item.level, item.name), item.isDirectory);
    m_receiver.publishProgress(*this, url, percentComplete());
    m_receiver.notifyUpdated(shared_from_this());
    m_lastReportTime = m_environment.clock();
}

/// Neither clamped nor guarded: items may appear while they are counted, and a home folder that
/// is a volume has no used bytes to divide by. Those who show the figure deal with that.
double ScannerRun::percentComplete() const
{
    if (m_isVolume) {
        return static_cast<double>(m_allocationRead) / static_cast<double>(m_usedBytes);
    }
    return static_cast<double>(m_levelRead) / m_levelTotal;
}

void ScannerRun::addBackups(Volume& volume) const
{
    auto backups = makeNode<TimeMachine>({});
    // A disk that changes under the walk, or shares extents between files, may show more than is in
    // use.
    backups->setTotalAllocation(saturatingDifference(m_usedBytes, m_allocationRead));
    volume.addChild(std::move(backups));
}

void ScannerRun::finish(TreeBuilder& tree)
{
    tree.closeAll();
    if (auto* volume = nodeCast<Volume>(&tree.root())) {
        if (m_sawBackupStore) {
            addBackups(*volume);
        }
        volume->refreshVolume(m_environment.fileSystemAttributes);
    } else {
        tree.root().sort();
    }
    const std::string path = tree.root().absolutePath();
    m_receiver.publishTopFolder(*this, tree.takeRoot());
    logLine(
        "Scan Complete: %s {time: %s, objects: %" PRIu64 ", allocation size: %" PRIu64 "}",
        path.c_str(),
        decimals(m_environment.clock() - m_startTime, kTimeDecimals).c_str(),
        m_objectsRead,
        m_allocationRead);
}

} // namespace tessera
