// SPDX-License-Identifier: MIT
#include "Model/File.h"

#include "Model/Document.h"
#include "Model/Folder.h"
#include "Model/FreeSpace.h"
#include "Model/TimeMachine.h"
#include "Model/TopFolder.h"
#include "Model/Unknown.h"
#include "Model/Volume.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstring>
#include <vector>

namespace tessera {

namespace {

constexpr std::string_view kFreeSpaceName = "Free Space";
constexpr std::string_view kUnknownName = "Restricted Files";
constexpr std::string_view kTimeMachineName = "Time Machine";

/// A name too long for its node's block: the length, and the bytes behind it.
struct OutsideName {
    std::size_t length;
    char* bytes() { return reinterpret_cast<char*>(this + 1); }
    const char* bytes() const { return reinterpret_cast<const char*>(this + 1); }
};

OutsideName* makeOutsideName(std::string_view text)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the node owns it, by bytes in its block
    auto* name = new (::operator new(sizeof(OutsideName) + text.size())) OutsideName{text.size()};
    std::memcpy(name->bytes(), text.data(), text.size());
    return name;
}

} // namespace

// A million files at about 40 bytes each, name included, is what keeps a whole disk in memory.
static_assert(sizeof(File) == 24);
static_assert(sizeof(Document) == 24);
static_assert(sizeof(Folder) == 40);

std::size_t File::nameOffset(NodeType type)
{
    // A leaf's name starts in the padding behind the last field of File.
    constexpr std::size_t kEndOfFields = 20;
    switch (type) {
    case NodeType::Folder:
        return sizeof(Folder);
    case NodeType::TopFolder:
        return sizeof(TopFolder);
    case NodeType::Volume:
        return sizeof(Volume);
    default:
        return kEndOfFields;
    }
}

std::size_t File::nameRoomFor(std::string_view fragment)
{
    if (fragment.size() > kMaxNameInside) {
        return kMinNameRoom;
    }
    return std::max(fragment.size(), kMinNameRoom);
}

void File::initFragment(std::string_view fragment, std::size_t room)
{
    static_assert(offsetof(File, m_nameRoom) + sizeof(File::m_nameRoom) == 20);
    m_nameRoom = static_cast<std::uint8_t>(room);
    setFragment(fragment);
}

char* File::nameBytes()
{
    return reinterpret_cast<char*>(this) + nameOffset(m_type);
}

const char* File::nameBytes() const
{
    return reinterpret_cast<const char*>(this) + nameOffset(m_type);
}

std::string_view File::fragment() const
{
    if (m_nameLength != kNameOutside) {
        return {nameBytes(), m_nameLength};
    }
    const OutsideName* name = nullptr;
    std::memcpy(static_cast<void*>(&name), nameBytes(), sizeof(void*));
    return {name->bytes(), name->length};
}

void File::setFragment(std::string_view fragment)
{
    if (fragment.size() > m_nameRoom) {
        OutsideName* name = makeOutsideName(fragment);
        dropOutsideName();
        std::memcpy(nameBytes(), static_cast<const void*>(&name), sizeof(void*));
        m_nameLength = kNameOutside;
        return;
    }
    // The new name may be a part of the old one, so that is kept until it has been copied.
    std::array<char, kMaxNameInside> copy{};
    std::copy(fragment.begin(), fragment.end(), copy.begin());
    dropOutsideName();
    std::memcpy(nameBytes(), copy.data(), fragment.size());
    m_nameLength = static_cast<std::uint8_t>(fragment.size());
}

void File::dropOutsideName() noexcept
{
    if (m_nameLength != kNameOutside) {
        return;
    }
    void* name = nullptr;
    std::memcpy(static_cast<void*>(&name), nameBytes(), sizeof(name));
    ::operator delete(name);
    m_nameLength = 0;
}

void File::setHue(std::uint8_t hue)
{
    m_state = static_cast<std::uint8_t>((m_state & ~kHueMask) | (hue & kHueMask));
}

void File::setFlag(std::uint8_t flag, bool on)
{
    m_state = static_cast<std::uint8_t>(on ? m_state | flag : m_state & ~flag);
}

std::string_view File::name() const
{
    switch (m_type) {
    case NodeType::FreeSpace:
        return kFreeSpaceName;
    case NodeType::Unknown:
        return kUnknownName;
    case NodeType::TimeMachine:
        return kTimeMachineName;
    default:
        return fragment();
    }
}

std::string File::joinedPath(PathKind kind) const
{
    // Upward to the node that knows its path by itself, then downward again, without recursion:
    // a disk may hold chains of folders deeper than any stack.
    std::vector<const File*> below;
    const File* start = this;
    while (start->m_parent != nullptr && nodeCast<TopFolder>(start) == nullptr) {
        below.push_back(start);
        start = start->m_parent;
    }
    const auto* top = nodeCast<TopFolder>(start);
    std::string path(
        top != nullptr && kind == PathKind::Absolute ? std::string_view(top->origin())
                                                     : start->fragment());
    std::reverse(below.begin(), below.end());
    for (const File* node : below) {
        if (path != "/") {
            path += '/';
        }
        path += node->fragment();
    }
    return path;
}

std::string File::absolutePath() const
{
    return joinedPath(PathKind::Absolute);
}

std::string File::relativePath() const
{
    return joinedPath(PathKind::Relative);
}

Url File::url() const
{
    return {absolutePath(), isFolder()};
}

void File::operator delete(File* node, std::destroying_delete_t /*tag*/) noexcept
{
    // The parent links of the dying tree lead back up, so releasing needs neither recursion nor
    // memory of its own.
    File* current = node;
    while (true) {
        auto* folder = nodeCast<Folder>(current);
        if (folder != nullptr && !folder->m_children.empty()) {
            current = folder->m_children.takeLast();
            current->m_parent = folder;
            continue;
        }
        Folder* parent = current->m_parent;
        const bool isLast = current == node;
        dispose(current);
        if (isLast) {
            return;
        }
        current = parent;
    }
}

void File::dispose(File* node) noexcept
{
    node->dropOutsideName();
    switch (node->m_type) {
    case NodeType::Folder:
        static_cast<Folder*>(node)->~Folder();
        break;
    case NodeType::TopFolder:
        static_cast<TopFolder*>(node)->~TopFolder();
        break;
    case NodeType::Volume:
        static_cast<Volume*>(node)->~Volume();
        break;
    default:
        node->~File();
    }
    NodePool::release(node);
}

} // namespace tessera
