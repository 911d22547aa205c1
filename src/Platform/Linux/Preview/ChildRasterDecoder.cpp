// SPDX-License-Identifier: MIT
#include "Platform/Linux/Preview/ChildRasterDecoder.h"

#include "Platform/Linux/Files/FileDescriptor.h"
#include "QuickLook/Reading/FileReader.h"
#include "QuickLook/Reading/RasterArguments.h"
#include "QuickLook/Reading/ReadRasterAnswer.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <utility>

namespace tessera {

namespace {

/// Numbers in the texts mean the same everywhere. Who needs to be told where Qt's libraries are
/// needs it here too.
std::vector<std::string> childEnvironment()
{
    std::vector<std::string> environment{"LC_ALL=C.UTF-8"};
    for (const char* const name : {"LD_LIBRARY_PATH", "QT_PLUGIN_PATH"}) {
        // NOLINTNEXTLINE(concurrency-mt-unsafe): before any other thread
        if (const char* const value = std::getenv(name); value != nullptr) {
            environment.push_back(std::string(name) + "=" + value);
        }
    }
    return environment;
}

/// As exec wants them; they point into the texts.
std::vector<char*> pointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

/// Out of the way of the standard streams, which the program may have been started without.
FileDescriptor duplicateAboveStandard(int descriptor)
{
    return FileDescriptor(::fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

/// What a new process gets. Of the descriptors only these three: all others close by themselves.
class SpawnPlan {
public:
    SpawnPlan(const FileDescriptor& input, const FileDescriptor& output)
    {
        ::posix_spawn_file_actions_init(&m_files);
        ::posix_spawn_file_actions_adddup2(&m_files, input.number(), STDIN_FILENO);
        ::posix_spawn_file_actions_adddup2(&m_files, output.number(), STDOUT_FILENO);
        // What decoders complain of may be the file's own words.
        ::posix_spawn_file_actions_addopen(&m_files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        ::posix_spawnattr_init(&m_attributes);
        sigset_t signalSet{};
        ::sigemptyset(&signalSet);
        ::posix_spawnattr_setsigmask(&m_attributes, &signalSet);
        ::sigfillset(&signalSet);
        ::posix_spawnattr_setsigdefault(&m_attributes, &signalSet);
        ::posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    SpawnPlan(const SpawnPlan&) = delete;
    SpawnPlan& operator=(const SpawnPlan&) = delete;
    ~SpawnPlan()
    {
        ::posix_spawnattr_destroy(&m_attributes);
        ::posix_spawn_file_actions_destroy(&m_files);
    }

    /// 0 when there is no new process.
    pid_t start(std::vector<std::string> words, std::vector<std::string> environment) const
    {
        pid_t process = 0;
        const int error = ::posix_spawn(
            &process,
            words.front().c_str(),
            &m_files,
            &m_attributes,
            pointersTo(words).data(),
            pointersTo(environment).data());
        return error == 0 ? process : 0;
    }

private:
    posix_spawn_file_actions_t m_files{};
    posix_spawnattr_t m_attributes{};
};

/// A process that ends with this object at the latest.
class Decoder {
public:
    Decoder(
        const std::vector<std::string>& words,
        const std::vector<std::string>& environment,
        int file)
    {
        std::array<int, 2> pipe{-1, -1};
        const FileDescriptor input = duplicateAboveStandard(file);
        if (!input.isOpen() || ::pipe2(pipe.data(), O_CLOEXEC) != 0) {
            return;
        }
        m_answer = FileDescriptor(pipe[0]);
        const FileDescriptor writingEnd(pipe[1]);
        const FileDescriptor output = duplicateAboveStandard(writingEnd.number());
        if (output.isOpen()) {
            m_process = SpawnPlan(input, output).start(words, environment);
        }
    }
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;
    ~Decoder()
    {
        if (isStarted()) {
            kill();
            while (::waitpid(m_process, nullptr, 0) < 0 && errno == EINTR) { }
        }
    }

    bool isStarted() const { return m_process > 0; }

    /// Callable from any thread; its end is waited for at the end of this object only.
    void kill() const { ::kill(m_process, SIGKILL); }

    /// Fills all of the room; false when it says no more.
    bool read(std::span<char> into) const
    {
        while (!into.empty()) {
            const ssize_t count = ::read(m_answer.number(), into.data(), into.size());
            if (count == 0 || (count < 0 && errno != EINTR)) {
                return false;
            }
            into = into.subspan(static_cast<std::size_t>(count < 0 ? 0 : count));
        }
        return true;
    }

private:
    FileDescriptor m_answer;
    pid_t m_process = 0;
};

} // namespace

ChildRasterDecoder::ChildRasterDecoder(std::string program)
    : m_program(std::move(program))
    , m_environment(childEnvironment())
{
}

RasterAnswer ChildRasterDecoder::decode(
    const ReadableFile& file, const RasterRequest& request, const std::stop_token& stop) const
{
    std::vector<std::string> words = rasterArguments(request);
    words.insert(words.begin(), m_program);
    const Decoder decoder(words, m_environment, file.descriptor());
    if (!decoder.isStarted()) {
        return {RasterOutcome::NotStarted, std::nullopt, 0, {}};
    }
    const std::stop_callback killOnStop(stop, [&decoder] { decoder.kill(); });
    return readRasterAnswer(
        request, [&decoder](std::span<char> into) { return decoder.read(into); });
}

} // namespace tessera
