// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/progress.h"

#include <QByteArray>

class QTextDocument;

namespace orvalis::rtf {

/// The document as RTF: 7-bit, in code page 1252 with \u for the rest, every paragraph ended. The
/// same document always gives the same bytes.
/// \param progress hears how much of the document is written.
QByteArray writeRtf(const QTextDocument& document, const Progress& progress = {});

/// A part of the document as RTF, ended by one paragraph mark that a reader drops when it inserts.
/// \param from,to positions of a text cursor, in any order; held to the document.
QByteArray writeRtf(const QTextDocument& document, int from, int to);

} // namespace orvalis::rtf
