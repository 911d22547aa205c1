// SPDX-License-Identifier: MIT
#include "Platform/Linux/FreedesktopTrash.h"

#include "support/TempTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

std::string contentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A home with a trash of its own, and items beside it on the same mount.
class FreedesktopTrashOfAHome : public testing::Test {
protected:
    FreedesktopTrashOfAHome()
    {
        m_tree.makeFolder("home");
        m_tree.makeFolder("work");
    }

    std::string move(const std::string& name, bool isDirectory = false)
    {
        const Url url(m_tree.pathOf(name), isDirectory);
        const RecycleResult result = m_trash.recycle({url});
        m_newPath = result.error.empty() ? result.newUrls.at(url.absoluteString()).path() : "";
        return result.error;
    }

    const test::TempTree m_tree;
    const std::string m_homeTrash = m_tree.pathOf("home/.local/share/Trash");
    const FreedesktopTrash m_trash{{::geteuid(), m_homeTrash, {m_tree.pathOf("home")}}};
    std::string m_newPath;
};

TEST_F(FreedesktopTrashOfAHome, AFileMovesIntoATrashThatIsMadeForIt)
{
    m_tree.writeFile("work/a", "content");
    EXPECT_EQ(move("work/a"), "");
    EXPECT_EQ(m_newPath, m_homeTrash + "/files/a");
    EXPECT_EQ(contentOf(m_newPath), "content");
    EXPECT_FALSE(std::filesystem::exists(m_tree.pathOf("work/a")));
}

TEST_F(FreedesktopTrashOfAHome, TheInfoFileSaysWhereItWas)
{
    m_tree.makeFile("work/a b\n\xFF");
    EXPECT_EQ(move("work/a b\n\xFF"), "");
    EXPECT_THAT(
        contentOf(m_homeTrash + "/info/a b\n\xFF.trashinfo"),
        StartsWith("[Trash Info]\nPath=" + m_tree.pathOf("work/") + "a%20b%0A%FF\nDeletionDate="));
}

} // namespace
} // namespace tessera
