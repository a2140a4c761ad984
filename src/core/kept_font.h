// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis {

class Registry;
class RichTextBox;
class Screen;

/// The font of a rich text box as the settings keep it from run to run: its name in `FN`, its size
/// in `FS` of a section. The size is the one before the layout's scaling, so that it survives any
/// number of runs on any screen.
class KeptFont {
public:
    KeptFont(Registry& settings, const QString& section, const Screen& screen);

    /// Gives the box the font that is kept, before the layout scales it: "Arial" and 8 points where
    /// none is. A size that is none is passed over.
    void load(RichTextBox& box);
    /// Keeps the font of the box's selection, as the layout has scaled it. Where the selection is
    /// mixed, the name or size kept last stays.
    void store(const RichTextBox& box);

private:
    int sizeToKeep(double pointSize) const;

    Registry& m_settings;
    QString m_section;
    const Screen& m_screen;
    double m_size = 8; ///< `FS` as it was read or written last
};

} // namespace orvalis
