// SPDX-License-Identifier: MIT
#pragma once

#include "Basket/BasketKeeper.h"
#include "Model/RootModel.h"
#include "Model/UserDefaults.h"
#include "TreeScreen/Trash/BasketTrasher.h"
#include "TreeScreen/Trash/ItemTrasher.h"
#include "TreeScreen/Trash/MovesToTrash.h"
#include "TreeScreen/Trash/TrashRisks.h"
#include "Undo/DiskChanges.h"
#include "Undo/TrashUndo.h"
#include "support/Fakes/FakeAlert.h"
#include "support/Fakes/FakeItemStates.h"
#include "support/Fakes/FakeMainThread.h"
#include "support/Fakes/FakeRootModelServices.h"
#include "support/Fakes/FakeTreeScreen.h"
#include "support/Fakes/FakeWorkspace.h"
#include "support/MakeTree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tessera::test {

/// A basket of a small tree, whose items a desktop moves when the test says so.
class BasketTrasherFixture : public testing::Test {
protected:
    BasketTrasherFixture()
    {
        modelServices.defaults.setBoolean(kWarnDeleteSystemKey, true);
        modelServices.defaults.setBoolean(kWarnDeleteHiddenKey, true);
        show("docs/ ( a:500 deep/ ( b:200 ) ) c:100 d:50");
        QObject::connect(trasher.get(), &BasketTrasher::ended, [this] { ++endCount; });
        QObject::connect(&basket, &BasketKeeper::changed, [this] { ++changeCount; });
        QObject::connect(&trashUndo, &TrashUndo::moved, [this](const TrashStep& step) {
            steps.push_back(step);
        });
    }

    void show(std::string_view items, std::string_view origin = "/Users/me")
    {
        basket.clear();
        model.setTopFolder(makeTree(origin, items));
    }

    File& node(std::string_view path) { return at(*model.topFolder(), path); }

    /// Chooses the items, without anybody to look at them.
    void choose(const std::vector<std::string>& paths)
    {
        for (const std::string& path : paths) {
            ASSERT_TRUE(basket.add(node(path)));
        }
    }
    void lookAtAll()
    {
        mainThread.runUntil([this] { return basket.isLookedAt(); });
    }

    /// Has all of them moved, as far as the user is asked.
    void moveAll(const std::vector<std::string>& paths, const FreedSpace& freed = {})
    {
        choose(paths);
        lookAtAll();
        changeCount = 0;
        trasher->begin(freed);
    }

    void saysOf(std::string_view path, const ItemAnswer& answer)
    {
        itemStates->setAnswer(node(path).absolutePath(), answer);
    }
    static ItemAnswer fileOf(std::uint32_t owner)
    {
        ItemAnswer answer{ItemAnswer::Outcome::Known, {}};
        answer.state.kind = ItemState::Kind::File;
        answer.state.owner = owner;
        return answer;
    }

    /// What was to be moved by the last call, below the top folder.
    std::vector<std::string> asked() const
    {
        std::vector<std::string> paths;
        for (const Url& place : workspace.recycled.back()) {
            paths.push_back(place.path().substr(model.topFolder()->realOrigin().size() + 1));
        }
        return paths;
    }

    /// The oldest move ends: all have gone but those.
    RecycleResult resultWithout(const std::vector<std::string>& staying = {}) const
    {
        RecycleResult result;
        std::uint64_t inode = 0;
        for (const Url& place : workspace.recycled.front()) {
            const std::string name(place.lastPathComponent());
            if (std::ranges::find(staying, name) != staying.end()) {
                result.notMoved.push_back({place, "'" + name + "' was not moved."});
                result.error = result.notMoved.front().reason;
                continue;
            }
            const Url to("/trash/files/" + name, place.isDirectory());
            result.newUrls[place.absoluteString()] = to;
            result.trashed.push_back({place, to, {1, ++inode}});
        }
        return result;
    }
    void endWithout(const std::vector<std::string>& staying = {})
    {
        ASSERT_TRUE(workspace.finishRecycling(resultWithout(staying)));
    }

    std::string question() const { return alert.asked.back().informativeText.toStdString(); }
    std::string told() const { return alert.told.back().informativeText.toStdString(); }
    bool isAskedToMove() const { return !workspace.recycled.empty(); }

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
    ItemTrasher itemTrasher{risks, *moves, alert};
    std::unique_ptr<BasketTrasher> trasher
        = std::make_unique<BasketTrasher>(model, risks, *moves, basket, alert, 0);
    int endCount = 0;
    int changeCount = 0; ///< of the basket, since the user was asked
    std::vector<TrashStep> steps;
};

} // namespace tessera::test
