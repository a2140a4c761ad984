// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace orvalis {

class Image;

/// Rescales every control of a form once, at load, by the ratio between the width at which the form
/// was drawn and the width of its background picture, and its fonts by a factor of the screen's
/// width. It keeps no memory of what it did: calling it twice scales twice.
class clsResize {
public:
    /// \param screenWidth the width of the screen, `GetSystemMetrics(0)`.
    explicit clsResize(int screenWidth)
        : m_screenWidth(screenWidth) {}

    /// Scales the controls of \a frm, those inside its frames and picture boxes too. Both widths
    /// are in twips; without a current width the geometry stays. Images named like one of the three
    /// kept ones (any of them may be null) only move. What has no objectName, what belongs to a
    /// composite control, and kinds of control that the layout doesn't know keep their geometry and
    /// font.
    void ResizeForm(QWidget& frm, int designWidth, int currentWidth, const Image* keepA = nullptr,
                    const Image* keepB = nullptr, const Image* keepC = nullptr) const;

private:
    int m_screenWidth;
};

} // namespace orvalis
