// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/screen.h"

#include "support/recording_platform.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QScreen>

using namespace orvalis;
using namespace orvalis::test;

class ScreenTest : public QObject {
    Q_OBJECT
private slots:
    void metricsAreWidthAndHeightAndNothingElse();
    void theDesktopScreenIsThePrimaryOne();
    void aWindowIsKeptInsideTheArea_data();
    void aWindowIsKeptInsideTheArea();
};

void ScreenTest::metricsAreWidthAndHeightAndNothingElse() {
    const FakeScreen screen(QSize(1097, 617));
    QCOMPARE(screen.GetSystemMetrics(0), 1097);
    QCOMPARE(screen.GetSystemMetrics(1), 617);
    QCOMPARE(screen.GetSystemMetrics(2), 0);
    QCOMPARE(screen.GetSystemMetrics(-1), 0);
}

void ScreenTest::theDesktopScreenIsThePrimaryOne() {
    const DesktopScreen screen;
    QCOMPARE(screen.size(), QGuiApplication::primaryScreen()->size());
    QCOMPARE(screen.workArea(), QGuiApplication::primaryScreen()->availableGeometry());
    QCOMPARE(screen.GetSystemMetrics(0), QGuiApplication::primaryScreen()->size().width());
}

void ScreenTest::aWindowIsKeptInsideTheArea_data() {
    QTest::addColumn<QRect>("window");
    QTest::addColumn<QPoint>("corner");
    QTest::newRow("inside") << QRect(100, 50, 320, 483) << QPoint(100, 50);
    QTest::newRow("left and above") << QRect(-50, -60, 320, 483) << QPoint(10, 20);
    QTest::newRow("right and below") << QRect(900, 700, 320, 483) << QPoint(490, 137);
    QTest::newRow("at the edge") << QRect(490, 137, 320, 483) << QPoint(490, 137);
    QTest::newRow("wider than the area") << QRect(300, 30, 2000, 100) << QPoint(10, 30);
    QTest::newRow("on another screen") << QRect(-5000, 5000, 320, 483) << QPoint(10, 137);
}

void ScreenTest::aWindowIsKeptInsideTheArea() {
    QFETCH(QRect, window);
    QFETCH(QPoint, corner);
    QCOMPARE(keptInside(window, QRect(10, 20, 800, 600)), QRect(corner, window.size()));
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, ScreenTest)
#include "screen_test.moc"
