// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reader.h"
#include "rtf/words/tokenizer.h"
#include "rtf/writer.h"
#include "sample_shapes.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>

using namespace orvalis;
using namespace orvalis::rtf;
using orvalis::test::box;
using orvalis::test::changedAndSaved;
using orvalis::test::file;
using orvalis::test::Frame;
using orvalis::test::pngBytes;
using orvalis::test::saved;
using orvalis::test::textOf;
using orvalis::test::withoutLineEnds;

class ShapeTest : public QObject {
    Q_OBJECT
private slots:
    void theTextOfABoxShowsAsParagraphs_data();
    void theTextOfABoxShowsAsParagraphs();
    void aBoxStaysWhereItStood_data();
    void aBoxStaysWhereItStood();
    void aPictureKeepsTheShapeThatItIs();
    void aPictureThatOnlyFillsAShapeIsNotShown();
    void aFormulaKeepsWhatItsPictureIsOf();
    void aFormulaWithoutAPictureShowsItsTextAndStays_data();
    void aFormulaWithoutAPictureShowsItsTextAndStays();
    void aFormulaWhoseTextIsChangedIsText();
    void formulasInsideFormulasCostNoMoreThanTheirBytes();
    void aShapeThatShowsNothingStays();
    void textsAndPicturesOfOneShapeStayInIt_data();
    void textsAndPicturesOfOneShapeStayInIt();
    void aTextThatIsTakenOutOfAShapeLeavesTheOthersInIt();
    void aPictureOfAShapeThatGetsTextIsAParagraph();
    void aPictureWithoutBytesIsNoneOfAShape();
    void anEmptyTextStaysBesideWhatAShapeShows();
    void aShapeOfManyTextsCostsNoMoreThanItsBytes();
    void looseTextOfAShapeIsShown();
    void aShapeKnowsWhichGroupsHideTheirText_data();
    void aShapeKnowsWhichGroupsHideTheirText();
    void whatAShapeInACellShowsIsTextOfTheCell_data();
    void whatAShapeInACellShowsIsTextOfTheCell();
    void aShapeInACellStays_data();
    void aShapeInACellStays();
    void aShapeInACellKeepsATextThatIsChanged_data();
    void aShapeInACellKeepsATextThatIsChanged();
    void aTextThatIsChangedLeavesAShapeInACellThatCannotHoldIt_data();
    void aTextThatIsChangedLeavesAShapeInACellThatCannotHoldIt();
    void textOfAShapeInACellIsTextWhereItIsCopiedTo();
    void theLookOfALinkIsNotThatOfAShapeBehindIt();
    void aShapeInACellStaysWhenItsTextLooksOtherwise();
    void aShapeInACellThatEndsOneIsText();
    void aShapeInARowThatIsNotWholeIsText();
    void theFormForOldReadersIsLeftOut();
    void aWordAheadOfThatFormStaysAWord();
    void aWordAheadOfAPictureThatIsTakenOutStaysAWord();
    void aBoxThatRunsIntoTheTextAheadIsDissolved();
    void whatComesBehindABoxLooksAsAheadOfIt();
    void aParagraphGoesOnBehindEachOfItsBoxes();
    void aFormulaBesideTheTextOfABoxIsToldOnce();
    void spaceThatIsToldBehindABoxAndTakenBackIsNone();
    void anEmptyParagraphAtTheEndOfABoxStays();
    void aBoxAtTheStartOfASectionStandsInIt();
    void shapesInsideShapesCostNoMoreThanTheirBytes();
};

void ShapeTest::theTextOfABoxShowsAsParagraphs_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const QByteArray& body, const char* text) {
        QTest::newRow(name) << body << QString::fromLatin1(text);
    };
    row("behind the text of a paragraph", "a" + box(" b") + "\\par c\\par", "a\nb\nc");
    row("within it", "a" + box(" b") + "c\\par d\\par", "a\nb\nc\nd");
    row("ahead of it", box(" b") + "a\\par c\\par", "b\na\nc");
    row("of two paragraphs", "a" + box(" b\\par c\\par") + "\\par d\\par", "a\nb\nc\nd");
    row("two in a row", "a" + box(" b") + box(" c") + "\\par d\\par", "a\nb\nc\nd");
    row("ahead of a break of a page", "a" + box(" b") + "\\page c\\par", "a\nb\nc");
}

void ShapeTest::theTextOfABoxShowsAsParagraphs() {
    QFETCH(QByteArray, body);
    QFETCH(QString, text);
    QCOMPARE(textOf(body), text);
}

void ShapeTest::aBoxStaysWhereItStood_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("kept");
    const QByteArray shape = Frame + "{\\shptxt\\plain\\pard\\f0";
    const auto row = [](const char* name, const QByteArray& body, const QByteArray& kept) {
        QTest::newRow(name) << body << kept;
    };
    row("behind the text of a paragraph", "word" + box(" b") + "\\par c\\par",
        "\\f0\\fs24 deed" + shape + " b}}}\\par\\pard c\\par");
    row("within it", "word" + box(" b") + "c\\par", "\\f0\\fs24 deed" + shape + " b}}}c\\par");
    row("ahead of it", box(" b") + "word\\par", shape + " b}}}\\pard\\f0\\fs24 deed\\par");
    row("of two paragraphs, both ended", "word" + box(" b\\par c\\par") + "\\par",
        "deed" + shape + " b\\parc\\par}}}\\par");
    row("of two paragraphs, one ended", "word" + box(" b\\par c") + "\\par",
        "deed" + shape + " b\\parc}}}\\par");
    row("two in a row", "word" + box(" b") + box(" c") + "\\par",
        "deed" + shape + " b}}}" + shape + " c}}}\\par");
    row("with a table", "word" + box("\\trowd\\cellx99\\intbl b\\cell\\row\\pard c") + "\\par",
        "\\trowd\\cellx99\\pard\\intbl\\f0 b\\cell\\row\\pard c}}}\\par");
    row("with a cell behind its table",
        "word" + box("\\trowd\\cellx99\\intbl b\\cell\\row\\cell") + "c\\par",
        "b\\cell\\row\\pard\\tab}}}c\\par");
    row("with cells that are empty",
        "word" + box("\\trowd\\cellx99\\cellx200\\intbl{\\*\\unknown x}\\cell\\cell\\row") +
            "\\par",
        "\\cell\\pard\\intbl\\cell\\row}}}\\par");
    row("space told behind the text ahead of it", "\\sa60 word\\sa180" + box(" b") + "\\par",
        "\\pard\\sa60\\f0\\fs24 deed\\sa180" + shape.chopped(3) + "\\sa180\\f0 b}}}\\par");
    row("space told behind its text", "word" + box("\\sa60 b\\sa180") + "\\par",
        "\\pard\\sa60\\f0 b\\sa180}}}\\par");
    row("text in it is changed", "a" + box(" word") + "\\par", "a" + shape + " deed}}}\\par");
    row("ahead of a break of a page", "word" + box(" b") + "\\page c\\par",
        "deed" + shape + " b}}}\\par\\pard\\page c\\par");
}

void ShapeTest::aBoxStaysWhereItStood() {
    QFETCH(QByteArray, body);
    QFETCH(QByteArray, kept);
    const QByteArray written = saved(body);
    QVERIFY2(written.contains(kept), written.constData());
    QCOMPARE(written.count("\\shptxt"), body.count("\\shptxt"));
}

void ShapeTest::aPictureKeepsTheShapeThatItIs() {
    const QByteArray ahead = Frame + "{\\sp{\\sn pib}{\\sv{\\pict\\pngblip";
    const QByteArray behind = "}}}{\\sp{\\sn dx}{\\sv 1}}}}";
    const auto body = [&](const QByteArray& bytes) {
        return "word" + ahead + "\\picw4\\pich3\\picwgoal60\\pichgoal45 " + bytes.toHex() + behind +
               "b\\par";
    };
    const QByteArray png = pngBytes();
    QCOMPARE(textOf(body(png)), QStringLiteral("word\ufffcb"));
    const QByteArray written = saved(body(png));
    QVERIFY2(written.contains("deed" + ahead), written.constData());
    QVERIFY2(written.contains(png.last(4).toHex() + behind + "b\\par"), written.constData());
    // What no other program could read would cost it the whole shape.
    const QByteArray strange = saved(body("strange"));
    QVERIFY2(strange.contains("{\\sn pib}{\\sv{\\*\\orvpict{\\pict"), strange.constData());
}

void ShapeTest::aPictureThatOnlyFillsAShapeIsNotShown() {
    const QByteArray shape = Frame + "{\\sp{\\sn fillBlip}{\\sv{\\pict\\pngblip 89504e47}}}}}";
    QCOMPARE(textOf("a" + shape + "b"), QStringLiteral("ab"));
    QVERIFY(saved(" word" + shape + "\\par").contains("deed" + shape + "\\par"));
}

void ShapeTest::aFormulaKeepsWhatItsPictureIsOf() {
    const QByteArray ahead = "{\\mmath{\\*\\moMath{\\mr\\mscr0 x}}{\\mmathPict{\\*\\shppict";
    const QByteArray body = "word" + ahead +
                            "{\\pict\\pngblip\\picw4\\pich3\\picwgoal60\\pichgoal45 " +
                            pngBytes().toHex() + "}}}}b\\par";
    QCOMPARE(textOf(body), QStringLiteral("word\ufffcb"));
    const QByteArray written = saved(body);
    QVERIFY2(written.contains("deed" + ahead + "{\\pict"), written.constData());
    QVERIFY2(written.contains("}}}}b\\par"), written.constData());
    // Without a picture its text shows.
    QCOMPARE(textOf("a{\\mmath{\\moMath x}}"), QStringLiteral("ax"));
}

void ShapeTest::aFormulaWithoutAPictureShowsItsTextAndStays_data() {
    QTest::addColumn<QByteArray>("formula");
    QTest::addColumn<QString>("text");
    QTest::newRow("as a word processor writes it")
        << QByteArray(
               "{\\mmath{\\*\\moMath{\\mf{\\mfPr{\\mtype lin}}{\\mnum{\\mr\\mscr0\\msty2 a+}}"
               "{\\mden{\\mr b}}}}}")
        << QStringLiteral("a+/b");
    QTest::newRow("of parts below each other")
        << QByteArray("{\\mmath{\\*\\moMath{\\meqArr{\\me{\\mr x}}{\\me{\\msSup{\\me{\\mr "
                      "y}}{\\msup{\\mr 2}}}}}"
                      "{\\msSub{\\me{\\mr z}}{\\msub{\\mr i}}}}}")
        << QStringLiteral("x; y^2z_i");
    QTest::newRow("without its mark")
        << QByteArray("{\\mmath{\\moMath{\\mrad{\\mradPr x{\\mdegHide1}}{\\me{\\mtext root}}}}}")
        << QStringLiteral("root");
    QTest::newRow("of letters told by number")
        << QByteArray("{\\mmath{\\*\\moMath{\\mr\\u8730?x}}}") << QStringLiteral("\u221ax");
    QTest::newRow("of nothing") << QByteArray("{\\mmath{\\*\\moMath{\\mr}}}") << QString();
}

void ShapeTest::aFormulaWithoutAPictureShowsItsTextAndStays() {
    QFETCH(QByteArray, formula);
    QFETCH(QString, text);
    QCOMPARE(textOf("a" + formula + "b"), u'a' + text + u'b');
    const QByteArray inText = saved("word" + formula + "b\\par");
    QVERIFY2(inText.contains("deed" + formula + "b\\par"), inText.constData());
    const QByteArray inBox = saved("word\\par" + box(" in" + formula + "\\par") + "x\\par");
    QVERIFY2(inBox.contains("in" + formula + "\\par}}}"), inBox.constData());
}

void ShapeTest::aFormulaWhoseTextIsChangedIsText() {
    const QByteArray written = saved("a{\\mmath{\\*\\moMath{\\mr a word}}}b\\par");
    QVERIFY2(written.contains("aa deedb\\par"), written.constData());
    QVERIFY(!written.contains("mmath"));
}

void ShapeTest::formulasInsideFormulasCostNoMoreThanTheirBytes() {
    // Longer than what is kept of a file, so that each is looked through for what it holds.
    constexpr int Depth = 1500;
    QByteArray deep;
    for (int i = 0; i < Depth; ++i)
        deep += "{\\mmath{\\moMath{\\mr x}" + QByteArray(100, '\'').replace("'", "\\'e9");
    QTextDocument document;
    readRtf("{\\rtf1 " + deep, document);
    QCOMPARE(document.toPlainText().count(u'x') > 1000, true);
    QVERIFY(writeRtf(document).size() < 20 * deep.size());
}

void ShapeTest::aShapeThatShowsNothingStays() {
    const QByteArray line = Frame + "}}";
    QCOMPARE(textOf("a" + line + "b"), QStringLiteral("ab"));
    QVERIFY(saved(" word" + line + "b\\par").contains("deed" + line + "b\\par"));
    QTextDocument alone;
    readRtf(file(line), alone);
    QVERIFY(withoutLineEnds(writeRtf(alone)).contains(line));
}

void ShapeTest::textsAndPicturesOfOneShapeStayInIt_data() {
    QTest::addColumn<QByteArray>("parts");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("kept");
    const QByteArray plain = "\\plain\\pard\\f0";
    const QByteArray words =
        "{\\sp{\\sn pib}{\\sv{\\pict\\pngblip\\picw4\\pich3\\picwgoal60\\pichgoal45";
    const QByteArray png = pngBytes().toHex() + "}}}";
    const QByteArray given = words + ' ' + png;
    const QByteArray picture = words + png; // once its lines are joined
    const auto row = [](const char* name, const QByteArray& parts, const char16_t* text,
                        const QByteArray& kept) {
        QTest::newRow(name) << parts << QString::fromUtf16(text) << kept;
    };
    row("two texts", "{\\shptxt b\\par}{\\shptxt\\b c}", u"b\nc",
        "{\\shptxt" + plain + " b\\par}{\\shptxt\\plain\\pard\\b\\f0 c}");
    row("texts of two paragraphs", "{\\shptxt b\\par c}{\\shptxt d\\par e\\par}", u"b\nc\nd\ne",
        "{\\shptxt" + plain + " b\\parc}{\\shptxt" + plain + " d\\pare\\par}");
    row("a picture ahead of a text", given + "{\\shptxt b}", u"\ufffc\nb",
        picture + "{\\shptxt" + plain + " b}");
    row("a picture between texts", "{\\shptxt b}" + given + "{\\shptxt c}", u"b\n\ufffc\nc",
        "{\\shptxt" + plain + " b}" + picture + "{\\shptxt" + plain + " c}");
    row("two pictures", given + given, u"\ufffc\n\ufffc", picture + picture);
    row("a table in the second", "{\\shptxt b}{\\shptxt\\trowd\\cellx99\\intbl c\\cell\\row}",
        u"b\nc",
        "{\\shptxt" + plain + " b}{\\shptxt\\plain\\trowd\\cellx99\\pard\\intbl\\f0 c\\cell\\row}");
}

void ShapeTest::textsAndPicturesOfOneShapeStayInIt() {
    QFETCH(QByteArray, parts);
    QFETCH(QString, text);
    QFETCH(QByteArray, kept);
    const QByteArray ahead = "{\\shpgrp{\\*\\shpinst\\shpleft10{\\sp{\\sn groupLeft}{\\sv 1}}";
    const QByteArray behind = "{\\sp{\\sn dx}{\\sv 1}}}}";
    QCOMPARE(textOf("a" + ahead + parts + behind + "e\\par"), QStringLiteral("a\n%1\ne").arg(text));
    const QByteArray within = saved("word" + ahead + parts + behind + "e\\par");
    QVERIFY2(within.contains("deed" + ahead + kept + behind + "e\\par"), within.constData());
    const QByteArray inFront = saved(ahead + parts + behind + "word\\par");
    QVERIFY2(inFront.contains(ahead + kept + behind + "\\pard"), inFront.constData());
}

void ShapeTest::aTextThatIsTakenOutOfAShapeLeavesTheOthersInIt() {
    const QByteArray body = "a{\\shpgrp{\\*\\shpinst{\\shptxt b\\par}{\\shptxt c\\par}"
                            "{\\shptxt d\\par}}}e\\par";
    const auto without = [&](int paragraph) {
        QTextDocument document;
        readRtf(file(body), document);
        QTextCursor cursor(document.findBlockByNumber(paragraph));
        cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
        const QByteArray written = writeRtf(document);
        QTextDocument again;
        readRtf(written, again);
        return again.toPlainText() == document.toPlainText() && writeRtf(again) == written
                   ? withoutLineEnds(written)
                   : QByteArray("is not stable");
    };
    const QByteArray plain = "{\\shptxt\\plain\\pard\\f0";
    const QByteArray second = without(2);
    QVERIFY2(second.contains("a{\\shpgrp{\\*\\shpinst" + plain + " b\\par}{\\shptxt}" + plain +
                             " d\\par}}}e\\par"),
             second.constData());
    const QByteArray third = without(3);
    QVERIFY2(third.contains("a{\\shpgrp{\\*\\shpinst" + plain + " b\\par}" + plain +
                            " c\\par}{\\shptxt}}}e\\par"),
             third.constData());
}

void ShapeTest::aPictureOfAShapeThatGetsTextIsAParagraph() {
    QTextDocument document;
    readRtf(file("a{\\shp{\\*\\shpinst{\\shptxt b}{\\sp{\\sn pib}{\\sv{\\pict\\pngblip " +
                 pngBytes().toHex() + "}}}{\\shptxt c}}}d\\par"),
            document);
    QTextCursor cursor(document.findBlockByNumber(2));
    cursor.insertText(QStringLiteral("more"));
    const QByteArray written = writeRtf(document);
    QTextDocument again;
    readRtf(written, again);
    QCOMPARE(again.toPlainText(), QStringLiteral("a\nb\nmore\ufffc\nc\nd"));
    QVERIFY(!written.contains("{\\sv more"));
}

void ShapeTest::aPictureWithoutBytesIsNoneOfAShape() {
    const QByteArray nothing = "{\\sp{\\sn pib}{\\sv{\\pict\\pngblip{\\*\\blipuid 89504e47}}}}";
    QCOMPARE(textOf("a" + Frame + nothing + "}}b"), QStringLiteral("ab"));
    const QByteArray written = saved("word" + Frame + nothing + "{\\shptxt c}}}\\par");
    QVERIFY2(written.contains("deed" + Frame + nothing + "{\\shptxt"), written.constData());
}

void ShapeTest::anEmptyTextStaysBesideWhatAShapeShows() {
    const QByteArray empty = "{\\shptxt\\pard\\plain\\par}";
    const QByteArray text = "{\\shptxt\\plain\\pard\\f0 b\\par}";
    const QByteArray boxes = "{\\shpgrp{\\*\\shpinst" + empty + text + empty + text + empty + "}}";
    QCOMPARE(textOf("a" + boxes + "c"), QStringLiteral("a\nb\nb\nc"));
    const QByteArray written = saved("word" + boxes + "c\\par");
    QVERIFY2(written.contains("deed" + boxes + "c\\par"), written.constData());
    const QByteArray picture =
        Frame + "{\\sp{\\sn pib}{\\sv{\\pict\\pngblip " + pngBytes().toHex() + "}}}" + empty + "}}";
    QCOMPARE(textOf("a" + picture + "c"), QStringLiteral("a\ufffcc"));
    QVERIFY(saved("word" + picture + "\\par").contains("}}}" + empty + "}}\\par"));
}

void ShapeTest::aShapeOfManyTextsCostsNoMoreThanItsBytes() {
    constexpr int Texts = 20000;
    const QByteArray body =
        "a{\\shp{\\*\\shpinst" + QByteArray("{\\shptxt b}").repeated(Texts) + "}}c\\par";
    QTextDocument document;
    QVERIFY(readRtf(file(body), document).ok());
    QCOMPARE(document.blockCount(), Texts + 2);
    QCOMPARE(writeRtf(document).count("\\shptxt"), Texts);
}

void ShapeTest::looseTextOfAShapeIsShown() {
    QCOMPARE(textOf("a{\\shp b{\\*\\shpinst}}"), QStringLiteral("ab"));
    const QByteArray inAGroup = " word{\\shp{ b{\\shptxt c}}}\\par";
    QCOMPARE(textOf(inAGroup), QStringLiteral(" word bc"));
    const QByteArray written = saved(inAGroup);
    QVERIFY2(written.contains("deed bc\\par"), written.constData());
    QVERIFY(!written.contains("shp"));
}

void ShapeTest::aShapeKnowsWhichGroupsHideTheirText_data() {
    QTest::addColumn<QByteArray>("head");
    const QByteArray heads =
        "fldtype generator info header fonttbl colortbl listtable "
        "listoverridetable fldinst shpinst sp sn sv pn pntxtb pntxta pntext "
        "listtext leveltext fname shppict field xe fldrslt nesttableprops object result ud "
        "shp shptxt";
    for (const QByteArray& head : heads.split(' '))
        QTest::newRow(head.constData()) << head;
}

// The look ahead and the reader must agree: what one of them alone takes for text would be shown
// and kept with the frame, or neither.
void ShapeTest::aShapeKnowsWhichGroupsHideTheirText() {
    QFETCH(QByteArray, head);
    const QByteArray body = "word{\\shp{\\" + head + " hidden}}\\par";
    const bool shown = textOf(body).contains(u"hidden");
    QVERIFY(saved(body).count("hidden") <= 1);
    const QByteArray name = "\\" + head;
    Tokenizer tokenizer(name);
    Token word;
    tokenizer.next(word);
    QVERIFY(word.word);
    QCOMPARE(shown, !hidesText(word.word->action));
}

void ShapeTest::whatAShapeInACellShowsIsTextOfTheCell_data() {
    QTest::addColumn<QByteArray>("shape");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const QByteArray& shape, const char16_t* text) {
        QTest::newRow(name) << shape << QString::fromUtf16(text);
    };
    row("a paragraph", box(" b"), u"b");
    row("a paragraph that ends", box(" b\\par"), u"b");
    row("two paragraphs", box(" b\\par c\\par"), u"b\nc");
    row("two texts", Frame + "{\\shptxt b}{\\shptxt c\\par}}}", u"b\nc");
    row("a field", box("{\\field{\\*\\fldinst PAGE}{\\fldrslt 3}} b"), u"3 b");
    row("a link", box("{\\field{\\*\\fldinst HYPERLINK \"http://a.b\"}{\\fldrslt b}}"), u"b");
    row("a label", box("{\\listtext 1.\\tab}b"), u"b");
    row("words of a row", box("\\trowd\\cellx50\\pard b"), u"b");
    row("a note", box(" b{\\footnote c}d"), u"bd");
    row("a picture",
        box(" b{\\pict\\pngblip " + pngBytes().toHex() + "}{\\nonshppict{\\pict 00}}c"),
        u"b\ufffcc");
}

void ShapeTest::whatAShapeInACellShowsIsTextOfTheCell() {
    QFETCH(QByteArray, shape);
    QFETCH(QString, text);
    QCOMPARE(textOf("\\trowd\\cellx99\\cellx200\\intbl a" + shape + "d\\cell c\\cell\\row"),
             QStringLiteral("a%1d\tc").arg(text));
}

void ShapeTest::aShapeInACellStays_data() {
    whatAShapeInACellShowsIsTextOfTheCell_data();
}

void ShapeTest::aShapeInACellStays() {
    QFETCH(QByteArray, shape);
    const auto row = [&](const QByteArray& first) {
        return "\\trowd\\cellx99\\cellx200\\intbl " + first + "{\\*\\bkmkstart x}e\\cell c" +
               "\\cell\\row\\pard\\par";
    };
    const QByteArray behind = saved(row("word" + shape));
    // The copy spells words without the blanks that they do not need.
    QTextDocument alone;
    readRtf(file(row(shape)), alone);
    const QByteArray kept = withoutLineEnds(writeRtf(alone));
    const qsizetype from = kept.indexOf("{\\plain\\f0\\fs24{\\shp{");
    QVERIFY2(from > 0, kept.constData());
    const QByteArray group = kept.sliced(from, kept.indexOf("{\\*\\bkmkstart") - from);
    QCOMPARE(group.count('{'), shape.count('{') + 1);
    QVERIFY2(behind.contains("deed" + group + "{\\*\\bkmkstart x}e\\cell"), behind.constData());
    const QByteArray inFront = saved(row(shape + "word"));
    QVERIFY2(inFront.contains(group + "\\f0\\fs24 deed{\\*\\bkmkstart"), inFront.constData());
}

void ShapeTest::aShapeInACellKeepsATextThatIsChanged_data() {
    QTest::addColumn<QByteArray>("cell");
    QTest::addColumn<QByteArray>("kept");
    const auto row = [](const char* name, const QByteArray& cell, const QByteArray& text,
                        const QByteArray& behind) {
        QTest::newRow(name) << cell
                            << "{\\plain\\f0\\fs24" + box("\\pard\\plain" + text) + "}" + behind;
    };
    row("one run", "a" + box(" word") + "b", "\\f0 deed", "b\\cell");
    row("several runs", "a" + box(" a word\\b  b\\i c") + "b", "\\f0 a deed\\b  b\\i c", "b\\cell");
    row("lines", "a" + box(" word\\par b\\line c\\tab d"), "\\f0 deed\\line b\\line c\\tab d",
        "\\cell");
    row("its last paragraph ended", "a" + box(" b\\par word\\par") + "c", "\\f0 b\\line deed\\par",
        "c\\cell");
    row("ahead of a bookmark", box(" word") + "{\\*\\bkmkstart x}b", "\\f0 deed",
        "{\\*\\bkmkstart x}\\f0\\fs24 b\\cell");
    row("ahead of other text", box("\\b0  word") + "b", "\\f0  deed", "\\f0\\fs24 b\\cell");
}

void ShapeTest::aShapeInACellKeepsATextThatIsChanged() {
    QFETCH(QByteArray, cell);
    QFETCH(QByteArray, kept);
    const QByteArray written = saved("\\trowd\\cellx99\\intbl " + cell + "\\cell\\row\\pard\\par");
    QVERIFY2(written.contains(kept), written.constData());
}

void ShapeTest::aTextThatIsChangedLeavesAShapeInACellThatCannotHoldIt_data() {
    QTest::addColumn<QByteArray>("shape");
    QTest::newRow("two texts") << Frame + "{\\shptxt word}{\\shptxt b}}}";
    QTest::newRow("a picture") << box(" word{\\pict\\pngblip " + pngBytes().toHex() + "}");
    QTest::newRow("a character without a sign") << box(" word\\'07");
}

void ShapeTest::aTextThatIsChangedLeavesAShapeInACellThatCannotHoldIt() {
    QFETCH(QByteArray, shape);
    const QByteArray written =
        saved("\\trowd\\cellx99\\intbl a" + shape + "\\cell\\row\\pard\\par");
    QVERIFY2(written.contains("adeed"), written.constData());
    QVERIFY(!written.contains("\\shptxt"));
}

void ShapeTest::textOfAShapeInACellIsTextWhereItIsCopiedTo() {
    QTextDocument document;
    readRtf(file("\\trowd\\cellx99\\intbl a" + box(" bcd") + "e\\cell\\row"), document);
    QTextCursor cursor(&document);
    cursor.setPosition(2);
    cursor.setPosition(3, QTextCursor::KeepAnchor);
    const QTextDocumentFragment part = cursor.selection();
    cursor.setPosition(5);
    cursor.insertFragment(part);
    const QByteArray written = withoutLineEnds(writeRtf(document));
    QVERIFY2(written.contains(box(" bcd") + "}ec\\cell"), written.constData());
    QCOMPARE(written.count("\\shptxt"), 1);
}

void ShapeTest::theLookOfALinkIsNotThatOfAShapeBehindIt() {
    const QByteArray link = "{\\field{\\*\\fldinst{HYPERLINK \"a\"}}{\\fldrslt\\super a}}";
    QTextDocument document;
    readRtf(file("\\trowd\\cellx99\\intbl " + link + box(" b") + "\\cell\\row"), document);
    const QByteArray written = withoutLineEnds(writeRtf(document));
    QVERIFY2(written.contains("a}}{\\plain\\f0\\fs24" + box(" b") + "}\\cell\\row"),
             written.constData());
}

void ShapeTest::aShapeInACellStaysWhenItsTextLooksOtherwise() {
    QTextDocument document;
    readRtf(file("\\trowd\\cellx99\\intbl a" + box(" bcd") + "\\cell\\row"), document);
    QTextCursor cursor(&document);
    cursor.setPosition(2);
    cursor.setPosition(3, QTextCursor::KeepAnchor);
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    cursor.mergeCharFormat(bold);
    QVERIFY(withoutLineEnds(writeRtf(document)).contains(box(" bcd")));
    // A part of it is no shape.
    QVERIFY(!writeRtf(document, 0, 3).contains("\\shp"));
}

void ShapeTest::aShapeInACellThatEndsOneIsText() {
    const QByteArray body =
        "\\trowd\\cellx99\\cellx200\\intbl a" + box(" b\\cell c") + "d\\cell\\row\\pard word\\par";
    QCOMPARE(textOf(body), QStringLiteral("ab\tcd\nword"));
    const QByteArray written = saved(body);
    QVERIFY2(written.contains("ab\\cell"), written.constData());
    QVERIFY(!written.contains("\\shp"));
}

void ShapeTest::aShapeInARowThatIsNotWholeIsText() {
    QTextDocument document;
    readRtf(file("\\trowd\\cellx99\\cellx200\\intbl a" + box(" b") + "\\cell c\\cell\\row"),
            document);
    QTextCursor cursor(&document);
    cursor.setPosition(2);
    cursor.deleteChar(); // the end of the first cell
    const QByteArray written = writeRtf(document);
    QVERIFY2(written.contains(" abc\\par"), written.constData());
    QVERIFY(!written.contains("\\shp"));
}

void ShapeTest::theFormForOldReadersIsLeftOut() {
    const QByteArray old = "{\\shprslt{\\*\\do{\\dptxbxtext b}}}";
    const QByteArray written = saved("word" + box(" b").chopped(1) + old + "}\\par");
    QVERIFY2(written.contains(" b}}}\\par"), written.constData());
    QVERIFY(!written.contains("shprslt"));
}

void ShapeTest::aWordAheadOfThatFormStaysAWord() {
    const QByteArray written = saved("word{\\shp{\\*\\shpinst{\\shprslt}7{\\shptxt b}}}\\par");
    QVERIFY2(written.contains("{\\*\\shpinst 7{\\shptxt"), written.constData());
}

void ShapeTest::aWordAheadOfAPictureThatIsTakenOutStaysAWord() {
    QTextDocument document;
    readRtf(file("{\\shp{\\*\\shpinst{\\shptxt b}{\\sp{\\sn pib}{\\sv{\\pict\\pngblip " +
                 pngBytes().toHex() + "}7}}}}\\par"),
            document);
    QCOMPARE(document.toPlainText(), QStringLiteral("b\n\uFFFC\n"));
    QTextCursor cursor(&document);
    cursor.setPosition(1);
    cursor.setPosition(3, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    const QByteArray written = writeRtf(document);
    QVERIFY2(written.contains("{\\sv 7}"), written.constData());
}

void ShapeTest::aBoxThatRunsIntoTheTextAheadIsDissolved() {
    QTextDocument document;
    readRtf(file("a" + box(" b") + "\\par"), document);
    QTextCursor cursor(document.firstBlock().next());
    cursor.deletePreviousChar();
    QCOMPARE(document.toPlainText(), QStringLiteral("ab"));
    QVERIFY(!writeRtf(document).contains("\\shp"));
}

void ShapeTest::whatComesBehindABoxLooksAsAheadOfIt() {
    const QByteArray written = saved("\\b word" + box("\\i b") + "c\\par d\\par");
    QVERIFY2(written.contains("\\b\\f0\\fs24 deed"), written.constData());
    QVERIFY2(written.contains("\\b\\i\\f0 b}}}c\\par\\pard d\\par"), written.constData());
}

void ShapeTest::aFormulaBesideTheTextOfABoxIsToldOnce() {
    const QByteArray written = saved("word{\\shp{\\shptxt b}{\\mmath}}\\par");
    QCOMPARE(written.count("mmath"), 1);
}

void ShapeTest::aParagraphGoesOnBehindEachOfItsBoxes() {
    const QByteArray table = box("\\trowd\\cellx900\\pard\\intbl b\\cell\\row");
    const QByteArray written =
        saved("\\fi360 word" + table + "c" + box("\\pard d") + "e" + box("\\pard f") + "g\\par");
    QVERIFY2(written.contains("}}}c{\\shp"), written.constData());
    QVERIFY2(written.contains("}}}e{\\shp"), written.constData());
    QVERIFY2(written.contains("}}}g\\par"), written.constData());
}

void ShapeTest::spaceThatIsToldBehindABoxAndTakenBackIsNone() {
    const QByteArray written = saved("word" + box(" b") + "\\sa20 c\\sa0\\par");
    QVERIFY2(written.contains("}}}c\\par"), written.constData());
}

void ShapeTest::anEmptyParagraphAtTheEndOfABoxStays() {
    QTextDocument document;
    readRtf(file("a" + box(" b") + "c\\par"), document);
    QTextCursor cursor(document.firstBlock().next());
    cursor.movePosition(QTextCursor::EndOfBlock);
    cursor.insertBlock();
    const QByteArray written = writeRtf(document);
    QTextDocument again;
    readRtf(written, again);
    QCOMPARE(again.toPlainText(), QStringLiteral("a\nb\n\nc"));
    QCOMPARE(writeRtf(again), written);
}

void ShapeTest::aBoxAtTheStartOfASectionStandsInIt() {
    const QByteArray written = saved("a\\par\\sect\\sectd\\cols2" + box(" b") + "word\\par");
    QVERIFY2(written.contains("\\sect\\sectd\\cols2" + Frame), written.constData());
    QVERIFY2(written.contains("}}}\\pard deed\\par"), written.constData());
}

void ShapeTest::shapesInsideShapesCostNoMoreThanTheirBytes() {
    constexpr int Depth = 3000;
    QByteArray deep;
    for (int i = 0; i < Depth; ++i)
        deep += "{\\shp{\\*\\shpinst{\\shptxt x";
    QTextDocument document;
    readRtf("{\\rtf1 " + deep, document);
    QCOMPARE(document.toPlainText().count(u'x') > 1000, true);
    QVERIFY(writeRtf(document).size() < 20 * deep.size());
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, ShapeTest)
#include "shape_test.moc"
