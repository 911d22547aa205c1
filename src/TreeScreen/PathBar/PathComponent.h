// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"
#include "Base/Url.h"
#include "TreeScreen/Picture/Styles.h"

#include <QFont>
#include <QPixmap>
#include <QSizeF>
#include <QString>

#include <vector>

class QPainter;
class QPalette;

namespace tessera {

class Folder;
class IconProvider;

/// One component of the path bar: a folder's icon and name, and a chevron toward the next one.
/// Draws itself where it is told to. Main thread only.
class PathComponent {
public:
    /// The tag of the folder in view: its size is shown, and no chevron follows.
    static constexpr int kCurrentFolderTag = 100;

    /// `icons` must outlive the component and its copies.
    explicit PathComponent(IconProvider& icons);

    const Url& url() const { return m_url; }
    const QPixmap& image() const { return m_image; }
    /// What the component shows as its text.
    const QString& title() const { return m_title; }
    const QFont& font() const { return m_font; }

    int tag() const { return m_tag; }
    /// To be set before the folder, whose title depends on it.
    void setTag(int tag) { m_tag = tag; }

    /// Shows an item by its name and icon.
    void setFile(const Url& file);
    /// The same for a node of a tree; with its size when the component is tagged as the folder in
    /// view.
    void setFolder(const Folder& folder);

    /// How the text and, one point below it, its shadow are written, which together look engraved:
    /// black on half transparent white. Where windows are dark it is their text's colour on black.
    TextAttributes foreground(const QPalette& palette) const;
    TextAttributes background(const QPalette& palette) const;

    /// What the component needs to show everything, in whole points. The chevron takes one more
    /// below.
    QSizeF naturalSize() const;

    /// Draws the component in a frame of any width; what does not fit is left out.
    void draw(const Rect& frame, QPainter& painter, const QPalette& palette) const;

private:
    TextAttributes textAttributes(const QColor& color) const;
    void drawTitle(const Rect& text, QPainter& painter, const TextAttributes& attributes) const;

    IconProvider* m_icons;
    Url m_url;
    QPixmap m_image;
    QString m_title;
    QFont m_font;
    int m_tag = 0;
};

/// The components of a path bar that shows where `currentFolder` lies: one for each folder from
/// the root of its tree down to itself.
std::vector<PathComponent> pathComponents(const Folder& currentFolder, IconProvider& icons);

} // namespace tessera
