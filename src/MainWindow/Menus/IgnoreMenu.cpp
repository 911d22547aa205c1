// SPDX-License-Identifier: MIT
#include "MainWindow/Menus/IgnoreMenu.h"

#include "Base/DisplayText.h"
#include "Model/Folder.h"
#include "Model/NodeLookup.h"
#include "Model/RootModel.h"
#include "TreeScreen/TreeViewController.h"

#include <algorithm>
#include <optional>
#include <string>

namespace tessera {

namespace {

/// The menu without any folder: a title, three kinds of space, a separator, the reset entry.
constexpr qsizetype kFixedEntries = 6;
constexpr qsizetype kFirstFolderIndex = 5;
/// Folders are put in, and taken out again, above the last separator and the reset entry.
constexpr qsizetype kEntriesBelowFolders = 2;

/// The last two components of a path of at least three, the root "/" being one.
QString folderTitle(const std::string& path)
{
    const bool isBelowRoot = path.starts_with('/') && path.size() > 1;
    const auto slashes = std::count(path.begin(), path.end(), '/');
    std::string shown = path;
    if (isBelowRoot && slashes > 1) {
        const std::size_t last = path.rfind('/');
        shown = path.substr(path.rfind('/', last - 1) + 1);
    }
    // A single ampersand would mark the key that chooses the entry.
    return displayText(shown).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

/// Nothing for the entries of folders.
std::optional<IgnoreEntry> fixedEntry(const QAction& action)
{
    const QVariant data = action.data();
    return data.isValid() ? std::optional(data.value<IgnoreEntry>()) : std::nullopt;
}

} // namespace

IgnoreMenuItem::IgnoreMenuItem(Folder& file, const QString& title, QObject* parent)
    : QAction(title, parent)
    , m_file(&file)
{
    setCheckable(true);
    setChecked(true);
}

IgnoreMenu::IgnoreMenu(RootModel& model, QWidget* parent)
    : QMenu(parent)
    , m_model(model)
{
    setTitle(tr("Ignore"));
    addAction(tr("Leave Out of the Picture"))->setEnabled(false);
    const PictureFilter& filter = model.pictureFilter();
    addKind(tr("&Free Space"), IgnoreEntry::FreeSpace, filter.ignoreFreeSpace());
    addKind(tr("&Hidden Files"), IgnoreEntry::HiddenFiles, filter.ignoreHiddenFiles());
    addKind(tr("&Restricted Files"), IgnoreEntry::RestrictedFiles, filter.ignoreRestrictedFiles());
    addSeparator();
    QAction& reset = addFixedEntry(tr("&Show Everything"), IgnoreEntry::Reset);
    connect(&reset, &QAction::triggered, this, [this, &reset] { ignoreItemSelected(reset); });
}

QAction& IgnoreMenu::addFixedEntry(const QString& title, IgnoreEntry entry)
{
    QAction* const action = addAction(title);
    action->setData(QVariant::fromValue(entry));
    return *action;
}

void IgnoreMenu::addKind(const QString& title, IgnoreEntry entry, bool isOn)
{
    QAction& action = addFixedEntry(title, entry);
    action.setCheckable(true);
    action.setChecked(isOn);
    connect(&action, &QAction::triggered, this, [this, &action] {
        // Qt has flipped the entry already, and toggleIgnore() does so too.
        action.toggle();
        ignoreItemSelected(action);
    });
}

void IgnoreMenu::setTreeViewController(TreeViewController* tree)
{
    if (m_tree != nullptr) {
        m_tree->disconnect(this);
    }
    m_tree = tree;
    if (tree == nullptr) {
        return;
    }
    connect(tree, &TreeViewController::ignoreRequested, this, &IgnoreMenu::ignoreFolder);
    connect(tree, &TreeViewController::nodeLeaving, this, [this](const File* node) {
        removeFoldersIn(*node);
    });
    connect(tree, &TreeViewController::folderReplaced, this, [this](const Folder* replaced) {
        followFoldersIn(*replaced);
    });
}

void IgnoreMenu::ignoreFolder()
{
    auto* const folder = m_tree == nullptr ? nullptr : nodeCast<Folder>(m_tree->selectedFile());
    if (folder == nullptr) {
        return;
    }
    m_tree->setSelectedFile(nullptr);
    folder->setIgnored(true);
    QAction* const former = entryOf(*folder);
    if (actions().size() == kFixedEntries) {
        insertSeparator(actions().at(kFirstFolderIndex));
    }
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the menu owns it
    auto* const item = new IgnoreMenuItem(*folder, folderTitle(folder->absolutePath()), this);
    connect(item, &QAction::triggered, this, [this, item] {
        item->toggle();
        ignoreItemSelected(*item);
    });
    insertAction(actions().at(actions().size() - kEntriesBelowFolders), item);
    if (former != nullptr) {
        remove(*former);
    }
    m_tree->renderTree();
}

/// Null when there is none.
QAction* IgnoreMenu::entryOf(const Folder& folder) const
{
    for (QAction* const action : actions()) {
        const auto* const item = qobject_cast<IgnoreMenuItem*>(action);
        if (item != nullptr && &item->file() == &folder) {
            return action;
        }
    }
    return nullptr;
}

void IgnoreMenu::ignoreItemSelected(QAction& sender)
{
    if (fixedEntry(sender) == IgnoreEntry::Reset) {
        turnAllOff();
    } else {
        toggleIgnore(sender);
    }
    m_model.applyPictureFilter();
    if (m_tree != nullptr) {
        m_tree->renderTree();
    }
}

void IgnoreMenu::turnAllOff()
{
    for (QAction* const item : actions()) {
        if (item->isChecked()) {
            toggleIgnore(*item);
        }
    }
}

void IgnoreMenu::toggleIgnore(QAction& item)
{
    item.toggle();
    if (const auto entry = fixedEntry(item)) {
        setFilter(*entry, item.isChecked());
    }
    if (const auto* const folderItem = qobject_cast<IgnoreMenuItem*>(&item)) {
        folderItem->file().setIgnored(!folderItem->file().ignored());
    }
}

void IgnoreMenu::setFilter(IgnoreEntry entry, bool isOn)
{
    PictureFilter& filter = m_model.pictureFilter();
    switch (entry) {
    case IgnoreEntry::RestrictedFiles:
        filter.setIgnoreRestrictedFiles(isOn);
        break;
    case IgnoreEntry::HiddenFiles:
        filter.setIgnoreHiddenFiles(isOn);
        break;
    case IgnoreEntry::FreeSpace:
        filter.setIgnoreFreeSpace(isOn);
        break;
    case IgnoreEntry::Reset:
        break;
    }
}

void IgnoreMenu::removeFolders()
{
    while (actions().size() > kFixedEntries) {
        remove(*actions().at(actions().size() - kEntriesBelowFolders));
    }
}

void IgnoreMenu::remove(QAction& item)
{
    removeAction(&item);
    // The entry may be the one whose choice led here.
    item.deleteLater();
}

/// Folders that go to the trash may still be in the picture there, and nobody could bring them back
/// into it without their entries.
void IgnoreMenu::removeFoldersIn(const File& leaving)
{
    for (IgnoreMenuItem* const item : itemsIn(leaving)) {
        item->file().setIgnored(false);
        remove(*item);
    }
    if (actions().size() == kFixedEntries + 1) {
        removeFolders();
    }
}

/// What was ignored inside a folder that was scanned anew stays so, where it is still there.
void IgnoreMenu::followFoldersIn(const Folder& replaced)
{
    for (IgnoreMenuItem* const item : itemsIn(replaced)) {
        File* const found = nodeAtPath(*m_model.topFolder(), item->file().absolutePath());
        if (auto* const folder = nodeCast<Folder>(found)) {
            folder->setIgnored(item->file().ignored());
            item->setFile(*folder);
        } else {
            remove(*item);
        }
    }
    if (actions().size() == kFixedEntries + 1) {
        removeFolders();
    }
}

QList<IgnoreMenuItem*> IgnoreMenu::itemsIn(const File& ancestor) const
{
    QList<IgnoreMenuItem*> items;
    for (QAction* const action : actions()) {
        auto* const item = qobject_cast<IgnoreMenuItem*>(action);
        if (item != nullptr && isAtOrBelow(item->file(), ancestor)) {
            items.append(item);
        }
    }
    return items;
}

} // namespace tessera
