// SPDX-License-Identifier: MIT
#include "Platform/Qt/SettingsUserDefaults.h"

#include <QCoreApplication>

#include <cstdio>
#include <vector>

/// Writes settings that all say the same number, and the next number, and so on until it is
/// killed. Prints each number before it is written.
int main(int argc, char** argv)
{
    constexpr std::size_t kManyRecords = 200;
    const QCoreApplication application(argc, argv);
    tessera::SettingsUserDefaults defaults(QCoreApplication::arguments().at(1));
    for (int number = defaults.integer("first") + 1;; ++number) {
        std::printf("%d\n", number);
        (void)std::fflush(stdout);
        const tessera::RecentRecord record{"/folder", static_cast<std::uint64_t>(number), {}};
        defaults.setInteger("first", number);
        defaults.setRecentRecords(
            tessera::kRecentsKey, std::vector<tessera::RecentRecord>(kManyRecords, record));
        defaults.setInteger("zlast", number);
        if (!defaults.synchronize()) {
            return 1;
        }
    }
}
