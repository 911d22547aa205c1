// SPDX-License-Identifier: MIT
#pragma once

#include "Model/RootModel.h"
#include "Model/StandardFolders.h"
#include "support/FakeRecentDocuments.h"
#include "support/FakeUserDefaults.h"

namespace tessera::test {

/// Folders that exist nowhere.
class FakeStandardFolders final : public StandardFolders {
public:
    [[nodiscard]] Url localApplications() const override { return {"/Local Apps", true}; }
    [[nodiscard]] Url localUsers() const override { return {"/Users", true}; }
};

/// All that a RootModel needs, in memory.
struct FakeRootModelServices {
    FakeUserDefaults defaults;
    FakeRecentDocuments documents;
    FakeStandardFolders folders;

    RootModelServices get() { return {defaults, documents, folders}; }
};

} // namespace tessera::test
