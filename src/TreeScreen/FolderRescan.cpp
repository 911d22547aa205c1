// SPDX-License-Identifier: MIT
#include "TreeScreen/FolderRescan.h"

#include "Base/Decimals.h"
#include "Base/Log.h"
#include "Model/NodeLookup.h"
#include "Model/TopFolder.h"
#include "Scanning/Scanner.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Map/TreeScreen.h"
#include "Widgets/ScanProblem.h"

#include <utility>

namespace tessera {

namespace {

constexpr int kPercentDecimals = 6;

/// Whether nothing, or no folder, stands there now. A link that has taken the place of a folder may
/// lead to one, but not to the one that was scanned.
bool isGone(const std::error_code& problem)
{
    return problem == std::errc::no_such_file_or_directory || problem == std::errc::not_a_directory
        || problem == std::errc::too_many_symbolic_link_levels;
}

} // namespace

FolderRescan::FolderRescan(
    ScanEnvironment environment,
    FolderCheck checkFolder,
    TreeMapView& treeView,
    Alert& alert,
    TreeScreen& screen)
    : m_environment(std::move(environment))
    , m_checkFolder(std::move(checkFolder))
    , m_treeView(treeView)
    , m_alert(alert)
    , m_screen(screen)
{
}

FolderRescan::~FolderRescan()
{
    if (m_rescanner != nullptr) {
        m_rescanner->setDelegate(nullptr);
        m_rescanner->cancel();
    }
    removeIndicator();
}

void FolderRescan::rescan(Folder& folder)
{
    if (m_rescanFolder != nullptr || folder.parent() == nullptr) {
        return;
    }
    m_rescanFolder = &folder;
    folder.setRescanning(true);
    m_screen.renderTree();
    addIndicator();
    m_rescanner = Scanner::create(m_environment);
    m_rescanner->setDelegate(this);
    m_homePass = {};
    m_rescanner->setPathWithoutLinks(placeOnDisk(folder).path());
    m_rescanner->scan(folder.url(), ScanPurpose::PartOfTree);
}

std::optional<Rect> FolderRescan::indicatorFrame() const
{
    if (m_treeView.isZooming()) {
        return std::nullopt;
    }
    std::optional<Rect> box = m_treeView.findRectForFile(*m_rescanFolder);
    if (m_screen.folderInView() == m_rescanFolder) {
        box = Rect{
            0,
            0,
            static_cast<double>(m_treeView.width()),
            static_cast<double>(m_treeView.height())};
    }
    if (!box) {
        return std::nullopt;
    }
    const Rect frame = RescanIndicator::frameFor(*box);
    return RescanIndicator::fits(frame) ? std::optional(frame) : std::nullopt;
}

void FolderRescan::addIndicator()
{
    if (const std::optional<Rect> frame = indicatorFrame()) {
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the view owns it
        m_rescanIndicator = new RescanIndicator(&m_treeView);
        m_rescanIndicator->place(*frame);
    }
}

void FolderRescan::pictureChanged()
{
    if (m_rescanFolder == nullptr || m_rescanIndicator == nullptr) {
        return;
    }
    if (const std::optional<Rect> frame = indicatorFrame()) {
        m_rescanIndicator->place(*frame);
    } else {
        m_rescanIndicator->hide();
    }
}

void FolderRescan::removeIndicator()
{
    delete m_rescanIndicator.data();
}

void FolderRescan::nodeWillLeave(const File& node)
{
    if (m_rescanFolder != nullptr && isAtOrBelow(*m_rescanFolder, node)) {
        const std::shared_ptr<Scanner> rescanner = m_rescanner; // dropped while it cancels
        rescanner->cancel();
    } else {
        noteChange(node);
    }
}

void FolderRescan::pathWentAway(const std::string& path)
{
    if (m_rescanFolder != nullptr) {
        m_changedPaths.insert(path);
    }
}

void FolderRescan::nodeCame(const File& node)
{
    noteChange(node);
}

void FolderRescan::noteChange(const File& node)
{
    if (m_rescanFolder != nullptr && isAtOrBelow(node, *m_rescanFolder)) {
        m_changedPaths.insert(node.absolutePath());
    }
}

/// The tree on screen is right about these paths, whether the scanner passed them before or after
/// the change. In the order of the set a folder comes before what is in it.
void FolderRescan::applyChanges(TopFolder& scanned)
{
    // First what was read: what is brought afterwards may be on the way to another of the paths.
    for (const std::string& path : m_changedPaths) {
        if (File* const read = nodeAtPath(scanned, path)) {
            read->parent()->removeChild(*read);
        }
    }
    File* root = m_rescanFolder;
    while (root->parent() != nullptr) {
        root = root->parent();
    }
    auto& shown = *nodeCast<TopFolder>(root);
    for (const std::string& path : m_changedPaths) {
        File* const known = nodeAtPath(shown, path);
        Folder* const parent = parentAtPath(scanned, path);
        if (known != nullptr && parent != nullptr) {
            parent->insertChild(known->parent()->removeChild(*known));
        }
    }
}

void FolderRescan::end()
{
    removeIndicator();
    m_changedPaths.clear();
    m_rescanFolder->setRescanning(false);
    m_rescanFolder = nullptr;
    m_rescanner.reset();
}

void FolderRescan::scanUpdated(Scanner& scanner)
{
    if (m_rescanIndicator != nullptr) {
        const double percent = scanner.percentComplete();
        logLine("percent %s", decimals(percent, kPercentDecimals).c_str());
        m_rescanIndicator->setValue(percent);
    }
}

void FolderRescan::scanEnded(Scanner& scanner)
{
    if (const std::optional<Url> home = m_homePass.nextScan(scanner)) {
        scanner.setPathWithoutLinks(pathOnDisk(*m_homePass.surroundings(), home->path()));
        scanner.scan(*home, ScanPurpose::PartOfTree);
        return;
    }
    Folder& folder = *m_rescanFolder;
    std::unique_ptr<TopFolder> scanned = m_homePass.takeTree(scanner);
    // A scan passes over what it cannot read, the folder itself as well.
    const std::error_code problem = scanned->children().empty()
        ? m_checkFolder(placeOnDisk(folder).path())
        : std::error_code{};
    if (problem) {
        end();
        giveUp(folder, problem);
        return;
    }
    applyChanges(*scanned);
    end();
    replace(folder, std::move(scanned));
}

void FolderRescan::replace(Folder& folder, std::unique_ptr<TopFolder> scanned)
{
    TopFolder& with = *scanned;
    // What the folder looked like from outside was not read anew.
    with.setHidden(folder.hidden());
    with.setIgnored(folder.ignored());
    with.setHue(folder.hue());
    // Released when nothing on screen stands for what is in it any more.
    const std::unique_ptr<File> old = folder.parent()->replaceChild(folder, std::move(scanned));
    m_screen.folderWasReplaced(folder, with);
    m_screen.objectTreeRefreshed();
    m_screen.renderTree();
}

/// What is gone goes. Of what cannot be read the content last known is nearer to the truth than
/// none.
void FolderRescan::giveUp(Folder& folder, const std::error_code& problem)
{
    std::unique_ptr<File> old; // lives until nothing on screen stands for it any more
    if (isGone(problem)) {
        m_screen.nodeWillLeave(folder);
        old = folder.parent()->removeChild(folder);
        m_screen.objectTreeRefreshed();
    } else {
        m_alert.beginSheet(scanProblem(folder.url(), problem));
    }
    m_screen.renderTree();
}

void FolderRescan::scanCancelled(Scanner& /*scanner*/)
{
    end();
    m_screen.renderTree();
}

void FolderRescan::scanFailed(Scanner& /*scanner*/, const std::error_code& problem)
{
    const Url folder = m_rescanFolder->url();
    end();
    m_screen.renderTree();
    m_alert.beginSheet(scanProblem(folder, problem));
}

} // namespace tessera
