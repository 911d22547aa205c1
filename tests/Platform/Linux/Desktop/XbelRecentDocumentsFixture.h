// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Desktop/XbelRecentDocuments.h"
#include "support/Fakes/FakeUserDefaults.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <thread>

namespace tessera::test {

inline constexpr const char* kListHead = R"(<?xml version="1.0" encoding="UTF-8"?>
<xbel version="1.0"
      xmlns:bookmark="http://www.freedesktop.org/standards/desktop-bookmarks"
      xmlns:mime="http://www.freedesktop.org/standards/shared-mime-info">
)";

/// An entry as other programs write it; `extra` stands among its applications.
inline std::string foreignEntry(const std::string& uri, const std::string& extra = {})
{
    return R"(  <bookmark href=")" + uri
        + R"(" added="2020-01-02T03:04:05Z" modified="2020-01-02T03:04:06Z" visited="2020-01-02T03:04:07Z">
    <title>A title</title>
    <info>
      <metadata owner="http://freedesktop.org">
        <mime:mime-type type="text/plain"/>
        <bookmark:groups>
          <bookmark:group>Text</bookmark:group>
        </bookmark:groups>
        <bookmark:applications>
          <bookmark:application name="editor" exec="&apos;editor %u&apos;" modified="2020-01-02T03:04:06Z" count="3"/>
)" + extra
        + R"(        </bookmark:applications>
        <bookmark:private/>
      </metadata>
    </info>
  </bookmark>
)";
}

/// A list in a folder of its own.
class XbelRecentDocumentsOnDisk : public testing::Test {
protected:
    void SetUp() override
    {
        std::string pattern = testing::TempDir() + "xbel-XXXXXX";
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        m_folder = pattern;
        m_file = m_folder / "data" / "recently-used.xbel";
    }

    void TearDown() override { std::filesystem::remove_all(m_folder); }

    /// A clock that stands still unless a test moves it.
    XbelRecentDocuments documents()
    {
        return {m_file.string(), m_settings, m_questions, [this] {
                    m_thread = std::this_thread::get_id();
                    return m_now;
                }};
    }

    Url makeFolder(const std::string& name) const
    {
        std::filesystem::create_directories(m_folder / name);
        return {(m_folder / name).string(), true};
    }

    void writeFile(const std::string& content) const
    {
        std::filesystem::create_directories(m_file.parent_path());
        std::ofstream(m_file, std::ios::binary) << content;
    }

    static std::string readFile(const std::filesystem::path& path)
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::filesystem::path m_folder;
    std::filesystem::path m_file;
    std::chrono::microseconds m_now{1700000000000000};
    std::thread::id m_thread; ///< that looked at the clock
    FakeUserDefaults m_settings;
    std::shared_ptr<const FileSystemQuestions> m_questions
        = std::make_shared<const FileSystemQuestions>(std::chrono::minutes(1));
};

} // namespace tessera::test
