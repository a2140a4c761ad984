// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QRegularExpression>
#include <QTest>
#include <QtGlobal>

namespace orvalis::test {

/// Starts every test from the same ground: English of the United States, UTC, offscreen.
inline void fixedGround() {
    qputenv("QT_QPA_PLATFORM",
            qEnvironmentVariableIsSet("ORVALIS_TEST_DISPLAY") ? "xcb" : "offscreen");
    qputenv("TZ", "UTC");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

} // namespace orvalis::test

/// main() of a test that drives widgets: an Application of the class given, a fixed ground.
#define ORVALIS_TEST_MAIN_WITH(Application, TestClass)                                             \
    int main(int argc, char** argv) {                                                              \
        orvalis::test::fixedGround();                                                              \
        Application app(argc, argv);                                                               \
        TestClass test;                                                                            \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
