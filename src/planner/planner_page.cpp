// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/planner_page.h"

#include "controls/rich_text_box.h"
#include "planner/planner_text.h"
#include "planner/week_range.h"

#include <QStringList>

namespace orvalis {

using namespace Qt::StringLiterals;
using planner::Black;
using planner::lineBreak;

namespace {

constexpr quint32 IceBlue = 0xCBBD86;
constexpr double TitlePoints = 12;
constexpr double WeekPoints = 10;
constexpr double DayPoints = 8;
constexpr int WeekRuleLength = 33;

QStringList days(FirstDay firstDay) {
    QStringList names{u"Monday"_s,   u"Tuesday"_s, u"Wednesday"_s,
                      u"Thursday"_s, u"Friday"_s,  u"Saturday"_s};
    names.insert(firstDay == FirstDay::Sunday ? 0 : names.size(), u"Sunday"_s);
    return names;
}

void writeHead(RichTextBox& page, const PlannerWeek& week, FirstDay firstDay) {
    page.SetSelFontName(u"Arial"_s);
    page.SetSelFontSize(TitlePoints);
    page.SetSelColor(IceBlue);
    page.SetSelBold(true);
    page.SetSelUnderline(true);
    page.SetSelText(u"WEEKLY PLANNER"_s + lineBreak() + lineBreak());
    page.SetSelUnderline(false);
    page.SetSelBold(false);
    page.SetSelFontSize(WeekPoints);
    page.SetSelText(u"WEEK No: "_s);
    page.SetSelText(QString::number(week.week) + u" / "_s + MonthText(week.month) + u' ' +
                    QString::number(week.year) + lineBreak());
    if (firstDay == FirstDay::Sunday)
        page.SetSelText(WeekRangeText(week.month, week.day, week.dayOfWeek) + lineBreak());
}

} // namespace

void writePlannerPage(RichTextBox& page, const PlannerWeek& week, FirstDay firstDay) {
    const QString rule = QString(WeekRuleLength, u'_') + lineBreak();
    const bool hasFocus = page.window()->focusWidget() == &page;
    page.setVisible(false);
    {
        const RichTextBox::Batch batch(page);
        page.SetText({});
        writeHead(page, week, firstDay);
        page.SetSelFontSize(DayPoints);
        page.SetSelText(rule);
        for (const QString& day : days(firstDay)) {
            page.SetSelColor(Black);
            page.SetSelText(day + lineBreak() + lineBreak() + lineBreak());
            page.SetSelColor(IceBlue);
            page.SetSelText(rule);
        }
        page.SetSelColor(Black);
    }
    page.setVisible(true);
    // Hiding it sent the keyboard on to the next control.
    if (hasFocus)
        page.setFocus(Qt::OtherFocusReason);
}

} // namespace orvalis
