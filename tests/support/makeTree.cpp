// SPDX-License-Identifier: MIT
#include "support/makeTree.h"

#include "Model/Document.h"

#include <charconv>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

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

std::unique_ptr<File> makeDocument(std::string_view word)
{
    const std::size_t colon = word.rfind(':');
    std::uint64_t bytes = 0;
    const std::string_view digits = word.substr(std::min(colon + 1, word.size()));
    const auto parsed = std::from_chars(digits.begin(), digits.end(), bytes);
    if (colon == std::string_view::npos || parsed.ec != std::errc{}) {
        throw std::invalid_argument("makeTree: not name:bytes: " + std::string(word));
    }
    auto document = makeNode<Document>(word.substr(0, colon));
    document->setTotalAllocation(bytes);
    return document;
}

} // namespace

std::unique_ptr<TopFolder> makeTree(std::string_view origin, std::string_view items)
{
    auto top = makeNode<TopFolder>(lastPathComponent(origin));
    top->setOrigin(std::string(origin));
    std::vector<std::unique_ptr<Folder>> open;
    const auto current = [&]() -> Folder& { return open.empty() ? *top : *open.back(); };
    for (const std::string_view word : words(items)) {
        if (word == "(") {
            continue;
        }
        if (word == ")") {
            std::unique_ptr<Folder> done = std::move(open.back());
            open.pop_back();
            current().addChild(std::move(done));
            continue;
        }
        const bool hidden = word.front() == '.';
        if (word.back() == '/') {
            open.push_back(makeNode<Folder>(word.substr(0, word.size() - 1)));
            open.back()->setHidden(hidden);
            continue;
        }
        current().addChild(makeDocument(word)).setHidden(hidden);
    }
    if (!open.empty()) {
        throw std::invalid_argument("makeTree: a folder is not closed");
    }
    top->sort();
    return top;
}

File& at(Folder& folder, std::string_view path)
{
    Folder* current = &folder;
    while (current != nullptr) {
        const std::size_t slash = path.find('/');
        const std::string_view name = path.substr(0, slash);
        File* found = nullptr;
        for (File* child : current->children()) {
            found = found == nullptr && child->name() == name ? child : found;
        }
        if (found != nullptr && slash == std::string_view::npos) {
            return *found;
        }
        path.remove_prefix(std::min(slash, path.size() - 1) + 1);
        current = nodeCast<Folder>(found);
    }
    throw std::invalid_argument("at: no such node");
}

} // namespace tessera::test
