// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/Reading/FileReader.h"

#include <condition_variable>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace tessera::test {

/// Items in memory. Opening some of them takes until the test releases them, as with a network
/// mount whose server is gone. Callable from any thread.
class FakeFileReader final : public FileReader {
public:
    FakeFileReader() = default;
    FakeFileReader(const FakeFileReader&) = delete;
    FakeFileReader& operator=(const FakeFileReader&) = delete;
    ~FakeFileReader() override;

    void addFile(const std::string& path, const std::string& content);
    /// Its content never ends, and its length is what the system would say.
    void addEndlessFile(const std::string& path, char byte, std::uint64_t length);
    /// Gives the file, which is there already, these bytes at its begin.
    void setBeginning(const std::string& path, const std::string& beginning);
    void addUnreadableFile(const std::string& path, std::uint64_t length);
    /// It can be opened, but reading it fails behind what is readable of it.
    void addBrokenFile(
        const std::string& path, std::uint64_t length, const std::string& readable = {});
    void addSpecial(const std::string& path, FileKind kind, const std::string& linkTarget = {});

    void holdUp(const std::string& path);
    void release(const std::string& path);
    /// Waits until somebody is held up at the path.
    void waitUntilAsked(const std::string& path);

    std::vector<std::string> opened() const;
    /// How many bytes were read of all files together.
    std::uint64_t bytesRead() const;

    [[nodiscard]] OpenedFile open(const std::string& path) const override;

private:
    struct Item {
        FileDescription description;
        std::error_code contentError;
        std::string content;
        std::string beginning; ///< instead of as much of the content
        bool isEndless = false;
        bool isBroken = false;
    };
    class Content;

    static Item regularItem(std::uint64_t length);
    void add(const std::string& path, Item item);

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_changed;
    std::map<std::string, Item> m_items;
    std::set<std::string> m_heldUp;
    mutable std::vector<std::string> m_opened;
    mutable std::uint64_t m_bytesRead = 0;
};

} // namespace tessera::test
