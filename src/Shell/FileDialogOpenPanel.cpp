// SPDX-License-Identifier: MIT
#include "Shell/FileDialogOpenPanel.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>

#include <utility>

namespace tessera {

namespace {

/// Of Qt's own chooser, so that dates need not be shortened.
constexpr QSize kUsualSize{820, 480};

std::vector<Url> chosenUrls(const QFileDialog& dialog)
{
    std::vector<Url> urls;
    if (dialog.result() == QDialog::Accepted) {
        for (const QString& path : dialog.selectedFiles()) {
            urls.emplace_back(QFile::encodeName(path).toStdString(), true);
        }
    }
    return urls;
}

} // namespace

void FileDialogOpenPanel::begin(QWidget& window, Completion completion)
{
    if (m_dialog != nullptr) {
        m_dialog->raise();
        m_dialog->activateWindow();
        return;
    }
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): it deletes itself when it closes
    m_dialog = new QFileDialog(&window);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialog->setWindowTitle(QCoreApplication::translate("FileDialogOpenPanel", "Open Folder"));
    m_dialog->resize(kUsualSize);
    m_dialog->setDirectory(QDir::homePath());
    m_dialog->setFileMode(QFileDialog::Directory);
    m_dialog->setOption(QFileDialog::ShowDirsOnly);
    m_dialog->setFilter(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Drives | QDir::Hidden);
    QObject::connect(
        m_dialog, &QDialog::finished, m_dialog, [this, completion = std::move(completion)] {
            const std::vector<Url> urls = chosenUrls(*m_dialog);
            m_dialog.clear();
            completion(urls);
        });
    m_dialog->show();
}

} // namespace tessera
