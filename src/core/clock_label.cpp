// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/clock_label.h"

#include "skin/type.h"

#include <QFontDatabase>
#include <QPainter>
#include <QStyle>

namespace orvalis {

namespace {

constexpr int SideRoom = 2; // pixels

} // namespace

ClockLabel::ClockLabel(const QString& name, QWidget* parent)
    : Label(name, {}, parent) {}

void ClockLabel::useClockFont(int points) {
    const QString clockFamily = QStringLiteral("Digital SF");
    QFont clockFont = skin::font(points, font().bold());
    if (QFontDatabase::hasFamily(clockFamily))
        clockFont.setFamilies(QStringList{clockFamily} + clockFont.families());
    clockFont.setLetterSpacing(font().letterSpacingType(), font().letterSpacing());
    setFont(clockFont);
}

void ClockLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    // A text that just fits would touch what stands beside the label.
    const QSize room = contentsRect().size() - QSize(2 * SideRoom, 0);
    painter.setFont(skin::fitted(font(), Caption(), room));
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                          isEnabled(), Caption(), foregroundRole());
}

} // namespace orvalis
