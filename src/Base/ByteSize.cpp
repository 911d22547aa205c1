// SPDX-License-Identifier: MIT
#include "Base/ByteSize.h"

#include "Base/Decimals.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace tessera {

namespace {

constexpr double kUnitBase = 1000.0;
constexpr std::array<std::string_view, 5> kUnits{"B", "KB", "MB", "GB", "TB"};
constexpr std::size_t kFirstUnitWithDecimal = 2;

} // namespace

ByteFigure byteFigure(std::uint64_t bytes)
{
    const auto count = static_cast<double>(bytes);
    double value = count;
    std::size_t unit = 0;
    double divisor = 1.0;
    for (std::size_t i = 0; i < kUnits.size(); ++i, divisor *= kUnitBase) {
        const double quotient = count / divisor;
        if (quotient >= 1.0) {
            unit = i;
            value = quotient;
        }
    }
    return {decimals(value, unit < kFirstUnitWithDecimal ? 0 : 1), static_cast<ByteUnit>(unit)};
}

std::string formatSize(std::uint64_t bytes)
{
    const ByteFigure figure = byteFigure(bytes);
    return figure.number + ' ' + std::string(kUnits.at(static_cast<std::size_t>(figure.unit)));
}

} // namespace tessera
