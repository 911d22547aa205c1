// SPDX-License-Identifier: MIT
// Files that have several names.
#include "ItemTrasherFixture.h"

#include <string_view>

namespace tessera {
namespace {

class ItemTrasherWithNames : public test::ItemTrasherFixture {
protected:
    ItemTrasherWithNames()
    {
        LinkedNames& names = model.topFolder()->linkedNames();
        names.add(node("docs/a"), kFile, 2);
        node("c").setTotalAllocation(0);
        names.add(node("c"), kFile, 2);
    }

    /// What the step says that moves the item.
    OtherNames otherNamesOf(std::string_view path)
    {
        OtherNames said = OtherNames::None;
        QObject::connect(&trashUndo, &TrashUndo::moved, [&said](const TrashStep& step) {
            said = step.otherNames();
        });
        RecycleResult result;
        result.trashed.emplace_back();
        result.trashed.back().from = node(path).url();
        trash(path);
        EXPECT_TRUE(workspace.finishRecycling(result));
        return said;
    }

    static constexpr FileIdentity kFile{7, 50};
};

TEST_F(ItemTrasherWithNames, EachNameOfAFileSaysThatOthersStay)
{
    EXPECT_EQ(otherNamesOf("c"), OtherNames::OfTheFile);
    EXPECT_EQ(workspace.recycledBytes, 500U) << "it has no size of its own in the tree";
}

TEST_F(ItemTrasherWithNames, SoDoesTheNameThatCounts)
{
    EXPECT_EQ(otherNamesOf("docs/a"), OtherNames::OfTheFile);
}

TEST_F(ItemTrasherWithNames, AFileOfOneNameHasNoOthers)
{
    EXPECT_EQ(otherNamesOf("docs/deep/b"), OtherNames::None);
}

TEST_F(ItemTrasherWithNames, AFolderSaysThatAFileInItIsCountedElsewhere)
{
    LinkedNames& names = model.topFolder()->linkedNames();
    names.add(node(".cfg/x"), kFile, 3);
    EXPECT_EQ(otherNamesOf(".cfg"), OtherNames::OfFilesInside);
    EXPECT_EQ(workspace.recycledBytes, 15U);
}

TEST_F(ItemTrasherWithNames, SoDoesOneInWhichAFileIsCountedThatHasANameOutside)
{
    EXPECT_EQ(otherNamesOf("docs"), OtherNames::OfFilesInside);
}

TEST_F(ItemTrasherWithNames, AFolderWithAllNamesOfAFileHasNoOthers)
{
    LinkedNames& names = model.topFolder()->linkedNames();
    names.add(node(".cfg/x"), {7, 51}, 2);
    names.add(node(".cfg/.y"), {7, 51}, 2);
    EXPECT_EQ(otherNamesOf(".cfg"), OtherNames::None);
}

} // namespace
} // namespace tessera
