// SPDX-License-Identifier: MIT
#pragma once

#include "Scanning/HomePass.h"
#include "Scanning/Scanner.h"
#include "Scanning/ScannerDelegate.h"
#include "Start/CommandLine.h"
#include "TreeScreen/Picture/FolderTitles.h"

#include <QEventLoop>

#include <memory>
#include <string>
#include <system_error>

namespace tessera {

class FileAccess;
class RootModel;

/// Scans a folder and writes the picture of it to a file, without a window. Main thread; needs an
/// application object, whose events it handles until it is done.
class PictureWriter final : public ScannerDelegate {
public:
    PictureWriter(const ScanEnvironment& environment, const FileAccess& files, FolderTitles titles);
    ~PictureWriter() override;

    /// Returns what went wrong in one line, or nothing when the picture was written.
    std::string write(const CommandLine& commandLine);

    void scanUpdated(Scanner& scanner) override;
    void scanEnded(Scanner& scanner) override;
    void scanCancelled(Scanner& scanner) override;
    void scanFailed(Scanner& scanner, const std::error_code& problem) override;

private:
    std::string writePng(const CommandLine& commandLine) const;

    std::shared_ptr<Scanner> m_scanner;
    const FileAccess& m_files;
    const FolderTitles m_titles;
    QEventLoop m_loop;
    HomePass m_homePass;
    std::unique_ptr<TopFolder> m_tree;
    std::error_code m_problem; ///< why the scan could not begin
};

} // namespace tessera
