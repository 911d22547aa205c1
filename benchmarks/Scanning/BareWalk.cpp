// SPDX-License-Identifier: MIT
// The least that any scan has to do: list all folders and stat all items, on two threads, in any
// order and without keeping anything. What a scan takes beyond this is what its own work costs.

#include <dirent.h>
#include <fcntl.h>
#include <linux/stat.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <deque>
#include <mutex>
#include <span>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

constexpr std::size_t kBufferBytes = std::size_t{32} * 1024;
constexpr std::uint64_t kBytesPerBlock = 512;
constexpr unsigned kThreads = 2;

class BareWalk {
public:
    void run(const std::string& start)
    {
        m_folders.push_back(start);
        std::vector<std::thread> threads;
        for (unsigned i = 0; i < kThreads; ++i) {
            threads.emplace_back([this] { work(); });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
    }

    std::uint64_t items() const { return m_items; }
    std::uint64_t bytes() const { return m_bytes; }

private:
    void work()
    {
        std::unique_lock lock(m_mutex);
        while (true) {
            while (m_folders.empty() && m_busy > 0) {
                m_changed.wait(lock);
            }
            if (m_folders.empty()) {
                break;
            }
            const std::string folder = std::move(m_folders.front());
            m_folders.pop_front();
            ++m_busy;
            lock.unlock();
            std::vector<std::string> found = readFolder(folder);
            lock.lock();
            --m_busy;
            for (std::string& path : found) {
                m_folders.push_back(std::move(path));
            }
            m_changed.notify_all();
        }
    }

    std::vector<std::string> readFolder(const std::string& path)
    {
        std::vector<std::string> found;
        const int folder = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        if (folder < 0) {
            return found;
        }
        alignas(dirent64) std::array<char, kBufferBytes> buffer;
        ssize_t length = 0;
        while ((length = ::getdents64(folder, buffer.data(), buffer.size())) > 0) {
            for (std::size_t offset = 0; offset < static_cast<std::size_t>(length);) {
                const auto* entry = reinterpret_cast<const dirent64*>(buffer.data() + offset);
                offset += entry->d_reclen;
                const char* name = &entry->d_name[0];
                if (std::strcmp(name, ".") != 0 && std::strcmp(name, "..") != 0
                    && isFolder(folder, name)) {
                    found.push_back(path + '/' + name);
                }
            }
        }
        ::close(folder);
        return found;
    }

    bool isFolder(int folder, const char* name)
    {
        struct statx values { };
        const int flags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;
        if (::statx(folder, name, flags, STATX_TYPE | STATX_BLOCKS, &values) != 0) {
            return false;
        }
        m_items.fetch_add(1, std::memory_order_relaxed);
        if (S_ISDIR(values.stx_mode)) {
            return (values.stx_attributes & STATX_ATTR_MOUNT_ROOT) == 0;
        }
        m_bytes.fetch_add(values.stx_blocks * kBytesPerBlock, std::memory_order_relaxed);
        return false;
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::string> m_folders;
    unsigned m_busy = 0;
    std::atomic<std::uint64_t> m_items{0};
    std::atomic<std::uint64_t> m_bytes{0};
};

} // namespace

int main(int argc, char** argv)
{
    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
    if (arguments.size() != 2) {
        std::fputs("usage: BareWalk FOLDER\n", stderr);
        return 2;
    }
    const auto start = std::chrono::steady_clock::now();
    BareWalk walk;
    walk.run(arguments[1]);
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    std::printf(
        "seconds %.4f items %ju bytes %ju\n",
        took.count(),
        std::uintmax_t{walk.items()},
        std::uintmax_t{walk.bytes()});
    return 0;
}
