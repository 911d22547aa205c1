// SPDX-License-Identifier: MIT
#include "TreeView/TreeMapView.h"
