// SPDX-License-Identifier: MIT
#include "Start/PictureWriter.h"

#include "Desktop/FileAccess.h"
#include "Layout/LevelRenderer.h"
#include "TreeScreen/Picture/TreeBranch.h"
#include "TreeScreen/Picture/TreePainter.h"

#include <QBuffer>
#include <QImage>

#include <optional>
#include <string_view>

namespace tessera {

PictureWriter::PictureWriter(
    const ScanEnvironment& environment, const FileAccess& files, FolderTitles titles)
    : m_scanner(Scanner::create(environment))
    , m_files(files)
    , m_titles(titles)
{
    m_scanner->setDelegate(this);
}

PictureWriter::~PictureWriter()
{
    m_scanner->setDelegate(nullptr);
}

std::string PictureWriter::write(const CommandLine& commandLine)
{
    const std::string folder = m_files.absolutePath(commandLine.folder);
    if (const std::error_code error = m_files.checkFolder(folder)) {
        return "cannot read the folder '" + commandLine.folder + "': " + error.message();
    }
    m_scanner->scan(Url(folder, true));
    m_loop.exec();
    if (m_problem) {
        return "cannot scan the folder '" + commandLine.folder + "': " + m_problem.message();
    }
    return writePng(commandLine);
}

std::string PictureWriter::writePng(const CommandLine& commandLine) const
{
    const Rect bounds{
        0, 0, static_cast<double>(commandLine.width), static_cast<double>(commandLine.height)};
    const auto top = TreeBranch::make(LevelRenderer(false).renderTop(m_tree.get(), bounds));
    const QImage picture = TreePainter().paint(
        *top, QSizeF(bounds.width, bounds.height), commandLine.scale, m_titles);
    QByteArray png;
    QBuffer buffer(&png);
    const bool isEncoded = buffer.open(QIODevice::WriteOnly) && picture.save(&buffer, "PNG");
    if (!isEncoded) {
        return "there is not enough memory for the picture";
    }
    const std::string_view bytes(png.constData(), static_cast<std::size_t>(png.size()));
    if (const std::error_code error = m_files.writeFile(commandLine.pictureFile, bytes)) {
        return "cannot write '" + commandLine.pictureFile + "': " + error.message();
    }
    return {};
}

void PictureWriter::scanUpdated(Scanner& /*scanner*/) { }

void PictureWriter::scanEnded(Scanner& scanner)
{
    if (const std::optional<Url> home = m_homePass.nextScan(scanner)) {
        scanner.scan(*home);
        return;
    }
    m_tree = m_homePass.takeTree(scanner);
    m_loop.quit();
}

void PictureWriter::scanCancelled(Scanner& /*scanner*/)
{
    m_loop.quit();
}

void PictureWriter::scanFailed(Scanner& /*scanner*/, const std::error_code& problem)
{
    m_problem = problem;
    m_loop.quit();
}

} // namespace tessera
