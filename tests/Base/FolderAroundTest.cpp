// SPDX-License-Identifier: MIT
#include "Base/FolderAround.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(FolderAround, IsThePathWithoutItsLastName)
{
    EXPECT_EQ(folderAround("/home/me/a b"), "/home/me");
}

TEST(FolderAround, OfWhatLiesInTheRootIsTheRoot)
{
    EXPECT_EQ(folderAround("/home"), "/");
    EXPECT_EQ(folderAround("/"), "/");
}

TEST(FolderAround, OfNothingIsNothing)
{
    EXPECT_EQ(folderAround(""), "");
}

} // namespace
} // namespace tessera
