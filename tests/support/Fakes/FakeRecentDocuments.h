// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/RecentDocuments.h"

#include <algorithm>
#include <vector>

namespace tessera::test {

/// A desktop's list in memory, newest first.
class FakeRecentDocuments final : public RecentDocuments {
public:
    std::vector<Url> recentDocumentUrls() const override { return urls; }

    void noteNewRecentDocumentUrl(const Url& url) override
    {
        std::erase(urls, url);
        urls.insert(urls.begin(), url);
    }

    void clearRecentDocuments() override { urls.clear(); }

    std::vector<Url> urls;
};

} // namespace tessera::test
