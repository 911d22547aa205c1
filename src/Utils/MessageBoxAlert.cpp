// SPDX-License-Identifier: MIT
#include "Utils/MessageBoxAlert.h"

#include <QApplication>
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

/// The headline stands out, and the text below gets lines of a readable length.
void style(const QMessageBox& box)
{
    if (auto* headline = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
        QFont font = headline->font();
        font.setBold(true);
        headline->setFont(font);
    }
    if (auto* text = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"))) {
        text->setMinimumWidth(kTextWidth);
    }
}

} // namespace

std::unique_ptr<QMessageBox> MessageBoxAlert::makeBox(const AlertText& text) const
{
    QWidget* const active = QApplication::activeWindow();
    auto box = std::make_unique<QMessageBox>(active != nullptr ? active : m_mainWindow.data());
    box->setWindowTitle(QStringLiteral("Tessera"));
    box->setIcon(QMessageBox::Warning);
    // Names of files stand in the texts, and must not be taken for markup.
    box->setTextFormat(Qt::PlainText);
    box->setText(text.messageText);
    // Screen readers would announce the title instead, which is the program's name.
    box->setAccessibleName(text.messageText);
    box->setInformativeText(below(text.informativeText, text.reason));
    style(*box);
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
    const std::unique_ptr<QMessageBox> box = makeBox(text);
    box->exec();
    const int last = kFirstButton + static_cast<int>(text.buttons.size()) - 1;
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
