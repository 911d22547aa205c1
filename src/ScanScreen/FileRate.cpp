// SPDX-License-Identifier: MIT
#include "ScanScreen/FileRate.h"

namespace tessera {

void FileRate::restart()
{
    m_ratePointer = 0;
    m_rateFilled = false;
}

std::optional<long> FileRate::add(double time, std::uint64_t objectsRead)
{
    m_intervals.at(m_ratePointer) = time;
    m_allocations.at(m_ratePointer) = objectsRead;
    ++m_ratePointer;
    if (m_ratePointer == kReports) {
        m_rateFilled = true;
        m_ratePointer = 0;
    }
    if (!m_rateFilled || m_ratePointer % kReportsToShow != 0) {
        return std::nullopt;
    }
    return rate();
}

std::optional<long> FileRate::rate() const
{
    const std::size_t newest = m_ratePointer == 0 ? kReports - 1 : m_ratePointer - 1;
    const std::size_t oldest = m_ratePointer;
    const double seconds = m_intervals.at(newest) - m_intervals.at(oldest);
    if (!(seconds > 0)) {
        return std::nullopt; // a clock that stands still measures no rate
    }
    const std::uint64_t objects = m_allocations.at(newest) - m_allocations.at(oldest);
    return static_cast<long>(static_cast<double>(objects) / seconds);
}

} // namespace tessera
