// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringView>

#include <functional>

class QSocketNotifier;

namespace orvalis {

/// Hears of the ends that come from outside, for as long as it lives: the desktop asks at log-out
/// that all be kept, a signal (TERM, HUP, INT) comes, the display server goes away. There is one of
/// it at a time.
class OutsideEnd final : public QObject {
    Q_OBJECT
public:
    /// \param keep is called in the main thread, inside the event loop, when a log-out begins,
    /// which may still be called off, and when the display is lost, as the last thing that the
    /// program does. \param end is called there at a signal. \param displayIsLost tells whether a
    /// warning of the toolkit means that the display is gone.
    OutsideEnd(std::function<void()> keep, std::function<void()> end,
               std::function<bool(QStringView)> displayIsLost);
    ~OutsideEnd() override;

private:
    void watchSignals();
    void watchDisplay(std::function<bool(QStringView)> displayIsLost);

    std::function<void()> m_keep;
    std::function<void()> m_end;
    QSocketNotifier* m_signalled = nullptr;
};

} // namespace orvalis
