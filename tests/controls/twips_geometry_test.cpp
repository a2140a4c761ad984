// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/twips_geometry.h"

#include "controls/shapes.h"
#include "support/test_main.h"

#include <QApplication>

using namespace orvalis;
using namespace Qt::StringLiterals;

class TwipsGeometryTest : public QObject {
    Q_OBJECT
private slots:
    void aPlaceInTwipsIsKeptExactly();
    void theWidgetTakesTheNearestPixels();
    void aWidgetMovedInPixelsHasThePlaceOfItsPixels();
    void aLineSpansItsEnds();
    void aLineRunsFromOneEndToTheOther();
};

void TwipsGeometryTest::aPlaceInTwipsIsKeptExactly() {
    QWidget widget;
    const QRectF place(101, 203.5, 1007, 499);
    setTwipsGeometry(widget, place);
    QCOMPARE(twipsGeometry(widget), place);
}

void TwipsGeometryTest::theWidgetTakesTheNearestPixels() {
    QWidget parent;
    QWidget widget(&parent);
    setTwipsGeometry(widget, QRectF(97, 98, 1007, 1008));
    QCOMPARE(widget.geometry(), QRect(6, 7, 67, 67));
}

void TwipsGeometryTest::aWidgetMovedInPixelsHasThePlaceOfItsPixels() {
    QWidget parent;
    QWidget widget(&parent);
    setTwipsGeometry(widget, QRectF(97, 98, 1007, 1008));
    widget.move(10, 20);
    QCOMPARE(twipsGeometry(widget), QRectF(150, 300, 1005, 1005));
}

void TwipsGeometryTest::aLineSpansItsEnds() {
    QWidget form;
    Line line(u"Line1"_s, &form);
    line.setEnds(QLineF(300, 600, 150, 150));
    QCOMPARE(line.geometry(), QRect(QPoint(10, 10), QPoint(20, 40)));
    QCOMPARE(line.ends(), QLineF(300, 600, 150, 150));
}

void TwipsGeometryTest::aLineRunsFromOneEndToTheOther() {
    QWidget form;
    Line line(u"Line1"_s, &form);
    QPalette palette = line.palette();
    palette.setColor(line.foregroundRole(), Qt::red);
    line.setPalette(palette);
    line.setEnds(QLineF(150, 450, 450, 150));
    const QImage drawn = line.grab().toImage();
    QCOMPARE(drawn.pixelColor(0, 20), QColor(Qt::red));
    QCOMPARE(drawn.pixelColor(20, 0), QColor(Qt::red));
    QCOMPARE(drawn.pixelColor(10, 10), QColor(Qt::red));
    QVERIFY(drawn.pixelColor(0, 0) != QColor(Qt::red));
}

ORVALIS_TEST_MAIN_WITH(QApplication, TwipsGeometryTest)
#include "twips_geometry_test.moc"
