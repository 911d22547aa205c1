// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/PreviewerPath.h"

#include "support/Machine/TempTree.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

class PreviewerPath : public testing::Test {
protected:
    PreviewerPath() { tree.makeFolder("bin"); }

    std::string programs() const { return tree.pathOf("bin"); }

    void makeBeside(mode_t mode)
    {
        tree.makeFile("bin/tessera-preview");
        tree.setMode("bin/tessera-preview", mode);
    }

    test::TempTree tree;
};

} // namespace

TEST_F(PreviewerPath, OfAnInstalledProgramLiesBelowLibexec)
{
    EXPECT_EQ(findPreviewer(programs()), tree.pathOf("libexec/tessera/tessera-preview"));
}

TEST_F(PreviewerPath, BesideTheProgramComesFirst)
{
    makeBeside(0700);
    EXPECT_EQ(findPreviewer(programs()), programs() + "/tessera-preview");
}

TEST_F(PreviewerPath, PassesOverWhatIsNoProgram)
{
    makeBeside(0600);
    EXPECT_EQ(findPreviewer(programs()), tree.pathOf("libexec/tessera/tessera-preview"));
}

} // namespace tessera
