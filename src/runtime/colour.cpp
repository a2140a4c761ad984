// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/colour.h"

#include <QGuiApplication>
#include <QPalette>

namespace orvalis {

namespace {

constexpr ColourValue SystemBit = 0x80000000U;

/// The palette's role for each of the system's colour indexes.
QPalette::ColorRole roleOf(quint32 index) {
    switch (index) {
    case 0x05: // window
        return QPalette::Base;
    case 0x08: // window text
        return QPalette::Text;
    case 0x04: // menu
    case 0x0F: // button face
        return QPalette::Button;
    case 0x07: // menu text
    case 0x12: // button text
        return QPalette::ButtonText;
    case 0x06: // window frame
    case 0x09: // caption text
    case 0x13: // inactive caption text
        return QPalette::WindowText;
    case 0x02: // active caption
    case 0x0D: // highlight
        return QPalette::Highlight;
    case 0x0E: // highlighted text
        return QPalette::HighlightedText;
    case 0x10: // button shadow
    case 0x11: // greyed text
        return QPalette::Dark;
    case 0x14: // 3D highlight
        return QPalette::Light;
    case 0x15: // 3D dark shadow
        return QPalette::Shadow;
    case 0x16: // 3D light
        return QPalette::Midlight;
    case 0x17: // tool tip text
        return QPalette::ToolTipText;
    case 0x18: // tool tip background
        return QPalette::ToolTipBase;
    case 0x00: // scroll bar
    case 0x01: // desktop
    case 0x03: // inactive caption
    case 0x0A: // active border
    case 0x0B: // inactive border
    case 0x0C: // application workspace
        return QPalette::Window;
    default:
        return QPalette::NoRole;
    }
}

} // namespace

QColor toQColor(ColourValue value, const QPalette& palette) {
    if (value & SystemBit) {
        const QPalette::ColorRole role = roleOf(value & ~SystemBit);
        return role == QPalette::NoRole ? QColor(Qt::black) : palette.color(QPalette::Active, role);
    }
    return QColor(static_cast<int>(value & 0xFF), static_cast<int>(value >> 8 & 0xFF),
                  static_cast<int>(value >> 16 & 0xFF));
}

QColor toQColor(ColourValue value) {
    return toQColor(value, QGuiApplication::palette());
}

ColourValue fromQColor(const QColor& colour) {
    const QColor rgb = colour.toRgb();
    return static_cast<ColourValue>(rgb.red()) | static_cast<ColourValue>(rgb.green()) << 8 |
           static_cast<ColourValue>(rgb.blue()) << 16;
}

} // namespace orvalis
