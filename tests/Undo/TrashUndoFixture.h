// SPDX-License-Identifier: MIT
#pragma once

#include "Undo/DiskChanges.h"
#include "Undo/TrashUndo.h"
#include "support/Fakes/FakeAlert.h"
#include "support/Fakes/FakeWorkspace.h"

#include <QObject>

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tessera::test {

/// An item of that name in the trash. The first letter decides its inode.
inline TrashedItem inTrash(const std::string& name, const std::string& nameThere = {})
{
    TrashedItem item;
    item.from = Url("/me/docs/" + name, false);
    item.to = Url("/trash/files/" + (nameThere.empty() ? name : nameThere), false);
    item.identity = {7, static_cast<std::uint64_t>(name.front())};
    return item;
}

/// An undo on a desktop that does what the test says, when the test says so.
class TrashUndoFixture : public testing::Test {
protected:
    TrashUndoFixture()
    {
        QObject::connect(
            &diskChanges, &DiskChanges::itemsMoved, [this](const std::vector<ItemMove>& all) {
                moves.insert(moves.end(), all.begin(), all.end());
            });
        QObject::connect(undo.get(), &TrashUndo::moved, [this](const TrashStep& step) {
            moved.push_back(step);
        });
        QObject::connect(undo.get(), &TrashUndo::wasPutBack, [this](const ReturnedItem& item) {
            back.push_back(item.place.path());
        });
    }

    /// The user moves items that are 100 bytes large each.
    void move(const std::vector<std::string>& names)
    {
        begin(names);
        end(names);
    }

    void begin(const std::vector<std::string>& names)
    {
        std::vector<ItemToRecycle> items;
        items.reserve(names.size());
        for (const std::string& name : names) {
            items.emplace_back(inTrash(name).from, 100);
        }
        undo->recycle(std::move(items), [](const RecycleResult&) {});
    }

    /// The oldest move ends for those.
    void end(const std::vector<std::string>& names, const std::string& error = {})
    {
        RecycleResult result;
        result.error = error;
        for (const std::string& name : names) {
            result.trashed.push_back(inTrash(name));
        }
        ASSERT_TRUE(workspace.finishRecycling(result));
    }

    /// The oldest item that is to be put back comes to that place.
    void comesBack(const std::string& place)
    {
        PutBackResult result;
        result.place = Url("/me/docs/" + place, false);
        result.item.identity = {7, static_cast<std::uint64_t>(place.front())};
        ASSERT_TRUE(workspace.finishPuttingBack(result));
    }

    void stays(PutBackObstacle obstacle, const std::string& error = "No.")
    {
        PutBackResult result;
        result.obstacle = obstacle;
        result.error = error;
        ASSERT_TRUE(workspace.finishPuttingBack(result));
    }

    /// What was to be put back last.
    std::string asked() const
    {
        return std::string(workspace.putBacks.back().item.from.lastPathComponent());
    }

    std::string undoTitle() const { return undo->undoTitle().toStdString(); }
    std::string redoTitle() const { return undo->redoTitle().toStdString(); }

    FakeWorkspace workspace;
    FakeAlert alert;
    DiskChanges diskChanges;
    std::unique_ptr<TrashUndo> undo = std::make_unique<TrashUndo>(workspace, alert, diskChanges);
    std::vector<ItemMove> moves;
    std::vector<TrashStep> moved;
    std::vector<std::string> back; ///< places
};

} // namespace tessera::test
