// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/print_rtf.h"

#include "controls/format_range.h"
#include "controls/rich_text_box.h"
#include "platform/printer.h"

#include <QPainter>

#include <cmath>

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

/// Less than this, in twips, holds no line of letters.
constexpr int LeastRoom = 360;

/// The area, or on a sheet whose margins leave it no room all that the printer reaches in that
/// direction: blank pages, one for each line, would serve nobody.
QRect roomOn(const Printer& printer, QRect area) {
    if (area.width() < LeastRoom) {
        area.setLeft(0);
        area.setWidth(printer.ScaleWidth());
    }
    if (area.height() < LeastRoom) {
        area.setTop(0);
        area.setHeight(printer.ScaleHeight());
    }
    return area;
}

/// The device context changes with each page and is asked for anew.
void useDevice(FormatRange& range, Printer& printer) {
    range.painter = printer.hDC();
    range.device = range.painter->device();
}

} // namespace

QRect printArea(const Printer& printer, const PrintMargins& margins) {
    const auto leftOffset = static_cast<int>(std::lround(printer.ScaleX(
        printer.GetDeviceCaps(PHYSICALOFFSETX), ScaleMode::Pixels, ScaleMode::Twips)));
    const auto topOffset = static_cast<int>(std::lround(printer.ScaleY(
        printer.GetDeviceCaps(PHYSICALOFFSETY), ScaleMode::Pixels, ScaleMode::Twips)));
    const QPoint topLeft(margins.left - leftOffset, margins.top - topOffset);
    const QPoint bottomRight((printer.Width() - margins.right) - leftOffset,
                             (printer.Height() - margins.bottom) - topOffset);
    return {topLeft, QSize(bottomRight.x() - topLeft.x(), bottomRight.y() - topLeft.y())};
}

void printPages(RichTextBox& box, Printer& printer, const PrintMargins& margins,
                const rtf::Progress& progress) {
    constexpr double LayoutShare = 0.5; // of the time
    const auto tell = [&progress](double share) {
        if (progress)
            progress(share);
    };
    // A blank begins the job: until then there is no device context.
    printer.Print(u" "_s);
    FormatRange range;
    range.rect = roomOn(printer, printArea(printer, margins));
    useDevice(range, printer);
    const auto textLength = static_cast<int>(box.Text().size());
    RangeFormatter pages(box, [&](double share) { tell(LayoutShare * share); });
    for (;;) {
        const int next = pages.FormatPage(range);
        if (next >= textLength)
            break;
        range.first = next;
        tell(LayoutShare + (1 - LayoutShare) * next / textLength);
        printer.NewPage();
        printer.Print(u" "_s);
        useDevice(range, printer);
    }
    printer.EndDoc();
}

} // namespace orvalis
