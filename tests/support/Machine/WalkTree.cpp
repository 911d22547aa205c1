// SPDX-License-Identifier: MIT
#include "support/Machine/WalkTree.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>

namespace tessera::test {

std::ostream& operator<<(std::ostream& stream, const WalkedItem& item)
{
    return stream << item.path << (item.isDirectory ? "/" : "") << ':' << item.allocatedBytes;
}

std::vector<WalkedItem> walkTree(
    const std::string& path, const ReadAheadOptions& options, const OnItem& onItem)
{
    std::vector<WalkedItem> items;
    std::vector<std::string> parents;
    const auto enumerator
        = LinuxFileManager(options).enumerator(path, ItemKeys::SizeAndHidden, LinksToStart::Follow);
    DirectoryItem item;
    while (enumerator->next(item)) {
        parents.resize(item.level - 1);
        std::string itemPath = parents.empty() ? std::string() : parents.back() + '/';
        itemPath.append(item.name);
        items.push_back({itemPath, item.isDirectory, item.isHidden, item.allocatedBytes});
        parents.push_back(std::move(itemPath));
        if (onItem) {
            onItem(items.back(), *enumerator);
        }
    }
    return items;
}

std::vector<std::string> sortedPaths(
    const std::string& path, const ReadAheadOptions& options, const OnItem& onItem)
{
    std::vector<std::string> paths;
    for (const WalkedItem& item : walkTree(path, options, onItem)) {
        paths.push_back(item.path);
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

WalkedItem itemAt(const std::vector<WalkedItem>& items, const std::string& path)
{
    const auto found = std::find_if(
        items.begin(), items.end(), [&](const WalkedItem& item) { return item.path == path; });
    if (found == items.end()) {
        ADD_FAILURE() << "no item " << path;
        return {};
    }
    return *found;
}

std::size_t countItems(const std::string& path, const ReadAheadOptions& options)
{
    const auto enumerator
        = LinuxFileManager(options).enumerator(path, ItemKeys::SizeAndHidden, LinksToStart::Follow);
    std::size_t count = 0;
    for (DirectoryItem item; enumerator->next(item);) {
        ++count;
    }
    return count;
}

int inChildProcess(const std::function<int()>& action)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(action());
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace tessera::test
