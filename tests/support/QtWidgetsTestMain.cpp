// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace tessera {

namespace {

/// A double click made by QTest leaves its button pressed for whatever test comes next.
class ButtonsAreReleased final : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo& /*test*/) override
    {
        QWidget nobody;
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
            QTest::mouseRelease(&nobody, button);
        }
    }
};

} // namespace
} // namespace tessera

int main(int argc, char** argv)
{
    // Listing the tests at build time must not need a display either.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): GoogleTest owns it
    testing::UnitTest::GetInstance()->listeners().Append(new tessera::ButtonsAreReleased);
    return RUN_ALL_TESTS();
}
