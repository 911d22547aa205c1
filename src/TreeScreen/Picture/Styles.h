// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>

namespace tessera {

/// How one kind of label is written.
struct TextAttributes {
    QFont font;
    Qt::TextElideMode elideMode = Qt::ElideRight;
    Qt::AlignmentFlag alignment = Qt::AlignLeft;
    QColor foreground;
};

/// The text attribute sets of the labels inside boxes. Each is made on its first request, from the
/// desktop's own font, on the main thread, and is the same object ever after. The threads that
/// paint ask for sets too: what collects their labels before them has made those sets by then.
class Styles {
public:
    static const TextAttributes& textAttributes(); ///< documents
    static const TextAttributes& selectedTextAttributes(); ///< selected documents, free space
    static const TextAttributes& folderTextAttributes(); ///< folders
    static const TextAttributes& selectedFolderTextAttributes(); ///< selected folders
    static const TextAttributes& folderSizeAttributes(); ///< sizes behind folder names
    static const TextAttributes& selectedFolderSizeAttributes(); ///< of selected folders
    static const TextAttributes& folderShadowTextAttributes(); ///< light edge below folder names
};

} // namespace tessera
