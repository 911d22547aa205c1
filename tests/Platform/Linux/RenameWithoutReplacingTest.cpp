// SPDX-License-Identifier: MIT
#include "Platform/Linux/renameWithoutReplacing.h"

#include "support/TrashFixture.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <string>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Rename = int (*)(const FolderEntry& from, const FolderEntry& to);

/// Both ways to move an item, which keep the same promise.
class RenameBy : public testing::TestWithParam<Rename> {
protected:
    RenameBy()
    {
        m_tree.makeFolder("from");
        m_tree.makeFolder("to");
    }

    int rename(const std::string& name, const std::string& newName) const
    {
        const FileDescriptor from(::open(m_from.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        const FileDescriptor to(::open(m_to.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        return GetParam()({from, name}, {to, newName});
    }

    const TempTree m_tree;
    const std::string m_from = m_tree.pathOf("from");
    const std::string m_to = m_tree.pathOf("to");
};

TEST_P(RenameBy, MovesAFile)
{
    m_tree.writeFile("from/a", "content");
    EXPECT_EQ(rename("a", "b\xFF"), 0);
    EXPECT_EQ(fileContent(m_to + "/b\xFF"), "content");
    EXPECT_THAT(namesIn(m_from), IsEmpty());
}

TEST_P(RenameBy, MovesAFolderWithAllThatIsInIt)
{
    m_tree.makeFolder("from/a");
    m_tree.makeFile("from/a/file");
    EXPECT_EQ(rename("a", "b"), 0);
    EXPECT_THAT(namesIn(m_to + "/b"), ElementsAre("file"));
    EXPECT_THAT(namesIn(m_from), IsEmpty());
}

TEST_P(RenameBy, MovesALinkAndNotWhatItLeadsTo)
{
    m_tree.makeFolder("folder");
    m_tree.makeSymbolicLink("from/a", "../folder");
    EXPECT_EQ(rename("a", "b"), 0);
    EXPECT_TRUE(exists(m_to + "/b"));
    EXPECT_TRUE(exists(m_tree.pathOf("folder")));
    EXPECT_THAT(namesIn(m_from), IsEmpty());
}

TEST_P(RenameBy, NeverReplacesWhateverIsThere)
{
    m_tree.makeFile("to/file");
    m_tree.makeFolder("to/folder");
    m_tree.makeSymbolicLink("to/link", "nowhere");
    m_tree.makeFile("from/a");
    m_tree.makeFolder("from/b");
    const auto before = snapshotOf(m_tree.path());
    for (const char* taken : {"file", "folder", "link"}) {
        EXPECT_EQ(rename("a", taken), EEXIST) << taken;
        EXPECT_EQ(rename("b", taken), EEXIST) << taken;
    }
    EXPECT_EQ(snapshotOf(m_tree.path()), before);
}

TEST_P(RenameBy, LeavesNothingBehindWhenTheItemIsNotThere)
{
    EXPECT_EQ(rename("a", "b"), ENOENT);
    EXPECT_THAT(namesIn(m_to), IsEmpty());
}

TEST_P(RenameBy, LeavesNothingBehindWhenTheItemIsOnAnotherMount)
{
    if (!OwnMounts::enter()) {
        GTEST_SKIP() << "this process may not mount";
    }
    OwnMounts mounts;
    mounts.mountMemory(m_from);
    m_tree.makeFile("from/a");
    m_tree.makeFolder("from/b");
    EXPECT_EQ(rename("a", "new"), EXDEV);
    EXPECT_EQ(rename("b", "new"), EXDEV);
    EXPECT_THAT(namesIn(m_to), IsEmpty());
    EXPECT_THAT(namesIn(m_from), ElementsAre("a", "b"));
}

TEST_P(RenameBy, AFolderDoesNotMoveIntoItself)
{
    m_tree.makeFolder("to/a");
    m_tree.makeFolder("to/a/inner");
    const FileDescriptor from(::open(m_to.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    const FileDescriptor to(::open((m_to + "/a").c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    EXPECT_EQ(GetParam()({from, "a"}, {to, "b"}), EINVAL);
    EXPECT_THAT(namesIn(m_to + "/a"), ElementsAre("inner"));
}

INSTANTIATE_TEST_SUITE_P(
    Ways,
    RenameBy,
    testing::Values(renameWithoutReplacing, renameOntoPlaceholder),
    [](const auto& way) { return way.index == 0 ? "inOneStep" : "ontoPlaceholder"; });

} // namespace
} // namespace tessera::test
