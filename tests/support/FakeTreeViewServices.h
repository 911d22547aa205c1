// SPDX-License-Identifier: MIT
#pragma once

#include "TreeView/TreeViewServices.h"
#include "Utils/MotionPreference.h"
#include "support/FakeFileSystem.h"

namespace tessera::test {

class FakeMotionPreference final : public MotionPreference {
public:
    [[nodiscard]] bool reducesMotion() const override { return reduced; }

    bool reduced = false;
};

/// All that a TreeViewController needs, and a clock that stands still.
struct FakeTreeViewServices {
    FixedFileSystem fileSystem{FileSystemSizes{1000, 300}};
    FakeMotionPreference motion;
    double now = 100;

    TreeViewServices get()
    {
        return {fileSystem, motion, [this] { return now; }};
    }
};

} // namespace tessera::test
