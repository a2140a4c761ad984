// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
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

/// What main() would be if the test were an executable of its own.
using TestMain = int (*)(int argc, char** argv);

/// Makes a test known to the runner of its folder, under the name of its source file.
struct KnownTest {
    KnownTest(const char* file, TestMain main);
};

} // namespace orvalis::test

/// Stands where a test has its own main(): what follows is the body.
#define ORVALIS_TEST_MAIN(...)                                                                     \
    static int testMain(__VA_ARGS__);                                                              \
    static const orvalis::test::KnownTest ThisTest(__FILE__, testMain);                            \
    static int testMain(__VA_ARGS__)

/// The test of one class: an Application of the class given, a fixed ground.
#define ORVALIS_TEST_MAIN_WITH(Application, TestClass)                                             \
    ORVALIS_TEST_MAIN(int argc, char** argv) {                                                     \
        orvalis::test::fixedGround();                                                              \
        Application app(argc, argv);                                                               \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
