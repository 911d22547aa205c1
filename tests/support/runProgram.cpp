// SPDX-License-Identifier: MIT
#include "support/runProgram.h"

#include "support/TempTree.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace tessera::test {

namespace {

constexpr int kCannotStart = 127;

std::string contentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void redirect(int descriptor, const std::string& path, int flags)
{
    constexpr mode_t kPrivate = 0600;
    const int file = ::open(path.c_str(), flags, kPrivate);
    if (file < 0 || ::dup2(file, descriptor) < 0) {
        ::_exit(kCannotStart);
    }
}

} // namespace

ProgramResult runProgram(
    const std::string& program,
    const std::vector<std::string>& arguments,
    const std::vector<std::string>& environment)
{
    // Files instead of pipes: nobody has to read while the program runs.
    const TempTree output;
    const std::string outputPath = output.pathOf("out");
    const std::string errorPath = output.pathOf("err");
    std::vector<char*> words{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments) {
        words.push_back(const_cast<char*>(argument.c_str()));
    }
    words.push_back(nullptr);

    const pid_t child = ::fork();
    if (child == 0) {
        redirect(STDIN_FILENO, "/dev/null", O_RDONLY);
        redirect(STDOUT_FILENO, outputPath, O_WRONLY | O_CREAT);
        redirect(STDERR_FILENO, errorPath, O_WRONLY | O_CREAT);
        for (const std::string& variable : environment) {
            ::putenv(const_cast<char*>(variable.c_str())); // NOLINT(concurrency-mt-unsafe)
        }
        ::execv(program.c_str(), words.data());
        ::_exit(kCannotStart);
    }
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) { }
    return {
        WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentOf(outputPath), contentOf(errorPath)};
}

} // namespace tessera::test
