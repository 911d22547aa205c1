// SPDX-License-Identifier: MIT
#pragma once

#include "About/LibraryVersion.h"
#include "Desktop/Task.h"

#include <QDialog>
#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QPlainTextEdit;

namespace tessera {

/// What the window needs to know; nothing of it is used when the window is gone.
struct AboutServices {
    std::vector<LibraryVersion> libraries; ///< of this program, but for Qt
    std::function<std::unique_ptr<Task>()> makeTask; ///< may be empty; then nobody is asked
    std::string archiver; ///< path of the program that is asked for its own, as bytes
};

/// The window that says which version this is, under which license, and with which libraries it
/// runs. Its text is one that can be copied into a report.
class AboutWindow final : public QDialog {
    Q_OBJECT

public:
    explicit AboutWindow(const AboutServices& services);
    ~AboutWindow() override;

    /// Shows the window in the middle of `above`, or of the screen, or brings it to the front.
    void showWindow(const QWidget* above);

    /// What is copied.
    QString versions() const;

private:
    void makeContent();
    void askArchiver(const AboutServices& services);
    void showVersions();

    std::vector<LibraryVersion> m_libraries;
    std::unique_ptr<Task> m_question; ///< to the archiver; null when it has ended
    QPlainTextEdit* m_versions;
};

} // namespace tessera
