// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "skin/recorder/svg_recorder.h"
#include "support/test_main.h"

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace orvalis::skin::recorder;

namespace {

QString failureOf(const QString& list) {
    try {
        readRecipes(list);
    } catch (const RecorderError& failure) {
        return QString::fromUtf8(failure.what());
    }
    return {};
}

} // namespace

class RecipeTest : public QObject {
    Q_OBJECT
private slots:
    void aRecipeHasANameASizeAndItsLayersFromBackToFront();
    void aPictureOnABaseIsDrawnOverIt();
    void commentsAndBlankLinesAreNoRecipes();
    void aFaultyListNamesItsLine_data();
    void aFaultyListNamesItsLine();
    void aTintExchangesColours();
    void aLayerStandsInItsPlace();
    void whatDoesNotRecordIsRefused_data();
    void whatDoesNotRecordIsRefused();

private:
    void writeSvg(const QString& name, const QByteArray& body);
    QString drawFailure(const QString& list);

    QTemporaryDir m_folder;
};

void RecipeTest::writeSvg(const QString& name, const QByteArray& body) {
    QFile file(m_folder.filePath(name + u".svg"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"10\" height=\"10\" "
               "viewBox=\"0 0 10 10\">" +
               body + "</svg>");
}

QString RecipeTest::drawFailure(const QString& list) {
    const SvgRecorder recorder(m_folder.path(), readRecipes(list));
    try {
        recorder.record(recorder.recipes().constFirst());
    } catch (const RecorderError& failure) {
        return QString::fromUtf8(failure.what());
    }
    return {};
}

void RecipeTest::aRecipeHasANameASizeAndItsLayersFromBackToFront() {
    const RecipeBook book = readRecipes(u"tint pale #000000=#FFFFFF\n"
                                        "new 32x24 : plate + icon_new@pale 5,4.5,22,21\n"_s);
    QCOMPARE(book.recipes.size(), 1);
    const Recipe recipe = book.recipes.constFirst();
    QCOMPARE(recipe.name, u"new"_s);
    QCOMPARE(recipe.size, QSize(32, 24));
    QCOMPARE(recipe.layers.size(), 2);
    QCOMPARE(recipe.layers[0].svg, u"plate"_s);
    QCOMPARE(recipe.layers[0].tint, QString());
    QCOMPARE(recipe.layers[0].place, QRectF(0, 0, 32, 24));
    QCOMPARE(recipe.layers[1].svg, u"icon_new"_s);
    QCOMPARE(recipe.layers[1].tint, u"pale"_s);
    QCOMPARE(recipe.layers[1].place, QRectF(5, 4.5, 22, 21));
}

void RecipeTest::commentsAndBlankLinesAreNoRecipes() {
    QCOMPARE(readRecipes(u"// words : words\n\n   \na 1x1 : b // behind\n"_s).recipes.size(), 1);
}

void RecipeTest::aFaultyListNamesItsLine_data() {
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("words");
    const auto row = [](const char* name, const QString& list, const QString& words) {
        QTest::newRow(name) << list << u"pictures.list:"_s + words;
    };
    row("no layers", u"\na 1x1\n"_s, u"2: neither a tint nor a picture"_s);
    row("size with one side", u"a 10 : b\n"_s, u"1: not a size: 10"_s);
    row("size of nothing", u"a 0x4 : b\n"_s, u"1: not a size: 0x4"_s);
    row("place with three sides", u"a 1x1 : b 1,2,3\n"_s, u"1: not a place: 1,2,3"_s);
    row("empty place", u"a 1x1 : b 1,2,0,3\n"_s, u"1: not a place: 1,2,0,3"_s);
    row("layer without a drawing", u"a 1x1 : @x\n"_s, u"1: not a layer:  @x"_s);
    row("name twice", u"a 1x1 : b\na 2x2 : c\n"_s, u"2: picture given twice: a"_s);
    row("tint nowhere", u"a 1x1 : b@pale\n"_s, u"1: no such tint: pale"_s);
    row("tint twice", u"tint t #0=#1\ntint t #0=#1\n"_s, u"2: tint given twice: t"_s);
    row("base nowhere", u"a 1x1 : =b + c\n"_s, u"1: no such picture above: b"_s);
    row("base below", u"a 1x1 : =b + c\nb 1x1 : d\n"_s, u"1: no such picture above: b"_s);
    row("base of another size", u"b 2x2 : d\na 1x1 : =b + c\n"_s, u"2: cannot lie on b"_s);
    row("base with a base", u"b 1x1 : d\na 1x1 : =b + c\ne 1x1 : =a + c\n"_s,
        u"3: cannot lie on a"_s);
    row("base behind a layer", u"b 1x1 : d\na 1x1 : c + =b\n"_s, u"2: cannot lie on b"_s);
    row("tint of one colour", u"tint t #0\n"_s, u"1: not a pair of colours: #0"_s);
}

void RecipeTest::aFaultyListNamesItsLine() {
    QFETCH(QString, list);
    QFETCH(QString, words);
    QCOMPARE(failureOf(list).simplified(), words.simplified());
}

void RecipeTest::aTintExchangesColours() {
    writeSvg(u"square"_s, "<path d=\"M0 0H10V10H0Z\" fill=\"#112233\"/>");
    const SvgRecorder recorder(m_folder.path(),
                               readRecipes(u"tint t #112233=#445566\na 10x10 : square@t\n"_s));
    QImage image(10, 10, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    recorder.draw(painter, recorder.recipes().constFirst());
    painter.end();
    QCOMPARE(image.pixel(5, 5), qRgb(0x44, 0x55, 0x66));
}

void RecipeTest::aLayerStandsInItsPlace() {
    writeSvg(u"square"_s, "<path d=\"M0 0H10V10H0Z\" fill=\"#112233\"/>");
    const SvgRecorder recorder(m_folder.path(), readRecipes(u"a 20x20 : square 4,6,5,3\n"_s));
    QImage image(20, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    recorder.draw(painter, recorder.recipes().constFirst());
    painter.end();
    for (const QPoint inside : {QPoint(4, 6), QPoint(8, 8)})
        QCOMPARE(image.pixel(inside), qRgb(0x11, 0x22, 0x33));
    for (const QPoint outside : {QPoint(3, 6), QPoint(4, 5), QPoint(9, 8), QPoint(8, 9)})
        QCOMPARE(image.pixel(outside), qRgb(255, 255, 255));
}

void RecipeTest::aPictureOnABaseIsDrawnOverIt() {
    writeSvg(u"under"_s, "<path d=\"M0 0H10V10H0Z\" fill=\"#112233\"/>");
    writeSvg(u"over"_s, "<path d=\"M0 0H5V10H0Z\" fill=\"#445566\"/>");
    const SvgRecorder recorder(m_folder.path(),
                               readRecipes(u"plate 10x10 : under\nicon 10x10 : =plate + over\n"_s));
    QCOMPARE(recorder.recipes().constLast().base, u"plate"_s);
    QImage image(10, 10, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    recorder.draw(painter, recorder.recipes().constLast());
    painter.end();
    QCOMPARE(image.pixel(2, 5), qRgb(0x44, 0x55, 0x66));
    QCOMPARE(image.pixel(7, 5), qRgb(0x11, 0x22, 0x33));
}

void RecipeTest::whatDoesNotRecordIsRefused_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("words");
    QTest::newRow("text") << QByteArray("<text>A</text>") << u"bad.svg:1: <text> does not record"_s;
    QTest::newRow("filter") << QByteArray("<defs><filter id=\"f\"/></defs>")
                            << u"bad.svg:1: <filter> does not record"_s;
    QTest::newRow("rectangle") << QByteArray("<rect width=\"4\" height=\"4\"/>")
                               << u"bad.svg:1: <rect> does not record"_s;
    QTest::newRow("not closed") << QByteArray("<g>") << u"bad.svg:1: "_s;
}

void RecipeTest::whatDoesNotRecordIsRefused() {
    QFETCH(QByteArray, body);
    QFETCH(QString, words);
    writeSvg(u"bad"_s, body);
    const QString failure = drawFailure(u"a 10x10 : bad\n"_s);
    QVERIFY2(failure.startsWith(words), qPrintable(failure));
    QVERIFY(drawFailure(u"a 10x10 : missing\n"_s).contains(u"missing.svg"));
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, RecipeTest)
#include "recipe_test.moc"
