// SPDX-License-Identifier: MIT
#pragma once

#include "Layout/LevelRenderer.h"
#include "Model/TopFolder.h"

#include <QImage>
#include <QRectF>

#include <map>
#include <memory>
#include <string>

namespace tessera::test {

/// What the map should show of a folder on the disk: where each box lies and how it looks. A scan
/// of the test's own says what is there and the layout where it goes. Colours are known by kind
/// only. Paths count from the scanned folder; that one is the empty path.
class ExpectedPicture {
public:
    /// `shown` is the folder that fills the map. Throws std::runtime_error when it is not there.
    ExpectedPicture(const std::string& scanned, const std::string& shown);

    /// Lays everything out for a map of this size.
    void setMapSize(QSize size);
    /// What the user has left out of the picture: a folder, or all that is hidden.
    void leaveOut(const std::string& folder);
    void leaveOutHidden() { m_isHiddenShown = false; }
    /// The box that should have the look of a selected one; empty for none.
    void setSelected(const std::string& path) { m_selected = path; }

    /// In the map; throws std::out_of_range when nothing is drawn for that path.
    QRectF boxOf(const std::string& path) const { return m_boxes.at(path).rect; }
    bool isFolder(const std::string& path) const { return m_boxes.at(path).isFolder; }

    /// A sentence about the first thing that is not as it should be; empty when all is.
    std::string firstDifference(const QImage& map) const;

private:
    struct Box {
        QRectF rect;
        long level = 0;
        bool isFolder = false;
    };

    void addBoxes(const RenderedLevel& level, QPointF around);
    Folder& folderAt(const std::string& path) const;
    std::string differenceInside(const std::string& path, const Box& box, const QImage& map) const;

    std::string m_scanned;
    std::unique_ptr<TopFolder> m_tree;
    Folder* m_shown = nullptr;
    bool m_isHiddenShown = true;
    std::string m_selected;
    std::map<std::string, Box> m_boxes;
};

} // namespace tessera::test
