// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/reminder_road.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
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
    QTest::addColumn<QByteArray>("family");
    QTest::addColumn<QByteArray>("size");
    QTest::addColumn<bool>("chosen");
    for (const QSize& screen : {QSize(1024, 768), QSize(1920, 1080)}) {
        QTest::addRow("%dx%d", screen.width(), screen.height())
            << screen << QByteArray("Arial") << QByteArray("8") << false;
        // A size that the screen's factor neither takes to a whole number nor back from one.
        QTest::addRow("%dx%d, a font of the user's own", screen.width(), screen.height())
            << screen << QByteArray("DejaVu Serif") << QByteArray("11") << true;
    }
}

void FontsJourneyTest::theMessageFontStaysOverFiveRuns() {
    QFETCH(QSize, screen);
    QFETCH(QByteArray, family);
    QFETCH(QByteArray, size);
    QFETCH(bool, chosen);
    Stage stage({.screen = screen});
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    DrivenProgram program(stage, QStringLiteral(ORVALIS_EXECUTABLE));
    const QString settingsFile = program.configFolder() + u"/orvalis/orvalis.ini"_s;
    if (chosen) {
        QVERIFY(QDir().mkpath(QFileInfo(settingsFile).path()));
        QFile settings(settingsFile);
        QVERIFY(settings.open(QIODevice::WriteOnly));
        settings.write("[RT1]\nFN=" + family + "\nFS=" + size + "\n");
    }
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

        QFile settings(settingsFile);
        QVERIFY(settings.open(QIODevice::ReadOnly));
        const QByteArray now = settings.readAll();
        QVERIFY2(now.contains("FN=" + family + '\n'), now.constData());
        QVERIFY2(now.contains("FS=" + size + '\n'), now.constData());
        if (run > 0)
            QCOMPARE(now, stored);
        stored = now;
    }
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, FontsJourneyTest)
#include "fonts_journey_test.moc"
