// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "kept_file.h"
#include "sample_shapes.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextDocument>

using namespace orvalis;
using namespace orvalis::rtf;
using orvalis::test::pngBytes;
using orvalis::test::saved;
using orvalis::test::textOf;

namespace {

QByteArray object(const QByteArray& result) {
    return "{\\object\\objemb\\objw99{\\*\\objclass Sheet}{\\*\\objdata 0105}{\\result " + result +
           "}}";
}

/// Digits of one picture.
QByteArray digits() {
    static const QByteArray Digits = pngBytes().toHex();
    return Digits;
}

QByteArray png() {
    return "{\\pict\\pngblip " + digits() + "}";
}

} // namespace

/// Objects of other programs, which a picture shows, and what a file tells of pictures.
class EmbeddedObjectTest : public QObject {
    Q_OBJECT
private slots:
    void anObjectIsShownByThePictureOfItsResult();
    void anObjectGoesWithItsPicture_data();
    void anObjectGoesWithItsPicture();
    void dataOfAnObjectInBinaryStay();
    void anObjectThatShowsNothingStaysAtItsPlace();
    void anObjectThatShowsTextGoesWithIt();
    void anObjectBehindOneThatShowsTextStays();
    void anObjectThatIsMoreThanALineIsWhatItShows_data();
    void anObjectThatIsMoreThanALineIsWhatItShows();
    void anObjectStandsInTheTextOfABox();
    void aPictureThatIsTakenOutTakesItsObjectAlong();
    void aCroppedPictureStaysCropped();
    void aPictureKeepsItsProperties();
    void propertiesThatNameAFontAreNotKept();
    void digitsBehindACharacterAreThoseOfThePicture();
};

void EmbeddedObjectTest::anObjectIsShownByThePictureOfItsResult() {
    QCOMPARE(textOf("a" + object(png()) + "b\\par"), QStringLiteral("a\uFFFCb"));
}

void EmbeddedObjectTest::anObjectGoesWithItsPicture_data() {
    QTest::addColumn<QByteArray>("result");
    QTest::addColumn<QByteArray>("head");
    const QByteArray start =
        "{\\object\\objemb\\objw99{\\*\\objclass Sheet}{\\*\\objdata 0105}{\\result";
    QTest::newRow("alone") << png() << start + "{\\pict\\pngblip";
    QTest::newRow("in its look") << "{\\dn4 " + png() + "}" << start + "{\\dn4{\\pict\\pngblip";
    QTest::newRow("in two forms") << "{\\*\\shppict" + png() +
                                         "}{\\nonshppict{\\pict\\wmetafile8 01}}"
                                  << start + "{\\*\\shppict{\\pict\\pngblip";
}

void EmbeddedObjectTest::anObjectGoesWithItsPicture() {
    QFETCH(QByteArray, result);
    QFETCH(QByteArray, head);
    for (const QByteArray& around :
         {QByteArray("%\\par"), QByteArray("\\trowd\\cellx99\\intbl %\\cell\\row")}) {
        const QByteArray written =
            saved(QByteArray(around).replace("%", "word" + object(result) + "b"));
        QVERIFY2(written.contains(head), written.constData());
        QVERIFY2(written.contains(digits()), written.constData());
        QVERIFY(!written.contains("nonshppict"));
    }
}

void EmbeddedObjectTest::dataOfAnObjectInBinaryStay() {
    const QByteArray written =
        saved("word{\\object{\\*\\objdata 01\\bin2 {}}{\\result" + png() + "}}\\par");
    QVERIFY2(written.contains("{\\*\\objdata 017b7d}"), written.constData());
}

void EmbeddedObjectTest::anObjectThatShowsNothingStaysAtItsPlace() {
    const QByteArray written = saved("word" + object("") + "b\\par");
    QVERIFY2(written.contains("deed{\\object\\objemb\\objw99{\\*\\objclass Sheet}{\\*\\objdata "
                              "0105}{\\result}}b\\par"),
             written.constData());
}

void EmbeddedObjectTest::anObjectThatShowsTextGoesWithIt() {
    const QByteArray body = "word" + object("b{\\b c}") + "d\\par";
    QCOMPARE(textOf(body), QStringLiteral("wordbcd"));
    const QByteArray written = saved(body);
    QVERIFY2(
        written.contains("deed{\\object\\objemb\\objw99{\\*\\objclass Sheet}{\\*\\objdata 0105}"
                         "{\\result b\\b c}}d\\par"),
        written.constData());
}

void EmbeddedObjectTest::anObjectBehindOneThatShowsTextStays() {
    const QByteArray hidden = "{\\object{\\*\\objdata 02}}";
    const QByteArray written = saved("word" + object("b") + hidden + "c\\par");
    QVERIFY2(written.contains("{\\result b" + hidden + "}}c\\par"), written.constData());
}

void EmbeddedObjectTest::anObjectThatIsMoreThanALineIsWhatItShows_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("paragraphs") << object("b\\par c") + "\\par";
    QTest::newRow("a text beside its result")
        << QByteArray("{\\object{\\*\\objdata 01}b{\\result c}}\\par");
    QTest::newRow("several pictures") << object(png() + png()) + "\\par";
    QTest::newRow("two results") << QByteArray(
        "{\\object{\\*\\objdata 01}{\\result b}{\\result c}}\\par");
    QTest::newRow("groups that nobody knows")
        << QByteArray("{\\object{\\*\\objdata 01}{\\*\\foo}{\\result c}}\\par");
    QTest::newRow("nothing of the object") << QByteArray("{\\object{\\result c}}\\par");
    QTest::newRow("a field's text")
        << "{\\field{\\*\\fldinst QUOTE}{\\fldrslt b" + object("c") + "}}\\par";
}

void EmbeddedObjectTest::anObjectThatIsMoreThanALineIsWhatItShows() {
    QFETCH(QByteArray, body);
    const QByteArray written = saved("word" + body);
    QVERIFY2(written.contains("deed") && !written.contains("\\object"), written.constData());
}

void EmbeddedObjectTest::anObjectStandsInTheTextOfABox() {
    const QByteArray written =
        saved("word" + test::box("\\pard b" + object(png()) + "c\\par") + "\\par");
    QVERIFY2(written.contains("b{\\object\\objemb\\objw99{\\*\\objclass Sheet}{\\*\\objdata 0105}"
                              "{\\result{\\pict"),
             written.constData());
    QVERIFY2(written.contains("{\\shptxt"), written.constData());
}

void EmbeddedObjectTest::aPictureThatIsTakenOutTakesItsObjectAlong() {
    QTextDocument document;
    QVERIFY(readRtf(test::file("a" + object(png()) + "b\\par"), document).ok());
    QTextCursor cursor(&document);
    cursor.setPosition(1);
    cursor.deleteChar();
    QVERIFY(!writeRtf(document).contains("\\obj"));
}

void EmbeddedObjectTest::aCroppedPictureStaysCropped() {
    const QByteArray written =
        saved("word{\\pict\\bliptag7\\pngblip\\piccropt-5\\piccropl40\\piccropr0\\piccropb7 " +
              digits() + "}\\par");
    QVERIFY2(written.contains("{\\pict\\bliptag7\\piccropb7\\piccropl40\\piccropt-5\\pngblip"),
             written.constData());
    QVERIFY(!written.contains("\\piccropr"));
    // The form for old readers has sides of its own.
    QCOMPARE(written.count("\\piccropl"), 1);
    QVERIFY(!saved("word{\\pict\\pngblip\\piccropl4 " + digits() + "}" + png() + "\\par")
                 .contains("piccropl4\\pngblip\\picw4\\pich3\\picwgoal60\\pichgoal45\\piccropl4"));
}

void EmbeddedObjectTest::aPictureKeepsItsProperties() {
    const QByteArray properties = "{\\*\\picprop\\shplid7{\\sp{\\sn wzDescription}{\\sv A hill}}}";
    const QByteArray written =
        saved("word{\\pict" + properties + "\\pngblip " + digits() + "}" + png() + "\\par");
    QVERIFY2(written.contains("{\\pict" + properties + "\\pngblip"), written.constData());
    QCOMPARE(written.count("wzDescription"), 1);
}

void EmbeddedObjectTest::propertiesThatNameAFontAreNotKept() {
    const QByteArray written =
        saved("word{\\pict{\\*\\picprop\\f2 x}\\pngblip " + digits() + "}\\par");
    QVERIFY2(written.contains("{\\pict\\pngblip"), written.constData());
}

void EmbeddedObjectTest::digitsBehindACharacterAreThoseOfThePicture() {
    QByteArray parted = digits();
    parted.insert(8, "\\u61 ");
    const QByteArray written = saved("word{\\pict\\pngblip " + parted + "}\\par");
    QVERIFY2(written.contains(digits()), written.constData());
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, EmbeddedObjectTest)
#include "embedded_object_test.moc"
