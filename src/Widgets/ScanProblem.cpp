// SPDX-License-Identifier: MIT
#include "Widgets/ScanProblem.h"

#include "Base/DisplayText.h"
#include "Base/Url.h"

#include <QCoreApplication>

namespace tessera {

namespace {

struct ScanProblemTexts {
    Q_DECLARE_TR_FUNCTIONS(ScanProblemTexts)
};

QString explanation(const std::error_code& problem)
{
    if (problem == std::errc::no_such_file_or_directory) {
        return ScanProblemTexts::tr(
            "There is no folder '%1' any more. It may have been moved, renamed or deleted, or its "
            "disk may not be connected.");
    }
    if (problem == std::errc::permission_denied) {
        return ScanProblemTexts::tr(
            "You do not have permission to look into '%1'. Frequently Asked Questions, in the Help "
            "menu, says how to scan with more rights.");
    }
    if (problem == std::errc::resource_unavailable_try_again) {
        return ScanProblemTexts::tr(
            "The system is too busy to scan '%1'. Close some programs and try again.");
    }
    return ScanProblemTexts::tr("'%1' cannot be read.");
}

} // namespace

AlertText scanProblem(const Url& folder, const std::error_code& problem)
{
    return {
        ScanProblemTexts::tr("The folder cannot be scanned"),
        explanation(problem).arg(displayText(folder.path())),
        {ScanProblemTexts::tr("OK")},
        QString::fromLocal8Bit(problem.message().c_str())};
}

} // namespace tessera
