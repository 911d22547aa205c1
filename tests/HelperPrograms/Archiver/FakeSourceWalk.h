// SPDX-License-Identifier: MIT
#pragma once

#include "HelperPrograms/Archiver/SourceWalk.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace tessera::test {

/// Delivers prepared steps.
class FakeSourceWalk final : public SourceWalk {
public:
    struct Prepared {
        Step step = Step::Item;
        ArchiveItem item;
        std::string content; ///< of which the item's length need not be true
        int error = 0; ///< of a failed step, or of reading when the content ends
    };

    void add(Prepared prepared) { m_steps.push_back(std::move(prepared)); }

    void addFolder(const std::string& path)
    {
        Prepared prepared;
        prepared.item.path = path;
        prepared.item.kind = ArchiveItem::Kind::Folder;
        prepared.item.permissions = 0755;
        add(prepared);
    }

    /// The content's length is the announced one.
    void addFile(const std::string& path, const std::string& content)
    {
        Prepared prepared;
        prepared.item.path = path;
        prepared.item.permissions = 0644;
        prepared.item.length = content.size();
        prepared.content = content;
        add(prepared);
    }

    void addStep(Step step, const std::string& path, int error = 0)
    {
        Prepared prepared;
        prepared.step = step;
        prepared.item.path = path;
        prepared.error = error;
        add(prepared);
    }

    std::size_t delivered() const { return m_next; }

    void passOver(const FileIdentity& /*file*/) override { }
    int error() const override { return m_steps[m_next - 1].error; }

    [[nodiscard]] Step next(ArchiveItem& item) override
    {
        m_position = 0;
        if (m_next == m_steps.size()) {
            return Step::End;
        }
        item = m_steps[m_next].item;
        return m_steps[m_next++].step;
    }

    [[nodiscard]] ContentPart read(std::span<char> buffer) override
    {
        const Prepared& current = m_steps[m_next - 1];
        const std::size_t length = std::min(buffer.size(), current.content.size() - m_position);
        std::copy_n(&current.content[m_position], length, buffer.begin());
        m_position += length;
        return {length, length == 0 ? current.error : 0};
    }

private:
    std::vector<Prepared> m_steps;
    std::size_t m_next = 0;
    std::size_t m_position = 0;
};

} // namespace tessera::test
