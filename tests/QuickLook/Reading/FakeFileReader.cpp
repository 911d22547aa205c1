// SPDX-License-Identifier: MIT
#include "QuickLook/Reading/FakeFileReader.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace tessera::test {

class FakeFileReader::Content final : public ReadableFile {
public:
    Content(const FakeFileReader& reader, Item item)
        : m_reader(reader)
        , m_item(std::move(item))
    {
    }

    [[nodiscard]] std::optional<std::size_t> readAt(
        std::uint64_t offset, std::span<char> into) override
    {
        if (m_item.isBroken && offset >= m_item.content.size()) {
            return std::nullopt;
        }
        std::size_t count = into.size();
        if (m_item.isEndless) {
            std::ranges::fill(into, m_item.content.front());
        } else {
            count = std::min(
                into.size(),
                m_item.content.size() - std::min<std::size_t>(offset, m_item.content.size()));
            std::memcpy(into.data(), m_item.content.data() + (count == 0 ? 0 : offset), count);
        }
        if (offset < m_item.beginning.size()) {
            const std::string rest = m_item.beginning.substr(offset, into.size());
            std::ranges::copy(rest, into.begin());
        }
        const std::lock_guard lock(m_reader.m_mutex);
        m_reader.m_bytesRead += count;
        return count;
    }

    [[nodiscard]] int descriptor() const override { return -1; }

private:
    const FakeFileReader& m_reader;
    Item m_item;
};

FakeFileReader::~FakeFileReader() = default;

FakeFileReader::Item FakeFileReader::regularItem(std::uint64_t length)
{
    Item item;
    item.description.kind = FileKind::Regular;
    item.description.length = length;
    return item;
}

void FakeFileReader::add(const std::string& path, Item item)
{
    const std::lock_guard lock(m_mutex);
    m_items.insert_or_assign(path, std::move(item));
}

void FakeFileReader::addFile(const std::string& path, const std::string& content)
{
    Item item = regularItem(content.size());
    item.content = content;
    add(path, std::move(item));
}

void FakeFileReader::addEndlessFile(const std::string& path, char byte, std::uint64_t length)
{
    Item item = regularItem(length);
    item.content = std::string(1, byte);
    item.isEndless = true;
    add(path, std::move(item));
}

void FakeFileReader::setBeginning(const std::string& path, const std::string& beginning)
{
    const std::lock_guard lock(m_mutex);
    m_items.at(path).beginning = beginning;
}

void FakeFileReader::addUnreadableFile(const std::string& path, std::uint64_t length)
{
    Item item = regularItem(length);
    item.contentError = std::make_error_code(std::errc::permission_denied);
    add(path, std::move(item));
}

void FakeFileReader::addBrokenFile(
    const std::string& path, std::uint64_t length, const std::string& readable)
{
    Item item = regularItem(length);
    item.content = readable;
    item.isBroken = true;
    add(path, std::move(item));
}

void FakeFileReader::addSpecial(
    const std::string& path, FileKind kind, const std::string& linkTarget)
{
    Item item;
    item.description.kind = kind;
    item.description.linkTarget = linkTarget;
    add(path, std::move(item));
}

void FakeFileReader::holdUp(const std::string& path)
{
    const std::lock_guard lock(m_mutex);
    m_heldUp.insert(path);
}

void FakeFileReader::release(const std::string& path)
{
    const std::lock_guard lock(m_mutex);
    m_heldUp.erase(path);
    m_changed.notify_all();
}

void FakeFileReader::waitUntilAsked(const std::string& path)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [&] { return std::ranges::find(m_opened, path) != m_opened.end(); });
}

std::vector<std::string> FakeFileReader::opened() const
{
    const std::lock_guard lock(m_mutex);
    return m_opened;
}

std::uint64_t FakeFileReader::bytesRead() const
{
    const std::lock_guard lock(m_mutex);
    return m_bytesRead;
}

OpenedFile FakeFileReader::open(const std::string& path) const
{
    std::unique_lock lock(m_mutex);
    m_opened.push_back(path);
    m_changed.notify_all();
    m_changed.wait(lock, [&] { return !m_heldUp.contains(path); });
    OpenedFile opened;
    const auto found = m_items.find(path);
    if (found == m_items.end()) {
        opened.description.error = std::make_error_code(std::errc::no_such_file_or_directory);
        return opened;
    }
    opened.description = found->second.description;
    opened.contentError = found->second.contentError;
    if (opened.description.kind == FileKind::Regular && !opened.contentError) {
        opened.content = std::make_unique<Content>(*this, found->second);
    }
    return opened;
}

} // namespace tessera::test
