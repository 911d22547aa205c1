// SPDX-License-Identifier: MIT
#include "Widgets/ScanProblem.h"

#include "Base/Url.h"

#include <gtest/gtest.h>

#include <system_error>

namespace tessera {
namespace {

TEST(ScanProblem, ANameOfSeveralLinesAddsNoneToTheExplanation)
{
    const AlertText text
        = scanProblem(Url("/a\nb", true), std::make_error_code(std::errc::permission_denied));

    EXPECT_EQ(
        text.informativeText,
        QStringLiteral("You do not have permission to look into '/a\u240Ab'. Frequently Asked "
                       "Questions, in the Help menu, says how to scan with more rights."));
}

} // namespace
} // namespace tessera
