// SPDX-License-Identifier: MIT
#include "Desktop/UserAccount.h"

#include <gtest/gtest.h>

#include <utility>

namespace tessera {
namespace {

class FakeAccount final : public UserAccount {
public:
    explicit FakeAccount(std::optional<PasswordEntry> entry)
        : m_entry(std::move(entry))
    {
    }

    std::optional<PasswordEntry> realUser() const override { return m_entry; }
    std::string homeDirectory() const override { return "/root"; }
    std::uint32_t userNumber() const override { return 0; }

private:
    std::optional<PasswordEntry> m_entry;
};

TEST(RealUser, IsThatOfThePasswordDatabase)
{
    const FakeAccount account(PasswordEntry{"ada", "/home/ada"});
    EXPECT_EQ(realUserName(account), "ada");
    EXPECT_EQ(realHomeDirectory(account), "/home/ada");
}

TEST(RealUserDeathTest, AMissingEntryStopsTheProcess)
{
    const FakeAccount account(std::nullopt);
    EXPECT_DEATH((void)realUserName(account), "\\(pw\\), function realUserName");
    EXPECT_DEATH((void)realHomeDirectory(account), "\\(pw\\), function realHomeDirectory");
}

} // namespace
} // namespace tessera
