// SPDX-License-Identifier: MIT
#include "TreeScreen/CommandHint.h"

#include <QCoreApplication>

namespace tessera::command_hint {

namespace {

struct CommandHintTexts {
    Q_DECLARE_TR_FUNCTIONS(CommandHintTexts)
};

} // namespace

QString noBoxThatWay()
{
    return CommandHintTexts::tr("There is no box that way.");
}

} // namespace tessera::command_hint
