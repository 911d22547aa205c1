// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace tessera {

/// How many files a second a scan reads, over a window that slides along its last 20 reports.
class FileRate {
public:
    /// Forgets all reports.
    void restart();

    /// Takes a report: the time in seconds and how many objects were read until then. Gives the
    /// rate, a whole number, when it should be shown anew: at the 20th report and then at every
    /// fifth, so that the figure can be read.
    std::optional<long> add(double time, std::uint64_t objectsRead);

private:
    static constexpr std::size_t kReports = 20;
    static constexpr std::size_t kReportsToShow = 5;

    std::optional<long> rate() const;

    std::uint64_t m_ratePointer = 0; ///< the slot of the next report
    bool m_rateFilled = false; ///< all slots are in use
    std::array<std::uint64_t, kReports> m_allocations{}; ///< objects read
    std::array<double, kReports> m_intervals{}; ///< times
};

} // namespace tessera
