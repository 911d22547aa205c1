// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <random>
#include <vector>

namespace tessera::test {

/// Chance that a seed repeats.
class Random {
public:
    explicit Random(std::uint64_t seed)
        : m_engine(seed)
    {
    }

    /// 0 to `bound` - 1, each as likely; `bound` is at least 1.
    int below(int bound)
    {
        // The engine is the same everywhere, the standard distributions are not.
        return static_cast<int>(m_engine() % static_cast<std::uint64_t>(bound));
    }
    int between(int first, int last) { return first + below(last - first + 1); }
    bool oneIn(int count) { return below(count) == 0; }

    template <typename Value>
    const Value& pick(const std::vector<Value>& values)
    {
        return values.at(static_cast<std::size_t>(below(static_cast<int>(values.size()))));
    }

private:
    std::mt19937_64 m_engine;
};

} // namespace tessera::test
