// SPDX-License-Identifier: MIT
#include "About/LibraryVersion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(LibraryVersion, ALineIsANameAndAVersion)
{
    EXPECT_THAT(
        readLibraryVersions("libarchive 3.6.2\nQt Pdf 6.4\n"),
        ElementsAre(LibraryVersion{"libarchive", "3.6.2"}, LibraryVersion{"Qt Pdf", "6.4"}));
    EXPECT_THAT(readLibraryVersions("a 1"), ElementsAre(LibraryVersion{"a", "1"}));
}

TEST(LibraryVersion, OtherLinesAreLeftOut)
{
    EXPECT_THAT(readLibraryVersions(""), IsEmpty());
    EXPECT_THAT(readLibraryVersions("usage\n\n 1\na \n"), IsEmpty());
}

} // namespace
} // namespace tessera
