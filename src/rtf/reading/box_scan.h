// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

namespace orvalis::rtf {

/// What a look ahead tells of the text of a box.
struct BoxScan {
    bool shows = false;         ///< it has anything to show
    bool isCertain = false;     ///< that it shows, and not only perhaps
    bool endsSection = false;   ///< one of the document
    bool endsCell = false;      ///< of a row that does not end in it
    bool holdsMore = false;     ///< that may show, or tells of the document
    bool endsParagraph = false; ///< its last paragraph has a word that ends it
    qsizetype end = 0;          ///< of what belongs to it
};

/// \param content of the text's group, behind its first word.
BoxScan scanBox(QByteArrayView content);

} // namespace orvalis::rtf
