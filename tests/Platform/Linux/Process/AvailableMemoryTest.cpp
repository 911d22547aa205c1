// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/AvailableMemory.h"

#include "support/Machine/TempTree.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/sysinfo.h>

#include <limits>
#include <string>

namespace tessera {
namespace {

constexpr std::uint64_t kNoLimit = std::numeric_limits<std::uint64_t>::max();

/// A system with as much memory as a test says.
class AvailableMemory : public testing::Test {
protected:
    AvailableMemory()
    {
        for (const char* folder :
             {"proc",
              "proc/self",
              "sys",
              "sys/fs",
              "sys/fs/cgroup",
              "sys/fs/cgroup/outer",
              "sys/fs/cgroup/outer/inner"}) {
            tree.makeFolder(folder);
        }
    }

    void haveMachine() const
    {
        tree.writeFile(
            "proc/meminfo",
            "MemTotal:        8000 kB\nMemFree:  1000 kB\nHugePages_Total:       0\n"
            "MemAvailable:    4000 kB\n");
    }

    void haveGroup(const std::string& group, const std::string& limit, const std::string& used)
    {
        tree.writeFile("proc/self/cgroup", "1:name=systemd:/none\n0::/outer/inner\n");
        tree.writeFile("sys/fs/cgroup/" + group + "/memory.max", limit + '\n');
        tree.writeFile("sys/fs/cgroup/" + group + "/memory.current", used + '\n');
    }

    void haveReclaimable(const std::string& group, const std::string& bytesOfFiles) const
    {
        tree.writeFile(
            "sys/fs/cgroup/" + group + "/memory.stat",
            "anon 70000\nfile 900000\ninactive_file " + bytesOfFiles
                + "\nactive_file 2000\nunevictable 5000\nslab_reclaimable 300\n"
                  "slab_unreclaimable 40000\nslab 40300\n");
    }

    std::uint64_t available() const { return availableMemory(tree.path()); }

    test::TempTree tree;
};

TEST_F(AvailableMemory, IsWhatTheMachineCanGive)
{
    haveMachine();
    EXPECT_EQ(available(), 4'096'000U);
}

TEST_F(AvailableMemory, IsUnlimitedWhereTheSystemTellsNothing)
{
    EXPECT_EQ(available(), kNoLimit);
}

TEST_F(AvailableMemory, IsNoMoreThanTheProcesssGroupHasLeft)
{
    haveMachine();
    haveGroup("outer/inner", "3000000", "1000000");
    EXPECT_EQ(available(), 2'000'000U);
}

TEST_F(AvailableMemory, IsNoMoreThanAnOuterGroupHasLeft)
{
    haveMachine();
    haveGroup("outer/inner", "max", "1000000");
    haveGroup("outer", "1000000", "999999");
    EXPECT_EQ(available(), 1U);
}

TEST_F(AvailableMemory, IsNothingInAGroupThatHasMoreThanItMay)
{
    haveMachine();
    haveGroup("outer/inner", "1000000", "1000001");
    EXPECT_EQ(available(), 0U);
}

TEST_F(AvailableMemory, HoldsWhatAGroupKeepsOfFiles)
{
    haveMachine();
    haveGroup("outer/inner", "3000000", "3000000");
    haveReclaimable("outer/inner", "1000000");
    EXPECT_EQ(available(), 1'002'300U);
}

TEST_F(AvailableMemory, IsNoMoreThanAGroupsLimitHoweverMuchItSaysItKeeps)
{
    haveMachine();
    haveGroup("outer/inner", "1000000", "500000");
    haveReclaimable("outer/inner", "600000");
    EXPECT_EQ(available(), 1'000'000U);
}

TEST_F(AvailableMemory, IsNoMoreThanTheProcessMayHave)
{
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_AS, &before), 0);
    constexpr rlim_t kLimit = rlim_t{1} << 46U; // more than this test needs with sanitizers
    const rlimit limit{kLimit, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_AS, &limit), 0);
    EXPECT_EQ(available(), kLimit);
    ::setrlimit(RLIMIT_AS, &before);
}

TEST(AvailableMemoryHere, IsSomeOfTheMachines)
{
    struct sysinfo machine { };
    ASSERT_EQ(::sysinfo(&machine), 0);
    EXPECT_GT(availableMemory(), 0U);
    EXPECT_LT(availableMemory(), std::uint64_t{machine.totalram} * machine.mem_unit);
}

} // namespace
} // namespace tessera
