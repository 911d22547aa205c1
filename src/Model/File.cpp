// SPDX-License-Identifier: MIT
#include "Model/File.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstring>

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

Url File::url() const
{
    return {absolutePath(), isFolder()};
}

} // namespace tessera
