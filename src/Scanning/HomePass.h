// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"
#include "Model/TopFolder.h"

#include <memory>
#include <optional>

namespace tessera {

class Scanner;

/// An encrypted home folder is a volume of its own and stays empty in the scan of what is around
/// it. This has a second scan, of the home, follow the first and joins the two. Main thread only.
class HomePass final {
public:
    /// To be asked when a scan has ended: the home that is to be scanned next. Keeps the tree then.
    /// Nothing when no home was met, and at the end of the second scan, whatever that met.
    [[nodiscard]] std::optional<Url> nextScan(Scanner& ended);

    /// The whole tree, when no scan is to follow any more.
    [[nodiscard]] std::unique_ptr<TopFolder> takeTree(Scanner& ended);

    /// The home folder's surroundings while the second scan runs, else null.
    const TopFolder* surroundings() const { return m_surroundings.get(); }

private:
    std::unique_ptr<TopFolder> m_surroundings;
};

} // namespace tessera
