// SPDX-License-Identifier: MIT
#include "QuickLook/PanelLoading.h"

#include "DeadMounts/DeadMountLimits.h"
#include "DeadMounts/QuestionThreads.h"
#include "QuickLook/QuickLookServices.h"
#include "QuickLook/Reading/PreviewLoader.h"

namespace tessera {

namespace {

constexpr int kPageWidth = 640;
/// Most files are read sooner, and the item before stays in sight so long.
constexpr int kPatienceMs = 150;

} // namespace

PanelLoading::PanelLoading(const QuickLookServices& services)
    : m_threads(services.threads)
{
    if (services.files != nullptr) {
        m_loader = std::make_unique<PreviewLoader>(
            services.files, services.decoder, services.threads, [this](const Preview& preview) {
                m_patience.stop();
                emit loaded(preview);
            });
    }
    m_patience.setSingleShot(true);
    m_patience.setInterval(kPatienceMs);
    m_patience.callOnTimeout(this, &PanelLoading::summaryDue);
}

PanelLoading::~PanelLoading() = default;

void PanelLoading::load(
    const std::optional<ItemFacts>& item, const QSize& most, double scale, Meanwhile meanwhile)
{
    stop();
    const bool canBeRead = item && !item->path.empty() && m_loader != nullptr;
    if (meanwhile == Meanwhile::ItemBefore && canBeRead) {
        m_patience.start();
    } else {
        emit summaryDue();
    }
    if (canBeRead) {
        m_loader->load(
            {item->path,
             item->itemCount.has_value(),
             most * scale,
             static_cast<int>(kPageWidth * scale)});
    }
}

void PanelLoading::stop()
{
    m_patience.stop();
    if (m_loader != nullptr) {
        m_loader->cancel();
    }
}

void PanelLoading::stopForGood()
{
    stop();
    if (m_loader != nullptr) {
        (void)m_threads->waitForAll(kPatienceWithPreviewsAtTheEnd);
    }
}

} // namespace tessera
