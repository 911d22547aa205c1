// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QWidget;

namespace tessera {

class FileReader;
class IconProvider;
class MotionPreference;
class QuestionThreads;
class RasterDecoder;

/// What the preview panel works with; it does without what is null. What is not shared is not owned
/// and must outlive it, but for the window.
struct QuickLookServices {
    /// Reads what is to be shown, on these threads, and has pictures and documents decoded. Without
    /// a reader, every item is shown by what the tree knows. Shared, because a look at a file that
    /// never answers may outlive the panel.
    std::shared_ptr<const FileReader> files = nullptr;
    std::shared_ptr<const RasterDecoder> decoder = nullptr;
    std::shared_ptr<QuestionThreads> threads = nullptr;
    IconProvider* icons = nullptr;
    const MotionPreference* motion = nullptr; ///< without one the panel moves
    /// The window that the panel floats above. When it is hidden, minimised or gone, so is the
    /// panel.
    QWidget* mainWindow = nullptr;
};

} // namespace tessera
