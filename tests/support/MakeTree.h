// SPDX-License-Identifier: MIT
#pragma once

#include "Model/File.h"
#include "Model/TopFolder.h"

#include <memory>
#include <string_view>

namespace tessera::test {

/// Builds a tree from text as parseTreeText() reads it: files become documents, directories
/// folders. Example: makeTree("/home/me", "docs/ ( a:700 b:300 ) c:50").
std::unique_ptr<TopFolder> makeTree(std::string_view origin, std::string_view items);

/// The node at `path`, names joined by "/", below `folder`; fails the test when there is none.
File& at(Folder& folder, std::string_view path);

} // namespace tessera::test
