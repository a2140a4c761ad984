// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "driver/driven_program.h"

#include <QImage>

namespace orvalis::test {

/// The letters on a light ground, as the display shows them.
struct Ink {
    int all = 0; ///< pixels that are mostly letter
    int red = 0;
    int blue = 0;
};

/// The ink on a control that shows whole; none where no picture could be taken.
inline Ink inkOn(driver::DrivenProgram& program, const QString& control) {
    const QString file = program.binFolder() + QStringLiteral("/ink.png");
    driver::sleepMilliseconds(400); // until it is painted
    const QRect place = program.control(control).rect;
    Ink ink;
    if (!program.takePicture(file))
        return ink;
    const QImage picture = QImage(file).copy(place);
    constexpr int Half = 128;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            if (qGreen(pixel) >= Half)
                continue;
            ++ink.all;
            ink.red += qRed(pixel) >= Half && qBlue(pixel) < Half ? 1 : 0;
            ink.blue += qBlue(pixel) >= Half && qRed(pixel) < Half ? 1 : 0;
        }
    }
    return ink;
}

/// The ink of the same lines in ordinary letters: they are typed into a sticker that was just made.
inline Ink plainInk(driver::DrivenProgram& program, const QStringList& lines) {
    const QString text = QStringLiteral("frmstick/Text1");
    if (!program.waitVisible(text) || !program.click(text))
        return {};
    for (const QString& line : lines) {
        program.type(line);
        if (line != lines.last())
            program.key(QStringLiteral("Return"));
    }
    return program.waitText(text, lines.join(u'\n')) ? inkOn(program, text) : Ink();
}

/// Bold letters have that much more ink at the least; a full colour alone makes up to a sixth.
constexpr double BoldOverPlain = 1.35;

} // namespace orvalis::test
