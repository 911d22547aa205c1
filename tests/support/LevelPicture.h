// SPDX-License-Identifier: MIT
#pragma once

#include "Model/File.h"
#include "TreeScreen/Picture/FolderTitles.h"
#include "TreeScreen/Picture/TreeBranch.h"

#include <QImage>

#include <initializer_list>
#include <memory>
#include <vector>

namespace tessera::test {

/// One level of a picture on a background of its own colour, to read pixels from.
class LevelPicture {
public:
    /// What nothing was painted on.
    static constexpr QRgb kBackground = 0xFFFF00FF;

    LevelPicture(long level, double scale);

    /// Adds a box for the node, which must live as long as the picture.
    void add(File* node, const Rect& rect);
    void addGroup(std::initializer_list<File*> nodes, const Rect& rect);

    /// Paints what was added, by the program or by the plain reference.
    void paint(FolderTitles titles = FolderTitles::Names);
    void paintReference();

    /// The pixel that holds the point; to the right and below of one between pixels.
    QRgb at(double x, double y) const;

    /// How many device pixels in the rectangle, in points, have another colour than `color`.
    int countOther(const Rect& rect, QRgb color) const;

    /// How many runs of pixels of that colour lie along a line down or across the rectangle's
    /// left, or upper, edge.
    int runsDown(const Rect& rect, QRgb color) const;
    int runsAcross(const Rect& rect, QRgb color) const;

    const QImage& image() const { return m_image; }

private:
    void startImage();
    void takeItems();

    double m_scale;
    std::unique_ptr<TreeBranch> m_branch;
    std::vector<std::unique_ptr<LayoutObject>> m_items;
    QImage m_image;
};

/// The greatest difference of a colour component between two images of the same size.
int greatestDifference(const QImage& a, const QImage& b);

} // namespace tessera::test
