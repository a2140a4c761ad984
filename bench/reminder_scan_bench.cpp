// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// A tick's look through a long list of reminders none of which is due, beside a walk over as many
// texts in a plain list.
#include "alarm/reminder_scan.h"
#include "controls/grid_model.h"
#include "timing.h"

#include <QCoreApplication>
#include <QLocale>

#include <cstdio>

using namespace orvalis;
using bench::medianMilliseconds;

namespace {

constexpr int Rows = 10'000;
constexpr int Rounds = 201;
constexpr double Limit = 0.2;

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const QDateTime now(QDate(2026, 3, 14), QTime(10, 24, 36));
    GridModel grid;
    QStringList plain;
    grid.setRows(Rows);
    for (int row = 0; row < Rows; ++row) {
        // Of the length of the key and alike up to the time's last digits: the dearest case.
        const QString text = reminderKey(now.addSecs(row % 23 + 1));
        grid.setTextMatrix(row, 0, text);
        plain << text;
    }
    int found = 0;
    const double scan = medianMilliseconds(
        Rounds, [&] { found += seekReminder(grid, reminderKey(now)) ? 1 : 0; });
    const double walk =
        medianMilliseconds(Rounds, [&] { found += plain.contains(reminderKey(now)) ? 1 : 0; });
    std::printf("scan of %d rows: %.4f ms, a plain list %.4f ms (limit %.1f ms)\n", Rows, scan,
                walk, Limit);
    return found == 0 && grid.Row() == Rows - 1 && scan < Limit ? 0 : 1;
}
