// SPDX-License-Identifier: MIT
#include "Widgets/InterfaceFiles.h"

#include "ui_MainWindowController.h"
#include "ui_TreeTooltip.h"

#include <algorithm>
#include <array>

namespace tessera {

namespace {

struct InterfaceFile {
    std::string_view name;
    std::unique_ptr<QWidget> (*instantiate)();
};

template <typename Form, typename TopLevelView>
std::unique_ptr<QWidget> instantiate()
{
    auto view = std::make_unique<TopLevelView>();
    Form().setupUi(view.get());
    return view;
}

constexpr std::array kInterfaceFiles{
    InterfaceFile{"MainWindowController", &instantiate<Ui::MainWindowController, QMainWindow>},
    InterfaceFile{"TreeTooltip", &instantiate<Ui::TreeTooltip, TooltipWindow>},
};

} // namespace

std::unique_ptr<QWidget> instantiateInterfaceFile(std::string_view name)
{
    const auto* const found = std::ranges::find(kInterfaceFiles, name, &InterfaceFile::name);
    return found != kInterfaceFiles.end() ? found->instantiate() : nullptr;
}

} // namespace tessera
