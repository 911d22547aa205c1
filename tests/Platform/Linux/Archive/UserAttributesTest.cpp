// SPDX-License-Identifier: MIT
#include "Platform/Linux/Archive/UserAttributes.h"

#include "Platform/Linux/Files/FileDescriptor.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/xattr.h>

#include <cerrno>
#include <string>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class UserAttributesOfAFile : public testing::Test {
protected:
    void SetUp() override
    {
        tree.makeFile("file");
        file = FileDescriptor(::open(tree.pathOf("file").c_str(), O_RDONLY | O_CLOEXEC));
        if (!set("user.probe", "") || ::fremovexattr(file.number(), "user.probe") != 0) {
            GTEST_SKIP() << "no extended attributes on " << tree.path();
        }
    }

    bool set(const char* name, const std::string& value) const
    {
        return ::fsetxattr(file.number(), name, value.data(), value.size(), 0) == 0;
    }

    TempTree tree;
    FileDescriptor file;
};

TEST_F(UserAttributesOfAFile, AreNoneAtFirst)
{
    const UserAttributes found = readUserAttributes(file.number());
    EXPECT_EQ(found.error, 0);
    EXPECT_THAT(found.attributes, IsEmpty());
}

TEST_F(UserAttributesOfAFile, ComeInTheOrderOfTheirNamesWithoutTheNamespace)
{
    ASSERT_TRUE(set("user.z", "last") && set("user.a.b", "first") && set("user.m", ""));
    EXPECT_THAT(
        readUserAttributes(file.number()).attributes,
        ElementsAre(
            ExtendedAttribute{"a.b", "first"},
            ExtendedAttribute{"m", ""},
            ExtendedAttribute{"z", "last"}));
}

TEST_F(UserAttributesOfAFile, HaveValuesOfAnyBytes)
{
    const std::string value("a\0\n\xFF", 4);
    ASSERT_TRUE(set("user.bytes", value));
    EXPECT_EQ(readUserAttributes(file.number()).attributes.at(0).value, value);
}

TEST_F(UserAttributesOfAFile, AreThoseOfUsersAlone)
{
    if (!set("trusted.tessera", "value")) {
        GTEST_SKIP() << "only the super-user can set another attribute";
    }
    ASSERT_TRUE(set("user.own", "value"));
    EXPECT_THAT(
        readUserAttributes(file.number()).attributes,
        ElementsAre(ExtendedAttribute{"own", "value"}));
}

TEST(UserAttributes, AFileSystemWithoutAttributesHasNone)
{
    const FileDescriptor file(::open("/proc/self/status", O_RDONLY | O_CLOEXEC));
    const UserAttributes found = readUserAttributes(file.number());
    EXPECT_EQ(found.error, 0);
    EXPECT_THAT(found.attributes, IsEmpty());
}

TEST(UserAttributes, AnErrorIsTold)
{
    EXPECT_EQ(readUserAttributes(-1).error, EBADF);
}

} // namespace
} // namespace tessera::test
