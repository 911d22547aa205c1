// SPDX-License-Identifier: MIT
// Texts of the screens in a language whose words change with numbers and kinds.
#include "Freeing/FreedSpace.h"
#include "Freeing/FreedSpaceText.h"
#include "Language/Translations.h"
#include "TreeScreen/Trash/MoveAllReport.h"
#include "TreeScreen/Trash/NamesText.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

using Reason = KeptFiles::Reason;

class Counts : public testing::Test {
protected:
    static QString reasonFor(const KeptFiles& kept)
    {
        return freedSpaceReasons({0, 0, {kept}, false}).join(u'|');
    }

private:
    Translations m_german{{QStringLiteral("de")}};
};

TEST_F(Counts, OfFilesChangeTheVerb)
{
    EXPECT_EQ(
        reasonFor({Reason::NotLookedAt, 1, {}, {}}),
        QStringLiteral("Eine Datei wurde nicht untersucht."));
    EXPECT_EQ(
        reasonFor({Reason::NotLookedAt, 12, {}, {}}),
        QStringLiteral("12 Dateien wurden nicht untersucht."));
}

TEST_F(Counts, ChangeTheVerbAlsoWhereEnglishVerbsStay)
{
    EXPECT_EQ(
        reasonFor({Reason::NotTold, 1, {}, {}}),
        QStringLiteral("Eine Datei teilt sich möglicherweise Speicherplatz mit anderen Dateien."));
    EXPECT_EQ(
        reasonFor({Reason::NotTold, 2, {}, {}}),
        QStringLiteral("2 Dateien teilen sich möglicherweise Speicherplatz mit anderen Dateien."));
}

TEST_F(Counts, OfWhatStayedAreInTheHeadline)
{
    const QStringList two{QStringLiteral("a"), QStringLiteral("b")};
    EXPECT_EQ(
        moveAllReport({two, {}}).messageText,
        QStringLiteral("2 Objekte wurden nicht in den Papierkorb verschoben"));
}

TEST_F(Counts, OfMoreNamesFollowTheNames)
{
    EXPECT_EQ(namesText({"a", "b", "c", "d", "e"}), QStringLiteral("„a“, „b“, „c“ und 2 weitere"));
}

TEST(WithShortName, ShortensALongNameWhereverItStands)
{
    const std::string name(200, 'x');
    const QString sentence = withShortName("Vergebens: „" + name + "“.", name);
    EXPECT_EQ(sentence, QStringLiteral("Vergebens: „%1“.").arg(shortName(name)));
    EXPECT_LT(sentence.size(), 100);
}

TEST(WithShortName, LeavesASentenceWithAShortNameAlone)
{
    EXPECT_EQ(
        withShortName("'a' was not moved, because.", "a"),
        QStringLiteral("'a' was not moved, because."));
}

TEST(WithShortName, LeavesASentenceWithoutTheNameAlone)
{
    EXPECT_EQ(withShortName("Nothing.", std::string(200, 'x')), QStringLiteral("Nothing."));
}

} // namespace
} // namespace tessera
