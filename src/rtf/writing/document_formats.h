// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/formats.h"
#include "rtf/writing/lists_by_text.h"

#include <QHash>

#include <unordered_map>
#include <vector>

class QTextBlock;
class QTextCharFormat;
class QTextDocument;
class QTextFragment;
class QTextList;

namespace orvalis::rtf {

/// The formats of a document as they are written. Its runs and paragraphs share them, and so the
/// work on them.
class DocumentFormats {
public:
    /// \param names by which they are told.
    /// \param unnamedFamily of text that names no font.
    DocumentFormats(const QTextDocument& document, Names& names, int unnamedFamily);

    CharFormat look(const QTextCharFormat& format);
    const CharFormat& lookOf(const QTextFragment& run);
    /// \param run whose look has been asked for.
    bool isImage(const QTextFragment& run) const;

    /// Holds until another one is asked for.
    const ParagraphFormat& shapeOf(const QTextBlock& block);
    /// What a paragraph states, which has been changed. A list tells what the words of its items
    /// leave out.
    void tellWhatCounts(ParagraphFormat& paragraph) const;
    /// The number of a list item, which is counted along the way: each item must be asked for once,
    /// in their order. A list finds it only by going through all of them.
    int numberOf(const QTextBlock& block);

private:
    const QTextDocument& m_document;
    Names& m_names;
    int m_unnamedFamily;
    bool m_hasStyles;
    int m_countedOfCharacters; ///< of what is stated
    std::vector<char> m_known;
    std::vector<CharFormat> m_looks;
    std::vector<char> m_isImage;
    std::unordered_map<int, ParagraphFormat> m_shapes; ///< by the index of the format
    QHash<const QTextList*, int> m_items;
    ListsByText m_listsByText;
};

} // namespace orvalis::rtf
