// SPDX-License-Identifier: MIT
// Starts programs with a window, in turn, and times each until the screen stays as it is:
// StartBench ROUNDS PROGRAM... Needs an X server of its own.
#include "DeadMounts/DeadMountLimits.h"
#include "Model/Recents.h"
#include "Model/TopFolder.h"
#include "Platform/Linux/Desktop/XbelRecentDocuments.h"
#include "Platform/Linux/Mounts/FileSystemQuestions.h"
#include "Platform/Qt/SettingsUserDefaults.h"
#include "Start/OwnHome.h"

#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <thread>
#include <vector>

using namespace tessera;

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kBetweenLooks{3};
constexpr std::chrono::milliseconds kTimeToStay{700}; ///< then nothing more is to come
constexpr std::chrono::seconds kPatience{20};
constexpr std::uint16_t kBetweenRows = 8; ///< less than the height of a line of text
constexpr int kCannotStart = 127;

struct Release {
    template <typename Memory>
    void operator()(Memory* memory) const
    {
        // NOLINTNEXTLINE(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory): XCB's way
        std::free(memory);
    }
};

/// What can be seen on the first screen of the X server.
class Screen {
public:
    Screen()
        : m_connection(xcb_connect(nullptr, nullptr))
    {
        if (isOpen()) {
            m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        }
    }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    ~Screen() { xcb_disconnect(m_connection); }

    bool isOpen() const { return xcb_connection_has_error(m_connection) == 0; }

    /// Some rows of pixels from the top to the bottom, so that looking hardly takes any time.
    std::vector<std::uint8_t> look() const
    {
        constexpr std::uint32_t kAllPlanes = ~0U;
        std::vector<xcb_get_image_cookie_t> rows;
        for (std::uint16_t y = 0; y < m_screen->height_in_pixels; y += kBetweenRows) {
            rows.push_back(xcb_get_image(
                m_connection,
                XCB_IMAGE_FORMAT_Z_PIXMAP,
                m_screen->root,
                0,
                static_cast<std::int16_t>(y),
                m_screen->width_in_pixels,
                1,
                kAllPlanes));
        }
        std::vector<std::uint8_t> pixels;
        for (const xcb_get_image_cookie_t row : rows) {
            const std::unique_ptr<xcb_get_image_reply_t, Release> reply(
                xcb_get_image_reply(m_connection, row, nullptr));
            if (reply != nullptr) {
                const std::uint8_t* const data = xcb_get_image_data(reply.get());
                pixels.insert(pixels.end(), data, data + xcb_get_image_data_length(reply.get()));
            }
        }
        return pixels;
    }

private:
    xcb_connection_t* m_connection;
    const xcb_screen_t* m_screen = nullptr;
};

/// A program that runs until this object's end.
class RunningProgram {
public:
    explicit RunningProgram(const char* path)
        : m_process(::fork())
    {
        if (m_process == 0) {
            const int nowhere = ::open("/dev/null", O_RDWR);
            ::dup2(nowhere, STDOUT_FILENO);
            ::dup2(nowhere, STDERR_FILENO);
            ::execl(path, path, nullptr);
            ::_exit(kCannotStart);
        }
    }
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram()
    {
        ::kill(m_process, SIGKILL);
        ::waitpid(m_process, nullptr, 0);
    }

private:
    pid_t m_process;
};

/// Until nothing has changed on the screen for a while. Nothing when that does not come about.
std::optional<std::vector<std::uint8_t>> stillScreen(const Screen& screen)
{
    std::vector<std::uint8_t> seen = screen.look();
    const auto begin = Clock::now();
    for (auto changed = begin; Clock::now() - changed < kTimeToStay;) {
        std::this_thread::sleep_for(kBetweenLooks);
        std::vector<std::uint8_t> now = screen.look();
        if (now != seen) {
            changed = Clock::now();
            seen = std::move(now);
        }
        if (Clock::now() - begin > kPatience) {
            return std::nullopt;
        }
    }
    return seen;
}

/// Milliseconds from the program's start to the last change that it makes on the screen.
std::optional<double> timeToShow(const char* program, const Screen& screen)
{
    const auto empty = stillScreen(screen);
    if (!empty) {
        return std::nullopt;
    }
    std::vector<std::uint8_t> seen = *empty;
    const auto begin = Clock::now();
    auto changed = begin;
    const RunningProgram running(program);
    while (seen == *empty || Clock::now() - changed < kTimeToStay) {
        std::vector<std::uint8_t> now = screen.look();
        if (now != seen) {
            changed = Clock::now();
            seen = std::move(now);
        }
        if (Clock::now() - begin > kPatience) {
            return std::nullopt;
        }
        std::this_thread::sleep_for(kBetweenLooks);
    }
    return std::chrono::duration<double, std::milli>(changed - begin).count();
}

/// As somebody's who has scanned before.
void addRecents(const QTemporaryDir& home)
{
    SettingsUserDefaults defaults(SettingsUserDefaults::defaultFilePath());
    XbelRecentDocuments documents(
        home.filePath(QStringLiteral("data/recently-used.xbel")).toStdString(),
        defaults,
        std::make_shared<const FileSystemQuestions>(kWorkerPatience));
    Recents recents(defaults, documents);
    for (const char* const path : {"/var", "/etc", "/usr", "/"}) {
        auto folder = makeNode<TopFolder>(path);
        folder->setOrigin(path);
        recents.addToList(*folder);
    }
}

/// The first round is not counted: it gets the programs into memory.
bool measure(std::size_t rounds, std::span<const char* const> programs)
{
    const Screen screen;
    if (!screen.isOpen()) {
        std::fputs("StartBench: there is no X server\n", stderr);
        return false;
    }
    std::map<std::string, std::vector<double>> times;
    for (std::size_t round = 0; round <= rounds; ++round) {
        for (const char* const program : programs) {
            const auto time = timeToShow(program, screen);
            if (!time) {
                std::fprintf(stderr, "StartBench: %s shows nothing that stays\n", program);
                return false;
            }
            if (round > 0) {
                times[program].push_back(*time);
            }
        }
    }
    for (const char* const program : programs) {
        std::vector<double>& measured = times[program];
        std::sort(measured.begin(), measured.end());
        std::printf(
            "%s median %.0f ms, longest %.0f ms\n",
            std::strrchr(program, '/') + 1, // NOLINT: a path has a slash
            measured[measured.size() / 2],
            measured.back());
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    constexpr int kLeastArguments = 3;
    if (argc < kLeastArguments) {
        std::fputs("usage: StartBench ROUNDS PROGRAM...\n", stderr);
        return 2;
    }
    const QTemporaryDir home;
    bench::liveIn(home);
    addRecents(home);
    const std::span<const char* const> arguments(argv, static_cast<std::size_t>(argc));
    const std::size_t rounds = std::strtoul(arguments[1], nullptr, 10); // NOLINT
    return measure(std::max<std::size_t>(rounds, 1), arguments.subspan(2)) ? EXIT_SUCCESS
                                                                           : EXIT_FAILURE;
}
