// SPDX-License-Identifier: MIT
#include "HelperPrograms/Archiver/AppleDouble.h"

#include "Base/FileNames.h"

#include <cstddef>
#include <cstdint>

namespace tessera {

namespace {

constexpr std::string_view kFinderInfoName = "com.apple.FinderInfo";
constexpr std::string_view kResourceForkName = "com.apple.ResourceFork";

constexpr std::uint32_t kMagic = 0x00051607;
constexpr std::uint32_t kVersion = 0x00020000;
constexpr std::string_view kHomeFileSystem = "Mac OS X        "; // 16 bytes that readers ignore
constexpr std::uint32_t kFinderInfoId = 9;
constexpr std::uint32_t kResourceForkId = 2;

// Readers on macOS take a file only with exactly these two entries, in this order.
constexpr std::uint16_t kEntryCount = 2;
constexpr std::size_t kFinderInfoOffset = 26 + kEntryCount * 12;
constexpr std::size_t kFinderInfoSize = 32;

// The table begins with two bytes of padding, then its header.
constexpr std::size_t kTableOffset = kFinderInfoOffset + kFinderInfoSize;
constexpr std::size_t kTablePadding = 2;
constexpr std::uint32_t kTableMagic = 0x41545452; // "ATTR"
constexpr std::size_t kTableHeaderSize = 36;
constexpr int kReservedFields = 3;
constexpr std::size_t kRecordSize = 11; // without the name
constexpr std::size_t kRecordAlignment = 4;

constexpr unsigned kBitsPerByte = 8;

/// Appends to a string in big-endian order.
class Writer {
public:
    explicit Writer(std::string& target)
        : m_target(target)
    {
    }

    void put8(std::size_t value) { m_target += static_cast<char>(value & 0xFFU); }
    void put16(std::size_t value)
    {
        put8(value >> kBitsPerByte);
        put8(value);
    }
    void put32(std::size_t value)
    {
        put16(value >> (2 * kBitsPerByte));
        put16(value);
    }
    void put(std::string_view bytes) { m_target += bytes; }
    void putZeros(std::size_t count) { m_target.append(count, '\0'); }

private:
    std::string& m_target;
};

/// A record ends with the name and its zero byte, padded so that the next one is aligned.
std::size_t recordSize(const ExtendedAttribute& attribute)
{
    const std::size_t size = kRecordSize + attribute.name.size() + 1;
    return (size + kRecordAlignment - 1) / kRecordAlignment * kRecordAlignment;
}

} // namespace

AppleDouble::AppleDouble(const std::vector<ExtendedAttribute>& attributes)
    : m_finderInfo(kFinderInfoSize, '\0')
{
    for (const ExtendedAttribute& attribute : attributes) {
        if (attribute.name == kFinderInfoName && attribute.value.size() == kFinderInfoSize) {
            m_finderInfo = attribute.value;
        } else if (attribute.name == kResourceForkName) {
            m_resourceFork = attribute.value;
        } else {
            m_others.push_back(attribute);
        }
    }
}

std::string AppleDouble::bytes() const
{
    const std::string table = m_others.empty() ? std::string() : attributeTable();
    std::string file;
    Writer writer(file);
    writer.put32(kMagic);
    writer.put32(kVersion);
    writer.put(kHomeFileSystem);
    writer.put16(kEntryCount);
    writer.put32(kFinderInfoId);
    writer.put32(kFinderInfoOffset);
    writer.put32(kFinderInfoSize + table.size());
    writer.put32(kResourceForkId);
    writer.put32(kTableOffset + table.size());
    writer.put32(m_resourceFork.size());
    writer.put(m_finderInfo);
    writer.put(table);
    writer.put(m_resourceFork);
    return file;
}

std::string AppleDouble::attributeTable() const
{
    std::size_t dataStart = kTableOffset + kTablePadding + kTableHeaderSize;
    std::size_t dataSize = 0;
    for (const ExtendedAttribute& attribute : m_others) {
        dataStart += recordSize(attribute);
        dataSize += attribute.value.size();
    }

    std::string table;
    Writer writer(table);
    writer.putZeros(kTablePadding);
    writer.put32(kTableMagic);
    writer.put32(0); // a tag for debugging
    writer.put32(dataStart + dataSize);
    writer.put32(dataStart);
    writer.put32(dataSize);
    for (int i = 0; i < kReservedFields; ++i) {
        writer.put32(0);
    }
    writer.put16(0); // flags
    writer.put16(m_others.size());

    // Offsets count from the beginning of the file, not of the table.
    std::size_t offset = dataStart;
    for (const ExtendedAttribute& attribute : m_others) {
        writer.put32(offset);
        writer.put32(attribute.value.size());
        writer.put16(0); // flags
        writer.put8(attribute.name.size() + 1);
        writer.put(attribute.name);
        writer.putZeros(recordSize(attribute) - kRecordSize - attribute.name.size());
        offset += attribute.value.size();
    }
    for (const ExtendedAttribute& attribute : m_others) {
        writer.put(attribute.value);
    }
    return table;
}

std::string AppleDouble::pathFor(std::string_view path)
{
    const std::size_t slash = path.rfind('/');
    const std::size_t nameStart = slash == std::string_view::npos ? 0 : slash + 1;
    std::string result = "__MACOSX/";
    result += path.substr(0, nameStart);
    return result += surroundedName("._", path.substr(nameStart), {});
}

} // namespace tessera
