// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

class File;
class Url;

/// The one thing that the preview panel shows. Main thread only.
class PreviewItem {
public:
    PreviewItem() = default;
    PreviewItem(const PreviewItem&) = delete;
    PreviewItem& operator=(const PreviewItem&) = delete;
    virtual ~PreviewItem() = default;

    /// Where it lies; an empty URL when nothing is selected.
    [[nodiscard]] virtual Url previewItemURL() const = 0;

    /// What the tree knows of it; null when nothing is selected. Read on the spot and not kept.
    [[nodiscard]] virtual const File* previewItemNode() const = 0;
};

} // namespace tessera
