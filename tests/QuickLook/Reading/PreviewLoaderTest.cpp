// SPDX-License-Identifier: MIT
#include "QuickLook/Reading/PreviewLoader.h"

#include "DeadMounts/QuestionThreads.h"
#include "QuickLook/Reading/FakeFileReader.h"
#include "QuickLook/Reading/FakeRasterDecoder.h"
#include "support/Machine/WithoutThreads.h"

#include <QTest>

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tessera {

namespace {

using namespace std::chrono_literals;

class PreviewLoaderTest : public testing::Test {
protected:
    PreviewLoaderTest()
    {
        for (int i = 0; i < 8; ++i) {
            files->addFile(path(i), "text " + std::to_string(i));
        }
    }

    ~PreviewLoaderTest() override
    {
        for (int i = 0; i < 8; ++i) {
            files->release(path(i));
        }
        if (loader != nullptr) {
            loader->cancel();
        }
        EXPECT_TRUE(threads->waitForAll(60s));
    }

    static std::string path(int number) { return "/" + std::to_string(number); }

    void load(int number) const { loader->load({path(number), false, QSize(10, 10), 10}); }

    void holdUp(int number) const
    {
        files->holdUp(path(number));
        load(number);
    }

    bool cancelAndWait() const
    {
        loader->cancel();
        return threads->waitForAll(60s);
    }

    bool waitFor(std::size_t count) const
    {
        return QTest::qWaitFor([&] { return shown.size() >= count; }, 60000);
    }

    std::vector<QString> shown;
    std::shared_ptr<test::FakeFileReader> files = std::make_shared<test::FakeFileReader>();
    std::shared_ptr<test::FakeRasterDecoder> decoder = std::make_shared<test::FakeRasterDecoder>();
    std::shared_ptr<QuestionThreads> threads = QuestionThreads::make();
    std::unique_ptr<PreviewLoader> loader
        = std::make_unique<PreviewLoader>(files, decoder, threads, [this](const Preview& preview) {
              shown.push_back(std::get<PreviewText>(preview.content).text);
          });
};

} // namespace

TEST_F(PreviewLoaderTest, BringsWhatWasAskedFor)
{
    load(1);
    EXPECT_TRUE(loader->isLoading());

    ASSERT_TRUE(waitFor(1));
    EXPECT_EQ(shown, std::vector{QStringLiteral("text 1")});
    EXPECT_FALSE(loader->isLoading());
}

TEST_F(PreviewLoaderTest, AFileThatDoesNotAnswerHoldsUpNoOther)
{
    holdUp(1);
    load(2);

    ASSERT_TRUE(waitFor(1));
    EXPECT_EQ(shown, std::vector{QStringLiteral("text 2")});
}

TEST_F(PreviewLoaderTest, ALateResultIsDropped)
{
    holdUp(1);
    files->waitUntilAsked(path(1));
    load(2);
    ASSERT_TRUE(waitFor(1));

    files->release(path(1));
    load(3);

    ASSERT_TRUE(waitFor(2));
    EXPECT_EQ(shown.back(), QStringLiteral("text 3"));
    EXPECT_TRUE(cancelAndWait());
    QCoreApplication::processEvents();
    EXPECT_EQ(shown.size(), 2U);
}

TEST_F(PreviewLoaderTest, AResultThatHasArrivedIsDroppedWhenAnotherIsAskedFor)
{
    load(1);
    // The event that brings it waits for the loop.
    ASSERT_TRUE(threads->waitForAll(60s));
    load(2);

    ASSERT_TRUE(waitFor(1));
    EXPECT_EQ(shown, std::vector{QStringLiteral("text 2")});
}

TEST_F(PreviewLoaderTest, WhatIsCancelledIsNotBrought)
{
    holdUp(1);
    files->waitUntilAsked(path(1));
    loader->cancel();
    files->release(path(1));

    EXPECT_TRUE(cancelAndWait());
    QCoreApplication::processEvents();
    EXPECT_TRUE(shown.empty());
}

TEST_F(PreviewLoaderTest, WhenManyAreStuckTheNewestWaitsForOne)
{
    for (int i = 0; i < 4; ++i) {
        holdUp(i);
        files->waitUntilAsked(path(i));
    }
    load(5);
    load(6);
    EXPECT_EQ(files->opened().size(), 4U);

    files->release(path(2));

    ASSERT_TRUE(waitFor(1));
    EXPECT_EQ(shown, std::vector{QStringLiteral("text 6")});
    EXPECT_EQ(files->opened().back(), path(6));
    EXPECT_EQ(files->opened().size(), 5U);
}

TEST_F(PreviewLoaderTest, ACancelledLookThatIsStuckStillHasItsThread)
{
    holdUp(1);
    files->waitUntilAsked(path(1));
    loader->cancel();

    EXPECT_FALSE(threads->waitForAll(0ms));
}

TEST_F(PreviewLoaderTest, AStuckLookMayOutliveItsLoader)
{
    holdUp(1);
    files->waitUntilAsked(path(1));
    loader.reset();
    const std::weak_ptr<const FileReader> reader = files;

    std::exchange(files, std::make_shared<test::FakeFileReader>())->release(path(1));

    EXPECT_TRUE(QTest::qWaitFor([&] { return reader.expired(); }, 60000));
    EXPECT_TRUE(shown.empty());
}

TEST_F(PreviewLoaderTest, DecodingsThatNeverEndLeaveTheirPlacesToOthers)
{
    decoder->neverEnd();
    // As many as may be under way at once.
    for (int i = 0; i < 4; ++i) {
        files->addFile(path(i), "%PDF-1.4");
        load(i);
        decoder->waitUntilAsked(static_cast<std::size_t>(i) + 1);
    }
    load(5);

    ASSERT_TRUE(waitFor(1));
    EXPECT_EQ(shown, std::vector{QStringLiteral("text 5")});
}

TEST_F(PreviewLoaderTest, ACancelledDecodingIsToldToEnd)
{
    decoder->neverEnd();
    files->addFile(path(1), "%PDF-1.4");
    load(1);
    decoder->waitUntilAsked(1);

    EXPECT_TRUE(cancelAndWait());
    QCoreApplication::processEvents();
    EXPECT_TRUE(shown.empty());
}

TEST_F(PreviewLoaderTest, ALoaderThatGoesAwayEndsItsDecoding)
{
    decoder->neverEnd();
    files->addFile(path(1), "%PDF-1.4");
    load(1);
    decoder->waitUntilAsked(1);
    loader.reset();

    EXPECT_TRUE(threads->waitForAll(60s));
}

TEST_F(PreviewLoaderTest, WhereThereIsNoThreadBringsThat)
{
    std::error_code brought;
    const bool isDone = test::withoutThreads([&] {
        PreviewLoader withoutThreads(files, decoder, threads, [&brought](const Preview& preview) {
            brought = preview.file.error;
        });
        withoutThreads.load({path(1), false, QSize(10, 10), 10});
        QCoreApplication::sendPostedEvents(&withoutThreads);
        EXPECT_FALSE(withoutThreads.isLoading());
    });
    EXPECT_TRUE(isDone);
    EXPECT_EQ(brought, std::errc::resource_unavailable_try_again);
}

TEST_F(PreviewLoaderTest, WhatThereWasNoThreadForTakesNoPlaceAndIsNotWaitedFor)
{
    const bool isDone = test::withoutThreads([&] {
        int brought = 0;
        PreviewLoader withoutThreads(files, decoder, threads, [&](const Preview&) { ++brought; });
        // More than may be under way at once.
        for (int i = 0; i < 5; ++i) {
            withoutThreads.load({path(i), false, QSize(10, 10), 10});
            QCoreApplication::sendPostedEvents(&withoutThreads);
        }
        EXPECT_EQ(brought, 5);
        EXPECT_TRUE(threads->waitForAll(0ms));
    });
    EXPECT_TRUE(isDone);
}

} // namespace tessera
