// SPDX-License-Identifier: MIT
#include "Model/LinkedNames.h"

#include "Model/Allocation.h"
#include "Model/Folder.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace tessera {

namespace {

constexpr std::uint32_t kMaxLinkCount = (std::uint32_t{1} << 31U) - 1;

std::size_t hashOf(const FileIdentity& file)
{
    return FileIdentityHash()(file);
}

} // namespace

/// Gives nodes other sizes. The folders above follow at once and are sorted at the end, each once:
/// thousands of names may lie in one.
class LinkedNames::Resizing {
public:
    Resizing() = default;
    Resizing(const Resizing&) = delete;
    Resizing& operator=(const Resizing&) = delete;

    ~Resizing()
    {
        for (Folder* const folder : m_changed) {
            folder->sort();
        }
    }

    void setSize(File& node, std::uint64_t bytes)
    {
        const std::uint64_t delta = bytes - node.totalAllocation();
        node.setTotalAllocation(bytes);
        for (Folder* folder = node.parent(); folder != nullptr; folder = folder->parent()) {
            folder->childChanged(delta);
            m_changed.insert(folder);
        }
    }

private:
    std::unordered_set<Folder*> m_changed;
};

/// Parts of a tree, none of which lies in another.
class LinkedNames::Parts {
public:
    explicit Parts(const std::vector<const File*>& nodes)
    {
        for (const File* const node : nodes) {
            m_numbers.emplace(node, m_numbers.size());
        }
    }

    /// The number of the part that the name is in. Fast for names of one folder in a row.
    std::optional<std::size_t> partOf(const File& name)
    {
        if (const auto found = m_numbers.find(&name); found != m_numbers.end()) {
            return found->second;
        }
        if (name.parent() != m_lastFolder) {
            m_lastFolder = name.parent();
            m_lastPart = partAround(m_lastFolder);
        }
        return m_lastPart;
    }

private:
    std::optional<std::size_t> partAround(const File* folder) const
    {
        for (; folder != nullptr; folder = folder->parent()) {
            if (const auto found = m_numbers.find(folder); found != m_numbers.end()) {
                return found->second;
            }
        }
        return std::nullopt;
    }

    std::unordered_map<const File*, std::size_t> m_numbers;
    const File* m_lastFolder = nullptr;
    std::optional<std::size_t> m_lastPart;
};

/// The names that have left, and what they leave behind.
struct LinkedNames::Gone {
    std::vector<LinkedNames> names; ///< of each part
    std::size_t place = 0; ///< among those that stay, where the first of them was
    FileSizes owed; ///< files that were counted at them
};

bool LinkedNames::add(File& name, const FileIdentity& file, std::uint32_t linkCount)
{
    const bool isFirst = countedNameOf(file) == nullptr;
    name.setLinkedName();
    append(
        {file.inode, &name, 0, std::min(linkCount, kMaxLinkCount) & kMaxLinkCount, isFirst}, file);
    return isFirst;
}

std::optional<LinkedNames::Description> LinkedNames::describe(const File& node) const
{
    if (!node.isLinkedName()) {
        return std::nullopt;
    }
    const auto found = std::find_if(
        m_names.begin(), m_names.end(), [&node](const Name& name) { return name.node == &node; });
    if (found == m_names.end()) {
        return std::nullopt;
    }
    return Description{found->linkCount, countedNameOf(fileOf(*found))->node};
}

std::vector<LinkedNames::Share> LinkedNames::sharesOf(
    const std::function<bool(const File&)>& isInside) const
{
    std::vector<Share> shares;
    std::unordered_map<const Name*, std::size_t> places; // by the names that have the sizes
    for (const Name& name : m_names) {
        if (isInside(*name.node)) {
            const Name* const counted = countedNameOf(fileOf(name));
            const auto [place, isFirst] = places.emplace(counted, shares.size());
            if (isFirst) {
                shares.push_back({counted->node, name.node});
            }
            ++shares[place->second].namesInside;
        }
    }
    for (const Name& name : m_names) {
        const auto place = places.find(countedNameOf(fileOf(name)));
        if (place != places.end()) {
            Share& share = shares[place->second];
            ++share.names;
            share.linkCount = std::max<std::uint32_t>(share.linkCount, name.linkCount);
        }
    }
    return shares;
}

std::uint64_t LinkedNames::countedElsewhere(const File& node) const
{
    std::uint64_t bytes = 0;
    for (const Name& name : m_names) {
        if (!name.isCounted && isAtOrBelow(*name.node, node)) {
            bytes = saturatingSum(bytes, countedNameOf(fileOf(name))->node->totalAllocation());
        }
    }
    return bytes;
}

LinkedNames LinkedNames::takeOut(const File& leaving)
{
    return std::move(takeOut(std::vector<const File*>{&leaving}).front());
}

std::vector<LinkedNames> LinkedNames::takeOut(const std::vector<const File*>& leaving)
{
    const bool mayHoldNames = !isEmpty() && std::ranges::any_of(leaving, [](const File* node) {
        return node->isFolder() || node->isLinkedName();
    });
    if (!mayHoldNames) {
        return std::vector<LinkedNames>(leaving.size());
    }
    Gone gone = removeBelow(leaving);
    if (std::ranges::all_of(gone.names, &LinkedNames::isEmpty)) {
        return std::move(gone.names);
    }
    Resizing resizing;
    findCounted();
    passOn(gone.owed, resizing);
    for (LinkedNames& names : gone.names) {
        names.countAll(*this, gone.owed, resizing);
    }
    return std::move(gone.names);
}

void LinkedNames::takeIn(const LinkedNames& coming)
{
    Resizing resizing;
    for (Name name : coming.m_names) {
        const FileIdentity file = coming.fileOf(name);
        if (name.isCounted && countedNameOf(file) != nullptr) {
            resizing.setSize(*name.node, 0);
            name.isCounted = false;
        }
        append(name, file);
    }
}

void LinkedNames::exchange(const File& leaving, const LinkedNames& coming)
{
    if (coming.isEmpty() && !holdsNamesBelow(leaving)) {
        return;
    }
    Gone gone = removeBelow({&leaving});
    Resizing resizing;
    findCounted();
    std::deque<Name> came;
    for (Name name : coming.m_names) {
        const FileIdentity file = coming.fileOf(name);
        Name* const outside = name.isCounted ? countedNameOf(file) : nullptr;
        if (outside != nullptr) {
            resizing.setSize(*outside->node, name.node->totalAllocation());
            resizing.setSize(*name.node, 0);
            name.isCounted = false;
        }
        gone.owed.erase(file);
        name.device = placeOf(file.device);
        came.push_back(name);
    }
    const auto place = m_names.begin() + static_cast<std::ptrdiff_t>(gone.place);
    m_names.insert(place, came.begin(), came.end());
    findCounted();
    passOn(std::move(gone.owed), resizing);
}

/// Those that stay keep their order; where they are counted has to be found anew.
LinkedNames::Gone LinkedNames::removeBelow(const std::vector<const File*>& leaving)
{
    Parts parts(leaving);
    Gone gone;
    gone.names.resize(leaving.size());
    std::optional<std::size_t> first;
    std::size_t staying = 0;
    for (const Name& name : m_names) {
        const std::optional<std::size_t> part = parts.partOf(*name.node);
        if (!part) {
            m_names[staying++] = name;
            continue;
        }
        const FileIdentity file = fileOf(name);
        first = first.value_or(staying);
        gone.names[*part].append(name, file);
        if (name.isCounted) {
            gone.owed.emplace(file, name.node->totalAllocation());
        }
    }
    m_names.resize(staying);
    gone.place = first.value_or(staying);
    return gone;
}

void LinkedNames::findCounted()
{
    m_counted = PlaceTable(static_cast<std::size_t>(std::count_if(
        m_names.begin(), m_names.end(), [](const Name& name) { return name.isCounted; })));
    for (std::size_t place = 0; place < m_names.size(); ++place) {
        if (m_names[place].isCounted) {
            enter(place);
        }
    }
}

/// Sizes of files whose counted names have left: each to the first of the others.
void LinkedNames::passOn(FileSizes owed, Resizing& resizing)
{
    for (std::size_t place = 0; place < m_names.size() && !owed.empty(); ++place) {
        const auto found = owed.find(fileOf(m_names[place]));
        if (found != owed.end()) {
            resizing.setSize(*m_names[place].node, found->second);
            countAt(place);
            owed.erase(found);
        }
    }
}

/// Names that have left count what is counted at those that stay, or that have left beside them:
/// they may come to another tree.
void LinkedNames::countAll(const LinkedNames& staying, const FileSizes& owed, Resizing& resizing)
{
    for (std::size_t place = 0; place < m_names.size(); ++place) {
        const FileIdentity file = fileOf(m_names[place]);
        if (countedNameOf(file) == nullptr) {
            const auto left = owed.find(file);
            resizing.setSize(
                *m_names[place].node,
                left == owed.end() ? staying.countedNameOf(file)->node->totalAllocation()
                                   : left->second);
            countAt(place);
        }
    }
}

bool LinkedNames::holdsNamesBelow(const File& node) const
{
    if (!node.isFolder()) {
        return node.isLinkedName();
    }
    return std::any_of(m_names.begin(), m_names.end(), [&node](const Name& name) {
        return isAtOrBelow(*name.node, node);
    });
}

LinkedNames::Name* LinkedNames::countedNameOf(const FileIdentity& file)
{
    const auto place = m_counted.find(
        hashOf(file), [this, &file](std::uint32_t at) { return fileOf(m_names[at]) == file; });
    return place ? &m_names[*place] : nullptr;
}

const LinkedNames::Name* LinkedNames::countedNameOf(const FileIdentity& file) const
{
    const auto place = m_counted.find(
        hashOf(file), [this, &file](std::uint32_t at) { return fileOf(m_names[at]) == file; });
    return place ? &m_names[*place] : nullptr;
}

std::uint32_t LinkedNames::placeOf(std::uint64_t device)
{
    if (m_lastDevice < m_devices.size() && m_devices[m_lastDevice] == device) {
        return m_lastDevice;
    }
    const auto found = std::find(m_devices.begin(), m_devices.end(), device);
    m_lastDevice = static_cast<std::uint32_t>(found - m_devices.begin());
    if (found == m_devices.end()) {
        m_devices.push_back(device);
    }
    return m_lastDevice;
}

void LinkedNames::append(Name name, const FileIdentity& file)
{
    name.device = placeOf(file.device);
    m_names.push_back(name);
    if (name.isCounted) {
        enter(m_names.size() - 1);
    }
}

void LinkedNames::enter(std::size_t place)
{
    m_counted.insert(
        hashOf(fileOf(m_names[place])),
        static_cast<std::uint32_t>(place),
        [this](std::uint32_t at) { return hashOf(fileOf(m_names[at])); });
}

void LinkedNames::countAt(std::size_t place)
{
    m_names[place].isCounted = true;
    enter(place);
}

} // namespace tessera
