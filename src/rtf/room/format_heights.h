// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/room/layout_height.h"

#include <QFont>
#include <QHash>
#include <QTextBlock>
#include <QTextFormat>

#include <utility>

namespace orvalis::rtf {

/// The heights of the letters of a document's formats, each told once: a document has far more runs
/// than formats.
class FormatHeights {
public:
    using Teller = LetterHeight (*)(const QTextCharFormat&, const QFont&);

    struct Entry {
        LetterHeight letters;
        bool isPicture = false;
        double picture = 0; ///< its height in pixels
    };

    /// \param teller letterHeight or measuredHeight.
    /// \param changed a format that counts as if all had it too.
    FormatHeights(const QFont& defaultFont, Teller teller, QTextCharFormat changed = {})
        : m_defaultFont(defaultFont)
        , m_teller(teller)
        , m_changed(std::move(changed)) {}

    const Entry& of(const QTextFragment& run) {
        return of(
            run.charFormatIndex(), [&] { return run.charFormat(); });
    }
    /// Of a paragraph's mark.
    const Entry& of(const QTextBlock& paragraph) {
        return of(
            paragraph.charFormatIndex(), [&] { return paragraph.charFormat(); });
    }

private:
    template <class Format>
    const Entry& of(int index, Format&& formatOf) {
        if (index == m_lastIndex)
            return m_last;
        auto known = m_entries.constFind(index);
        if (known == m_entries.constEnd()) {
            QTextCharFormat format = formatOf();
            format.merge(m_changed);
            known =
                m_entries.insert(index, {m_teller(format, m_defaultFont), format.isImageFormat(),
                                         format.toImageFormat().height()});
        }
        m_lastIndex = index;
        m_last = *known;
        return m_last;
    }

    QFont m_defaultFont;
    Teller m_teller;
    QTextCharFormat m_changed;
    QHash<int, Entry> m_entries;
    int m_lastIndex = -1;
    Entry m_last;
};

} // namespace orvalis::rtf
