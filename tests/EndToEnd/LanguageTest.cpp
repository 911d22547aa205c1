// SPDX-License-Identifier: MIT
// The program of a user who reads German, in a German locale.
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Session/WholeProgramFixture.h"

#include <algorithm>

namespace tessera::test {
namespace {

class GermanProgram : public WholeProgram {
protected:
    void prepareSession() override
    {
        session->setVariable("LC_ALL", "de_DE.UTF-8");
        session->setVariable("LANGUAGE", "de");
    }

    /// Waits until assistive technology finds a text that begins like this.
    testing::AssertionResult tells(const std::string& role, const std::string& beginning)
    {
        return eventually([&] {
            return std::ranges::any_of(reader().all(role), [&](const Control& control) {
                return control.name.starts_with(beginning);
            });
        })
            ? testing::AssertionSuccess()
            : failure("no " + role + " begins with '" + beginning + "'");
    }
};

TEST_F(GermanProgram, BeginsWithAGermanHomeScreen)
{
    see("Einlesen", "push button");
    see("Ordner öffnen\u00A0…", "push button");
    EXPECT_TRUE(tells("label", "Zuletzt eingelesen"));
}

TEST_F(GermanProgram, HasGermanMenus)
{
    see("Einlesen", "push button");
    desk().typeKeys({key::kAlt, 'd'});
    ASSERT_TRUE(opens(XWindow::Kind::Menu));
    EXPECT_TRUE(tells("menu item", "Einstellungen\u00A0…"));
    desk().typeKey(key::kEscape);
}

TEST_F(GermanProgram, ShowsSizesAndCountsAsGermansWriteThem)
{
    desk().doubleClick(see("Documents", "filler").frame.center());
    EXPECT_TRUE(tells("label", "Documents, 1,4\u00A0MB, 4 Objekte"));
    desk().typeKey(key::kDown);
    EXPECT_TRUE(tells("label", "drafts, 504\u00A0kB, 2 Objekte, 37,0\u00A0% von Documents"));
}

TEST_F(GermanProgram, WarnsInGermanBeforeAHiddenItemMoves)
{
    desk().doubleClick(see("Documents", "filler").frame.center());
    ASSERT_TRUE(showsTree("Documents"));
    desk().click(placeOf(".outline"));
    desk().typeKey(key::kDelete);
    see("Warnung", "alert message");
    see("In den Papierkorb verschieben", "push button");
    see("Abbrechen", "push button");
    EXPECT_TRUE(rejectDialog());
}

/// LANGUAGE goes before the locale, as other programs have it.
class EnglishProgramInGermany : public WholeProgram {
    void prepareSession() override
    {
        session->setVariable("LC_ALL", "de_DE.UTF-8");
        session->setVariable("LANGUAGE", "en_GB:de");
    }
};

TEST_F(EnglishProgramInGermany, IsEnglishAndWritesNumbersAsGermansDo)
{
    ASSERT_TRUE(isHome());
    desk().doubleClick(see("Documents", "filler").frame.center());
    see("Documents, 1,4 MB, 4 items", "label");
}

} // namespace
} // namespace tessera::test
