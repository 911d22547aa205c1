// SPDX-License-Identifier: MIT
#pragma once

#include "MainWindow/HomeScreen.h"
#include "MainWindow/ScanScreen.h"

#include <memory>

namespace tessera {

class RootModel;
struct HomeViewServices;
struct ScanningServices;

/// The home screen, as the main window deals with it.
std::unique_ptr<HomeScreen> makeHomeScreen(RootModel& model, const HomeViewServices& services);

/// The scan panel, as the main window deals with it.
std::unique_ptr<ScanScreen> makeScanScreen(RootModel& model, const ScanningServices& services);

} // namespace tessera
