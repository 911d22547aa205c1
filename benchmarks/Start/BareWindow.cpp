// SPDX-License-Identifier: MIT
// The least that a program with a window of Qt can do, to compare StartBench's figures with.
#include <QApplication>
#include <QLabel>

int main(int argc, char** argv)
{
    constexpr QSize kSize{1080, 720}; // as our window has it
    const QApplication application(argc, argv);
    QLabel label(QStringLiteral("Nothing"));
    label.resize(kSize);
    label.show();
    return QApplication::exec();
}
