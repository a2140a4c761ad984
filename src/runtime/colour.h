// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

class QPalette;

namespace orvalis {

/// A colour as the program keeps it: 0xBBGGRR, or, with the top bit set, the index of a colour of
/// the system.
using ColourValue = quint32;

constexpr ColourValue systemColour(quint32 index) {
    return 0x80000000U | index;
}

constexpr ColourValue ButtonShadowColour = systemColour(0x10);
constexpr ColourValue ButtonFaceColour = systemColour(0x0F);
constexpr ColourValue ButtonTextColour = systemColour(0x12);
constexpr ColourValue Highlight3DColour = systemColour(0x14);
constexpr ColourValue ToolTipTextColour = systemColour(0x17);
constexpr ColourValue ToolTipBackgroundColour = systemColour(0x18);

/// The colour to paint with; the system's colours come from the palette. An index that names no
/// colour is black. Bits between the top one and the three bytes of a plain colour are ignored.
QColor toQColor(ColourValue value, const QPalette& palette);
/// The same with the application's palette.
QColor toQColor(ColourValue value);

/// 0xBBGGRR of a colour; its opacity is not kept.
ColourValue fromQColor(const QColor& colour);

} // namespace orvalis
