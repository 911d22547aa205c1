// SPDX-License-Identifier: MIT
#include "LedgerPanel/LedgerQuestions.h"

#include <utility>

namespace tessera {

namespace {

/// As the interface wants it: no slash at the end, but of the root alone.
std::string withoutSlashAtTheEnd(std::string path)
{
    while (path.size() > 1 && path.back() == '/') {
        path.pop_back();
    }
    return path;
}

/// Sizes and open files right after each other: what is removed in between while it is open is
/// counted twice.
DiskAnswer answerOf(
    const LedgerServices& services,
    const std::string& path,
    const std::string& pathWithoutLinks,
    const std::stop_token& stop)
{
    DiskAnswer answer;
    answer.covered = services.coveredFolders->coveredInside(pathWithoutLinks);
    answer.sizes = services.fileSystemAttributes->attributesOfFileSystem(path);
    if (answer.sizes) {
        answer.open = services.openFiles->withoutNames(answer.sizes->device, stop);
    }
    return answer;
}

} // namespace

LedgerQuestions::LedgerQuestions(LedgerServices services, std::chrono::milliseconds patience)
    : m_services(std::move(services))
{
    m_giveUp.setSingleShot(true);
    m_giveUp.setInterval(patience);
    m_giveUp.callOnTimeout(this, [this] { answer({}); });
}

LedgerQuestions::~LedgerQuestions()
{
    m_stop.request_stop();
}

void LedgerQuestions::ask(const std::string& path, const std::string& pathWithoutLinks)
{
    cancel();
    m_stop = std::stop_source();
    m_giveUp.start();
    m_questions.ask<DiskAnswer>(
        [services = m_services,
         path,
         real = withoutSlashAtTheEnd(pathWithoutLinks),
         stop = m_stop.get_token()] { return answerOf(services, path, real, stop); },
        [this, number = m_asked](const DiskAnswer& found) {
            if (number == m_asked) {
                answer(found);
            }
        });
}

void LedgerQuestions::cancel()
{
    m_stop.request_stop();
    m_giveUp.stop();
    ++m_asked;
}

void LedgerQuestions::answer(const DiskAnswer& answer)
{
    cancel();
    emit answered(answer);
}

} // namespace tessera
