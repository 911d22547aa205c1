// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/LinuxSharedExtents.h"

#include "DeadMounts/AnswerSoFar.h"
#include "Model/Allocation.h"
#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Files/LongPath.h"

#include <fcntl.h>
#include <linux/fiemap.h>
#include <linux/fs.h>
#include <sys/ioctl.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <limits>
#include <optional>
#include <string>
#include <utility>

namespace tessera {

namespace {

constexpr std::size_t kExtentsAtOnce = 256;

int askForExtents(int descriptor, fiemap& request)
{
    int result = 0;
    do {
        result = ::ioctl(descriptor, FS_IOC_FIEMAP, &request);
    } while (result != 0 && errno == EINTR);
    return result != 0 ? errno : 0;
}

/// A question, with room for the answer behind it, as the system wants it.
class ExtentsRequest {
public:
    fiemap& header() { return *reinterpret_cast<fiemap*>(m_bytes.data()); }

    void startAt(std::uint64_t offset)
    {
        m_bytes.fill({});
        header().fm_start = offset;
        header().fm_length = std::numeric_limits<std::uint64_t>::max() - offset;
        header().fm_extent_count = kExtentsAtOnce;
    }

    fiemap_extent extent(std::size_t index) const
    {
        fiemap_extent extent{};
        const auto* const place = m_bytes.data() + sizeof(fiemap) + index * sizeof(extent);
        std::memcpy(&extent, place, sizeof(extent));
        return extent;
    }

    std::size_t count()
    {
        return std::min<std::size_t>(header().fm_mapped_extents, kExtentsAtOnce);
    }

private:
    alignas(fiemap)
        std::array<std::byte, sizeof(fiemap) + kExtentsAtOnce * sizeof(fiemap_extent)> m_bytes{};
};

using ExtentsState = FileExtents::State;

ExtentsState stateAfter(int error)
{
    switch (error) {
    case 0:
        return ExtentsState::Known;
    case EOPNOTSUPP:
    case ENOTTY:
    case ENOSYS:
        return ExtentsState::NotTold;
    case EACCES:
    case EPERM:
        return ExtentsState::MayNotRead;
    case ENOENT:
    case ENOTDIR:
    case ELOOP:
        return ExtentsState::Changed;
    default:
        return ExtentsState::NotLookedAt;
    }
}

struct SameFile {
    ExtentsState state = ExtentsState::NotLookedAt; ///< why it is not open; known where it is
    FileDescriptor content = {};
};

/// Only if it is the very file, and a regular one. What is found is held before it is opened for
/// reading, for a device that took the name would notice that.
SameFile openSameFile(const NamedFile& file)
{
    const NamedPlace place = openFolderOfWithoutLinks(file.path);
    if (place.error != 0) {
        return {stateAfter(place.error)};
    }
    const FileDescriptor held(
        ::openat(place.folder.number(), place.name.c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
    if (!held.isOpen()) {
        return {stateAfter(errno)};
    }
    const StatusResult found = statusOf(held.number());
    if (!found || !found.status.isRegular || found.status.identity != file.identity) {
        return {found ? ExtentsState::Changed : stateAfter(found.error)};
    }
    const std::string link = "/proc/self/fd/" + std::to_string(held.number());
    FileDescriptor content(::open(link.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    return content.isOpen() ? SameFile{ExtentsState::Known, std::move(content)}
                            : SameFile{stateAfter(errno)};
}

/// One look at all the files of a question.
class ExtentsSurvey {
public:
    struct Order {
        std::vector<NamedFile> files;
        bool areAll = false; ///< that were asked for
        LinuxSharedExtents::ExtentsOf extentsOf;
        std::chrono::steady_clock::time_point until;
        std::stop_token stop;
    };

    ExtentsSurvey(const Order& order, AnswerSoFar<SharedExtentsAnswer>& answer)
        : m_order(order)
        , m_answer(answer)
    {
    }

    void run()
    {
        for (std::size_t i = 0; i < m_order.files.size(); ++i) {
            const FileExtents extents = extentsOf(m_order.files[i]);
            if (mustEnd()) {
                return;
            }
            m_answer.change(
                [i, &extents](SharedExtentsAnswer& answer) { answer.files[i] = extents; });
        }
        m_answer.change(
            [this](SharedExtentsAnswer& answer) { answer.isCutShort = !m_order.areAll; });
    }

private:
    bool mustEnd() const
    {
        return m_order.stop.stop_requested() || std::chrono::steady_clock::now() >= m_order.until;
    }

    FileExtents extentsOf(const NamedFile& file)
    {
        const SameFile opened = mustEnd() ? SameFile() : openSameFile(file);
        if (opened.state != ExtentsState::Known) {
            return {opened.state};
        }
        FileExtents extents{ExtentsState::Known};
        std::optional<std::uint64_t> next = 0;
        while (next) {
            m_request.startAt(*next);
            const int error = mustEnd()
                ? EINTR
                : m_order.extentsOf(opened.content.number(), m_request.header());
            if (error != 0 || !addExtents(extents.bytes, next)) {
                return {error != 0 ? stateAfter(error) : ExtentsState::NotLookedAt};
            }
        }
        return extents;
    }

    /// `next` is where the following question starts; nothing when there are no more extents.
    /// False when the answer leads nowhere.
    bool addExtents(ExtentBytes& bytes, std::optional<std::uint64_t>& next)
    {
        const std::size_t count = m_request.count();
        bool isLast = count == 0;
        for (std::size_t i = 0; i < count; ++i) {
            const fiemap_extent extent = m_request.extent(i);
            const std::uint64_t end = saturatingSum(extent.fe_logical, extent.fe_length);
            if (end <= *next) {
                return false;
            }
            // An extent that the previous answer ended in may be told from its beginning.
            add(bytes, extent.fe_flags, end - std::max<std::uint64_t>(extent.fe_logical, *next));
            isLast = (extent.fe_flags & FIEMAP_EXTENT_LAST) != 0;
            next = end;
        }
        if (isLast) {
            next.reset();
        }
        return true;
    }

    static void add(ExtentBytes& bytes, std::uint32_t flags, std::uint64_t length)
    {
        if ((flags & FIEMAP_EXTENT_SHARED) != 0) {
            bytes.shared = saturatingSum(bytes.shared, length);
            return;
        }
        bytes.own = saturatingSum(bytes.own, length);
        if ((flags & FIEMAP_EXTENT_ENCODED) != 0) {
            bytes.ownEncoded = saturatingSum(bytes.ownEncoded, length);
        }
    }

    const Order& m_order;
    AnswerSoFar<SharedExtentsAnswer>& m_answer;
    ExtentsRequest m_request;
};

} // namespace

LinuxSharedExtents::LinuxSharedExtents()
    : LinuxSharedExtents(Limits())
{
}

LinuxSharedExtents::LinuxSharedExtents(const Limits& limits)
    : LinuxSharedExtents(limits, askForExtents)
{
}

LinuxSharedExtents::LinuxSharedExtents(const Limits& limits, ExtentsOf extentsOf)
    : m_limits(limits)
    , m_extentsOf(std::move(extentsOf))
{
}

SharedExtentsAnswer LinuxSharedExtents::extentsOf(
    const std::vector<NamedFile>& files, const std::stop_token& stop) const
{
    const QuestionThreads::Clock::time_point until
        = QuestionThreads::Clock::now() + m_limits.patience;
    // No more than are looked at: the thread may keep them for long.
    const std::size_t count = std::min(files.size(), m_limits.files);
    ExtentsSurvey::Order order{
        {files.begin(), files.begin() + static_cast<std::ptrdiff_t>(count)},
        count == files.size(),
        m_extentsOf,
        until,
        stop};
    auto answer = answerUntil<SharedExtentsAnswer>(
        *m_threads,
        until,
        stop,
        [order = std::move(order)](AnswerSoFar<SharedExtentsAnswer>& soFar) {
            soFar.change(
                [&order](SharedExtentsAnswer& empty) { empty.files.resize(order.files.size()); });
            ExtentsSurvey(order, soFar).run();
        });
    answer.files.resize(files.size());
    return answer;
}

} // namespace tessera
