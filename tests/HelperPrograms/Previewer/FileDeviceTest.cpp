// SPDX-License-Identifier: MIT
#include "HelperPrograms/Previewer/FileDevice.h"

#include "QuickLook/Reading/FakeFileReader.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace tessera {

namespace {

constexpr std::size_t kBytes = 300'000;

class FileDeviceTest : public testing::Test {
protected:
    FileDeviceTest()
    {
        for (std::size_t i = 0; i < kBytes; ++i) {
            content += static_cast<char>(i * 7 / 5);
        }
        files.addFile("/file", content);
        file = files.open("/file").content;
    }

    std::string content;
    test::FakeFileReader files;
    std::unique_ptr<ReadableFile> file;
};

} // namespace

TEST_F(FileDeviceTest, OneReadBringsAllThatIsAskedFor)
{
    FileDevice device(*file, kBytes);

    EXPECT_EQ(device.read(kBytes).toStdString(), content);
    EXPECT_TRUE(device.atEnd());
}

TEST_F(FileDeviceTest, ReadsFromAnywhereAlsoAfterAPeek)
{
    FileDevice device(*file, kBytes);

    EXPECT_EQ(device.peek(4000).toStdString(), content.substr(0, 4000));
    EXPECT_TRUE(device.seek(200'000));
    EXPECT_EQ(device.read(10).toStdString(), content.substr(200'000, 10));
    EXPECT_TRUE(device.seek(5));
    EXPECT_EQ(device.read(10).toStdString(), content.substr(5, 10));
}

TEST_F(FileDeviceTest, SmallReadsCostFewReadsOfTheFile)
{
    FileDevice device(*file, kBytes);
    for (int i = 0; i < 1000; ++i) {
        (void)device.read(1);
    }

    EXPECT_LE(files.bytesRead(), 131'072U);
}

TEST_F(FileDeviceTest, AFileThatGoesOnEndsAtItsLength)
{
    files.addEndlessFile("/endless", 'x', 10);
    file = files.open("/endless").content;
    FileDevice device(*file, 10);

    EXPECT_EQ(device.readAll(), QByteArray(10, 'x'));
}

TEST_F(FileDeviceTest, AReadBeyondTheLengthEndsThereThoughTheFileHasGrown)
{
    FileDevice device(*file, 10);
    std::array<char, 100> room{};

    EXPECT_EQ(device.read(room.data(), room.size()), 10);
}

TEST_F(FileDeviceTest, AFileThatWasCutEndsWhereItEnds)
{
    FileDevice device(*file, kBytes + 1000);

    EXPECT_EQ(device.read(kBytes + 1000).size(), static_cast<qsizetype>(kBytes));
}

TEST_F(FileDeviceTest, AReadThatFailsFails)
{
    files.addBrokenFile("/broken", 100);
    file = files.open("/broken").content;
    FileDevice device(*file, 100);
    char byte = 'x';

    EXPECT_EQ(device.read(&byte, 1), -1);
}

} // namespace tessera
