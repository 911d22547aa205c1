// SPDX-License-Identifier: MIT
#include "RunInSandbox.h"

#include "Sandbox.h"
#include "support/Machine/OwnMounts.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <system_error>

namespace tessera::test {

namespace {

namespace fs = std::filesystem;

constexpr int kFailed = 1;
constexpr int kCannotStart = 127;

struct User {
    uid_t id;
    gid_t group;
};

void check(bool succeeded, const char* what)
{
    if (!succeeded) {
        throw std::system_error(errno, std::generic_category(), what);
    }
}

/// Whom the super-user becomes; nothing for anybody else.
std::optional<User> ordinaryUser()
{
    if (::geteuid() != 0) {
        return std::nullopt;
    }
    const struct passwd* const nobody = ::getpwnam("nobody"); // NOLINT(concurrency-mt-unsafe)
    check(nobody != nullptr, "there is no user nobody");
    return User{nobody->pw_uid, nobody->pw_gid};
}

void mountVolume(const Sandbox& sandbox, OwnMounts& mounts)
{
    if (OwnMounts::enter()) {
        mounts.mountMemory(sandbox.volume(), "size=256m");
    }
}

void makeFolders(const Sandbox& sandbox, const std::vector<std::string>& programs)
{
    for (const char* name : {"/disk", "/volume", "/home", "/bin", "/run"}) {
        fs::create_directory(sandbox.path() + name);
    }
    fs::permissions(sandbox.path() + "/run", fs::perms::owner_all);
    // Where the program was built, an ordinary user may have no way in.
    for (const std::string& program : programs) {
        fs::copy_file(program, fs::path(sandbox.path() + "/bin") / fs::path(program).filename());
    }
}

void giveTo(const User& user, const Sandbox& sandbox)
{
    for (const char* name : {"", "/disk", "/volume", "/home", "/run"}) {
        check(::chown((sandbox.path() + name).c_str(), user.id, user.group) == 0, name);
    }
}

/// A sanitizer's options may name a file that an ordinary user has no way to.
void copySuppressions(const char* variable, const Sandbox& sandbox)
{
    static const std::string kOption = "suppressions=";
    const char* const value = std::getenv(variable); // NOLINT(concurrency-mt-unsafe)
    std::string options = value == nullptr ? "" : value;
    const std::size_t at = options.find(kOption);
    if (at == std::string::npos) {
        return;
    }
    const std::size_t begin = at + kOption.size();
    const std::size_t length = options.find(':', begin) - begin;
    const std::string copy = sandbox.path() + "/bin/" + variable;
    fs::copy_file(options.substr(begin, length), copy);
    options.replace(begin, std::min(length, options.size() - begin), copy);
    ::setenv(variable, options.c_str(), 1); // NOLINT(concurrency-mt-unsafe)
}

void setEnvironment(const Sandbox& sandbox)
{
    // NOLINTBEGIN(concurrency-mt-unsafe): there is no other thread
    ::setenv("HOME", sandbox.home().c_str(), 1);
    ::setenv("XDG_RUNTIME_DIR", (sandbox.path() + "/run").c_str(), 1);
    for (const char* name :
         {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"}) {
        ::unsetenv(name);
    }
    // NOLINTEND(concurrency-mt-unsafe)
}

/// Becomes the program; does not return.
void become(std::vector<std::string>& arguments, const std::optional<User>& user, int program)
{
    std::vector<char*> words;
    words.reserve(arguments.size() + 1);
    for (std::string& argument : arguments) {
        words.push_back(argument.data());
    }
    words.push_back(nullptr);
    const bool isUser = !user
        || (::setgroups(0, nullptr) == 0 && ::setresgid(user->group, user->group, user->group) == 0
            && ::setresuid(user->id, user->id, user->id) == 0);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (isUser && ::chdir(arguments.back().c_str()) == 0) {
        ::fexecve(program, words.data(), environ);
    }
    ::_exit(kCannotStart);
}

int run(std::vector<std::string>& arguments, const std::optional<User>& user)
{
    const int program = ::open("/proc/self/exe", O_RDONLY | O_CLOEXEC);
    check(program >= 0, "/proc/self/exe");
    const pid_t child = ::fork();
    check(child >= 0, "fork");
    if (child == 0) {
        become(arguments, user, program);
    }
    ::close(program);
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) { }
    if (WIFSIGNALED(status)) {
        (void)std::fprintf(stderr, "soak: ended by signal %d\n", WTERMSIG(status));
        return kFailed;
    }
    return WEXITSTATUS(status);
}

} // namespace

int runInSandbox(std::vector<std::string> arguments, const std::vector<std::string>& programs)
{
    const TempTree tree;
    OwnMounts mounts;
    const Sandbox sandbox(tree.path());
    const std::optional<User> user = ordinaryUser();
    makeFolders(sandbox, programs);
    for (const char* variable : {"ASAN_OPTIONS", "LSAN_OPTIONS", "TSAN_OPTIONS"}) {
        copySuppressions(variable, sandbox);
    }
    setEnvironment(sandbox);
    if (user) {
        mountVolume(sandbox, mounts);
        giveTo(*user, sandbox);
    }
    arguments.push_back(sandbox.path());
    return run(arguments, user);
}

} // namespace tessera::test
