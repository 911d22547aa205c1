// SPDX-License-Identifier: MIT
#include "PutBackFixture.h"

#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Trash/TrashInfo.h"
#include "Platform/Linux/Trash/TrashJournalFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

namespace tessera::test {

namespace {

constexpr std::int64_t kNow = 1'795'347'571; // 2026-11-22T11:39:31Z

bool isFileWith(const std::string& text, const std::string& path)
{
    return !std::filesystem::is_directory(path) && fileContent(path) == text;
}

} // namespace

Whereabouts whereaboutsOf(
    const std::string& place,
    const std::string& trash,
    const std::string& text,
    const std::string& below)
{
    const bool isInPlace = isFileWith(text, place + below);
    bool isInTrash = false;
    const std::string files = trash + "/files/";
    const std::string infos = trash + "/info/";
    for (const std::string& name : namesIn(files)) {
        std::string infoFile = infos + name;
        infoFile += ".trashinfo";
        const std::string info = fileContent(infoFile);
        std::string file = files + name;
        file += below;
        isInTrash
            = isInTrash || (isFileWith(text, file) && originalPathIn(info, "/nowhere") == place);
    }
    if (isInPlace && isInTrash) {
        return Whereabouts::Twice;
    }
    if (isInPlace) {
        return Whereabouts::InItsPlace;
    }
    return isInTrash ? Whereabouts::InTheTrash : Whereabouts::Lost;
}

FileIdentity identityAt(const std::string& path)
{
    return statusAt(AT_FDCWD, path.c_str()).status.identity;
}

bool succeedsAtLast(const std::function<bool()>& attempt)
{
    constexpr int kAttempts = 200;
    for (int i = 0; i < kAttempts; ++i) {
        if (attempt()) {
            return true;
        }
    }
    return false;
}

PutBackFixture::PutBackFixture()
    : m_journal(std::make_shared<TrashJournal>(m_stateHome, [] { return kNow; }))
    , m_keepingTrash({::geteuid(), m_homeTrash, {m_tree.pathOf("home")}}, m_journal)
{
}

TrashedItem PutBackFixture::trashed(const std::string& name)
{
    const RecycleResult result
        = m_keepingTrash.recycle({Url(m_tree.pathOf(name), name.ends_with('/'))});
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.journalError, "");
    EXPECT_EQ(result.trashed.size(), 1U);
    return result.trashed.empty() ? TrashedItem() : result.trashed.front();
}

PutBackResult PutBackFixture::putBack(const TrashedItem& item)
{
    return putBack(PutBackRequest{item});
}

PutBackResult PutBackFixture::putBack(const PutBackRequest& request)
{
    PutBackResult result = m_keepingTrash.putBack(request);
    EXPECT_EQ(result.obstacle == PutBackObstacle::None, result.error.empty()) << result.error;
    EXPECT_EQ(result.obstacle == PutBackObstacle::None, !result.place.empty()) << result.error;
    return result;
}

PutBackResult PutBackFixture::putBackInVain(const PutBackRequest& request)
{
    const auto snapshot = [this] {
        std::vector<std::string> lines = snapshotOf(m_tree.path());
        std::erase_if(lines, [this](const std::string& line) {
            return line.starts_with(trashJournalPath(m_stateHome));
        });
        return lines;
    };
    const std::vector<std::string> before = snapshot();
    PutBackResult result = putBack(request);
    EXPECT_NE(result.obstacle, PutBackObstacle::None);
    EXPECT_EQ(snapshot(), before);
    return result;
}

std::string PutBackFixture::infoPath(const std::string& name) const
{
    return m_homeTrash + "/info/" + name + ".trashinfo";
}

std::string PutBackFixture::journalText() const
{
    return fileContent(trashJournalPath(m_stateHome));
}

std::optional<TrashRecord> PutBackFixture::newestRecord() const
{
    const std::vector<TrashRecord> records = m_journal->records();
    return records.empty() ? std::nullopt : std::optional(records.front());
}

void PutBackOnAMount::SetUp()
{
    if (!OwnMounts::enter()) {
        GTEST_SKIP() << "this process may not mount";
    }
    m_tree.makeFolder("disk");
    m_mounts.mountMemory(m_disk);
}

} // namespace tessera::test
