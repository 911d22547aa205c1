// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/HelpFolder.h"

#include "support/Machine/TempTree.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tessera {
namespace {

class HelpFolder : public testing::Test {
protected:
    HelpFolder() { std::filesystem::create_directories(programs()); }

    std::string root() const { return tree.path(); }
    std::string programs() const { return root() + "/bin"; }

    static void make(const std::string& folder) { std::filesystem::create_directories(folder); }

    test::TempTree tree;
};

} // namespace

TEST_F(HelpFolder, OfAnInstalledProgramLiesBelowShare)
{
    make(root() + "/share/tessera/help");
    EXPECT_EQ(findHelpFolder(programs()), root() + "/share/tessera/help");
}

TEST_F(HelpFolder, BesideTheProgramComesFirst)
{
    make(root() + "/share/tessera/help");
    make(programs() + "/help");
    EXPECT_EQ(findHelpFolder(programs()), programs() + "/help");
}

TEST_F(HelpFolder, IsEmptyWhereNoneIsInstalled)
{
    EXPECT_EQ(findHelpFolder(programs()), "");
}

} // namespace tessera
