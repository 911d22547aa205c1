// SPDX-License-Identifier: MIT
#include "Undo/PuttingBack.h"

#include "Base/DisplayText.h"
#include "Base/FolderAround.h"
#include "Desktop/Alert.h"
#include "Desktop/Workspace.h"
#include "Undo/ShownNames.h"

#include <QPointer>
#include <QStringList>

#include <utility>

namespace tessera {

namespace {

constexpr int kMostReasons = 5; ///< that an alert has room for

} // namespace

PuttingBack::PuttingBack(Workspace& workspace, Alert& alert)
    : m_workspace(workspace)
    , m_alert(alert)
{
}

void PuttingBack::begin(
    std::vector<TrashedItem> items, ItemHandler itemHandler, Completion completion)
{
    m_items = std::move(items);
    m_results.clear();
    m_problems.clear();
    m_isCancelled = false;
    m_itemHandler = std::move(itemHandler);
    m_completion = std::move(completion);
    next();
}

void PuttingBack::next()
{
    if (m_isCancelled || m_results.size() == m_items.size()) {
        finish();
    } else {
        attempt({.item = m_items[m_results.size()]});
    }
}

void PuttingBack::attempt(const PutBackRequest& request)
{
    m_workspace.putBack(
        request, [self = QPointer<PuttingBack>(this), request](const PutBackResult& result) {
            if (self != nullptr) {
                self->heard(request, result);
            }
        });
}

void PuttingBack::heard(PutBackRequest request, const PutBackResult& result)
{
    const WayOn way = wayOn(result);
    if (way == WayOn::None) {
        if (!result.error.empty()) {
            m_problems.push_back(displayText(result.error));
        }
    } else {
        // While the question is open the disk changes as it likes: the next attempt finds out.
        const QPointer<PuttingBack> self(this);
        const bool isAgreed = agrees(way, request, result);
        if (self == nullptr) {
            return;
        }
        if (isAgreed) {
            attempt(request);
            return;
        }
        m_isCancelled = true;
    }
    m_results.push_back(result);
    m_itemHandler(m_results.size() - 1, result);
    next();
}

PuttingBack::WayOn PuttingBack::wayOn(const PutBackResult& result)
{
    if (result.obstacle == PutBackObstacle::NameTaken && !result.freeName.empty()) {
        return WayOn::OtherName;
    }
    return result.obstacle == PutBackObstacle::FolderGone ? WayOn::NewFolder : WayOn::None;
}

/// Changes the request to what the user agrees to.
bool PuttingBack::agrees(WayOn way, PutBackRequest& request, const PutBackResult& result) const
{
    const Url& from = request.item.from;
    const QString name = displayText(from.lastPathComponent());
    const QString folder = displayText(lastPathComponent(folderAround(from.path())));
    AlertText question;
    if (way == WayOn::OtherName) {
        request.name = result.freeName;
        question.messageText = tr("There is something new in the place of “%1”").arg(name);
        question.informativeText
            = tr("It has the same name, in the folder “%1”, and is not replaced.").arg(folder);
        question.buttons = {tr("Put back as “%1”").arg(nameForMenu(result.freeName))};
    } else {
        request.missingFolders = MissingFolders::Make;
        question.messageText = tr("The folder that “%1” was in is gone").arg(name);
        question.informativeText
            = tr("Tessera can make the folder “%1” again and put the item back into it.")
                  .arg(folder);
        question.buttons = {tr("Make the folder again")};
    }
    question.buttons.append(tr("Cancel"));
    // The question may come while the user types into something else.
    question.defaultButton = static_cast<int>(question.buttons.size()) - 1;
    return m_alert.runModal(question) == Alert::kFirstButton;
}

void PuttingBack::finish()
{
    if (!m_problems.isEmpty()) {
        const auto count = static_cast<int>(m_problems.size());
        const QString headline = count == 1 ? tr("An item was not put back")
                                            : tr("%n items were not put back", nullptr, count);
        QStringList reasons = m_problems.mid(0, kMostReasons);
        if (count > kMostReasons) {
            reasons.append(tr("and %n more", nullptr, count - kMostReasons));
        }
        m_alert.beginSheet({headline, reasons.join(QLatin1Char('\n')), {tr("OK")}});
    }
    // It may begin with the next ones.
    std::exchange(m_completion, nullptr)(std::exchange(m_results, {}));
}

} // namespace tessera
