// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/window_pixels.h"

#include "support/test_main.h"
#include "support/virtual_display.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>

using namespace orvalis;
using namespace orvalis::test;

namespace {

/// A plain coloured window at the corner of the screen.
class Sheet final : public QWidget {
public:
    explicit Sheet(Qt::GlobalColor colour) {
        setWindowFlag(Qt::X11BypassWindowManagerHint);
        setPalette(QColor(colour));
        setAutoFillBackground(true);
        setGeometry(0, 0, 100, 80);
    }

    int paintings = 0;

protected:
    void paintEvent(QPaintEvent*) override { ++paintings; }
};

QColor seen() {
    return QGuiApplication::primaryScreen()->grabWindow(0, 50, 40, 1, 1).toImage().pixelColor(0, 0);
}

} // namespace

class WindowPixelsTest : public QObject {
    Q_OBJECT
private slots:
    void whatAnotherWindowCoveredIsSeenAgainWithoutAnEvent();
    void aWindowThatWasNeverShownIsLeftAlone();
};

void WindowPixelsTest::whatAnotherWindowCoveredIsSeenAgainWithoutAnEvent() {
    Sheet under(Qt::green);
    under.show();
    QTRY_COMPARE(seen(), QColor(Qt::green));
    {
        Sheet above(Qt::red);
        above.show();
        QTRY_COMPARE(seen(), QColor(Qt::red));
    }
    // Nobody has told the window of it yet, and nobody does.
    QVERIFY(seen() != QColor(Qt::green));
    const int before = under.paintings;
    showPixelsAgain(under);
    QCOMPARE(seen(), QColor(Qt::green));
    QCOMPARE(under.paintings, before);
}

void WindowPixelsTest::aWindowThatWasNeverShownIsLeftAlone() {
    const Sheet never(Qt::green);
    showPixelsAgain(never);
    QVERIFY(!never.isVisible());
}

/// Only a screen that others draw on can lose what was painted.
ORVALIS_TEST_MAIN(int argc, char** argv) {
    fixedGround();
    const VirtualDisplay display(200, 160);
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("DISPLAY", display.name());
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    QApplication app(argc, argv);
    WindowPixelsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "window_pixels_test.moc"
