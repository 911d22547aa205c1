// SPDX-License-Identifier: MIT
#include "Platform/Linux/Walk/FolderHandles.h"

#include <sys/resource.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace tessera {

namespace {

constexpr rlim_t kShareOfLimit = 4;
constexpr rlim_t kMinCapacity = 16;
constexpr rlim_t kMaxCapacity = 256;

} // namespace

std::size_t FolderHandles::defaultCapacity()
{
    struct rlimit limit { };
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) {
        return kMinCapacity;
    }
    return std::clamp(limit.rlim_cur / kShareOfLimit, kMinCapacity, kMaxCapacity);
}

void FolderHandles::keep(WalkFolder& folder, FolderHandle handle, std::size_t subfolders)
{
    const std::lock_guard lock(m_mutex);
    if (folder.parent == nullptr) {
        m_start = std::move(handle);
        return;
    }
    folder.unopened = subfolders;
    store(folder, std::move(handle));
}

HandleResult FolderHandles::handleOf(WalkFolder& folder)
{
    FolderHandle nearest;
    std::vector<WalkFolder*> way;
    {
        const std::lock_guard lock(m_mutex);
        WalkFolder* at = &folder;
        while (at->parent != nullptr && at->handle == nullptr) {
            way.push_back(at);
            at = at->parent;
        }
        nearest = at->parent == nullptr ? m_start : at->handle;
    }
    return way.empty() ? HandleResult{std::move(nearest)} : reopen(std::move(nearest), way);
}

HandleResult FolderHandles::reopen(FolderHandle from, const std::vector<WalkFolder*>& way)
{
    // A walk that comes back up through a very deep tree would go all the way down from its start
    // for each folder. So half of the room is for the folders that are needed next, and half for
    // places along the way from which to go down later.
    const std::size_t half = std::max<std::size_t>(m_capacity / 2, 1);
    const std::size_t spacing = way.size() / half + 1;
    FolderHandle handle = std::move(from);
    for (std::size_t left = way.size(); left-- > 0;) {
        WalkFolder& folder = *way[left];
        FileDescriptor opened
            = openDirectoryAt(handle->number(), folder.name.c_str(), folder.identity);
        if (!opened.isOpen()) {
            return {nullptr, errno};
        }
        handle = std::make_shared<const FileDescriptor>(std::move(opened));
        if (left < half || left % spacing == 0) {
            storeOnTheWay(folder, handle);
        }
    }
    return {std::move(handle)};
}

void FolderHandles::storeOnTheWay(WalkFolder& folder, const FolderHandle& handle)
{
    const std::lock_guard lock(m_mutex);
    if (folder.handle == nullptr) {
        store(folder, handle);
    }
}

void FolderHandles::release(WalkFolder& folder)
{
    const std::lock_guard lock(m_mutex);
    if (folder.unopened > 0 && --folder.unopened == 0) {
        remove(folder);
    }
}

void FolderHandles::drop(WalkFolder& folder)
{
    const std::lock_guard lock(m_mutex);
    folder.unopened = 0;
    remove(folder);
}

void FolderHandles::store(WalkFolder& folder, FolderHandle handle)
{
    if (m_open.size() == m_capacity) {
        m_open.front()->handle.reset();
        m_open.erase(m_open.begin());
    }
    folder.handle = std::move(handle);
    m_open.push_back(&folder);
}

void FolderHandles::remove(WalkFolder& folder)
{
    if (folder.handle == nullptr) {
        return;
    }
    folder.handle.reset();
    // What is finished was most often opened lately.
    const auto found = std::find(m_open.rbegin(), m_open.rend(), &folder);
    m_open.erase(std::prev(found.base()));
}

} // namespace tessera
