// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Folder.h"
#include "TreeScreen/Map/TreeScreen.h"
#include "TreeScreen/Picture/TreeBranch.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tessera::test {

/// A tree screen that shows nothing and writes down what it hears of.
class FakeTreeScreen final : public TreeScreen {
public:
    void nodeWillLeave(File& node) override
    {
        leaving.emplace_back(node.name());
        if (whenLeaving) {
            whenLeaving();
        }
    }
    void nodeCame(const File& node) override { come.push_back(node.absolutePath()); }
    const Folder* folderInView() const override { return nullptr; }
    void setCurrentFolder(Folder* /*folder*/) override { }
    File* selectedFile() const override { return nullptr; }
    std::unique_ptr<TreeBranch> branchFor(Folder* /*folder*/) override { return nullptr; }
    bool keyDown(const QKeyEvent& /*event*/) override { return false; }
    void folderWasReplaced(Folder& /*folder*/, Folder& /*with*/) override { }
    void setSelectedFile(File* file) override { isSelectionTaken = file == nullptr; }
    void objectTreeRefreshed() override { ++refreshCount; }
    void renderTree() override { ++renderCount; }

    std::vector<std::string> leaving;
    std::function<void()> whenLeaving; ///< called for each of them
    std::vector<std::string> come; ///< paths
    bool isSelectionTaken = false;
    int refreshCount = 0;
    int renderCount = 0;
};

} // namespace tessera::test
