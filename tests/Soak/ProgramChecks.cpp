// SPDX-License-Identifier: MIT
#include "ProgramChecks.h"

#include "Layout/MultiLayoutObject.h"
#include "MainWindow/MainWindowController.h"
#include "Model/RootModel.h"
#include "Model/TopFolder.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Picture/TreeBranch.h"
#include "TreeScreen/TreeViewController.h"

#include <QMainWindow>

#include <algorithm>
#include <cstdint>
#include <unordered_set>
#include <vector>

namespace tessera::test {

namespace {

/// What a walk over the whole tree has seen.
struct TreeFacts {
    std::unordered_set<const File*> nodes;
    std::vector<const File*> selected;
    int rescanning = 0;
    std::string problem;
};

void lookInto(const Folder& folder, TreeFacts& facts)
{
    std::uint64_t sum = 0;
    std::uint64_t previous = UINT64_MAX;
    for (const File* child : folder.children()) {
        sum += child->totalAllocation();
        if (child->parent() != &folder) {
            facts.problem = "a child has another parent: " + child->absolutePath();
        }
        if (child->totalAllocation() > previous) {
            facts.problem = "not sorted: " + folder.absolutePath();
        }
        previous = child->totalAllocation();
    }
    // A volume counts what is used, and not what is free.
    if (folder.type() != NodeType::Volume && sum != folder.totalAllocation()) {
        facts.problem = "does not add up: " + folder.absolutePath();
    }
}

TreeFacts factsOf(const TopFolder& top)
{
    TreeFacts facts;
    std::vector<const File*> open{&top};
    while (!open.empty()) {
        const File& node = *open.back();
        open.pop_back();
        facts.nodes.insert(&node);
        facts.rescanning += node.rescanning() ? 1 : 0;
        if (node.selected()) {
            facts.selected.push_back(&node);
        }
        if (const auto* folder = nodeCast<Folder>(&node)) {
            lookInto(*folder, facts);
            open.insert(open.end(), folder->children().begin(), folder->children().end());
        }
    }
    return facts;
}

std::string screenProblem(const MainWindowController& controller)
{
    const QWidgetList screens = controller.window().centralWidget()->findChildren<QWidget*>(
        QString(), Qt::FindDirectChildrenOnly);
    const auto shown
        = std::ranges::count_if(screens, [](const QWidget* screen) { return !screen->isHidden(); });
    const bool scans = controller.state() == ScreenState::Scanning
        || controller.state() == ScreenState::Cancelling;
    if (shown != (scans ? 2 : 1)) {
        return std::to_string(shown) + " screens are shown";
    }
    const bool hasTree = controller.state() == ScreenState::Tree;
    if ((controller.treeVC() != nullptr) != hasTree) {
        return hasTree ? "the tree screen is missing" : "the tree screen was left behind";
    }
    const auto maps = controller.window().findChildren<TreeMapView*>();
    return maps.size() == (hasTree ? 1 : 0) ? "" : "the wrong number of maps";
}

bool isStale(const LayoutObject& item, const TreeFacts& facts)
{
    const auto isGone = [&](const File* node) { return !facts.nodes.contains(node); };
    if (const auto* group = dynamic_cast<const MultiLayoutObject*>(&item)) {
        return std::ranges::any_of(group->refs, isGone);
    }
    return isGone(item.ref);
}

std::string pictureProblem(const TreeMapView& map, const TreeFacts& facts)
{
    std::vector<const TreeBranch*> open;
    for (const auto& top : map.branches()) {
        open.push_back(top.get());
    }
    while (!open.empty()) {
        const TreeBranch& branch = *open.back();
        open.pop_back();
        for (const auto& item : branch.layoutItems()) {
            if (isStale(*item, facts)) {
                return "a box stands for what is gone";
            }
        }
        for (const auto& nested : branch.subBranches()) {
            open.push_back(nested.get());
        }
    }
    return {};
}

std::string ignoreProblem(MainWindowController& controller, const TreeFacts& facts)
{
    for (const QAction* action : controller.ignoreMenu().actions()) {
        const auto* const entry = qobject_cast<const IgnoreMenuItem*>(action);
        if (entry == nullptr) {
            continue;
        }
        if (!facts.nodes.contains(&entry->file())) {
            return "an ignored folder is gone: " + entry->text().toStdString();
        }
        if (entry->file().ignored() != entry->isChecked()) {
            return "an ignored folder is shown: " + entry->text().toStdString();
        }
    }
    return {};
}

std::string selectionProblem(const TreeViewController& tree, const TreeFacts& facts)
{
    if (!facts.nodes.contains(tree.currentFolder())) {
        return "the folder in view is gone";
    }
    const File* const file = tree.selectedFile();
    if (file != nullptr && !facts.nodes.contains(file)) {
        return "the selected item is gone";
    }
    const std::vector<const File*> expected
        = file == nullptr ? std::vector<const File*>() : std::vector<const File*>{file};
    return facts.selected == expected ? "" : "marks of selection were left behind";
}

std::string treeProblem(MainWindowController& controller, const TopFolder& top)
{
    const TreeFacts facts = factsOf(top);
    if (!facts.problem.empty()) {
        return facts.problem;
    }
    if (facts.rescanning > 1) {
        return "more than one folder is being rescanned";
    }
    const auto* const map = controller.window().findChild<TreeMapView*>();
    for (const std::string& problem :
         {selectionProblem(*controller.treeVC(), facts),
          pictureProblem(*map, facts),
          ignoreProblem(controller, facts)}) {
        if (!problem.empty()) {
            return problem;
        }
    }
    return {};
}

} // namespace

std::string problemOf(MainWindowController& controller, const RootModel& model)
{
    std::string problem = screenProblem(controller);
    if (!problem.empty() || controller.state() != ScreenState::Tree) {
        return problem;
    }
    return treeProblem(controller, *model.topFolder());
}

bool isRescanning(const TopFolder& top)
{
    return factsOf(top).rescanning > 0;
}

} // namespace tessera::test
