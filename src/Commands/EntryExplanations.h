// SPDX-License-Identifier: MIT
#pragma once

class QMenu;
class QWidget;

namespace tessera {

/// Has a menu say what its entries' status tips do: in the status bar of `window` while an entry is
/// pointed at or chosen by keys. Why an entry is disabled its tooltip says as well, for the status
/// bar may be out of sight. The arrow keys come to disabled entries too, that they can be asked.
void explainEntries(QMenu& menu, QWidget& window);

} // namespace tessera
