// SPDX-License-Identifier: MIT
#include "Widgets/PassiveLabel.h"

#include <gtest/gtest.h>

namespace tessera {

TEST(PassiveLabel, NeverTakesTheMouse)
{
    EXPECT_TRUE(PassiveLabel().testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST(PassiveLabel, MayBeNarrowerThanItsText)
{
    PassiveLabel field;
    field.setText(QStringLiteral("a rather long name"));
    EXPECT_EQ(field.minimumSizeHint().width(), 0);
}

} // namespace tessera
