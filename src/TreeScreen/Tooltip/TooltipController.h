// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"

#include <memory>
#include <string>

class QLabel;
class QString;
class QWidget;

namespace tessera {

class File;
class IconProvider;
class LayoutObject;
class MultiLayoutObject;
class ResourceValues;
class TooltipField;
class TooltipWindow;

/// Owns the one floating panel that describes the box under the pointer. It fills the panel and
/// says how large the window should be; whoever follows the pointer shows, places and hides the
/// window. Main thread only.
class TooltipController {
public:
    /// The controller of the program, made on first use and never released. Until it is given
    /// resource values and icons it shows neither dates nor icons.
    static TooltipController& sharedInstance();

    TooltipController();
    TooltipController(const TooltipController&) = delete;
    TooltipController& operator=(const TooltipController&) = delete;
    ~TooltipController();

    /// Not owned; null for none. They are asked while the pointer moves, so that an answer must
    /// come at once or be missing.
    void setResourceValues(const ResourceValues* values) { m_resourceValues = values; }
    void setIconProvider(IconProvider* icons) { m_icons = icons; }

    /// Fills the panel for a box, brings it into the window and sets desiredRect(). The window is
    /// neither shown nor hidden nor moved.
    void setLayoutObject(const LayoutObject& item);

    /// The panel that is in the window.
    QWidget* contentRef() const { return m_contentRef; }

    /// Size in points that the window should take for its content; the origin means nothing.
    const Rect& desiredRect() const { return m_desiredRect; }

    QWidget& window() const;

private:
    /// The fields that the panels of folders and of all other nodes have in common.
    struct NodePanel {
        QWidget* view = nullptr;
        QWidget* fields = nullptr; ///< holds all fields, right of the icon
        QLabel* icon = nullptr;
        TooltipField* name = nullptr;
        TooltipField* size = nullptr;
        TooltipField* modified = nullptr;
        TooltipField* path = nullptr;
    };

    void setContentRef(QWidget* panel);
    void showGroup(const MultiLayoutObject& group);
    void showFileOnDisk(const NodePanel& panel, const File& node);
    void showText(TooltipField& field, const QString& text, bool hasOtherNames);
    void showUnknown(const File& node);
    void showOtherSpace(const File& node);
    void setDesiredHeight(double height);

    const ResourceValues* m_resourceValues = nullptr;
    IconProvider* m_icons = nullptr;
    Rect m_desiredRect;

    std::unique_ptr<TooltipWindow> m_window;
    QWidget* m_contentRef = nullptr;
    NodePanel m_file;
    NodePanel m_folder;
};

} // namespace tessera
