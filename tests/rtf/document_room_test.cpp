// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/document_room.h"

#include "rtf/document_height.h"
#include "rtf/intake.h"
#include "rtf/long_words.h"
#include "rtf/paragraph_height.h"
#include "rtf/reader.h"
#include "support/test_main.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QTextBlock>
#include <QTextBoundaryFinder>
#include <QTextCursor>
#include <QTextDocument>

using namespace orvalis;
using namespace orvalis::rtf;

namespace {

constexpr int NarrowBox = 150; // pixels

/// Lays out all of it, as a narrow window would.
double laidOutHeight(QTextDocument& document) {
    document.setDocumentMargin(0);
    document.setTextWidth(NarrowBox);
    return document.documentLayout()->documentSize().height();
}

QByteArray repeated(const QByteArray& piece, int times) {
    return "{\\rtf1 " + piece.repeated(times) + "}";
}

/// As much ordinary text as it can hold, in lines that are far apart.
void fill(QTextDocument& document) {
    const QByteArray words = "Some words of a letter, as people write them to each other. ";
    const ReadResult result =
        readRtf("{\\rtf1{\\fonttbl{\\f0 Liberation Sans;}}\\f0\\fs24\\sl-3600 " +
                    words.repeated(15'000) + "}",
                document);
    QCOMPARE(result.fault, Fault::TooLarge);
}

} // namespace

class DocumentRoomTest : public QObject {
    Q_OBJECT
private slots:
    void noDocumentIsHigherThanWasTold_data();
    void noDocumentIsHigherThanWasTold();
    void whatIsReadCountsOnce();
    void ordinaryTextIsToldAsHighAsItBecomes_data();
    void ordinaryTextIsToldAsHighAsItBecomes();
    void noFontOfOrdinaryTextIsHigherThanWasTold_data();
    void noFontOfOrdinaryTextIsHigherThanWasTold();
    void linesBreakWhereTheyAreSaidToBreak();
    void whatIsTooHighEndsWhereItIsFull_data();
    void whatIsTooHighEndsWhereItIsFull();
    void aDocumentThatFitsIsReadWithoutFault();
    void insertionsCountTogether();
    void whatWentAwayMakesRoom();
    void insertionsWithinOneEditCountTogether();
    void undoBringsBackWhatItTook();
    void aFullDocumentTakesNothingMore();
    void aParagraphHasALargestLength();
    void eachParagraphMayHaveTheLargestLength();
    void paragraphsHaveALargestNumber();
    void charactersHaveALargestNumber();
    void fontsHaveALargestNumber();
    void aPictureCountsWithItsHeight();
    void noPairOfSurrogatesIsParted();
    void raisedLettersTakeASizeThatTheDocumentCanShow();
    void aSizeShrinksToWhatTheDocumentCanShow();
    void anIndentCountsWithTheLinesThatItMakes();
    void lettersBecomeNoWiderThanTheDocumentCanShow_data();
    void lettersBecomeNoWiderThanTheDocumentCanShow();
    void linesBecomeNoShorterThanTheDocumentCanShow();
    void linesBreakAnywhereWhileThereIsALongWord();
    void linesBreakAnywhereWhereOneLetterMakesAllOfItsWordTooHigh();
    void aParagraphKeepsItsShapeOnlyWhereWhatComesIntoItHasRoomInIt();
    void anInsertionIsCountedInTheShapeThatItBringsAheadOfText();
    void longWordsAreTold_data();
    void longWordsAreTold();
};

void DocumentRoomTest::noDocumentIsHigherThanWasTold_data() {
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
void DocumentRoomTest::noDocumentIsHigherThanWasTold() {
    QFETCH(QByteArray, rtf);
    QTextDocument document;
    QVERIFY(readRtf(rtf, document).ok());
    const double told = documentHeight(document);
    const double height = laidOutHeight(document);
    QVERIFY2(height <= 1.25 * told, qPrintable(QStringLiteral("%1 of %2").arg(height).arg(told)));
}

void DocumentRoomTest::whatIsReadCountsOnce() {
    QTextDocument document;
    document.documentLayout();
    QVERIFY(readRtf(repeated("Some words of a letter.\\par ", 2000), document).ok());
    const double taken = MostHeight - DocumentRoom::of(document).heightLeft(1);
    const double told = documentHeight(document);
    QVERIFY2(taken >= told && taken <= 1.1 * told,
             qPrintable(QStringLiteral("%1 of %2").arg(taken).arg(told)));
}

void DocumentRoomTest::ordinaryTextIsToldAsHighAsItBecomes_data() {
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
void DocumentRoomTest::ordinaryTextIsToldAsHighAsItBecomes() {
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

void DocumentRoomTest::noFontOfOrdinaryTextIsHigherThanWasTold_data() {
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

void DocumentRoomTest::noFontOfOrdinaryTextIsHigherThanWasTold() {
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

void DocumentRoomTest::linesBreakWhereTheyAreSaidToBreak() {
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

void DocumentRoomTest::whatIsTooHighEndsWhereItIsFull_data() {
    QTest::addColumn<QByteArray>("rtf");
    QTest::newRow("large letters in many lines a line")
        << QByteArray("{\\rtf1 0\\fs3276\\sl483648\\slmult1 se t C s y d a\\par}");
    QTest::newRow("margins") << repeated("\\sb100000 a\\par ", 4000);
    QTest::newRow("large paragraphs") << repeated("\\fs3276\\par ", 6000);
    QTest::newRow("empty paragraphs") << repeated("\\par ", 500'000);
    QTest::newRow("lines") << repeated("\\line ", 500'000);
    QTest::newRow("a long line") << repeated("word ", 400'000);
    QTest::newRow("a long word") << repeated("wordword", 250'000);
    QTest::newRow("tabs") << repeated("\\tab ", 500'000);
    QTest::newRow("no room") << repeated("\\li100000 words ", 100'000);
    QTest::newRow("long margins and high lines")
        << repeated("\\sb9000\\sa9000\\sl9000\\slmult1\\fs500 a\\par ", 2000);
}

void DocumentRoomTest::whatIsTooHighEndsWhereItIsFull() {
    QFETCH(QByteArray, rtf);
    QTextDocument document;
    QCOMPARE(readRtf(rtf, document).fault, Fault::TooLarge);
    QVERIFY(documentHeight(document) <= MostHeight);
    QVERIFY(document.characterCount() > 1);
    const double height = laidOutHeight(document);
    QVERIFY2(height <= EndlessHeight, qPrintable(QString::number(height)));
}

void DocumentRoomTest::aDocumentThatFitsIsReadWithoutFault() {
    QTextDocument document;
    const QByteArray line =
        "A line of the sort that people note down on each day of a year.\\par\r\n";
    constexpr int Lines = 15'000; // a million characters
    QVERIFY(readRtf("{\\rtf1\\fs20 " + line.repeated(Lines) + "}", document).ok());
    QCOMPARE(document.blockCount(), Lines);
}

void DocumentRoomTest::insertionsCountTogether() {
    QTextDocument document;
    document.documentLayout();
    const QByteArray piece = repeated("\\sb100000 a\\par ", 540); // half of what fits
    int whole = 0;
    for (int time = 0; time < 5; ++time) {
        QTextCursor cursor(&document);
        cursor.movePosition(QTextCursor::End);
        whole += insertRtf(piece, cursor).ok();
    }
    QCOMPARE(whole, 2);
    QVERIFY(documentHeight(document) <= MostHeight);
    QVERIFY(laidOutHeight(document) <= EndlessHeight);
}

void DocumentRoomTest::whatWentAwayMakesRoom() {
    QTextDocument document;
    document.documentLayout();
    const QByteArray piece = repeated("\\sb100000 a\\par ", 1000);
    for (int time = 0; time < 5; ++time) {
        QTextCursor cursor(&document);
        cursor.select(QTextCursor::Document);
        QVERIFY(insertRtf(piece, cursor).ok());
    }
}

void DocumentRoomTest::insertionsWithinOneEditCountTogether() {
    QTextDocument document;
    document.documentLayout();
    const QByteArray piece = repeated("\\sb100000 a\\par ", 540);
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    for (int time = 0; time < 5; ++time)
        insertRtf(piece, cursor);
    QVERIFY(documentHeight(document) <= MostHeight);
    cursor.endEditBlock();
    QVERIFY(laidOutHeight(document) <= EndlessHeight);
}

void DocumentRoomTest::undoBringsBackWhatItTook() {
    QTextDocument document;
    document.documentLayout();
    const QByteArray piece = repeated("\\sb100000 a\\par ", 540);
    for (int time = 0; time < 2; ++time) {
        QTextCursor cursor(&document);
        cursor.movePosition(QTextCursor::End);
        QVERIFY(insertRtf(piece, cursor).ok());
    }
    document.undo();
    document.redo();
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    QCOMPARE(insertRtf(piece, cursor).fault, Fault::TooLarge);
    QVERIFY(documentHeight(document) <= MostHeight);
}

void DocumentRoomTest::aFullDocumentTakesNothingMore() {
    QTextDocument document;
    readRtf(repeated("\\sb100000 a\\par ", 4000), document);
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    QVERIFY(!hasRoomFor(cursor, u"\r"));
    const int characters = document.characterCount();
    insertRtf(repeated("\\sb100000 a\\par ", 4), cursor);
    QVERIFY(document.characterCount() <= characters + 2);
    cursor.select(QTextCursor::BlockUnderCursor);
    QVERIFY(hasRoomFor(cursor, u"x"));
}

void DocumentRoomTest::aParagraphHasALargestLength() {
    QTextDocument document;
    const QByteArray rtf = "{\\rtf1\\fs2 " + QByteArray(LongestParagraph + 10, 'a') + "\\par b}";
    QCOMPARE(readRtf(rtf, document).fault, Fault::TooLarge);
    QCOMPARE(document.blockCount(), 1);
    QCOMPARE(document.firstBlock().length() - 1, LongestParagraph);
    QTextCursor cursor(&document);
    QCOMPARE(insertRtf("{\\rtf1 c}", cursor).fault, Fault::TooLarge);
    QCOMPARE(document.firstBlock().length() - 1, LongestParagraph);
}

void DocumentRoomTest::eachParagraphMayHaveTheLargestLength() {
    QTextDocument document;
    const QByteArray paragraph = QByteArray(LongestParagraph, ' ') + "\\par ";
    QVERIFY(readRtf("{\\rtf1\\fs2 " + paragraph.repeated(2) + "}", document).ok());
    QCOMPARE(document.characterCount(), 2 * (LongestParagraph + 1));
}

void DocumentRoomTest::paragraphsHaveALargestNumber() {
    QTextDocument document;
    QTextCursor cursor(&document);
    Intake intake(cursor);
    const ParagraphShape shape = paragraphShape({});
    int taken = 0;
    while (intake.takesParagraph({1, 1}, shape))
        ++taken;
    QCOMPARE(taken, MostParagraphs - 1);
}

void DocumentRoomTest::charactersHaveALargestNumber() {
    QTextDocument document;
    Intake intake{QTextCursor(&document)};
    const QString line(LongestParagraph, u'a');
    const ParagraphShape shape = paragraphShape({});
    qsizetype taken = 0;
    while (!intake.isFull()) {
        taken += intake.taken(line, {0.01, 0.01}, shape);
        taken += intake.takesParagraph({0.01, 0.01}, shape);
    }
    QVERIFY(taken <= MostCharacters);
    QVERIFY(taken > MostCharacters - LongestParagraph);
}

void DocumentRoomTest::fontsHaveALargestNumber() {
    constexpr int Fonts = 100'000;
    QByteArray rtf = "{\\rtf1{\\fonttbl";
    for (int i = 0; i < Fonts; ++i)
        rtf += "{\\f" + QByteArray::number(i) + " Family " + QByteArray::number(i) + ";}";
    rtf += '}';
    for (int i = 0; i < Fonts; ++i)
        rtf += "\\f" + QByteArray::number(i) + " a";
    QTextDocument document;
    QCOMPARE(readRtf(rtf + "}", document).fault, Fault::TooLarge);
    QCOMPARE(document.toPlainText(), QString(Fonts, u'a'));
    QSet<QString> families;
    for (const QTextFormat& format : document.allFormats())
        families.insert(format.toCharFormat().fontFamilies().toStringList().value(0));
    QVERIFY(families.size() <= MostFonts + 2);
    // Another one brings no more of them.
    QTextCursor cursor(&document);
    insertRtf("{\\rtf1{\\fonttbl{\\f0 Further;}}\\f0 b}", cursor);
    QVERIFY(document.toPlainText().startsWith(u'b'));
    QVERIFY(document.begin().begin().fragment().charFormat().fontFamilies().toStringList().value(
                0) != QStringLiteral("Further"));
}

void DocumentRoomTest::aPictureCountsWithItsHeight() {
    const QByteArray picture = "{\\pict\\picwgoal10\\pichgoal100000\\wmetafile8 010009000003} ";
    QTextDocument document;
    QCOMPARE(readRtf(repeated(picture, 2000), document).fault, Fault::TooLarge);
    const int taken = document.characterCount() - 1;
    // Each counts with the letters beside it, which may stand in one line more.
    QVERIFY2(taken > 1000 && taken < 1400, qPrintable(QString::number(taken)));
    QVERIFY(laidOutHeight(document) <= EndlessHeight);
}

void DocumentRoomTest::noPairOfSurrogatesIsParted() {
    const QString text = QStringLiteral("a\U0001F600b\U0001F600");
    QCOMPARE(wholeCharacters(text, 1), qsizetype(1));
    QCOMPARE(wholeCharacters(text, 2), qsizetype(1));
    QCOMPARE(wholeCharacters(text, 3), qsizetype(3));
    QCOMPARE(wholeCharacters(text, 5), qsizetype(4));
    QCOMPARE(wholeCharacters(text, 60), qsizetype(6));
    QCOMPARE(wholeCharacters(text, -1), qsizetype(0));
}

/// How far letters are raised is told in parts of their size, and grows with it.
void DocumentRoomTest::raisedLettersTakeASizeThatTheDocumentCanShow() {
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

void DocumentRoomTest::aSizeShrinksToWhatTheDocumentCanShow() {
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

void DocumentRoomTest::anIndentCountsWithTheLinesThatItMakes() {
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

void DocumentRoomTest::lettersBecomeNoWiderThanTheDocumentCanShow_data() {
    QTest::addColumn<int>("property");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("bold") << int(QTextFormat::FontWeight) << QVariant(int(QFont::Bold));
    QTest::newRow("of another family") << int(QTextFormat::FontFamilies)
                                       << QVariant(QStringList{QStringLiteral("DejaVu Sans Mono")});
}

void DocumentRoomTest::lettersBecomeNoWiderThanTheDocumentCanShow() {
    QFETCH(int, property);
    QFETCH(QVariant, value);
    QTextDocument document;
    fill(document);
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

void DocumentRoomTest::linesBecomeNoShorterThanTheDocumentCanShow() {
    QTextDocument document;
    fill(document);
    QTextCursor all(&document);
    all.select(QTextCursor::Document);
    QVERIFY(!fitsNarrower(all, 24));
    QTextDocument other;
    other.setPlainText(QStringLiteral("words"));
    QVERIFY(fitsNarrower(QTextCursor(&other), 24));
}

void DocumentRoomTest::linesBreakAnywhereWhileThereIsALongWord() {
    QTextDocument document;
    document.documentLayout();
    const auto mode = [&] { return document.defaultTextOption().wrapMode(); };
    const auto ordinary = QTextOption::WrapAtWordBoundaryOrAnywhere;
    QTextOption option;
    option.setWrapMode(ordinary);
    document.setDefaultTextOption(option);
    DocumentRoom::of(document);
    QCOMPARE(mode(), ordinary);
    QTextCursor cursor(&document);
    cursor.insertText(QString(LongestWord, u'a') + QStringLiteral(" and words"));
    QCOMPARE(mode(), ordinary);
    cursor.insertText(QString(LongestWord + 1, u'a'));
    QCOMPARE(mode(), QTextOption::WrapAnywhere);
    document.undo();
    QCOMPARE(mode(), ordinary);
    document.redo();
    QCOMPARE(mode(), QTextOption::WrapAnywhere);
    readRtf("{\\rtf1 short}", document);
    QCOMPARE(mode(), ordinary);
}

/// Qt makes each line of a word as high as the highest letter of all the word.
void DocumentRoomTest::linesBreakAnywhereWhereOneLetterMakesAllOfItsWordTooHigh() {
    QTextDocument document;
    document.setTextWidth(220);
    document.documentLayout();
    QVERIFY(readRtf("{\\rtf1\\sl483648\\slmult1 " + QByteArray(80, 'm') + "\\fs3276 u}", document)
                .ok());
    QCOMPARE(document.defaultTextOption().wrapMode(), QTextOption::WrapAnywhere);
    const double height = document.documentLayout()->documentSize().height();
    QVERIFY2(height <= EndlessHeight, qPrintable(QString::number(height)));
    QVERIFY(readRtf("{\\rtf1\\fs144 O\\fs20 nce upon a time}", document).ok());
    QCOMPARE(document.defaultTextOption().wrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
}

/// The end of an insertion shares a paragraph with what stood behind it.
void DocumentRoomTest::aParagraphKeepsItsShapeOnlyWhereWhatComesIntoItHasRoomInIt() {
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

void DocumentRoomTest::anInsertionIsCountedInTheShapeThatItBringsAheadOfText() {
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

void DocumentRoomTest::longWordsAreTold_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("holds");
    const auto row = [](const char* name, const QString& piece, bool holds) {
        QTest::newRow(name) << piece.repeated(5000) << holds;
    };
    row("words", QStringLiteral("word and word, "), false);
    row("lines", QStringLiteral("word\u2028"), false);
    row("tabs between words", QStringLiteral("word\tand\t"), false);
    row("ideographs", QStringLiteral("漢字"), false);
    row("letters alone", QStringLiteral("letters"), true);
    row("blanks that do not break", QStringLiteral("word\u00a0"), true);
    row("blanks ahead of signs", QStringLiteral("! "), true);
    row("blanks behind brackets", QStringLiteral("( "), true);
    row("signs", QStringLiteral("-+/"), true);
}

void DocumentRoomTest::longWordsAreTold() {
    QFETCH(QString, text);
    QFETCH(bool, holds);
    QCOMPARE(holdsLongWord(text), holds);
    QVERIFY(!holdsLongWord(QStringView(text).first(LongestWord)));
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, DocumentRoomTest)
#include "document_room_test.moc"
