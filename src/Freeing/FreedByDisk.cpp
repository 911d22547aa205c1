// SPDX-License-Identifier: MIT
#include "Freeing/FreedByDisk.h"

#include "Model/Allocation.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace tessera {

namespace {

using Reason = KeptFiles::Reason;

/// The files that are kept, as they are met, the largest first.
class KeptByReason {
public:
    KeptFiles& add(Reason reason, const std::string& path, std::size_t count = 1)
    {
        KeptFiles& files = m_files.at(static_cast<std::size_t>(reason));
        if (files.count == 0) {
            files.reason = reason;
            files.largest = path;
        }
        files.count += count;
        return files;
    }

    std::vector<KeptFiles> take()
    {
        std::vector<KeptFiles> all;
        std::copy_if(
            m_files.begin(), m_files.end(), std::back_inserter(all), [](const KeptFiles& files) {
                return files.count > 0;
            });
        return all;
    }

private:
    std::array<KeptFiles, static_cast<std::size_t>(Reason::NotLookedAt) + 1> m_files{};
};

struct Range {
    std::uint64_t least = 0;
    std::uint64_t most = 0;
};

/// Goes through the files of a question.
class FreedFiles {
public:
    explicit FreedFiles(const FreeingFacts& facts)
        : m_facts(facts)
    {
        for (const HeldFile& file : facts.open.files) {
            m_held.emplace(file.identity, &file);
        }
    }

    void add(const FileToLookAt& file, std::size_t index)
    {
        const Range freed = rangeOf(file, index);
        m_sum.least = saturatingSum(m_sum.least, freed.least);
        m_sum.most = saturatingSum(m_sum.most, freed.most);
    }

    const Range& sum() const { return m_sum; }
    KeptByReason& kept() { return m_kept; }

private:
    Range rangeOf(const FileToLookAt& file, std::size_t index)
    {
        const ItemAnswer answer
            = index < m_facts.states.size() ? m_facts.states[index] : ItemAnswer();
        const bool isSomethingElse = answer.outcome == ItemAnswer::Outcome::Gone
            || answer.state.kind == ItemState::Kind::Folder;
        if (isSomethingElse || answer.outcome != ItemAnswer::Outcome::Known) {
            m_kept.add(isSomethingElse ? Reason::Changed : Reason::NotLookedAt, file.path);
            return {0, file.bytes};
        }
        const ItemState& state = answer.state;
        Range range{state.allocatedBytes, state.allocatedBytes};
        if (state.kind == ItemState::Kind::File) {
            range.least = std::min(range.least, leastOf(file, index));
        }
        if (state.linkCount > file.names) {
            m_kept.add(Reason::LinksOutsideScan, file.path);
            range.least = 0;
        }
        if (const auto held = m_held.find(state.identity); held != m_held.end()) {
            KeptFiles& files = m_kept.add(Reason::HeldOpen, file.path);
            files.holders = files.count == 1 ? held->second->holders : files.holders;
            range.least = 0;
        }
        return range;
    }

    /// By its extents; the largest number where these keep nothing.
    std::uint64_t leastOf(const FileToLookAt& file, std::size_t index)
    {
        const FileExtents extents
            = index < m_facts.extents.size() ? m_facts.extents[index] : FileExtents();
        switch (extents.state) {
        case FileExtents::State::Known:
            break;
        case FileExtents::State::NotTold:
        case FileExtents::State::MayNotRead:
            m_kept.add(Reason::NotTold, file.path);
            return 0;
        case FileExtents::State::Changed:
            m_kept.add(Reason::Changed, file.path);
            return 0;
        case FileExtents::State::NotLookedAt:
            m_kept.add(Reason::NotLookedAt, file.path);
            return 0;
        }
        if (extents.bytes.shared > 0) {
            m_kept.add(Reason::SharedExtents, file.path);
        }
        if (extents.bytes.ownEncoded > 0) {
            m_kept.add(Reason::Compressed, file.path);
        }
        const bool keepsNothing = extents.bytes.shared == 0 && extents.bytes.ownEncoded == 0;
        return keepsNothing ? kMaxAllocation
                            : saturatingDifference(extents.bytes.own, extents.bytes.ownEncoded);
    }

    const FreeingFacts& m_facts;
    std::unordered_map<FileIdentity, const HeldFile*, FileIdentityHash> m_held;
    Range m_sum;
    KeptByReason m_kept;
};

/// What those files take that are not looked at one by one.
std::uint64_t otherBytes(const FreeingQuestion& question)
{
    std::uint64_t bytes = saturatingDifference(question.byScan.most, question.folderBytes);
    for (const FileToLookAt& file : question.files) {
        bytes = saturatingDifference(bytes, file.bytes);
    }
    return bytes;
}

} // namespace

FreedSpace freedByDisk(const FreeingQuestion& question, const FreeingFacts& facts)
{
    FreedFiles files(facts);
    for (std::size_t i = 0; i < question.files.size(); ++i) {
        files.add(question.files[i], i);
    }
    for (const KeptFiles& kept : question.byScan.kept) {
        // The others were looked at, or are among those for which there was no room.
        if (kept.reason == Reason::LinksElsewhere) {
            files.kept().add(kept.reason, kept.largest, kept.count);
        }
    }
    if (question.otherFiles > 0) {
        files.kept().add(Reason::NotLookedAt, {}, question.otherFiles);
    }
    FreedSpace space;
    space.least = saturatingSum(files.sum().least, question.folderBytes);
    space.most = saturatingSum(
        saturatingSum(files.sum().most, question.folderBytes), otherBytes(question));
    space.kept = files.kept().take();
    space.mayBeHeldOpen = facts.open.isAtLeast();
    return space;
}

} // namespace tessera
