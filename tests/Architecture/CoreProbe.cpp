// SPDX-License-Identifier: MIT
// Compiled by two tests: as it stands, and with a header that the core must not find.
#include "Model/Folder.h"

#ifdef TESSERA_PROBE_INCLUDES_QT
#include <QString>
#endif
