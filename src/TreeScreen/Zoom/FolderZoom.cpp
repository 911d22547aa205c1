// SPDX-License-Identifier: MIT
#include "TreeScreen/Zoom/FolderZoom.h"

#include "Base/Log.h"
#include "Desktop/MotionPreference.h"
#include "Model/Folder.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Map/TreeScreen.h"
#include "TreeScreen/Picture/TreeBranch.h"

#include <utility>

namespace tessera {

FolderZoom::FolderZoom(
    TreeScreen& screen,
    TreeMapView& treeView,
    const MotionPreference& motion,
    FrameClock::Seconds clock)
    : m_screen(screen)
    , m_treeView(treeView)
    , m_motion(motion)
    , m_clock(std::move(clock))
{
}

void FolderZoom::zoomInFolder(Folder& folder)
{
    if (m_motion.reducesMotion()) {
        changeAtOnce(folder);
        return;
    }
    endRunningZoom();
    // What is on screen now: the selection, which goes away next, is still in it.
    const QImage oldPicture = m_treeView.picture();
    changeFolder(folder);
    const std::optional<Rect> box
        = m_treeView.findRectForFile(folder, *m_treeView.branches().front());
    if (!box.has_value()) {
        abortAnimation();
        return;
    }
    m_treeView.addBranch(m_screen.branchFor(&folder));
    const ZoomMatrices zoom = matricesFor({*box, ZoomGeometry::Box::Folder});
    start(
        {oldPicture, QTransform(), zoom.enlarged, 1, 0},
        {paint(*m_treeView.branches().back()), zoom.shrunk, QTransform(), 0, 1});
}

void FolderZoom::zoomOutFolder(Folder& ancestor)
{
    if (m_motion.reducesMotion()) {
        changeAtOnce(ancestor);
        return;
    }
    endRunningZoom();
    const QImage oldPicture = m_treeView.picture();
    const Folder* const oldFolder = m_screen.folderInView();
    m_treeView.addBranchBelow(m_screen.branchFor(&ancestor));
    const TreeBranch& newBranch = *m_treeView.branches().front();
    const std::optional<Place> place = placeOf(oldFolder, newBranch);
    changeFolder(ancestor);
    if (!place.has_value()) {
        abortAnimation();
        return;
    }
    const ZoomMatrices zoom = matricesFor(*place);
    start(
        {paint(newBranch), zoom.enlarged, QTransform(), 0, 1},
        {oldPicture, QTransform(), zoom.shrunk, 1, 0});
}

void FolderZoom::endRunningZoom()
{
    if (m_treeView.isZooming()) {
        m_screen.renderTree();
    }
}

void FolderZoom::changeFolder(Folder& folder)
{
    m_screen.setCurrentFolder(&folder);
    m_screen.setSelectedFile(nullptr);
}

void FolderZoom::changeAtOnce(Folder& folder)
{
    changeFolder(folder);
    m_screen.renderTree();
}

void FolderZoom::abortAnimation()
{
    logLine("abort zoom animation");
    m_screen.renderTree();
}

std::optional<FolderZoom::Place> FolderZoom::placeOf(
    const Folder* folder, const TreeBranch& inBranch) const
{
    auto stands = ZoomGeometry::Box::Folder;
    for (; folder != nullptr; folder = folder->parent()) {
        if (const std::optional<Rect> box = m_treeView.findRectForFile(*folder, inBranch)) {
            return Place{*box, stands};
        }
        stands = ZoomGeometry::Box::Ancestor;
    }
    return std::nullopt;
}

Rect FolderZoom::bounds() const
{
    return {
        0, 0, static_cast<double>(m_treeView.width()), static_cast<double>(m_treeView.height())};
}

QImage FolderZoom::paint(const TreeBranch& branch) const
{
    return m_treeView.paint(branch);
}

FolderZoom::ZoomMatrices FolderZoom::matricesFor(const Place& place) const
{
    const Rect view = bounds();
    const ZoomGeometry geometry(place.box, place.stands, view);
    return {
        ZoomGeometry::inView(geometry.shrunk, view.height),
        ZoomGeometry::inView(geometry.enlarged, view.height)};
}

void FolderZoom::start(ZoomLayer lower, ZoomLayer upper)
{
    m_treeView.startZoom(
        std::make_unique<ZoomAnimation>(std::move(lower), std::move(upper), m_clock));
}

} // namespace tessera
