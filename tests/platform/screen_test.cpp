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
    void theWidthIsAtMostFourThirdsOfTheHeight_data();
    void theWidthIsAtMostFourThirdsOfTheHeight();
    void theDesktopScreenIsThePrimaryOne();
    void aWindowIsKeptInsideTheArea_data();
    void aWindowIsKeptInsideTheArea();
};

void ScreenTest::metricsAreWidthAndHeightAndNothingElse() {
    const FakeScreen screen(QSize(819, 617));
    QCOMPARE(screen.GetSystemMetrics(0), 819);
    QCOMPARE(screen.GetSystemMetrics(1), 617);
    QCOMPARE(screen.GetSystemMetrics(2), 0);
    QCOMPARE(screen.GetSystemMetrics(-1), 0);
}

void ScreenTest::theWidthIsAtMostFourThirdsOfTheHeight_data() {
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<int>("width");
    const auto row = [](qreal pixelsWide, qreal pixelsHigh, qreal scale, int width) {
        QTest::addRow("%gx%g", pixelsWide, pixelsHigh)
            << QSizeF(pixelsWide, pixelsHigh) / scale << width;
    };
    row(800, 600, 1, 800);
    row(1024, 600, 1, 800);
    row(1024, 768, 1.25, 819);
    row(1366, 768, 1.25, 819);
    row(1920, 1080, 1.75, 822);
    row(3840, 2160, 3.5, 822);
    row(3440, 1440, 2.375, 808);
    row(1080, 1920, 1.25, 864);
    row(640, 480, 1, 640);
}

void ScreenTest::theWidthIsAtMostFourThirdsOfTheHeight() {
    QFETCH(QSizeF, size);
    QFETCH(int, width);
    class Sized final : public Screen {
    public:
        explicit Sized(QSizeF size)
            : m_size(size) {}
        QSizeF size() const override { return m_size; }
        QRect workArea() const override { return {}; }

    private:
        QSizeF m_size;
    };
    QCOMPARE(Sized(size).GetSystemMetrics(0), width);
}

void ScreenTest::theDesktopScreenIsThePrimaryOne() {
    const DesktopScreen screen;
    QCOMPARE(screen.size(), QSizeF(QGuiApplication::primaryScreen()->size()));
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
