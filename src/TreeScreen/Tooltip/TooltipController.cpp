// SPDX-License-Identifier: MIT
#include "TreeScreen/Tooltip/TooltipController.h"

#include "Base/DisplayText.h"
#include "Language/NodeName.h"
#include "Language/SizeText.h"
#include "Layout/MultiLayoutObject.h"
#include "Model/Document.h"
#include "Model/Folder.h"
#include "Model/Unknown.h"
#include "Scanning/ResourceValues.h"
#include "TreeScreen/Tooltip/OtherNameText.h"
#include "TreeScreen/Tooltip/TooltipField.h"
#include "TreeScreen/Tooltip/TooltipSize.h"
#include "TreeScreen/Tooltip/TooltipWindow.h"
#include "Widgets/IconProvider.h"
#include "Widgets/MediumDate.h"
#include "ui_TooltipWindow.h"

#include <QLabel>
#include <QLocale>
#include <QStackedWidget>
#include <QString>

#include <algorithm>
#include <cstdint>
#include <optional>

namespace tessera {

namespace {

constexpr std::size_t kMaxGroupNames = 5;
constexpr int kIconPoints = 32;

/// Left edge of the fields, beside an icon and where there can be none.
constexpr int kFieldsBesideIcon = 55;
constexpr int kFieldsAlone = 12;

/// Below the text that takes most room.
constexpr double kMarginBelowText = 4;

} // namespace

TooltipController& TooltipController::sharedInstance()
{
    // Outlives the application object, whose end a static's destructor would come after.
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): never released
    static auto* const instance = new TooltipController;
    return *instance;
}

TooltipController::TooltipController()
    : m_window(std::make_unique<TooltipWindow>())
{
    const Ui::TooltipWindow& ui = m_window->ui();
    m_file
        = {ui.fileView,
           ui.fileFields,
           ui.fileIcon,
           ui.fileName,
           ui.fileSize,
           ui.fileModified,
           ui.filePath};
    m_folder
        = {ui.folderView,
           ui.folderFields,
           ui.folderIcon,
           ui.folderName,
           ui.folderSize,
           ui.folderModified,
           ui.folderPath};
}

TooltipController::~TooltipController() = default;

QWidget& TooltipController::window() const
{
    return *m_window;
}

void TooltipController::setLayoutObject(const LayoutObject& item)
{
    if (const auto* group = dynamic_cast<const MultiLayoutObject*>(&item)) {
        showGroup(*group);
    } else if (item.ref == nullptr) {
        return;
    } else if (item.ref->isFolder()) {
        showFileOnDisk(m_folder, *item.ref);
    } else if (nodeCast<Unknown>(item.ref) != nullptr) {
        showUnknown(*item.ref);
    } else if (nodeCast<Document>(item.ref) != nullptr) {
        m_file.fields->move(kFieldsBesideIcon, 0);
        showFileOnDisk(m_file, *item.ref);
    } else {
        showOtherSpace(*item.ref);
    }
}

void TooltipController::setContentRef(QWidget* panel)
{
    if (panel != m_contentRef) {
        m_contentRef = panel;
        m_window->ui().content->setCurrentWidget(panel);
    }
}

void TooltipController::showGroup(const MultiLayoutObject& group)
{
    QString names;
    bool hasOtherNames = false;
    for (std::size_t i = 0; i < std::min(kMaxGroupNames, group.refs.size()); ++i) {
        const File& node = *group.refs[i];
        const QString other = otherNameText(node);
        names += shownName(node) + (other.isEmpty() ? other : QStringLiteral(": ") + other)
            + QLatin1Char('\r');
        hasOtherNames = hasOtherNames || !other.isEmpty();
    }
    const Ui::TooltipWindow& ui = m_window->ui();
    ui.multiSize->setText(sizeText(static_cast<std::uint64_t>(group.totalAllocation)));
    setContentRef(ui.multiView);
    showText(*ui.multiPath, names, hasOtherNames);
}

void TooltipController::showFileOnDisk(const NodePanel& panel, const File& node)
{
    const std::string path = node.absolutePath();
    std::optional<std::int64_t> modified;
    if (m_resourceValues != nullptr) {
        modified = m_resourceValues->contentModificationDate(path);
    }
    // The icon follows from the name, but a file that is gone has none.
    QPixmap icon;
    if (modified && m_icons != nullptr) {
        icon = m_icons->icon(node, kIconPoints, m_window->devicePixelRatioF());
    }
    panel.icon->setPixmap(icon);
    panel.name->setText(shownName(node));
    panel.size->setText(sizeText(node.totalAllocation()));
    panel.modified->setText(modified ? mediumDate(*modified, QLocale()) : QString());
    const QString other = otherNameText(node);
    setContentRef(panel.view);
    showText(
        *panel.path,
        displayText(path) + (other.isEmpty() ? other : QLatin1Char('\r') + other),
        !other.isEmpty());
    panel.fields->resize(panel.fields->width(), panel.path->geometry().bottom() + 1);
}

/// The last text of a panel, which decides how high the window is.
void TooltipController::showText(TooltipField& field, const QString& text, bool hasOtherNames)
{
    const double most = hasOtherNames ? kMostTextHeightOfOtherNames : kMostTooltipTextHeight;
    field.resize(field.width(), static_cast<int>(most + kMarginBelowText));
    field.setText(text);
    setDesiredHeight(std::min(field.neededHeight(), most) + kTooltipHeightWithoutText);
}

void TooltipController::showUnknown(const File& node)
{
    m_window->ui().unknownSize->setText(sizeText(node.totalAllocation()));
    setContentRef(m_window->ui().unknownView);
    setDesiredHeight(kFullTooltipHeight);
}

void TooltipController::showOtherSpace(const File& node)
{
    m_file.icon->clear();
    m_file.fields->move(kFieldsAlone, 0);
    m_file.name->setText(shownName(node));
    m_file.size->setText(sizeText(node.totalAllocation()));
    m_file.modified->setText(QString());
    m_file.path->setText(QString());
    setContentRef(m_file.view);
    setDesiredHeight(kSpaceTooltipHeight);
}

void TooltipController::setDesiredHeight(double height)
{
    m_desiredRect = {0, 0, kTooltipWidth, height};
}

} // namespace tessera
