// SPDX-License-Identifier: MIT
#include "Widgets/FileDialogOpenPanel.h"

#include "Desktop/HiddenFilesPreference.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>

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

/// The chooser tells of folders that it does not find, by names that are nobody's to trust, in
/// boxes that take for markup what looks like it.
class PlainMessages final : public QObject {
public:
    using QObject::QObject;

    /// A box is polished before its labels read their texts.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::ChildPolished) {
            QObject* const child = dynamic_cast<QChildEvent*>(event)->child();
            if (const auto* const box = qobject_cast<QMessageBox*>(child)) {
                for (QLabel* const label : box->findChildren<QLabel*>()) {
                    label->setTextFormat(Qt::PlainText);
                }
            }
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void FileDialogOpenPanel::begin(QWidget& window, Completion completion)
{
    if (m_dialog == nullptr) {
        show(window, completion, Chooser::Desktops);
    } else if (isDesktops()) {
        delete m_dialog; // NOLINT(cppcoreguidelines-owning-memory): nobody waits for it any more
        show(window, completion, Chooser::Qts);
    } else {
        m_dialog->raise();
        m_dialog->activateWindow();
    }
}

/// Qt has such a dialog count as shown, and show nothing itself.
bool FileDialogOpenPanel::isDesktops() const
{
    return m_dialog->testAttribute(Qt::WA_DontShowOnScreen);
}

void FileDialogOpenPanel::show(QWidget& window, const Completion& completion, Chooser chooser)
{
    // NOLINTBEGIN(cppcoreguidelines-owning-memory): it deletes itself when it closes
    m_dialog = new QFileDialog(&window);
    m_dialog->installEventFilter(new PlainMessages(m_dialog));
    // NOLINTEND(cppcoreguidelines-owning-memory)
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialog->setWindowTitle(QCoreApplication::translate("FileDialogOpenPanel", "Open Folder"));
    m_dialog->resize(kUsualSize);
    m_dialog->setDirectory(QDir::homePath());
    m_dialog->setFileMode(QFileDialog::Directory);
    m_dialog->setOption(QFileDialog::ShowDirsOnly);
    // Qt's chooser would offer to delete folders, and means for good.
    m_dialog->setOption(QFileDialog::ReadOnly);
    m_dialog->setOption(QFileDialog::DontUseNativeDialog, chooser == Chooser::Qts);
    QDir::Filters shown = QDir::Dirs | QDir::NoDotAndDotDot | QDir::Drives;
    const bool showsHidden
        = m_hiddenFiles == nullptr || m_hiddenFiles->showsHiddenFiles().value_or(true);
    shown.setFlag(QDir::Hidden, showsHidden);
    m_dialog->setFilter(shown);
    QObject::connect(m_dialog, &QDialog::finished, m_dialog, [this, completion] {
        const std::vector<Url> urls = chosenUrls(*m_dialog);
        m_dialog.clear();
        completion(urls);
    });
    m_dialog->show();
}

} // namespace tessera
