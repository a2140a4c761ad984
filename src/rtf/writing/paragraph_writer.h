// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/formats.h"

namespace orvalis::rtf {

class RtfOutput;
class WriterTables;

/// Writes what stands at the start of a paragraph: its shape where it changes, and its label.
class ParagraphWriter {
public:
    ParagraphWriter(RtfOutput& out, WriterTables& tables)
        : m_out(out)
        , m_tables(tables) {}

    /// \param number of a numbered list item.
    void begin(const ParagraphFormat& paragraph, int number);
    /// The next paragraph tells its whole shape.
    void forget() { m_any = false; }
    /// The end of a group brings back the paragraph that was begun last ahead of it.
    void goBack(const ParagraphFormat& last) {
        m_last = last;
        forget();
    }
    /// The paragraph that was begun last.
    const ParagraphFormat& last() const { return m_last; }
    /// What the paragraph states of indents, spacing and alignment, and its tab stops.
    void geometry(const ParagraphFormat& paragraph);

private:
    void shape(const ParagraphFormat& paragraph);
    void tabs(const QList<TabStop>& tabs);
    void list(const ParagraphFormat& paragraph, const ListLabel& shown);
    void label(const ListLabel& label);
    void numbering(const ListLabel& label);
    void side(const ListLabel& label);
    void numberingText(QByteArrayView group, const QString& text);

    RtfOutput& m_out;
    WriterTables& m_tables;
    ParagraphFormat m_last;
    int m_lastNumber = 0;
    bool m_any = false;
};

} // namespace orvalis::rtf
