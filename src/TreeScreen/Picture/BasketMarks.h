// SPDX-License-Identifier: MIT
#pragma once

class QImage;

namespace tessera {

class Basket;
class TreeBranch;

/// Marks the boxes of a picture that stand for what is in the basket: with lines across it a box
/// that is chosen itself, with a small corner one that holds a chosen item for which it has no box.
void paintBasketMarks(QImage& picture, const TreeBranch& top, const Basket& basket);

} // namespace tessera
