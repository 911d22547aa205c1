// SPDX-License-Identifier: MIT
#include "Packaging/BuiltPrograms.h"
#include "support/Machine/FileContent.h"

#include <elf.h>
#include <gtest/gtest.h>
#include <link.h>

#include <algorithm>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {
namespace {

using namespace std::string_view_literals;

/// What a program's file says about the program, see elf(5).
class ElfFile {
public:
    explicit ElfFile(const std::string& path)
        : m_bytes(test::fileContent(path))
    {
        m_header = at<ElfW(Ehdr)>(0);
        for (std::size_t i = 0; i < m_header.e_phnum; ++i) {
            m_segments.push_back(at<ElfW(Phdr)>(
                m_header.e_phoff + i * static_cast<std::size_t>(m_header.e_phentsize)));
        }
        for (std::size_t i = 0; i < m_header.e_shnum; ++i) {
            m_sections.push_back(at<ElfW(Shdr)>(
                m_header.e_shoff + i * static_cast<std::size_t>(m_header.e_shentsize)));
        }
    }

    const ElfW(Ehdr) & header() const { return m_header; }

    std::optional<ElfW(Phdr)> segment(ElfW(Word) type) const
    {
        const auto found = std::ranges::find(m_segments, type, &ElfW(Phdr)::p_type);
        return found == m_segments.end() ? std::nullopt : std::optional(*found);
    }

    /// The value of an entry for the dynamic linker; 0 when there is none.
    std::uint64_t dynamicValue(std::int64_t tag) const
    {
        const std::optional<ElfW(Phdr)> segment = this->segment(PT_DYNAMIC);
        const std::size_t size = segment ? segment->p_filesz : 0;
        for (std::size_t i = 0; i < size; i += sizeof(ElfW(Dyn))) {
            const auto entry = at<ElfW(Dyn)>(segment->p_offset + i);
            if (entry.d_tag == tag) {
                return entry.d_un.d_val;
            }
        }
        return 0;
    }

    /// Whether the program asks a library for a function whose name matches.
    template <typename Matches>
    bool imports(Matches matches) const
    {
        return findSymbol(SHT_DYNSYM, [&](const ElfW(Sym) & symbol, std::string_view name) {
            return symbol.st_shndx == SHN_UNDEF && matches(name);
        });
    }

    /// Whether the code of that function begins so.
    bool functionBegins(std::string_view function, std::string_view code) const
    {
        return findSymbol(SHT_SYMTAB, [&](const ElfW(Sym) & symbol, std::string_view name) {
            return name == function && codeAt(symbol.st_value).starts_with(code);
        });
    }

    bool hasCode(std::string_view code) const
    {
        return std::ranges::any_of(m_segments, [&](const ElfW(Phdr) & segment) {
            return (segment.p_flags & PF_X) != 0
                && contentOf(segment).find(code) != std::string_view::npos;
        });
    }

private:
    template <typename Record>
    Record at(std::size_t offset) const
    {
        Record record{};
        EXPECT_LE(offset + sizeof(record), m_bytes.size());
        std::memcpy(&record, m_bytes.data() + offset, sizeof(record));
        return record;
    }

    std::string_view contentOf(const ElfW(Phdr) & segment) const
    {
        return std::string_view(m_bytes).substr(segment.p_offset, segment.p_filesz);
    }

    std::string_view codeAt(std::uint64_t address) const
    {
        for (const ElfW(Phdr) & segment : m_segments) {
            if (address >= segment.p_vaddr && address - segment.p_vaddr < segment.p_filesz) {
                return contentOf(segment).substr(address - segment.p_vaddr);
            }
        }
        return {};
    }

    template <typename Matches>
    bool findSymbol(ElfW(Word) table, Matches matches) const
    {
        const auto section = std::ranges::find(m_sections, table, &ElfW(Shdr)::sh_type);
        if (section == m_sections.end()) {
            return false;
        }
        const std::size_t names = m_sections[section->sh_link].sh_offset;
        for (std::size_t i = 0; i < section->sh_size; i += sizeof(ElfW(Sym))) {
            const auto symbol = at<ElfW(Sym)>(section->sh_offset + i);
            if (matches(symbol, std::string_view(m_bytes.c_str() + names + symbol.st_name))) {
                return true;
            }
        }
        return false;
    }

    std::string m_bytes;
    ElfW(Ehdr) m_header{};
    std::vector<ElfW(Phdr)> m_segments;
    std::vector<ElfW(Shdr)> m_sections;
};

class Hardening : public testing::TestWithParam<std::string> {
protected:
    ElfFile program{GetParam()};
};

TEST_P(Hardening, TheProgramIsLoadedWhereTheSystemLikes)
{
    EXPECT_EQ(program.header().e_type, ET_DYN);
    EXPECT_NE(program.dynamicValue(DT_FLAGS_1) & DF_1_PIE, 0U);
}

TEST_P(Hardening, TheTableOfForeignFunctionsIsReadOnlyBeforeTheProgramStarts)
{
    EXPECT_TRUE(program.segment(PT_GNU_RELRO).has_value());
    EXPECT_NE(program.dynamicValue(DT_FLAGS_1) & DF_1_NOW, 0U);
}

TEST_P(Hardening, TheStackHoldsNoCode)
{
    ASSERT_TRUE(program.segment(PT_GNU_STACK).has_value());
    EXPECT_EQ(program.segment(PT_GNU_STACK)->p_flags & PF_X, 0U);
}

TEST_P(Hardening, AnOverwrittenStackEndsTheProgram)
{
    EXPECT_TRUE(program.imports([](std::string_view name) { return name == "__stack_chk_fail"; }));
}

TEST_P(Hardening, CallsThatWouldOverrunABufferAreChecked)
{
    EXPECT_TRUE(program.imports(
        [](std::string_view name) { return name.starts_with("__") && name.ends_with("_chk"); }));
}

TEST_P(Hardening, MistakesWithTheStandardLibraryEndTheProgram)
{
    EXPECT_TRUE(program.imports([](std::string_view name) {
        return name.find("__glibcxx_assert_fail") != std::string_view::npos;
    }));
}

#ifdef __x86_64__
TEST_P(Hardening, FunctionsAreMarkedAsTargetsOfJumps)
{
    EXPECT_TRUE(program.functionBegins("main", "\xF3\x0F\x1E\xFA")); // endbr64
}
#endif

#ifdef __x86_64__
/// Not every program has a function that puts more than a page onto the stack.
TEST(HardeningOfAll, LargeStackFramesAreTouchedPageByPage)
{
    const std::vector<std::string> all = test::builtPrograms();
    EXPECT_TRUE(std::ranges::any_of(all, [](const std::string& path) {
        const ElfFile program(path);
        // GCC's and Clang's way of touching the top of the stack.
        return program.hasCode("\x48\x83\x0C\x24\x00"sv)
            || program.hasCode("\x48\xC7\x04\x24\x00\x00\x00\x00"sv);
    }));
}
#endif

INSTANTIATE_TEST_SUITE_P(
    Programs,
    Hardening,
    testing::ValuesIn(test::builtPrograms()),
    [](const testing::TestParamInfo<std::string>& program) {
        std::string name = program.param.substr(program.param.rfind('/') + 1);
        std::ranges::replace(name, '-', '_');
        return name;
    });

} // namespace
} // namespace tessera
