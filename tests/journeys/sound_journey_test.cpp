// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/reminder_road.h"
#include "support/null_sink.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;
using namespace orvalis::test;

/// The program as it is built, with a sound device.
class SoundJourneyTest : public QObject {
    Q_OBJECT
private slots:
    void aReminderThatIsDueIsHeard();
};

void SoundJourneyTest::aReminderThatIsDueIsHeard() {
    NullSink sink;
    QVERIFY(sink.isListening());
    Stage stage({});
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    DrivenProgram program(stage, QStringLiteral(ORVALIS_EXECUTABLE));
    program.setVariable(u"PULSE_SERVER"_s, sink.server());
    program.setClock(QDateTime(QDate(2026, 3, 14), QTime(10, 24, 20), Qt::UTC));
    QVERIFY(program.start());
    ReminderRoad road(program, [](const QString&) {});
    road.openPanel();
    road.typeMessage(u"Garden"_s, u"Water the roses"_s);
    road.tickRemind();
    road.pickTime(10, 25);
    road.typeEventMessage(u"Water the roses"_s);
    road.pressOk();
    road.pressSave();
    QVERIFY2(road.trouble().isEmpty(), qPrintable(road.trouble()));
    QCOMPARE(sink.heard(), 0);
    program.setClock(QDateTime(QDate(2026, 3, 14), QTime(10, 24, 57), Qt::UTC));
    qsizetype heard = 0;
    constexpr qsizetype PartOfASecond = 10'000; // bytes
    QVERIFY2(waitUntil([&] { return (heard += sink.heard()) > PartOfASecond; }, 30000),
             qPrintable(u"%1 bytes of sound were heard"_s.arg(heard)));
    QVERIFY2(road.waitForSticker(15000), qPrintable(road.trouble()));
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, SoundJourneyTest)
#include "sound_journey_test.moc"
