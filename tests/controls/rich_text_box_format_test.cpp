// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/rich_text_box.h"
#include "controls/selecting.h"
#include "support/test_main.h"

#include <QApplication>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
#include <QTextList>

#include <limits>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

class RichTextBoxFormatTest : public QObject {
    Q_OBJECT
private slots:
    void eachPropertyIsReadAsItWasSet();
    void mixedSelectionsGiveNothing();
    void picturesDoNotMixASelection();
    void onlyTheSelectionChanges();
    void theCaretsFormatIsThatOfWhatIsTypedThere();
    void colorsAreBlueGreenRed();
    void textWithoutAColorIsBlack();
    void aSystemColorTakesTheColorAway();
    void alignmentsAreLeftRightCenter_data();
    void alignmentsAreLeftRightCenter();
    void aParagraphTouchedByTheSelectionsEndIsNotPartOfIt();
    void indentsAreTwips();
    void anIndentGoesUpAndDownByMillimetres();
    void anIndentBelowZeroIsRememberedAndShowsAsNone();
    void anIndentBeyondEverythingIsRememberedAndShowsFarAway();
    void bulletsComeAndGo();
    void aBulletKeepsTheIndentOfItsParagraph();
    void aNumberedParagraphHasNoBullet();
    void settingWhatIsSetAddsNothingToUndo();
    void theBoxFontChangesAllText();
    void theBoxFontHoldsForAnEmptyBox();
    void aBoxFontSetTwiceIsTheLastOne();
    void wordWrapCanBeTurnedOff();
    void whatLeansOverTheEdgeBringsNoBarButWhatGoesBeyondDoes();
};

void RichTextBoxFormatTest::eachPropertyIsReadAsItWasSet() {
    RichTextBox box;
    box.SetText(u"some words"_s);
    select(box, 5, 5);
    box.SetSelBold(true);
    box.SetSelItalic(true);
    box.SetSelUnderline(true);
    box.SetSelStrikeThru(true);
    box.SetSelFontName(u"Liberation Serif"_s);
    box.SetSelFontSize(13.5);
    box.SetSelColor(0x112233);
    QCOMPARE(box.SelBold(), std::optional(true));
    QCOMPARE(box.SelItalic(), std::optional(true));
    QCOMPARE(box.SelUnderline(), std::optional(true));
    QCOMPARE(box.SelStrikeThru(), std::optional(true));
    QCOMPARE(box.SelFontName(), std::optional(u"Liberation Serif"_s));
    QCOMPARE(box.SelFontSize(), std::optional<qreal>(13.5));
    QCOMPARE(box.SelColor(), std::optional<quint32>(0x112233));
    box.SetSelBold(false);
    box.SetSelItalic(false);
    box.SetSelUnderline(false);
    box.SetSelStrikeThru(false);
    QCOMPARE(box.SelBold(), std::optional(false));
    QCOMPARE(box.SelItalic(), std::optional(false));
    QCOMPARE(box.SelUnderline(), std::optional(false));
    QCOMPARE(box.SelStrikeThru(), std::optional(false));
}

void RichTextBoxFormatTest::mixedSelectionsGiveNothing() {
    RichTextBox box;
    box.SetText(u"first\r\nsecond"_s);
    select(box, 0, 5);
    box.SetSelBold(true);
    box.SetSelItalic(true);
    box.SetSelUnderline(true);
    box.SetSelStrikeThru(true);
    box.SetSelFontName(u"Liberation Mono"_s);
    box.SetSelFontSize(20);
    box.SetSelColor(0x0000FF);
    box.SetSelAlignment(RichTextBox::rtfRight);
    box.SetSelIndent(300);
    box.SetSelBullet(true);
    box.selectAll();
    QVERIFY(!box.SelBold());
    QVERIFY(!box.SelItalic());
    QVERIFY(!box.SelUnderline());
    QVERIFY(!box.SelStrikeThru());
    QVERIFY(!box.SelFontName());
    QVERIFY(!box.SelFontSize());
    QVERIFY(!box.SelColor());
    QVERIFY(!box.SelAlignment());
    QVERIFY(!box.SelIndent());
    QVERIFY(!box.SelBullet());
}

void RichTextBoxFormatTest::picturesDoNotMixASelection() {
    RichTextBox box;
    box.SetText(u"bold"_s);
    box.selectAll();
    box.SetSelBold(true);
    box.SetSelStart(2);
    QTextImageFormat picture;
    picture.setName(u"none"_s);
    box.textCursor().insertImage(picture);
    box.selectAll();
    QCOMPARE(box.SelBold(), std::optional(true));
    select(box, 2, 1);
    QCOMPARE(box.SelBold(), std::optional(false));
}

void RichTextBoxFormatTest::onlyTheSelectionChanges() {
    RichTextBox box;
    box.SetText(u"one two three"_s);
    select(box, 4, 3);
    box.SetSelBold(true);
    select(box, 0, 4);
    QCOMPARE(box.SelBold(), std::optional(false));
    select(box, 7, 6);
    QCOMPARE(box.SelBold(), std::optional(false));
}

void RichTextBoxFormatTest::theCaretsFormatIsThatOfWhatIsTypedThere() {
    RichTextBox box;
    box.SetText(u"plain"_s);
    box.SetSelStart(5);
    box.SetSelItalic(true);
    QCOMPARE(box.SelItalic(), std::optional(true));
    box.SetSelText(u" slanted"_s);
    QTest::keyClicks(&box, u"!"_s);
    select(box, 5, 9);
    QCOMPARE(box.SelText(), u" slanted!"_s);
    QCOMPARE(box.SelItalic(), std::optional(true));
    select(box, 0, 5);
    QCOMPARE(box.SelItalic(), std::optional(false));
}

void RichTextBoxFormatTest::colorsAreBlueGreenRed() {
    RichTextBox box;
    box.SetText(u"red"_s);
    box.selectAll();
    box.SetSelColor(255);
    const QTextCharFormat format = box.document()->begin().begin().fragment().charFormat();
    QCOMPARE(format.foreground().color(), QColor(255, 0, 0));
}

void RichTextBoxFormatTest::textWithoutAColorIsBlack() {
    RichTextBox box;
    box.SetText(u"text"_s);
    box.selectAll();
    QCOMPARE(box.SelColor(), std::optional<quint32>(0));
    select(box, 0, 2);
    box.SetSelColor(0);
    box.selectAll();
    QCOMPARE(box.SelColor(), std::optional<quint32>(0));
}

void RichTextBoxFormatTest::aSystemColorTakesTheColorAway() {
    RichTextBox box;
    box.SetText(u"text"_s);
    box.selectAll();
    box.SetSelColor(255);
    box.SetSelColor(0x80000008);
    QCOMPARE(box.SelColor(), std::optional<quint32>(0));
    QVERIFY(!box.document()->begin().begin().fragment().charFormat().hasProperty(
        QTextFormat::ForegroundBrush));
}

void RichTextBoxFormatTest::alignmentsAreLeftRightCenter_data() {
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("shown");
    QTest::newRow("left") << 0 << int(Qt::AlignLeft);
    QTest::newRow("right") << 1 << int(Qt::AlignRight);
    QTest::newRow("centre") << 2 << int(Qt::AlignHCenter);
    QTest::newRow("justified") << 3 << int(Qt::AlignJustify);
}

void RichTextBoxFormatTest::alignmentsAreLeftRightCenter() {
    QFETCH(int, value);
    QFETCH(int, shown);
    RichTextBox box;
    box.SetText(u"one\r\ntwo"_s);
    box.SetSelStart(5);
    box.SetSelAlignment(RichTextBox::rtfCenter);
    box.SetSelAlignment(value);
    QCOMPARE(box.SelAlignment(), std::optional(value));
    QVERIFY(box.document()->lastBlock().blockFormat().alignment() & Qt::Alignment(shown));
    box.SetSelStart(0);
    QCOMPARE(box.SelAlignment(), std::optional(0));
}

void RichTextBoxFormatTest::aParagraphTouchedByTheSelectionsEndIsNotPartOfIt() {
    RichTextBox box;
    box.SetText(u"one\r\ntwo\r\n"_s);
    select(box, 0, 5);
    box.SetSelAlignment(RichTextBox::rtfCenter);
    QCOMPARE(box.SelAlignment(), std::optional(2));
    box.SetSelStart(5);
    QCOMPARE(box.SelAlignment(), std::optional(0));
}

void RichTextBoxFormatTest::indentsAreTwips() {
    RichTextBox box;
    box.SetText(u"one"_s);
    box.SetSelIndent(720);
    QCOMPARE(box.SelIndent(), std::optional(720));
    QCOMPARE(box.document()->begin().blockFormat().leftMargin(), 48.0);
}

void RichTextBoxFormatTest::anIndentGoesUpAndDownByMillimetres() {
    constexpr int EightMillimetres = 454; // twips
    RichTextBox box;
    box.SetText(u"one"_s);
    for (int step = 1; step <= 3; ++step) {
        box.SetSelIndent(*box.SelIndent() + EightMillimetres);
        QCOMPARE(box.SelIndent(), std::optional(step * EightMillimetres));
    }
    for (int step = 2; step >= 0; --step) {
        box.SetSelIndent(*box.SelIndent() - EightMillimetres);
        QCOMPARE(box.SelIndent(), std::optional(step * EightMillimetres));
    }
}

void RichTextBoxFormatTest::anIndentBelowZeroIsRememberedAndShowsAsNone() {
    RichTextBox box;
    box.SetText(u"one"_s);
    box.SetSelIndent(-454);
    QCOMPARE(box.SelIndent(), std::optional(-454));
    QCOMPARE(box.document()->begin().blockFormat().leftMargin(), 0.0);
    box.SetSelIndent(0);
    QCOMPARE(box.SelIndent(), std::optional(0));
}

void RichTextBoxFormatTest::bulletsComeAndGo() {
    RichTextBox box;
    box.SetText(u"one\r\ntwo\r\nthree"_s);
    select(box, 0, 8);
    box.SetSelBullet(true);
    QCOMPARE(box.SelBullet(), std::optional(true));
    QCOMPARE(box.Text(), u"one\r\ntwo\r\nthree"_s);
    const QTextList* list = box.document()->begin().textList();
    QVERIFY(list);
    QCOMPARE(list->count(), 2);
    QCOMPARE(list->format().style(), QTextListFormat::ListDisc);
    QVERIFY(!box.document()->lastBlock().textList());
    box.SetSelBullet(false);
    QCOMPARE(box.SelBullet(), std::optional(false));
    QVERIFY(!box.document()->begin().textList());
    QCOMPARE(box.document()->begin().blockFormat().leftMargin(), 0.0);
}

void RichTextBoxFormatTest::aBulletKeepsTheIndentOfItsParagraph() {
    RichTextBox box;
    box.SetText(u"one"_s);
    box.SetSelIndent(454);
    box.SetSelBullet(true);
    QCOMPARE(box.SelIndent(), std::optional(454));
    // There has to be room for the bullet itself.
    QVERIFY(box.document()->begin().blockFormat().leftMargin() >= 454 / 15.0 + 20);
    box.SetSelIndent(908);
    QCOMPARE(box.SelIndent(), std::optional(908));
    box.SetSelBullet(false);
    QCOMPARE(box.SelIndent(), std::optional(908));
}

void RichTextBoxFormatTest::aNumberedParagraphHasNoBullet() {
    RichTextBox box;
    box.SetText(u"one"_s);
    box.textCursor().createList(QTextListFormat::ListDecimal);
    QCOMPARE(box.SelBullet(), std::optional(false));
    box.SetSelBullet(true);
    QCOMPARE(box.SelBullet(), std::optional(true));
}

void RichTextBoxFormatTest::settingWhatIsSetAddsNothingToUndo() {
    RichTextBox box;
    box.SetText(QString());
    box.SetSelAlignment(0);
    box.SetSelIndent(0);
    box.SetSelBullet(false);
    box.SetSelColor(0);
    box.SetSelBold(false);
    box.SetSelItalic(false);
    box.SetSelUnderline(false);
    QVERIFY(!box.CanUndo());
}

void RichTextBoxFormatTest::theBoxFontChangesAllText() {
    RichTextBox box;
    box.SetText(u"one\r\ntwo"_s);
    select(box, 0, 3);
    box.SetSelFontName(u"Liberation Serif"_s);
    box.SetSelBold(true);
    box.SetFontName(u"Liberation Mono"_s);
    box.SetFontSize(15);
    box.selectAll();
    QCOMPARE(box.SelFontName(), std::optional(u"Liberation Mono"_s));
    QCOMPARE(box.SelFontSize(), std::optional<qreal>(15));
    QVERIFY(!box.SelBold());
    QCOMPARE(box.FontName(), u"Liberation Mono"_s);
    QCOMPARE(box.FontSize(), 15.0);
}

void RichTextBoxFormatTest::theBoxFontHoldsForAnEmptyBox() {
    RichTextBox box;
    box.SetSelFontSize(30);
    box.SetFontName(u"Liberation Mono"_s);
    box.SetFontSize(8);
    QTest::keyClicks(&box, u"typed"_s);
    box.selectAll();
    QCOMPARE(box.SelFontName(), std::optional(u"Liberation Mono"_s));
    QCOMPARE(box.SelFontSize(), std::optional<qreal>(8));
    QVERIFY(box.CanUndo());
    box.Undo();
    QVERIFY(!box.CanUndo());
}

void RichTextBoxFormatTest::aBoxFontSetTwiceIsTheLastOne() {
    RichTextBox box;
    box.SetFontSize(8);
    box.SetText(u"message"_s);
    box.SetText(QString());
    box.SetFontSize(11);
    QCOMPARE(box.SelFontSize(), std::optional<qreal>(11));
    QTest::keyClicks(&box, u"x"_s);
    box.selectAll();
    QCOMPARE(box.SelFontSize(), std::optional<qreal>(11));
}

void RichTextBoxFormatTest::wordWrapCanBeTurnedOff() {
    RichTextBox box;
    box.resize(100, 100);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.SetText(u"many words that do not fit into one line of the box"_s);
    const auto lines = [&] {
        (void)box.document()->size(); // lays it out
        return box.document()->begin().layout()->lineCount();
    };
    QVERIFY(box.WordWrap());
    QVERIFY(lines() > 1);
    box.SetWordWrap(false);
    QVERIFY(!box.WordWrap());
    QCOMPARE(lines(), 1);
    box.SetWordWrap(true);
    QVERIFY(lines() > 1);
}

void RichTextBoxFormatTest::whatLeansOverTheEdgeBringsNoBarButWhatGoesBeyondDoes() {
    RichTextBox box;
    box.resize(200, 100);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    const auto showsBar = [&](double pixelsBeyond) {
        box.SetText(QString());
        QTextImageFormat picture;
        picture.setWidth(box.viewport()->width() - 2 * box.document()->documentMargin() +
                         pixelsBeyond);
        picture.setHeight(10);
        QTextCursor(box.document()).insertImage(picture);
        (void)box.document()->size(); // lays it out
        return box.horizontalScrollBar()->isVisibleTo(&box);
    };
    QVERIFY(!showsBar(0));
    QVERIFY(!showsBar(4));
    QVERIFY(showsBar(40));
    QVERIFY(!showsBar(4));
    box.SetWordWrap(false);
    QVERIFY(showsBar(4));
}

void RichTextBoxFormatTest::anIndentBeyondEverythingIsRememberedAndShowsFarAway() {
    constexpr int Most = std::numeric_limits<int>::max();
    RichTextBox box;
    box.SetText(u"one"_s);
    box.SetSelIndent(Most);
    QCOMPARE(box.SelIndent(), std::optional(Most));
    QVERIFY(box.document()->begin().blockFormat().leftMargin() < 100000);
    box.SetSelBullet(true);
    QCOMPARE(box.SelIndent(), std::optional(Most));
    QVERIFY(box.document()->begin().blockFormat().leftMargin() < 100000);
    RichTextBox other;
    other.SetTextRTF(box.TextRTF());
    QVERIFY(*other.SelIndent() > 20000);
    box.SetSelIndent(454);
    QCOMPARE(box.SelIndent(), std::optional(454));
}

ORVALIS_TEST_MAIN_WITH(QApplication, RichTextBoxFormatTest)
#include "rich_text_box_format_test.moc"
