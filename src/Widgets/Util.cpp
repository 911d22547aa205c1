// SPDX-License-Identifier: MIT
#include "Widgets/Util.h"

#include "Widgets/InterfaceFiles.h"

namespace tessera {

std::unique_ptr<QWidget> Util::loadNib(std::string_view name)
{
    return instantiateInterfaceFile(name);
}

} // namespace tessera
