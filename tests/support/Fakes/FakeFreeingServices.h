// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/SharedExtents.h"
#include "Freeing/AskDisk.h"
#include "support/Fakes/FakeItemStates.h"
#include "support/Fakes/FakeLedgerServices.h"

#include <memory>
#include <stop_token>
#include <vector>

namespace tessera::test {

/// Files that share nothing. Callable from any thread.
class FakeSharedExtents final : public SharedExtents {
public:
    [[nodiscard]] SharedExtentsAnswer extentsOf(
        const std::vector<NamedFile>& files, const std::stop_token& /*stop*/) const override
    {
        SharedExtentsAnswer answer;
        answer.files.resize(files.size(), {FileExtents::State::Known, {}});
        return answer;
    }
};

/// A disk to ask what removing files will free.
struct FakeFreeingServices {
    std::shared_ptr<FakeItemStates> itemStates = std::make_shared<FakeItemStates>();
    std::shared_ptr<FakeSharedExtents> sharedExtents = std::make_shared<FakeSharedExtents>();
    std::shared_ptr<FakeOpenFiles> openFiles = std::make_shared<FakeOpenFiles>();

    FreeingServices get() const { return {itemStates, sharedExtents, openFiles, 1}; }
};

} // namespace tessera::test
