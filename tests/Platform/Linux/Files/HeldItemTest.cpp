// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/HeldItem.h"

#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdint>
#include <optional>

namespace tessera::test {
namespace {

class HeldItemTest : public testing::Test {
protected:
    const TempTree m_tree;
    const FileDescriptor m_folder{::open(m_tree.path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)};
};

TEST_F(HeldItemTest, WhatIsNotThereIsNotHeld)
{
    EXPECT_EQ(holdItemAt(m_folder, "a").error, ENOENT);
}

TEST_F(HeldItemTest, ALinkIsHeldAndNotWhatItLeadsTo)
{
    m_tree.makeFolder("folder");
    m_tree.makeSymbolicLink("link", "folder");
    const HeldItem item = holdItemAt(m_folder, "link");
    EXPECT_EQ(item.error, 0);
    EXPECT_FALSE(item.status.isDirectory);
}

TEST_F(HeldItemTest, APipeThatNobodyWritesToIsHeldAtOnce)
{
    m_tree.makeFifo("pipe");
    EXPECT_EQ(holdItemAt(m_folder, "pipe").error, 0);
}

TEST_F(HeldItemTest, TheTimeOfBirthStaysOverARename)
{
    m_tree.makeFile("a");
    const std::optional<std::uint64_t> birth = holdItemAt(m_folder, "a").birth;
    m_tree.rename("a", "b");
    EXPECT_EQ(holdItemAt(m_folder, "b").birth, birth);
}

TEST_F(HeldItemTest, AnItemThatTookTheNameIsAnother)
{
    m_tree.makeFile("a");
    const HeldItem item = holdItemAt(m_folder, "a");
    EXPECT_FALSE(isAnotherItemAt(m_folder, "a", item.held));
    m_tree.rename("a", "b");
    EXPECT_FALSE(isAnotherItemAt(m_folder, "a", item.held)) << "nothing is there";
    EXPECT_FALSE(isAnotherItemAt(m_folder, "b", item.held));
    m_tree.makeFile("a");
    EXPECT_TRUE(isAnotherItemAt(m_folder, "a", item.held));
}

} // namespace
} // namespace tessera::test
