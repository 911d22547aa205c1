// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/LinuxFileSystemAttributes.h"

#include <gtest/gtest.h>
#include <sys/statvfs.h>

#include <cerrno>
#include <future>
#include <memory>

namespace tessera {
namespace {

std::shared_ptr<const FileSystemQuestions> questions(std::chrono::milliseconds patience)
{
    return std::make_shared<const FileSystemQuestions>(patience);
}

TEST(LinuxFileSystemAttributes, GivesTheTotalThatStatvfsGives)
{
    struct statvfs values { };
    ASSERT_EQ(::statvfs("/", &values), 0);
    const auto sizes
        = LinuxFileSystemAttributes(questions(std::chrono::minutes(1))).attributesOfFileSystem("/");
    ASSERT_TRUE(sizes.has_value());
    EXPECT_EQ(sizes->totalBytes, std::uint64_t{values.f_blocks} * values.f_frsize);
    EXPECT_LE(sizes->freeBytes, sizes->totalBytes);
}

TEST(LinuxFileSystemAttributes, GivesNothingForAPathThatIsNotThere)
{
    EXPECT_FALSE(LinuxFileSystemAttributes(questions(std::chrono::minutes(1)))
                     .attributesOfFileSystem("/no/such/path")
                     .has_value());
}

TEST(LinuxFileSystemAttributes, AFileSystemThatDoesNotAnswerCountsAsMissing)
{
    const auto release = std::make_shared<std::promise<void>>();
    const std::shared_future<void> released = release->get_future().share();
    const LinuxFileSystemAttributes attributes(
        questions(std::chrono::milliseconds(1)), [released](const std::string&, FileSystemSizes&) {
            released.wait();
            return 0;
        });
    EXPECT_FALSE(attributes.attributesOfFileSystem("/").has_value());
    release->set_value();
}

} // namespace
} // namespace tessera
