// SPDX-License-Identifier: MIT
#include "Undo/TrashStepCommand.h"

#include "Undo/ShownNames.h"

#include <QCoreApplication>

#include <utility>

namespace tessera {

namespace {

struct TrashStepTexts {
    Q_DECLARE_TR_FUNCTIONS(TrashStepTexts)
};

} // namespace

TrashStepCommand::TrashStepCommand(std::vector<StepItem> items)
    : m_items(std::make_unique<std::vector<StepItem>>(std::move(items)))
{
}

QString TrashStepCommand::what() const
{
    if (m_items->size() != 1) {
        return TrashStepTexts::tr("%n items", nullptr, static_cast<int>(m_items->size()));
    }
    const StepItem& item = m_items->front();
    // What came back under another name goes by that.
    const Url& shown = item.place.empty() ? item.moved.item.from : item.place;
    return TrashStepTexts::tr("“%1”").arg(nameForMenu(shown.lastPathComponent()));
}

} // namespace tessera
