// SPDX-License-Identifier: MIT
#pragma once

#include <clocale>
#include <string>

namespace tessera::test {

/// A locale that writes decimals behind a comma, until the end of the test.
class CommaLocale {
public:
    CommaLocale()
        // NOLINTNEXTLINE(concurrency-mt-unsafe): before the test starts a thread
        : m_before(std::setlocale(LC_ALL, nullptr))
        // NOLINTNEXTLINE(concurrency-mt-unsafe): likewise
        , m_isThere(std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr)
    {
    }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;
    ~CommaLocale()
    {
        // NOLINTNEXTLINE(concurrency-mt-unsafe): after the threads
        (void)std::setlocale(LC_ALL, m_before.c_str());
    }

    /// Whether this system has one.
    bool isThere() const { return m_isThere; }

private:
    std::string m_before;
    bool m_isThere;
};

} // namespace tessera::test
