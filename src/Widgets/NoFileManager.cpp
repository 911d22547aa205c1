// SPDX-License-Identifier: MIT
#include "Widgets/NoFileManager.h"

#include "Base/DisplayText.h"

#include <QCoreApplication>

namespace tessera {

namespace {

struct NoFileManagerTexts {
    Q_DECLARE_TR_FUNCTIONS(NoFileManagerTexts)
};

} // namespace

AlertText noFileManager(std::string_view itemName)
{
    return {
        NoFileManagerTexts::tr("There is no file manager"),
        NoFileManagerTexts::tr(
            "'%1' cannot be shown, because the desktop offers no program for that.")
            .arg(displayText(itemName)),
        {NoFileManagerTexts::tr("OK")}};
}

} // namespace tessera
