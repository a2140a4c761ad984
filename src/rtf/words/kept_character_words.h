// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/words/kept_entry.h"

namespace orvalis::rtf::detail {

/// What is kept of characters.
constexpr auto keptCharacterWords() {
    using enum KeptLevel;
    using enum KeptKind;
    return std::to_array<KeptEntry>({
        {"af", Characters, Font},
        {"afs", Characters, Associate},
        {"ab", Characters, Associate},
        {"ai", Characters, Associate},
        {"alang", Characters, Associate},
        {"ltrch", Characters, Direction, RunDirection},
        {"rtlch", Characters, Direction, RunDirection},
        {"loch", Characters, Script},
        {"hich", Characters, Script},
        {"dbch", Characters, Script},
        {"cs", Characters, Style},
        {"lang", Characters, Number},
        {"langfe", Characters, Number},
        {"langnp", Characters, Number},
        {"langfenp", Characters, Number},
        {"noproof", Characters, Switch},
        {"kerning", Characters, Number},
        {"charscalex", Characters, Number},
        {"outl", Characters, Switch},
        {"shad", Characters, Switch},
        {"embo", Characters, Switch},
        {"impr", Characters, Switch},
        {"ulc", Characters, Color},
        {"animtext", Characters, Number},
        {"accnone", Characters, Switch, Emphasis},
        {"accdot", Characters, Switch, Emphasis},
        {"acccomma", Characters, Switch, Emphasis},
        {"acccircle", Characters, Switch, Emphasis},
        {"accunderdot", Characters, Switch, Emphasis},
        {"chshdng", Characters, Number},
        {"chcfpat", Characters, Color},
        {"chbghoriz", Characters, Switch, CharacterPattern},
        {"chbgvert", Characters, Switch, CharacterPattern},
        {"chbgfdiag", Characters, Switch, CharacterPattern},
        {"chbgbdiag", Characters, Switch, CharacterPattern},
        {"chbgcross", Characters, Switch, CharacterPattern},
        {"chbgdcross", Characters, Switch, CharacterPattern},
        {"chbgdkhoriz", Characters, Switch, CharacterPattern},
        {"chbgdkvert", Characters, Switch, CharacterPattern},
        {"chbgdkfdiag", Characters, Switch, CharacterPattern},
        {"chbgdkbdiag", Characters, Switch, CharacterPattern},
        {"chbgdkcross", Characters, Switch, CharacterPattern},
        {"chbgdkdcross", Characters, Switch, CharacterPattern},
        {"fittext", Characters, Number},
        {"gcw", Characters, Number},
        {"horzvert", Characters, Number},
        {"twoinone", Characters, Number},
        {"nosectexpand", Characters, Switch},
        {"protect", Characters, Switch},
        {"webhidden", Characters, Switch},
        {"cgrid", Characters, Number},
        {"chbrdr", Characters, Side},
        {"revised", Characters, Switch},
        {"revauth", Characters, Author},
        {"revdttm", Characters, Number},
        {"mvf", Characters, Switch},
        {"mvt", Characters, Switch},
        {"mvauth", Characters, Author},
        {"mvdate", Characters, Number},
        {"crauth", Characters, Author},
        {"crdate", Characters, Number},
    });
}

} // namespace orvalis::rtf::detail
