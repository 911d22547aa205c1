// SPDX-License-Identifier: MIT
#include "Base/PathHash.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(PathHash, IsTheSameEverywhere)
{
    EXPECT_EQ(PathHash("/").value(), 0xaf63a24c860189fe);
    EXPECT_EQ(PathHash("foobar").value(), 0x3452fba7168b5725);
}

TEST(PathHash, OfAFolderInsideIsThatOfItsWholePath)
{
    EXPECT_EQ(PathHash("/a").of("b").of("c").value(), PathHash("/a/b/c").value());
    EXPECT_EQ(PathHash("/").of("a").value(), PathHash("/a").value());
}

TEST(PathHash, TellsWhereOneNameEndsAndTheNextBegins)
{
    EXPECT_NE(PathHash("/").of("ab").of("c").value(), PathHash("/").of("a").of("bc").value());
}

} // namespace
} // namespace tessera
