// SPDX-License-Identifier: MIT
#include "QuickLook/Summary.h"

#include <gtest/gtest.h>

namespace tessera {

namespace {

class SummaryTest : public testing::Test {
protected:
    static QString valueOf(const Summary& summary, const QString& title)
    {
        for (const Summary::Row& row : summary.rows) {
            if (row.title == title) {
                return row.value;
            }
        }
        return {};
    }

    ItemFacts facts{"/a.iso", QStringLiteral("a.iso"), 4096, std::nullopt};
    Preview preview;
};

} // namespace

TEST_F(SummaryTest, BeforeTheLookItSaysWhatTheTreeKnows)
{
    const Summary summary = summaryOf(facts, nullptr);

    EXPECT_EQ(summary.name, QStringLiteral("a.iso"));
    EXPECT_EQ(valueOf(summary, QStringLiteral("Size on disk")), QStringLiteral("4 KB"));
    EXPECT_EQ(summary.note, QString::fromUtf8("Loading…"));
}

TEST_F(SummaryTest, TellsTheLengthOfAFileFromWhatItOccupies)
{
    preview.file.kind = FileKind::Regular;
    preview.file.length = 5'000'000'000;

    const Summary summary = summaryOf(facts, &preview);

    EXPECT_EQ(valueOf(summary, QStringLiteral("Length")), QStringLiteral("5.0 GB"));
    EXPECT_EQ(valueOf(summary, QStringLiteral("Size on disk")), QStringLiteral("4 KB"));
    EXPECT_EQ(summary.note, QString());
}

TEST_F(SummaryTest, HasNoRowForWhatIsNotKnown)
{
    preview.file.kind = FileKind::Fifo;
    preview.kind = QStringLiteral("pipe");

    const Summary summary = summaryOf(facts, &preview);

    ASSERT_EQ(summary.rows.size(), 2U);
    EXPECT_EQ(summary.rows[0].title, QStringLiteral("Kind"));
    EXPECT_EQ(summary.rows[0].value, QStringLiteral("Pipe"));
    EXPECT_EQ(summary.rows[1].title, QStringLiteral("Size on disk"));
}

TEST_F(SummaryTest, WritesDatesAsDays)
{
    preview.file.modified = 1'700'000'000;
    preview.file.created = 1'600'000'000;

    const Summary summary = summaryOf(facts, &preview);

    EXPECT_TRUE(valueOf(summary, QStringLiteral("Modified")).contains(QStringLiteral("2023")));
    EXPECT_TRUE(valueOf(summary, QStringLiteral("Created")).contains(QStringLiteral("2020")));
}

TEST_F(SummaryTest, TheFirstSecondOf1970IsNoCreationDate)
{
    preview.file.modified = 0;
    preview.file.created = 0;

    const Summary summary = summaryOf(facts, &preview);

    EXPECT_TRUE(valueOf(summary, QStringLiteral("Created")).isEmpty());
    EXPECT_FALSE(valueOf(summary, QStringLiteral("Modified")).isEmpty());
}

TEST_F(SummaryTest, TheSecondsAroundItAre)
{
    for (const int created : {-1, 1}) {
        preview.file.created = created;
        const Summary summary = summaryOf(facts, &preview);
        EXPECT_FALSE(valueOf(summary, QStringLiteral("Created")).isEmpty()) << created;
    }
}

TEST_F(SummaryTest, TheCaptionSaysWhenATextGoesOn)
{
    preview.kind = QStringLiteral("plain text document");
    preview.content = PreviewText{QStringLiteral("x"), true};

    EXPECT_EQ(
        captionOf(facts, preview),
        QString::fromUtf8("Plain text document  ·  4 KB  ·  first 66 KB shown"));
}

TEST_F(SummaryTest, TheCaptionSaysHowManyPagesAreShown)
{
    preview.content = PreviewPages{std::vector<QImage>(10), 240};

    EXPECT_TRUE(captionOf(facts, preview).endsWith(QStringLiteral("first 10 shown")));
    EXPECT_TRUE(captionOf(facts, preview).contains(QStringLiteral("240 pages")));
}

TEST_F(SummaryTest, SaysThatContentTookTooMuchOrIsDamaged)
{
    for (const RasterOutcome outcome : {RasterOutcome::CutShort, RasterOutcome::Refused}) {
        preview.decoding = outcome;
        EXPECT_EQ(
            summaryOf(facts, &preview).note,
            QStringLiteral("It is damaged, or takes too much memory or time to be shown."));
    }
}

TEST_F(SummaryTest, SaysThatTheDecodingProgramCannotBeStarted)
{
    preview.decoding = RasterOutcome::NotStarted;

    EXPECT_EQ(
        summaryOf(facts, &preview).note,
        QStringLiteral("It cannot be shown: the program tessera-preview cannot be started."));
}

} // namespace tessera
