// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "likeness/unsound.h"
#include "rtf/reader.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextDocument>

using namespace orvalis;
using namespace orvalis::likeness;
using namespace Qt::StringLiterals;

namespace {

const QString Beginning = u"does not begin as RTF"_s;
const QString Braces = u"braces that do not match"_s;
const QString Depth = u"groups within thousands of others"_s;
const QString Data = u"data longer than the file"_s;
const QString NoRow = u"cells without a row"_s;
const QString Outside = u"cells outside of a table"_s;
const QString TooMany = u"more cells than the row has"_s;
const QString Halves = u"halves of characters"_s;

QByteArray groups(int depth) {
    return "{\\rtf1" + QByteArray("{").repeated(depth) + "a" + QByteArray("}").repeated(depth) +
           "}";
}

} // namespace

class UnsoundTest : public QObject {
    Q_OBJECT
private slots:
    void eachFaultIsTold_data();
    void eachFaultIsTold();
    void whatComesNearToAFaultIsSound_data();
    void whatComesNearToAFaultIsSound();

private:
    static QString told(const QByteArray& rtf) {
        QTextDocument document;
        return unsoundness(rtf, rtf::readRtf(rtf, document).fault);
    }
};

void UnsoundTest::eachFaultIsTold_data() {
    QTest::addColumn<QByteArray>("rtf");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char* name, const QByteArray& rtf, const QString& fault) {
        QTest::newRow(name) << rtf << fault;
    };
    row("a blank ahead", " {\\rtf1 a}", Beginning);
    row("a line end within the first brace", "{\n\\rtf1 a}", Beginning);
    row("a group that stays open", "{\\rtf1 {a}", Braces);
    row("a brace too many", "{\\rtf1 a}b}", Braces);
    row("groups without end", groups(5000), Depth);
    row("a picture that is cut off", "{\\rtf1{\\pict\\pngblip\\bin9 ab}}", Data);
    row("a cell and no row", "{\\rtf1\\intbl a\\cell\\pard b\\par}", NoRow);
    row("a row of no cells", "{\\rtf1\\trowd\\intbl a\\cell\\row}", NoRow);
    row("a cell of a paragraph outside", "{\\rtf1\\trowd\\cellx9 a\\cell\\row}", Outside);
    row("a cell behind the table", "{\\rtf1\\trowd\\cellx9\\intbl a\\cell\\row\\pard b\\cell}",
        Outside);
    row("a cell behind the group that is in the table",
        "{\\rtf1\\trowd\\cellx9\\cellx18{\\intbl a\\cell}b\\cell\\row}", Outside);
    row("a cell too many", "{\\rtf1\\trowd\\cellx9\\intbl a\\cell b\\cell\\row}", TooMany);
    row("a cell too many in a further row",
        "{\\rtf1\\trowd\\cellx9\\intbl a\\cell\\row b\\cell c\\cell\\row}", TooMany);
    row("a cell too many in a row behind a wider one",
        "{\\rtf1\\trowd\\cellx9\\cellx18\\intbl a\\cell b\\cell\\row"
        "\\trowd\\cellx9\\intbl c\\cell d\\cell\\row}",
        TooMany);
    row("a first half alone", "{\\rtf1 a\\u-10240?  b}", Halves);
    row("a first half at the end", "{\\rtf1 a\\u-10240?\\par}", Halves);
    row("a second half alone", "{\\rtf1 a\\u-9216? b}", Halves);
    row("halves in the wrong order", "{\\rtf1\\u-9216?\\u-10240?}", Halves);
    row("a first half twice", "{\\rtf1\\u-10240?\\u-10240?\\u-9216?}", Halves);
    row("text between the halves", "{\\rtf1\\uc0\\u-10240?\\u-9216 }", Halves);
    row("more than stands for the first half between them", "{\\rtf1\\u-10240??\\u-9216?}", Halves);
}

void UnsoundTest::eachFaultIsTold() {
    QFETCH(QByteArray, rtf);
    QFETCH(QString, fault);
    QCOMPARE(told(rtf), fault);
}

void UnsoundTest::whatComesNearToAFaultIsSound_data() {
    QTest::addColumn<QByteArray>("rtf");
    const auto row = [](const char* name, const QByteArray& rtf) { QTest::newRow(name) << rtf; };
    row("text of UTF-8", "{\\urtf1 a}");
    row("no number of a version", "{\\rtf a}");
    row("braces that are text", "{\\rtf1 \\{a}");
    row("junk behind the file", QByteArray("{\\rtf1 a}\r\n\0 b", 14));
    row("groups within a thousand others", groups(1000));
    row("a picture that holds braces", "{\\rtf1{\\pict\\pngblip\\bin3 }{}}}");
    row("a row", "{\\rtf1\\trowd\\cellx9\\cellx18\\intbl a\\cell b\\cell\\row\\pard c\\par}");
    row("fewer cells than the row has", "{\\rtf1\\trowd\\cellx9\\cellx18\\intbl a\\cell\\row}");
    row("rows that are shaped by the first",
        "{\\rtf1\\trowd\\cellx9\\intbl a\\cell\\row b\\cell\\row\\pard c\\par}");
    row("a wider row behind", "{\\rtf1\\trowd\\cellx9\\intbl a\\cell\\row"
                              "\\trowd\\cellx9\\cellx18\\intbl b\\cell c\\cell\\row}");
    row("cells of a table in a cell",
        "{\\rtf1\\trowd\\cellx9\\intbl\\itap2 a\\nestcell b\\nestcell\\itap1 c\\cell\\row}");
    row("a cell of a group in the table", "{\\rtf1\\trowd\\cellx9\\intbl{a\\cell}\\row}");
    row("both halves", "{\\rtf1 a\\u-10240?\\u-9216?b}");
    row("both halves, as some write them", "{\\rtf1\\uc0\\u55296\\uc1\\u56320\\'3f}");
    row("halves with two characters for each", "{\\rtf1\\uc2\\u-10240??\\u-9216??}");
    row("letters by number", "{\\rtf1\\u8364?\\u-3?\\u-8192?}");
}

void UnsoundTest::whatComesNearToAFaultIsSound() {
    QFETCH(QByteArray, rtf);
    QCOMPARE(told(rtf), QString());
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, UnsoundTest)
#include "unsound_test.moc"
