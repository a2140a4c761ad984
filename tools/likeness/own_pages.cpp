// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "own_pages.h"

#include "controls/format_range.h"
#include "controls/rich_text_box.h"

#include <QFont>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace orvalis::likeness {

namespace {

constexpr double TwipsPerPoint = 20;
constexpr int DotsPerInch = 1200;

/// The number behind a word where it comes first in the file.
int numberOf(const QByteArray& rtf, const char* word, int usual) {
    const QRegularExpression pattern(u"\\\\%1(\\d{1,6})(?!\\d)"_s.arg(QLatin1StringView(word)));
    const QRegularExpressionMatch match = pattern.match(QString::fromLatin1(rtf));
    return match.hasMatch() ? match.captured(1).toInt() : usual;
}

QSizeF paperOf(const QByteArray& rtf) {
    constexpr int Narrowest = 1440;
    constexpr int Widest = 44640;
    const int width = numberOf(rtf, "pgwsxn", numberOf(rtf, "paperw", 12240));
    const int height = numberOf(rtf, "pghsxn", numberOf(rtf, "paperh", 15840));
    return QSizeF(std::clamp(width, Narrowest, Widest), std::clamp(height, Narrowest, Widest));
}

constexpr char16_t SixthOfEm = 0x2006;

/// The last blank of a run stays as it is, for what is behind it may stand closer to it. The others
/// become wider by its share, too.
void widenRunsOfBlanks(QTextDocument& document) {
    constexpr double PixelsPerPoint = 96.0 / 72;
    constexpr double Share = 1.0 / 6; // of the size, for each blank
    QTextCursor cursor(&document);
    const auto isBlank = [&](int at) { return document.characterAt(at) == u' '; };
    for (int at = 0; at < document.characterCount(); ++at) {
        int end = at;
        while (isBlank(end))
            ++end;
        const int blanks = end - at;
        for (; end - at > 1; ++at) {
            cursor.setPosition(at);
            cursor.setPosition(at + 1, QTextCursor::KeepAnchor);
            const QTextCharFormat format = cursor.charFormat();
            QTextCharFormat wide;
            wide.setFontLetterSpacingType(QFont::AbsoluteSpacing);
            wide.setFontLetterSpacing(format.fontLetterSpacing() + format.fontPointSize() *
                                                                       PixelsPerPoint * Share *
                                                                       blanks / (blanks - 1));
            cursor.mergeCharFormat(wide);
        }
    }
}

qsizetype groupLength(const QByteArray& rtf, qsizetype start) {
    qsizetype end = start;
    int depth = 0;
    do {
        if (rtf[end] == '\\')
            ++end;
        else if (rtf[end] == '{' || rtf[end] == '}')
            depth += rtf[end] == '{' ? 1 : -1;
        ++end;
    } while (depth > 0 && end < rtf.size());
    return end - start;
}

} // namespace

QRectF textArea(const QByteArray& rtf) {
    const auto margin = [&](const char* ofSection, const char* ofDocument) {
        return numberOf(rtf, ofSection, numberOf(rtf, ofDocument, 1440));
    };
    return QRectF(QPointF(0, 0), paperOf(rtf))
        .adjusted(margin("marglsxn", "margl"), margin("margtsxn", "margt"),
                  -margin("margrsxn", "margr"), -margin("margbsxn", "margb"));
}

namespace {

/// The instructions of fields that LibreOffice fills anew: what is left of the field is its result.
void removeFilledFields(QByteArray& rtf) {
    static const QRegularExpression filled(
        u"\\b(FILENAME|DATE|TIME|SAVEDATE|PRINTDATE|CREATEDATE|EDITTIME|AUTONUM\\w*|NUMCHARS|"
        "NUMWORDS|NUMPAGES|DOCPROPERTY|COMMENTS)\\b"_s,
        QRegularExpression::CaseInsensitiveOption);
    for (const QByteArray instruction : {"{\\*\\fldinst", "{\\fldinst"})
        for (qsizetype at = rtf.indexOf(instruction); at >= 0; at = rtf.indexOf(instruction, at)) {
            const qsizetype length = groupLength(rtf, at);
            if (filled.match(QString::fromLatin1(rtf.mid(at, length))).hasMatch())
                rtf.remove(at, length);
            else
                ++at;
        }
}

/// Takes the groups that begin with a pattern out. Their braces stay, for they part what is around
/// them.
/// \returns whether there were any.
bool emptyGroups(QByteArray& rtf, const QRegularExpression& start) {
    QByteArray rest;
    qsizetype kept = 0;
    auto starts = start.globalMatch(QString::fromLatin1(rtf));
    while (starts.hasNext()) {
        const qsizetype at = starts.next().capturedStart();
        if (at < kept)
            continue; // within another one
        rest += rtf.sliced(kept, at - kept) + "{}";
        kept = at + groupLength(rtf, at);
    }
    rest += rtf.sliced(kept);
    return std::exchange(rtf, rest).size() != rtf.size();
}

void removeHeads(QByteArray& rtf) {
    static const QRegularExpression head(u"\\{\\\\(header|footer)[lrf]?(?![a-z])"_s);
    emptyGroups(rtf, head);
}

void removeNotes(QByteArray& rtf) {
    static const QRegularExpression note(u"\\{(\\\\\\*)?\\\\footnote(?![a-z])"_s);
    static const QRegularExpression mark(u"\\\\chftn(?![a-z]) ?"_s);
    if (emptyGroups(rtf, note))
        rtf = QString::fromLatin1(rtf).remove(mark).toLatin1();
}

} // namespace

QByteArray asShown(QByteArray rtf) {
    removeFilledFields(rtf);
    removeHeads(rtf);
    removeNotes(rtf);
    return rtf;
}

bool widensBlanks(const QByteArray& text) {
    return QString::fromUtf8(text).contains(QChar(SixthOfEm));
}

void printOwnPages(const QByteArray& rtf, const QString& path, bool wideBlanks,
                   const QString& family) {
    RichTextBox box;
    // LibreOffice takes what the system has in place of that font, whether it has the signs or not.
    QFont::removeSubstitutions(u"Symbol"_s);
    box.SetFontName(family);
    box.SetTextRTF(rtf);
    if (wideBlanks)
        widenRunsOfBlanks(*box.document());
    const QSizeF paper = paperOf(rtf);
    const QRectF text = textArea(rtf);
    if (text.width() < 1440 || text.height() < 1440)
        return;
    QPdfWriter writer(path);
    writer.setResolution(DotsPerInch);
    writer.setPageLayout(
        QPageLayout(QPageSize(paper / TwipsPerPoint, QPageSize::Point, {}, QPageSize::ExactMatch),
                    QPageLayout::Portrait, {}));
    QPainter painter(&writer);
    FormatRange range;
    range.painter = &painter;
    range.rect = text;
    const int length = int(box.Text().size());
    RangeFormatter pages(box);
    for (;;) {
        const int next = pages.FormatPage(range);
        if (next >= length)
            break;
        range.first = next;
        writer.newPage();
    }
}

bool standsAside(const QByteArray& rtf) {
    static const QRegularExpression aside(
        u"\\\\(trowd|intbl|cellx|shptxt|dptxbxtext|shpinst|frmtxtbrl|frmtxtbtlr|stextflow[1-9]|"
        "txflow|pvpara|absw|posx|posy|phpg|cols[2-9]|nestcell)"_s);
    return aside.match(QString::fromLatin1(rtf)).hasMatch();
}

} // namespace orvalis::likeness
