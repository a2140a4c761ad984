// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/words/control_words.h"

#include <QtGlobal>

namespace orvalis::rtf {

/// What a word that is kept says something of. What it means nobody here knows; where it begins and
/// ends to hold does.
enum class KeptLevel : quint8 {
    Characters, ///< until \plain
    Paragraph,  ///< until \pard
    Row,        ///< until \trowd
    Cell,       ///< until \cellx
    Section,    ///< until \sectd
    Document,
    Border, ///< of whatever border was named last
};

enum class KeptKind : quint8 {
    Switch, ///< 0 takes it away again
    Number,
    Color,     ///< the number is an index of the colour table
    Style,     ///< the number is an entry of the style sheet
    Author,    ///< the number is an entry of the table of who changed the text
    Side,      ///< a border: what follows about borders belongs to it
    Font,      ///< the number is an entry of the font table
    Associate, ///< a number that holds for text of the other direction
    Direction, ///< of the text, which the words that have a form for each follow
    Script,    ///< of the text: a further font that follows belongs to it
};

struct KeptWord {
    KeptLevel level = KeptLevel::Document;
    KeptKind kind = KeptKind::Switch;
    int rivals = 0; ///< words of one number, but for 0, take each other's place
};

/// What a group that is kept as it came belongs to.
enum class KeptPlace : quint8 {
    Styles,
    Authors,
    Defaults, ///< looks that styles begin with
    Info,
    StarredInfo, ///< the same, in a group that readers may ignore
    Section,
    Notes,           ///< the document: what stands between text and footnotes
    Anchor,          ///< the character ahead of it
    StarredAnchor,   ///< the same, in a group that readers may ignore and that holds but a name
    StarredNote,     ///< the same, with text to read
    Picture,         ///< the picture that it stands in: its properties
    ListPictures,    ///< the list table: the pictures that are labels
    FontPanose,      ///< the entry of the font table: the measures of its face
    FontAlternative, ///< the same: another face
};

/// A word as the value of its entry in the table, and back.
/// Whether what stands there is anchored to a character.
constexpr bool isAnchor(KeptPlace place) {
    return place == KeptPlace::Anchor || place == KeptPlace::StarredAnchor ||
           place == KeptPlace::StarredNote;
}

constexpr int packed(const KeptWord& word) {
    return static_cast<int>(word.level) | static_cast<int>(word.kind) << 8 | word.rivals << 16;
}
constexpr KeptWord keptWord(const ControlWord& word) {
    return {static_cast<KeptLevel>(word.value & 0xff),
            static_cast<KeptKind>(word.value >> 8 & 0xff), word.value >> 16};
}

} // namespace orvalis::rtf
