// SPDX-License-Identifier: MIT
#pragma once

#include "DeadMounts/AnswerSoFar.h"
#include "Desktop/OpenFiles.h"
#include "Platform/Linux/Mounts/MountTable.h"
#include "Platform/Linux/Process/ProcessFiles.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <stop_token>
#include <string>
#include <utility>
#include <vector>

namespace tessera {

/// On which devices the mounts are that a process sees.
class MountDevices {
public:
    MountDevices() = default;
    explicit MountDevices(const MountTable& mounts);

    std::optional<std::uint64_t> deviceOf(std::optional<std::uint64_t> mount) const;

    /// Whether files there may show another device than the mount: another for each subvolume, or
    /// that of a layer.
    bool mayDiffer(std::uint64_t device) const { return m_differing.contains(device); }

    /// Whether files there lie in a file system below, which the system does not name.
    bool isLayered(std::uint64_t device) const { return m_layered.contains(device); }

    /// The same of mapped files, which older kernels tell by the layer that they lie in.
    bool mayDifferMapped(std::uint64_t device) const
    {
        return !m_layered.empty() || mayDiffer(device);
    }

    /// Whether all files that show the device are on the mounts that do.
    bool isExact(std::uint64_t device) const { return m_exact.contains(device); }

private:
    std::map<std::uint64_t, std::uint64_t> m_devices; ///< by the mount's number
    std::set<std::uint64_t> m_differing;
    std::set<std::uint64_t> m_exact;
    std::set<std::uint64_t> m_layered;
};

/// Which open files are asked for.
class WantedFiles {
public:
    static WantedFiles withoutNames(std::uint64_t device);
    static WantedFiles among(const std::vector<FileIdentity>& files);

    /// Whether there may be any on a file system of that device.
    bool mayBeOn(std::uint64_t device) const { return m_devices.contains(device); }

    /// `fileSystem` is the device of the whole file system, where it is known.
    bool hold(const OpenFileStatus& file, std::optional<std::uint64_t> fileSystem) const;

    /// Whether it takes space in the file system asked for if its layer lies there. `device` is of
    /// the layered file system.
    bool mayHoldInLayer(const OpenFileStatus& file, std::uint64_t device) const;

    /// Of a mapped file that cannot be looked at, on a file system whose files show its device.
    bool hold(const Mapping& mapping) const;

    /// Whether it may be one of the files although it shows another device than they do. Never
    /// where the files without names are asked for.
    bool mayHold(const Mapping& mapping, const MountDevices& mounts) const;

private:
    std::set<std::uint64_t> m_devices;
    /// Inode and device of each; nothing where the files without names are asked for.
    std::optional<std::set<std::pair<std::uint64_t, std::uint64_t>>> m_identities;
};

/// One look at all processes. Files on other file systems than those asked for are not touched,
/// so that dead ones do not matter; the others are asked only for what the system remembers.
class OpenFilesSearch {
public:
    struct Order {
        std::string proc; ///< where processes are told of: /proc
        WantedFiles wanted;
        std::chrono::steady_clock::time_point until;
        std::stop_token stop;
    };

    /// Both must outlive the search.
    OpenFilesSearch(const Order& order, AnswerSoFar<OpenFilesAnswer>& answer);

    /// To its end, or until it must end.
    void run();

private:
    /// The process that is looked at.
    struct Process {
        ProcessFiles files;
        std::int64_t number = 0;
        const MountDevices* mounts = nullptr;
        std::optional<FileHolder> holder; ///< known once it holds something
        std::optional<RunningProgram> program; ///< known once it matters
    };

    /// False when the process may have more open than could be seen.
    using Look = bool (OpenFilesSearch::*)(Process& process);

    bool mustEnd() const;
    void lookAt(const std::string& number, Look look);
    const MountDevices& mountsOf(const ProcessFiles& process);
    bool lookAtDescriptors(Process& process);
    bool lookAtDescriptor(Process& process, const std::string& descriptor);
    bool lookAtMappings(Process& process);
    bool lookAtMapping(Process& process, const Mapping& mapping);
    static bool isProgram(Process& process, const Mapping& mapping);
    void noteLayers(
        const Process& process, const OpenFileStatus& file, std::optional<std::uint64_t> device);
    void found(Process& process, const HeldFile& file, std::uint64_t fileSystem);

    const Order& m_order;
    AnswerSoFar<OpenFilesAnswer>& m_answer;
    FileDescriptor m_proc;
    std::map<std::string, MountDevices> m_mounts; ///< by the name space that sees them
    const MountDevices m_noMounts{};
    std::set<std::int64_t> m_unreadable; ///< processes that may have more open
    std::map<std::uint64_t, std::vector<std::size_t>> m_places; ///< in the answer, by the inode
};

} // namespace tessera
