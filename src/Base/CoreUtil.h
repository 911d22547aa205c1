// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace tessera {

class File;
class Folder;
class RecentDocuments;
class TopFolder;
class Url;
class UserAccount;
class UserDefaults;
class Workspace;

/// The utilities that need no window. Stateless.
class CoreUtil {
public:
    /// A number of bytes as the user reads it, in decimal units: "999 B", "2 KB", "1.2 GB". The
    /// same in every locale.
    static std::string formatSize(std::uint64_t bytes);

    /// Name and size of a node, "docs (1.2 GB)"; a volume's size is its used space. The name is
    /// bytes and may be no valid text.
    static std::string getFolderTitle(const File& file);

    /// The node of `url` in the tree of `inFolder`, that folder included, or null. Names are
    /// matched as plain prefixes of the path and a match is never taken back, so a folder "a" can
    /// hide its smaller sibling "ab".
    static File* locateURL(const Url& url, Folder& inFolder);

    /// The folder in that tree which holds, or would hold, the item of `url`; null when it is not
    /// there. Found as locateURL() finds it.
    static Folder* locateParent(const Url& url, Folder& inFolder);

    /// The larger side divided by the smaller.
    static double aspectRatio(double width, double height);

    /// Opens a directory in the file viewer; any other item is selected there, in its folder. The
    /// completion handler hears whether a file viewer took it, as Workspace::reveal() says.
    static void revealInFinder(
        const Url& url, Workspace& workspace, std::function<void(bool isShown)> completionHandler);

    /// Puts the folder in front of the stored recent scans and of the desktop's recent documents.
    static void saveFolderToRecents(
        const TopFolder& folder, UserDefaults& defaults, RecentDocuments& documents);

    /// Login name and home directory of the real user. A user without an entry in the password
    /// database stops the process.
    static std::string realUserName(const UserAccount& account);
    static std::string realHomeDirectory(const UserAccount& account);
};

} // namespace tessera
