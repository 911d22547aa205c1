// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"

#include <vector>

namespace tessera {

/// The desktop's own list of what was recently used, as far as this program entered it. The list
/// limits its length and forgets items that no longer exist. Main thread only.
class RecentDocuments {
public:
    RecentDocuments() = default;
    RecentDocuments(const RecentDocuments&) = delete;
    RecentDocuments& operator=(const RecentDocuments&) = delete;
    virtual ~RecentDocuments() = default;

    /// Newest first; empty when the list cannot be read.
    [[nodiscard]] virtual std::vector<Url> recentDocumentUrls() const = 0;

    /// Enters the URL as the newest, or moves it there. Where the list cannot be written it stays
    /// as it is, and the URL counts as listed until it can be.
    virtual void noteNewRecentDocumentUrl(const Url& url) = 0;

    /// Forgets everything that this program entered.
    virtual void clearRecentDocuments() = 0;
};

} // namespace tessera
