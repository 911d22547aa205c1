// SPDX-License-Identifier: MIT
#include "Ledger/SpaceLedger.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::Optional;
using Kind = LedgerLine::Kind;

constexpr std::uint64_t kLargest = 0x7FFF'FFFF'FFFF'FFFF;

/// A disk of 1000 bytes of which 700 are used, 50 are reserved and 250 are available.
SpaceFacts disk()
{
    SpaceFacts facts;
    facts.sizes.totalBytes = 1000;
    facts.sizes.freeBytes = 300;
    facts.sizes.availableBytes = 250;
    facts.sizes.reservedBytes = 50;
    facts.files = 600;
    facts.folders = 30;
    return facts;
}

std::optional<LedgerLine> lineOf(Kind kind, const SpaceFacts& facts)
{
    for (const LedgerLine& line : spaceLedger(facts).value_or(std::vector<LedgerLine>())) {
        if (line.kind == kind) {
            return line;
        }
    }
    return std::nullopt;
}

std::int64_t bytesOf(Kind kind, const SpaceFacts& facts)
{
    const std::optional<LedgerLine> line = lineOf(kind, facts);
    return line ? line->bytes : 0;
}

/// Added up in pieces of 32 bits, so that no sum on the way is out of range.
bool addUpTo(std::uint64_t total, const std::vector<LedgerLine>& lines)
{
    constexpr int kHalf = 32;
    std::int64_t high = 0;
    std::int64_t low = 0;
    for (const LedgerLine& line : lines) {
        high += line.bytes >> kHalf;
        low += line.bytes & 0xFFFF'FFFF;
    }
    high += low >> kHalf;
    low &= 0xFFFF'FFFF;
    return high == static_cast<std::int64_t>(total >> kHalf)
        && low == static_cast<std::int64_t>(total & 0xFFFF'FFFF);
}

TEST(SpaceLedger, TellsWhereTheSpaceIs)
{
    SpaceFacts facts = disk();
    facts.heldOpen = 40;
    facts.unreadableFolders = 2;
    facts.coveredFolders = 3;
    facts.foldersLeftOut = 1;
    EXPECT_THAT(
        spaceLedger(facts),
        Optional(ElementsAre(
            LedgerLine{Kind::Files, 600},
            LedgerLine{Kind::Folders, 30},
            LedgerLine{Kind::HeldOpen, 40},
            LedgerLine{Kind::UnreadableFolders, 0, 2},
            LedgerLine{Kind::CoveredFolders, 0, 3},
            LedgerLine{Kind::FoldersLeftOut, 0, 1},
            LedgerLine{Kind::Rest, 30},
            LedgerLine{Kind::Reserved, 50},
            LedgerLine{Kind::Available, 250})));
}

TEST(SpaceLedger, WhatTellsNothingHasNoLine)
{
    SpaceFacts facts;
    facts.sizes.totalBytes = 1;
    EXPECT_THAT(
        spaceLedger(facts),
        Optional(ElementsAre(
            LedgerLine{Kind::Files},
            LedgerLine{Kind::Folders},
            LedgerLine{Kind::Rest, 1},
            LedgerLine{Kind::Available})));
}

TEST(SpaceLedger, ARestBelowNothingStaysSo)
{
    SpaceFacts facts = disk();
    facts.files = 700;
    EXPECT_EQ(bytesOf(Kind::Rest, facts), -30);
}

TEST(SpaceLedger, WhatMayBeMoreIsToldEvenIfNothingIsKnownOfIt)
{
    SpaceFacts facts = disk();
    facts.isHeldOpenAtLeast = true;
    EXPECT_THAT(lineOf(Kind::HeldOpen, facts), Optional(LedgerLine{Kind::HeldOpen, 0, 0, true}));
    EXPECT_THAT(lineOf(Kind::Rest, facts), Optional(LedgerLine{Kind::Rest, 70}));
}

/// Measured on a disk that reserves 62 %: what df says of it, and what du found.
TEST(SpaceLedger, OfARealDiskLeavesAFewBlocks)
{
    SpaceFacts facts;
    facts.sizes.totalBytes = 270'553'174'016;
    facts.sizes.availableBytes = 75'530'309'632;
    facts.sizes.reservedBytes = 167'807'893'504;
    facts.files = 27'214'942'208;
    EXPECT_EQ(bytesOf(Kind::Rest, facts), 28'672);
}

TEST(SpaceLedger, AlwaysAddsUpToTheSizeOfTheDisk)
{
    std::mt19937_64 random(20240607); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same each time
    int accounts = 0;
    for (int i = 0; i < 20000; ++i) {
        const int shift = static_cast<int>(random() % 63);
        const auto size = [&] { return (random() >> 1) >> (random() % 2 == 0 ? shift : 3); };
        SpaceFacts facts;
        facts.sizes.totalBytes = size();
        facts.sizes.availableBytes = size();
        facts.sizes.reservedBytes = size();
        facts.files = size();
        facts.folders = size();
        facts.heldOpen = size();
        facts.unreadableFolders = random() % 3;
        facts.coveredFolders = random() % 3;
        if (const auto lines = spaceLedger(facts)) {
            ++accounts;
            ASSERT_TRUE(addUpTo(facts.sizes.totalBytes, *lines)) << "at " << i;
        }
    }
    EXPECT_GT(accounts, 10000);
}

TEST(SpaceLedger, WithoutASizeThereIsNoAccount)
{
    SpaceFacts facts = disk();
    facts.sizes.totalBytes = 0;
    EXPECT_FALSE(spaceLedger(facts));
    EXPECT_FALSE(spaceLedger(SpaceFacts()));
}

TEST(SpaceLedger, OfTheLargestSizesThereIsAnAccountIfOneAddsUp)
{
    constexpr std::uint64_t kLarge = kLargest - 1;
    SpaceFacts facts;
    facts.sizes.totalBytes = kLarge;
    facts.files = kLarge;
    facts.folders = kLarge;
    facts.heldOpen = 2;
    EXPECT_EQ(bytesOf(Kind::Rest, facts), -static_cast<std::int64_t>(kLargest) - 1);
    EXPECT_TRUE(addUpTo(kLarge, spaceLedger(facts).value_or(std::vector<LedgerLine>())));
    facts.heldOpen = 3;
    EXPECT_FALSE(spaceLedger(facts));
}

TEST(SpaceLedger, OfSizesThatNothingCanHaveThereIsNoAccount)
{
    const auto isRefused = [](const auto& change, std::uint64_t bytes) {
        SpaceFacts facts = disk();
        change(facts) = bytes;
        return !spaceLedger(facts);
    };
    for (const auto& change : std::vector<std::function<std::uint64_t&(SpaceFacts&)>>{
             [](SpaceFacts& facts) -> std::uint64_t& { return facts.files; },
             [](SpaceFacts& facts) -> std::uint64_t& { return facts.folders; },
             [](SpaceFacts& facts) -> std::uint64_t& { return facts.heldOpen; },
             [](SpaceFacts& facts) -> std::uint64_t& { return facts.sizes.totalBytes; },
             [](SpaceFacts& facts) -> std::uint64_t& { return facts.sizes.availableBytes; },
             [](SpaceFacts& facts) -> std::uint64_t& { return facts.sizes.reservedBytes; }}) {
        EXPECT_FALSE(isRefused(change, kLargest - 1));
        EXPECT_TRUE(isRefused(change, kLargest)) << "it may have been cut to that";
        EXPECT_TRUE(isRefused(change, kLargest + 1));
    }
}

} // namespace
} // namespace tessera
