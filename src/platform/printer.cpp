// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/printer.h"

#include "runtime/failure.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>
#include <QPrinter>

#include <cmath>

namespace orvalis {
namespace {

constexpr double TwipsPerInch = 1440;

double unitsPerInch(ScaleMode mode, int resolution) {
    return mode == ScaleMode::Pixels ? resolution : TwipsPerInch;
}

double converted(double length, ScaleMode from, ScaleMode to, int resolution) {
    return length / unitsPerInch(from, resolution) * unitsPerInch(to, resolution);
}

int whole(double twips) {
    return int(std::lround(twips));
}

/// All that the printer can reach, without the margins of a page set-up: those would come on top of
/// the caller's own.
QPageLayout reachOf(const QPrinter& printer) {
    QPageLayout layout = printer.pageLayout();
    layout.setMode(QPageLayout::StandardMode);
    layout.setMargins(layout.minimumMargins());
    return layout;
}

/// Where there is no printer at all, the toolkit falls back on a file that has no name.
bool isThere(const QPrinter& printer) {
    return printer.outputFormat() == QPrinter::PdfFormat ? !printer.outputFileName().isEmpty()
                                                         : printer.isValid();
}

void require(bool taken) {
    if (!taken)
        throw RuntimeError(ErrorNumber::PrinterError);
}

} // namespace

int Printer::GetDeviceCaps(int index) const {
    switch (index) {
    case PHYSICALOFFSETX:
        return sheet().margins.left();
    case PHYSICALOFFSETY:
        return sheet().margins.top();
    default:
        return 0;
    }
}

double Printer::ScaleX(double length, ScaleMode from, ScaleMode to) const {
    return converted(length, from, to, sheet().resolution.width());
}

double Printer::ScaleY(double length, ScaleMode from, ScaleMode to) const {
    return converted(length, from, to, sheet().resolution.height());
}

int Printer::Width() const {
    return whole(ScaleX(sheet().paper.width(), ScaleMode::Pixels, ScaleMode::Twips));
}

int Printer::Height() const {
    return whole(ScaleY(sheet().paper.height(), ScaleMode::Pixels, ScaleMode::Twips));
}

int Printer::ScaleWidth() const {
    const QSize printable = sheet().paper.shrunkBy(sheet().margins);
    return whole(ScaleX(printable.width(), ScaleMode::Pixels, ScaleMode::Twips));
}

int Printer::ScaleHeight() const {
    const QSize printable = sheet().paper.shrunkBy(sheet().margins);
    return whole(ScaleY(printable.height(), ScaleMode::Pixels, ScaleMode::Twips));
}

DesktopPrinter::DesktopPrinter() = default;

DesktopPrinter::~DesktopPrinter() {
    endSilently([this] { EndDoc(); });
}

QPrinter& DesktopPrinter::printer() const {
    if (!m_printer)
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    return *m_printer;
}

QPrinter& DesktopPrinter::device() {
    endSilently([this] { EndDoc(); });
    return printer();
}

void DesktopPrinter::begin() {
    require(isThere(printer()));
    printer().setPageLayout(reachOf(printer()));
    auto painter = std::make_unique<QPainter>();
    require(painter->begin(&printer()));
    m_painter = std::move(painter);
    m_line = 0;
}

void DesktopPrinter::Print(const QString& text) {
    if (!m_painter)
        begin();
    const QFontMetricsF font(m_painter->font(), &printer());
    m_painter->drawText(QPointF(0, m_line + font.ascent()), text);
    m_line += font.lineSpacing();
}

QPainter* DesktopPrinter::hDC() {
    return m_painter.get();
}

void DesktopPrinter::NewPage() {
    if (!m_painter)
        begin();
    require(printer().newPage());
    m_line = 0;
}

void DesktopPrinter::EndDoc() {
    if (!m_painter)
        return;
    const bool taken = m_painter->end();
    m_painter.reset();
    require(taken && printer().printerState() != QPrinter::Error);
}

Sheet DesktopPrinter::sheet() const {
    const QPageLayout layout = reachOf(printer());
    const int resolution = printer().resolution();
    return {.paper = layout.fullRectPixels(resolution).size(),
            .margins = layout.marginsPixels(resolution),
            .resolution = QSize(resolution, resolution)};
}

} // namespace orvalis
