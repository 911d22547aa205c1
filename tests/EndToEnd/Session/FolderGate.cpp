// SPDX-License-Identifier: MIT
#include "FolderGate.h"

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstddef>
#include <cstring>
#include <system_error>
#include <utility>

namespace tessera::test {

namespace {

constexpr int kCannotStart = 127;
constexpr int kBetweenLooksMs = 50;

/// A message of one byte that a descriptor rides on.
class DescriptorMessage {
public:
    DescriptorMessage()
    {
        m_header.msg_iov = &m_part;
        m_header.msg_iovlen = 1;
        m_header.msg_control = m_control.data();
        m_header.msg_controllen = m_control.size();
    }

    bool sendOver(int socket, int descriptor)
    {
        cmsghdr* const rider = CMSG_FIRSTHDR(&m_header);
        rider->cmsg_level = SOL_SOCKET;
        rider->cmsg_type = SCM_RIGHTS;
        rider->cmsg_len = CMSG_LEN(sizeof(descriptor));
        std::memcpy(CMSG_DATA(rider), &descriptor, sizeof(descriptor));
        return ::sendmsg(socket, &m_header, 0) == 1;
    }

    /// -1 when none comes.
    int receiveFrom(int socket)
    {
        int descriptor = -1;
        if (::recvmsg(socket, &m_header, MSG_CMSG_CLOEXEC) == 1
            && CMSG_FIRSTHDR(&m_header) != nullptr) {
            std::memcpy(&descriptor, CMSG_DATA(CMSG_FIRSTHDR(&m_header)), sizeof(descriptor));
        }
        return descriptor;
    }

private:
    char m_byte = 0;
    iovec m_part{&m_byte, 1};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> m_control{};
    msghdr m_header{};
};

/// From now on the kernel asks, over the descriptor returned, before this process and what it
/// becomes may read the entries of a folder.
int askBeforeReadingFolders()
{
    std::array<sock_filter, 4> steps{
        sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_getdents64, 0, 1),
        sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_USER_NOTIF),
        sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
    const sock_fprog program{steps.size(), steps.data()};
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) {
        return -1;
    }
    return static_cast<int>(::syscall(
        SYS_seccomp, SECCOMP_SET_MODE_FILTER, SECCOMP_FILTER_FLAG_NEW_LISTENER, &program));
}

/// The folder that the thread has open under that number.
std::string folderOf(std::uint32_t thread, std::uint64_t descriptor)
{
    const std::string link
        = "/proc/" + std::to_string(thread) + "/fd/" + std::to_string(descriptor);
    std::array<char, PATH_MAX> target{};
    const ssize_t length = ::readlink(link.c_str(), target.data(), target.size());
    return length < 0 ? std::string()
                      : std::string(target.data(), static_cast<std::size_t>(length));
}

} // namespace

FolderGate::FolderGate()
{
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        throw std::system_error(errno, std::generic_category(), "socketpair");
    }
    m_ours = ends[0];
    m_theirs = ends[1];
}

FolderGate::~FolderGate()
{
    m_watcher.request_stop();
    if (m_watcher.joinable()) {
        m_watcher.join();
    }
    for (const int descriptor : {m_ours, m_theirs, m_questions}) {
        ::close(descriptor);
    }
}

void FolderGate::placeBefore() const
{
    const int questions = askBeforeReadingFolders();
    if (questions < 0 || !DescriptorMessage().sendOver(m_theirs, questions)) {
        ::_exit(kCannotStart);
    }
}

void FolderGate::watch()
{
    ::close(std::exchange(m_theirs, -1)); // so that the end of the process is an end here too
    m_questions = DescriptorMessage().receiveFrom(m_ours);
    if (m_questions < 0) {
        throw std::system_error(ENOSYS, std::generic_category(), "seccomp");
    }
    m_watcher = std::jthread([this](const std::stop_token& stop) { answerCalls(stop); });
}

void FolderGate::hold(const std::string& folder)
{
    const std::lock_guard lock(m_mutex);
    m_held = folder;
}

bool FolderGate::isReached() const
{
    const std::lock_guard lock(m_mutex);
    return !m_waiting.empty();
}

void FolderGate::letGo()
{
    const std::lock_guard lock(m_mutex);
    m_held.clear();
    for (const std::uint64_t call : std::exchange(m_waiting, {})) {
        permit(call);
    }
}

void FolderGate::answerCalls(const std::stop_token& stop)
{
    while (!stop.stop_requested()) {
        pollfd question{m_questions, POLLIN, 0};
        if (::poll(&question, 1, kBetweenLooksMs) <= 0) {
            continue;
        }
        seccomp_notif call{};
        if ((question.revents & POLLIN) == 0) {
            return; // nobody is left to ask about
        }
        if (::ioctl(m_questions, SECCOMP_IOCTL_NOTIF_RECV, &call) == 0) {
            decide(call.id, folderOf(call.pid, call.data.args[0]));
        }
    }
}

void FolderGate::decide(std::uint64_t call, const std::string& folder)
{
    const std::lock_guard lock(m_mutex);
    if (!m_held.empty() && folder == m_held) {
        m_waiting.push_back(call);
    } else {
        permit(call);
    }
}

void FolderGate::permit(std::uint64_t call) const
{
    seccomp_notif_resp answer{};
    answer.id = call;
    answer.flags = SECCOMP_USER_NOTIF_FLAG_CONTINUE;
    ::ioctl(m_questions, SECCOMP_IOCTL_NOTIF_SEND, &answer);
}

} // namespace tessera::test
