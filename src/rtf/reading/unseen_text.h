// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/words/control_words.h"

#include <QByteArrayView>

namespace orvalis::rtf {

/// Whether a word tells how characters look, and nothing more.
bool isLook(const ControlWord& word);

/// Why a text does not show.
enum class UnseenAs : quint8 {
    Deleted, ///< a tracked change has taken it out
    Hidden,  ///< as an entry of an index may be
};

/// Whether there is text, none of which shows, and nothing that tells of what is around it. What
/// was taken out may have pictures and ends of paragraphs as well; in hidden text they count.
/// \param content of a group, behind a word.
/// \param as what hides that.
/// \param isUnseen whether it does so where the content begins.
bool holdsUnseenAlone(QByteArrayView content, UnseenAs as, bool isUnseen);

} // namespace orvalis::rtf
