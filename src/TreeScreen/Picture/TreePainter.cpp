// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/TreePainter.h"

#include "TreeScreen/Picture/BoxCanvas.h"
#include "TreeScreen/Picture/LabelCache.h"
#include "TreeScreen/Picture/LevelPainter.h"
#include "TreeScreen/Picture/StretchMask.h"
#include "TreeScreen/Picture/Styles.h"
#include "TreeScreen/Picture/TreeBranch.h"

#include <array>
#include <atomic>
#include <cmath>
#include <system_error>
#include <thread>

namespace tessera {

namespace {

/// A band's pixels stay in a core's cache while level after level is painted over them, and the
/// threads take bands in turn, so that none waits long for the other.
constexpr int kMinBandRows = 32;
constexpr int kMaxBands = 16;
constexpr std::size_t kThreads = 2;
constexpr QRgb kBackground = 0xFF000000;

int devicePixels(double points, double scale)
{
    return static_cast<int>(std::ceil(points * scale));
}

void prepareFont(LabelCache& labels, double scale)
{
    const int pixelSize = Styles::textAttributes().font.pixelSize();
    labels.setFontSize(std::max(static_cast<int>(std::lround(pixelSize * scale)), 1));
}

/// Nested levels lie within their folders' boxes, so a branch out of sight hides all below it; the
/// size of a picture bounds how deep they go.
void paintBranches(BoxCanvas canvas, const TreeBranch& branch, FolderTitles titles)
{
    canvas.enter(branch.frame());
    paintLevel(canvas, branch, titles);
    for (const auto& nested : branch.subBranches()) {
        if (!canvas.misses(nested->frame())) {
            paintBranches(canvas, *nested, titles);
        }
    }
}

class BandedPainting {
public:
    BandedPainting(
        QImage& image,
        const TreeBranch& top,
        const LabelCache& labels,
        double scale,
        FolderTitles titles)
        : m_pixels(image)
        , m_labels(labels)
        , m_top(top)
        , m_scale(scale)
        , m_titles(titles)
        , m_bandRows(std::max((image.height() + kMaxBands - 1) / kMaxBands, kMinBandRows))
    {
    }

    /// Paints bands until none is left.
    void run(StretchMaskCache& masks)
    {
        const PixelRect whole = m_pixels.clip();
        for (int top = nextBand(); top < whole.bottom; top = nextBand()) {
            PixelCanvas band = m_pixels;
            band.setClip(whole.intersected({0, top, whole.right, top + m_bandRows}));
            band.fillClip(kBackground);
            paintBranches(BoxCanvas(band, masks, m_labels, m_scale), m_top, m_titles);
        }
    }

    bool hasOneBand() const { return m_bandRows >= m_pixels.clip().bottom; }

private:
    int nextBand() { return m_nextBand.fetch_add(1, std::memory_order_relaxed) * m_bandRows; }

    PixelCanvas m_pixels;
    const LabelCache& m_labels;
    const TreeBranch& m_top;
    double m_scale;
    FolderTitles m_titles;
    int m_bandRows;
    std::atomic<int> m_nextBand = 0;
};

/// Has a thread of its own paint too; none where the system has none left.
std::jthread startHelper(BandedPainting& painting, StretchMaskCache& masks)
{
    try {
        return std::jthread([&painting, &masks] { painting.run(masks); });
    } catch (const std::system_error&) {
        return {};
    }
}

} // namespace

/// The glyphs and corners of any picture serve the next.
struct TreePainter::Caches {
    LabelCache labels;
    std::array<StretchMaskCache, kThreads> masks; ///< one for each thread
};

TreePainter::TreePainter()
    : m_caches(std::make_unique<Caches>())
{
}

TreePainter::~TreePainter() = default;

QImage TreePainter::paint(
    const TreeBranch& top, QSizeF sizeInPoints, double scale, FolderTitles titles)
{
    if (sizeInPoints.isEmpty() || scale <= 0) {
        return {};
    }
    LabelCache& labels = m_caches->labels;
    prepareFont(labels, scale);
    paintBranches(BoxCanvas(labels, scale), top, titles);

    QImage image = m_memory.makeImage(
        devicePixels(sizeInPoints.width(), scale), devicePixels(sizeInPoints.height(), scale));
    image.setDevicePixelRatio(scale);
    BandedPainting painting(image, top, labels, scale, titles);
    std::jthread helper;
    if (!painting.hasOneBand()) {
        helper = startHelper(painting, m_caches->masks[1]);
    }
    painting.run(m_caches->masks[0]);
    if (helper.joinable()) {
        helper.join();
    }
    return image;
}

} // namespace tessera
