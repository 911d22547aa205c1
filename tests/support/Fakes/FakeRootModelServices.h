// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/StandardFolders.h"
#include "Model/RootModel.h"
#include "support/Fakes/FakeRecentDocuments.h"
#include "support/Fakes/FakeUserDefaults.h"

#include <map>
#include <string>

namespace tessera::test {

/// Folders that exist nowhere; equivalents as the test names them.
class FakeStandardFolders final : public StandardFolders {
public:
    [[nodiscard]] Url localApplications() const override { return {"/Local Apps", true}; }
    [[nodiscard]] Url localUsers() const override { return {"/Users", true}; }

    [[nodiscard]] std::string equivalentLocation(
        LocationKind kind, const std::string& homeDirectory) const override
    {
        const auto found = equivalents.find(kind);
        return found != equivalents.end() ? homeDirectory + found->second : std::string();
    }

    std::map<LocationKind, std::string> equivalents; ///< below the home directory
};

/// All that a RootModel needs, in memory.
struct FakeRootModelServices {
    FakeUserDefaults defaults;
    FakeRecentDocuments documents;
    FakeStandardFolders folders;

    RootModelServices get()
    {
        return {.defaults = defaults, .recentDocuments = documents, .standardFolders = folders};
    }
};

} // namespace tessera::test
