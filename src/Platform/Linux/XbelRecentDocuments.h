// SPDX-License-Identifier: MIT
#pragma once

#include "Model/RecentDocuments.h"
#include "Platform/Linux/FileSystemQuestions.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace tessera {

/// Our part of the list that all programs of a desktop share: a bookmark file, as the Desktop
/// Bookmark Specification of freedesktop.org describes it.
///
/// The file is read anew before each change and replaced as a whole. Only the entries registered
/// under our name are listed and cleared; an entry that another program registered too keeps that
/// registration. A file that is no bookmark file is kept aside at the next change; one that cannot
/// be read, or that is no regular file, is left alone.
class XbelRecentDocuments final : public RecentDocuments {
public:
    using Clock = std::function<std::chrono::microseconds()>;

    static constexpr std::size_t kMaxDocuments = 20;

    /// recently-used.xbel in the folder that the desktop keeps for data.
    static std::string defaultFilePath();

    XbelRecentDocuments(std::string filePath, std::shared_ptr<const FileSystemQuestions> questions);

    /// `clock` gives the time since 1970-01-01 00:00 UTC.
    XbelRecentDocuments(
        std::string filePath, std::shared_ptr<const FileSystemQuestions> questions, Clock clock);

    [[nodiscard]] std::vector<Url> recentDocumentUrls() const override;
    void noteNewRecentDocumentUrl(const Url& url) override;
    void clearRecentDocuments() override;

private:
    std::string m_filePath;
    std::shared_ptr<const FileSystemQuestions> m_questions;
    Clock m_clock;
};

} // namespace tessera
