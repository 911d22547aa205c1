// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/ExternalOpener.h"

#include <QElapsedTimer>
#include <QProcess>

#include <unistd.h>

#include <utility>

namespace tessera {

ExternalOpener::ExternalOpener(std::string program, std::chrono::milliseconds patience)
    : m_program(std::move(program))
    , m_patience(patience)
{
}

void ExternalOpener::operator()(
    const std::string& absoluteUrl, const OpenCompletion& completionHandler) const
{
    // Nobody owns it: its destructor would end the program that the user looks at.
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory)
    auto* const process = new QProcess;
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setChildProcessModifier([] { ::setsid(); });
    QObject::connect(
        process,
        &QProcess::errorOccurred,
        process,
        [process, completionHandler](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart) {
                completionHandler(false);
                process->deleteLater();
            }
        });
    QElapsedTimer running;
    running.start();
    QObject::connect(
        process,
        &QProcess::finished,
        process,
        [process, completionHandler, running, patience = m_patience](
            int exitCode, QProcess::ExitStatus status) {
            const bool hasSucceeded = status == QProcess::NormalExit && exitCode == 0;
            completionHandler(
                hasSucceeded || std::chrono::milliseconds(running.elapsed()) >= patience);
            process->deleteLater();
        });
    process->start(QString::fromStdString(m_program), {QString::fromStdString(absoluteUrl)});
}

} // namespace tessera
