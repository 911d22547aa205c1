// SPDX-License-Identifier: MIT
#include "Platform/Linux/Walk/ReadAhead.h"

#include "Platform/Linux/Walk/HeapMemory.h"

#include <algorithm>
#include <cassert>
#include <cerrno>
#include <system_error>
#include <utility>

namespace tessera {

namespace {

/// A folder with more entries is completed by several threads, so many entries each.
constexpr std::size_t kEntriesPerStep = 512;

/// So many times the entries that may be read ahead may lie far away beside them.
constexpr std::size_t kFarLimits = 8;

std::vector<std::size_t> directoriesIn(const DirectoryListing& listing)
{
    std::vector<std::size_t> positions;
    for (std::size_t i = 0; i < listing.size(); ++i) {
        if (listing[i].kind == DirectoryListing::Kind::Directory && !listing[i].isGone) {
            positions.push_back(i);
        }
    }
    return positions;
}

/// Moves the subfolders that exist out of `folder`.
void moveSubfolders(WalkFolder& folder, std::vector<std::unique_ptr<WalkFolder>>& to)
{
    for (std::unique_ptr<WalkFolder>& subfolder : folder.subfolders) {
        if (subfolder != nullptr) {
            to.push_back(std::move(subfolder));
        }
    }
}

/// Destroys folders with all below them; left to their destructors, a deep tree would recurse.
void destroy(std::vector<std::unique_ptr<WalkFolder>> folders)
{
    while (!folders.empty()) {
        const std::unique_ptr<WalkFolder> folder = std::move(folders.back());
        folders.pop_back();
        moveSubfolders(*folder, folders);
    }
}

/// What is known of the folder once somebody has tried to open it.
void noteOpened(WalkFolder& folder, OpenedFolder opened)
{
    folder.problem = opened.error;
    folder.ownAllocation = opened.allocatedBytes;
    if (opened.handle.isOpen()) {
        folder.readingHandle = std::make_shared<const FileDescriptor>(std::move(opened.handle));
    }
}

/// Of several problems of a folder the first one is told.
void noteProblem(WalkFolder& folder, int error)
{
    if (folder.problem == 0) {
        folder.problem = error;
    }
}

} // namespace

ReadAhead::ReadAhead(OpenedFolder start, ItemKeys keys, const ReadAheadOptions& options)
    : m_reader(keys, m_isEnding)
    , m_maxEntriesAhead(options.maxEntriesAhead)
    , m_levelsAhead(options.levelsAhead)
    , m_handles(FolderHandles::defaultCapacity())
    , m_start(std::make_unique<WalkFolder>(nullptr, 0, std::string()))
{
    if (start.handle.isOpen()) {
        const StatusResult found = statusOf(start.handle.number());
        if (found) {
            m_opener.emplace(start.handle, found.status);
            startHelpers(options.helpers);
        } else {
            start = {FileDescriptor(), unlessGone(found.error)};
        }
    }
    noteOpened(*m_start, std::move(start));
    Lock lock(m_mutex);
    readEntries(*m_start, lock);
    awaitReady(*m_start, lock);
}

ReadAhead::~ReadAhead()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding.store(true, std::memory_order_relaxed);
    }
    m_work.notify_all();
    for (std::thread& helper : m_helpers) {
        helper.join();
    }
    m_abandoned.push_back(std::move(m_start));
    destroy(std::move(m_abandoned));
    if (!m_helpers.empty()) {
        returnFreeMemory();
    }
}

void ReadAhead::startHelpers(unsigned count)
{
    try {
        for (unsigned i = 0; i < count; ++i) {
            m_helpers.emplace_back([this] { help(); });
        }
    } catch (const std::system_error&) {
        // Where threads are short the walk goes on with those it got.
        return;
    }
}

void ReadAhead::help()
{
    Lock lock(m_mutex);
    while (!m_isEnding.load(std::memory_order_relaxed)) {
        if (!workOnce(lock)) {
            ++m_idleHelpers;
            m_work.wait(lock);
            --m_idleHelpers;
        }
    }
}

bool ReadAhead::mayReadAhead() const
{
    return !m_untaken.empty() && m_entriesAhead - m_farEntriesAhead < m_maxEntriesAhead;
}

bool ReadAhead::workOnce(Lock& lock)
{
    if (!m_steps.empty()) {
        const Step step = m_steps.back();
        m_steps.pop_back();
        completeStep(step, lock);
        return true;
    }
    if (mayReadAhead()) {
        WalkFolder& folder = *m_untaken.begin()->second;
        read(take(folder, folder.nextUntaken), lock);
        return true;
    }
    return false;
}

WalkFolder& ReadAhead::fetch(WalkFolder& folder, std::size_t position)
{
    Lock lock(m_mutex);
    if (folder.subfolders[position] == nullptr) {
        countAllAsFar();
        read(take(folder, position), lock);
    }
    WalkFolder& subfolder = *folder.subfolders[position];
    awaitReady(subfolder, lock);
    return subfolder;
}

/// The taker has to read a folder itself, so all that was read ahead lies far away: crowded
/// folders, say, that were among the first to be seen. They must not keep the helpers from
/// reading what comes next.
void ReadAhead::countAllAsFar()
{
    m_farEntriesAhead = std::min(m_entriesAhead, kFarLimits * m_maxEntriesAhead);
}

void ReadAhead::awaitReady(WalkFolder& folder, Lock& lock)
{
    m_awaited = &folder;
    while (folder.state != WalkFolder::State::Ready) {
        if (!workOnce(lock)) {
            m_progress.wait(lock);
        }
    }
    m_awaited = nullptr;
}

void ReadAhead::skip(WalkFolder& folder, std::size_t position)
{
    const Lock lock(m_mutex);
    if (folder.subfolders[position] == nullptr) {
        passBy(folder, position);
        m_handles.release(folder);
    } else {
        folder.isPinned = true;
        abandon(std::move(folder.subfolders[position]));
    }
}

void ReadAhead::countTaken(std::size_t entries)
{
    const Lock lock(m_mutex);
    lowerEntriesAhead(entries);
}

void ReadAhead::finish(WalkFolder& folder)
{
    std::unique_ptr<WalkFolder> finished; // outlives the lock, under which nothing is released
    const Lock lock(m_mutex);
    m_handles.drop(folder);
    finished = std::move(folder.parent->subfolders[folder.position]);
    if (finished->isPinned) {
        finished->parent->isPinned = true;
        finished->listing = {};
        m_abandoned.push_back(std::move(finished));
    }
}

WalkFolder& ReadAhead::take(WalkFolder& folder, std::size_t position)
{
    const DirectoryListing& listing = folder.listing;
    const std::string_view name = listing.name(listing[folder.directories[position]]);
    folder.subfolders[position]
        = std::make_unique<WalkFolder>(&folder, position, std::string(name));
    WalkFolder& taken = *folder.subfolders[position];
    passBy(folder, position);
    return taken;
}

void ReadAhead::passBy(WalkFolder& folder, std::size_t position)
{
    // The taker may go past the ones that helpers took, never past one that nobody has taken.
    assert(position == folder.nextUntaken);
    folder.nextUntaken = position + 1;
    if (folder.nextUntaken == folder.subfolders.size()) {
        orderOf(folder).erase(folder.place);
        return;
    }
    auto entry = orderOf(folder).extract(folder.place);
    entry.key() = folder.spanOf(folder.nextUntaken).begin;
    folder.place = orderOf(folder).insert(std::move(entry));
}

WalkOrder& ReadAhead::orderOf(const WalkFolder& folder)
{
    return folder.level < m_levelsAhead ? m_untaken : m_untakenTooDeep;
}

void ReadAhead::abandon(std::unique_ptr<WalkFolder> folder)
{
    // Threads may be reading in there: what they come back with must find its folder, unwanted.
    std::vector<WalkFolder*> left{folder.get()};
    while (!left.empty()) {
        WalkFolder& unwanted = *left.back();
        left.pop_back();
        unwanted.isAbandoned = true;
        if (unwanted.state == WalkFolder::State::Ready) {
            lowerEntriesAhead(unwanted.listing.size());
        }
        if (unwanted.nextUntaken < unwanted.subfolders.size()) {
            orderOf(unwanted).erase(unwanted.place);
            unwanted.nextUntaken = unwanted.subfolders.size();
        }
        m_handles.drop(unwanted);
        for (const std::unique_ptr<WalkFolder>& subfolder : unwanted.subfolders) {
            if (subfolder != nullptr) {
                left.push_back(subfolder.get());
            }
        }
    }
    m_abandoned.push_back(std::move(folder));
}

OpenedFolder ReadAhead::openFolder(WalkFolder& folder)
{
    const HandleResult parent = m_handles.handleOf(*folder.parent);
    OpenedFolder opened;
    if (parent.handle != nullptr) {
        opened = m_opener->open(*parent.handle, folder.name);
    } else {
        opened.error = unlessGone(parent.error);
    }
    m_handles.release(*folder.parent);
    return opened;
}

void ReadAhead::read(WalkFolder& folder, Lock& lock)
{
    lock.unlock();
    noteOpened(folder, openFolder(folder));
    lock.lock();
    readEntries(folder, lock);
}

void ReadAhead::readEntries(WalkFolder& folder, Lock& lock)
{
    if (folder.readingHandle == nullptr) {
        finishReading(folder);
        return;
    }
    const int directory = folder.readingHandle->number();
    lock.unlock();
    ListingResult listed = m_reader.list(directory);
    folder.listing = std::move(listed.listing);
    const StatusResult found = statusOf(directory);
    folder.identity = found.status.identity;
    // One that was removed while it was open says so, and has no place any more. Nothing else means
    // that, once it is open: a network file system's listing ends with ELOOP when it runs in
    // circles.
    const int error = listed.error != 0 ? listed.error : found.error;
    folder.problem = error == ENOENT ? 0 : error;
    folder.ownAllocation = error == ENOENT ? 0 : found.status.allocatedBytes;
    const std::size_t size = folder.listing.size();
    if (size <= kEntriesPerStep) {
        noteProblem(folder, m_reader.readStatus(directory, folder.listing, 0, size));
        lock.lock();
        finishReading(folder);
        return;
    }
    lock.lock();
    folder.stepsLeft = (size + kEntriesPerStep - 1) / kEntriesPerStep;
    for (std::size_t step = folder.stepsLeft; step-- > 0;) {
        const std::size_t begin = step * kEntriesPerStep;
        m_steps.push_back({&folder, begin, std::min(begin + kEntriesPerStep, size)});
    }
    m_work.notify_all();
    m_progress.notify_one();
}

void ReadAhead::completeStep(const Step& step, Lock& lock)
{
    WalkFolder& folder = *step.folder;
    if (!folder.isAbandoned) {
        lock.unlock();
        const int error = m_reader.readStatus(
            folder.readingHandle->number(), folder.listing, step.begin, step.end);
        lock.lock();
        noteProblem(folder, error);
    }
    if (--folder.stepsLeft == 0) {
        finishReading(folder);
    }
}

void ReadAhead::finishReading(WalkFolder& folder)
{
    const FolderHandle handle = std::move(folder.readingHandle);
    if (folder.isAbandoned) {
        folder.listing = {};
        return;
    }
    folder.directories = directoriesIn(folder.listing);
    folder.state = WalkFolder::State::Ready;
    m_entriesAhead += folder.listing.size();
    if (!folder.directories.empty()) {
        m_handles.keep(folder, handle, folder.directories.size());
        folder.subfolders.resize(folder.directories.size());
        // Among equals the last one put in comes first: where numbers have run out, it is deepest.
        const std::uint64_t begin = folder.span.begin;
        WalkOrder& order = orderOf(folder);
        folder.place = order.emplace_hint(order.lower_bound(begin), begin, &folder);
        wakeHelpers(folder.directories.size());
    }
    if (m_awaited == &folder) {
        m_progress.notify_one();
    }
}

void ReadAhead::wakeHelpers(std::size_t workers)
{
    // Waking costs a system call, so nobody is woken who would find nothing to do.
    if (mayReadAhead()) {
        for (std::size_t i = std::min<std::size_t>(workers, m_idleHelpers); i > 0; --i) {
            m_work.notify_one();
        }
    }
}

void ReadAhead::lowerEntriesAhead(std::size_t entries)
{
    // Helpers that ran into the limit are woken when there is enough to do for it to be worth it.
    const std::size_t wakeUpAt = m_maxEntriesAhead / 2;
    const bool wasAbove = m_entriesAhead - m_farEntriesAhead > wakeUpAt;
    m_entriesAhead -= entries;
    m_farEntriesAhead = std::min(m_farEntriesAhead, m_entriesAhead);
    if (wasAbove && m_entriesAhead - m_farEntriesAhead <= wakeUpAt) {
        m_work.notify_all();
    }
}

} // namespace tessera
