// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string_view>

class QWidget;

namespace tessera {

/// Builds the top-level view of the interface file of that name, its outlets being the object
/// names in it; null when there is no such file. The files are compiled into the program.
std::unique_ptr<QWidget> instantiateInterfaceFile(std::string_view name);

} // namespace tessera
