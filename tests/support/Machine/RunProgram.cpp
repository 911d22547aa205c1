// SPDX-License-Identifier: MIT
#include "support/Machine/RunProgram.h"

#include "support/Machine/ChildProcess.h"
#include "support/Machine/FileContent.h"
#include "support/Machine/TempTree.h"

namespace tessera::test {

ProgramResult runProgram(
    const std::string& program,
    const std::vector<std::string>& arguments,
    const std::vector<std::string>& environment)
{
    const TempTree output;
    const std::string outputPath = output.pathOf("out");
    const std::string errorPath = output.pathOf("err");
    ChildProcess child({program, arguments, environment, outputPath, errorPath});
    const int status = child.waitForExit();
    return {status, fileContent(outputPath), fileContent(errorPath)};
}

} // namespace tessera::test
