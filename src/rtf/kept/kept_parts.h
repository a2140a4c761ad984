// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/font_face.h"
#include "rtf/formats/formats.h"

#include <QMap>
#include <QMetaType>
#include <QRgb>
#include <QString>
#include <QStringList>

class QTextBlockFormat;
class QTextCharFormat;
class QTextDocument;

namespace orvalis::rtf {

/// The language of text in a file that tells of none.
inline constexpr int UsualLanguage = 1033;

/// The view of a document that tells of none: as text, without pages.
inline constexpr int UsualView = 4;

/// Where colours come from, as it is kept (see kept_text.h): nothing for most.
using ColorThemes = QMap<QRgb, QString>;

/// What is kept of a whole document, as the file had it (see kept_text.h).
struct KeptParts {
    int language = UsualLanguage; ///< of text that names none, by Windows' numbers
    int viewKind = UsualView;     ///< how the document is shown, by the numbers of RTF
    QString defaults;             ///< looks that styles begin with
    QString styles;
    QString authors;         ///< who changed the text
    QString furtherDefaults; ///< fonts of text that names none, beside the one of unnamedFamily
    QString info;
    QString words;
    QString notes;         ///< what stands between text and footnotes
    QString section;       ///< the first one
    bool nameless = false; ///< the file does not say what wrote it
    DefaultFont defaultFont = DefaultFont::Unknown;
    QString unnamedFamily; ///< of text that names no font; empty for that of whoever shows it
    /// Families that are fonts of signs, or are not, where their names tell otherwise.
    QStringList oddFamilies;
    QString listPictures; ///< that are the labels of lists
    FontFaces faces;
    ColorThemes themes;

    bool operator==(const KeptParts&) const = default;
};

/// What is kept of the file that a document was read from. Whoever replaces the whole content by
/// something else takes it away.
KeptParts keptParts(const QTextDocument& document);
void setKeptParts(QTextDocument& document, const KeptParts& parts);

/// Takes away what is kept of a run or a paragraph, with what it shows.
void clearKept(QTextCharFormat& format);
void clearKept(QTextBlockFormat& format);

} // namespace orvalis::rtf

Q_DECLARE_METATYPE(orvalis::rtf::KeptParts)
