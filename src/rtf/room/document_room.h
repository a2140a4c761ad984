// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/room/layout_height.h"

#include <QObject>
#include <QSet>
#include <QTextFormat>
#include <QTextOption>

class QTextCursor;
class QTextDocument;

namespace orvalis::rtf {

/// The most characters of a document; to lay out all of them takes some seconds, bit by bit.
inline constexpr int MostCharacters = 1 << 23;
/// The most paragraphs of a document. Each is looked at where one ahead of them changes its height.
inline constexpr int MostParagraphs = 1 << 18;
/// The most characters of a paragraph, which is laid out anew with each that is typed.
inline constexpr int LongestParagraph = 1 << 20;
/// The most fonts of a document: families in their sizes and styles. The system looks for each.
inline constexpr int MostFonts = 1 << 10;

/// How much more a document may hold, so that nothing of any length can hang its layout.
///
/// One object belongs to each document, however its content comes in: whoever inserts asks it (see
/// Intake), and it hears of all that changes, typing, undo and formats included. It keeps a sum
/// that is never less than the height told by layout_height.h: what came in counts, what went away
/// does not, and the document is counted anew when that leaves too little room. So the cost of an
/// edit does not grow with the document, but where the document is nearly full.
///
/// It also keeps lines with long words cheap, and those low in which letters of many sizes make one
/// word: while the document holds such a word, or too many of these, its lines break anywhere.
class DocumentRoom final : public QObject {
    Q_OBJECT

public:
    static DocumentRoom& of(QTextDocument& document);

    /// The height in pixels that may still come in. It is counted anew where a rough sum leaves
    /// less than is wanted.
    /// \param gathered what has been taken and does not stand in the document yet.
    double heightLeft(double wanted, double gathered = 0);
    /// The height that the document has at most, however narrow its lines become.
    /// \param letters that may come in too, or whose size others may take.
    double heightWithoutRoom(const LetterHeight& letters);
    /// Tells what comes in ahead of the document's own word, which waits for the end of an edit.
    void take(double height) { m_sum += height; }
    /// The sum, never less than the height that the document has.
    double sum() const { return m_sum; }
    /// Sets the sum back at the end of an edit in which all was taken, and of which the document
    /// has told once more.
    void setSum(double height) { m_sum = height; }
    /// For changes of which the document tells too little.
    void forget();

    /// Whether text may have this font: it has been there, or is not one too many.
    bool takesFont(const QTextCharFormat& format);

    /// Where the document's lines break: between words, or anywhere where its words ask for it.
    QTextOption::WrapMode wrapMode() const;

private:
    explicit DocumentRoom(QTextDocument& document);

    void takeChange(int from, int added);
    void contentsChanged();
    void learnFormats();
    double mostOfOne(LetterHeight letters);
    void breakLines();
    bool holdsLongWord(int from, int to) const;
    double heightLent(int from, int to) const;

    QTextDocument& m_document;
    double m_sum;
    bool m_told = false; ///< of the change that ends now
    bool m_breaksAnywhere = false;
    double m_lent = 0; ///< to lines by letters of other lines; never less than it is

    // What is known of the formats that the document ever had.
    qsizetype m_formatsKnown = 0;
    QTextFormat m_lastFormat;
    QSet<size_t> m_fonts;
    LetterHeight m_letters;
    double m_lineOfSize = 0; ///< of the letters that are raised most
    ParagraphShape m_shape;
    double m_pictures = 0;
};

/// A format for a selection, with its size made small enough for the document that it is set in;
/// one without a size loses what makes letters too wide for it.
QTextCharFormat fittingFormat(const QTextCursor& selection, QTextCharFormat format);
/// Whether the selection's paragraphs may have this format.
bool fitsParagraphs(const QTextCursor& selection, const QTextBlockFormat& format);
/// Whether their lines may be so much shorter.
bool fitsNarrower(const QTextCursor& selection, double pixels);

} // namespace orvalis::rtf
