// SPDX-License-Identifier: MIT
#include "Platform/Linux/Walk/DirectoryReader.h"

#include "Platform/Linux/Files/FileDescriptor.h"
#include "support/Machine/TempTree.h"
#include "support/Machine/WalkTree.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <string>
#include <vector>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using Kind = DirectoryListing::Kind;

class DirectoryReaderTest : public testing::Test {
protected:
    FileDescriptor open() const
    {
        return FileDescriptor(::open(m_tree.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    }

    /// The names that are hidden.
    std::vector<std::string> hidden() const
    {
        std::vector<std::string> names;
        const DirectoryListing listing = m_reader.list(open().number()).listing;
        for (std::size_t i = 0; i < listing.size(); ++i) {
            if (listing[i].isHidden) {
                names.emplace_back(listing.name(listing[i]));
            }
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    const TempTree& tree() const { return m_tree; }
    const DirectoryReader& reader() const { return m_reader; }
    void cancel() { m_isCancelled = true; }

private:
    TempTree m_tree;
    std::atomic<bool> m_isCancelled{false};
    DirectoryReader m_reader{ItemKeys::SizeAndHidden, m_isCancelled};
};

TEST_F(DirectoryReaderTest, ListsInTheOrderOfInodes)
{
    for (int i = 0; i < 200; ++i) {
        tree().makeFile(std::to_string(i));
    }
    const DirectoryListing listing = reader().list(open().number()).listing;
    ASSERT_EQ(listing.size(), 200U);
    for (std::size_t i = 1; i < listing.size(); ++i) {
        EXPECT_LE(listing[i - 1].inode, listing[i].inode);
    }
}

TEST_F(DirectoryReaderTest, AFileThatVanishedAfterItWasListedIsGone)
{
    tree().makeFile("file");
    const FileDescriptor folder = open();
    DirectoryListing listing = reader().list(folder.number()).listing;
    tree().removeFile("file");
    EXPECT_EQ(reader().readStatus(folder.number(), listing, 0, listing.size()), 0);
    EXPECT_TRUE(listing[0].isGone);
}

TEST_F(DirectoryReaderTest, AFileThatTurnedIntoAFolderIsAFolderOfNoSize)
{
    tree().makeFile("item", 5000);
    const FileDescriptor folder = open();
    DirectoryListing listing = reader().list(folder.number()).listing;
    tree().removeFile("item");
    tree().makeFolder("item");
    EXPECT_EQ(reader().readStatus(folder.number(), listing, 0, listing.size()), 0);
    EXPECT_EQ(listing[0].kind, Kind::Directory);
    EXPECT_EQ(listing[0].allocatedBytes, 0U);
}

TEST_F(DirectoryReaderTest, AKindThatTheListingDoesNotNameIsLookedUp)
{
    tree().makeFolder("folder");
    tree().makeFile("file", 5000);
    DirectoryListing listing;
    listing.append("folder", 1, Kind::Unknown);
    listing.append("file", 2, Kind::Unknown);
    EXPECT_EQ(reader().readStatus(open().number(), listing, 0, listing.size()), 0);
    EXPECT_EQ(listing[0].kind, Kind::Directory);
    EXPECT_EQ(listing[1].kind, Kind::Other);
    EXPECT_EQ(listing[1].allocatedBytes, tree().allocatedBytes("file"));
}

TEST_F(DirectoryReaderTest, WithoutKeysOnlyUnknownKindsAreLookedUp)
{
    const std::atomic<bool> isCancelled{false};
    const DirectoryReader listsOnly(ItemKeys::None, isCancelled);
    DirectoryListing listing;
    listing.append("regular", 1, Kind::Regular);
    listing.append("unknown", 2, Kind::Unknown);
    EXPECT_FALSE(listsOnly.needsStatus(listing[0]));
    EXPECT_TRUE(listsOnly.needsStatus(listing[1]));
}

TEST_F(DirectoryReaderTest, StopsListingWhenItIsCancelled)
{
    tree().makeFile("file");
    cancel();
    EXPECT_EQ(reader().list(open().number()).listing.size(), 0U);
}

TEST_F(DirectoryReaderTest, ALeadingDotHides)
{
    tree().makeFile(".dot");
    tree().makeFile("plain");
    EXPECT_THAT(hidden(), ElementsAre(".dot"));
}

TEST_F(DirectoryReaderTest, TheHiddenFileHidesWhatItLists)
{
    tree().makeFile("listed");
    tree().makeFolder("folder");
    tree().makeFile("plain");
    tree().writeFile(".hidden", "listed\nfolder\n\nnot there");
    EXPECT_THAT(hidden(), ElementsAre(".hidden", "folder", "listed"));
}

TEST_F(DirectoryReaderTest, TheHiddenFileOfACrowdedFolderHidesWhatItLists)
{
    for (int i = 0; i < 200; ++i) {
        tree().makeFile("file" + std::to_string(i));
    }
    tree().writeFile(".hidden", "file7\nfile\n19\nfile199");
    EXPECT_THAT(hidden(), ElementsAre(".hidden", "file199", "file7"));
}

TEST_F(DirectoryReaderTest, OnlyAWholeLineIsAName)
{
    for (const char* name : {"first", "irs", "second", "seco", "last", "st"}) {
        tree().makeFile(name);
    }
    tree().writeFile(".hidden", "first\nsecond\nlast");
    EXPECT_THAT(hidden(), ElementsAre(".hidden", "first", "last", "second"));
}

TEST_F(DirectoryReaderTest, ANameOfTwoLinesIsNotListedByTwoLines)
{
    tree().makeFile("a\nb");
    tree().writeFile(".hidden", "a\nb\n");
    EXPECT_THAT(hidden(), ElementsAre(".hidden"));
}

/// Processor time of this thread in seconds, of what is done five times.
template <typename Work>
double processorTimeOf(Work work)
{
    constexpr double kNanosecondsPerSecond = 1e9;
    const auto now = [] {
        timespec time{};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec)
            + static_cast<double>(time.tv_nsec) / kNanosecondsPerSecond;
    };
    const double begin = now();
    for (int i = 0; i < 5; ++i) {
        work();
    }
    return now() - begin;
}

/// How much longer the lines of the longest list take to sort than such a folder to list.
class LongHiddenFile : public DirectoryReaderTest {
protected:
    double sortingOverListing(int files)
    {
        std::vector<std::string> lines(32768, "x");
        std::string text;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            lines[i][0] = static_cast<char>('a' + i % 26);
            text += lines[i] + '\n';
        }
        for (int i = 0; i < files; ++i) {
            tree().makeFile("file" + std::to_string(i));
        }
        tree().writeFile(".hidden", text);
        const double sorting = processorTimeOf([lines] {
            std::vector<std::string> sorted = lines;
            std::sort(sorted.begin(), sorted.end());
            EXPECT_EQ(sorted.front(), "a");
        });
        return sorting / processorTimeOf([this] { EXPECT_EQ(hidden().size(), 1U); });
    }
};

TEST_F(LongHiddenFile, CostsASmallFolderLessThanSortingItsLines)
{
    EXPECT_GT(sortingOverListing(1), 4);
}

TEST_F(LongHiddenFile, CostsAFolderOfFortyFilesLessThanSortingItsLines)
{
    EXPECT_GT(sortingOverListing(40), 4);
}

/// The names from "file1" to "file<last>" that a list of "file<from>" to "file<to>" hides.
class NumberedFiles : public DirectoryReaderTest {
protected:
    std::vector<std::string> hiddenOf(int last, int from, int to)
    {
        std::string lines = "\n\nfile\n";
        for (int i = from; i <= to; ++i) {
            lines += "file" + std::to_string(i) + "\n";
            lines += "file" + std::to_string(i) + "\n";
        }
        lines.pop_back();
        tree().writeFile(".hidden", lines);
        for (int i = 1; i <= last; ++i) {
            tree().makeFile("file" + std::to_string(i));
        }
        return hidden();
    }
};

TEST_F(NumberedFiles, OfTheLinesOfALongListAreHidden)
{
    for (const int count : {31, 32, 33, 100}) {
        EXPECT_THAT(
            hiddenOf(count, 30, 9000),
            testing::AllOf(
                testing::SizeIs(static_cast<std::size_t>(count - 28)),
                testing::Contains("file30"),
                testing::Contains("file" + std::to_string(count))))
            << count;
    }
}

TEST_F(NumberedFiles, OfTheLinesOfAShortListAreHiddenInALargeFolder)
{
    EXPECT_THAT(hiddenOf(1000, 999, 1001), ElementsAre(".hidden", "file1000", "file999"));
}

TEST_F(NumberedFiles, AreSeenWhereALongListNamesOthersOnly)
{
    EXPECT_THAT(hiddenOf(100, 101, 9000), ElementsAre(".hidden"));
}

TEST_F(DirectoryReaderTest, TheHiddenFilesLastLineNeedsNoEnd)
{
    tree().makeFile("listed");
    tree().writeFile(".hidden", "other\nlisted");
    EXPECT_THAT(hidden(), ElementsAre(".hidden", "listed"));
}

TEST_F(DirectoryReaderTest, AHiddenFileHidesNothingBelowItsFolder)
{
    tree().makeFolder("folder");
    tree().makeFile("folder/listed");
    tree().writeFile(".hidden", "listed\n");
    EXPECT_FALSE(itemAt(walkTree(tree().path()), "folder/listed").isHidden);
}

TEST_F(DirectoryReaderTest, AHiddenFileThatIsALinkIsNotHeeded)
{
    tree().makeFile("listed");
    tree().writeFile("list", "listed\n");
    tree().makeSymbolicLink(".hidden", "list");
    EXPECT_THAT(hidden(), ElementsAre(".hidden"));
}

TEST_F(DirectoryReaderTest, AHiddenFileThatIsAFifoDoesNotStopTheWalk)
{
    tree().makeFile("listed");
    tree().makeFifo(".hidden");
    EXPECT_THAT(hidden(), ElementsAre(".hidden"));
}

TEST_F(DirectoryReaderTest, OnlyTheFirst64KiBOfAHiddenFileCount)
{
    tree().makeFile("early");
    tree().makeFile("late");
    tree().writeFile(".hidden", "early\n" + std::string(65536 - 7, 'x') + "\nlate\n");
    EXPECT_THAT(hidden(), ElementsAre(".hidden", "early"));
}

} // namespace
} // namespace tessera::test
