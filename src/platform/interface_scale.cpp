// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/interface_scale.h"

#include "platform/display_probe.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace orvalis {

namespace {

constexpr double DrawnWidth = 800;
constexpr double DrawnHeight = 600;
constexpr double StepsToOne = 8;
/// A screen that fits exactly must not lose a step to a quotient's last digit.
constexpr double Slack = 1e-6;

/// The user's scale factor while ours stands in its place.
std::optional<QByteArray>& replacedFactor() {
    static std::optional<QByteArray> factor;
    return factor;
}

/// The size of the screen that the scale was made for, in scaled units.
QSizeF& measuredSize() {
    static QSizeF size;
    return size;
}

} // namespace

double interfaceScale(double width, double height) {
    const double fitting = std::min(width / DrawnWidth, height / DrawnHeight);
    return std::max(1.0, std::floor(fitting * StepsToOne + Slack) / StepsToOne);
}

double applyInterfaceScale() {
    const std::optional<QSizeF> screen = primaryScreenSize();
    const double scale = screen ? interfaceScale(screen->width(), screen->height()) : 1.0;
    measuredSize() = screen.value_or(QSizeF()) / scale;
    if (scale > 1.0 && !replacedFactor()) {
        replacedFactor() = qgetenv(ScaleVariable);
        qputenv(ScaleVariable, QByteArray::number(userFactor() * scale));
    }
    return scale;
}

void withdrawInterfaceScale() {
    releaseX11Screen();
    if (!replacedFactor())
        return;
    if (replacedFactor()->isEmpty())
        qunsetenv(ScaleVariable);
    else
        qputenv(ScaleVariable, *replacedFactor());
    replacedFactor().reset();
}

QSizeF unroundedSize(QSize told) {
    return measuredSize().toSize() == told ? measuredSize() : QSizeF(told);
}

QByteArray userScaleFactor() {
    return replacedFactor().value_or(qgetenv(ScaleVariable));
}

} // namespace orvalis
