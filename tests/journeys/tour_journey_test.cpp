// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "support/temporary_folder.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace orvalis::test;

/// The tour, as ./run plays it where there is no display.
class TourJourneyTest : public QObject {
    Q_OBJECT
private slots:
    void itLeavesThePicturesOfItsLastRunAndWhatElseTheFolderHolds();
    void aPictureThatCannotBeTakenIsAFailure();

private:
    static int play(const QString& folder, QByteArray* words);
};

int TourJourneyTest::play(const QString& folder, QByteArray* words) {
    QProcess tour;
    tour.setProcessChannelMode(QProcess::MergedChannels);
    tour.start(QStringLiteral(ORVALIS_TOUR), {QStringLiteral(ORVALIS_EXECUTABLE), folder});
    tour.waitForFinished(180000);
    *words = tour.readAll();
    return tour.exitStatus() == QProcess::NormalExit ? tour.exitCode() : -1;
}

void TourJourneyTest::itLeavesThePicturesOfItsLastRunAndWhatElseTheFolderHolds() {
    const TemporaryFolder folder;
    folder.write(u"holiday.png"_s, "mine");
    folder.write(u"99-of-a-longer-tour.png"_s, "old");
    QDir(folder.path()).mkdir(u"letters"_s);
    QByteArray words;
    QVERIFY2(play(folder.path(), &words) == 0, words.constData());
    QCOMPARE(folder.read(u"holiday.png"_s), QByteArray("mine"));
    QVERIFY(QDir(folder.file(u"letters"_s)).exists());
    const QStringList pictures =
        QDir(folder.path()).entryList({u"[0-9][0-9]-*.png"_s}, QDir::Files);
    QVERIFY2(pictures.contains(u"01-main-window.png"_s), words.constData());
    QVERIFY(!pictures.contains(u"99-of-a-longer-tour.png"_s));
    for (const QString& picture : pictures)
        QVERIFY2(!QImage(folder.file(picture)).isNull(), qPrintable(picture));
}

void TourJourneyTest::aPictureThatCannotBeTakenIsAFailure() {
    const TemporaryFolder folder;
    QDir(folder.path()).mkdir(u"01-main-window.png"_s);
    QByteArray words;
    QCOMPARE(play(folder.path(), &words), 1);
    QVERIFY2(words.contains("no picture could be taken"), words.constData());
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, TourJourneyTest)
#include "tour_journey_test.moc"
