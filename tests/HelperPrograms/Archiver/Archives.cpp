// SPDX-License-Identifier: MIT
#include "HelperPrograms/Archiver/Archives.h"

#include "support/Machine/BuiltPaths.h"
#include "support/Machine/ChildProcess.h"
#include "support/Machine/FileContent.h"
#include "support/Machine/TempTree.h"

#include <unistd.h>

#include <cstdlib>
#include <random>
#include <sstream>
#include <utility>

namespace tessera::test {

namespace {

ProgramResult describe(const std::string& command, const std::string& path)
{
    return runTool("python3", {test::built::archiveReader(), command, path});
}

std::vector<std::string> linesOf(const ProgramResult& result)
{
    std::istringstream text(result.exitStatus == 0 ? result.standardOutput : result.standardError);
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) {
        lines.push_back(line);
    }
    return lines;
}

std::vector<std::string> archiverArguments(const std::string& source, const std::string& target)
{
    return {"-c", "-k", "--sequesterRsrc", source, target};
}

} // namespace

ProgramResult makeArchive(const std::string& source, const std::string& target)
{
    return runProgram(test::built::archiver(), archiverArguments(source, target));
}

std::vector<std::string> linesOfArchive(const std::string& archive)
{
    return linesOf(describe("list", archive));
}

std::vector<std::string> linesOfTree(const std::string& item)
{
    return linesOf(describe("tree", item));
}

std::string depthOfArchive(const std::string& archive)
{
    const auto lines = linesOf(describe("depth", archive));
    return lines.empty() ? std::string() : lines.front();
}

std::string noise(std::size_t length)
{
    std::mt19937 generator; // NOLINT(cert-msc51-cpp): the same bytes in every run
    std::string bytes(length, '\0');
    for (char& byte : bytes) {
        byte = static_cast<char>(generator());
    }
    return bytes;
}

ProgramResult runTool(const std::string& name, const std::vector<std::string>& arguments)
{
    return runProgram(name, arguments, {"LC_ALL=C.UTF-8"});
}

ProgramResult makeArchiveWhereFails(
    const FailingCall& call, const std::string& source, const std::string& target)
{
    const TempTree out;
    ChildProcess archiver(
        {test::built::archiver(),
         archiverArguments(source, target),
         {},
         out.pathOf("stdout"),
         out.pathOf("stderr"),
         [&] {
             if (!makeCallFail(call)) {
                 std::_Exit(-1);
             }
         }});
    const int status = archiver.waitForExit();
    return {status, fileContent(out.pathOf("stdout")), fileContent(out.pathOf("stderr"))};
}

ProgramResult makeArchiveWithoutRights(const std::string& source, const std::string& target)
{
    if (::geteuid() != 0) {
        return makeArchive(source, target);
    }
    const std::string rights = "-dac_override,-dac_read_search";
    std::vector<std::string> arguments{
        "--bounding-set=" + rights, "--inh-caps=" + rights, test::built::archiver()};
    for (std::string& argument : archiverArguments(source, target)) {
        arguments.push_back(std::move(argument));
    }
    return runTool("setpriv", arguments);
}

} // namespace tessera::test
