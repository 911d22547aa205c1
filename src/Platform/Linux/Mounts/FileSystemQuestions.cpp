// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/FileSystemQuestions.h"

#include "Platform/Linux/Mounts/MountTable.h"

#include <algorithm>

namespace tessera {

namespace {

std::string mountPointOf(const std::string& path)
{
    const std::optional<MountTable> mounts = MountTable::ofThisProcess();
    const std::optional<Mount> mount = mounts ? mounts->mountOf(path, {}) : std::nullopt;
    return mount ? mount->point : std::string();
}

} // namespace

FileSystemQuestions::FileSystemQuestions(std::chrono::milliseconds patience)
    : FileSystemQuestions(patience, mountPointOf)
{
}

FileSystemQuestions::FileSystemQuestions(
    std::chrono::milliseconds patience, MountPointOf mountPointOf)
    : m_patience(patience)
    , m_mountPointOf(std::move(mountPointOf))
{
}

/// Whether it makes sense to ask.
bool FileSystemQuestions::mayAnswer(const std::string& path, LinkMode linkMode) const
{
    const std::lock_guard lock(m_mutex);
    std::erase_if(
        m_stuck, [this](const Stuck& stuck) { return m_threads->hasEnded(*stuck.thread); });
    if (m_stuck.empty()) {
        return true;
    }
    const std::string place = placeOf(path, linkMode);
    return std::ranges::find(m_stuck, place, &Stuck::place) == m_stuck.end();
}

/// What counts as dead together with the path.
std::string FileSystemQuestions::placeOf(const std::string& path, LinkMode linkMode) const
{
    return linkMode == LinkMode::Keep ? m_mountPointOf(path) : path;
}

bool FileSystemQuestions::perform(
    const std::string& path,
    LinkMode linkMode,
    std::function<void()> work,
    Clock::time_point until) const
{
    if (!mayAnswer(path, linkMode)) {
        return false;
    }
    const auto [thread, error] = m_threads->start(std::move(work));
    if (error) {
        return false; // which says nothing about the file system: it is asked again the next time
    }
    if (m_threads->waitFor(*thread, until)) {
        return true;
    }
    const std::lock_guard lock(m_mutex);
    m_stuck.push_back({thread, placeOf(path, linkMode)});
    return false;
}

} // namespace tessera
