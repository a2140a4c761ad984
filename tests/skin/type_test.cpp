// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "skin/palette.h"
#include "skin/skin.h"
#include "skin/type.h"
#include "support/test_main.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>

using namespace Qt::StringLiterals;
using namespace orvalis;

class TypeTest : public QObject {
    Q_OBJECT
private slots:
    void theTypeIsArialOrItsStandIn();
    void aTextThatFitsKeepsItsSize();
    void aTextThatIsTooWideGetsSmallerUntilItFits();
    void aTextThatIsTooHighGetsSmallerUntilItFits();
    void noTextGetsSmallerThanFivePoints();
    void colourValuesHaveRedInTheLowByte();
    void anIconIsDrawnForEachSize();
    void aSmallIconTakesItsTinyDrawing();
    void aDisabledIconIsFaint();
};

void TypeTest::theTypeIsArialOrItsStandIn() {
    QCOMPARE(skin::font(10).families(),
             (QStringList{u"Arial"_s, u"Liberation Sans"_s, u"DejaVu Sans"_s}));
    QCOMPARE(skin::font(10).pointSize(), 10);
    QVERIFY(!skin::font(10).bold());
    QVERIFY(skin::font(10, true).bold());
}

void TypeTest::aTextThatFitsKeepsItsSize() {
    QCOMPARE(skin::fitted(skin::font(16), u"10 : 24 : 36"_s, QSizeF(300, 60)), skin::font(16));
}

void TypeTest::aTextThatIsTooWideGetsSmallerUntilItFits() {
    const QString text = u"Wednesday, September 30, 2026"_s;
    const QFont font = skin::fitted(skin::font(16), text, QSizeF(200, 60));
    QVERIFY(QFontMetricsF(font).horizontalAdvance(text) <= 200);
    QVERIFY(font.pointSizeF() < 16);
    QFont larger = font;
    larger.setPointSizeF(font.pointSizeF() + 0.5);
    QVERIFY(QFontMetricsF(larger).horizontalAdvance(text) > 200);
}

void TypeTest::aTextThatIsTooHighGetsSmallerUntilItFits() {
    const QFont font = skin::fitted(skin::font(16), u"10"_s, QSizeF(300, 14));
    QVERIFY(QFontMetricsF(font).height() <= 14);
}

void TypeTest::noTextGetsSmallerThanFivePoints() {
    QCOMPARE(skin::fitted(skin::font(16), QString(1000, u'm'), QSizeF(10, 60)).pointSizeF(), 5.0);
}

void TypeTest::colourValuesHaveRedInTheLowByte() {
    QCOMPARE(skin::colourValue(0xFF112233), 0x332211U);
    QCOMPARE(skin::colourValue(skin::colour::Teal), 0x808000U);
    QCOMPARE(skin::MenuTabSelected.foreColor, 0xC00000U);
    QCOMPARE(skin::MenuTab.foreColor, 0U);
}

void TypeTest::anIconIsDrawnForEachSize() {
    const QIcon icon = skin::icon(u"tray_idle");
    for (const int side : {22, 24, 32, 48, 77}) {
        const QPixmap pixmap = icon.pixmap(QSize(side, side), 1.0);
        QCOMPARE(pixmap.size(), QSize(side, side));
        QCOMPARE(pixmap.toImage(), skin::pixmap(u"tray_idle", QSize(side, side), 1).toImage());
    }
    QVERIFY(icon.availableSizes().contains(QSize(22, 22)));
}

void TypeTest::aSmallIconTakesItsTinyDrawing() {
    const QImage small = skin::icon(u"tray_armed").pixmap(QSize(16, 16), 1.0).toImage();
    QCOMPARE(small, skin::pixmap(u"tray_armed_tiny", QSize(16, 16), 1).toImage());
    QVERIFY(small != skin::pixmap(u"tray_armed", QSize(16, 16), 1).toImage());
}

void TypeTest::aDisabledIconIsFaint() {
    const QIcon icon = skin::icon(u"ok");
    const auto ink = [&](QIcon::Mode mode) {
        const QImage image = icon.pixmap(QSize(16, 16), 1.0, mode).toImage();
        int sum = 0;
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 16; ++x)
                sum += qAlpha(image.pixel(x, y));
        return sum;
    };
    QVERIFY(ink(QIcon::Normal) > 0);
    QVERIFY(ink(QIcon::Disabled) < ink(QIcon::Normal) / 2);
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, TypeTest)
#include "type_test.moc"
