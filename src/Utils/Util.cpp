// SPDX-License-Identifier: MIT
#include "Utils/Util.h"

#include "Resources/InterfaceFiles.h"

namespace tessera {

std::unique_ptr<QWidget> Util::loadNib(std::string_view name)
{
    return instantiateInterfaceFile(name);
}

} // namespace tessera
