// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/text_file.h"

#include "support/test_main.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace orvalis;

class TextFileTest : public QObject {
    Q_OBJECT
private slots:
    void aTextIsWrittenInTheFormThatFits_data();
    void aTextIsWrittenInTheFormThatFits();
    void bytesAreReadInTheFormTheyHave_data();
    void bytesAreReadInTheFormTheyHave();
    void everyTextComesBack();
    void theBeginningIsReadInTheFormOfTheWhole_data();
    void theBeginningIsReadInTheFormOfTheWhole();
};

void TextFileTest::aTextIsWrittenInTheFormThatFits_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("page");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << u""_s << 1252 << QByteArray();
    QTest::newRow("plain") << u"Buy kiwis\r\n"_s << 1252 << QByteArray("Buy kiwis\r\n");
    QTest::newRow("fits the page") << u"café"_s << 1252 << QByteArray("caf\xE9");
    QTest::newRow("fits another page") << u"Жук"_s << 1251 << QByteArray("\xC6\xF3\xEA");
    QTest::newRow("outside the page")
        << u"Жук"_s << 1252 << QByteArray("\xEF\xBB\xBF\xD0\x96\xD1\x83\xD0\xBA");
    QTest::newRow("bytes that could be UTF-8")
        << u"Ã©"_s << 1252 << QByteArray("\xEF\xBB\xBF\xC3\x83\xC2\xA9");
    QTest::newRow("bytes that begin like the mark")
        << u"ï»¿é"_s << 1252 << QByteArray("\xEF\xBB\xBF\xC3\xAF\xC2\xBB\xC2\xBF\xC3\xA9");
}

void TextFileTest::aTextIsWrittenInTheFormThatFits() {
    QFETCH(QString, text);
    QFETCH(int, page);
    QFETCH(QByteArray, bytes);
    QCOMPARE(encodeText(text, AnsiPage::of(page)), bytes);
    QCOMPARE(decodeText(bytes, AnsiPage::of(page)), text);
}

void TextFileTest::bytesAreReadInTheFormTheyHave_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("mark alone") << QByteArray("\xEF\xBB\xBF") << u""_s;
    QTest::newRow("UTF-8 without the mark") << QByteArray("caf\xC3\xA9") << u"café"_s;
    QTest::newRow("the page") << QByteArray("caf\xE9 \xC3\xA9") << u"café Ã©"_s;
    QTest::newRow("cut UTF-8 under the mark") << QByteArray("\xEF\xBB\xBFx\xC3") << u"x\uFFFD"_s;
    QTest::newRow("NUL") << QByteArray("a\0b", 3) << QString(u"a\0b"_s);
}

void TextFileTest::bytesAreReadInTheFormTheyHave() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(decodeText(bytes, AnsiPage::of(1252)), text);
}

void TextFileTest::everyTextComesBack() {
    for (const int number : {874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258}) {
        const AnsiPage& page = AnsiPage::of(number);
        // Every pair of codes of the upper half: the shortest texts that could be mistaken.
        for (int first = 128; first < 256; ++first) {
            for (int second = 128; second < 256; ++second) {
                const QString text = Chr(first, page) + Chr(second, page);
                QCOMPARE(decodeText(encodeText(text, page), page), text);
            }
        }
    }
}

void TextFileTest::theBeginningIsReadInTheFormOfTheWhole_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("beginning");
    QTest::newRow("ASCII") << QByteArray("abcdef") << u"abcd"_s;
    QTest::newRow("UTF-8") << QByteArray("\xC3\xA9"
                                         "abc")
                           << u"éab"_s;
    QTest::newRow("the mark is no part of it") << QByteArray("\xEF\xBB\xBF"
                                                             "abcde")
                                               << u"abcd"_s;
    QTest::newRow("the page, as its end says") << QByteArray("\xC3\xA9"
                                                             "abc\xE9")
                                               << u"Ã©ab"_s;
    QTest::newRow("a character that is cut") << QByteArray("abc\xC3\xA9") << u"abc\uFFFD"_s;
    QTest::newRow("shorter than that") << QByteArray("ab") << u"ab"_s;
}

void TextFileTest::theBeginningIsReadInTheFormOfTheWhole() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, beginning);
    QCOMPARE(decodeTextStart(bytes, 4, AnsiPage::of(1252)), beginning);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, TextFileTest)
#include "text_file_test.moc"
