// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/list_formats.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextDocument>

using namespace orvalis;
using namespace orvalis::rtf;
using namespace Qt::StringLiterals;

namespace {

constexpr const char* Head =
    "{\\rtf1{\\*\\listtable{\\list"
    "{\\listlevel\\levelnfc0\\levelstartat1{\\leveltext\\'02\\'00.;}{\\levelnumbers\\'01;}}"
    "{\\listlevel\\levelnfc0\\levelstartat1{\\leveltext\\'04\\'00.\\'01.;}"
    "{\\levelnumbers\\'01\\'03;}}"
    "{\\listlevel\\levelnfc4\\levelstartat1{\\leveltext\\'06\\'00.\\'01.\\'02);}"
    "{\\levelnumbers\\'01\\'03\\'05;}}\\listid7}}"
    "{\\*\\listoverridetable{\\listoverride\\listid7\\listoverridecount0\\ls1}}";

/// A document of items of these levels.
QByteArray itemsOf(const QList<int>& levels) {
    QByteArray rtf = Head;
    for (const int level : levels)
        rtf += "\\pard\\ls1\\ilvl" + QByteArray::number(level) + "\\fi-360\\li720 item\\par";
    return rtf + '}';
}

QStringList labelsOf(const QByteArray& rtf) {
    QTextDocument document;
    readRtf(rtf, document);
    QStringList labels;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        labels << shownLabel(block);
    return labels;
}

} // namespace

class ListLevelsTest : public QObject {
    Q_OBJECT
private slots:
    void anItemTellsTheNumbersOfTheLevelsAboveIt();
    void aLabelIsToldInThePageOfTheDocument();
    void theNumbersAboveAreThoseOfTheLastItems();
    void aLevelWithoutAnItemAboveItCountsFromOne();
    void theLabelsAreWrittenAsTheyAre();
    void aCodeInATextThatIsNoLevelTextIsNoNumber();
    void anOverrideThatIsToldTwiceIsTheFirst();
    void anOverrideWithinAnotherStandsForNoList();
    void anOverrideNumberedNoughtGoesOnBehindOtherText();
    void aListThatIsToldAgainStaysAsItWas();
    void anItemThatTellsItsNumberTooGoesOnWithItsList();
};

void ListLevelsTest::aLabelIsToldInThePageOfTheDocument() {
    const QByteArray rtf =
        "{\\rtf1\\ansi\\ansicpg950\\deff0{\\fonttbl{\\f0\\fcharset0 Arial;}}{\\*\\listtable{\\list"
        "{\\listlevel\\levelnfc0\\levelstartat1{\\leveltext\\'03\\'ab\\'65\\'00.;}"
        "{\\levelnumbers\\'02;}}\\listid7}}{\\*\\listoverridetable{\\listoverride\\listid7\\ls1}}"
        "\\pard\\ls1 item\\par}";
    QCOMPARE(labelsOf(rtf), QStringList{QStringLiteral("\u524d1.")});
    QTextDocument document;
    readRtf(rtf, document);
    QVERIFY(writeRtf(document).contains("{\\leveltext\\'03\\u21069?\\'00.;}"));
}

void ListLevelsTest::anItemTellsTheNumbersOfTheLevelsAboveIt() {
    QCOMPARE(labelsOf(itemsOf({0, 1, 1, 2, 2, 1})),
             (QStringList{u"1."_s, u"1.1."_s, u"1.2."_s, u"1.2.a)"_s, u"1.2.b)"_s, u"1.3."_s}));
}

void ListLevelsTest::theNumbersAboveAreThoseOfTheLastItems() {
    QCOMPARE(
        labelsOf(itemsOf({0, 1, 0, 1, 2, 0, 1})),
        (QStringList{u"1."_s, u"1.1."_s, u"2."_s, u"2.1."_s, u"2.1.a)"_s, u"3."_s, u"3.1."_s}));
}

void ListLevelsTest::aLevelWithoutAnItemAboveItCountsFromOne() {
    QCOMPARE(labelsOf(itemsOf({2, 1})), (QStringList{u"1.1.a)"_s, u"1.1."_s}));
}

void ListLevelsTest::theLabelsAreWrittenAsTheyAre() {
    const QByteArray rtf = itemsOf({0, 1, 2, 0, 1, 1});
    QTextDocument document;
    readRtf(rtf, document);
    const QByteArray written = writeRtf(document);
    QCOMPARE(labelsOf(written), labelsOf(rtf));
    QTextDocument again;
    readRtf(written, again);
    QCOMPARE(writeRtf(again), written);
}

void ListLevelsTest::aCodeInATextThatIsNoLevelTextIsNoNumber() {
    QCOMPARE(labelsOf("{\\rtf1\\pard{\\*\\pn\\pnlvlbody\\pndec{\\pntxtb \\'01(}{\\pntxta )}}"
                      "\\fi-360\\li720 item\\par}"),
             QStringList{u"(1)"_s});
}

void ListLevelsTest::anOverrideThatIsToldTwiceIsTheFirst() {
    const QByteArray lists = "{\\*\\listtable"
                             "{\\list{\\listlevel\\levelnfc0{\\leveltext\\'02\\'00.;}}\\listid1}"
                             "{\\list{\\listlevel\\levelnfc1{\\leveltext\\'02\\'00.;}}\\listid2}}";
    const QByteArray overrides = "{\\*\\listoverridetable{\\listoverride\\listid1\\ls1}"
                                 "{\\listoverride\\listid2\\ls1}}";
    QCOMPARE(labelsOf("{\\rtf1" + lists + overrides + "\\pard\\ls1 item\\par}"),
             QStringList{u"1."_s});
}

void ListLevelsTest::anOverrideNumberedNoughtGoesOnBehindOtherText() {
    const QByteArray rtf =
        "{\\rtf1{\\*\\listtable{\\list{\\listlevel\\levelnfc0{\\leveltext\\'02\\'00.;}}\\listid1}}"
        "{\\*\\listoverridetable{\\listoverride\\listid1\\ls0}}"
        "\\pard\\ls0 item\\par\\pard text\\par\\pard\\ls0 item\\par}";
    QCOMPARE(labelsOf(rtf), (QStringList{u"1."_s, QString(), u"2."_s}));
}

void ListLevelsTest::aListThatIsToldAgainStaysAsItWas() {
    const auto list = [](const QByteArray& kind) {
        return "{\\*\\listtable{\\list{\\listlevel\\levelnfc" + kind +
               "{\\leveltext\\'02\\'00.;}}\\listid1}}";
    };
    QCOMPARE(
        labelsOf("{\\rtf1" + list("0") +
                 "{\\*\\listoverridetable{\\listoverride\\listid1\\ls1}}\\pard\\ls1 item\\par" +
                 list("1") + "item\\par}"),
        (QStringList{u"1."_s, u"2."_s}));
}

// The inner one is no group of its own in what is kept, so nothing can be written with it.
void ListLevelsTest::anOverrideWithinAnotherStandsForNoList() {
    const QByteArray rtf =
        "{\\rtf1{\\*\\listtable{\\list{\\listlevel\\levelnfc0{\\leveltext\\'02\\'00.;}}\\listid1}}"
        "{\\*\\listoverridetable{\\listoverride{\\listoverride\\listid1\\ls1}}"
        "{\\listoverride\\listid1\\ls2}}\\pard\\ls2 item\\par}";
    QTextDocument document;
    readRtf(rtf, document);
    QCOMPARE(labelsOf(writeRtf(document)), QStringList{u"1."_s});
}

void ListLevelsTest::anItemThatTellsItsNumberTooGoesOnWithItsList() {
    const QByteArray plain = "\\pard\\ls1\\ilvl0 item\\par";
    const QByteArray told = "\\pard{\\*\\pn\\pnlvlbody\\pnstart1\\pndec}\\ls1\\ilvl0 item\\par";
    QCOMPARE(labelsOf(Head + plain + told + plain + '}'), QStringList({u"1."_s, u"2."_s, u"3."_s}));
    QCOMPARE(labelsOf(Head + told + plain + told + '}'), QStringList({u"1."_s, u"2."_s, u"3."_s}));
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, ListLevelsTest)
#include "list_levels_test.moc"
