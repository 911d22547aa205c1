// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

class BoxCanvas;
class Document;
class TreeBranch;
struct Rect;

/// Paints a document: a page with its upper right corner folded over, name and size in the middle.
void paintDocumentPage(
    BoxCanvas& canvas, const TreeBranch& branch, const Document& document, const Rect& rect);

} // namespace tessera
