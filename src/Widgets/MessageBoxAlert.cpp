// SPDX-License-Identifier: MIT
#include "Widgets/MessageBoxAlert.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

namespace tessera {

namespace {

constexpr int kTextWidth = 360;

QString below(const QString& text, const QString& reason)
{
    return reason.isEmpty() ? text : text + QStringLiteral("\n\n") + reason;
}

/// Names of files stand in the texts. Where a label takes one for markup, the name can hide what is
/// asked, and have any file opened that it calls a picture.
void setHeadline(QMessageBox& box, const QString& text)
{
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    // Screen readers would announce the title instead, which is the program's name.
    box.setAccessibleName(text);
    if (auto* const label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
        QFont font = label->font();
        font.setBold(true);
        label->setFont(font);
    }
}

/// Qt makes the label with the first text, and does not tell it the box's text format.
void setText(QMessageBox& box, const QString& text)
{
    box.setInformativeText(QStringLiteral("-"));
    if (auto* const label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"))) {
        label->setTextFormat(Qt::PlainText);
        label->setMinimumWidth(kTextWidth);
    }
    box.setInformativeText(text);
}

} // namespace

/// A dialog that the user may work beside may also end by itself, and would take with it, unread,
/// what belongs to it.
QWidget* MessageBoxAlert::owner() const
{
    QWidget* const active = QApplication::activeWindow();
    const bool mayEnd = qobject_cast<QDialog*>(active) != nullptr && !active->isModal();
    return active == nullptr || mayEnd ? m_mainWindow.data() : active;
}

std::unique_ptr<QMessageBox> MessageBoxAlert::makeBox(const AlertText& text) const
{
    auto box = std::make_unique<QMessageBox>(owner());
    box->setWindowTitle(QStringLiteral("Tessera"));
    box->setIcon(QMessageBox::Warning);
    setHeadline(*box, text.messageText);
    setText(*box, below(text.informativeText, text.reason));
    for (int i = 0; i < text.buttons.size(); ++i) {
        const auto role = i == 0 ? QMessageBox::AcceptRole : QMessageBox::RejectRole;
        QPushButton* const button = box->addButton(text.buttons[i], role);
        button->setProperty("answer", Alert::kFirstButton + i);
        if (i == text.defaultButton) {
            box->setDefaultButton(button);
        }
        box->setEscapeButton(button);
    }
    return box;
}

int MessageBoxAlert::runModal(const AlertText& text)
{
    std::unique_ptr<QMessageBox> box = makeBox(text);
    const QPointer<QMessageBox> alive(box.get());
    box->exec();
    const int last = kFirstButton + static_cast<int>(text.buttons.size()) - 1;
    if (alive == nullptr) {
        // The window that it belonged to has taken it away.
        (void)box.release();
        return last;
    }
    const QAbstractButton* const clicked = box->clickedButton();
    return clicked == nullptr ? last : clicked->property("answer").toInt();
}

void MessageBoxAlert::beginSheet(const AlertText& text)
{
    QMessageBox* const box = makeBox(text).release();
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::WindowModal);
    box->show();
}

} // namespace tessera
