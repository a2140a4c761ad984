// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/colour.h"

#include "runtime/twips.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QPalette>

using namespace orvalis;

class ColourTest : public QObject {
    Q_OBJECT
private slots:
    void redIsTheLowByte_data();
    void redIsTheLowByte();
    void systemColoursComeFromThePalette_data();
    void systemColoursComeFromThePalette();
    void anIndexThatNamesNoColourIsBlack_data();
    void anIndexThatNamesNoColourIsBlack();
    void theHighByteOfAPlainColourCountsForNothing();
    void fifteenTwipsAreAPixel();
    void twipsAreRoundedToTheNearestPixel();
};

void ColourTest::redIsTheLowByte_data() {
    QTest::addColumn<ColourValue>("value");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("black") << ColourValue(0) << QColor(0, 0, 0);
    QTest::newRow("red") << ColourValue(255) << QColor(255, 0, 0);
    QTest::newRow("blue") << ColourValue(16711680) << QColor(0, 0, 255);
    QTest::newRow("sage") << ColourValue(0xA0C8B0) << QColor(0xB0, 0xC8, 0xA0);
    QTest::newRow("ice") << ColourValue(0xCBBD86) << QColor(0x86, 0xBD, 0xCB);
    QTest::newRow("white") << ColourValue(0xFFFFFF) << QColor(255, 255, 255);
}

void ColourTest::redIsTheLowByte() {
    QFETCH(ColourValue, value);
    QFETCH(QColor, colour);
    QCOMPARE(toQColor(value), colour);
    QCOMPARE(fromQColor(colour), value);
}

void ColourTest::systemColoursComeFromThePalette_data() {
    QTest::addColumn<ColourValue>("value");
    QTest::addColumn<int>("role");
    QTest::newRow("button face") << ColourValue(0x8000000F) << int(QPalette::Button);
    QTest::newRow("button shadow") << ColourValue(0x80000010) << int(QPalette::Dark);
    QTest::newRow("button text") << ColourValue(0x80000012) << int(QPalette::ButtonText);
    QTest::newRow("3D highlight") << ColourValue(0x80000014) << int(QPalette::Light);
    QTest::newRow("tool tip text") << ColourValue(0x80000017) << int(QPalette::ToolTipText);
    QTest::newRow("tool tip back") << ColourValue(0x80000018) << int(QPalette::ToolTipBase);
    QTest::newRow("window") << ColourValue(0x80000005) << int(QPalette::Base);
    QTest::newRow("highlight") << ColourValue(0x8000000D) << int(QPalette::Highlight);
}

void ColourTest::systemColoursComeFromThePalette() {
    QFETCH(ColourValue, value);
    QFETCH(int, role);
    QPalette palette;
    for (int i = 0; i < QPalette::NColorRoles; ++i)
        palette.setColor(QPalette::ColorRole(i), QColor(i, 100, 200));
    QCOMPARE(toQColor(value, palette), QColor(role, 100, 200));
}

void ColourTest::anIndexThatNamesNoColourIsBlack_data() {
    QTest::addColumn<ColourValue>("value");
    QTest::newRow("behind the last") << ColourValue(0x8000FFFF);
    QTest::newRow("all bits") << ColourValue(0xFFFFFFFF);
}

void ColourTest::anIndexThatNamesNoColourIsBlack() {
    QFETCH(ColourValue, value);
    QCOMPARE(toQColor(value), QColor(Qt::black));
}

void ColourTest::theHighByteOfAPlainColourCountsForNothing() {
    QCOMPARE(toQColor(0x020000FFU), QColor(255, 0, 0));
    QCOMPARE(fromQColor(QColor(255, 0, 0, 10)), ColourValue(255));
}

void ColourTest::fifteenTwipsAreAPixel() {
    QCOMPARE(twipsToPixels(4800), 320);
    QCOMPARE(twipsToPixels(7245), 483);
    QCOMPARE(pixelsToTwips(320), 4800);
    QCOMPARE(twipsToPixelsF(8), 8 / 15.0);
}

void ColourTest::twipsAreRoundedToTheNearestPixel() {
    QCOMPARE(twipsToPixels(7), 0);
    QCOMPARE(twipsToPixels(8), 1);
    QCOMPARE(twipsToPixels(-1555), -104);
    QCOMPARE(pixelsToTwips(0.1), 2);
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, ColourTest)
#include "colour_test.moc"
