// SPDX-License-Identifier: MIT
#include "TreeScreen/FolderRescan.h"

#include "Base/Decimals.h"
#include "Base/Log.h"
#include "Model/NodeLookup.h"
#include "Model/RootModel.h"
#include "Model/TopFolder.h"
#include "Model/TreeEdit.h"
#include "Scanning/Scanner.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Map/TreeScreen.h"
#include "Widgets/ScanProblem.h"

#include <algorithm>
#include <string_view>
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

bool isPathAtOrBelow(std::string_view path, std::string_view above)
{
    return path.starts_with(above) && (path.size() == above.size() || path[above.size()] == '/');
}

} // namespace

FolderRescan::FolderRescan(
    RootModel& model,
    ScanEnvironment environment,
    FolderCheck checkFolder,
    TreeMapView& treeView,
    Alert& alert,
    TreeScreen& screen)
    : m_model(model)
    , m_environment(std::move(environment))
    , m_checkFolder(std::move(checkFolder))
    , m_treeView(treeView)
    , m_alert(alert)
    , m_screen(screen)
{
    // Whatever ends one rescan may be about to change the tree.
    m_next.setSingleShot(true);
    m_next.callOnTimeout(&m_next, [this] { beginNext(); });
    m_show.setSingleShot(true);
    m_show.setInterval(kMilliseconds);
    m_show.callOnTimeout(&m_show, [this] { showRead(); });
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
    if (isAskedFor() || folder.parent() == nullptr) {
        return;
    }
    if (m_rescanFolder != nullptr) {
        putOff();
    }
    const std::string path = folder.absolutePath();
    showRead();
    auto* const shown = nodeCast<Folder>(nodeAtPath(*m_model.topFolder(), path));
    if (shown != nullptr) {
        beginFor(*shown);
    }
}

void FolderRescan::beginFor(Folder& folder)
{
    folder.setRescanning(true);
    m_rescanFolder = &folder;
    m_reason = Reason::User;
    m_screen.renderTree();
    addIndicator();
    begin();
}

void FolderRescan::bringUpToDate(const std::string& path)
{
    if (std::ranges::find(m_waiting, path) == m_waiting.end()) {
        m_waiting.push_back(path);
    }
    m_next.start();
}

void FolderRescan::beginNext()
{
    TopFolder* const top = m_model.topFolder();
    while (m_rescanFolder == nullptr && top != nullptr && !m_waiting.empty()) {
        const std::string path = std::move(m_waiting.front());
        m_waiting.pop_front();
        if (auto* const folder = nodeCast<Folder>(nodeAtPath(*top, path));
            folder != nullptr && folder != top) {
            m_rescanFolder = folder;
            m_reason = Reason::Program;
            begin();
        }
    }
    showReadIfLast();
}

/// The user comes first; it begins from the start later.
void FolderRescan::putOff()
{
    m_waiting.push_front(m_rescanFolder->absolutePath());
    m_rescanner->setDelegate(nullptr);
    m_rescanner->cancel();
    end();
}

void FolderRescan::begin()
{
    m_rescanner = Scanner::create(m_environment);
    m_rescanner->setDelegate(this);
    m_homePass = {};
    m_rescanner->setPathWithoutLinks(placeOnDisk(*m_rescanFolder).path());
    m_rescanner->scan(m_rescanFolder->url(), ScanPurpose::PartOfTree);
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
    if (m_read.empty()) {
        return;
    }
    const std::string path = node.absolutePath();
    std::erase_if(
        m_read, [&path](const ReadFolder& read) { return isPathAtOrBelow(read.path, path); });
}

void FolderRescan::pathWentAway(const std::string& path)
{
    if (m_rescanFolder != nullptr) {
        m_changedPaths.insert(path);
    }
    for (ReadFolder& read : m_read) {
        read.changedPaths.insert(path);
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
    if (m_read.empty()) {
        return;
    }
    const std::string path = node.absolutePath();
    for (ReadFolder& read : m_read) {
        if (isPathAtOrBelow(path, read.path)) {
            read.changedPaths.insert(path);
        }
    }
}

/// The tree on screen is right about these paths, whether the scanner passed them before or after
/// the change. In the order of the set a folder comes before what is in it.
void FolderRescan::applyChanges(
    File& folder, TopFolder& scanned, const std::set<std::string>& changedPaths)
{
    // First what was read: what is brought afterwards may be on the way to another of the paths.
    for (const std::string& path : changedPaths) {
        File* const read = nodeAtPath(scanned, path);
        if (read != nullptr && read != &scanned) {
            takeOut(*read);
        }
    }
    File* root = &folder;
    while (root->parent() != nullptr) {
        root = root->parent();
    }
    auto& shown = *nodeCast<TopFolder>(root);
    for (const std::string& path : changedPaths) {
        File* const known = nodeAtPath(shown, path);
        Folder* const parent = parentAtPath(scanned, path);
        if (known != nullptr && parent != nullptr) {
            putIn(*parent, takeOut(*known));
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
    m_next.start();
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
    if (const std::error_code problem = problemOf(*scanned)) {
        end();
        giveUp(folder, problem);
        return;
    }
    if (m_reason == Reason::Program) {
        m_read.push_back(
            {folder.absolutePath(), std::move(scanned), std::exchange(m_changedPaths, {})});
        end();
        if (!m_show.isActive()) {
            m_show.start();
        }
        showReadIfLast();
        return;
    }
    applyChanges(folder, *scanned, m_changedPaths);
    end();
    // Released when nothing on screen stands for what is in it any more.
    const std::unique_ptr<File> old = replace(folder, std::move(scanned));
    draw();
}

/// Nothing else will be read soon.
void FolderRescan::showReadIfLast()
{
    if (m_rescanFolder == nullptr && m_waiting.empty()) {
        showRead();
    }
}

/// Puts what the program has read into the tree, all at once.
void FolderRescan::showRead()
{
    m_show.stop();
    if (isScanningBelowRead()) {
        putOff();
    }
    TopFolder* const top = m_model.topFolder();
    std::vector<std::unique_ptr<File>> old; // as that of one
    for (ReadFolder& read : std::exchange(m_read, {})) {
        auto* const folder
            = top == nullptr ? nullptr : nodeCast<Folder>(nodeAtPath(*top, read.path));
        if (folder != nullptr && folder != top) {
            applyChanges(*folder, *read.scanned, read.changedPaths);
            old.push_back(replace(*folder, std::move(read.scanned)));
        }
    }
    if (!old.empty()) {
        draw();
    }
}

/// Then its folder is about to be released.
bool FolderRescan::isScanningBelowRead() const
{
    const std::string path = m_rescanFolder == nullptr ? "" : m_rescanFolder->absolutePath();
    return std::ranges::any_of(
        m_read, [&path](const ReadFolder& read) { return isPathAtOrBelow(path, read.path); });
}

void FolderRescan::draw()
{
    m_screen.objectTreeRefreshed();
    m_screen.renderTree();
}

/// A scan passes over what it cannot read, the folder itself as well. It tells why, but not of what
/// is gone.
std::error_code FolderRescan::problemOf(const TopFolder& scanned) const
{
    if (!scanned.children().empty()) {
        return {};
    }
    const std::error_code problem = m_checkFolder(placeOnDisk(*m_rescanFolder).path());
    const auto& unreadable = scanned.findings().unreadable();
    const auto found = std::ranges::find(unreadable, &scanned, &UnreadableFolder::node);
    return problem || found == unreadable.end() ? problem : found->reason;
}

/// What was there is returned.
std::unique_ptr<File> FolderRescan::replace(Folder& folder, std::unique_ptr<TopFolder> scanned)
{
    TopFolder& with = *scanned;
    // What the folder looked like from outside was not read anew.
    with.setHidden(folder.hidden());
    with.setIgnored(folder.ignored());
    with.setHue(folder.hue());
    std::unique_ptr<File> old = exchange(folder, loose(std::move(scanned)));
    m_screen.folderWasReplaced(folder, with);
    return old;
}

/// What is gone goes. Of what cannot be read the content last known is nearer to the truth than
/// none.
void FolderRescan::giveUp(Folder& folder, const std::error_code& problem)
{
    LooseNode old; // lives until nothing on screen stands for it any more
    if (isGone(problem)) {
        m_screen.nodeWillLeave(folder);
        old = takeOut(folder);
        m_screen.objectTreeRefreshed();
    } else if (m_reason == Reason::User) {
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
    if (m_reason == Reason::User) {
        m_alert.beginSheet(scanProblem(folder, problem));
    }
}

} // namespace tessera
