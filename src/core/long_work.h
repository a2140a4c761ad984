// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/progress.h"

#include <QDateTime>

class QWidget;

namespace orvalis {

class Clock;
class ProgressBar;

/// A command that can take long, from its beginning to its end.
///
/// The pointer is the hourglass meanwhile, and the window is painted where a dialog lay over it.
/// While the work tells how far it is, the window stays on the screen, and a bar comes up when it
/// lasts. All of this is painted directly: no event reaches anything before the command has ended.
class LongWork {
public:
    /// \param bar a hidden one of the window, where it has one, that covers nothing the work is
    /// about.
    LongWork(QWidget& window, ProgressBar* bar, const Clock& clock);
    ~LongWork();
    Q_DISABLE_COPY_MOVE(LongWork)

    /// Who hears of the next part of the work. \param end the share of the whole that is done when
    /// the part is, 0 to 1.
    rtf::Progress part(double end);

private:
    void tell(double share);

    QWidget& m_window;
    ProgressBar* m_bar;
    const Clock& m_clock;
    QDateTime m_began;
    QDateTime m_painted;
    double m_partEnd = 0;
};

} // namespace orvalis
