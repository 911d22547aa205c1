// SPDX-License-Identifier: MIT
#include "Language/NodeName.h"

#include "Language/Translations.h"
#include "Model/Document.h"
#include "Model/FreeSpace.h"
#include "Model/TimeMachine.h"
#include "Model/Unknown.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(NodeName, OfWhatTheProgramNamesIsTheNodesOwnInEnglish)
{
    const auto space = makeNode<FreeSpace>({});
    EXPECT_EQ(shownName(*space).toStdString(), space->name());
    const auto unknown = makeNode<Unknown>({});
    EXPECT_EQ(shownName(*unknown).toStdString(), unknown->name());
    EXPECT_EQ(shownNameBytes(*unknown), unknown->name());
}

TEST(NodeName, OfWhatTheProgramNamesIsInTheUsersLanguage)
{
    const Translations translations({QStringLiteral("de")});
    const auto space = makeNode<FreeSpace>({});
    EXPECT_EQ(shownName(*space), QStringLiteral("Freier Speicherplatz"));
    EXPECT_EQ(shownNameBytes(*space), "Freier Speicherplatz");
    EXPECT_EQ(shownNameBytes(*makeNode<Unknown>({})), "Unzugängliche Dateien");
    EXPECT_EQ(space->name(), "Free Space") << "which is not for windows";
}

TEST(NodeName, OfAFileStaysWhatItIs)
{
    const Translations translations({QStringLiteral("de")});
    EXPECT_EQ(shownName(*makeNode<Document>("Free Space")), QStringLiteral("Free Space"));
    EXPECT_EQ(shownNameBytes(*makeNode<Document>("a\xFF")), "a\xFF");
}

TEST(NodeName, OfAnotherSystemsStoreStaysWhatItIs)
{
    const Translations translations({QStringLiteral("de")});
    EXPECT_EQ(shownName(*makeNode<TimeMachine>({})), QStringLiteral("Time Machine"));
}

} // namespace
} // namespace tessera
