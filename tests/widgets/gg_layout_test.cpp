// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "widgets/gg_layout.h"

#include "support/test_main.h"

#include <QCoreApplication>

#include <cmath>

using namespace orvalis;

class GGLayoutTest : public QObject {
    Q_OBJECT
private slots:
    void aCaptionStandsOnAGridOfNinePlaces_data();
    void aCaptionStandsOnAGridOfNinePlaces();
    void aPictureStandsOnAGridOfNinePlaces_data();
    void aPictureStandsOnAGridOfNinePlaces();
    void aCaptionAlignedRightEndsTwoPixelsFromTheEdge();
    void aPictureAlignedRightEndsOnePixelFromTheEdge();
    void offsetsAreAddedBeforeThePositionIsCut();
    void positionsAreCutTowardZero();
    void anAlignmentOutsideTheGridPlacesAtTheOffsets();
    void aPictureIsCountedInItsOwnUnits_data();
    void aPictureIsCountedInItsOwnUnits();
    void aGradientBeginsWithItsFirstColour();
    void aGradientEndsOneStepBeforeItsLastColour();
    void tiesInAGradientRoundToTheEvenNumber();
    void theStepsOfAGradientAreSinglePrecision();
    void aGradientOfOneColourHasOneShade();
    void aGradientWithoutStepsHasNoShade();
};

void GGLayoutTest::aCaptionStandsOnAGridOfNinePlaces_data() {
    QTest::addColumn<int>("alignment");
    QTest::addColumn<QPoint>("position");
    // A face of 101 by 51 pixels and a text of 40 by 14.
    QTest::newRow("left top") << 0 << QPoint(1, 1);
    QTest::newRow("left middle") << 1 << QPoint(1, 18);
    QTest::newRow("left bottom") << 2 << QPoint(1, 36);
    QTest::newRow("centre top") << 3 << QPoint(30, 1);
    QTest::newRow("centre middle") << 4 << QPoint(30, 18);
    QTest::newRow("centre bottom") << 5 << QPoint(30, 36);
    QTest::newRow("right top") << 6 << QPoint(59, 1);
    QTest::newRow("right middle") << 7 << QPoint(59, 18);
    QTest::newRow("right bottom") << 8 << QPoint(59, 36);
}

void GGLayoutTest::aCaptionStandsOnAGridOfNinePlaces() {
    QFETCH(int, alignment);
    QFETCH(QPoint, position);
    QCOMPARE(alignedPosition(Placed::Caption, alignment, {101, 51}, 40, 14, 0, 0), position);
}

void GGLayoutTest::aPictureStandsOnAGridOfNinePlaces_data() {
    QTest::addColumn<int>("alignment");
    QTest::addColumn<QPoint>("position");
    // A face of 101 by 51 pixels and a picture counted as 16.5 by 16.5.
    QTest::newRow("left top") << 0 << QPoint(1, 1);
    QTest::newRow("left middle") << 1 << QPoint(1, 17);
    QTest::newRow("left bottom") << 2 << QPoint(1, 33);
    QTest::newRow("centre top") << 3 << QPoint(42, 1);
    QTest::newRow("centre middle") << 4 << QPoint(42, 17);
    QTest::newRow("centre bottom") << 5 << QPoint(42, 33);
    QTest::newRow("right top") << 6 << QPoint(83, 1);
    QTest::newRow("right middle") << 7 << QPoint(83, 17);
    QTest::newRow("right bottom") << 8 << QPoint(83, 33);
}

void GGLayoutTest::aPictureStandsOnAGridOfNinePlaces() {
    QFETCH(int, alignment);
    QFETCH(QPoint, position);
    QCOMPARE(alignedPosition(Placed::Picture, alignment, {101, 51}, 16.5F, 16.5F, 0, 0), position);
}

void GGLayoutTest::aCaptionAlignedRightEndsTwoPixelsFromTheEdge() {
    const int x = alignedPosition(Placed::Caption, 7, {100, 30}, 40, 14, 0, 0).x();
    QCOMPARE(100 - (x + 40), 2);
}

void GGLayoutTest::aPictureAlignedRightEndsOnePixelFromTheEdge() {
    const int x = alignedPosition(Placed::Picture, 7, {100, 30}, 40, 14, 0, 0).x();
    QCOMPARE(100 - (x + 40), 1);
}

void GGLayoutTest::offsetsAreAddedBeforeThePositionIsCut() {
    QCOMPARE(alignedPosition(Placed::Caption, 4, {101, 51}, 40, 14, 5, -3), QPoint(35, 15));
    // -0.5 + 1 is cut to 0; cut first, it would be 1.
    QCOMPARE(alignedPosition(Placed::Caption, 4, {40, 14}, 41, 15, 1, 1), QPoint(0, 0));
}

void GGLayoutTest::positionsAreCutTowardZero() {
    // A text larger than the face: -2.5 and -1.5.
    QCOMPARE(alignedPosition(Placed::Caption, 4, {40, 14}, 45, 17, 0, 0), QPoint(-2, -1));
}

void GGLayoutTest::anAlignmentOutsideTheGridPlacesAtTheOffsets() {
    QCOMPARE(alignedPosition(Placed::Caption, 9, {100, 30}, 40, 14, 3, 4), QPoint(3, 4));
    QCOMPARE(alignedPosition(Placed::Picture, -1, {100, 30}, 40, 14, 3, 4), QPoint(3, 4));
}

void GGLayoutTest::aPictureIsCountedInItsOwnUnits_data() {
    QTest::addColumn<int>("pixels");
    QTest::addColumn<int>("units");
    QTest::newRow("16 pixels are 423 units") << 16 << 423;
    QTest::newRow("24 pixels are 635 units") << 24 << 635;
    QTest::newRow("32 pixels are 847 units") << 32 << 847;
    QTest::newRow("96 pixels are an inch") << 96 << 2540;
    QTest::newRow("nothing") << 0 << 0;
}

void GGLayoutTest::aPictureIsCountedInItsOwnUnits() {
    QFETCH(int, pixels);
    QFETCH(int, units);
    QCOMPARE(pictureExtent(pixels), static_cast<float>(units) / 15.0F / 1.75F);
}

void GGLayoutTest::aGradientBeginsWithItsFirstColour() {
    QCOMPARE(gradientShades({10, 20, 30}, {110, 120, 130}, 7).front(), (Shade{10, 20, 30}));
}

void GGLayoutTest::aGradientEndsOneStepBeforeItsLastColour() {
    const auto shades = gradientShades({0, 100, 200}, {100, 0, 200}, 10);
    QCOMPARE(shades.size(), std::size_t(10));
    QCOMPARE(shades[1], (Shade{10, 90, 200}));
    QCOMPARE(shades.back(), (Shade{90, 10, 200}));
}

void GGLayoutTest::tiesInAGradientRoundToTheEvenNumber() {
    // Steps of one half: 0, 0.5, 1, 1.5, 2, 2.5.
    const auto shades = gradientShades({0, 0, 0}, {3, 3, 3}, 6);
    QList<int> reds;
    for (const Shade& shade : shades)
        reds << shade.red;
    QCOMPARE(reds, (QList<int>{0, 0, 1, 2, 2, 2}));
}

void GGLayoutTest::theStepsOfAGradientAreSinglePrecision() {
    const int steps = 480;
    const auto shades = gradientShades({255, 0, 0}, {10, 0, 0}, steps);
    float red = 255;
    for (int i = 0; i < steps; ++i) {
        QCOMPARE(shades[static_cast<std::size_t>(i)].red, static_cast<int>(std::nearbyint(red)));
        red += (10.0F - 255.0F) / 480.0F;
    }
}

void GGLayoutTest::aGradientOfOneColourHasOneShade() {
    for (const Shade& shade : gradientShades({7, 8, 9}, {7, 8, 9}, 50))
        QCOMPARE(shade, (Shade{7, 8, 9}));
}

void GGLayoutTest::aGradientWithoutStepsHasNoShade() {
    QVERIFY(gradientShades({0, 0, 0}, {9, 9, 9}, 0).empty());
    QVERIFY(gradientShades({0, 0, 0}, {9, 9, 9}, -4).empty());
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, GGLayoutTest)
#include "gg_layout_test.moc"
