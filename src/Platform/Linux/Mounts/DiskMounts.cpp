// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/DiskMounts.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <utility>

namespace tessera {

namespace {

constexpr std::string_view kHidden = "x-gvfs-hide";

/// The system's own places; a device that is mounted in there serves it, not the user.
constexpr std::array<std::string_view, 11> kSystemFolders{
    "/boot/efi",
    "/dev",
    "/efi",
    "/etc",
    "/proc",
    "/snap",
    "/sys",
    "/var/lib/containers",
    "/var/lib/docker",
    "/var/lib/kubelet",
    "/var/lib/snapd"};

/// Pictures of installed programs, as packages bring them.
constexpr std::array<std::string_view, 3> kImageTypes{"squashfs", "erofs", "cramfs"};

constexpr std::array<std::string_view, 23> kNetworkTypes{
    "9p",          "afs",           "beegfs",         "ceph",
    "cifs",        "davfs",         "fuse.afpfs",     "fuse.curlftpfs",
    "fuse.davfs2", "fuse.ceph",     "fuse.glusterfs", "fuse.rclone",
    "fuse.s3fs",   "fuse.smbnetfs", "fuse.sshfs",     "glusterfs",
    "lustre",      "nfs",           "nfs4",           "smb3",
    "smbfs",       "vboxsf",        "virtiofs"};

/// File systems on disks whose name among the sources is that of a pool.
constexpr std::array<std::string_view, 2> kPoolTypes{"bcachefs", "zfs"};

template <std::size_t size>
bool contains(const std::array<std::string_view, size>& list, std::string_view text)
{
    return std::find(list.begin(), list.end(), text) != list.end();
}

bool isOfTheSystem(std::string_view point)
{
    const auto holdsPoint
        = [point](std::string_view folder) { return isAtOrInside(point, folder); };
    const bool isRuntime = isAtOrInside(point, "/run") && !isAtOrInside(point, "/run/media");
    return isRuntime || std::any_of(kSystemFolders.begin(), kSystemFolders.end(), holdsPoint);
}

bool isDisk(const Mount& mount)
{
    if (mount.point == "/") {
        return true;
    }
    if (isOfTheSystem(mount.point) || contains(kImageTypes, mount.fileSystemType)) {
        return false;
    }
    return mount.source.starts_with("/dev/") || contains(kNetworkTypes, mount.fileSystemType)
        || contains(kPoolTypes, mount.fileSystemType);
}

bool hasOption(std::string_view options, std::string_view wanted)
{
    std::istringstream list{std::string(options)};
    for (std::string option; std::getline(list, option, ',');) {
        if (option == wanted) {
            return true;
        }
    }
    return false;
}

/// Whether it shows a whole subvolume that lies in no folder of its file system: what installers
/// make for the system and the home folders.
bool isTopSubvolume(const Mount& mount)
{
    const bool isInNoFolder = mount.root.rfind('/') == 0;
    return mount.fileSystemType == "btrfs" && isInNoFolder
        && hasOption(mount.options, "subvol=" + mount.root);
}

/// Whether another of the mounts shows what it shows, and more.
bool isPartOfOneOf(const Mount& mount, const std::vector<const Mount*>& others)
{
    if (mount.point == "/" || isTopSubvolume(mount)) {
        return false;
    }
    return std::any_of(others.begin(), others.end(), [&mount](const Mount* other) {
        return other->device == mount.device && other->root != mount.root
            && isAtOrInside(mount.root, other->root);
    });
}

} // namespace

MountedVolume volumeOf(const Mount& mount)
{
    MountedVolume volume{Url(mount.point, true), MountedVolume::Kind::Disk};
    if (contains(kNetworkTypes, mount.fileSystemType)) {
        volume.kind = MountedVolume::Kind::Network;
    } else if (isAtOrInside(mount.point, "/media") || isAtOrInside(mount.point, "/run/media")) {
        volume.kind = MountedVolume::Kind::Removable;
    }
    return volume;
}

std::vector<MountedVolume> diskMounts(
    const MountTable& mounts,
    const std::set<std::string>& hiddenPoints,
    const std::function<bool(const std::string& point)>& isFile)
{
    std::vector<const Mount*> shown;
    for (const Mount& mount : mounts.mounts()) {
        // What is mounted at the same point later covers it.
        const bool isCovered = mounts.mountOf(mount.point, {})->id != mount.id;
        if (!isCovered && isDisk(mount) && !hiddenPoints.contains(mount.point)) {
            shown.push_back(&mount);
        }
    }
    std::vector<MountedVolume> disks;
    std::set<std::pair<std::string, std::string>> seen;
    for (const Mount* mount : shown) {
        const bool isFileOrPart
            = mount->isPart() && (isPartOfOneOf(*mount, shown) || isFile(mount->point));
        if (!isFileOrPart && seen.emplace(mount->device, mount->root).second) {
            disks.push_back(volumeOf(*mount));
        }
    }
    return disks;
}

std::set<std::string> pointsHiddenInFstab(std::string_view fstab)
{
    std::set<std::string> points;
    std::istringstream lines{std::string(fstab)};
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::string source;
        std::string point;
        std::string type;
        std::string options;
        fields >> source >> point >> type >> options;
        if (!source.starts_with('#') && hasOption(options, kHidden)) {
            points.insert(unescapedMountField(point));
        }
    }
    return points;
}

} // namespace tessera
