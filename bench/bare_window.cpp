// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// The yardstick of the start: the least that a program with a window can be.
#include <QApplication>
#include <QLabel>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QLabel label(QStringLiteral("One label"));
    label.resize(320, 483);
    label.show();
    return QApplication::exec();
}
