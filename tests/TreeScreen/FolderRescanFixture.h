// SPDX-License-Identifier: MIT
#pragma once

#include "Model/NodeLookup.h"
#include "Model/RootModel.h"
#include "TreeScreen/FolderRescan.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/TreeViewController.h"
#include "support/EndWorkers.h"
#include "support/Fakes/FakeRootModelServices.h"
#include "support/Fakes/FakeTreeViewServices.h"
#include "support/MakeTree.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace tessera::test {

/// A tree whose folders hold "a:900 new/ ( b:100 )" when they are scanned anew.
class FolderRescanTest : public testing::Test {
protected:
    explicit FolderRescanTest(
        std::string home = "/me", std::string_view found = "a:900 new/ ( b:100 )")
        : services(found)
    {
        services.home = std::move(home);
        model.setTopFolder(makeTree(
            "/data", "docs/ ( a:500 gone/ ( deep/ ( x:200 ) ) ) other/ ( o:600 ) tiny/ ( t:1 )"));
        view.resize(400, 300);
        controller = std::make_unique<TreeViewController>(model, view, services.get());
    }
    ~FolderRescanTest() override
    {
        controller.reset();
        endWorkers();
    }

    void endWorkers() { test::endWorkers(services); }

    File& node(std::string_view path) { return at(*model.topFolder(), path); }
    Folder& folder(std::string_view path) { return static_cast<Folder&>(node(path)); }

    void rescan(std::string_view path)
    {
        controller->setSelectedFile(&node(path));
        controller->refreshFolder();
    }

    void goTo(std::string_view path)
    {
        controller->setCurrentFolder(path.empty() ? model.topFolder() : &folder(path));
        controller->renderTree();
    }

    const RescanIndicator* indicator() const { return view.findChild<RescanIndicator*>(); }
    bool isRescanning() const { return !controller->validate(Command::Rescan); }

    /// Moves the item to a trash outside the tree.
    void trash(std::string_view path) { trashTo(path, "/trash/item"); }
    void trashTo(std::string_view path, std::string_view to)
    {
        const Url url = node(path).url();
        controller->setSelectedFile(&node(path));
        controller->trashItem();
        RecycleResult result;
        result.newUrls[url.absoluteString()] = Url(to, url.isDirectory());
        ASSERT_TRUE(services.workspace.finishRecycling(result));
    }

    bool has(std::string_view path)
    {
        return nodeAtPath(*model.topFolder(), "/data/" + std::string(path)) != nullptr;
    }

    void finish()
    {
        const Folder* const old = &folder("docs");
        services.mainThread.runUntil([&] { return &folder("docs") != old; });
    }

    FakeRootModelServices modelServices;
    RootModel model{modelServices.get()};
    FakeTreeViewServices services;
    TreeMapView view{services.defaults};
    std::unique_ptr<TreeViewController> controller;
};

} // namespace tessera::test
