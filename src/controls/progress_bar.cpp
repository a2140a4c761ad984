// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/progress_bar.h"

#include "controls/window_pixels.h"
#include "runtime/failure.h"

namespace orvalis {

namespace {

constexpr int RepaintMilliseconds = 80;

} // namespace

ProgressBar::ProgressBar(const QString& name, QWidget* parent)
    : QProgressBar(parent) {
    setObjectName(name);
    setRange(0, 100);
    setValue(0);
    setTextVisible(false);
    m_painted.start();
}

void ProgressBar::SetValue(float value) {
    takeValue(value);
    if (m_painted.elapsed() >= RepaintMilliseconds && isVisible())
        PaintValue(value);
}

void ProgressBar::PaintValue(float value) {
    takeValue(value);
    repaint();
    showPixelsAgain(*this);
}

void ProgressBar::takeValue(float value) {
    if (!(value >= static_cast<float>(minimum()) && value <= static_cast<float>(maximum())))
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    m_value = value;
    const int whole = static_cast<int>(value);
    if (whole != this->value()) {
        // The base paints at each whole percent, whatever that costs; here it only takes note.
        const bool updates = updatesEnabled();
        setUpdatesEnabled(false);
        setValue(whole);
        setUpdatesEnabled(updates);
    }
}

void ProgressBar::paintEvent(QPaintEvent* event) {
    m_painted.restart();
    QProgressBar::paintEvent(event);
}

} // namespace orvalis
