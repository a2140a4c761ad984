// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "kept_file.h"
#include "rtf/formats/format_properties.h"
#include "rtf/kept/kept_parts.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

using namespace orvalis;
using namespace orvalis::rtf;
using orvalis::test::changedAndSaved;
using orvalis::test::file;

namespace {

/// Whether nothing is kept but what any file tells of its text.
bool holdsNothing(KeptParts parts) {
    parts.nameless = false;
    parts.defaultFont = DefaultFont::Unknown;
    parts.unnamedFamily.clear();
    parts.faces.clear();
    return parts == KeptParts();
}

} // namespace

class KeepingTest : public QObject {
    Q_OBJECT
private slots:
    void whatIsNotShownIsKept_data();
    void whatIsNotShownIsKept();
    void aPlainNoteCarriesNothing();
    void whatEndsIsNotKept_data();
    void whatEndsIsNotKept();
    void theFieldOfASignThatIsChangedIsText();
    void aFontKeepsWhetherItIsOneOfSigns();
    void signsThatAreToldByNumberStayNumbers();
    void signsOfTheDefaultFontStayBytes();
    void aFontThatOthersTakeForOneOfSignsHasItsTextByNumber();
    void fontsAndColoursOfAHeaderAreThoseOfTheNewTables();
    void theDefaultFontOfAHeaderStaysItsFont();
    void aHeaderInOtherLettersKeepsItsText();
    void aPictureInAHeaderStays();
    void sectionsKeepWhatEachOfThemSays();
    void aSectionGoesWithTheParagraphThatItBeginsWith();
    void anEmptyParagraphAheadOfASectionStays();
    void eachSectionEndsItsParagraphInItsOwnWay();
    void aDeletedParagraphTakesItsPropertiesAlong();
    void anotherDocumentBringsItsOwn();
    void whatIsInsertedLeavesTheDocumentAsItIs();
    void whatIsInsertedHasItsParagraphs();
    void stylesMeanNothingInADocumentOfOtherStyles();
    void aPartOfADocumentHasNoPage();
    void paragraphsShowTheirShade_data();
    void paragraphsShowTheirShade();
    void spacedLettersAreShownSpaced();
    void spacingIsHeldToWhatALineCanShow();
    void aFloodOfKeptWordsIsBounded();
    void aFloodOfHeadersIsBounded();
};

void KeepingTest::whatIsNotShownIsKept_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("kept");
    const auto row = [](const char* name, const QByteArray& body, const QByteArray& kept) {
        QTest::newRow(name) << body << kept;
    };
    row("page",
        "\\paperw11906\\paperh16838\\margl1134\\margr850\\margt567\\margb567\\landscape "
        "word\\par",
        "\\paperw11906\\paperh16838\\margl1134\\margr850\\margt567\\margb567\\landscape\r\n");
    row("facing pages", "\\facingp\\gutter300\\margmirror\\pgnstart7 word\\par",
        "\\gutter300\\facingp\\margmirror\\pgnstart7\r\n");
    row("hyphenation", "\\hyphauto1\\hyphhotz425 word\\par", "\\hyphauto1\\hyphhotz425\r\n");
    row("compatibility", "\\dntblnsbdb\\hyphauto1\\dghspace180\\jexpand word\\par",
        "\\hyphauto1\\dntblnsbdb\\jexpand\\dghspace180\r\n");
    row("sections that are not locked", "\\sectd\\sectunlocked1\\cols2 word\\par",
        "\\sectd\\cols2\\sectunlocked\r\n");
    row("language of the document", "\\deflang1031 word\\par", "\\deff0\\deflang1031{");
    row("section", "\\sectd\\sbkpage\\cols2\\colsx708\\titlepg\\headery709 word\\par",
        "\\sectd\\sbkpage\\headery709\\titlepg\\cols2\\colsx708\r\n");
    row("columns of different widths",
        "\\sectd\\cols2\\colno1\\colw1200\\colsr300\\colno2\\colw4000 word\\par",
        "\\sectd\\cols2\\colno1\\colw1200\\colsr300\\colno2\\colw4000\r\n");
    row("columns of a further section",
        "\\sectd\\colno1\\colw9 a\\sect\\sectd\\cols2\\colno2\\colw40\\colno1\\colw12 word\\par",
        "a\\sect\\sectd\\cols2\\colno1\\colw12\\colno2\\colw40\r\n");
    row("font of a header that the file does not have", "{\\header\\f9 Over it\\par}word\\par",
        "{\\header\\f32767 Over it\\par}\r\n");
    row("look ahead of a field",
        "{\\f2 word }{\\field{\\*\\fldinst DATE}{\\fldrslt\\f0 today}}\\par",
        "\\f0{\\field{\\*\\fldinst DATE}{\\fldrslt today}}");
    row("page border beside headers", "\\pgbrdrhead\\pgbrdrfoot\\sectd word\\par",
        "\\pgbrdrhead\\pgbrdrfoot\r\n");
    row("numbers of a section's notes", "\\sectd\\sftnrstpg\\sftnnalc\\saftnnruc word\\par",
        "\\sectd\\sftnrstpg\\sftnnalc\\saftnnruc\r\n");
    row("looks that styles begin with",
        "{\\*\\defchp\\f2\\fs22}{\\*\\defpap\\sa160}{\\stylesheet{\\s1 A;}}word\\par",
        "{\\*\\defchp\\f1\\fs22}{\\*\\defpap\\sa160}\r\n{\\stylesheet{\\s1 A;}}\r\n");
    row("settings of formulas", "{\\*\\mmathPr\\mmathFont1\\mdispDef1}word\\par",
        "{\\*\\mmathPr\\mmathFont1\\mdispDef1}\r\n");
    row("numbers of old sections", "{\\*\\pnseclvl2\\pnucltr{\\pntxta .}}word\\par",
        "{\\*\\pnseclvl2\\pnucltr{\\pntxta.}}\r\n");
    row("field that is locked", "word {\\field\\fldlock{\\*\\fldinst DATE}{\\fldrslt today}}\\par",
        "deed {\\field\\fldlock{\\*\\fldinst DATE}{\\fldrslt today}}\\par");
    row("formula that shows nothing behind a field",
        "word {\\field{\\*\\fldinst DATE}{\\fldrslt today}}{\\mmath\\par}\\par",
        "deed {\\field{\\*\\fldinst DATE}{\\fldrslt today{\\mmath\\par}}}\\par");
    row("field that is edited and shows text by itself",
        "word {\\field\\fldpriv\\fldedit{\\*\\fldinst SYMBOL 97}}\\par",
        "deed {\\field\\fldedit\\fldpriv{\\*\\fldinst SYMBOL 97}{\\fldrslt}}\\par");
    row("locked field without text", "word{\\field\\fldlock{\\*\\fldinst TOC}{\\fldrslt}}\\par",
        "deed{\\field\\fldlock{\\*\\fldinst TOC}{\\fldrslt}}\\par");
    row("field that is not locked after all",
        "word {\\field\\fldlock\\fldlock0{\\*\\fldinst DATE}{\\fldrslt today}}\\par",
        "deed {\\field{\\*\\fldinst DATE}{\\fldrslt today}}\\par");
    row("further level in a note's index entry, in a page of two bytes",
        "\\ansicpg932 {\\footnote\\f0{\\xe a\\:b}}word\\par", "{\\footnote\\f0{\\xe a\\:b}}");
    row("how a file is shown", "\\viewkind1\\viewscale80 word\\par", "\\viewkind1\\uc1");
    row("how a file is shown by others", "\\vieww99\\viewh88 word\\par", "\\vieww99\\viewh88\r\n");
    row("directions of a file", "\\fbidis word\\par", "\\fbidis\r\n");
    row("caption of a window", "{\\windowcaption A}word\\par", "{\\windowcaption A}\r\n");
    row("page numbers of another script", "\\sectd\\pgndec\\pgnhindia\\pgnhnsp word\\par",
        "\\sectd\\pgnhindia\\pgnhnsp\r\n");
    row("page number in the text", "word\\chpgn\\par", "deed{\\nosupersub\\chpgn}\\par");
    row("patterns", "\\pard\\chbgcross\\chbgvert word\\par", "\\pard\\chbgvert\\f0");
    row("patterns and spaces of cells",
        "\\trowd\\trbghoriz\\clbgdcross\\clspl10\\clspfl3\\cellx99 word\\cell\\row",
        "\\trowd\\trbghoriz\\clbgdcross\\clspl10\\clspfl3\\cellx99\r\n");
    row("looks of a table's style",
        "{\\stylesheet{\\*\\ts9 "
        "T;}}\\trowd\\ts9\\tbllkhdrrows\\tbllknocolband\\cellx99\\pard\\intbl\\yts9 "
        "word\\cell\\row",
        "\\trowd\\ts9\\tbllkhdrrows\\tbllknocolband\\cellx99\r\n\\pard\\intbl\\yts9");
    row("cell that came in",
        "{\\*\\revtbl{A;}}\\trowd\\clins\\clinsauth0\\clinsdttm5\\cellx99 word\\cell\\row",
        "\\trowd\\clins\\clinsauth0\\clinsdttm5\\cellx99\r\n");
    row("frame through which text flows", "\\pard\\wraptight\\absnoovrlp1 word\\par",
        "\\pard\\wraptight\\absnoovrlp1\\f0");
    const auto listOf = [](const QByteArray& pictures, const QByteArray& level) {
        return "{\\*\\listtable" + pictures + "{\\list{\\listlevel\\levelnfc23" + level +
               "{\\leveltext\\'01*;}{\\levelnumbers;}}\\listid7}}"
               "{\\*\\listoverridetable{\\listoverride\\listid7\\ls1}}\\pard\\ls1 word\\par";
    };
    row("pictures that are labels",
        listOf("{\\*\\listpicture{\\pict\\pngblip 89}}", "\\levelpicture0"),
        "{\\*\\listtable{\\*\\listpicture{\\pict\\pngblip 89}}{\\list");
    row("pictures that are no labels", listOf("{\\*\\listpicture{\\pict\\pngblip 89}}", {}),
        "{\\*\\listtable{\\list{\\listlevel");
    row("template", "{\\*\\template C:\\\\a.dot}word\\par", "{\\*\\template C:\\\\a.dot}\r\n");
    row("file that comes next", "{\\nextfile b.rtf}word\\par", "{\\nextfile b.rtf}\r\n");
    row("files that others stand in", "{\\*\\filetbl{\\file\\fid0 a.rtf}}word\\par",
        "{\\*\\filetbl{\\file\\fid0 a.rtf}}\r\n");
    row("group of the head that nobody knows", "{\\*\\protusertbl{Ann}}\\pard word\\par",
        "{\\*\\protusertbl{Ann}}\r\n\\viewkind4");
    row("group of the text that nobody knows", "{\\*\\protstart x}word{\\*\\protend x}\\par",
        "deed{\\*\\protend x}\\par");
    row("group that nobody knows ahead of the text", "\\pard{\\*\\protstart x}word\\par",
        "\\pard{\\*\\protstart x}\\f0\\fs24 deed\\par");
    row("group that nobody knows ahead of a row",
        "\\trowd\\cellx99{\\*\\customxml x}\\intbl word\\cell\\row",
        "{\\*\\customxml x}\\f0\\fs24 deed\\cell\\row");
    row("marks of another language",
        "word{\\*\\xmlopen\\xmlns1{\\factoidname a}}b{\\*\\xmlclose}\\par",
        "deed{\\*\\xmlopen\\xmlns1{\\factoidname a}}b{\\*\\xmlclose}\\par");
    row("group that nobody knows in a box",
        "word{\\shp{\\*\\shpinst{\\shptxt\\pard a{\\*\\custom x}\\par}}}\\par",
        "a{\\*\\custom x}\\par}");
    row("group that nobody knows in the frame of a box",
        "word{\\shp{\\*\\custom x}{\\*\\shpinst{\\shptxt\\pard a\\par}}}\\par",
        "deed{\\shp{\\*\\custom x}{\\*\\shpinst{\\shptxt");
    row("page border", "\\sectd\\pgbrdrt\\brdrs\\brdrw10\\brdrcf2 word\\par",
        "\\sectd\\pgbrdrt\\brdrs\\brdrw10\\brdrcf1\r\n");
    row("header", "{\\header\\pard\\qc Over it\\par}word\\par",
        "\\sectd{\\header\\pard\\qc Over it\\par}\r\n");
    row("footer of the first page", "{\\footerf\\pard\\f0 Under {\\b it}\\par}word\\par",
        "{\\footerf\\pard\\f0 Under {\\b it}\\par}\r\n");
    row("page number", "{\\footer\\f0 {\\field{\\*\\fldinst PAGE}{\\fldrslt 1}}}word\\par",
        "{\\footer\\f0{\\field{\\*\\fldinst PAGE}{\\fldrslt 1}}}\r\n");
    row("separator of footnotes", "{\\*\\ftnsep\\f0\\chftnsep\\par}word\\par",
        "{\\*\\ftnsep\\f0\\chftnsep\\par}\r\n");
    row("footnote", "word{\\super\\chftn}{\\footnote\\pard\\f0 {\\super\\chftn} below} on\\par",
        "deed{\\super\\chftn}{\\footnote\\pard\\f0{\\super\\chftn} below} on\\par");
    row("footnote of another program", "x{\\*\\footnote\\f0 below} word\\par",
        "x{\\footnote\\f0 below} deed\\par");
    row("footnote ahead of all text", "{\\footnote\\f0 below}word\\par",
        "\\pard{\\footnote\\f0 below}\\f0\\fs24 deed\\par");
    row("footnote of an empty paragraph", "word\\par{\\footnote\\f0 below}\\par",
        "deed\\par\r\n\\pard{\\footnote\\f0 below}\\par");
    row("footnote behind two units", "\\u-10179?\\u-9047?{\\footnote\\f0 below} word\\par",
        "\\u-10179?\\u-9047?{\\footnote\\f0 below} deed\\par");
    row("bookmark that ends behind the last paragraph",
        "a{\\*\\bkmkstart b}word\\par{\\*\\bkmkend b}", "deed{\\*\\bkmkend b}\\par");
    row("bookmark around the end of the last paragraph",
        "word on{\\*\\bkmkstart b}\\par{\\*\\bkmkend b}",
        "deed on{\\*\\bkmkstart b}{\\*\\bkmkend b}\\par");
    row("bookmark that ends behind an empty paragraph", "word\\par\\par{\\*\\bkmkend b}",
        "\\pard{\\*\\bkmkend b}\\par");
    row("footnote behind the last table",
        "word\\par\\trowd\\cellx99\\intbl a\\cell\\row{\\super\\chftn}{\\footnote\\f0 below}",
        "a{\\plain\\super\\f0\\fs24\\chftn}{\\footnote\\f0 below}\\cell\\row");
    row("bookmark behind the text of a last box", "word{\\shp{\\shptxt\\f0 b}}{\\*\\bkmkend c}",
        "deed{\\shp{\\shptxt\\plain\\pard\\f0 b}}{\\*\\bkmkend c}\\par");
    row("footnote behind raised text", "{\\super word}{\\super\\chftn}{\\footnote\\f0 below}\\par",
        "\\super\\f0\\fs24 deed\\nosupersub{\\super\\chftn}{\\footnote\\f0 below}\\par");
    row("sign by a field",
        "word{\\field{\\*\\fldinst SYMBOL 65 \\\\f \"Symbol\"}{\\fldrslt\\fs20}}\\par",
        "deed{\\field{\\*\\fldinst SYMBOL 65 \\\\f \"Symbol\"}{\\fldrslt}}\\par");
    row("equation",
        "word {\\field{\\*\\fldinst EQ \\\\f (1;2)}}{\\field{\\*\\fldinst EQ \\\\f (1;2)}} on\\par",
        "deed {\\field{\\*\\fldinst EQ \\\\f (1;2)}{\\fldrslt}}"
        "{\\field{\\*\\fldinst EQ \\\\f (1;2)}{\\fldrslt}} on\\par");
    row("list to choose from",
        "word {\\field{\\*\\fldinst FORMDROPDOWN {\\*\\formfield{\\fftype2\\ffres1{\\*\\ffl x}"
        "{\\*\\ffl v}}}}{\\fldrslt }} on\\par",
        "deed {\\field{\\*\\fldinst FORMDROPDOWN {\\*\\formfield{\\fftype2\\ffres1{\\*\\ffl x}"
        "{\\*\\ffl v}}}}{\\fldrslt}} on\\par");
    row("break of a page ahead of a paragraph", "a\\par\\page word\\par",
        "a\\par\r\n\\pard\\page deed\\par");
    row("break of a page within a paragraph", "a\\page word\\par", "a\\page\r\n\\pard deed\\par");
    row("paragraph that begins a page", "a\\par\\pagebb word\\par",
        "a\\par\r\n\\pard\\pagebb deed\\par");
    row("break of a page ahead of a field",
        "a\\par\\page{\\field{\\*\\fldinst DATE}{\\fldrslt word}}\\par",
        "\\page{\\field{\\*\\fldinst DATE}{\\fldrslt deed}}\\par");
    row("break of a page ahead of a table", "a\\par\\page\\trowd\\cellx99\\intbl word\\cell\\row",
        "a\\par\r\n\\pard\\page\\trowd\\cellx99\r\n");
    row("bookmark", "a {\\*\\bkmkstart Here}word{\\*\\bkmkend Here} b\\par",
        "a {\\*\\bkmkstart Here}deed{\\*\\bkmkend Here} b");
    row("comment",
        "word{\\*\\atnid AB}{\\*\\atnauthor Al B}\\chatn{\\*\\annotation\\f0 Is it?}\\par",
        "deed{\\*\\atnid AB}{\\*\\atnauthor Al B}{\\plain\\f0\\fs24\\chatn}"
        "{\\*\\annotation\\f0 Is it?}\\par");
    row("info", "{\\info{\\title A title}{\\author J\\'e4ger}}word\\par",
        "{\\info{\\title A title}{\\author J\\'e4ger}}\r\n");
    row("properties of the user",
        "{\\*\\userprops{\\propname Who}\\proptype30{\\staticval me}}"
        "word\\par",
        "{\\*\\userprops{\\propname Who}\\proptype30{\\staticval me}}\r\n");
    row("theme and other data",
        "word\\par{\\*\\themedata 504b0304}{\\*\\colorschememapping 3c3f}"
        "{\\*\\latentstyles\\lsdstimax267{\\lsdlockedexcept\\lsdqformat1 Normal;}}"
        "{\\*\\datastore 0105}",
        "{\\*\\themedata 504b0304}{\\*\\colorschememapping 3c3f}{\\*\\latentstyles\\lsdstimax267"
        "{\\lsdlockedexcept\\lsdqformat1 Normal;}}{\\*\\datastore 0105}\r\n");
    row("background of the page",
        "{\\*\\background{\\shp{\\*\\shpinst{\\sp{\\sn fillColor}{\\sv 255}}}}}word\\par",
        "{\\*\\background{\\shp{\\*\\shpinst{\\sp{\\sn fillColor}{\\sv 255}}}}}\r\n");
    row("default fonts of styles and other scripts", "\\adeff2\\stshfdbch1\\stshfloch0 word\\par",
        "\\deff0\\adeff1\\stshfdbch2\\stshfloch0\\deflang1033{");
    row("styles", "{\\stylesheet{\\s0\\f0 Normal;}{\\s1\\b\\cf2\\f0 heading 1;}}\\s1 word\\par",
        "{\\stylesheet{\\s0\\f0 Normal;}{\\s1\\b\\cf1\\f0 heading 1;}}\r\n");
    row("style of a paragraph", "{\\stylesheet{\\s1 heading 1;}}\\pard\\s1 word\\par",
        "\\pard\\s1 deed\\par");
    row("style of characters", "{\\stylesheet{\\*\\cs10 strong;}}{\\cs10 word}\\par",
        "\\pard\\cs10 deed\\par");
    row("keep together", "\\pard\\keepn\\keep word\\par", "\\pard\\keep\\keepn\\f0");
    row("widow control", "\\pard\\nowidctlpar word\\par", "\\pard\\nowidctlpar\\f0");
    row("widow control once more", "\\pard\\nowidctlpar\\widctlpar word\\par",
        "\\pard\\widctlpar\\f0");
    row("hyphenation off", "\\pard\\hyphpar0 word\\par", "\\pard\\hyphpar0\\f0");
    row("line numbers off", "\\pard\\noline word\\par", "\\pard\\noline\\f0");
    row("outline level", "\\pard\\outlinelevel2 word\\par", "\\pard\\outlinelevel2\\f0");
    row("box", "\\pard\\box\\brdrs\\brdrw15\\brsp20\\brdrcf3 word\\par",
        "\\pard\\box\\brdrs\\brdrw15\\brsp20\\brdrcf1\\f0");
    row("border of two sides", "\\pard\\brdrb\\brdrdb\\brdrw10\\brdrt\\brdrs\\brdrw5 word\\par",
        "\\pard\\brdrt\\brdrs\\brdrw5\\brdrb\\brdrdb\\brdrw10\\f0");
    row("shading", "\\pard\\cbpat2 word\\par", "\\pard\\cbpat1\\f0");
    row("pattern", "\\pard\\shading2500\\cfpat1\\cbpat2 word\\par",
        "\\pard\\shading2500\\cfpat1\\cbpat2\\f0");
    row("letter spacing", "\\expnd4\\expndtw20 word\\par", "\\pard\\expnd4\\expndtw20\\f0");
    row("letter spacing in quarters alone", "\\expnd4 word\\par", "\\pard\\expnd4\\expndtw20\\f0");
    row("scaling", "\\charscalex150 word\\par", "\\pard\\charscalex150\\f0");
    row("kerning", "\\kerning28 word\\par", "\\pard\\kerning28\\f0");
    row("language", "\\lang1031\\langfe1041 word\\par", "\\pard\\lang1031\\langfe1041\\f0");
    row("no proofing", "\\noproof word\\par", "\\pard\\noproof\\f0");
    row("outline, shadow, relief", "\\outl\\shad\\embo\\impr word\\par",
        "\\pard\\outl\\shad\\embo\\impr\\f0");
    row("capitals", "{\\caps word} {\\scaps x}\\par", "\\pard\\caps\\f0");
    row("raised", "{\\up6 word} x\\par", "\\pard\\up6\\f0");
    row("double strike", "\\striked1 word\\par", "\\pard\\striked1\\f0");
    row("hairline", "\\ulhair word\\par", "\\pard\\ulhair\\f0");
    row("bar at a tab stop", "\\pard\\tb720 word\\par", "\\pard\\tb720\\f0");
    row("wave", "\\ulhwave word\\par", "\\pard\\ulhwave\\f0");
    row("thick dots", "\\ulthd word\\par", "\\pard\\ulthd\\f0");
    row("thick long dashes", "\\ulthldash word\\par", "\\pard\\ulthldash\\f0");
    row("dash and dots", "\\uldashdd word\\par", "\\pard\\uldashdd\\f0");
    row("colour of the underline", "\\ul\\ulc2 word\\par", "\\pard\\ulc1\\ul\\f0");
    row("shading of characters", "\\chcbpat2 word\\par", "\\pard\\chcbpat1\\f0");
    row("highlight", "\\highlight2 word\\par", "\\pard\\highlight1\\f0");
    row("border of characters", "\\chbrdr\\brdrs\\brdrw10\\brdrcf2 word\\par",
        "\\pard\\chbrdr\\brdrs\\brdrw10\\brdrcf1\\f0");
}

void KeepingTest::whatIsNotShownIsKept() {
    QFETCH(QByteArray, body);
    QFETCH(QByteArray, kept);
    const QByteArray written = changedAndSaved(file(body));
    QVERIFY2(written.contains(kept), written);
    QVERIFY(written.contains("deed"));
}

void KeepingTest::aPlainNoteCarriesNothing() {
    QTextDocument document;
    QVERIFY(readRtf(file("{\\*\\generator Any;}plain word\\par"), document).ok());
    QVERIFY(holdsNothing(keptParts(document)));
    for (const QTextFormat& format : document.allFormats())
        for (const int property : {KeptOfCharacters, KeptOfParagraph, KeptOfSection,
                                   CharacterSpacing, CharacterShading, DoubleStrike})
            QVERIFY(!format.hasProperty(property));
    QVERIFY(writeRtf(document).contains("{\\*\\generator Orvalis;}\\viewkind4\\uc1\\pard\\f0"));
}

void KeepingTest::whatEndsIsNotKept_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("paragraph") << QByteArray("\\pard\\keep\\brdrt\\brdrs x\\par\\pard word\\par");
    QTest::newRow("a border's side behind the paragraph")
        << QByteArray("\\pard\\brdrt\\brdrs x\\par\\pard\\brdrw20 word\\par");
    QTest::newRow("switch") << QByteArray("\\pard\\keep x\\par\\keep0 word\\par");
    QTest::newRow("plain") << QByteArray("\\lang1031\\outl x\\plain  word\\par");
    QTest::newRow("group") << QByteArray("{\\lang1031\\expndtw40 x} word\\par");
    QTest::newRow("automatic colour") << QByteArray("{\\ul\\ulc2 x}\\ul\\ulc0  word\\par");
}

void KeepingTest::whatEndsIsNotKept() {
    QFETCH(QByteArray, body);
    QTextDocument document;
    QVERIFY(readRtf(file(body), document).ok());
    const QTextCursor word = document.find(QStringLiteral("word"));
    QVERIFY(!word.isNull());
    QVERIFY(!word.charFormat().hasProperty(KeptOfCharacters));
    QVERIFY(!word.charFormat().hasProperty(CharacterSpacing));
    QVERIFY(!word.blockFormat().hasProperty(KeptOfParagraph));
    changedAndSaved(file(body));
}

void KeepingTest::theFieldOfASignThatIsChangedIsText() {
    QTextDocument document;
    readRtf(file("{\\field{\\*\\fldinst SYMBOL 65 \\\\f \"Symbol\"}{\\fldrslt}}\\par"), document);
    QCOMPARE(document.toPlainText(), QStringLiteral("\u0391"));
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(QStringLiteral("!"));
    QVERIFY(writeRtf(document).contains("\\fs24\\u913?!\\par"));
}

void KeepingTest::aFontKeepsWhetherItIsOneOfSigns() {
    const QByteArray written =
        changedAndSaved("{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset2 Dingbats;}"
                        "{\\f2\\fcharset0 Symbol;}{\\f3\\fcharset2 Wingdings;}}"
                        "word{\\f1 a}{\\f2 a\\u945?_}{\\f3 a}\\par}");
    QVERIFY2(written.contains("\\fcharset2 Dingbats;"), written.constData());
    QVERIFY2(written.contains("\\fcharset0 Symbol;"), written.constData());
    QVERIFY2(written.contains("\\fcharset2 Wingdings;"), written.constData());
    QVERIFY2(written.contains(" a\\u945?_"), written.constData());
}

void KeepingTest::signsOfTheDefaultFontStayBytes() {
    QTextDocument document;
    readRtf("{\\rtf1\\deff3{\\fonttbl{\\f3\\fnil\\fcharset2 Wingdings;}}o\\'fc}", document);
    QCOMPARE(document.toPlainText(), QStringLiteral("\U0001f78f\u2713"));
    QVERIFY(writeRtf(document).contains("\\'6f\\'fc"));
}

void KeepingTest::signsThatAreToldByNumberStayNumbers() {
    const QByteArray written = changedAndSaved(
        "{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset2 Symbol;}}word{\\f1 a\\u8721?\\'e5}\\par}");
    QVERIFY2(written.contains("\\'61\\u8721?\\'e5"), written.constData());
    // One of two entries does not make the font one of signs, but the other does.
    const QByteArray both =
        changedAndSaved("{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset2 Symbol;}"
                        "{\\f2\\fcharset1 Symbol;}}word{\\f1 a}{\\f2\\u176?a}\\par}");
    QVERIFY2(both.contains("\\'61\\u176?\\u97?"), both.constData());
}

void KeepingTest::aFontThatOthersTakeForOneOfSignsHasItsTextByNumber() {
    const QByteArray written =
        changedAndSaved("{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1 OpenSymbol;}}word{\\f1\\'ac}\\par}");
    QVERIFY2(written.contains("\\f1\\u172?"), written.constData());
}

void KeepingTest::fontsAndColoursOfAHeaderAreThoseOfTheNewTables() {
    const QByteArray written = changedAndSaved(file("{\\header\\f2\\cf3 blue}\\f1\\cf2 word\\par"));
    QVERIFY2(written.contains("{\\f1\\froman\\fcharset0 Times New Roman;}"
                              "{\\f2\\fswiss\\fcharset0 Verdana;}"),
             written);
    QVERIFY2(written.contains("{\\colortbl ;\\red0\\green128\\blue0;\\red0\\green0\\blue255;}"),
             written);
    QVERIFY2(written.contains("{\\header\\f2\\cf2 blue}"), written);
}

void KeepingTest::theDefaultFontOfAHeaderStaysItsFont() {
    const QByteArray written =
        changedAndSaved(file("{\\header\\pard\\plain none {\\f2 own}\\plain none}\\f1 word\\par"));
    QVERIFY2(written.contains("{\\header\\pard\\plain none {\\f2 own}\\plain none}"), written);
    QVERIFY2(written.contains("\\deff0\\deflang1033{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}"),
             written);
}

void KeepingTest::aHeaderInOtherLettersKeepsItsText() {
    // The font's page, a number beyond it, and a fallback that is not to be shown.
    const QByteArray written =
        changedAndSaved(file("{\\header\\f1\\'c6\\f0\\'e9\\uc2\\u960 pi{\\uc0\\u8364}!}word\\par"));
    QVERIFY2(written.contains("{\\header\\f1\\u1046?\\f0\\'e9\\u960?{\\'80}!}"), written);
}

void KeepingTest::aPictureInAHeaderStays() {
    const QByteArray written =
        changedAndSaved(file("{\\header{\\pict\\pngblip\\picwgoal10 8950\n4e47 }x}word\\par"));
    QVERIFY2(written.contains("{\\header{\\pict\\pngblip\\picwgoal10 89504e47}x}"), written);
    const QByteArray binary =
        changedAndSaved(file("{\\header{\\pict\\pngblip\\bin4 {}\\x}\\f0 x}word\\par"));
    QVERIFY2(binary.contains("{\\header{\\pict\\pngblip 7b7d5c78}\\f0 x}"), binary);
}

void KeepingTest::sectionsKeepWhatEachOfThemSays() {
    const QByteArray written =
        changedAndSaved(file("\\sectd\\cols2{\\header\\f0 one}first word\\sect"
                             "\\sectd\\cols3\\sbknone{\\header\\f0 two}second\\par"));
    QVERIFY2(written.contains("\\sectd\\cols2{\\header\\f0 one}\r\n\\viewkind4\\uc1\\pard"
                              "\\f0\\fs24 first deed\\sect\\sectd\\sbknone\\cols3"
                              "{\\header\\f0 two}\r\n"),
             written);
    QVERIFY2(written.endsWith(" second\\par\r\n}\r\n"), written);
}

void KeepingTest::aSectionGoesWithTheParagraphThatItBeginsWith() {
    QTextDocument document;
    QVERIFY(readRtf(file("\\sectd one\\sect\\sectd\\cols3 two\\par three\\par"), document).ok());
    QTextCursor cursor(document.findBlockByNumber(1));
    cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    QCOMPARE(document.toPlainText(), QStringLiteral("one\nthree"));
    QVERIFY(!writeRtf(document).contains("\\sect"));
}

void KeepingTest::anEmptyParagraphAheadOfASectionStays() {
    const QByteArray written = changedAndSaved(file("word\\par\\par\\sect\\sectd two\\par"));
    QVERIFY2(written.contains("deed\\par\r\n\\par\r\n\\sect\\sectd\r\n"), written);
    // Without a paragraph end of its own the last paragraph ends with its section.
    QTextDocument document;
    QVERIFY(readRtf(file("one\\sect\\sectd two\\par"), document).ok());
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    QTextDocument again;
    QVERIFY(readRtf(writeRtf(document), again).ok());
    QCOMPARE(again.toPlainText(), QStringLiteral("\ntwo"));
    QCOMPARE(writeRtf(again), writeRtf(document));
}

void KeepingTest::eachSectionEndsItsParagraphInItsOwnWay() {
    const QByteArray written =
        changedAndSaved(file("word\\par\\sect\\sectd two\\sect\\sectd three\\par"));
    QVERIFY2(written.contains("deed\\par\r\n\\sect\\sectd\r\n"), written);
    QVERIFY2(written.contains("two\\sect\\sectd\r\n"), written);
}

void KeepingTest::aDeletedParagraphTakesItsPropertiesAlong() {
    QTextDocument document;
    QVERIFY(readRtf(file("one\\par\\pard\\keep two\\par\\pard three\\par"), document).ok());
    QTextCursor cursor(document.findBlockByNumber(1));
    cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    QVERIFY(!writeRtf(document).contains("\\keep"));
}

void KeepingTest::anotherDocumentBringsItsOwn() {
    QTextDocument document;
    QVERIFY(readRtf(file("\\paperw5000{\\info{\\title A}}{\\header x}word\\par"), document).ok());
    QVERIFY(writeRtf(document).contains("\\paperw5000"));
    QVERIFY(readRtf(file("word\\par"), document).ok());
    QVERIFY(holdsNothing(keptParts(document)));
}

void KeepingTest::whatIsInsertedLeavesTheDocumentAsItIs() {
    QTextDocument document;
    QVERIFY(readRtf(file("\\paperw5000 word\\par"), document).ok());
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    QVERIFY(insertRtf(file("\\paperw7000{\\header x}new\\par"), cursor).ok());
    const QByteArray written = writeRtf(document);
    QVERIFY2(written.contains("\\paperw5000"), written);
    QVERIFY2(!written.contains("\\paperw7000") && !written.contains("\\header"), written);
}

void KeepingTest::whatIsInsertedHasItsParagraphs() {
    QTextDocument source;
    QVERIFY(readRtf(file("\\pard\\keep\\cbpat1\\lang1031 one\\par two\\par"), source).ok());
    QTextDocument target;
    QTextCursor cursor(&target);
    QVERIFY(insertRtf(writeRtf(source, 0, source.characterCount() - 1), cursor).ok());
    const QByteArray written = writeRtf(target);
    QVERIFY2(written.contains("\\pard\\keep\\cbpat1\\lang1031\\f0\\fs24 one\\par\r\ntwo\\par"),
             written);
}

void KeepingTest::stylesMeanNothingInADocumentOfOtherStyles() {
    const QByteArray styled = file("{\\stylesheet{\\s1 Title;}}\\pard\\s1\\keep word\\par");
    QTextDocument target;
    QVERIFY(readRtf(file("{\\stylesheet{\\s1 Verse;}}\\pard\\s1 x\\par"), target).ok());
    QTextCursor cursor(&target);
    cursor.movePosition(QTextCursor::End);
    cursor.insertBlock(QTextBlockFormat());
    QVERIFY(insertRtf(styled, cursor).ok());
    QVERIFY2(writeRtf(target).contains("\\pard\\keep word"), writeRtf(target));
    // In the one that it came from it does.
    QTextDocument same;
    QVERIFY(readRtf(styled, same).ok());
    QTextCursor end(&same);
    end.movePosition(QTextCursor::End);
    end.insertBlock(QTextBlockFormat());
    QVERIFY(insertRtf(writeRtf(same, 0, 3), end).ok());
    QVERIFY2(writeRtf(same).contains("\\pard\\s1\\keep word\\par\r\nwor\\par"), writeRtf(same));
}

void KeepingTest::aPartOfADocumentHasNoPage() {
    QTextDocument document;
    QVERIFY(readRtf(file("{\\stylesheet{\\s1 a;}}\\paperw5000\\deflang1031{\\info{\\title A}}"
                         "{\\header x}one word\\par"),
                    document)
                .ok());
    const QByteArray part = writeRtf(document, 0, 3);
    QVERIFY2(!part.contains("\\paperw") && !part.contains("\\info") && !part.contains("\\header"),
             part);
    QVERIFY2(part.contains("{\\stylesheet{\\s1 a;}}") && part.contains("\\deflang1031"), part);
}

void KeepingTest::paragraphsShowTheirShade_data() {
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<QColor>("shade");
    QTest::newRow("none") << QByteArray("\\keep") << QColor();
    QTest::newRow("colour") << QByteArray("\\cbpat1") << QColor(255, 0, 0);
    QTest::newRow("share of black on white")
        << QByteArray("\\shading2000") << QColor(204, 204, 204);
    QTest::newRow("share of a colour on another")
        << QByteArray("\\shading5000\\cfpat3\\cbpat1") << QColor(127, 0, 127);
    QTest::newRow("all") << QByteArray("\\shading10000\\cfpat3") << QColor(0, 0, 255);
}

void KeepingTest::paragraphsShowTheirShade() {
    QFETCH(QByteArray, words);
    QFETCH(QColor, shade);
    QTextDocument document;
    QVERIFY(readRtf(file("\\pard" + words + " word\\par"), document).ok());
    const QBrush ground = document.firstBlock().blockFormat().background();
    QCOMPARE(ground.style() == Qt::NoBrush ? QColor() : ground.color(), shade);
}

void KeepingTest::spacedLettersAreShownSpaced() {
    QTextDocument document;
    QVERIFY(readRtf(file("\\expndtw60 word\\par"), document).ok());
    const QTextCharFormat format = document.find(QStringLiteral("word")).charFormat();
    QCOMPARE(format.fontLetterSpacingType(), QFont::AbsoluteSpacing);
    QCOMPARE(format.fontLetterSpacing(), 4.0);
}

void KeepingTest::spacingIsHeldToWhatALineCanShow() {
    QTextDocument document;
    QVERIFY(readRtf(file("\\fs20\\expndtw-900 narrow\\expndtw900  wide\\par"), document).ok());
    QCOMPARE(document.find(QStringLiteral("narrow")).charFormat().fontLetterSpacing(), -40 / 15.0);
    QCOMPARE(document.find(QStringLiteral("wide")).charFormat().fontLetterSpacing(), 200 / 15.0);
    const QByteArray written = writeRtf(document);
    QVERIFY2(written.contains("\\expndtw-900") && written.contains("\\expndtw900"), written);
}

void KeepingTest::aFloodOfKeptWordsIsBounded() {
    QByteArray flood = "\\pard";
    for (int i = 1; i < 200000; ++i)
        flood += "\\lang" + QByteArray::number(i) + "\\level" + QByteArray::number(i);
    QTextDocument document;
    QVERIFY(readRtf(file(flood + " word\\par"), document).ok());
    QCOMPARE(document.toPlainText(), QStringLiteral("word"));
    QCOMPARE(document.allFormats().size() < 20, true);
}

void KeepingTest::aFloodOfHeadersIsBounded() {
    // Each font's number is short in the file and long where it is kept.
    QByteArray tables = "{\\rtf1{\\fonttbl{\\f0 " + QByteArray(250, 'F') + ";}}";
    QByteArray flood;
    for (int i = 0; i < 100000; ++i)
        flood += "\\f0";
    QTextDocument document;
    const QByteArray header = "{\\header" + flood + " x}";
    QVERIFY(readRtf(tables + header + "word\\par}", document).ok());
    QCOMPARE(document.toPlainText(), QStringLiteral("word"));
    QCOMPARE(keptParts(document).section, QString());
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, KeepingTest)
#include "keeping_test.moc"
