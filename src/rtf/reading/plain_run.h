// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/words/control_words.h"

#include <QByteArrayView>

namespace orvalis::rtf {

/// Whether a word tells how characters look, and nothing more.
bool isLook(const ControlWord& word);

/// Whether there is text, and nothing but text in its looks.
/// \param content of a group, behind a word.
bool isPlainRun(QByteArrayView content);

} // namespace orvalis::rtf
