// SPDX-License-Identifier: MIT
#include "support/TreeText.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <string>

namespace tessera::test {

namespace {

std::vector<std::string_view> words(std::string_view text)
{
    std::vector<std::string_view> result;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        if (end > 0) {
            result.push_back(text.substr(0, end));
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return result;
}

/// Takes the mark and the number behind it off the text; false when it does not begin so.
template <typename Number>
bool takeNumber(std::string_view& text, char mark, Number& number)
{
    if (text.empty() || text.front() != mark) {
        return false;
    }
    const auto parsed = std::from_chars(text.data() + 1, text.data() + text.size(), number);
    text.remove_prefix(static_cast<std::size_t>(parsed.ptr - text.data()));
    return parsed.ec == std::errc{};
}

TreeTextItem parseFile(std::string_view word)
{
    TreeTextItem item;
    const std::size_t colon = std::min(word.rfind(':'), word.size());
    std::string_view rest = word.substr(colon);
    bool isWhole = takeNumber(rest, ':', item.bytes);
    if (isWhole && !rest.empty()) {
        isWhole = takeNumber(rest, '#', item.inode) && takeNumber(rest, '/', item.linkCount);
    }
    if (!isWhole || !rest.empty()) {
        throw std::invalid_argument("tree text: not name:bytes: " + std::string(word));
    }
    item.name = word.substr(0, colon);
    return item;
}

TreeTextItem parseItem(std::string_view word)
{
    if (word.back() != '/') {
        return parseFile(word);
    }
    TreeTextItem item;
    item.name = word.substr(0, word.size() - 1);
    item.isDirectory = true;
    return item;
}

} // namespace

std::vector<TreeTextItem> parseTreeText(std::string_view text)
{
    std::vector<TreeTextItem> items;
    unsigned level = 1;
    for (const std::string_view word : words(text)) {
        if (word == "(") {
            continue;
        }
        if (word == ")") {
            --level;
            continue;
        }
        TreeTextItem item = parseItem(word);
        item.level = level;
        item.isHidden = word.front() == '.';
        level += item.isDirectory ? 1 : 0;
        items.push_back(item);
    }
    if (level != 1) {
        throw std::invalid_argument("tree text: parentheses do not match");
    }
    return items;
}

} // namespace tessera::test
