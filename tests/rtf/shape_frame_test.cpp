// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/shape_frame.h"
#include "support/test_main.h"

#include <QCoreApplication>

using namespace orvalis::rtf;

/// What a shape that is kept shows, and where.
class ShapeFrameTest : public QObject {
    Q_OBJECT
private slots:
    void aFrameIsPartedAroundWhatItShows();
    void aFrameEndsAWordOfItsOwn();
    void whatShowsNothingHasNoPlace();
    void aPlaceThatIsNotThereIsNoPicture();
    void theWordsForPlacesCanBeLeftOut();
};

void ShapeFrameTest::aFrameIsPartedAroundWhatItShows() {
    const ShapeFrame frame =
        shapeFrame(u"{\\shp{\\shptxt\\orvshown }{\\sv\\orvshownpicture}{\\shptxt\\orvshown\\par}}");
    QCOMPARE(frame.ahead, QStringLiteral("{\\shp{\\shptxt"));
    QCOMPARE(frame.places.size(), size_t(3));
    QCOMPARE(frame.places[0].behind, QStringLiteral("}{\\sv"));
    QCOMPARE(frame.places[1].behind, QStringLiteral("}{\\shptxt"));
    QCOMPARE(frame.places[2].behind, QStringLiteral("\\par}}"));
    QVERIFY(!frame.isPicture(0));
    QVERIFY(frame.isPicture(1));
    QVERIFY(!frame.isPicture(2));
}

void ShapeFrameTest::aFrameEndsAWordOfItsOwn() {
    // One blank ends it; a further one is text.
    QCOMPARE(shapeFrame(u"{\\orvshown  a}").places.front().behind, QStringLiteral(" a}"));
    QCOMPARE(shapeFrame(u"{\\orvshown").places.front().behind, QString());
}

void ShapeFrameTest::whatShowsNothingHasNoPlace() {
    const ShapeFrame frame = shapeFrame(u"{\\shp}");
    QVERIFY(!frame.has(0));
    QCOMPARE(frame.ahead, QString());
}

void ShapeFrameTest::aPlaceThatIsNotThereIsNoPicture() {
    const ShapeFrame frame = shapeFrame(u"\\orvshownpicture");
    QVERIFY(frame.has(0) && frame.isPicture(0));
    for (const int place : {-1, 1}) {
        QVERIFY(!frame.has(place));
        QVERIFY(!frame.isPicture(place));
    }
}

void ShapeFrameTest::theWordsForPlacesCanBeLeftOut() {
    QCOMPARE(withoutPlaces(QStringLiteral("{\\a\\orvshownpicture}{\\orvshown\\par}")),
             QStringLiteral("{\\a}{\\par}"));
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, ShapeFrameTest)
#include "shape_frame_test.moc"
