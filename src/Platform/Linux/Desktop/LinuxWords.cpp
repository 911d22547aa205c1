// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/LinuxWords.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tessera {

namespace {

struct Words {
    std::string_view text;
    std::string_view here;
};

constexpr std::array kWords{
    Words{"Show in Finder", "Show in File Manager"},
    Words{"&Show in Finder", "&Show in File Manager"},
    Words{"Time Machine Detected", "Backup Detected"},
    Words{
        "Tessera is unable to scan inside a Time Machine backup. To estimate the overall size "
        "of Time Machine, please scan the disk labeled '%1'.",
        "Tessera is unable to scan inside a backup. To estimate the overall size of the backups, "
        "please scan the disk labeled '%1'."},
};

} // namespace

QString LinuxWords::translate(
    const char* /*context*/,
    const char* sourceText,
    const char* /*disambiguation*/,
    int /*n*/) const
{
    const auto* const found = std::ranges::find(kWords, sourceText, &Words::text);
    return found == kWords.end()
        ? QString()
        : QString::fromUtf8(found->here.data(), static_cast<qsizetype>(found->here.size()));
}

} // namespace tessera
