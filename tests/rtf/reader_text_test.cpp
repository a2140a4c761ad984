// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "recording_sink.h"
#include "rtf/reader.h"
#include "support/test_main.h"

#include <QGuiApplication>

using namespace orvalis;
using namespace orvalis::rtf;
using orvalis::test::RecordingSink;

namespace {

RecordingSink reading(const QByteArray& body) {
    RecordingSink sink;
    readRtf("{\\rtf1\\ansi\\ansicpg1252\\deff0" + body + "}", sink);
    return sink;
}

QString textOf(const QByteArray& body) {
    return reading(body).whole;
}

} // namespace

class ReaderTextTest : public QObject {
    Q_OBJECT
private slots:
    void everyFormOfTextIsRead_data();
    void everyFormOfTextIsRead();
    void whatTheProgramDoesNotShowIsSkipped_data();
    void whatTheProgramDoesNotShowIsSkipped();
    void codePagesFollowTheFont_data();
    void codePagesFollowTheFont();
    void fontsOfSignsShowWhatUnicodeHas_data();
    void fontsOfSignsShowWhatUnicodeHas();
    void theFormatOfAnEquationIsThatOfItsInstruction();
    void theDocumentsPageHoldsWhereTheFontNamesNone_data();
    void theDocumentsPageHoldsWhereTheFontNamesNone();
    void textWithoutAFontIsNotInTheFirstOneButInItsScript_data();
    void textWithoutAFontIsNotInTheFirstOneButInItsScript();
    void tablesComeAsLinesWithTabs_data();
    void tablesComeAsLinesWithTabs();
    void hyperlinksKeepTheirTargets_data();
    void hyperlinksKeepTheirTargets();
    void aDeepGroupRestoresTheStateOfEachLevel();
    void theUtf8FlavourTakesItsBytesAsUtf8();
    void junkBehindTheEndIsNoText();
    void whatStandsBehindTheLastBraceIsNotRead_data();
    void whatStandsBehindTheLastBraceIsNotRead();
    void zerosBehindACutAreNoText();
};

void ReaderTextTest::everyFormOfTextIsRead_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const QByteArray& body, const QString& text) {
        QTest::newRow(name) << body << text;
    };
    row("plain", " hello", QStringLiteral("hello"));
    row("one blank ends a word, the next is text", "\\b  x", QStringLiteral(" x"));
    row("line ends in the file are nothing", " a\r\nb\nc", QStringLiteral("abc"));
    row("escaped signs", " \\{a\\\\b\\}", QStringLiteral("{a\\b}"));
    row("tab word and tab byte", " a\\tab b\tc", QStringLiteral("a\tb\tc"));
    row("line", " a\\line b", QStringLiteral("a\u2028b"));
    row("paragraphs", " a\\par b\\par ", QStringLiteral("a\nb\n"));
    row("backslash at a line end", " a\\\nb\\\r\nc", QStringLiteral("a\nb\nc"));
    row("zero byte is a blank", QByteArray(" a\0b", 4), QStringLiteral("a b"));
    row("quotes", "\\lquote a\\rquote\\ldblquote b\\rdblquote",
        QStringLiteral("\u2018a\u2019\u201cb\u201d"));
    row("dashes", "\\endash\\emdash", QStringLiteral("\u2013\u2014"));
    row("bullet", "\\bullet", QStringLiteral("\u2022"));
    row("wide blanks are blanks", "a\\emspace\\enspace b", QStringLiteral("a  b"));
    row("fixed blank, soft and fixed hyphen", "a\\~b\\-c\\_d",
        QStringLiteral("a\u00a0b\u00adc\u2011d"));
    row("marks", "\\ltrmark\\rtlmark\\zwj\\zwnj", QStringLiteral("\u200e\u200f\u200d\u200c"));
    row("unicode with its fallback", "\\u8364?x", QStringLiteral("\u20acx"));
    row("negative unicode", "\\u-3913?", QStringLiteral("\uf0b7"));
    row("fallback as a code", "\\u8364\\'80x", QStringLiteral("\u20acx"));
    row("no fallback after uc0", "\\uc0\\u8364 x", QStringLiteral("\u20acx"));
    row("two fallbacks after uc2", "\\uc2\\u1234\\'82\\'a0x", QStringLiteral("\u04d2x"));
    row("uc ends with its group", "{\\uc0\\u960 }\\u960?x", QStringLiteral("\u03c0\u03c0x"));
    row("a group ends the wait for a fallback", "\\u960{?}x", QStringLiteral("\u03c0?x"));
    row("a word ends the wait for a fallback", "\\u960\\b x", QStringLiteral("\u03c0x"));
    row("surrogate pair", "\\u-10179?\\u-9047?", QString::fromUcs4(U"\U0001f4a9"));
    row("surrogates with uc in between", "\\uc0 \\u55357\\uc1 \\u56489\\'3f",
        QString::fromUcs4(U"\U0001f4a9"));
    row("lone surrogates", "\\u-10179?a\\u-9047?b", QStringLiteral("\ufffda\ufffdb"));
    row("unicode out of range", "\\u99999999?a", QStringLiteral("\ufffda"));
    row("cp1252 code", "caf\\'e9 \\'80", QStringLiteral("caf\u00e9 \u20ac"));
    row("code in capitals", "\\'E9", QStringLiteral("\u00e9"));
    row("code that is none loses its mark alone", "\\'zzx", QStringLiteral("zzx"));
    row("a lost backslash leaves the text as it is", "T'd3RAX", QStringLiteral("T'd3RAX"));
    row("both halves of upr", "{\\upr{ansi}{\\*\\ud{\\u1078?}}}", QStringLiteral("\u0436"));
    row("unknown word", "\\nobodyknows12 x", QStringLiteral("x"));
    row("structure that a document takes for its own", "\\u65532?\\u64976?\\u8233?\\u10?",
        QStringLiteral("\ufffd\ufffd\u2028\u2028"));
    row("section and page end a paragraph that has begun", " a\\sect b\\page c\\sect\\sect",
        QStringLiteral("a\nb\nc\n"));
    row("content of a group without a known head", "{\\foo bar}", QStringLiteral("bar"));
    row("result of an embedded object",
        "{\\object\\objemb{\\*\\objclass P}{\\*\\objdata 00ff}"
        "{\\result{ shown}}}",
        QStringLiteral(" shown"));
    row("code that a page leaves to its users",
        "{\\fonttbl{\\f5\\fcharset136 M;}}\\f5\\'84\\'68\\'fa\\'40\\'a0\\'fe\\'84 ",
        QStringLiteral("\uf0b7\ue000\ueeb7\ufffd "));
    row("text of a shape", "a{\\shp{\\*\\shpinst{\\sp{\\sn a}{\\sv b}}{\\shptxt box}}}b",
        QStringLiteral("a\nbox\nb"));
    row("text of shapes in a group",
        "{\\shpgrp{\\*\\shpinst{\\sp{\\sn groupLeft}{\\sv 1}}"
        "{\\shp{\\*\\shpinst{\\sp{\\sn a}{\\sv b}}{\\shptxt one\\par}}}"
        "{\\shp{\\*\\shpinst{\\sp{\\sn pib}{\\sv {\\pict\\pngblip 00}}}{\\shptxt two}}}}"
        "{\\shprslt fallback}}",
        QStringLiteral("one\n\ufffc\ntwo\n"));
    row("entries of an index and of the contents that are not hidden",
        " a{\\xe index{\\v hidden}}b{\\tc contents\\tcl2}c{\\tcn more}",
        QStringLiteral("aindexbcontentscmore"));
    row("base of a word with a reading aid",
        "{\\field{\\*\\fldinst{ EQ \\\\* jc2 \\\\* \"Font:MS Mincho\" \\\\* hps10 "
        "\\\\o\\\\ad(\\\\s\\\\up 9(\\u12363?\\u12435?),\\u28450?\\u23383?)}}{\\fldrslt }}b",
        QStringLiteral("\u6f22\u5b57b"));
    row("fraction", "{\\field{\\*\\fldinst{eq \\\\f(x + 1;\\\\r(3,y))}}}",
        QStringLiteral("x + 1/3\u221ay"));
    row("brackets, lists, arrays and scripts",
        "{\\field{\\*\\fldinst EQ \\\\b\\\\bc\\\\[(\\\\l(a,b))\\\\a\\\\co2(1,2) "
        "x\\\\s\\\\up4(2)}{\\fldrslt}}",
        QStringLiteral("(a, b)1 2 x2"));
    row("equation with signs that stand for themselves",
        "{\\field{\\*\\fldinst EQ a\\\\,b\\\\(c\\\\) (d,e) \\\\x(f}}",
        QStringLiteral("a,b(c) (d, e) f"));
    row("equation with a result", "{\\field{\\*\\fldinst EQ \\\\f(1,2)}{\\fldrslt half}}c",
        QStringLiteral("halfc"));
    row("equation with a picture for a result",
        "{\\field{\\*\\fldinst EQ \\\\f(1,2)}{\\fldrslt{\\pict\\pngblip 00}}}c",
        QStringLiteral("\ufffcc"));
    row("sign of a font of signs",
        "{\\field{\\*\\fldinst SYMBOL 97 \\\\f \"Symbol\" \\\\s 12}"
        "{\\fldrslt\\fs24}}b",
        QStringLiteral("\u03b1b"));
    row("sign by its hexadecimal code", "{\\field{\\*\\fldinst symbol 0xF04A \\\\f Wingdings}}b",
        QStringLiteral("\u263ab"));
    row("sign of no font", "{\\field{\\*\\fldinst SYMBOL 128}}b", QStringLiteral("\u20acb"));
    row("sign by its number in Unicode", "{\\field{\\*\\fldinst SYMBOL 1078 \\\\u}}b",
        QStringLiteral("\u0436b"));
    row("sign with a result", "{\\field{\\*\\fldinst SYMBOL 97 \\\\f Symbol}{\\fldrslt x}}b",
        QStringLiteral("xb"));
    row("signs that are none",
        "{\\field{\\*\\fldinst SYMBOL 7}}{\\field{\\*\\fldinst SYMBOL}}"
        "{\\field{\\*\\fldinst SYMBOL 55296 \\\\u}}{\\field{\\*\\fldinst SYMBOLS 97}}b",
        QStringLiteral("b"));
    const QByteArray list = "{\\field{\\*\\fldinst FORMDROPDOWN {\\*\\formfield{\\fftype2\\ffres1"
                            "{\\*\\ffname n}\\ffdefres0{\\*\\ffl x}{\\*\\ffl v\\'e9\\u1078?!}}}}";
    row("entry of a list that is chosen", list + "{\\fldrslt }}b",
        QStringLiteral("v\u00e9\u0436!b"));
    row("entry of a list that is chosen at first",
        QByteArray(list).replace("ffres1", "ffres25") + "{\\fldrslt }}b", QStringLiteral("xb"));
    row("entry that a list does not have", QByteArray(list).replace("ffres1", "ffres2") + "}b",
        QStringLiteral("b"));
    row("list with a result", list + "{\\fldrslt z}}b", QStringLiteral("zb"));
    row("other field without a result", " a{\\field{\\*\\fldinst EQUALS (b)}{\\fldrslt }}c",
        QStringLiteral("ac"));
    row("a second brace too many", " a}b\\par c", QStringLiteral("ab\nc"));
    row("hidden text is part of the text", " a{\\v b}c", QStringLiteral("abc"));
}

void ReaderTextTest::everyFormOfTextIsRead() {
    QFETCH(QByteArray, body);
    QFETCH(QString, text);
    QCOMPARE(textOf(body), text);
}

void ReaderTextTest::whatTheProgramDoesNotShowIsSkipped_data() {
    QTest::addColumn<QByteArray>("group");
    for (const char* group : {"{\\stylesheet{\\s0 Normal;}}",
                              "{\\info{\\title T}{\\author A}}",
                              "{\\header h\\par}",
                              "{\\headerl h}",
                              "{\\footer f\\par}",
                              "{\\footerf f}",
                              "{\\footnote note}",
                              "{\\*\\footnote note}",
                              "{\\*\\annotation a}",
                              "{\\*\\atnid a}",
                              "{\\*\\bkmkstart b}",
                              "{\\xe{\\v index}}",
                              "{\\tc {\\v contents\\par more}}",
                              "{\\v{\\xe index}{\\tcn contents\\tcl1}}",
                              "{\\xe{\\*\\txe see there}{\\*\\rxe mark}}",
                              "{\\formfield{\\fftype0{\\ffname Text1}{\\ffdeftext t}}}",
                              "{\\*\\generator G;}",
                              "{\\*\\unknown {deep {er}}}",
                              "{\\*\\unknown \\bin3 }}}}",
                              "{\\*\\unknown \\bin3 }x{}",
                              "{\\*\\themedata 0011}",
                              "{\\deleted gone}",
                              "{\\pntext 1.\\tab}",
                              "{\\listtext\\pard\\plain 1.\\tab}",
                              "{\\nonesttables\\par}",
                              "{\\*\\fldinst PAGE}",
                              "{\\colortbl;\\red1\\green2\\blue3;}",
                              "{\\fonttbl{\\f0 Arial;}{\\f1 Times;}}",
                              "{\\*\\listtable{\\list{\\listname x;}}}",
                              "{\\*\\pn\\pnlvlbody{\\pntxta.}}",
                              "{\\ftnsep\\chftnsep}",
                              "{\\*\\do\\dptxbx"
                              "{\\dptxbxtext old box}}",
                              "{\\* \\generator G;}",
                              "{\\*\t\\unknown {deep {er}}}",
                              "{*\\generator lost}"})
        QTest::newRow(group) << QByteArray(group);
}

void ReaderTextTest::whatTheProgramDoesNotShowIsSkipped() {
    QFETCH(QByteArray, group);
    QString expected = QStringLiteral("ab");
    if (group.startsWith("{*"))
        expected.insert(1, u'*');
    QCOMPARE(textOf(" a" + group + "b"), expected);
}

void ReaderTextTest::codePagesFollowTheFont_data() {
    QTest::addColumn<int>("charset");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("western") << 0 << QByteArray("\\'e8") << QStringLiteral("\u00e8");
    QTest::newRow("central european") << 238 << QByteArray("\\'e8") << QStringLiteral("\u010d");
    QTest::newRow("cyrillic") << 204 << QByteArray("\\'cf\\'f0") << QStringLiteral("\u041f\u0440");
    QTest::newRow("greek") << 161 << QByteArray("\\'e1") << QStringLiteral("\u03b1");
    QTest::newRow("turkish") << 162 << QByteArray("\\'fd") << QStringLiteral("\u0131");
    QTest::newRow("hebrew") << 177 << QByteArray("\\'e0") << QStringLiteral("\u05d0");
    QTest::newRow("arabic") << 178 << QByteArray("\\'c7") << QStringLiteral("\u0627");
    QTest::newRow("baltic") << 186 << QByteArray("\\'e0") << QStringLiteral("\u0105");
    QTest::newRow("vietnamese") << 163 << QByteArray("\\'fe") << QStringLiteral("\u20ab");
    QTest::newRow("thai") << 222 << QByteArray("\\'a1") << QStringLiteral("\u0e01");
    QTest::newRow("macintosh") << 77 << QByteArray("\\'8e") << QStringLiteral("\u00e9");
    QTest::newRow("terminal") << 254 << QByteArray("\\'82") << QStringLiteral("\u00e9");
    QTest::newRow("other terminal") << 255 << QByteArray("\\'9b") << QStringLiteral("\u00f8");
    QTest::newRow("japanese") << 128 << QByteArray("\\'83\\'65") << QStringLiteral("\u30c6");
    QTest::newRow("japanese, plain second byte")
        << 128 << QByteArray("\\'83Va") << QStringLiteral("\u30b7a");
    QTest::newRow("japanese, escaped second byte")
        << 128 << QByteArray("\\'95\\\\") << QStringLiteral("\u8868");
    QTest::newRow("korean") << 129 << QByteArray("\\'b0\\'a1") << QStringLiteral("\uac00");
    QTest::newRow("johab") << 130 << QByteArray("\\'88\\'61") << QStringLiteral("\uac00");
    QTest::newRow("chinese, simplified")
        << 134 << QByteArray("\\'cb\\'ce") << QStringLiteral("\u5b8b");
    QTest::newRow("chinese, traditional")
        << 136 << QByteArray("\\'a4\\'a4") << QStringLiteral("\u4e2d");
    QTest::newRow("half a character")
        << 134 << QByteArray("\\'cb\\par ") << QStringLiteral("\ufffd\n");
    QTest::newRow("symbol") << 2 << QByteArray("abc\\'b7")
                            << QStringLiteral("\u03b1\u03b2\u03c7\u2022");
    QTest::newRow("symbol of a word processor")
        << 2 << QByteArray("\\u-3913\\'b7\\u-4000?") << QStringLiteral("\u2022\uf8e5");
    QTest::newRow("no such charset") << 99 << QByteArray("\\'e9") << QStringLiteral("\u00e9");
}

void ReaderTextTest::codePagesFollowTheFont() {
    QFETCH(int, charset);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    const QByteArray fonts = "{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}{\\f1\\fnil\\fcharset" +
                             QByteArray::number(charset) + " Symbol;}}";
    QCOMPARE(textOf(fonts + "\\f1 " + bytes), text);
    QCOMPARE(textOf(fonts + "{\\f1 " + bytes + "}\\'e9"), text + QChar(0xe9));
}

void ReaderTextTest::fontsOfSignsShowWhatUnicodeHas_data() {
    QTest::addColumn<QByteArray>("font");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("Wingdings") << QByteArray("Wingdings") << QByteArray("J\\'fc\\'a7 ")
                               << QStringLiteral("\u263a\u2713\u25aa ");
    QTest::newRow("sign beyond the first plane") << QByteArray("wingdings") << QByteArray("\\'21$")
                                                 << QStringLiteral("\U0001f589\U0001f453");
    QTest::newRow("sign that Unicode has not")
        << QByteArray("Wingdings") << QByteArray("\\'ff") << QStringLiteral("\uf0ff");
    QTest::newRow("Wingdings 2") << QByteArray("Wingdings 2") << QByteArray("\\'98P")
                                 << QStringLiteral("\u25cf\U0001f5f8");
    QTest::newRow("Wingdings 3") << QByteArray("Wingdings 3") << QByteArray("\\'7d!")
                                 << QStringLiteral("\U0001f782\u2b60");
    QTest::newRow("Webdings") << QByteArray("Webdings") << QByteArray("Ya")
                              << QStringLiteral("\U0001f394\u2714");
    QTest::newRow("the free font that stands for Symbol")
        << QByteArray("Standard Symbols L") << QByteArray("abG\\'a0")
        << QStringLiteral("\u03b1\u03b2\u0393\u20ac");
    QTest::newRow("code of the area for private use")
        << QByteArray("Webdings") << QByteArray("\\u-3999?\\u-3999\\'59")
        << QStringLiteral("\u2714\u2714");
    QTest::newRow("other character by its code")
        << QByteArray("Wingdings") << QByteArray("\\u74?\\bullet") << QStringLiteral("J\u2022");
    QTest::newRow("font that Unicode does not know")
        << QByteArray("Marlett") << QByteArray("a\\'e9") << QStringLiteral("a\u00e9");
}

void ReaderTextTest::fontsOfSignsShowWhatUnicodeHas() {
    QFETCH(QByteArray, font);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    const QByteArray fonts =
        "{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}{\\f1\\fnil\\fcharset2 " + font + ";}}";
    QCOMPARE(textOf(fonts + "\\f1 " + bytes), text);
    QCOMPARE(textOf(fonts + "{\\f1 " + bytes + "}J\\'e9"), text + QStringLiteral("J\u00e9"));
}

void ReaderTextTest::theFormatOfAnEquationIsThatOfItsInstruction() {
    const RecordingSink sink =
        reading(" a{\\field{\\*\\fldinst{\\i EQ \\\\f(1,{\\b 2})}}{\\fldrslt}}c");
    QCOMPARE(sink.whole, QStringLiteral("a1/2c"));
    QVERIFY(sink.runs[1].format.italic);
    QVERIFY(!sink.runs[2].format.italic);
}

void ReaderTextTest::theDocumentsPageHoldsWhereTheFontNamesNone_data() {
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("1251") << QByteArray("\\ansicpg1251") << QByteArray("\\'cf")
                          << QStringLiteral("\u041f");
    QTest::newRow("932") << QByteArray("\\ansicpg932") << QByteArray("\\'83V")
                         << QStringLiteral("\u30b7");
    QTest::newRow("65001") << QByteArray("\\ansicpg65001") << QByteArray("\\'c3\\'a9")
                           << QStringLiteral("\u00e9");
    QTest::newRow("10000") << QByteArray("\\ansicpg10000") << QByteArray("\\'8e")
                           << QStringLiteral("\u00e9");
    QTest::newRow("mac") << QByteArray("\\mac") << QByteArray("\\'8e") << QStringLiteral("\u00e9");
    QTest::newRow("pc") << QByteArray("\\pc") << QByteArray("\\'82") << QStringLiteral("\u00e9");
    QTest::newRow("pca") << QByteArray("\\pca") << QByteArray("\\'9b") << QStringLiteral("\u00f8");
    QTest::newRow("0 means the usual one")
        << QByteArray("\\ansicpg0") << QByteArray("\\'80") << QStringLiteral("\u20ac");
    QTest::newRow("1200 means the usual one")
        << QByteArray("\\ansicpg1200") << QByteArray("\\'80") << QStringLiteral("\u20ac");
    QTest::newRow("the codes of signs mean the usual one")
        << QByteArray("\\ansicpg42") << QByteArray("a\\'80") << QStringLiteral("a\u20ac");
    QTest::newRow("cpg of the font wins")
        << QByteArray("\\ansicpg1251{\\fonttbl{\\f0\\cpg1253 A;}}\\f0") << QByteArray("\\'e1")
        << QStringLiteral("\u03b1");
}

void ReaderTextTest::theDocumentsPageHoldsWhereTheFontNamesNone() {
    QFETCH(QByteArray, head);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    RecordingSink sink;
    readRtf("{\\rtf1\\ansi" + head + " " + bytes + "}", sink);
    QCOMPARE(sink.whole, text);
}

void ReaderTextTest::textWithoutAFontIsNotInTheFirstOneButInItsScript_data() {
    QTest::addColumn<QByteArray>("font");
    QTest::addColumn<QString>("text");
    QTest::newRow("Cyrillic") << QByteArray("\\fcharset204 Arial") << QStringLiteral("\u043fJ");
    QTest::newRow("signs") << QByteArray("\\fcharset2 Wingdings") << QStringLiteral("\u00efJ");
}

void ReaderTextTest::textWithoutAFontIsNotInTheFirstOneButInItsScript() {
    QFETCH(QByteArray, font);
    QFETCH(QString, text);
    const QByteArray head = "{\\rtf1\\ansi";
    const QByteArray body = "{\\fonttbl{\\f0" + font + ";}}\\'efJ\\par}";
    RecordingSink sink;
    readRtf(head + body, sink);
    QCOMPARE(sink.whole, text + u'\n');
    QCOMPARE(sink.runs.first().format.family, NoName);
    RecordingSink named;
    readRtf(head + "\\deff0" + body, named);
    QVERIFY(named.runs.first().format.family != NoName);
}

void ReaderTextTest::tablesComeAsLinesWithTabs_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("text");
    QTest::newRow("two rows") << QByteArray("\\trowd\\cellx1\\cellx2\\intbl a\\cell b\\cell\\row"
                                            "\\trowd\\intbl c\\cell d\\cell\\row\\pard e\\par ")
                              << QStringLiteral("a\tb\nc\td\ne\n");
    QTest::newRow("empty cells") << QByteArray("\\intbl\\cell b\\cell\\cell\\row")
                                 << QStringLiteral("\tb\t\n");
    QTest::newRow("more cells than the row has")
        << QByteArray("\\trowd\\cellx1\\intbl a\\cell b\\cell c\\cell\\row")
        << QStringLiteral("a\tb\tc\n");
    QTest::newRow("nested") << QByteArray("\\intbl\\itap2 n\\nestcell m\\nestcell"
                                          "{\\*\\nesttableprops\\trowd\\nestrow}"
                                          "{\\nonesttables\\par}\\itap1 o\\cell\\row")
                            << QStringLiteral("n\tm\no\n");
    QTest::newRow("row without a cell") << QByteArray("\\trowd\\row a") << QStringLiteral("a");
}

void ReaderTextTest::tablesComeAsLinesWithTabs() {
    QFETCH(QByteArray, body);
    QFETCH(QString, text);
    QCOMPARE(textOf(body), text);
}

void ReaderTextTest::hyperlinksKeepTheirTargets_data() {
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("target");
    QTest::newRow("quoted") << QByteArray("{\\field{\\*\\fldinst{HYPERLINK \"http://a.b/c\"}}"
                                          "{\\fldrslt{\\ul t}}}")
                            << QStringLiteral("http://a.b/c");
    QTest::newRow("bare, in doubled braces")
        << QByteArray("{{\\field{\\*\\fldinst{HYPERLINK http://a.b }}{\\fldrslt{t\\ul0\\cf0}}}}")
        << QStringLiteral("http://a.b");
    QTest::newRow("with a place") << QByteArray("{\\field{\\*\\fldinst HYPERLINK \"a\" \\\\l \"p\"}"
                                                "{\\fldrslt t}}")
                                  << QStringLiteral("a#p");
    QTest::newRow("escaped") << QByteArray("{\\field{\\*\\fldinst HYPERLINK \"c:\\\\\\\\x\"}"
                                           "{\\fldrslt t}}")
                             << QStringLiteral("c:\\x");
    QTest::newRow("bare, on a server")
        << QByteArray("{\\field{\\*\\fldinst{HYPERLINK \\\\\\\\server\\\\x.txt}}{\\fldrslt t}}")
        << QStringLiteral("\\\\server\\x.txt");
    QTest::newRow("result marked ignorable")
        << QByteArray("{\\field{\\*\\fldinst{HYPERLINK \"u\"}}{\\*\\fldrslt t}}")
        << QStringLiteral("u");
    QTest::newRow("result that begins with plain characters")
        << QByteArray("{\\field{\\*\\fldinst{HYPERLINK \"u\"}}{\\fldrslt\\plain t}}")
        << QStringLiteral("u");
    QTest::newRow("another field")
        << QByteArray("{\\field{\\*\\fldinst DATE}{\\fldrslt t}}") << QString();
}

void ReaderTextTest::hyperlinksKeepTheirTargets() {
    QFETCH(QByteArray, field);
    QFETCH(QString, target);
    const RecordingSink sink = reading("a" + field + "b");
    QCOMPARE(sink.whole, QStringLiteral("atb"));
    QString found;
    for (const auto& run : sink.runs) {
        if (run.text.contains(u't'))
            found = run.link;
        if (run.text.contains(u'b'))
            QCOMPARE(run.link, QString());
    }
    QCOMPARE(found, target);
}

void ReaderTextTest::aDeepGroupRestoresTheStateOfEachLevel() {
    const RecordingSink sink = reading("\\b a{\\i b{\\ul c}d}e");
    QCOMPARE(sink.runs.size(), 5);
    QVERIFY(sink.runs[2].format.bold && sink.runs[2].format.italic);
    QCOMPARE(sink.runs[2].format.underline, Underline::Single);
    QCOMPARE(sink.runs[3].format.underline, Underline::None);
    QVERIFY(sink.runs[3].format.italic);
    QVERIFY(!sink.runs[4].format.italic && sink.runs[4].format.bold);
}

void ReaderTextTest::theUtf8FlavourTakesItsBytesAsUtf8() {
    RecordingSink sink;
    QVERIFY(readRtf("{\\urtf1 gr\xc3\xbc\xc3\x9f"
                    "e}",
                    sink)
                .ok());
    QCOMPARE(sink.whole, QStringLiteral("gr\u00fc\u00dfe"));
}

void ReaderTextTest::junkBehindTheEndIsNoText() {
    RecordingSink sink;
    QVERIFY(readRtf("{\\rtf1 a}\r\njunk", sink).ok());
    QCOMPARE(sink.whole, QStringLiteral("a"));
}

void ReaderTextTest::whatStandsBehindTheLastBraceIsNotRead_data() {
    QTest::addColumn<QByteArray>("tail");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("fault");
    QTest::newRow("another file") << QByteArray("{\\rtf1 b}") << QStringLiteral("a")
                                  << int(Fault::GoesOn);
    QTest::newRow("a group") << QByteArray("\r\n{\\b b\\par}") << QStringLiteral("a")
                             << int(Fault::GoesOn);
    QTest::newRow("words") << QByteArray("\\par b") << QStringLiteral("a") << int(Fault::GoesOn);
    QTest::newRow("a group without an end")
        << QByteArray("{b") << QStringLiteral("a") << int(Fault::GoesOn);
    QTest::newRow("text, and a brace that the first one was too many for")
        << QByteArray(" b{\\i c}}") << QStringLiteral("a bc") << int(Fault::UnmatchedBrace);
    QTest::newRow("one too many, and another file")
        << QByteArray("b}{\\rtf1 c}") << QStringLiteral("ab") << int(Fault::UnmatchedBrace);
    QTest::newRow("a brace in binary data")
        << QByteArray("b{\\bin1 }") << QStringLiteral("a") << int(Fault::GoesOn);
}

void ReaderTextTest::whatStandsBehindTheLastBraceIsNotRead() {
    QFETCH(QByteArray, tail);
    QFETCH(QString, text);
    RecordingSink sink;
    const ReadResult result = readRtf("{\\rtf1 a}" + tail, sink);
    QCOMPARE(sink.whole, text);
    QTEST(int(result.fault), "fault");
}

void ReaderTextTest::zerosBehindACutAreNoText() {
    RecordingSink sink;
    const QByteArray zeros(4096, '\0');
    const ReadResult result = readRtf("{\\rtf1 a" + QByteArray(1, '\0') + "b\\par" + zeros, sink);
    QCOMPARE(result.fault, Fault::UnexpectedEnd);
    QCOMPARE(sink.whole, QStringLiteral("a b\n"));
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, ReaderTextTest)
#include "reader_text_test.moc"
