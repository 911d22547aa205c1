// SPDX-License-Identifier: MIT
#include "OpenItem/ProgramChooser.h"

#include "Base/DisplayText.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace tessera {

namespace {

constexpr QSize kChooserSize(380, 380);
constexpr int kIdRole = Qt::UserRole;

QIcon iconOf(const ProgramChoice& program, const QWidget& view)
{
    const QString name = QString::fromStdString(program.icon);
    QIcon icon = QDir::isAbsolutePath(name) ? QIcon(name) : QIcon::fromTheme(name);
    if (!icon.isNull()) {
        return icon;
    }
    // Without one the names would not stand below each other.
    return QIcon::fromTheme(
        QStringLiteral("application-x-executable"),
        view.style()->standardIcon(QStyle::SP_FileIcon));
}

bool isForItem(const ProgramChoice& program)
{
    return program.isForItem;
}

} // namespace

// NOLINTBEGIN(cppcoreguidelines-owning-memory): the dialog owns what it shows
ProgramChooser::ProgramChooser(
    std::string_view itemName, std::vector<ProgramChoice> programs, QWidget* parent)
    : QDialog(parent)
    , m_programs(std::move(programs))
    , m_list(new QListWidget)
    , m_showAll(new QCheckBox(tr("&Show all programs")))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Open With"));
    auto* const question = new QLabel(tr("Open '%1' with:").arg(displayText(itemName)));
    question->setTextFormat(Qt::PlainText);
    question->setWordWrap(true);
    m_list->setAccessibleName(tr("Programs"));
    auto* const buttons = new QDialogButtonBox;
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    m_open = buttons->addButton(tr("&Open"), QDialogButtonBox::AcceptRole);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(question);
    layout->addWidget(m_list);
    layout->addWidget(m_showAll);
    layout->addWidget(buttons);
    const bool hasSome = std::ranges::any_of(m_programs, isForItem);
    m_showAll->setVisible(hasSome && !std::ranges::all_of(m_programs, isForItem));
    list(!hasSome);
    connect(m_showAll, &QCheckBox::toggled, this, &ProgramChooser::list);
    connect(m_list, &QListWidget::itemActivated, this, &ProgramChooser::choose);
    connect(buttons, &QDialogButtonBox::accepted, this, &ProgramChooser::choose);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    // In the dialog, so that Cancel, which was made first, is not it.
    m_open->setDefault(true);
    m_list->setFocus();
    resize(kChooserSize);
}
// NOLINTEND(cppcoreguidelines-owning-memory)

void ProgramChooser::list(bool withAll)
{
    m_list->clear();
    for (const ProgramChoice& program : m_programs) {
        if (withAll || program.isForItem) {
            // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the list owns it
            auto* const row
                = new QListWidgetItem(iconOf(program, *this), displayText(program.name));
            row->setData(kIdRole, QByteArray::fromStdString(program.id));
            m_list->addItem(row);
        }
    }
    m_list->setCurrentRow(0);
    m_open->setEnabled(m_list->count() > 0);
}

/// Return presses the button after the list has heard of it: once is enough.
void ProgramChooser::choose()
{
    const QListWidgetItem* const row = m_list->currentItem();
    if (row == nullptr || result() == Accepted) {
        return;
    }
    const std::string id = row->data(kIdRole).toByteArray().toStdString();
    accept();
    emit chosen(id);
}

} // namespace tessera
