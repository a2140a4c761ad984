// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/long_work.h"

#include "controls/progress_bar.h"
#include "controls/window_pixels.h"
#include "core/mouse_pointer.h"
#include "runtime/clock.h"

#include <cstdlib>
#include <utility>

namespace orvalis {

namespace {

constexpr qint64 RepaintMilliseconds = 80;
/// Work that is done sooner needs no bar.
constexpr qint64 PatienceMilliseconds = 250;
constexpr double Percent = 100;

/// The clock may be set meanwhile, in either direction.
bool apart(const QDateTime& one, const QDateTime& other, qint64 milliseconds) {
    return std::abs(one.msecsTo(other)) >= milliseconds;
}

} // namespace

LongWork::LongWork(QWidget& window, ProgressBar* bar, const Clock& clock)
    : m_window(window)
    , m_bar(bar)
    , m_clock(clock) {
    setMousePointer(MousePointer::Hourglass);
    m_window.repaint();
    m_began = m_clock.now();
    m_painted = m_began;
}

LongWork::~LongWork() {
    if (m_bar != nullptr) {
        m_bar->hide();
        m_bar->SetValue(0);
    }
    setMousePointer(MousePointer::Default);
}

rtf::Progress LongWork::part(double end) {
    const double begin = std::exchange(m_partEnd, end);
    return [this, begin, end](double share) { tell(begin + (end - begin) * share); };
}

void LongWork::tell(double share) {
    const QDateTime now = m_clock.now();
    if (!apart(m_painted, now, RepaintMilliseconds))
        return;
    if (m_bar != nullptr && apart(m_began, now, PatienceMilliseconds)) {
        m_bar->show();
        m_bar->PaintValue(static_cast<float>(Percent * share));
    } else {
        showPixelsAgain(m_window);
    }
    m_painted = m_clock.now();
}

} // namespace orvalis
