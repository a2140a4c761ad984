// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/room/document_room.h"

#include "room_documents.h"
#include "rtf/reader.h"
#include "rtf/room/document_height.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

using namespace orvalis;
using namespace orvalis::rtf;
using namespace orvalis::test;

class FittingFormatTest : public QObject {
    Q_OBJECT
private slots:
    void raisedLettersTakeASizeThatTheDocumentCanShow();
    void aSizeShrinksToWhatTheDocumentCanShow();
    void anIndentCountsWithTheLinesThatItMakes();
    void lettersBecomeNoWiderThanTheDocumentCanShow_data();
    void lettersBecomeNoWiderThanTheDocumentCanShow();
    void linesBecomeNoShorterThanTheDocumentCanShow();
    void aParagraphKeepsItsShapeOnlyWhereWhatComesIntoItHasRoomInIt();
    void anInsertionIsCountedInTheShapeThatItBringsAheadOfText();
};

/// How far letters are raised is told in parts of their size, and grows with it.
void FittingFormatTest::raisedLettersTakeASizeThatTheDocumentCanShow() {
    QTextDocument document;
    readRtf("{\\rtf1\\fs2\\up2000 " + QByteArray(2000, 'M') + '}', document);
    QTextCursor all(&document);
    all.select(QTextCursor::Document);
    QTextCharFormat format;
    format.setFontPointSize(100);
    all.mergeCharFormat(fittingFormat(all, format));
    QVERIFY2(documentHeight(document) <= MostHeight,
             qPrintable(QString::number(documentHeight(document))));
}

void FittingFormatTest::aSizeShrinksToWhatTheDocumentCanShow() {
    QTextDocument document;
    readRtf(repeated("words ", 10'000), document);
    QTextCursor all(&document);
    all.select(QTextCursor::Document);
    QTextCharFormat format;
    format.setFontPointSize(20);
    QCOMPARE(fittingFormat(all, format).fontPointSize(), 20.0);
    format.setFontPointSize(1000);
    const double size = fittingFormat(all, format).fontPointSize();
    QVERIFY2(size > 20 && size < 100, qPrintable(QString::number(size)));
    format.setFontPointSize(size);
    all.mergeCharFormat(format);
    QVERIFY(documentHeight(document) <= MostHeight);
    QTextDocument empty;
    format.setFontPointSize(1e9);
    QCOMPARE(fittingFormat(QTextCursor(&empty), format).fontPointSize(), LargestPoints);
    format.clearProperty(QTextFormat::FontPointSize);
    QCOMPARE(fittingFormat(all, format), format);
}

void FittingFormatTest::anIndentCountsWithTheLinesThatItMakes() {
    QTextDocument document;
    readRtf("{\\rtf1\\fs20 " + QByteArray("words ").repeated(60'000) + "}", document);
    QTextCursor all(&document);
    all.select(QTextCursor::Document);
    QTextBlockFormat indent;
    indent.setLeftMargin(20);
    QVERIFY(fitsParagraphs(all, indent));
    indent.setLeftMargin(5000);
    QVERIFY(!fitsParagraphs(all, indent));
}

void FittingFormatTest::lettersBecomeNoWiderThanTheDocumentCanShow_data() {
    QTest::addColumn<int>("property");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("bold") << int(QTextFormat::FontWeight) << QVariant(int(QFont::Bold));
    QTest::newRow("of another family") << int(QTextFormat::FontFamilies)
                                       << QVariant(QStringList{QStringLiteral("DejaVu Sans Mono")});
}

void FittingFormatTest::lettersBecomeNoWiderThanTheDocumentCanShow() {
    QFETCH(int, property);
    QFETCH(QVariant, value);
    QTextDocument document;
    fillDocument(document);
    QTextCursor all(&document);
    all.select(QTextCursor::Document);
    QTextCharFormat format;
    format.setProperty(property, value);
    format.setFontUnderline(true);
    const QTextCharFormat fitting = fittingFormat(all, format);
    QVERIFY(!fitting.hasProperty(property));
    QVERIFY(fitting.fontUnderline());
    // Nothing gets wider where nothing is selected, and little may.
    all.setPosition(7);
    QCOMPARE(fittingFormat(all, format), format);
    QTextDocument other;
    other.setPlainText(QStringLiteral("words"));
    QTextCursor word(&other);
    word.select(QTextCursor::Document);
    QCOMPARE(fittingFormat(word, format), format);
}

void FittingFormatTest::linesBecomeNoShorterThanTheDocumentCanShow() {
    QTextDocument document;
    fillDocument(document);
    QTextCursor all(&document);
    all.select(QTextCursor::Document);
    QVERIFY(!fitsNarrower(all, 24));
    QTextDocument other;
    other.setPlainText(QStringLiteral("words"));
    QVERIFY(fitsNarrower(QTextCursor(&other), 24));
}

/// The end of an insertion shares a paragraph with what stood behind it.
void FittingFormatTest::aParagraphKeepsItsShapeOnlyWhereWhatComesIntoItHasRoomInIt() {
    const QByteArray highLines = "{\\rtf1\\sl483648\\slmult1 words behind\\par}";
    const auto insert = [&](QTextDocument& document, const QByteArray& letters) {
        readRtf(highLines, document);
        QTextCursor cursor(&document);
        cursor.setPosition(6);
        QVERIFY(insertRtf("{\\rtf1 a\\par " + letters + "}", cursor).ok());
    };
    QTextDocument document;
    insert(document, "\\fs3276 " + QByteArray("large ").repeated(20));
    QVERIFY(document.toPlainText().endsWith(QStringLiteral("large behind")));
    QVERIFY2(documentHeight(document) <= MostHeight,
             qPrintable(QString::number(documentHeight(document))));
    QVERIFY(document.lastBlock().blockFormat().lineHeight() == 0);
    QTextDocument other;
    insert(other, "small ");
    QVERIFY(other.lastBlock().blockFormat().lineHeight() > 1000);
}

void FittingFormatTest::anInsertionIsCountedInTheShapeThatItBringsAheadOfText() {
    QTextDocument document;
    readRtf("{\\rtf1 words}", document);
    QTextCursor cursor(&document);
    QCOMPARE(insertRtf("{\\rtf1\\sl483648\\slmult1\\fs800 " + QByteArray("large ").repeated(20) +
                           "\\par b}",
                       cursor)
                 .fault,
             Fault::TooLarge);
    QVERIFY2(documentHeight(document) <= MostHeight,
             qPrintable(QString::number(documentHeight(document))));
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, FittingFormatTest)
#include "fitting_format_test.moc"
