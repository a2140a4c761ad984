// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/reading/sink.h"

#include <QMetaType>

class QTextBlockFormat;
class QTextCharFormat;
class QTextDocument;

namespace orvalis::rtf {

/// What is kept of the file that a document was read from. Whoever replaces the whole content by
/// something else takes it away.
KeptParts keptParts(const QTextDocument& document);
void setKeptParts(QTextDocument& document, const KeptParts& parts);

/// Takes away what is kept of a run or a paragraph, with what it shows.
void clearKept(QTextCharFormat& format);
void clearKept(QTextBlockFormat& format);

} // namespace orvalis::rtf

Q_DECLARE_METATYPE(orvalis::rtf::KeptParts)
