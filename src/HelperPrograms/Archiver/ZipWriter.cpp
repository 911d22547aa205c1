// SPDX-License-Identifier: MIT
#include "HelperPrograms/Archiver/ZipWriter.h"

#include "Base/Utf8.h"

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <array>
#include <cassert>
#include <cerrno>
#include <clocale>
#include <cstdint>
#include <limits>
#include <string>

namespace tessera {

namespace {

constexpr int kBlockSize = 64 * 1024;
constexpr std::array<const char*, 3> kUtf8Locales{"C.UTF-8", "en_US.UTF-8", ".UTF-8"};

/// The library marks a name as UTF-8 when the process's character set is, without looking at the
/// name. Names of other bytes must not be marked: readers reject them or alter them.
bool chooseCharacterSet(const std::string& path)
{
    // NOLINTBEGIN(concurrency-mt-unsafe): the class says that no other thread may do this
    if (!isUtf8(path)) {
        return std::setlocale(LC_CTYPE, "C") != nullptr;
    }
    return std::any_of(kUtf8Locales.begin(), kUtf8Locales.end(), [](const char* locale) {
        return std::setlocale(LC_CTYPE, locale) != nullptr;
    });
    // NOLINTEND(concurrency-mt-unsafe)
}

/// An archive has 32 bits for a time. Earlier and later ones would come out as another century,
/// and those of no calendar year crash the library.
std::int64_t storedTime(std::int64_t modified)
{
    return std::clamp<std::int64_t>(modified, 0, std::numeric_limits<std::uint32_t>::max());
}

unsigned fileType(ArchiveItem::Kind kind)
{
    switch (kind) {
    case ArchiveItem::Kind::Folder:
        return AE_IFDIR;
    case ArchiveItem::Kind::Link:
        return AE_IFLNK;
    case ArchiveItem::Kind::File:
        break;
    }
    return AE_IFREG;
}

void describe(struct archive_entry* entry, const ArchiveItem& item)
{
    // The library adds a missing slash too, but writes one byte too many in doing so.
    const bool isFolder = item.kind == ArchiveItem::Kind::Folder;
    archive_entry_copy_pathname(entry, (isFolder ? item.path + '/' : item.path).c_str());
    archive_entry_set_mode(entry, fileType(item.kind) | item.permissions);
    archive_entry_set_mtime(entry, storedTime(item.modified), 0);
    archive_entry_set_uid(entry, item.owner);
    archive_entry_set_gid(entry, item.group);
    archive_entry_set_nlink(entry, 1);
    if (item.kind == ArchiveItem::Kind::File) {
        archive_entry_set_size(entry, static_cast<la_int64_t>(item.length));
    } else if (item.kind == ArchiveItem::Kind::Link) {
        archive_entry_copy_symlink(entry, item.linkTarget.c_str());
    }
}

} // namespace

void ZipWriter::ArchiveDeleter::operator()(struct archive* archive) const
{
    archive_write_free(archive);
}

void ZipWriter::EntryDeleter::operator()(struct archive_entry* entry) const
{
    archive_entry_free(entry);
}

ZipWriter::ZipWriter(ArchiveOutput& output)
    : m_output(output)
    , m_archive(archive_write_new())
    , m_entry(archive_entry_new())
{
    if (m_archive == nullptr || m_entry == nullptr) {
        m_error = ENOMEM;
        return;
    }
    check(archive_write_set_format_zip(m_archive.get()));
    check(archive_write_set_bytes_per_block(m_archive.get(), kBlockSize));
    // The last block is not filled up with zeros.
    check(archive_write_set_bytes_in_last_block(m_archive.get(), 1));
    check(archive_write_open2(m_archive.get(), this, nullptr, writeToOutput, nullptr, nullptr));
}

ZipWriter::~ZipWriter()
{
    // The library completes an archive when it is released; a fragment must not look complete.
    if (m_error == 0) {
        m_error = ECANCELED;
    }
}

void ZipWriter::begin(const ArchiveItem& item)
{
    assert(item.path.size() <= kMaxPathLength);
    if (m_error != 0) {
        return;
    }
    if (!chooseCharacterSet(item.path)) {
        m_error = ENOTSUP;
        return;
    }
    archive_entry_clear(m_entry.get());
    describe(m_entry.get(), item);
    check(archive_write_header(m_archive.get(), m_entry.get()));
}

void ZipWriter::write(std::span<const char> content)
{
    if (m_error == 0) {
        check(archive_write_data(m_archive.get(), content.data(), content.size()));
    }
}

void ZipWriter::finish()
{
    if (m_error == 0) {
        check(archive_write_close(m_archive.get()));
    }
}

std::ptrdiff_t ZipWriter::writeToOutput(
    struct archive* /*archive*/, void* writer, const void* bytes, std::size_t length)
{
    auto& self = *static_cast<ZipWriter*>(writer);
    if (self.m_error == 0) {
        self.m_error = self.m_output.write({static_cast<const char*>(bytes), length});
    }
    // The library is not told: it would not release its memory after that.
    return static_cast<std::ptrdiff_t>(length);
}

void ZipWriter::check(std::ptrdiff_t status)
{
    if (status >= ARCHIVE_OK || m_error != 0) {
        return;
    }
    const int error = archive_errno(m_archive.get());
    // The library numbers some failures of its own below zero.
    m_error = error > 0 ? error : EIO;
}

} // namespace tessera
