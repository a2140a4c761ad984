// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/planner_page.h"

#include "controls/rich_text_box.h"
#include "support/test_main.h"

#include <QApplication>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

constexpr quint32 IceBlue = 0xCBBD86;

/// Wednesday 12 June 2002.
constexpr PlannerWeek Wednesday{.day = 12, .month = 6, .year = 2002, .dayOfWeek = 4, .week = 24};

QString rule() {
    return QString(33, u'_') + u"\r\n"_s;
}

QString dayBlock(const QString& name) {
    return name + u"\r\n\r\n\r\n"_s + rule();
}

/// How a piece of the page looks.
struct Look {
    std::optional<QString> font;
    std::optional<qreal> points;
    std::optional<quint32> colour;
    std::optional<bool> bold;
    std::optional<bool> underline;
    bool operator==(const Look&) const = default;
};

Look lookAt(RichTextBox& box, int start, qsizetype length) {
    box.SetSelStart(start);
    box.SetSelLength(static_cast<int>(length));
    return {box.SelFontName(), box.SelFontSize(), box.SelColor(), box.SelBold(),
            box.SelUnderline()};
}

Look lookOf(RichTextBox& box, const QString& piece, int from = 0) {
    const auto at = static_cast<int>(box.Text().indexOf(piece, from));
    return at < 0 ? Look{} : lookAt(box, at, piece.size());
}

Look arial(qreal points, quint32 colour, bool marked) {
    return {u"Arial"_s, points, colour, marked, marked};
}

} // namespace

class PlannerPageTest : public QObject {
    Q_OBJECT
private slots:
    void theWordsOfAPageThatBeginsWithSunday();
    void theWordsOfAPageThatBeginsWithMonday();
    void theTitleIsBoldUnderlinedAndIceBlue();
    void weekAndRangeStandInTenPoints();
    void rulesAreIceBlueAndDaysAreBlackInEightPoints();
    void whatIsTypedNextIsBlack();
    void aPageThatWasThereIsGone();
    void thePageShowsAgainAndIsOneChange();
};

void PlannerPageTest::theWordsOfAPageThatBeginsWithSunday() {
    RichTextBox page;
    writePlannerPage(page, Wednesday, FirstDay::Sunday);
    QString words = u"WEEKLY PLANNER\r\n\r\nWEEK No: 24 / June 2002\r\nFrom June 9 To 15\r\n"_s;
    words += rule();
    for (const QString& day : {u"Sunday"_s, u"Monday"_s, u"Tuesday"_s, u"Wednesday"_s,
                               u"Thursday"_s, u"Friday"_s, u"Saturday"_s})
        words += dayBlock(day);
    QCOMPARE(page.Text(), words);
}

void PlannerPageTest::theWordsOfAPageThatBeginsWithMonday() {
    RichTextBox page;
    writePlannerPage(page, {.day = 31, .month = 10, .year = 2026, .dayOfWeek = 7, .week = 44},
                     FirstDay::Monday);
    QString words = u"WEEKLY PLANNER\r\n\r\nWEEK No: 44 / Oktober 2026\r\n"_s + rule();
    for (const QString& day : {u"Monday"_s, u"Tuesday"_s, u"Wednesday"_s, u"Thursday"_s,
                               u"Friday"_s, u"Saturday"_s, u"Sunday"_s})
        words += dayBlock(day);
    QCOMPARE(page.Text(), words);
}

void PlannerPageTest::theTitleIsBoldUnderlinedAndIceBlue() {
    RichTextBox page;
    writePlannerPage(page, Wednesday, FirstDay::Sunday);
    QCOMPARE(lookOf(page, u"WEEKLY PLANNER"_s), arial(12, IceBlue, true));
}

void PlannerPageTest::weekAndRangeStandInTenPoints() {
    RichTextBox page;
    writePlannerPage(page, Wednesday, FirstDay::Sunday);
    QCOMPARE(lookOf(page, u"WEEK No: 24 / June 2002"_s), arial(10, IceBlue, false));
    QCOMPARE(lookOf(page, u"From June 9 To 15"_s), arial(10, IceBlue, false));
}

void PlannerPageTest::rulesAreIceBlueAndDaysAreBlackInEightPoints() {
    RichTextBox page;
    writePlannerPage(page, Wednesday, FirstDay::Sunday);
    const QString line(33, u'_');
    int from = 0;
    int rules = 0;
    for (int at = static_cast<int>(page.Text().indexOf(line)); at >= 0;
         at = static_cast<int>(page.Text().indexOf(line, from)), ++rules) {
        QCOMPARE(lookAt(page, at, line.size()), arial(8, IceBlue, false));
        from = at + 33;
    }
    QCOMPARE(rules, 8);
    for (const QString& day : {u"Sunday"_s, u"Monday"_s, u"Tuesday"_s, u"Wednesday"_s,
                               u"Thursday"_s, u"Friday"_s, u"Saturday"_s})
        QCOMPARE(lookOf(page, day), arial(8, 0, false));
}

void PlannerPageTest::whatIsTypedNextIsBlack() {
    RichTextBox page;
    writePlannerPage(page, Wednesday, FirstDay::Sunday);
    QCOMPARE(page.SelStart(), static_cast<int>(page.Text().size()));
    QCOMPARE(page.SelColor(), std::optional<quint32>(0));
}

void PlannerPageTest::aPageThatWasThereIsGone() {
    RichTextBox page;
    page.SetText(u"last week"_s);
    page.SetSelStart(4);
    writePlannerPage(page, Wednesday, FirstDay::Sunday);
    QVERIFY(page.Text().startsWith(u"WEEKLY PLANNER\r\n"_s));
    QVERIFY(!page.Text().contains(u"last week"_s));
}

void PlannerPageTest::thePageShowsAgainAndIsOneChange() {
    QWidget window;
    RichTextBox page(&window);
    window.show();
    int changes = 0;
    connect(&page, &RichTextBox::Change, this, [&] {
        ++changes;
        QVERIFY(!page.isVisible());
    });
    writePlannerPage(page, Wednesday, FirstDay::Sunday);
    QCOMPARE(changes, 1);
    QVERIFY(page.isVisible());
}

ORVALIS_TEST_MAIN_WITH(QApplication, PlannerPageTest)
#include "planner_page_test.moc"
