// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/room/document_height.h"

#include "room_documents.h"
#include "rtf/reader.h"
#include "rtf/room/paragraph_height.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextBoundaryFinder>
#include <QTextCursor>
#include <QTextDocument>

using namespace orvalis;
using namespace orvalis::rtf;
using namespace orvalis::test;

class DocumentHeightTest : public QObject {
    Q_OBJECT
private slots:
    void noDocumentIsHigherThanWasTold_data();
    void noDocumentIsHigherThanWasTold();
    void ordinaryTextIsToldAsHighAsItBecomes_data();
    void ordinaryTextIsToldAsHighAsItBecomes();
    void noFontOfOrdinaryTextIsHigherThanWasTold_data();
    void noFontOfOrdinaryTextIsHigherThanWasTold();
    void linesBreakWhereTheyAreSaidToBreak();
};

void DocumentHeightTest::noDocumentIsHigherThanWasTold_data() {
    QTest::addColumn<QByteArray>("rtf");
    const QByteArray words = "Some words of a letter, as people write them to each other. ";
    QTest::newRow("a long paragraph") << repeated(words, 400);
    QTest::newRow("short paragraphs") << repeated("word\\par ", 400);
    QTest::newRow("empty paragraphs") << repeated("\\par ", 400);
    QTest::newRow("capitals without blanks") << repeated("WWWWWWWWWW", 400);
    QTest::newRow("words a little longer than half a line") << repeated("WWWWWWW ", 400);
    QTest::newRow("tabs") << repeated("\\tab ", 400);
    QTest::newRow("line breaks") << repeated("\\line ", 400);
    QTest::newRow("large letters") << repeated("\\fs400 large \\par ", 20);
    QTest::newRow("largest letters") << repeated("\\fs3276 A", 20);
    QTest::newRow("small letters") << repeated("\\fs2 small ", 400);
    QTest::newRow("raised letters") << repeated("\\fs2\\up2000 a \\up0 b ", 50);
    QTest::newRow("margins") << repeated("\\sb100000\\sa100000 a\\par ", 20);
    QTest::newRow("many lines a line") << repeated("\\sl100000\\slmult1 a\\par ", 20);
    QTest::newRow("lines at least") << repeated("\\sl100000 a\\par ", 20);
    QTest::newRow("lines exactly") << repeated("\\sl-100000 a\\par ", 20);
    QTest::newRow("no room beside the indent") << repeated("\\li100000 indented words ", 40);
    QTest::newRow("first line without room") << repeated("\\fi100000 indented words\\par ", 40);
    QTest::newRow("no room at the right") << repeated("\\ri100000 indented words ", 40);
    QTest::newRow("bullets") << repeated("{\\pntext\\bullet}{\\*\\pn\\pnlvlblt} item\\par ", 100);
    QTest::newRow("ideographs") << repeated("\\u28450?\\u23383?", 400);
    QTest::newRow("a sentence in one character") << repeated("\\u-541?", 200);
    QTest::newRow("runs") << repeated("\\b a\\b0 b", 400);
    QTest::newRow("fonts and sizes mixed in a line") << repeated("\\fs16 small \\fs80 large", 100);
}

/// The sum holds with what it leaves for fonts of other measures.
void DocumentHeightTest::noDocumentIsHigherThanWasTold() {
    QFETCH(QByteArray, rtf);
    QTextDocument document;
    QVERIFY(readRtf(rtf, document).ok());
    const double told = documentHeight(document);
    const double height = laidOutHeight(document);
    QVERIFY2(height <= 1.25 * told, qPrintable(QStringLiteral("%1 of %2").arg(height).arg(told)));
}

void DocumentHeightTest::ordinaryTextIsToldAsHighAsItBecomes_data() {
    QTest::addColumn<QByteArray>("rtf");
    const QByteArray words = "Some words (of a letter), as people write them to each other. ";
    QTest::newRow("a long paragraph") << repeated(words, 400);
    QTest::newRow("short paragraphs") << repeated("A short line of a list\\par ", 400);
    QTest::newRow("empty paragraphs") << repeated("\\par ", 400);
    QTest::newRow("bold and italic words")
        << repeated("some {\\b bold} and {\\i other} words ", 400);
    QTest::newRow("two sizes") << repeated(words, 200).chopped(1) + "\\fs40 " +
                                      words.repeated(200) + '}';
    QTest::newRow("a word of two sizes in each paragraph")
        << repeated("\\fs40 Sizes of letters\\fs2 that go on in another line of words\\par ", 50);
    QTest::newRow("margins and distances")
        << repeated("\\sb200\\sa100\\sl360\\slmult1 " + words + "\\par", 50);
    QTest::newRow("indents") << repeated("\\li600\\fi-300\\ri200 " + words + "\\par", 50);
    QTest::newRow("a long word") << repeated("letters", 400);
    QTest::newRow("Greek") << repeated("\\u955?\\u972?\\u947?\\u959?\\u962? ", 400);
    QTest::newRow("Cyrillic") << repeated("\\u1089?\\u1083?\\u1086?\\u1074?\\u1086? ", 400);
}

/// So that a document has room for all the text that its window can lay out.
void DocumentHeightTest::ordinaryTextIsToldAsHighAsItBecomes() {
    QFETCH(QByteArray, rtf);
    QTextDocument document;
    QVERIFY(readRtf(rtf, document).ok());
    const double told = documentHeight(document);
    const double height = laidOutHeight(document);
    QVERIFY2(height <= told, qPrintable(QStringLiteral("%1 of %2").arg(height).arg(told)));
    // A long word counts twice, for it may be several that are broken elsewhere, and so does where
    // another size begins.
    const QByteArray row = QTest::currentDataTag();
    const double least = row == "a long word" || row.contains("two sizes") ? 0.3 : 0.8;
    QVERIFY2(height >= least * told, qPrintable(QStringLiteral("%1 of %2").arg(height).arg(told)));
}

void DocumentHeightTest::noFontOfOrdinaryTextIsHigherThanWasTold_data() {
    QTest::addColumn<QString>("family");
    QTest::addColumn<double>("points");
    QTest::addColumn<int>("weight");
    for (const char* family : {"Liberation Sans", "Liberation Serif", "Liberation Mono",
                               "DejaVu Sans", "DejaVu Sans Mono", "No such family"})
        for (const double points : {5.5, 8.0, 12.0, 17.0, 26.0, 30.0, 100.0})
            for (const int weight : {int(QFont::Normal), int(QFont::Bold)})
                QTest::addRow("%s %.1f %d", family, points, weight)
                    << QString::fromLatin1(family) << points << weight;
}

void DocumentHeightTest::noFontOfOrdinaryTextIsHigherThanWasTold() {
    QFETCH(QString, family);
    QFETCH(double, points);
    QFETCH(int, weight);
    QTextCharFormat format;
    format.setFontFamilies({family});
    format.setFontPointSize(points);
    format.setFontWeight(weight);
    format.setFontItalic(weight == QFont::Bold);
    // Texts of which each word needs almost a line, of pairs that stand closely, of signs.
    const QString texts[] = {
        QStringLiteral("Of ordinary words, (some in brackets) and \"others\" not; 1,234 - or so! "),
        QStringLiteral("WWWWWWW illiilliil WWWW-WWWW-WWWW mmm/mmm/mmmm "),
        QStringLiteral("AVAVAVAV ToToToTo f)f]f} \u201cThus\u201d \u2013 \u00abso\u00bb \u20ac5 "),
        QStringLiteral("a\tb\u2028c \t  d     e"),
        QStringLiteral("\u0401\u0436 \u03a9\u03bc \u00e9\u00df\u0159 "),
    };
    for (const QString& text : texts) {
        QTextDocument document;
        QTextCursor(&document).insertText(text.repeated(60), format);
        const double told = documentHeight(document);
        const double height = laidOutHeight(document);
        QVERIFY2(height <= told,
                 qPrintable(QStringLiteral("%1 of %2 for %3").arg(height).arg(told).arg(text)));
    }
}

void DocumentHeightTest::linesBreakWhereTheyAreSaidToBreak() {
    QList<QChar> characters;
    for (char16_t c = u'!'; c < 0x530; ++c)
        characters << QChar(c);
    for (char16_t c = 0x2010; c < 0x2028; ++c)
        characters << QChar(c);
    int breaks = 0;
    for (const QChar ahead : std::as_const(characters))
        for (const QChar behind : std::as_const(characters)) {
            if (!ahead.isPrint() || !behind.isPrint() ||
                !breaksBetween(ahead.unicode(), behind.unicode()))
                continue;
            if (ahead.unicode() > 0x17f && behind.unicode() > 0x17f)
                continue; // letters among letters; all pairs of them take long
            const QString text = QStringLiteral("a") + ahead + u' ' + behind + u'b';
            QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
            finder.setPosition(3);
            QVERIFY2(finder.isAtBoundary(), qPrintable(text));
            ++breaks;
        }
    QVERIFY(breaks > 100'000);
    QVERIFY(breaksBetween(u',', u'w'));
    QVERIFY(!breaksBetween(u'(', u'w'));
    QVERIFY(!breaksBetween(u'w', u')'));
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, DocumentHeightTest)
#include "document_height_test.moc"
