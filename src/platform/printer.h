// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMarginsF>
#include <QSize>

#include <memory>

class QPainter;
class QPrinter;
class QString;

namespace orvalis {

/// Units of length, under the numbers by which a printer is asked to convert them.
enum class ScaleMode : int { Twips = 1, Pixels = 3 };

/// What GetDeviceCaps() tells, in device pixels.
enum DeviceCaps : int { PHYSICALOFFSETX = 112, PHYSICALOFFSETY = 113 };

/// A sheet as a printer takes it, in its own pixels.
struct Sheet {
    QSize paper;      ///< the whole sheet
    QMargins margins; ///< which the printer cannot reach
    QSize resolution; ///< pixels to the inch, across and down
};

/// The printer that documents go to. A job begins with what is printed first and ends with
/// EndDoc(); what is drawn has its origin at the corner of the printable area. Lengths are twips
/// wherever nothing else is said.
class Printer {
public:
    virtual ~Printer() = default;

    /// Writes a line on the present page, which begins the job where none is under way. A blank, or
    /// nothing at all, begins it and leaves no ink.
    /// \throws RuntimeError PrinterError when there is no printer or it takes nothing.
    virtual void Print(const QString& text) = 0;
    /// The device context of the present page, to draw on and to measure by; nullptr while no job
    /// is under way. It can be another one behind NewPage().
    virtual QPainter* hDC() = 0;
    /// Goes on with a fresh page. \throws RuntimeError PrinterError as Print().
    virtual void NewPage() = 0;
    /// Sends the job off. Without one it does nothing. \throws RuntimeError PrinterError when the
    /// printer does not take it.
    virtual void EndDoc() = 0;

    /// The sheet as it was chosen for this printer.
    virtual Sheet sheet() const = 0;

    /// PHYSICALOFFSETX or PHYSICALOFFSETY: how far the printable area lies from the sheet's left
    /// or upper edge, in device pixels. 0 for any other index.
    int GetDeviceCaps(int index) const;
    /// A length across, or down, from one unit to another.
    double ScaleX(double length, ScaleMode from, ScaleMode to) const;
    double ScaleY(double length, ScaleMode from, ScaleMode to) const;
    /// The sheet's size.
    int Width() const;
    int Height() const;
    /// The printable area's size.
    int ScaleWidth() const;
    int ScaleHeight() const;
};

/// The printer of the desktop. It is looked for at the first question, since that can take a while.
class DesktopPrinter final : public Printer {
public:
    DesktopPrinter();
    ~DesktopPrinter() override;
    Q_DISABLE_COPY_MOVE(DesktopPrinter)

    /// What a print dialog sets up. A job that was left unfinished is sent off first, for a printer
    /// cannot be changed in the middle of one.
    QPrinter& device();

    void Print(const QString& text) override;
    QPainter* hDC() override;
    void NewPage() override;
    void EndDoc() override;
    Sheet sheet() const override;

private:
    QPrinter& printer() const;
    void begin();

    mutable std::unique_ptr<QPrinter> m_printer;
    std::unique_ptr<QPainter> m_painter; ///< of the job under way
    double m_line = 0;                   ///< where the next line of Print() begins
};

} // namespace orvalis
