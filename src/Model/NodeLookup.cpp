// SPDX-License-Identifier: MIT
#include "Model/NodeLookup.h"

#include "Model/Allocation.h"
#include "Model/TopFolder.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>

namespace tessera {

namespace {

/// What is left of `path` below `top`, without slashes around it; nothing when it lies elsewhere.
std::optional<std::string_view> pathBelow(std::string_view top, std::string_view path)
{
    if (!path.starts_with(top)) {
        return std::nullopt;
    }
    std::string_view rest = path.substr(top.size());
    if (rest.empty() || top == "/") {
        return rest;
    }
    if (!rest.starts_with('/')) {
        return std::nullopt;
    }
    rest.remove_prefix(1);
    return rest;
}

std::string joined(std::string_view folder, std::string_view below)
{
    std::string path(folder);
    if (!below.empty()) {
        path += path == "/" ? "" : "/";
        path += below;
    }
    return path;
}

std::string_view takeComponent(std::string_view& path)
{
    const std::string_view component = path.substr(0, path.find('/'));
    path.remove_prefix(std::min(component.size() + 1, path.size()));
    return component;
}

File* childNamed(const Folder& folder, std::string_view name)
{
    const ChildArray& children = folder.children();
    const auto* const found
        = std::find_if(children.begin(), children.end(), [name](const File* child) {
              return child->fragment() == name;
          });
    return found == children.end() ? nullptr : *found;
}

struct Found {
    File* deepest;
    bool isExact;
};

Found walkDown(TopFolder& top, std::string_view absolutePath)
{
    std::optional<std::string_view> rest = pathBelow(top.absolutePath(), absolutePath);
    if (!rest) {
        return {nullptr, false};
    }
    File* node = &top;
    while (!rest->empty()) {
        const auto* folder = nodeCast<Folder>(node);
        File* const child = folder == nullptr ? nullptr : childNamed(*folder, takeComponent(*rest));
        if (child == nullptr) {
            return {node, false};
        }
        node = child;
    }
    return {node, true};
}

} // namespace

bool isItem(const File& node)
{
    return node.isFolder() || node.type() == NodeType::Document;
}

Url placeOnDisk(const File& node)
{
    const TopFolder* const top = rootOfScan(node);
    const std::string path = node.absolutePath();
    return {top == nullptr ? path : pathOnDisk(*top, path), node.isFolder()};
}

std::string pathOnDisk(const TopFolder& top, std::string_view path)
{
    const auto below = pathBelow(top.origin(), path);
    return below ? joined(top.realOrigin(), *below) : std::string(path);
}

std::string pathInTree(const TopFolder& top, std::string_view path)
{
    const auto below = pathBelow(top.realOrigin(), path);
    return below ? joined(top.origin(), *below) : std::string(path);
}

std::optional<LinkedNames::Description> linkedNameOf(const File& node)
{
    const TopFolder* const root = rootOfScan(node);
    return root == nullptr ? std::nullopt : root->linkedNames().describe(node);
}

std::uint64_t allocationOfAllNames(const File& node)
{
    const TopFolder* const root = rootOfScan(node);
    return root == nullptr
        ? node.totalAllocation()
        : saturatingSum(node.totalAllocation(), root->linkedNames().countedElsewhere(node));
}

File* nodeAtPath(TopFolder& top, std::string_view absolutePath)
{
    const Found found = walkDown(top, absolutePath);
    return found.isExact ? found.deepest : nullptr;
}

Folder* parentAtPath(TopFolder& top, std::string_view absolutePath)
{
    const std::size_t slash = absolutePath.rfind('/');
    if (slash == std::string_view::npos) {
        return nullptr;
    }
    const std::string_view parent = absolutePath.substr(0, slash);
    return nodeCast<Folder>(nodeAtPath(top, parent.empty() ? "/" : parent));
}

File* nearestNodeAtPath(TopFolder& top, std::string_view absolutePath)
{
    return walkDown(top, absolutePath).deepest;
}

} // namespace tessera
