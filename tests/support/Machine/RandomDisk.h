// SPDX-License-Identifier: MIT
#pragma once

#include "support/Machine/TempTree.h"

#include <random>
#include <string>
#include <vector>

namespace tessera::test {

/// Fills a tree with folders, empty ones among them, files with many names, holes, symbolic links,
/// and long and odd names: the same for the same seed.
class RandomDisk {
public:
    RandomDisk(const TempTree& tree, unsigned seed)
        : m_tree(tree)
        , m_random(seed)
    {
        constexpr int kItems = 120;
        m_folders.emplace_back();
        for (int i = 0; i < kItems; ++i) {
            add();
        }
    }

private:
    void add()
    {
        const std::string name = newName();
        switch (below(5)) {
        case 0:
            m_tree.makeFolder(name);
            m_folders.push_back(name + '/');
            break;
        case 1:
            m_tree.makeSparseFile(name, below(5'000'000));
            break;
        case 2:
            m_tree.makeFile(name, below(40'000));
            m_files.push_back(name);
            break;
        case 3:
            m_tree.makeSymbolicLink(name, std::string(below(300) + 1, 'x'));
            break;
        default:
            if (!m_files.empty()) {
                m_tree.makeHardLink(name, m_files[below(static_cast<unsigned>(m_files.size()))]);
            }
        }
    }

    std::string newName()
    {
        // NOLINTNEXTLINE(misc-misleading-bidirectional): such names are what is tested
        static const std::string kRightToLeft = "\u202e";
        static const std::vector<std::string> kOdd{
            "\xff\xfe", "line\nbreak", " ", "-rf", kRightToLeft, std::string(200, 'n')};
        const std::string& folder = m_folders[below(static_cast<unsigned>(m_folders.size()))];
        return folder + std::to_string(m_count++) + kOdd[below(6)];
    }

    unsigned below(unsigned bound)
    {
        return std::uniform_int_distribution<unsigned>(0, bound - 1)(m_random);
    }

    const TempTree& m_tree;
    std::mt19937 m_random;
    std::vector<std::string> m_folders;
    std::vector<std::string> m_files;
    int m_count = 0;
};

} // namespace tessera::test
