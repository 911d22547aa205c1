// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>

namespace tessera::test {

/// Numbers as they are written in that language, until the end of the test.
class NumbersOf {
public:
    explicit NumbersOf(QLocale::Language language) { QLocale::setDefault(QLocale(language)); }
    NumbersOf(const NumbersOf&) = delete;
    NumbersOf& operator=(const NumbersOf&) = delete;
    ~NumbersOf() { QLocale::setDefault(m_before); }

private:
    QLocale m_before;
};

} // namespace tessera::test
