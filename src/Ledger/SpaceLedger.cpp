// SPDX-License-Identifier: MIT
#include "Ledger/SpaceLedger.h"

#include "Model/Allocation.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace tessera {

namespace {

using Kind = LedgerLine::Kind;
using Amounts = std::array<std::pair<Kind, std::uint64_t>, 5>;

/// All that is known in bytes.
Amounts amountsOf(const SpaceFacts& facts)
{
    return {
        {{Kind::Files, facts.files},
         {Kind::Folders, facts.folders},
         {Kind::HeldOpen, facts.heldOpen},
         {Kind::Reserved, facts.sizes.reservedBytes},
         {Kind::Available, facts.sizes.availableBytes}}};
}

/// Sizes are cut to the largest on their way here, so that one is nobody's figure.
bool isFigure(std::uint64_t bytes)
{
    return bytes < kMaxAllocation;
}

/// Nothing where the numbers leave no room for it.
std::optional<std::int64_t> restOf(std::uint64_t total, const Amounts& amounts)
{
    using Limits = std::numeric_limits<std::int64_t>;
    if (total == 0 || !isFigure(total)) {
        return std::nullopt;
    }
    auto rest = static_cast<std::int64_t>(total);
    for (const auto& [kind, bytes] : amounts) {
        if (!isFigure(bytes) || rest < Limits::min() + static_cast<std::int64_t>(bytes)) {
            return std::nullopt;
        }
        rest -= static_cast<std::int64_t>(bytes);
    }
    return rest;
}

bool tellsSomething(const LedgerLine& line)
{
    const bool isAlwaysTold = line.kind == Kind::Files || line.kind == Kind::Folders
        || line.kind == Kind::Rest || line.kind == Kind::Available;
    return isAlwaysTold || line.bytes != 0 || line.count != 0 || line.isAtLeast;
}

} // namespace

std::optional<std::vector<LedgerLine>> spaceLedger(const SpaceFacts& facts)
{
    const Amounts amounts = amountsOf(facts);
    const std::optional<std::int64_t> rest = restOf(facts.sizes.totalBytes, amounts);
    if (!rest) {
        return std::nullopt;
    }
    std::vector<LedgerLine> lines;
    for (const auto& [kind, bytes] : amounts) {
        lines.push_back({kind, static_cast<std::int64_t>(bytes)});
    }
    lines.push_back({Kind::UnreadableFolders, 0, facts.unreadableFolders});
    lines.push_back({Kind::CoveredFolders, 0, facts.coveredFolders});
    lines.push_back({Kind::FoldersLeftOut, 0, facts.foldersLeftOut});
    lines.push_back({Kind::Rest, *rest});
    for (LedgerLine& line : lines) {
        line.isAtLeast = line.kind == Kind::HeldOpen && facts.isHeldOpenAtLeast;
    }
    std::erase_if(lines, [](const LedgerLine& line) { return !tellsSomething(line); });
    std::ranges::sort(lines, {}, &LedgerLine::kind);
    return lines;
}

} // namespace tessera
