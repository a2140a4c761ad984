// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

#include <memory>
#include <vector>

namespace orvalis::rtf {

/// How wide the letters of a font are, and how high its lines: of those letters that stand one
/// beside the other whatever their neighbours are, as the Latin, Greek and Cyrillic ones do.
///
/// A letter is measured when somebody asks for it first.
class LetterWidths {
public:
    /// What is known of a font, for whoever asks for the same one. A font differs by its size too.
    static std::shared_ptr<LetterWidths> of(const QFont& font);

    explicit LetterWidths(const QFont& font);

    /// Of a line that holds nothing else, in whole pixels.
    double line() const { return m_line; }
    /// In pixels. Below 0 where the font has no such letter, or it is none of those.
    float of(char16_t c) {
        const int index = indexOf(c);
        if (index < 0)
            return Unknown;
        const float known = m_widths[size_t(index)];
        return known >= 0 || known == Unknown ? known : measure(c);
    }

private:
    static constexpr float Unknown = -1;
    static constexpr float NotAsked = -2;

    static constexpr char16_t FirstSign = 0x2010; // dashes, quotation marks and their like
    static constexpr char16_t BehindSigns = 0x2028;
    static constexpr char16_t FirstMeasured = 0x20;
    static constexpr char16_t BehindMeasured = 0x530;
    static constexpr char16_t Euro = 0x20ac;
    static constexpr int EuroIndex = BehindMeasured + BehindSigns - FirstSign;

    static constexpr int indexOf(char16_t c) {
        if (c < BehindMeasured)
            return c;
        if (c >= FirstSign && c < BehindSigns)
            return BehindMeasured + c - FirstSign;
        return c == Euro ? EuroIndex : -1;
    }

    float measure(char16_t c);

    QFont m_font;
    double m_line = 0;
    std::vector<float> m_widths;
};

} // namespace orvalis::rtf
