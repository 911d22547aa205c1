// SPDX-License-Identifier: MIT
#pragma once

#include "Basket/BasketKeeper.h"
#include "Model/RootModel.h"
#include "Model/TimeMachine.h"
#include "Model/UserDefaults.h"
#include "Model/Volume.h"
#include "TreeScreen/Trash/ItemTrasher.h"
#include "TreeScreen/Trash/MovesToTrash.h"
#include "TreeScreen/Trash/TrashRisks.h"
#include "Undo/DiskChanges.h"
#include "Undo/TrashUndo.h"
#include "support/Fakes/FakeAlert.h"
#include "support/Fakes/FakeFileSystem.h"
#include "support/Fakes/FakeItemStates.h"
#include "support/Fakes/FakeMainThread.h"
#include "support/Fakes/FakeRootModelServices.h"
#include "support/Fakes/FakeTreeScreen.h"
#include "support/Fakes/FakeWorkspace.h"
#include "support/MakeTree.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessera::test {

/// Moves items of a small tree to the trash of a desktop that does so when the test says.
class ItemTrasherFixture : public testing::Test {
protected:
    ItemTrasherFixture()
    {
        model.setTopFolder(makeTree(
            "/Users/me",
            "docs/ ( a:500 deep/ ( b:200 ) ) .cfg/ ( x:10 .y:5 ) c:100 "
            ".local/ ( Trash/ ( files/ ( old:1 ) ) )"));
        modelServices.defaults.setBoolean(kWarnDeleteSystemKey, true);
        modelServices.defaults.setBoolean(kWarnDeleteHiddenKey, true);
    }

    File& node(std::string_view path) { return at(*model.topFolder(), path); }
    void hide(std::string_view path) { node(path).setHidden(true); }

    void trash(std::string_view path) { trasher.trash(node(path)); }

    /// The oldest move ends with the item in the home trash, under that name.
    void moveEnds(const Url& item, std::string_view as)
    {
        RecycleResult result;
        result.newUrls[item.absoluteString()]
            = Url("/Users/me/.local/Trash/files/" + std::string(as), item.isDirectory());
        ASSERT_TRUE(workspace.finishRecycling(result));
    }

    void moveFails(const std::string& reason)
    {
        RecycleResult result;
        result.error = reason;
        ASSERT_TRUE(workspace.finishRecycling(result));
    }

    bool isAskedToMove() const { return !workspace.recycled.empty(); }
    std::string question() const
    {
        return alert.asked.empty() ? "" : alert.asked.back().informativeText.toStdString();
    }

    FakeRootModelServices modelServices;
    RootModel model{modelServices.get()};
    FakeWorkspace workspace;
    FakeAlert alert;
    DiskChanges diskChanges;
    TrashUndo trashUndo{workspace, alert, diskChanges};
    FakeTreeScreen screen;
    FakeMainThread mainThread;
    std::shared_ptr<FakeItemStates> itemStates = std::make_shared<FakeItemStates>();
    BasketKeeper basket{itemStates, mainThread};
    const TrashRisks risks{model, modelServices.defaults};
    std::unique_ptr<MovesToTrash> moves
        = std::make_unique<MovesToTrash>(model, trashUndo, diskChanges, basket, screen);
    ItemTrasher trasher{risks, *moves, alert};
};

} // namespace tessera::test
