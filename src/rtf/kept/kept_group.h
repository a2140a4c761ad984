// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/characters/font_table.h"
#include "rtf/words/group_head.h"
#include "rtf/words/rtf_output.h"
#include "rtf/words/tokenizer.h"

#include <QList>

#include <vector>

namespace orvalis::rtf {

/// What the numbers in a group stand for.
struct FileTables {
    const FontTable& fonts;
    const QList<QRgb>& colors;
    const Names& names;
    const CodePage& page;
    const CodePage& usualPage; ///< of text that names no font
    SymbolFont usualSymbols;   ///< that its font is
    int unicodeSkip = 1;       ///< bytes behind a character's number that stand for it
};

/// Copies a group of RTF in the one spelling of what is kept (see kept_text.h): what is copied and
/// read again is copied the same.
class GroupKeeper {
public:
    /// \param content what stands behind the group's first word, up to its closing brace.
    GroupKeeper(QByteArrayView content, const FileTables& tables);

    /// Comes first, where the text around the group counts for what begins in it: its page, and the
    /// signs that its font is. Else it begins as text that names no font.
    void beginIn(const CodePage& page, SymbolFont symbols);

    /// \param opening what stands ahead of the first word, with its backslash.
    /// \returns nothing when it would be longer than the limit.
    QString kept(QByteArrayView opening, QByteArrayView word, qsizetype limit);

private:
    struct Group {
        const CodePage* page = nullptr;
        int unicodeSkip = 1;
        bool symbols = false;
        bool picture = false;
        bool inPicture = false; ///< the same, or a group in one
    };

    void take(const Token& token);
    void openGroup();
    void closeGroup();
    void word(const Token& token);
    void symbol(uchar character);
    void unicode(char32_t character);
    void number(char16_t unit);
    void selectFont(const Token& token);
    void bytes(QByteArrayView run);
    void pictureBytes(QByteArrayView run);
    void flushPending();
    void decode(QByteArrayView run);
    void text(QStringView text);
    void plain();
    void copy(const Token& token);
    QByteArray spelled(const Token& token) const;

    Tokenizer m_tokenizer;
    const FileTables& m_tables;
    RtfOutput m_out;
    GroupHead m_head{false};
    std::vector<Group> m_groups;
    Group m_state;
    QByteArray m_pending;
    int m_fallbackToSkip = 0;
};

} // namespace orvalis::rtf
