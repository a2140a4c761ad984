// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "widgets/tool_tip_placement.h"

#include "support/test_main.h"

#include <QCoreApplication>

using namespace orvalis;

namespace {

constexpr QRect WholeScreen(0, 0, 1000, 800);

ToolTipRequest request() {
    ToolTipRequest asked;
    asked.size = {120, 30};
    asked.pointer = {300, 200};
    asked.pointerHeight = 20;
    asked.tool = QRect(280, 190, 60, 24);
    asked.screen = WholeScreen;
    return asked;
}

} // namespace

class ToolTipPlacementTest : public QObject {
    Q_OBJECT
private slots:
    void aRectangleStandsBelowThePointer();
    void aRectangleWithoutRoomBelowStandsAboveThePointer();
    void aCentredRectangleStandsUnderTheMiddleOfItsTool();
    void aCentredRectangleWithoutRoomBelowStandsAboveItsTool();
    void aBalloonStandsAboveThePointerWithItsStemOnIt();
    void aBalloonWithoutRoomAboveStandsBelowThePointer();
    void aCentredBalloonPointsAtTheMiddleOfItsTool();
    void aTipIsKeptInsideTheScreen();
    void aBalloonAtTheScreensEdgeStillPointsAtThePointer();
    void aSecondScreenHasItsOwnEdges();
};

void ToolTipPlacementTest::aRectangleStandsBelowThePointer() {
    const ToolTipPlace place = placeToolTip(request());
    QCOMPARE(place.position, QPoint(300, 220));
    QVERIFY(!place.above);
}

void ToolTipPlacementTest::aRectangleWithoutRoomBelowStandsAboveThePointer() {
    ToolTipRequest asked = request();
    asked.pointer = {300, 751};
    const ToolTipPlace place = placeToolTip(asked);
    QCOMPARE(place.position, QPoint(300, 721));
    QVERIFY(place.above);
    asked.pointer = {300, 750};
    QCOMPARE(placeToolTip(asked).position, QPoint(300, 770));
}

void ToolTipPlacementTest::aCentredRectangleStandsUnderTheMiddleOfItsTool() {
    ToolTipRequest asked = request();
    asked.centered = true;
    QCOMPARE(placeToolTip(asked).position, QPoint(310 - 60, 214));
}

void ToolTipPlacementTest::aCentredRectangleWithoutRoomBelowStandsAboveItsTool() {
    ToolTipRequest asked = request();
    asked.centered = true;
    asked.tool = QRect(280, 760, 60, 24);
    QCOMPARE(placeToolTip(asked).position, QPoint(250, 730));
}

void ToolTipPlacementTest::aBalloonStandsAboveThePointerWithItsStemOnIt() {
    ToolTipRequest asked = request();
    asked.balloon = true;
    const ToolTipPlace place = placeToolTip(asked);
    QVERIFY(place.above);
    QCOMPARE(place.position, QPoint(300 - BalloonStemInset, 170));
    QCOMPARE(place.position.x() + place.stemX, 300);
    QCOMPARE(place.position.y() + asked.size.height(), asked.pointer.y());
}

void ToolTipPlacementTest::aBalloonWithoutRoomAboveStandsBelowThePointer() {
    ToolTipRequest asked = request();
    asked.balloon = true;
    asked.pointer = {300, 29};
    const ToolTipPlace place = placeToolTip(asked);
    QVERIFY(!place.above);
    QCOMPARE(place.position, QPoint(300 - BalloonStemInset, 49));
    QCOMPARE(place.position.x() + place.stemX, 300);
}

void ToolTipPlacementTest::aCentredBalloonPointsAtTheMiddleOfItsTool() {
    ToolTipRequest asked = request();
    asked.balloon = true;
    asked.centered = true;
    const ToolTipPlace place = placeToolTip(asked);
    QVERIFY(!place.above);
    QCOMPARE(place.position, QPoint(250, 214));
    QCOMPARE(place.position.x() + place.stemX, 310);
}

void ToolTipPlacementTest::aTipIsKeptInsideTheScreen() {
    for (const bool balloon : {false, true}) {
        for (const bool centered : {false, true}) {
            for (const QPoint& pointer : {QPoint(0, 0), QPoint(999, 0), QPoint(0, 799),
                                          QPoint(999, 799), QPoint(500, 400)}) {
                ToolTipRequest asked = request();
                asked.balloon = balloon;
                asked.centered = centered;
                asked.pointer = pointer;
                asked.tool = QRect(pointer - QPoint(30, 12), QSize(60, 24));
                QVERIFY(WholeScreen.contains(QRect(placeToolTip(asked).position, asked.size)));
            }
        }
    }
}

void ToolTipPlacementTest::aBalloonAtTheScreensEdgeStillPointsAtThePointer() {
    ToolTipRequest asked = request();
    asked.balloon = true;
    asked.pointer = {950, 200};
    const ToolTipPlace place = placeToolTip(asked);
    QCOMPARE(place.position.x(), 880);
    QCOMPARE(place.position.x() + place.stemX, 950);
}

void ToolTipPlacementTest::aSecondScreenHasItsOwnEdges() {
    ToolTipRequest asked = request();
    asked.screen = QRect(-1000, 100, 1000, 600);
    asked.pointer = {-20, 690};
    QCOMPARE(placeToolTip(asked).position, QPoint(-120, 660));
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, ToolTipPlacementTest)
#include "tool_tip_placement_test.moc"
