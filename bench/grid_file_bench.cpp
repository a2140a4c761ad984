// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/ms_flex_grid.h"
#include "planner/grid_file.h"
#include "timing.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <cstdio>

using namespace orvalis;
using bench::medianMilliseconds;
using namespace Qt::StringLiterals;

namespace {

constexpr int Items = 10'000;
constexpr int Rounds = 15;

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir folder;
    const QString path = folder.filePath(u"tmp2.brf"_s);

    MSFlexGrid grid;
    grid.resize(300, 320);
    grid.show();
    for (int item = 0; item < Items; ++item) {
        grid.AddItem(u"Saturday, June 01, 2002/07:30:00"_s);
        grid.AddItem(u"Call number %1 back, and ask for the key"_s.arg(item));
    }
    QApplication::processEvents();

    const double save = medianMilliseconds(
        Rounds, [&] { SaveGridFile(path, grid.grid()); });
    const double load = medianMilliseconds(Rounds, [&] { LoadRemindGrid(path, grid.grid()); });
    const double lines = medianMilliseconds(Rounds, [&] {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return;
        QTextStream stream(&file);
        QStringList read;
        while (!stream.atEnd())
            read << stream.readLine();
    });
    grid.hide();
    const double walk = medianMilliseconds(Rounds, [&] {
        for (int row = 0; row < grid.Rows(); ++row)
            grid.setRow(row);
    });
    std::printf("grid file of %d items into a shown grid: %.2f ms (aim: below 50)\n", Items, load);
    std::printf("  its lines into a QStringList, for comparison: %.2f ms\n", lines);
    std::printf("grid of %d items into its file: %.2f ms\n", Items, save);
    std::printf("the current cell over all rows of a hidden grid: %.3f ms\n", walk);
    return grid.Rows() == 2 * Items + 1 && load < 50 ? 0 : 1;
}
