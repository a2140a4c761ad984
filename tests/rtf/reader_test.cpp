// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "recording_sink.h"
#include "rtf/reader.h"
#include "support/heard_progress.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextDocument>

using namespace orvalis;
using namespace orvalis::rtf;
using orvalis::test::RecordingSink;

class ReaderTest : public QObject {
    Q_OBJECT
private slots:
    void onlyWhatBeginsAsRtfIsRead_data();
    void onlyWhatBeginsAsRtfIsRead();
    void paragraphsEndAtTheirMarks();
    void whoWaitsHearsHowMuchIsRead_data();
    void whoWaitsHearsHowMuchIsRead();
};

void ReaderTest::onlyWhatBeginsAsRtfIsRead_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isRtf");
    QTest::newRow("version 1") << QByteArray("{\\rtf1 x}") << true;
    QTest::newRow("no version") << QByteArray("{\\rtf x}") << true;
    QTest::newRow("UTF-8 flavour") << QByteArray("{\\urtf1 x}") << true;
    QTest::newRow("behind a byte-order mark") << QByteArray("\xef\xbb\xbf{\\rtf1 x}") << true;
    QTest::newRow("behind blank lines") << QByteArray("\r\n \t{\\rtf1 x}") << true;
    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("plain text") << QByteArray("hello") << false;
    QTest::newRow("another group") << QByteArray("{\\foo1 x}") << false;
    QTest::newRow("behind a word") << QByteArray("x{\\rtf1 x}") << false;
    QTest::newRow("without its brace") << QByteArray("\\rtf1 x") << false;
}

void ReaderTest::onlyWhatBeginsAsRtfIsRead() {
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isRtf);
    QCOMPARE(looksLikeRtf(bytes), isRtf);
    RecordingSink sink;
    const ReadResult result = readRtf(bytes, sink);
    QCOMPARE(result.fault, isRtf ? Fault::None : Fault::NotRtf);
    QCOMPARE(sink.whole, isRtf ? QStringLiteral("x") : QString());
    QCOMPARE(sink.begun, isRtf ? 1 : 0);
    QCOMPARE(sink.finished, isRtf ? 1 : 0);
}

void ReaderTest::paragraphsEndAtTheirMarks() {
    RecordingSink sink;
    QVERIFY(readRtf("{\\rtf1\\ansi one\\par two\\par\r\n}\r\n", sink).ok());
    QCOMPARE(sink.whole, QStringLiteral("one\ntwo\n"));
}

void ReaderTest::whoWaitsHearsHowMuchIsRead_data() {
    QTest::addColumn<QByteArray>("piece");
    QTest::newRow("short paragraphs") << QByteArray("a {\\b line}\\par\n");
    QTest::newRow("one paragraph") << QByteArray("a {\\b line} ");
    QTest::newRow("groups alone") << QByteArray("{}{}{}{}");
    QTest::newRow("unknown words") << QByteArray("\\xyzzy");
}

void ReaderTest::whoWaitsHearsHowMuchIsRead() {
    QFETCH(QByteArray, piece);
    const QByteArray rtf = "{\\rtf1 " + piece.repeated(400'000 / piece.size()) + "}";
    test::HeardProgress heard;
    QTextDocument document;
    QVERIFY(readRtf(rtf, document, {.progress = heard.hears()}).ok());
    QVERIFY(heard.roseInSteps(0.1));
    QVERIFY2(heard.times < 100, qPrintable(QString::number(heard.times)));
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, ReaderTest)
#include "reader_test.moc"
