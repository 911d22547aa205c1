// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/RecentDocuments.h"
#include "Platform/Linux/Mounts/FileSystemQuestions.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace tessera {

class UserDefaults;

/// Our part of the list that all programs of a desktop share: a bookmark file, as the Desktop
/// Bookmark Specification of freedesktop.org describes it.
///
/// Changes are made one after the other on a thread of their own. Right before each the file is
/// read anew, and then replaced as a whole. Only the entries registered under our name are listed
/// and cleared; an entry that another program registered too keeps that registration.
///
/// A file that would lose something by being written anew is left alone: one that GLib does not
/// understand or cannot reproduce, that the user may not write, that is no regular file, or that is
/// too large to be looked through. Then the list is what our own settings remember. What was noted
/// meanwhile, or could not be stored, stays listed and in the settings, and is entered with the
/// next URL or at the next start, once the file can be written.
class XbelRecentDocuments final : public RecentDocuments {
public:
    /// Called on the thread that makes the changes.
    using Clock = std::function<std::chrono::microseconds()>;

    static constexpr std::size_t kMaxDocuments = 20;
    /// Of a list that is looked through at the start of the program; 0.1 s are enough for it.
    static constexpr std::size_t kMostBytes = 2'000'000;

    /// recently-used.xbel in the folder that the desktop keeps for data.
    static std::string defaultFilePath();

    /// The settings, with the stored list of recent scans, must outlive this object.
    XbelRecentDocuments(
        std::string filePath,
        UserDefaults& settings,
        std::shared_ptr<const FileSystemQuestions> questions);

    /// `clock` gives the time since 1970-01-01 00:00 UTC.
    XbelRecentDocuments(
        std::string filePath,
        UserDefaults& settings,
        std::shared_ptr<const FileSystemQuestions> questions,
        Clock clock);

    /// Waits a moment for the changes under way, so that the end of the program loses none.
    ~XbelRecentDocuments() override;

    /// With all changes that were asked for.

    [[nodiscard]] std::vector<Url> recentDocumentUrls() const override;
    void noteNewRecentDocumentUrl(const Url& url) override;
    void clearRecentDocuments() override;

private:
    class Changes;

    void enterUnlisted();
    std::vector<Url> listedUrls() const;

    std::string m_filePath;
    UserDefaults& m_settings;
    std::shared_ptr<const FileSystemQuestions> m_questions;
    Clock m_clock;
    std::shared_ptr<Changes> m_changes; ///< shared with the thread that makes them
};

} // namespace tessera
