// SPDX-License-Identifier: MIT
#include "support/Machine/TrashFixture.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace tessera::test {

namespace {

std::string described(const std::string& path)
{
    struct stat values { };
    std::ostringstream line;
    line << path << (::lstat(path.c_str(), &values) == 0 ? "" : " unknown") << std::oct << ' '
         << values.st_mode << std::dec << ' ' << values.st_ino;
    if (!S_ISDIR(values.st_mode)) {
        line << ' ' << values.st_size << ' ' << values.st_mtim.tv_sec << '.'
             << values.st_mtim.tv_nsec;
    }
    return line.str();
}

} // namespace

std::vector<std::string> snapshotOf(const std::string& path)
{
    std::vector<std::string> lines{described(path)};
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) {
        lines.push_back(described(entry.path().string()));
    }
    std::sort(lines.begin(), lines.end());
    return lines;
}

bool exists(const std::string& path)
{
    struct stat values { };
    return ::lstat(path.c_str(), &values) == 0;
}

std::vector<std::string> namesIn(const std::string& path)
{
    std::vector<std::string> names;
    if (std::filesystem::is_directory(path)) {
        for (const auto& entry : std::filesystem::directory_iterator(path)) {
            names.push_back(entry.path().filename().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

TrashFixture::TrashFixture()
    : m_userId(std::to_string(::geteuid()))
    , m_trash({::geteuid(), m_homeTrash, {m_tree.pathOf("home")}})
{
    m_tree.makeFolder("home");
    m_tree.makeFolder("work");
}

std::string TrashFixture::move(const std::string& name)
{
    const Url url(m_tree.pathOf(name), name.ends_with('/'));
    const RecycleResult result = m_trash.recycle({url});
    const auto moved = result.newUrls.find(url.absoluteString());
    m_newPath = moved == result.newUrls.end() ? "" : moved->second.path();
    m_trashed = result.trashed.empty() ? TrashedItem() : result.trashed.front();
    return result.error;
}

std::string TrashFixture::moveInVain(const std::string& name)
{
    const std::vector<std::string> before = snapshotOf(m_tree.path());
    std::string error = move(name);
    EXPECT_EQ(snapshotOf(m_tree.path()), before);
    EXPECT_EQ(m_newPath, "");
    return error;
}

void TrashOnAMount::SetUp()
{
    if (!OwnMounts::enter()) {
        GTEST_SKIP() << "this process may not mount";
    }
    m_tree.makeFolder("disk");
    m_mounts.mountMemory(m_disk);
}

} // namespace tessera::test
