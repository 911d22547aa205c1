// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/LinuxUserAccount.h"

#include <QString>

#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <optional>
#include <thread>

namespace tessera {
namespace {

TEST(LinuxUserAccount, TheRealUserIsThatOfTheRealUserId)
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): no other thread asks
    const struct passwd* const entry = ::getpwuid(::getuid());
    ASSERT_NE(entry, nullptr);
    const auto user = LinuxUserAccount().realUser();
    ASSERT_TRUE(user.has_value());
    EXPECT_EQ(user->name, entry->pw_name);
    EXPECT_EQ(user->directory, entry->pw_dir);
}

TEST(LinuxUserAccount, TheUsersNumberIsThatOfWhoseRightsTheProcessHas)
{
    EXPECT_EQ(LinuxUserAccount().userNumber(), ::geteuid());
}

/// Only the one thread that asks the kernel itself gets another real user id.
TEST(LinuxUserAccount, TheRealUserIsNotTheOneWhoseRightsTheProcessHas)
{
    if (::geteuid() != 0) {
        GTEST_SKIP() << "needs the super-user's rights";
    }
    // NOLINTNEXTLINE(concurrency-mt-unsafe): no other thread asks
    const struct passwd* const nobody = ::getpwnam("nobody");
    ASSERT_NE(nobody, nullptr);
    const uid_t real = nobody->pw_uid;
    std::optional<PasswordEntry> user;
    bool isOther = false;
    std::thread([&] {
        isOther = ::syscall(SYS_setresuid, real, 0, 0) == 0;
        user = LinuxUserAccount().realUser();
    }).join();
    ASSERT_TRUE(isOther);
    ASSERT_TRUE(user.has_value());
    EXPECT_EQ(user->name, "nobody");
}

class HomeDirectory : public testing::Test {
protected:
    void SetUp() override { m_before = qgetenv("HOME"); }
    void TearDown() override { qputenv("HOME", m_before); }

    QByteArray m_before;
};

TEST_F(HomeDirectory, IsWhatTheEnvironmentSays)
{
    qputenv("HOME", "/elsewhere\xFF");
    EXPECT_EQ(LinuxUserAccount().homeDirectory(), "/elsewhere\xFF");
}

TEST_F(HomeDirectory, HasNoSlashAtItsEnd)
{
    qputenv("HOME", "/elsewhere//");
    EXPECT_EQ(LinuxUserAccount().homeDirectory(), "/elsewhere");
    qputenv("HOME", "/");
    EXPECT_EQ(LinuxUserAccount().homeDirectory(), "/");
}

TEST_F(HomeDirectory, IsThatOfThePasswordDatabaseWithoutAnEnvironment)
{
    qunsetenv("HOME");
    // NOLINTNEXTLINE(concurrency-mt-unsafe): no other thread asks
    EXPECT_EQ(LinuxUserAccount().homeDirectory(), ::getpwuid(::geteuid())->pw_dir);
}

} // namespace
} // namespace tessera
