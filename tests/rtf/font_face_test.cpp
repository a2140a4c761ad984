// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextDocument>

using namespace orvalis::rtf;

/// What a file tells of its faces beside their names.
class FontFaceTest : public QObject {
    Q_OBJECT
private slots:
    void whatIsToldOfAFaceStays_data();
    void whatIsToldOfAFaceStays();
    void theFirstEntryOfAFaceCounts();
    void aCopyTellsOfItsFaces();
};

void FontFaceTest::whatIsToldOfAFaceStays_data() {
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QByteArray>("written");
    const auto row = [](const char* name, const QByteArray& entry, const QByteArray& written) {
        QTest::newRow(name) << "{\\f0" + entry + ";}"
                            << "{\\f0" + written + ";}";
    };
    row("nothing", " Any", "\\fnil\\fcharset0 Any");
    row("its kind", "\\fswiss Any", "\\fswiss\\fcharset0 Any");
    row("its directions", "\\fbidi\\fmodern\\fcharset0 Any", "\\fbidi\\fmodern\\fcharset0 Any");
    row("its pitch", "\\fscript\\fprq1 Any", "\\fscript\\fcharset0\\fprq1 Any");
    row("a pitch that nobody knows", "\\froman\\fprq3 Any", "\\froman\\fcharset0 Any");
    row("a name that is a number", "\\froman\\fprq2 7", "\\froman\\fcharset0\\fprq2 7");
    row("a name with half a character", " A\\u-9047?", "\\fnil\\fcharset0 A\\u-3?");
    row("a name with a mark that shows nothing", " A\\u-257?", "\\fnil\\fcharset0 A");
    row("its measures", "\\fdecor{\\*\\panose 020b0604}Any",
        "\\fdecor\\fcharset0{\\*\\panose 020b0604}Any");
    row("another face", "\\ftech Any{\\*\\falt Other}", "\\ftech\\fcharset0 Any{\\*\\falt Other}");
    row("another face in its script", "\\fcharset204 Any{\\*\\falt \\'e0}",
        "\\fnil\\fcharset0 Any{\\*\\falt\\u1072?}");
    row("another face that names a colour", "\\froman Any{\\*\\falt\\cf1 x}",
        "\\froman\\fcharset0 Any");
    row("a font of signs", "\\froman\\fcharset2\\fprq2 Symbol",
        "\\froman\\fcharset2\\fprq2 Symbol");
}

void FontFaceTest::whatIsToldOfAFaceStays() {
    QFETCH(QByteArray, entry);
    QFETCH(QByteArray, written);
    QTextDocument document;
    QVERIFY(readRtf("{\\rtf1\\deff0{\\fonttbl" + entry + "}\\f0 a\\par}", document).ok());
    const QByteArray first = writeRtf(document);
    QVERIFY2(first.contains("{\\fonttbl" + written + "}"), first.constData());
    QTextDocument again;
    QVERIFY(readRtf(first, again).ok());
    QCOMPARE(writeRtf(again), first);
}

void FontFaceTest::theFirstEntryOfAFaceCounts() {
    QTextDocument document;
    QVERIFY(
        readRtf(
            "{\\rtf1{\\fonttbl{\\f0 Any;}{\\f1\\fswiss Any CE;}{\\f2\\froman Any;}}\\f2 a\\par}",
            document)
            .ok());
    QVERIFY2(writeRtf(document).contains("\\fswiss\\fcharset0 Any;"),
             writeRtf(document).constData());
}

void FontFaceTest::aCopyTellsOfItsFaces() {
    QTextDocument document;
    QVERIFY(readRtf("{\\rtf1{\\fonttbl{\\f0\\fmodern Any;}}\\f0 ab\\par}", document).ok());
    QVERIFY(writeRtf(document, 0, 1).contains("\\fmodern\\fcharset0 Any;"));
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, FontFaceTest)
#include "font_face_test.moc"
