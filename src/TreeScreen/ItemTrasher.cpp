// SPDX-License-Identifier: MIT
#include "TreeScreen/ItemTrasher.h"

#include "Base/DisplayText.h"
#include "Desktop/Alert.h"
#include "Desktop/Workspace.h"
#include "Model/NodeLookup.h"
#include "Model/RootModel.h"
#include "Model/UserDefaults.h"
#include "TreeScreen/DiskChanges.h"
#include "TreeScreen/Map/TreeScreen.h"

#include <QPointer>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace tessera {

namespace {

constexpr int kCancelButton = 1;

QString kindOf(const File& item)
{
    return item.isFolder() ? ItemTrasher::tr("folder") : ItemTrasher::tr("file");
}

/// Whether the item or a folder around it is hidden. The scan's own top folder is where the user
/// chose to look, so it hides nothing.
bool isHiddenBelow(const TopFolder* top, const File& item)
{
    for (const File* at = &item; at != nullptr && at != top; at = at->parent()) {
        if (at->hidden()) {
            return true;
        }
    }
    return false;
}

/// Nodes that know their own path, as rescanned folders do, learn the one they have now.
void rebase(File& node, const std::string& from, const std::string& to)
{
    std::vector<File*> left{&node};
    while (!left.empty()) {
        File* const at = left.back();
        left.pop_back();
        if (auto* top = nodeCast<TopFolder>(at);
            top != nullptr && top->origin().starts_with(from)) {
            top->setOrigin(to + top->origin().substr(from.size()));
        }
        if (const auto* folder = nodeCast<Folder>(at)) {
            left.insert(left.end(), folder->children().begin(), folder->children().end());
        }
    }
}

bool liesAtOrBelow(const std::string& path, const std::string& above)
{
    return path == above || path.starts_with(above + '/');
}

std::string folderOf(const std::string& path)
{
    return path.substr(0, std::max<std::size_t>(path.rfind('/'), 1));
}

/// Puts the node where the path says. A trash that was made for it joins the tree with it; what
/// lies outside the tree leaves it. Returns the outermost node that joined, null when none did.
const File* insertAt(TopFolder& top, const std::string& path, std::unique_ptr<File> node)
{
    std::string parent = folderOf(path);
    auto* const nearest = nodeCast<Folder>(nearestNodeAtPath(top, parent));
    if (nearest == nullptr) {
        return nullptr;
    }
    for (const std::size_t there = nearest->absolutePath().size(); parent.size() > there;
         parent = folderOf(parent)) {
        auto folder = makeNode<Folder>(lastPathComponent(parent));
        folder->setHidden(lastPathComponent(parent).starts_with('.'));
        folder->insertChild(std::move(node));
        node = std::move(folder);
    }
    return &nearest->insertChild(std::move(node));
}

} // namespace

ItemTrasher::ItemTrasher(
    RootModel& model,
    const UserDefaults& defaults,
    Workspace& workspace,
    Alert& alert,
    DiskChanges& diskChanges,
    TreeScreen& screen)
    : m_model(model)
    , m_defaults(defaults)
    , m_workspace(workspace)
    , m_alert(alert)
    , m_diskChanges(diskChanges)
    , m_screen(screen)
{
}

void ItemTrasher::trash(const File& item)
{
    if (!isItem(item)) {
        return;
    }
    // The item may be released while a question about it is open: a rescan ends, for instance.
    const Url place = placeOnDisk(item);
    const std::string path = item.absolutePath();
    if (isOnItsWay(place.path()) || !mayTrash(item)) {
        return;
    }
    m_onTheirWay.insert(place.path());
    m_workspace.recycleURLs(
        {place},
        [self = QPointer<ItemTrasher>(this),
         changes = QPointer<DiskChanges>(&m_diskChanges),
         place,
         path](const RecycleResult& result) {
            if (self != nullptr) {
                self->recycled(place, path, result);
            } else if (changes != nullptr && result.error.empty()) {
                // The tree is another one by now, or is still being read.
                emit changes->itemGone(place);
            }
        });
}

bool ItemTrasher::isOnItsWay(const std::string& path) const
{
    return std::any_of(m_onTheirWay.begin(), m_onTheirWay.end(), [&path](const auto& moving) {
        return liesAtOrBelow(path, moving);
    });
}

bool ItemTrasher::mayTrash(const File& item) const
{
    return needsSystemWarning(placeOnDisk(item)) ? confirmSystem(item) : confirmHidden(item);
}

bool ItemTrasher::needsSystemWarning(const Url& place) const
{
    const std::string text = place.absoluteString();
    const std::vector<std::string>& safe = m_model.nonSystemFolders();
    return m_defaults.boolean(kWarnDeleteSystemKey)
        && std::none_of(safe.begin(), safe.end(), [&text](const std::string& folder) {
               return text.starts_with(folder);
           });
}

bool ItemTrasher::confirmSystem(const File& item) const
{
    return ask(tr("The selected %1 '%2' is located inside a system folder. Other applications may "
                  "be using this %1. Are you sure you want to move this %1 to the trash?")
                   .arg(kindOf(item), displayText(item.name())));
}

bool ItemTrasher::confirmHidden(const File& item) const
{
    if (!isHiddenBelow(m_model.topFolder(), item) || !m_defaults.boolean(kWarnDeleteHiddenKey)) {
        return true;
    }
    const QString question = item.hidden()
        ? tr("The selected %1 '%2' is marked as hidden, are you sure you want to move this item to "
             "the trash?")
        : tr("The selected %1 '%2' is located inside a hidden folder, are you sure you want to "
             "move this item to the trash?");
    return ask(question.arg(kindOf(item), displayText(item.name())));
}

bool ItemTrasher::ask(const QString& question) const
{
    // Delete and then Return is typed before the warning is read.
    const AlertText warning{
        tr("Warning"), question, {tr("Move To Trash"), tr("Cancel")}, {}, kCancelButton};
    return m_alert.runModal(warning) != Alert::kFirstButton + kCancelButton;
}

void ItemTrasher::recycled(const Url& place, const std::string& path, const RecycleResult& result)
{
    m_onTheirWay.erase(place.path());
    if (!result.error.empty()) {
        m_alert.beginSheet(
            {tr("Error moving to Trash"),
             tr("Error moving '%1' to the Trash for recycling.")
                 .arg(displayText(place.lastPathComponent())),
             {tr("OK")},
             displayText(result.error)});
        return;
    }
    const auto found = result.newUrls.find(place.absoluteString());
    moveNode(path, found == result.newUrls.end() ? nullptr : &found->second);
    m_screen.setSelectedFile(nullptr);
    m_screen.objectTreeRefreshed();
    m_screen.renderTree();
}

void ItemTrasher::moveNode(const std::string& from, const Url* to)
{
    // Looked up again: a rescan may have put another tree in the place of what the item was in.
    TopFolder* const top = m_model.topFolder();
    File* const item = top == nullptr ? nullptr : nodeAtPath(*top, from);
    if (item == nullptr || item == top) {
        return;
    }
    m_screen.nodeWillLeave(*item);
    std::unique_ptr<File> node = item->parent()->removeChild(*item);
    if (to == nullptr) {
        return;
    }
    const std::string path = pathInTree(*top, to->path());
    // A rescan of the trash meanwhile may have met the item there.
    if (nodeAtPath(*top, path) == nullptr) {
        node->setFragment(lastPathComponent(path));
        rebase(*node, from, path);
        if (const File* const came = insertAt(*top, path, std::move(node))) {
            m_screen.nodeCame(*came);
        }
    }
}

} // namespace tessera
