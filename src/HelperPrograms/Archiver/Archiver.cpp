// SPDX-License-Identifier: MIT
#include "HelperPrograms/Archiver/Archiver.h"

#include "HelperPrograms/Archiver/AppleDouble.h"

#include <cerrno>
#include <utility>

namespace tessera {

namespace {

constexpr std::size_t kBufferSize = std::size_t{256} * 1024;
constexpr std::uint32_t kReadableByAll = 0644;

} // namespace

void CountedItems::add(const std::string& path)
{
    if (count++ == 0) {
        first = path;
    }
}

Archiver::Archiver(SourceWalk& source, ArchiveOutput& output)
    : m_source(source)
    , m_output(output)
    , m_zip(output)
    , m_buffer(kBufferSize)
{
}

ArchiveReport Archiver::run()
{
    using Step = SourceWalk::Step;
    ArchiveItem item;
    Step step = Step::Item;
    while (m_zip.error() == 0 && (step = m_source.next(item)) != Step::End) {
        if (step == Step::Item) {
            archive(item);
        } else if (step == Step::LeftOut) {
            m_report.leftOut.add(item.path);
        } else if (step == Step::Vanished) {
            m_report.vanished.add(item.path);
        } else {
            noteFailure(m_source.error(), item.path);
        }
    }
    m_zip.finish();
    m_report.outputError = m_zip.error() != 0 ? m_zip.error() : m_output.close();
    return std::move(m_report);
}

void Archiver::archive(const ArchiveItem& item)
{
    if (item.path.size() > ZipWriter::kMaxPathLength) {
        noteFailure(ENAMETOOLONG, item.path);
        return;
    }
    m_zip.begin(item);
    if (item.kind == ArchiveItem::Kind::File) {
        copyContent(item);
    }
    if (item.lacksAttributes) {
        m_report.lackingAttributes.add(item.path);
    }
    if (!item.attributes.empty()) {
        archiveAttributes(item);
    }
}

void Archiver::copyContent(const ArchiveItem& item)
{
    std::uint64_t copied = 0;
    ContentPart part;
    do {
        part = m_source.read(m_buffer);
        m_zip.write({m_buffer.data(), part.length});
        copied += part.length;
    } while (part.length > 0 && m_zip.error() == 0);
    if (part.error != 0) {
        noteFailure(part.error, item.path);
    } else if (copied < item.length) {
        m_report.shrunk.add(item.path);
    }
}

void Archiver::archiveAttributes(const ArchiveItem& item)
{
    const std::string content = AppleDouble(item.attributes).bytes();
    ArchiveItem companion = item;
    companion.path = AppleDouble::pathFor(item.path);
    if (companion.path.size() > ZipWriter::kMaxPathLength) {
        noteFailure(ENAMETOOLONG, item.path);
        return;
    }
    companion.kind = ArchiveItem::Kind::File;
    companion.permissions &= kReadableByAll;
    companion.length = content.size();
    m_zip.begin(companion);
    m_zip.write(content);
}

void Archiver::noteFailure(int code, const std::string& path)
{
    if (m_report.failureCount++ == 0) {
        m_report.firstFailure = {code, "archive", path};
    }
}

} // namespace tessera
