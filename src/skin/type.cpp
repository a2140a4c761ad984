// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "skin/type.h"

#include <QFontMetricsF>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace orvalis::skin {

namespace {

constexpr qreal Smallest = 5;
constexpr qreal Step = 0.5;

} // namespace

QFont font(int points, bool bold) {
    QFont font;
    font.setFamilies({u"Arial"_s, u"Liberation Sans"_s, u"DejaVu Sans"_s});
    font.setPointSize(points);
    font.setBold(bold);
    return font;
}

QFont fitted(const QFont& font, const QString& text, QSizeF box) {
    QFont smaller = font;
    const auto fits = [&] {
        const QFontMetricsF metrics(smaller);
        return metrics.horizontalAdvance(text) <= box.width() && metrics.height() <= box.height();
    };
    while (!fits() && smaller.pointSizeF() - Step >= Smallest)
        smaller.setPointSizeF(smaller.pointSizeF() - Step);
    return smaller;
}

} // namespace orvalis::skin
