// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "selecting.h"
#include "support/test_main.h"

#include <QApplication>
#include <QBuffer>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTextBlock>

using namespace orvalis;
using namespace Qt::StringLiterals;

class RichTextBoxRtfTest : public QObject {
    Q_OBJECT
private slots:
    void theWholeDocumentGoesFromBoxToBox();
    void settingRtfPutsTheCaretAtTheStartAndTellsOnce();
    void settingRtfDropsTheHistoryOfUndo();
    void whatIsNotRtfIsPlainText();
    void plainTextGivenAsRtfTakesTheFormatAtTheSelectionsStart();
    void aReminderStickerReadsBlueAndBold();
    void theSelectionGoesFromBoxToBox();
    void insertedRtfDropsExactlyOneClosingParagraph();
    void insertedRtfReplacesTheSelection();
    void insertedRtfLeavesTheCaretBehindIt();
    void insertingRtfIsOneStepOfUndo();
    void selectedRtfThatIsNotRtfIsPlainText();
    void rtfWithCharactersOutsideAsciiMayBeAString();
    void aFontNamedBeyondAsciiKeepsItsName();
    void newTextHasTheUsualTabs();
    void emptyRtfEmptiesTheBox();
    void aBrokenRtfKeepsItsTextUpToTheFault();
    void anEntryIsAppendedPieceByPiece();
    void rtfCanBeSetInsideABatch();
    void everyCodeSurvivesRtf();
    void bulletsAndIndentsSurviveRtf();
    void newTextKeepsNothingOfTheFile();
    void rtfSetInsideABatchBringsItsPage();
    void bothHalvesOfAParagraphAreKeptTogether();
    void aSectionBeginsWithOneHalfOnly();
    void theSelectionTakesItsParagraphsAlong();
    void whatIsTypedAtTheEndsOfAFieldIsNoneOfIt_data();
    void whatIsTypedAtTheEndsOfAFieldIsNoneOfIt();
    void whatIsTypedAtTheEndOfAShapeInACellIsOfIt();
    void whatIsTypedIntoTextThatCameInIsNotTheirs();
    void aFootnoteGoesOnWithItsWord();
    void aFootnoteStaysWithAWordThatIsReplaced_data();
    void aFootnoteStaysWithAWordThatIsReplaced();
    void aFootnoteGoesWithItsWord();
    void whatIsTypedInACellStaysInIt();
    void aParagraphBehindATableIsNoPartOfIt();
};

namespace {

const QByteArray Table =
    "{\\rtf1\\trowd\\cellx1000\\cellx2000\\pard\\intbl one\\cell two\\cell\\row"
    "\\trowd\\cellx1000\\cellx2000\\pard\\intbl three\\cell four\\cell\\row}";

} // namespace

void RichTextBoxRtfTest::whatIsTypedInACellStaysInIt() {
    RichTextBox box;
    box.SetTextRTF(Table);
    QCOMPARE(box.Text(), u"one\ttwo\r\nthree\tfour"_s);
    box.SetSelStart(4);
    QTest::keyClicks(&box, u"a\tb"_s);
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.Text(), u"one\ta\tb\r\ntwo\r\nthree\tfour"_s);
    const QByteArray rtf = box.TextRTF();
    QCOMPARE(rtf.count("\\row"), 2);
    QCOMPARE(rtf.count("\\cell\r") + rtf.count("\\cell\\row"), 4);
    QVERIFY2(rtf.contains("a\\tab b\\par\r\n"), rtf);
}

void RichTextBoxRtfTest::aParagraphBehindATableIsNoPartOfIt() {
    RichTextBox box;
    box.SetTextRTF(Table);
    box.SetSelStart(int(box.Text().size()));
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClicks(&box, u"behind"_s);
    const QByteArray rtf = box.TextRTF();
    QVERIFY2(rtf.contains("\\cell\\row\r\n\\pard behind\\par"), rtf);
}

void RichTextBoxRtfTest::whatIsTypedAtTheEndsOfAFieldIsNoneOfIt_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("place");
    QTest::addColumn<QByteArray>("written");
    const QByteArray date = "{\\field{\\*\\fldinst DATE}{\\fldrslt 2.3.}}";
    const QByteArray longer = "{\\field{\\*\\fldinst DATE}{\\fldrslt 2x.3.}}";
    QTest::newRow("behind a field") << "a" + date + "b" << 5 << "a" + date + "xb";
    QTest::newRow("behind a field at the end") << "a" + date << 5 << "a" + date + "x\\par";
    QTest::newRow("ahead of a field") << "a" + date << 1 << "ax" + date;
    QTest::newRow("ahead of a field at the start") << date + "a" << 0 << "x" + date + "a";
    QTest::newRow("in a field") << "a" + date + "b" << 2 << "a" + longer + "b";
    QTest::newRow("behind an entry of an index")
        << QByteArray("a{\\xe b}") << 2 << QByteArray("a{\\xe b}x\\par");
    QTest::newRow("behind an equation")
        << QByteArray("a{\\field{\\*\\fldinst EQ \\\\f (1;2)}{\\fldrslt}}") << 4
        << QByteArray("a{\\field{\\*\\fldinst EQ \\\\f (1;2)}{\\fldrslt}}x\\par");
}

void RichTextBoxRtfTest::whatIsTypedAtTheEndsOfAFieldIsNoneOfIt() {
    QFETCH(QByteArray, body);
    QFETCH(int, place);
    QFETCH(QByteArray, written);
    RichTextBox box;
    box.SetTextRTF("{\\rtf1 " + body + "\\par}");
    box.SetSelStart(place);
    QTest::keyClicks(&box, u"x"_s);
    const QByteArray rtf = box.TextRTF();
    QVERIFY2(rtf.contains(written), rtf);
}

void RichTextBoxRtfTest::whatIsTypedAtTheEndOfAShapeInACellIsOfIt() {
    RichTextBox box;
    box.SetTextRTF(
        "{\\rtf1\\trowd\\cellx99\\intbl{\\shp{\\*\\shpinst{\\shptxt a\\par}}}\\cell\\row}"_ba);
    box.SetSelStart(1);
    QTest::keyClicks(&box, u"x"_s);
    const QByteArray rtf = box.TextRTF();
    QVERIFY2(rtf.contains("ax\\par"), rtf);
}

void RichTextBoxRtfTest::whatIsTypedIntoTextThatCameInIsNotTheirs() {
    RichTextBox box;
    box.SetTextRTF("{\\rtf1{\\*\\revtbl{A;}}\\lang1031 a{\\revised\\revauth0 bc}d\\par}"_ba);
    box.SetSelStart(2);
    QTest::keyClicks(&box, u"xy"_s);
    QCOMPARE(box.Text(), u"abxycd"_s);
    const QByteArray rtf = box.TextRTF();
    const QByteArray theirs = "{\\plain\\lang1031\\revised\\revauth0 ";
    QVERIFY2(rtf.contains("a" + theirs + "b}xy" + theirs + "c}d\\par"), rtf);
}

void RichTextBoxRtfTest::aFootnoteGoesOnWithItsWord() {
    RichTextBox box;
    box.SetTextRTF("{\\rtf1 word{\\footnote below} on\\par}"_ba);
    box.SetSelStart(4);
    QTest::keyClicks(&box, u"s, no"_s);
    QCOMPARE(box.Text(), u"words, no on"_s);
    QVERIFY2(box.TextRTF().contains("words{\\footnote below}, no on"), box.TextRTF());
}

void RichTextBoxRtfTest::aFootnoteStaysWithAWordThatIsReplaced_data() {
    QTest::addColumn<bool>("typed");
    QTest::newRow("typed") << true;
    QTest::newRow("set") << false;
}

void RichTextBoxRtfTest::aFootnoteStaysWithAWordThatIsReplaced() {
    QFETCH(bool, typed);
    RichTextBox box;
    box.SetTextRTF("{\\rtf1 a word{\\footnote below} on\\par}"_ba);
    box.SetSelStart(2);
    box.SetSelLength(4);
    if (typed)
        QTest::keyClicks(&box, u"deed"_s);
    else
        box.SetSelText(u"deed"_s);
    QCOMPARE(box.Text(), u"a deed on"_s);
    QVERIFY2(box.TextRTF().contains("a deed{\\footnote below} on"), box.TextRTF());
}

void RichTextBoxRtfTest::aFootnoteGoesWithItsWord() {
    RichTextBox box;
    box.SetTextRTF("{\\rtf1 a word{\\footnote below} on\\par}"_ba);
    box.SetSelStart(2);
    box.SetSelLength(4);
    box.SetSelText(QString());
    QVERIFY2(!box.TextRTF().contains("footnote"), box.TextRTF());
}

void RichTextBoxRtfTest::newTextKeepsNothingOfTheFile() {
    RichTextBox box;
    box.SetTextRTF("{\\rtf1\\paperw5000{\\colortbl;\\red255\\green0\\blue0;}{\\header Over}"
                   "\\pard\\keep\\cbpat1\\lang1031 a\\par}"_ba);
    QVERIFY(box.TextRTF().contains("\\paperw5000"));
    box.SetText(u"b"_s);
    const QByteArray rtf = box.TextRTF();
    for (const char* word : {"\\paperw", "\\header", "\\keep", "\\cbpat", "\\lang1031"})
        QVERIFY2(!rtf.contains(word), rtf);
    QCOMPARE(box.document()->firstBlock().blockFormat().background().style(), Qt::NoBrush);
}

void RichTextBoxRtfTest::rtfSetInsideABatchBringsItsPage() {
    RichTextBox box;
    box.SetTextRTF("{\\rtf1\\paperw5000 a\\par}"_ba);
    {
        const RichTextBox::Batch batch(box);
        box.SetTextRTF("{\\rtf1\\paperw6000 b\\par}"_ba);
    }
    QVERIFY2(box.TextRTF().contains("\\paperw6000"), box.TextRTF());
    QVERIFY(!box.TextRTF().contains("\\paperw5000"));
}

void RichTextBoxRtfTest::bothHalvesOfAParagraphAreKeptTogether() {
    RichTextBox box;
    box.SetTextRTF("{\\rtf1\\pard\\keep\\brdrt\\brdrs ab\\par}"_ba);
    box.SetSelStart(1);
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.Text(), u"a\r\nb"_s);
    const QByteArray rtf = box.TextRTF();
    QCOMPARE(rtf.count("\\pard"), 1);
    QVERIFY2(rtf.contains("\\pard\\keep\\brdrt\\brdrs"), rtf);
}

void RichTextBoxRtfTest::aSectionBeginsWithOneHalfOnly() {
    RichTextBox box;
    box.SetTextRTF("{\\rtf1 x\\sect\\sectd\\cols2 ab\\par}"_ba);
    box.SetSelStart(4);
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.Text(), u"x\r\na\r\nb"_s);
    QCOMPARE(box.TextRTF().count("\\sectd"), 1);
}

void RichTextBoxRtfTest::theSelectionTakesItsParagraphsAlong() {
    RichTextBox box;
    box.SetTextRTF("{\\rtf1\\pard\\keepn\\outl one\\par\\pard two\\par}"_ba);
    box.SetSelStart(0);
    box.SetSelLength(4);
    QVERIFY2(box.SelRTF().contains("\\pard\\keepn\\outl"), box.SelRTF());
}

void RichTextBoxRtfTest::theWholeDocumentGoesFromBoxToBox() {
    RichTextBox left;
    RichTextBox right;
    right.SetText(u"first line\r\nsecond line"_s);
    right.SetSelStart(6);
    right.SetSelLength(4);
    right.SetSelBold(true);
    right.SetSelStart(13);
    right.SetSelAlignment(RichTextBox::rtfCenter);
    left.SetTextRTF(right.TextRTF());
    QCOMPARE(left.Text(), right.Text());
    QCOMPARE(left.TextRTF(), right.TextRTF());
    left.SetSelStart(6);
    left.SetSelLength(4);
    QCOMPARE(left.SelBold(), std::optional(true));
    left.SetSelStart(13);
    QCOMPARE(left.SelAlignment(), std::optional(2));
}

void RichTextBoxRtfTest::settingRtfPutsTheCaretAtTheStartAndTellsOnce() {
    RichTextBox box;
    box.SetText(u"some text"_s);
    box.SetSelStart(4);
    QSignalSpy changes(&box, &RichTextBox::Change);
    QSignalSpy selections(&box, &RichTextBox::SelChange);
    box.SetTextRTF(QByteArrayLiteral("{\\rtf1 one\\par two\\par}"));
    QCOMPARE(box.Text(), u"one\r\ntwo"_s);
    QCOMPARE(box.SelStart(), 0);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(selections.count(), 1);
}

void RichTextBoxRtfTest::settingRtfDropsTheHistoryOfUndo() {
    RichTextBox box;
    QTest::keyClicks(&box, u"typed"_s);
    box.SetTextRTF(QByteArrayLiteral("{\\rtf1 one}"));
    QVERIFY(!box.CanUndo());
    QCOMPARE(box.UndoType(), UndoKind::LastAction);
}

void RichTextBoxRtfTest::whatIsNotRtfIsPlainText() {
    RichTextBox box;
    box.SetTextRTF(u"\r\nREMINDER:"_s);
    QCOMPARE(box.Text(), u"\r\nREMINDER:"_s);
    box.SetTextRTF(QByteArrayLiteral("caf\xE9"));
    QCOMPARE(box.Text(), u"caf\u00E9"_s);
}

void RichTextBoxRtfTest::plainTextGivenAsRtfTakesTheFormatAtTheSelectionsStart() {
    RichTextBox box;
    box.SetSelItalic(true);
    box.SetTextRTF(u"plain"_s);
    box.selectAll();
    QCOMPARE(box.SelItalic(), std::optional(true));
}

void RichTextBoxRtfTest::aReminderStickerReadsBlueAndBold() {
    RichTextBox box;
    box.SetTextRTF(u"\r\nREMINDER:"_s);
    box.SetSelBold(true);
    box.SetSelColor(16711680);
    box.SetText(box.Text() + u"\r\n"_s + u"buy milk"_s);
    QCOMPARE(box.Text(), u"\r\nREMINDER:\r\nbuy milk"_s);
    box.selectAll();
    QCOMPARE(box.SelBold(), std::optional(true));
    QCOMPARE(box.SelColor(), std::optional<quint32>(16711680));
}

void RichTextBoxRtfTest::theSelectionGoesFromBoxToBox() {
    RichTextBox preview;
    preview.SetText(u"Dear Sir\r\nThank you\r\nYours"_s);
    preview.SetSelStart(5);
    preview.SetSelLength(9);
    QCOMPARE(preview.SelText(), u"Sir\r\nThan"_s);
    RichTextBox note;
    note.SetText(u"<>"_s);
    note.SetSelStart(1);
    note.SetSelRTF(preview.SelRTF());
    QCOMPARE(note.Text(), u"<Sir\r\nThan>"_s);
    QCOMPARE(preview.SelText(), u"Sir\r\nThan"_s);
}

void RichTextBoxRtfTest::insertedRtfDropsExactlyOneClosingParagraph() {
    RichTextBox box;
    const auto inserted = [&](const QByteArray& rtf) {
        box.SetText(u"[]"_s);
        box.SetSelStart(1);
        box.SetSelRTF(rtf);
        return box.Text();
    };
    QCOMPARE(inserted("{\\rtf1 a}"), u"[a]"_s);
    QCOMPARE(inserted("{\\rtf1 a\\par}"), u"[a]"_s);
    QCOMPARE(inserted("{\\rtf1 a\\par\\par}"), u"[a\r\n]"_s);
    QCOMPARE(inserted("{\\rtf1 a\\par b\\par}"), u"[a\r\nb]"_s);
    QCOMPARE(inserted("{\\rtf1\\par}"), u"[]"_s);
}

void RichTextBoxRtfTest::insertedRtfReplacesTheSelection() {
    RichTextBox box;
    box.SetText(u"a small word"_s);
    box.SetSelStart(2);
    box.SetSelLength(5);
    box.SetSelRTF(QByteArrayLiteral("{\\rtf1\\b big\\par}"));
    QCOMPARE(box.Text(), u"a big word"_s);
    box.SetSelStart(2);
    box.SetSelLength(3);
    QCOMPARE(box.SelBold(), std::optional(true));
}

void RichTextBoxRtfTest::insertedRtfLeavesTheCaretBehindIt() {
    RichTextBox box;
    box.SetText(u"ad"_s);
    box.SetSelStart(1);
    box.SetSelRTF(QByteArrayLiteral("{\\rtf1 b\\par c\\par}"));
    QCOMPARE(box.SelStart(), 5);
    QCOMPARE(box.SelLength(), 0);
}

void RichTextBoxRtfTest::insertingRtfIsOneStepOfUndo() {
    RichTextBox box;
    box.SetText(u"before"_s);
    box.selectAll();
    box.SetSelRTF(QByteArrayLiteral("{\\rtf1 one {\\b two}\\par three\\par}"));
    box.Undo();
    QCOMPARE(box.Text(), u"before"_s);
}

void RichTextBoxRtfTest::selectedRtfThatIsNotRtfIsPlainText() {
    RichTextBox box;
    box.SetText(u"<old>"_s);
    box.SetSelStart(1);
    box.SetSelLength(3);
    box.SetSelRTF(u"new"_s);
    QCOMPARE(box.Text(), u"<new>"_s);
    box.SetSelRTF(QByteArrayLiteral("er"));
    QCOMPARE(box.Text(), u"<newer>"_s);
}

void RichTextBoxRtfTest::rtfWithCharactersOutsideAsciiMayBeAString() {
    RichTextBox box;
    box.SetTextRTF(u"{\\rtf1 caf\\'e9}"_s);
    QCOMPARE(box.Text(), u"caf\u00E9"_s);
    box.SetTextRTF(u"{\\rtf1 caf\u00E9 \u4E2D \U0001F600}"_s);
    QCOMPARE(box.Text(), u"caf\u00E9 \u4E2D \U0001F600"_s);
    box.SetSelRTF(u"{\\rtf1 \u017E}"_s);
    QCOMPARE(box.Text(), u"\u017Ecaf\u00E9 \u4E2D \U0001F600"_s);
}

void RichTextBoxRtfTest::aFontNamedBeyondAsciiKeepsItsName() {
    RichTextBox box;
    const QString name = u"\u6E38\u660E Sch\u00F6n"_s;
    box.SetTextRTF(QString(u"{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}{\\f1\\fnil "_s + name +
                           u";}{\\f2 Courier New;}}\\f1 one \\f2 two}"_s));
    test::select(box, 0, 3);
    QCOMPARE(box.SelFontName(), std::optional(name));
    test::select(box, 4, 3);
    QCOMPARE(box.SelFontName(), std::optional(u"Courier New"_s));
}

void RichTextBoxRtfTest::newTextHasTheUsualTabs() {
    RichTextBox box;
    const qreal usual = box.document()->defaultTextOption().tabStopDistance();
    for (const QString& text : {QString(), u"a\tb"_s}) {
        box.SetTextRTF(QByteArrayLiteral("{\\rtf1\\deftab2880 a\\tab b}"));
        QVERIFY(box.document()->defaultTextOption().tabStopDistance() != usual);
        box.SetText(text);
        QCOMPARE(box.document()->defaultTextOption().tabStopDistance(), usual);
        QVERIFY(!box.TextRTF().contains("\\deftab2880"));
    }
}

void RichTextBoxRtfTest::emptyRtfEmptiesTheBox() {
    RichTextBox box;
    box.SetText(u"text"_s);
    box.SetTextRTF(QByteArray());
    QCOMPARE(box.Text(), QString());
    box.SetText(u"text"_s);
    box.SetTextRTF(RichTextBox().TextRTF());
    QCOMPARE(box.Text(), QString());
}

void RichTextBoxRtfTest::aBrokenRtfKeepsItsTextUpToTheFault() {
    RichTextBox box;
    box.SetTextRTF(QByteArrayLiteral("{\\rtf1 as far as {\\b it goes"));
    QCOMPARE(box.Text(), u"as far as it goes"_s);
}

void RichTextBoxRtfTest::anEntryIsAppendedPieceByPiece() {
    RichTextBox message;
    message.SetText(u"call the dentist"_s);
    message.selectAll();
    message.SetSelItalic(true);
    RichTextBox list;
    list.SetText(u"older entry"_s);
    list.SetSelStart(int(list.Text().size()));
    list.SetSelText(u"\r\nTitle\r\n___\r\n"_s);
    list.SetSelText(u"\r\n"_s);
    list.SetSelRTF(message.TextRTF());
    list.SetSelFontName(u"Arial"_s);
    list.SetSelFontSize(8);
    list.SetSelBold(false);
    list.SetSelItalic(false);
    list.SetSelStrikeThru(false);
    list.SetSelUnderline(false);
    list.SetSelColor(255);
    list.SetSelText(u"\r\n\r\n    To do: today"_s);
    list.SetSelColor(0);
    list.SetSelText(u"\r\n    Saved: now\r\n___\r\n"_s);
    QCOMPARE(list.Text(), u"older entry\r\nTitle\r\n___\r\n\r\ncall the dentist\r\n\r\n"
                          "    To do: today\r\n    Saved: now\r\n___\r\n"_s);
    QCOMPARE(list.Find(u"dentist"_s), 36);
    QCOMPARE(list.SelItalic(), std::optional(true));
    QVERIFY(list.Find(u"To do: today"_s) > 0);
    QCOMPARE(list.SelItalic(), std::optional(false));
    QCOMPARE(list.SelColor(), std::optional<quint32>(255));
    QCOMPARE(list.SelFontSize(), std::optional<qreal>(8));
    QVERIFY(list.Find(u"Saved"_s) > 0);
    QCOMPARE(list.SelColor(), std::optional<quint32>(0));
    QCOMPARE(list.SelFontName(), std::optional(u"Arial"_s));
}

void RichTextBoxRtfTest::rtfCanBeSetInsideABatch() {
    RichTextBox box;
    box.SetText(u"old"_s);
    {
        const RichTextBox::Batch batch(box);
        box.SetTextRTF(QByteArrayLiteral("{\\rtf1 new\\line text\\par}"));
        QCOMPARE(box.Text(), u"new\r\ntext"_s);
        box.SetSelStart(9);
        box.SetSelRTF(QByteArrayLiteral("{\\rtf1 !\\par}"));
        QCOMPARE(box.SelStart(), 10);
    }
    QCOMPARE(box.Text(), u"new\r\ntext!"_s);
    box.Undo();
    QCOMPARE(box.Text(), u"old"_s);
}

void RichTextBoxRtfTest::everyCodeSurvivesRtf() {
    QString codes;
    for (int code = 0; code < 256; ++code)
        codes += QChar(code) + u'.';
    codes += u"\u28FF\u0001\u2801"_s;
    RichTextBox box;
    box.SetText(codes);
    RichTextBox other;
    other.SetTextRTF(box.TextRTF());
    QCOMPARE(other.Text(), codes);
    other.SetText(QString());
    other.SetSelRTF(box.TextRTF());
    QCOMPARE(other.Text(), codes);
}

void RichTextBoxRtfTest::bulletsAndIndentsSurviveRtf() {
    RichTextBox box;
    box.SetText(u"plain\r\nitem\r\nindented"_s);
    box.SetSelStart(7);
    box.SetSelIndent(454);
    box.SetSelBullet(true);
    box.SetSelStart(13);
    box.SetSelIndent(908);
    RichTextBox other;
    other.SetTextRTF(box.TextRTF());
    other.SetSelStart(0);
    QCOMPARE(other.SelBullet(), std::optional(false));
    QCOMPARE(other.SelIndent(), std::optional(0));
    other.SetSelStart(7);
    QCOMPARE(other.SelBullet(), std::optional(true));
    QCOMPARE(other.SelIndent(), std::optional(454));
    other.SetSelStart(13);
    QCOMPARE(other.SelBullet(), std::optional(false));
    QCOMPARE(other.SelIndent(), std::optional(908));
}

ORVALIS_TEST_MAIN_WITH(QApplication, RichTextBoxRtfTest)
#include "rich_text_box_rtf_test.moc"
