// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/OpenFilesSearch.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace tessera {

namespace {

std::pair<std::uint64_t, std::uint64_t> keyOf(const FileIdentity& file)
{
    return {file.inode, file.device};
}

/// What no name leads to any more and takes space nevertheless.
bool takesSpaceWithoutName(const OpenFileStatus& file)
{
    return file.links == 0 && (S_ISREG(file.mode) || S_ISDIR(file.mode));
}

/// `isDeviceExact` where a file shows the device of its file system. Elsewhere one that could not
/// be looked at shows that of the file system, and in two subvolumes two files have one number.
bool areSame(const HeldFile& a, const HeldFile& b, bool isDeviceExact)
{
    if (isDeviceExact || (a.allocatedBytes && b.allocatedBytes)) {
        return a.identity == b.identity;
    }
    const bool isEitherKnown = a.allocatedBytes || b.allocatedBytes;
    return a.path == b.path || (isEitherKnown && a.identity == b.identity);
}

std::string pathFrom(std::string path, const OpenFileStatus& status)
{
    return status.links == 0 ? withoutDeletedWord(std::move(path)) : path;
}

} // namespace

WantedFiles WantedFiles::withoutNames(std::uint64_t device)
{
    WantedFiles wanted;
    wanted.m_devices.insert(device);
    return wanted;
}

WantedFiles WantedFiles::among(const std::vector<FileIdentity>& files)
{
    WantedFiles wanted;
    wanted.m_identities.emplace();
    for (const FileIdentity& file : files) {
        wanted.m_devices.insert(file.device);
        wanted.m_identities->insert(keyOf(file));
    }
    return wanted;
}

bool WantedFiles::hold(const OpenFileStatus& file, std::optional<std::uint64_t> fileSystem) const
{
    if (m_identities) {
        return m_identities->contains(keyOf(file.identity));
    }
    const bool isThere = mayBeOn(file.identity.device) || (fileSystem && mayBeOn(*fileSystem));
    return isThere && takesSpaceWithoutName(file);
}

bool WantedFiles::mayHoldInLayer(const OpenFileStatus& file, std::uint64_t device) const
{
    return !m_identities && !mayBeOn(device) && file.links == 0 && S_ISREG(file.mode);
}

bool WantedFiles::hold(const Mapping& mapping) const
{
    if (m_identities) {
        return m_identities->contains(keyOf(mapping.identity));
    }
    return mayBeOn(mapping.identity.device) && mapping.looksDeleted();
}

bool WantedFiles::mayHold(const Mapping& mapping, const MountDevices& mounts) const
{
    const auto [device, inode] = mapping.identity;
    if (!m_identities || !mounts.mayDifferMapped(device)) {
        return false;
    }
    auto place = m_identities->lower_bound({inode, 0});
    while (place != m_identities->end() && place->first == inode && mounts.isExact(place->second)) {
        ++place;
    }
    return place != m_identities->end() && place->first == inode;
}

MountDevices::MountDevices(const MountTable& mounts)
{
    for (const Mount& mount : mounts.mounts()) {
        const std::optional<std::uint64_t> device = mount.deviceNumber();
        if (!device) {
            continue;
        }
        m_devices.emplace(mount.id, *device);
        const bool isLayered = mount.fileSystemType == "overlay";
        const bool mayDiffer = isLayered || mount.fileSystemType == "btrfs";
        (mayDiffer ? m_differing : m_exact).insert(*device);
        if (isLayered) {
            m_layered.insert(*device);
        }
    }
}

std::optional<std::uint64_t> MountDevices::deviceOf(std::optional<std::uint64_t> mount) const
{
    const auto found = mount ? m_devices.find(*mount) : m_devices.end();
    return found != m_devices.end() ? std::optional(found->second) : std::nullopt;
}

OpenFilesSearch::OpenFilesSearch(const Order& order, AnswerSoFar<OpenFilesAnswer>& answer)
    : m_order(order)
    , m_answer(answer)
    , m_proc(::open(order.proc.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
}

void OpenFilesSearch::run()
{
    const auto numbers = processNumbers(m_proc.number());
    if (!numbers) {
        return;
    }
    // Each system has a first process; who does not see it sees few. Each container has one, too.
    const bool hidesProcesses
        = std::ranges::find(*numbers, "1") == numbers->end() || isOfInnerNamespace(m_proc.number());
    m_answer.change(
        [hidesProcesses](OpenFilesAnswer& answer) { answer.hidesProcesses = hidesProcesses; });
    // A process whose memory is being changed keeps who asks for its mappings waiting; by then all
    // descriptors are known.
    for (const Look look :
         {&OpenFilesSearch::lookAtDescriptors, &OpenFilesSearch::lookAtMappings}) {
        for (const std::string& number : *numbers) {
            lookAt(number, look);
            if (mustEnd()) {
                return;
            }
        }
    }
    m_answer.change([](OpenFilesAnswer& answer) { answer.isCutShort = false; });
}

bool OpenFilesSearch::mustEnd() const
{
    return m_order.stop.stop_requested() || std::chrono::steady_clock::now() >= m_order.until;
}

void OpenFilesSearch::lookAt(const std::string& number, Look look)
{
    Process process{
        .files = ProcessFiles(m_proc.number(), number),
        .number = std::strtoll(number.c_str(), nullptr, 10),
        .mounts = nullptr,
        .holder = {},
        .program = {}};
    if (!process.files.isThere() || mustEnd()) {
        return;
    }
    process.mounts = &mountsOf(process.files);
    const bool isAllKnown = (this->*look)(process);
    if (!isAllKnown && m_unreadable.insert(process.number).second) {
        m_answer.change([](OpenFilesAnswer& answer) { ++answer.unreadableProcesses; });
    }
}

/// A process of a container sees mounts of its own, whose numbers no other table has.
const MountDevices& OpenFilesSearch::mountsOf(const ProcessFiles& process)
{
    const std::string nameSpace = process.mountNamespace();
    const auto known = m_mounts.find(nameSpace);
    if (known != m_mounts.end() && !nameSpace.empty()) {
        return known->second;
    }
    const std::optional<std::string> table = process.mountInfo();
    if (!table) {
        return m_noMounts; // of this process only: another of the name space may tell
    }
    return m_mounts.insert_or_assign(nameSpace, MountDevices(MountTable(*table))).first->second;
}

/// False when the program may not know all of them.
bool OpenFilesSearch::lookAtDescriptors(Process& process)
{
    const auto descriptors = process.files.descriptors();
    if (descriptors && descriptors->empty()) {
        return process.files.filesShown() != FilesShown::InItsThreads;
    }
    bool isAllKnown = descriptors.has_value();
    for (const std::string& descriptor : descriptors.value_or(std::vector<std::string>())) {
        if (mustEnd()) {
            break;
        }
        isAllKnown = lookAtDescriptor(process, descriptor) && isAllKnown;
    }
    return isAllKnown || process.files.filesShown() == FilesShown::Nowhere;
}

/// Likewise.
bool OpenFilesSearch::lookAtDescriptor(Process& process, const std::string& descriptor)
{
    const auto device = process.mounts->deviceOf(process.files.mountOf(descriptor));
    if (device && !m_order.wanted.mayBeOn(*device) && !process.mounts->mayDiffer(*device)) {
        return true;
    }
    const OpenFileStatus status = process.files.statusOf(descriptor);
    if (status && m_order.wanted.hold(status, device)) {
        found(
            process,
            {status.identity,
             status.allocatedBytes,
             {},
             pathFrom(process.files.pathOf(descriptor), status)},
            device.value_or(status.identity.device));
    } else if (status) {
        noteLayers(process, status, device);
    }
    return !status.isForbidden();
}

/// Likewise.
bool OpenFilesSearch::lookAtMappings(Process& process)
{
    const auto mappings = process.files.mappings();
    bool isAllKnown = mappings.has_value();
    std::set<std::tuple<std::uint64_t, std::uint64_t, std::string>> seen;
    for (const Mapping& mapping : mappings.value_or(std::vector<Mapping>())) {
        if (mustEnd()) {
            break;
        }
        const auto [device, inode] = mapping.identity;
        const bool mayBeWanted = m_order.wanted.mayBeOn(device) || process.mounts->mayDiffer(device)
            || m_order.wanted.mayHold(mapping, *process.mounts);
        if (mayBeWanted && seen.insert({device, inode, mapping.path}).second) {
            isAllKnown = lookAtMapping(process, mapping) && isAllKnown;
        }
    }
    return isAllKnown || process.files.filesShown() == FilesShown::Nowhere;
}

/// False when it may be one of the wanted files, and nobody tells.
bool OpenFilesSearch::lookAtMapping(Process& process, const Mapping& mapping)
{
    const std::uint64_t device = mapping.identity.device;
    OpenFileStatus status = process.files.statusOf(mapping);
    // Not for want of rights alone: the pieces may have become others since they were listed.
    if (!status && isProgram(process, mapping)) {
        status = process.program->status;
    }
    if (status) {
        if (m_order.wanted.hold(status, device)) {
            found(
                process,
                {status.identity, status.allocatedBytes, {}, pathFrom(mapping.path, status)},
                device);
        } else {
            noteLayers(process, status, device);
        }
        return true;
    }
    if (!status.isForbidden() && process.files.filesShown() == FilesShown::Nowhere) {
        return true;
    }
    if (m_order.wanted.hold(mapping)) {
        found(process, {mapping.identity, {}, {}, withoutDeletedWord(mapping.path)}, device);
        return true;
    }
    if (mapping.looksDeleted()) {
        OpenFileStatus likely;
        likely.mode = S_IFREG;
        noteLayers(process, likely, device);
    }
    return !m_order.wanted.mayHold(mapping, *process.mounts);
}

/// Whether what cannot be looked at is the program that runs, which can.
bool OpenFilesSearch::isProgram(Process& process, const Mapping& mapping)
{
    if (!process.program) {
        process.program = process.files.program();
    }
    const auto& [status, path] = *process.program;
    if (!status || status.identity.inode != mapping.identity.inode) {
        return false;
    }
    return status.identity.device == mapping.identity.device
        || (process.mounts->mayDifferMapped(mapping.identity.device) && path == mapping.path);
}

/// A container's file is told as one of its layered file system, whichever disk it takes space on.
void OpenFilesSearch::noteLayers(
    const Process& process, const OpenFileStatus& file, std::optional<std::uint64_t> device)
{
    if (device && process.mounts->isLayered(*device)
        && m_order.wanted.mayHoldInLayer(file, *device)) {
        m_answer.change([](OpenFilesAnswer& answer) { answer.hasFilesInLayers = true; });
    }
}

void OpenFilesSearch::found(Process& process, const HeldFile& file, std::uint64_t fileSystem)
{
    if (!process.holder) {
        process.holder = {process.number, process.files.name()};
    }
    const bool isDeviceExact = !process.mounts->mayDiffer(fileSystem);
    std::vector<std::size_t>& places = m_places[file.identity.inode];
    m_answer.change([&](OpenFilesAnswer& answer) {
        auto place = std::ranges::find_if(places, [&](std::size_t index) {
            return areSame(answer.files[index], file, isDeviceExact);
        });
        if (place == places.end()) {
            place = places.insert(places.end(), answer.files.size());
            answer.files.push_back(file);
        }
        HeldFile& held = answer.files[*place];
        if (file.allocatedBytes) {
            held.identity = file.identity;
            held.allocatedBytes = file.allocatedBytes;
        }
        if (std::ranges::find(held.holders, process.number, &FileHolder::process)
            == held.holders.end()) {
            held.holders.push_back(*process.holder);
        }
    });
}

} // namespace tessera
