// SPDX-License-Identifier: MIT
#include "Platform/Linux/Walk/FolderHandles.h"

#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <cerrno>

namespace tessera::test {
namespace {

/// The walk's first folder with "a", "a/b" and "a/b/c" below it, of which two may be open.
class FolderHandlesTest : public testing::Test {
protected:
    static constexpr std::size_t kCapacity = 2;

    FolderHandlesTest()
    {
        for (const std::string name : {"a", "a/b", "a/b/c"}) {
            m_tree.makeFolder(name);
        }
        keep(m_start, "");
        keep(m_a, "a");
        keep(m_b, "a/b");
        keep(m_c, "a/b/c");
    }

    void keep(WalkFolder& folder, std::string_view name)
    {
        const std::string path = m_tree.pathOf(name);
        auto handle = std::make_shared<const FileDescriptor>(
            ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        folder.identity = statusOf(handle->number()).status.identity;
        m_handles.keep(folder, std::move(handle), 2);
    }

    FileIdentity identityByHandle(WalkFolder& folder)
    {
        const FolderHandle handle = m_handles.handleOf(folder).handle;
        return handle == nullptr ? FileIdentity{} : statusOf(handle->number()).status.identity;
    }

    const TempTree& tree() const { return m_tree; }
    FolderHandles& handles() { return m_handles; }
    WalkFolder& a() { return m_a; }
    WalkFolder& b() { return m_b; }
    WalkFolder& c() { return m_c; }

private:
    TempTree m_tree;
    FolderHandles m_handles{kCapacity};
    WalkFolder m_start{nullptr, 0, ""};
    WalkFolder m_a{&m_start, 0, "a"};
    WalkFolder m_b{&m_a, 0, "b"};
    WalkFolder m_c{&m_b, 0, "c"};
};

TEST_F(FolderHandlesTest, TheOneOpenedFirstIsClosedForAnother)
{
    EXPECT_EQ(a().handle, nullptr);
    EXPECT_NE(b().handle, nullptr);
    EXPECT_NE(c().handle, nullptr);
}

TEST_F(FolderHandlesTest, AFolderThatWasClosedIsOpenedAnew)
{
    EXPECT_EQ(identityByHandle(a()), a().identity);
}

TEST_F(FolderHandlesTest, AFolderIsOpenedAnewThroughThoseAbove)
{
    handles().drop(c());
    handles().drop(b());
    EXPECT_EQ(identityByHandle(b()), b().identity);
}

TEST_F(FolderHandlesTest, AFolderThatWasMovedIsNotOpenedAnew)
{
    tree().rename("a", "moved");
    EXPECT_EQ(handles().handleOf(a()).handle, nullptr);
    EXPECT_EQ(handles().handleOf(a()).error, ENOENT);
}

TEST_F(FolderHandlesTest, AnotherFolderInItsPlaceIsNotTaken)
{
    tree().rename("a", "moved");
    tree().makeFolder("a");
    EXPECT_EQ(handles().handleOf(a()).handle, nullptr);
    EXPECT_EQ(handles().handleOf(a()).error, ENOENT);
}

TEST_F(FolderHandlesTest, AnOpenFolderIsReachedWhereverItWasMoved)
{
    tree().rename("a", "moved");
    EXPECT_EQ(identityByHandle(c()), c().identity);
}

TEST_F(FolderHandlesTest, TheLastReleaseClosesAFolder)
{
    handles().release(c());
    EXPECT_NE(c().handle, nullptr);
    handles().release(c());
    EXPECT_EQ(c().handle, nullptr);
}

} // namespace
} // namespace tessera::test
