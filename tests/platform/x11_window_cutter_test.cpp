// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/x11/x11_window_cutter.h"
#include "support/test_main.h"

#include <QApplication>
#include <QPainter>
#include <QRegion>
#include <QWidget>

using namespace orvalis;

class X11WindowCutterTest : public QObject {
    Q_OBJECT
private slots:
    void rowsThatAreAlikeAreOneRectangle();
    void whatIsHalfTransparentIsLeftOut();
    void emptyRowsLeaveAGap();
    void aPictureOfNothingHasNoRows();
    void aRoundedPictureLosesItsCornersAlone();
    void onADisplayOfAnotherKindTheWindowStaysWhole();
};

namespace {

QImage blank(int width, int height) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

} // namespace

void X11WindowCutterTest::rowsThatAreAlikeAreOneRectangle() {
    QImage image = blank(8, 6);
    QPainter painter(&image);
    painter.fillRect(2, 0, 4, 1, Qt::black);
    painter.fillRect(1, 1, 6, 5, Qt::black);
    painter.end();
    QCOMPARE(opaqueRows(image), (QList<QRect>{QRect(2, 0, 4, 1), QRect(1, 1, 6, 5)}));
}

void X11WindowCutterTest::whatIsHalfTransparentIsLeftOut() {
    QImage image = blank(4, 1);
    image.setPixelColor(0, 0, QColor(0, 0, 0, 127));
    image.setPixelColor(1, 0, QColor(0, 0, 0, 128));
    image.setPixelColor(2, 0, QColor(0, 0, 0, 255));
    QCOMPARE(opaqueRows(image), QList<QRect>{QRect(1, 0, 2, 1)});
}

void X11WindowCutterTest::emptyRowsLeaveAGap() {
    QImage image = blank(3, 3);
    QPainter painter(&image);
    painter.fillRect(0, 0, 3, 1, Qt::black);
    painter.fillRect(0, 2, 3, 1, Qt::black);
    painter.end();
    QCOMPARE(opaqueRows(image), (QList<QRect>{QRect(0, 0, 3, 1), QRect(0, 2, 3, 1)}));
}

void X11WindowCutterTest::aPictureOfNothingHasNoRows() {
    QVERIFY(opaqueRows(blank(5, 5)).isEmpty());
    QVERIFY(opaqueRows(QImage()).isEmpty());
}

void X11WindowCutterTest::aRoundedPictureLosesItsCornersAlone() {
    QImage image = blank(40, 30);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(0, 0, 40, 30, 10, 10);
    painter.end();
    QRegion region;
    for (const QRect& row : opaqueRows(image))
        region |= row;
    QVERIFY(!region.contains(QPoint(0, 0)) && !region.contains(QPoint(39, 29)));
    QVERIFY(region.contains(QPoint(0, 15)) && region.contains(QPoint(39, 15)));
    QVERIFY(region.contains(QPoint(20, 0)) && region.contains(QPoint(20, 29)));
}

void X11WindowCutterTest::onADisplayOfAnotherKindTheWindowStaysWhole() {
    QWidget window(nullptr, Qt::FramelessWindowHint);
    window.resize(40, 30);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    X11WindowCutter cutter;
    QVERIFY(!cutter.isNeeded());
    cutter.cut(window, blank(40, 30));
    QVERIFY(window.mask().isEmpty());
    QVERIFY(window.isVisible());
}

ORVALIS_TEST_MAIN_WITH(QApplication, X11WindowCutterTest)
#include "x11_window_cutter_test.moc"
