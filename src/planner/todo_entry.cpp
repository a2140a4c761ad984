// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/todo_entry.h"

#include "planner/planner_text.h"
#include "planner/reminder_rules.h"
#include "runtime/format.h"

namespace orvalis {

using namespace Qt::StringLiterals;
using planner::lineBreak;

namespace {

constexpr int RuleLength = 19;

QString rule() {
    return QString(RuleLength, u'_') + lineBreak();
}

} // namespace

QString entryTitle(const QString& title) {
    return lineBreak() + title + lineBreak() + rule();
}

QString entryMessageBreak() {
    return lineBreak();
}

QString entryDueLine(QDate date) {
    return lineBreak() + lineBreak() + u"    To do: "_s + dateText(date);
}

QString entrySavedLine(const QDateTime& now) {
    return lineBreak() + u"    Saved: "_s + generalDate(now) + lineBreak() + rule();
}

} // namespace orvalis
