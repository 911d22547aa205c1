// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/TrashSentences.h"

#include "Platform/Linux/Trash/TrashItem.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

#include <cerrno>

namespace tessera {
namespace {

TEST(TrashSentence, HasTheNamesAtItsPlaces)
{
    EXPECT_EQ(trashSentence("'%1' and %2, %1.", "a", "b"), "'a' and b, a.");
}

TEST(TrashSentence, TakesNoNameForAPlace)
{
    EXPECT_EQ(trashSentence("'%1' (%2).", "%2 %1", "%1"), "'%2 %1' (%1).");
}

TEST(TrashSentence, KeepsNamesThatAreNoText)
{
    EXPECT_EQ(trashSentence("'%1'", "a\xFF"), "'a\xFF'");
}

TEST(TrashSentence, KeepsOtherPercentSigns)
{
    EXPECT_EQ(trashSentence("100% of %1: 5%", "a"), "100% of a: 5%");
}

/// A language that puts the name elsewhere.
class OtherLanguage final : public QTranslator {
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* /*text*/, const char* /*comment*/, int /*n*/)
        const override
    {
        return QLatin1String(context) == QLatin1String(kTrashSentences)
            ? QStringLiteral("Vergebens: „%1“")
            : QString();
    }
};

TEST(TrashSentence, IsInTheUsersLanguage)
{
    OtherLanguage language;
    QCoreApplication::installTranslator(&language);
    EXPECT_EQ(trashErrorSentence("a\xFF", EBUSY), "Vergebens: „a\xFF“");
    EXPECT_EQ(refusalSentence(TrashRefusal::MountPoint, "a"), "Vergebens: „a“");
}

TEST(TrashSentence, SaysWhatTheSystemSaysWhereNothingElseIsKnown)
{
    EXPECT_EQ(trashErrorSentence("a", EIO), "'a' was not moved to the trash: Input/output error.");
}

TEST(TrashSentence, OfARefusalNamesItsOwnReason)
{
    EXPECT_EQ(
        refusalSentence(TrashRefusal::OtherItem, "a"),
        "'a' cannot be moved to the trash, because something else is called so now.");
    EXPECT_EQ(
        refusalSentence(TrashRefusal::HomeFolder, "a"),
        "'a' cannot be moved to the trash, because your home folder is there.");
    EXPECT_EQ(
        refusalSentence(TrashRefusal::InTrash, "a"),
        "'a' cannot be moved to the trash, because it is in the trash already.");
}

} // namespace
} // namespace tessera
