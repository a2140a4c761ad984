// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/grid_model.h"
#include "planner/grid_file.h"
#include "runtime/failure.h"
#include "runtime/text_file.h"

#include <cstdint>
#include <cstdlib>

using namespace orvalis;

namespace {

void require(bool held) {
    if (!held)
        std::abort();
}

void requireSame(const GridModel& one, const GridModel& other) {
    require(one.Rows() == other.Rows() && one.Cols() == other.Cols());
    for (int row = 0; row < one.Rows(); ++row)
        for (int col = 0; col < one.Cols(); ++col)
            require(one.TextMatrix(row, col) == other.TextMatrix(row, col));
}

} // namespace

/// Any bytes fill a grid or fail; what was filled is written so that it reads back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const QString text = decodeText(bytes);
    for (const GridColours* colours :
         {static_cast<const GridColours*>(nullptr), &RemindColours, &PriorityColours}) {
        GridModel grid;
        const GridModel::Batch batch(grid);
        endSilently([&] { fillGrid(grid, text, colours); });
        require(grid.Rows() >= 1 && grid.Cols() >= 1);
        require(grid.Row() < grid.Rows() && grid.Col() < grid.Cols());
        if (grid.Rows() == 1)
            continue;
        GridModel again;
        const GridModel::Batch batchAgain(again);
        fillGrid(again, decodeText(encodeText(gridFileText(grid))), colours);
        requireSame(grid, again);
    }
    return 0;
}
