// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/interface_scale.h"

#include "platform/child_environment.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>

namespace orvalis {

namespace {

constexpr double DrawnWidth = 800;
constexpr double DrawnHeight = 600;
constexpr double StepsToOne = 8;
/// A screen that fits exactly must not lose a step to a quotient's last digit.
constexpr double Slack = 1e-6;

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

double userFactor() {
    bool valid = false;
    const double factor = qgetenv(ScaleVariable).trimmed().toDouble(&valid);
    return valid && factor > 0 ? factor : 1;
}

double applyInterfaceScale(std::optional<QSizeF> screen) {
    const double scale = screen ? interfaceScale(screen->width(), screen->height()) : 1.0;
    measuredSize() = screen.value_or(QSizeF()) / scale;
    if (scale > 1.0)
        setForUsAlone(ScaleVariable, QByteArray::number(userFactor() * scale));
    return scale;
}

void withdrawInterfaceScale() {
    giveBack(ScaleVariable);
}

QSizeF unroundedSize(QSize told) {
    return measuredSize().toSize() == told ? measuredSize() : QSizeF(told);
}

} // namespace orvalis
