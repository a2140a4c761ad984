// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/writing/field_runs.h"

#include <algorithm>

namespace orvalis::rtf {

namespace {

/// Whether a character is spelled alike in what is kept of a shape and in text that is written.
bool fitsShapeAsItIs(QChar character) {
    return (character >= u' ' || character == u'\t') &&
           character != QChar::ObjectReplacementCharacter;
}

} // namespace

/// What is anchored behind the last run comes behind the shape; nothing can between two of them.
void FieldRuns::run(int length, bool fitsShape, bool hasAnchors) {
    m_fitsShape = m_fitsShape && fitsShape && !m_endsWithAnchors;
    m_endsWithAnchors = hasAnchors;
    m_length += length;
}

FieldRuns::Are FieldRuns::are(QStringView text) const {
    if (text == m_shown.text)
        return Are::Shown;
    const bool isShapeText = m_fitsShape && !m_shown.frame.isEmpty() &&
                             std::all_of(text.begin(), text.end(), fitsShapeAsItIs);
    return isShapeText ? Are::ShapeText : Are::Text;
}

} // namespace orvalis::rtf
