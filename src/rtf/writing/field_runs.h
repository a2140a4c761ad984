// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/kept/kept_text.h"

#include <QStringView>

namespace orvalis::rtf {

/// Goes through the runs of a paragraph that one field has, which shows their text by itself, or a
/// formula or a shape that does, and tells what they are by now.
class FieldRuns {
public:
    enum class Are {
        Shown,     ///< all that it shows, as it was read: it is written in place of them
        ShapeText, ///< what somebody has made of the text of a shape
        Text,      ///< no field any more
    };

    /// \param shown by the field; must outlive this.
    explicit FieldRuns(const KeptShown& shown)
        : m_shown(shown) {}

    /// The next run.
    /// \param length in characters.
    /// \param fitsShape whether its look can stand in what is kept of a shape.
    /// \param hasAnchors whether something is anchored behind it.
    void run(int length, bool fitsShape, bool hasAnchors);

    /// How long the runs are so far, in characters.
    int length() const { return m_length; }
    /// \param text of all of them.
    Are are(QStringView text) const;

private:
    const KeptShown& m_shown;
    int m_length = 0;
    bool m_fitsShape = true;
    bool m_endsWithAnchors = false;
};

} // namespace orvalis::rtf
