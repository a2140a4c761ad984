// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "skin/window_palette.h"

#include "skin/palette.h"

namespace orvalis::skin {

namespace {

QColor of(QRgb rgb) {
    return QColor::fromRgba(rgb);
}

} // namespace

QPalette windowPalette() {
    QPalette palette(of(0xFFDCEAEF), of(0xFFEFF6F8));
    palette.setColor(QPalette::Window, of(0xFFEFF6F8));
    palette.setColor(QPalette::WindowText, of(colour::Ink));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, of(0xFFF4F8F1));
    palette.setColor(QPalette::Text, of(colour::Text));
    palette.setColor(QPalette::PlaceholderText, of(colour::Quiet));
    palette.setColor(QPalette::Button, of(0xFFDCEAEF));
    palette.setColor(QPalette::ButtonText, of(colour::Ink));
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Highlight, of(colour::Sage));
    palette.setColor(QPalette::HighlightedText, of(0xFF14261B));
    palette.setColor(QPalette::Link, of(0xFF005F63));
    palette.setColor(QPalette::LinkVisited, of(colour::LabelInk));
    palette.setColor(QPalette::ToolTipBase, of(0xFFFBFDF6));
    palette.setColor(QPalette::ToolTipText, of(colour::Ink));
    palette.setColor(QPalette::Light, Qt::white);
    palette.setColor(QPalette::Midlight, of(0xFFE4EFF3));
    palette.setColor(QPalette::Mid, of(0xFFB7CED5));
    palette.setColor(QPalette::Dark, of(colour::Line));
    palette.setColor(QPalette::Shadow, of(0xFF4E8E9E));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, of(colour::DisabledText));
    palette.setColor(QPalette::Disabled, QPalette::Base, of(0xFFF1F3EF));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, of(colour::LineSoft));
    return palette;
}

} // namespace orvalis::skin
