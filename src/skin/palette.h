// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include <cstdint>

namespace orvalis::skin {

/// The colours of the skin: an ice-blue case, warm paper, sage for what is selected, teal for what
/// is under the pointer.
namespace colour {

inline constexpr QRgb IceLight = 0xFFF8FCFF;
inline constexpr QRgb Ice = 0xFFCFE5EC;
inline constexpr QRgb IceDeep = 0xFF86BDCB;
inline constexpr QRgb Line = 0xFF8DB9C4;     ///< the edge of fields and frames
inline constexpr QRgb LineSoft = 0xFFC9D8D8; ///< the edge of what is disabled, lines inside lists
inline constexpr QRgb Sage = 0xFFB0C8A0;     ///< behind what is selected
inline constexpr QRgb Found = 0xFFFFE9A8;    ///< behind words that were looked for
inline constexpr QRgb SageLight = 0xFFE4EEDB;
inline constexpr QRgb Green = 0xFF5E8C46;    ///< the one spot of colour in an icon
inline constexpr QRgb Teal = 0xFF008080;     ///< what is under the pointer
inline constexpr QRgb TealInk = 0xFF00565B;  ///< words under the pointer, on every ground
inline constexpr QRgb TealSoft = 0xFF4C9DA5; ///< the edge of a field under the pointer
inline constexpr QRgb TealMist = 0xFFDDF0EF;
inline constexpr QRgb Paper = 0xFFFFFDF7;
inline constexpr QRgb PaperEdge = 0xFFEFE8D5;
inline constexpr QRgb Ink = 0xFF1F4E59;      ///< captions of buttons and frames
inline constexpr QRgb TitleInk = 0xFF1F5E6B; ///< the title of a panel
inline constexpr QRgb LabelInk = 0xFF2B6C7A; ///< labels that can be pressed
inline constexpr QRgb Text = 0xFF1C2E33;     ///< what the user writes and reads
inline constexpr QRgb Quiet = 0xFF546F76;    ///< hints, days of other months
inline constexpr QRgb DisabledText = 0xFF9DB0B4;
inline constexpr QRgb GlassText = 0xFFD9F4F7;
inline constexpr QRgb GlassAlarm = 0xFF9FD3CF;
inline constexpr QRgb StickerInk = 0xFF33502A;
inline constexpr QRgb StickerEdge = 0xFF86A572;
inline constexpr QRgb StickerQuiet = 0xFF4A6340;

} // namespace colour

/// A colour as the skinned button stores it: red in the low byte, blue in the high one.
constexpr std::uint32_t colourValue(QRgb rgb) {
    return (rgb & 0xFFU) << 16U | (rgb & 0xFF00U) | (rgb >> 16U & 0xFFU);
}

/// What a skinned button is given to look like the rest of the window it stands in.
struct ButtonLook {
    std::uint32_t backColor;
    std::uint32_t gradientFromColor;
    std::uint32_t gradientToColor;
    std::uint32_t foreColor;
    std::uint32_t fontColorOnHover;
    bool alwaysShowBorder;
};

/// Buttons on pages and in dialogs.
inline constexpr ButtonLook PageButton{colourValue(0xFFB4CED8),      colourValue(0xFFF2F9FB),
                                       colourValue(0xFFB5D4DE),      colourValue(colour::Ink),
                                       colourValue(colour::TealInk), true};
inline constexpr ButtonLook DialogButton = PageButton;
/// The row of buttons that chooses a sub-panel; the chosen one is sage.
inline constexpr ButtonLook MenuTab{colourValue(0xFFBAD0D8),      colourValue(0xFFF4FAFC),
                                    colourValue(0xFFCBE0E8),      0x000000,
                                    colourValue(colour::TealInk), true};
inline constexpr ButtonLook MenuTabSelected{colourValue(0xFFA3BC92),      colourValue(0xFFEEF4EA),
                                            colourValue(colour::Sage),    0xC00000,
                                            colourValue(colour::TealInk), true};
/// Buttons on the head of a sticker: the face continues the head's own gradient, which is so gentle
/// there that the one colour of a button's rim lies unseen on it.
inline constexpr ButtonLook StickerButton{
    colourValue(0xFFB8CFA8),         colourValue(0xFFBCD2AD),      colourValue(0xFFB4CCA4),
    colourValue(colour::StickerInk), colourValue(colour::TealInk), false};

} // namespace orvalis::skin
