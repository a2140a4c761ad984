// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/reminder_road.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;

class FontsJourneyTest : public QObject {
    Q_OBJECT
private slots:
    void theMessageFontStaysOverFiveRuns_data();
    void theMessageFontStaysOverFiveRuns();
};

void FontsJourneyTest::theMessageFontStaysOverFiveRuns_data() {
    QTest::addColumn<QSize>("screen");
    QTest::newRow("1024x768") << QSize(1024, 768);
    QTest::newRow("1920x1080") << QSize(1920, 1080);
}

void FontsJourneyTest::theMessageFontStaysOverFiveRuns() {
    QFETCH(QSize, screen);
    Stage stage({.screen = screen});
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    DrivenProgram program(stage, QStringLiteral(ORVALIS_EXECUTABLE));
    QByteArray stored;
    for (int run = 0; run < 5; ++run) {
        QVERIFY(program.start());
        ReminderRoad road(program, [](const QString&) {});
        road.openPanel();
        road.typeMessage(u"Title"_s, u"some words"_s);
        QVERIFY2(road.trouble().isEmpty(), qPrintable(road.trouble()));
        QVERIFY(program.click(u"frmnotes1/imgExit"_s));
        QVERIFY(waitUntil([&] { return program.messageBox().found; }, 5000));
        QCOMPARE(program.messageBox().text, u"Save changes before you quit?"_s);
        QVERIFY(program.answer(u"No"_s));
        QVERIFY(program.waitForEnd());

        QFile settings(program.configFolder() + u"/orvalis/orvalis.ini"_s);
        QVERIFY(settings.open(QIODevice::ReadOnly));
        const QByteArray now = settings.readAll();
        QVERIFY2(now.contains("FN=Arial") && now.contains("FS=8"), now.constData());
        if (run > 0)
            QCOMPARE(now, stored);
        stored = now;
    }
}

QTEST_GUILESS_MAIN(FontsJourneyTest)
#include "fonts_journey_test.moc"
