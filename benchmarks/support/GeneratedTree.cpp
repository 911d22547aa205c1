// SPDX-License-Identifier: MIT
#include "support/GeneratedTree.h"

#include "Model/Document.h"

#include <array>
#include <cmath>
#include <random>
#include <string>

namespace tessera::bench {

namespace {

constexpr unsigned kSeed = 20231;
constexpr std::size_t kItemsPerFolder = 17;
constexpr int kCrowdedFolders = 3;
constexpr std::size_t kCrowdedShare = 10;
constexpr int kChains = 20;
constexpr int kChainDepth = 200;
constexpr std::size_t kMaxSubfolders = 12;
constexpr std::uint64_t kBlock = 4096;

class Generator {
public:
    std::unique_ptr<Document> file()
    {
        const std::size_t number = ++m_made;
        auto document
            = makeNode<Document>("file-" + std::to_string(number) + m_endings[number % 4]);
        document->setTotalAllocation(
            (static_cast<std::uint64_t>(m_size(m_random)) / kBlock + 1) * kBlock);
        return document;
    }

    std::unique_ptr<Folder> folder(std::string_view prefix)
    {
        return makeNode<Folder>(std::string(prefix) + std::to_string(++m_made));
    }

    void addFiles(Folder& folder, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i) {
            folder.addChild(file());
        }
    }

    void addChain(Folder& top)
    {
        auto inner = folder("link-");
        addFiles(*inner, 1);
        for (int depth = 1; depth < kChainDepth; ++depth) {
            auto outer = folder("link-");
            outer->addChild(std::move(inner));
            inner = std::move(outer);
        }
        top.addChild(std::move(inner));
    }

    /// Folders in folders until `items` are used up; a few levels deep, for shares shrink quickly.
    void fill(Folder& parent, std::size_t items)
    {
        const std::size_t files = std::min(items, m_count(m_random));
        addFiles(parent, files);
        std::size_t left = items - files;
        while (left > 0) {
            const std::size_t share
                = std::min(left, std::max<std::size_t>(kItemsPerFolder, items / kMaxSubfolders));
            auto nested = folder("folder-");
            fill(*nested, share - 1);
            parent.addChild(std::move(nested));
            left -= share;
        }
    }

private:
    std::size_t m_made = 0;
    std::mt19937 m_random{kSeed};
    std::uniform_int_distribution<std::size_t> m_count{kItemsPerFolder - 6, kItemsPerFolder + 8};
    std::lognormal_distribution<double> m_size{9, 2};
    std::array<std::string, 4> m_endings = {".txt", ".jpeg", "", ".so.1.2.3"};
};

} // namespace

std::unique_ptr<TopFolder> generateTree(std::size_t items)
{
    Generator generator;
    auto top = makeNode<TopFolder>("generated");
    top->setOrigin("/generated");
    std::size_t left = items;
    for (int i = 0; i < kCrowdedFolders; ++i) {
        auto crowded = generator.folder(kCrowdedPrefix);
        generator.addFiles(*crowded, items / kCrowdedShare);
        top->addChild(std::move(crowded));
        left -= items / kCrowdedShare;
    }
    const std::size_t chainItems = std::size_t{kChains} * kChainDepth;
    if (left > chainItems) {
        for (int i = 0; i < kChains; ++i) {
            generator.addChain(*top);
        }
        left -= chainItems;
    }
    generator.fill(*top, left);
    top->sort();
    return top;
}

std::unique_ptr<TopFolder> generateFlatFolder(std::size_t files)
{
    Generator generator;
    auto top = makeNode<TopFolder>("flat");
    top->setOrigin("/flat");
    generator.addFiles(*top, files);
    top->sort();
    return top;
}

} // namespace tessera::bench
