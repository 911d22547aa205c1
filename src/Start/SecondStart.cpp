// SPDX-License-Identifier: MIT
#include "Start/SecondStart.h"

#include "Base/Url.h"
#include "Desktop/RunningInstance.h"
#include "Start/AppDelegate.h"

#include <QCoreApplication>

namespace tessera {

bool handOverToFirstStart(RunningInstance& instance, const Url& folder)
{
    return instance.handOver(folder);
}

SecondStarts::SecondStarts(RunningInstance& instance)
    : m_instance(instance)
{
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &m_end, [this] { m_instance.giveUp(); });
}

SecondStarts::~SecondStarts()
{
    m_instance.giveUp();
}

void SecondStarts::openIn(AppDelegate& delegate)
{
    m_instance.setHandler([&delegate](const Url& folder, const std::string& activationToken) {
        delegate.openFromElsewhere(folder, activationToken);
    });
}

} // namespace tessera
