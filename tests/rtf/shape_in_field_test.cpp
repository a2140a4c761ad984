// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "sample_shapes.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextDocument>

using namespace orvalis;
using namespace orvalis::rtf;
using orvalis::test::box;
using orvalis::test::Frame;
using orvalis::test::pngBytes;
using orvalis::test::saved;
using orvalis::test::textOf;

namespace {

const QByteArray Plain = "\\plain\\pard\\f0 ";
const QByteArray Link = R"({\*\fldinst HYPERLINK "http://a.b"})";

QByteArray field(const QByteArray& result, const QByteArray& instruction = "{\\*\\fldinst SHAPE}") {
    return "{\\field" + instruction + "{\\fldrslt" + result + "}}";
}

QByteArray inCell(const QByteArray& text) {
    return "\\trowd\\cellx99\\cellx200\\intbl " + text + "\\cell c\\cell\\row\\pard\\par";
}

} // namespace

class ShapeInFieldTest : public QObject {
    Q_OBJECT
private slots:
    void aFieldThatShowsOneShapeIsPartOfIt_data();
    void aFieldThatShowsOneShapeIsPartOfIt();
    void aLinkOfAShapeWithoutTextStays();
    void theTextOfAShapeIsPartOfALink();
    void aFieldIsPartedByAShapeAmongItsText();
    void aLinkIsPartedByAShapeAmongItsText();
    void aFieldOfOneShapeStaysInACell_data();
    void aFieldOfOneShapeStaysInACell();
    void aShapeAmongTheTextOfAFieldStaysInACell();
    void theTextOfAShapeInAFieldCanBeChanged();
    void aShapeStaysBesideWhateverElseAFieldHolds_data();
    void aShapeStaysBesideWhateverElseAFieldHolds();
    void fieldsInsideShapesCostNoMoreThanTheirBytes();
};

void ShapeInFieldTest::aFieldThatShowsOneShapeIsPartOfIt_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("kept");
    const auto row = [](const char* name, const QByteArray& body, const char* text,
                        const QByteArray& kept) {
        QTest::newRow(name) << body << QString::fromLatin1(text) << kept;
    };
    const QByteArray kept = "deed" + field(box(Plain + "b"));
    row("with a text", "word" + field(box(" b")) + "c\\par", "word\nb\nc", kept + "c\\par");
    row("with a text that ends a paragraph", "word" + field(box(" b\\par")) + "c\\par",
        "word\nb\nc", "deed" + field(box(Plain + "b\\par")) + "c\\par");
    row("without text", "word" + field(Frame + "}}") + "c\\par", "wordc",
        "deed" + field(Frame + "}}") + "c\\par");
    row("with two texts", "word" + field(Frame + "{\\shptxt b}{\\shptxt c}}}") + "\\par",
        "word\nb\nc",
        "deed" + field(Frame + "{\\shptxt" + Plain + "b}{\\shptxt" + Plain + "c}}}") + "\\par");
    row("ahead of all text", field(box(" b")) + "word\\par", "b\nword",
        field(box(Plain + "b")) + "\\pard\\f0\\fs24 deed\\par");
    row("with an instruction of runs",
        "word" + field(box(" b"), "{\\*\\fldinst{\\b SHAPE }{\\*\\x y}}") + "\\par", "word\nb",
        "deed" + field(box(Plain + "b"), "{\\*\\fldinst{\\b SHAPE }{\\*\\x y}}"));
    row("in groups that tell how text looks",
        "word" + field("\\f0{\\fs24\\unknown " + box(" b") + "}"), "word\nb", kept);
    row("beside a group to ignore", "word" + field("{\\*\\unknown x}" + box(" b")), "word\nb",
        "deed{\\*\\unknown x}" + field(box(Plain + "b")));
    row("in a field", "word" + field(field(box(" b")), "{\\*\\fldinst IF}"), "word\nb", kept);
}

void ShapeInFieldTest::aFieldThatShowsOneShapeIsPartOfIt() {
    QFETCH(QByteArray, body);
    QFETCH(QString, text);
    QFETCH(QByteArray, kept);
    QCOMPARE(textOf(body), text);
    const QByteArray written = saved(body);
    QVERIFY2(written.contains(kept), written.constData());
    QCOMPARE(written.count("\\field"), 1);
}

void ShapeInFieldTest::aLinkOfAShapeWithoutTextStays() {
    const QByteArray written = saved("word" + field(Frame + "}}", Link) + "b\\par");
    QVERIFY2(written.contains("deed" + field(Frame + "}}", Link) + "b\\par"), written.constData());
}

void ShapeInFieldTest::theTextOfAShapeIsPartOfALink() {
    const QByteArray body = "word" + field(box(" b"), Link) + "c\\par";
    QCOMPARE(textOf(body), QStringLiteral("word\nb\nc"));
    const QByteArray link = R"({\*\fldinst{HYPERLINK "http://a.b"}})";
    const QByteArray written = saved(body);
    QVERIFY2(
        written.contains("deed" + box("\\plain\\pard" + field("\\f0 b", link) + "\\f0") + "c\\par"),
        written.constData());
}

void ShapeInFieldTest::aFieldIsPartedByAShapeAmongItsText() {
    const QByteArray body = "word" + field(" b" + box(" c") + "d") + "e\\par";
    QCOMPARE(textOf(body), QStringLiteral("wordb\nc\nde"));
    const QByteArray written = saved(body);
    QVERIFY2(written.contains("deed" + field(" b") + box(Plain + "c") + field(" d") + "e\\par"),
             written.constData());
}

void ShapeInFieldTest::aLinkIsPartedByAShapeAmongItsText() {
    const QByteArray link = R"({\*\fldinst{HYPERLINK "http://a.b"}})";
    const QByteArray body = "word" + field(" b" + box(" c") + "d", Link) + "e\\par";
    const QByteArray written = saved(body);
    const QByteArray kept = "deed" + field(" b", link) +
                            box("\\plain\\pard" + field("\\f0 c", link) + "\\f0") +
                            field(" d", link) + "e\\par";
    QVERIFY2(written.contains(kept), written.constData());
}

void ShapeInFieldTest::aFieldOfOneShapeStaysInACell_data() {
    QTest::addColumn<QByteArray>("field");
    QTest::newRow("a field") << field(box(" b"));
    QTest::newRow("a link") << field(box(" b"), Link);
}

void ShapeInFieldTest::aFieldOfOneShapeStaysInACell() {
    QFETCH(QByteArray, field);
    QCOMPARE(textOf(inCell("a" + field + "d")), QStringLiteral("abd\tc\n"));
    const QByteArray written = saved(inCell("word" + field + "d"));
    QVERIFY2(written.contains("deed{\\plain\\f0\\fs24" + field + "}d\\cell"), written.constData());
}

void ShapeInFieldTest::aShapeAmongTheTextOfAFieldStaysInACell() {
    const QByteArray body = inCell("word" + field(" b" + box(" c") + "d"));
    QCOMPARE(textOf(body), QStringLiteral("wordbcd\tc\n"));
    const QByteArray written = saved(body);
    const QByteArray kept =
        "deed" + field(" b") + "{\\plain\\f0\\fs24" + box(" c") + "}" + field(" d") + "\\cell";
    QVERIFY2(written.contains(kept), written.constData());
}

void ShapeInFieldTest::theTextOfAShapeInAFieldCanBeChanged() {
    const QByteArray written = saved("a" + field(box(" word")) + "\\par");
    QVERIFY2(written.contains("a" + field(box(Plain + "deed")) + "\\par"), written.constData());
    const QByteArray cell = saved(inCell("a" + field(box(" word"))));
    QVERIFY2(cell.contains("\\fs24" + field(box("\\pard\\plain\\f0 deed")) + "}\\cell"),
             cell.constData());
}

void ShapeInFieldTest::aShapeStaysBesideWhateverElseAFieldHolds_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("shapes");
    const auto row = [](const char* name, const QByteArray& body, int shapes = 1) {
        QTest::newRow(name) << "word" + body + "\\par" << shapes;
    };
    const QByteArray picture = "{\\pict\\pngblip " + pngBytes().toHex() + "}";
    row("a bookmark", field("{\\*\\bkmkstart x}" + box(" b")));
    row("another shape", field(box(" b") + box(" c")), 2);
    row("another shape without text", field(Frame + "}}" + box(" c")), 2);
    row("a picture", field(box(" b") + picture));
    row("the end of a paragraph", field(box(" b") + "\\par"));
    row("the shape of a paragraph", field("\\qc" + box(" b")));
    row("text ahead of its result", "{\\field{\\*\\fldinst SHAPE}x{\\fldrslt" + box(" b") + "}}");
    row("a result without a shape of its own",
        "{\\field{\\*\\fldinst SHAPE}" + box(" b") + "{\\fldrslt}}");
    row("a second instruction", field(box(" b"), "{\\*\\fldinst SHAPE}{\\*\\fldinst OTHER}"));
    row("no instruction", field(box(" b"), {}));
    row("a word of tracked changes", field("\\deleted0" + box(" b")));
}

void ShapeInFieldTest::aShapeStaysBesideWhateverElseAFieldHolds() {
    QFETCH(QByteArray, body);
    QFETCH(int, shapes);
    const QByteArray written = saved(body);
    QCOMPARE(written.count("{\\shp{"), shapes);
    QVERIFY2(!written.contains("{\\fldrslt{\\shp"), written.constData());
}

void ShapeInFieldTest::fieldsInsideShapesCostNoMoreThanTheirBytes() {
    constexpr int Depth = 1000;
    QByteArray deep;
    for (int i = 0; i < Depth; ++i)
        deep += "{\\field{\\*\\fldinst SHAPE}{\\fldrslt{\\shp{\\*\\shpinst{\\shptxt x";
    QTextDocument document;
    readRtf("{\\rtf1 " + deep, document);
    QVERIFY(document.toPlainText().count(u'x') > 500);
    QVERIFY(writeRtf(document).size() < 20 * deep.size());
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, ShapeInFieldTest)
#include "shape_in_field_test.moc"
