// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/LinuxItemChanges.h"

#include <fts.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <memory>

namespace tessera {

namespace {

struct EndWalk {
    void operator()(FTS* walk) const { ::fts_close(walk); }
};

/// A change of names, too, changes the time of what it is about, and of the folder around it.
bool isUnchanged(const FTSENT& item, const FileTime& since)
{
    switch (item.fts_info) {
    case FTS_D:
    case FTS_F:
    case FTS_SL:
    case FTS_SLNONE:
    case FTS_DEFAULT:
        break;
    default:
        return false; // cannot be looked at
    }
    const timespec& changed = item.fts_statp->st_ctim;
    return FileTime{changed.tv_sec, static_cast<std::uint32_t>(changed.tv_nsec)} < since;
}

} // namespace

ItemChanges::Answer LinuxItemChanges::since(
    const std::string& path, const FileTime& time, const std::stop_token& stop) const
{
    std::string root = path;
    std::array<char*, 2> roots{root.data(), nullptr};
    const std::unique_ptr<FTS, EndWalk> walk(
        ::fts_open(roots.data(), FTS_PHYSICAL | FTS_NOCHDIR | FTS_XDEV, nullptr));
    if (walk == nullptr) {
        return Answer::Some;
    }
    errno = 0;
    while (const FTSENT* const item = ::fts_read(walk.get())) {
        if (item->fts_level == FTS_ROOTLEVEL && item->fts_info == FTS_NS
            && item->fts_errno == ENOENT) {
            return Answer::Gone;
        }
        if (item->fts_info != FTS_DP && (stop.stop_requested() || !isUnchanged(*item, time))) {
            return Answer::Some;
        }
        errno = 0;
    }
    return errno == 0 ? Answer::None : Answer::Some;
}

} // namespace tessera
