// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/reminder_rules.h"

#include "controls/grid_model.h"
#include "runtime/format.h"
#include "runtime/time_parts.h"

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

void toNextCell(GridModel& grid) {
    if (grid.Col() + 1 < grid.Cols()) {
        grid.setCol(grid.Cols() - 1);
        return;
    }
    grid.setRow(grid.Row() + 1 >= grid.Rows() ? 1 : grid.Row() + 1);
    grid.setCol(0);
}

/// A character beyond the first plane takes two units of a string and goes as one.
QString withoutLastCharacter(const QString& text) {
    const bool pair =
        text.size() >= 2 && text.back().isLowSurrogate() && text[text.size() - 2].isHighSurrogate();
    return text.chopped(pair ? 2 : 1);
}

} // namespace

QString dateText(QDate date) {
    return Format(date, u"dddd, MMMM dd, yyyy");
}

QString timeLabel(const QString& hour, const QString& minute) {
    return hour + u':' + minute + u":00"_s;
}

bool fitsTimeLabel(const QString& text, int limit) {
    return text.isEmpty() || isTimePart(text, limit);
}

QString remindHeader(QDate date, const QString& timeLabel) {
    return dateText(date) + u'/' + timeLabel;
}

void addPriorityItem(GridModel& grid, QDate date, const QString& message) {
    grid.AddItem(dateText(date));
    grid.AddItem(message);
    grid.setRow(grid.Rows() - 2);
    grid.setCellBackColor(255);
    grid.setCellForeColor(0xFFFFFF);
}

void addRemindItem(GridModel& grid, const QString& header, const QString& message) {
    grid.AddItem(header);
    grid.AddItem(message);
}

void typeIntoGrid(GridModel& grid, const QString& key) {
    if (key == u"\r"_s) {
        toNextCell(grid);
    } else if (key == u"\b"_s) {
        if (!grid.Text().trimmed().isEmpty())
            grid.setText(withoutLastCharacter(grid.Text()));
    } else if (grid.Row() != 0) {
        grid.setText(grid.Text() + key);
    }
}

int findOptions(bool wholeWord, bool matchCase) {
    return (wholeWord ? 2 : 0) + (matchCase ? 4 : 0);
}

} // namespace orvalis
