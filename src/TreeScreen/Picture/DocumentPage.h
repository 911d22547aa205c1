// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

class BoxCanvas;
class Document;
struct Rect;

/// Paints a document, on a level of that depth: a page with its upper right corner folded over,
/// name and size in the middle.
void paintDocumentPage(BoxCanvas& canvas, const Document& document, const Rect& rect, long level);

} // namespace tessera
