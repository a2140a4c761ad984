// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/stated.h"
#include "support/test_main.h"

#include <QCoreApplication>

using namespace orvalis;
using namespace orvalis::rtf;

namespace {

constexpr int Unnamed = 7; // the family of text that names none

CharFormat usualLook() {
    CharFormat format;
    format.family = Unnamed;
    return format;
}

} // namespace

class StatedTest : public QObject {
    Q_OBJECT
private slots:
    void everyWordOfCharactersCountsWhereStylesAre();
    void withoutStylesOnlyAFontThatNoOtherNamesCounts_data();
    void withoutStylesOnlyAFontThatNoOtherNamesCounts();
    void wordsOfParagraphsCountWhereStylesOrListsAre();
    void whatIsSaidOfWhatDoesNotCountIsNotStated();
    void aLookThatIsNotUsualIsStatedAnyway_data();
    void aLookThatIsNotUsualIsStatedAnyway();
    void aShapeThatIsNotUsualIsStatedAnyway_data();
    void aShapeThatIsNotUsualIsStatedAnyway();
    void whatIsKnownAndNotStatedIsLeftOut();
};

void StatedTest::everyWordOfCharactersCountsWhereStylesAre() {
    QCOMPARE(stated::countedOfCharacters(true, DefaultFont::Named), stated::Knows | stated::All);
}

void StatedTest::withoutStylesOnlyAFontThatNoOtherNamesCounts_data() {
    QTest::addColumn<int>("defaultFont");
    QTest::addColumn<int>("counted");
    const int font = stated::KnowsFont | stated::Font;
    QTest::newRow("no file") << int(DefaultFont::Unknown) << 0;
    QTest::newRow("named") << int(DefaultFont::Named) << 0;
    QTest::newRow("unsaid") << int(DefaultFont::Unsaid) << font;
    QTest::newRow("not in the table") << int(DefaultFont::Missing) << font;
}

void StatedTest::withoutStylesOnlyAFontThatNoOtherNamesCounts() {
    QFETCH(int, defaultFont);
    QFETCH(int, counted);
    QCOMPARE(stated::countedOfCharacters(false, DefaultFont(defaultFont)), counted);
}

void StatedTest::wordsOfParagraphsCountWhereStylesOrListsAre() {
    QCOMPARE(stated::countedOfParagraphs(false, false), 0);
    QVERIFY(stated::countedOfParagraphs(true, false) & stated::Left);
    QVERIFY(stated::countedOfParagraphs(false, true) & stated::Left);
}

void StatedTest::whatIsSaidOfWhatDoesNotCountIsNotStated() {
    CharFormat look = usualLook();
    look.stated = stated::Bold | stated::Font | stated::KnowsLook;
    QCOMPARE(stated::by(look, stated::KnowsFont | stated::Font, Unnamed), stated::Font);
    ParagraphFormat shape;
    shape.stated = stated::Left | stated::After;
    QCOMPARE(stated::by(shape, stated::After), stated::After);
}

void StatedTest::aLookThatIsNotUsualIsStatedAnyway_data() {
    QTest::addColumn<CharFormat>("look");
    QTest::addColumn<int>("bit");
    const auto row = [](const char* name, int bit, const auto& change) {
        CharFormat look = usualLook();
        change(look);
        QTest::newRow(name) << look << bit;
    };
    row(
        "nothing", 0, [](CharFormat&) {});
    row(
        "font", stated::Font, [](CharFormat& look) { look.family = Unnamed + 1; });
    row(
        "size", stated::Size, [](CharFormat& look) { look.halfPoints = 20; });
    row(
        "colour", stated::Color, [](CharFormat& look) { look.color = 0xffff0000; });
    row(
        "highlight", stated::Highlight, [](CharFormat& look) { look.highlight = 0xffff0000; });
    row(
        "bold", stated::Bold, [](CharFormat& look) { look.bold = true; });
    row(
        "italic", stated::Italic, [](CharFormat& look) { look.italic = true; });
    row(
        "strike", stated::Strike, [](CharFormat& look) { look.strike = true; });
    row(
        "underline", stated::Underline, [](CharFormat& look) { look.underline = Underline::Wave; });
    row(
        "script", stated::Script, [](CharFormat& look) { look.script = Script::Sub; });
    row(
        "raise", stated::Raise, [](CharFormat& look) { look.raise = -3; });
    row(
        "capitals", stated::Capitals, [](CharFormat& look) { look.capitals = Capitals::Small; });
    row(
        "spacing", stated::Spacing, [](CharFormat& look) { look.spacing = 10; });
    row(
        "hidden", stated::Hidden, [](CharFormat& look) { look.hidden = true; });
    row("a word that none of it is", 0, [](CharFormat& look) { look.kept = 4; });
}

void StatedTest::aLookThatIsNotUsualIsStatedAnyway() {
    QFETCH(CharFormat, look);
    QFETCH(int, bit);
    QCOMPARE(stated::by(look, 0, Unnamed), bit);
}

void StatedTest::aShapeThatIsNotUsualIsStatedAnyway_data() {
    QTest::addColumn<ParagraphFormat>("shape");
    QTest::addColumn<int>("bit");
    const auto row = [](const char* name, int bit, const auto& change) {
        ParagraphFormat shape;
        change(shape);
        QTest::newRow(name) << shape << bit;
    };
    row(
        "nothing", 0, [](ParagraphFormat&) {});
    row(
        "alignment", stated::Alignment,
        [](ParagraphFormat& shape) { shape.alignment = Alignment::Justify; });
    row(
        "direction", stated::Direction, [](ParagraphFormat& shape) { shape.rightToLeft = true; });
    row(
        "page break", stated::PageBreak,
        [](ParagraphFormat& shape) { shape.pageBreakBefore = true; });
    row(
        "left", stated::Left, [](ParagraphFormat& shape) { shape.left = 720; });
    row(
        "first", stated::First, [](ParagraphFormat& shape) { shape.first = -360; });
    row(
        "right", stated::Right, [](ParagraphFormat& shape) { shape.right = 1; });
    row(
        "before", stated::Before, [](ParagraphFormat& shape) { shape.before = 120; });
    row(
        "after", stated::After, [](ParagraphFormat& shape) { shape.after = 120; });
    row("line spacing", stated::LineSpacing,
        [](ParagraphFormat& shape) { shape.lineSpacing = -240; });
}

void StatedTest::aShapeThatIsNotUsualIsStatedAnyway() {
    QFETCH(ParagraphFormat, shape);
    QFETCH(int, bit);
    QCOMPARE(stated::by(shape, 0), bit);
}

void StatedTest::whatIsKnownAndNotStatedIsLeftOut() {
    QCOMPARE(stated::leftOut(stated::Bold), 0);
    QCOMPARE(stated::leftOut(stated::KnowsFont | stated::Bold), stated::Font);
    QCOMPARE(stated::leftOut(stated::KnowsFont | stated::Font), 0);
    QCOMPARE(stated::leftOut(stated::Knows | stated::Bold | stated::Font),
             stated::All & ~(stated::Bold | stated::Font));
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, StatedTest)
#include "stated_test.moc"
