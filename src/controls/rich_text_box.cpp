// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/rich_text_box.h"

#include "controls/control_marks.h"
#include "controls/document_reading.h"
#include "controls/selection_format.h"
#include "controls/sign_fonts.h"
#include "controls/text_positions.h"
#include "controls/text_search.h"
#include "rtf/reader.h"
#include "rtf/room/document_room.h"
#include "rtf/writer.h"
#include "runtime/failure.h"
#include "runtime/text_file.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <exception>
#include <utility>

namespace orvalis {
namespace {

/// The bytes of RTF that came as a string. RTF is ASCII; any other character in it is spelled out.
QByteArray bytesOfRtf(const QString& rtf) {
    QByteArray bytes;
    bytes.reserve(rtf.size());
    for (const QChar c : rtf)
        if (c.unicode() < 0x80)
            bytes += char(c.unicode());
        else
            bytes += "{\\uc0\\u" + QByteArray::number(qint16(c.unicode())) + " }";
    return bytes;
}

} // namespace

RichTextBox::RichTextBox(QWidget* parent)
    : QTextEdit(parent)
    , m_usualTabs(document()->defaultTextOption().tabStopDistance())
    , m_positions(std::make_unique<TextPositions>(*document()))
    , m_undoKinds(std::make_unique<UndoKinds>()) {
    rtf::DocumentRoom::of(*document());
    [[maybe_unused]] static const bool signsShow = (showSignsInFontsOfLetters(), true);
    for (QScrollBar* bar : {verticalScrollBar(), horizontalScrollBar()})
        bar->setContextMenuPolicy(Qt::PreventContextMenu);
    connect(document(), &QTextDocument::contentsChange, this, &RichTextBox::takeChange);
    connect(document(), &QTextDocument::contentsChanged, this, [this] {
        m_undoKinds->stepsChanged(document()->availableUndoSteps(), m_movesThroughHistory);
    });
    connect(document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
            &RichTextBox::takeSize);
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this, [this] {
        m_clipboardFits.reset();
        emit CanPasteChanged();
    });
    connect(this, &QTextEdit::textChanged, this, &RichTextBox::tellChange);
    connect(this, &QTextEdit::cursorPositionChanged, this, &RichTextBox::tellSelection);
    connect(this, &QTextEdit::selectionChanged, this, &RichTextBox::tellSelection);
}

RichTextBox::~RichTextBox() {
    // The document's last words would reach members that are gone.
    document()->disconnect(this);
}

/// The document lays out what it tells of; what it left out would vanish from the window.
void RichTextBox::takeChange(int from, int removed, int added) {
    const int end = m_scatteredChange ? m_positions->manyContentsChanged(from, removed, added)
                                      : m_positions->contentsChanged(from, removed, added);
    if (end > from + added)
        document()->markContentsDirty(from + added, end - from - added);
    m_changeToTell = true;
}

/// A last letter that leans over the edge of its line is nothing to scroll to.
void RichTextBox::takeSize(const QSizeF& size) {
    constexpr int MostOverhang = 8; // pixels
    const bool leans =
        lineWrapMode() == WidgetWidth && size.width() <= viewport()->width() + MostOverhang;
    setHorizontalScrollBarPolicy(leans ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
}

// --- the whole document, but for what stands in rich_text_box_content.cpp

void RichTextBox::SetTextRTF(const QString& rtf) {
    const QByteArray bytes = bytesOfRtf(rtf);
    if (rtf::looksLikeRtf(bytes))
        SetTextRTF(bytes);
    else
        SetText(rtf);
}

QString RichTextBox::FontName() const {
    return document()->defaultFont().family();
}

void RichTextBox::SetFontName(const QString& family) {
    QFont font = document()->defaultFont();
    font.setFamilies({family});
    QTextCharFormat format;
    format.setFontFamilies({family});
    setBoxFont(font, format);
}

qreal RichTextBox::FontSize() const {
    return pointsOf(QTextCharFormat(), document()->defaultFont());
}

void RichTextBox::SetFontSize(qreal points) {
    requireProperty(points > 0);
    QFont font = document()->defaultFont();
    font.setPointSizeF(points);
    QTextCharFormat format;
    format.setFontPointSize(points);
    setBoxFont(font, format);
}

/// A font that is set up before anybody edits is nothing to undo.
void RichTextBox::setBoxFont(QFont font, QTextCharFormat format) {
    const bool fresh = m_batches == 0 && hasNoHistory();
    hold();
    const QTextCursor caret = editCursor();
    QTextCursor everything(document());
    everything.select(QTextCursor::Document);
    format = rtf::fittingFormat(everything, format);
    if (format.fontPointSize() > 0)
        font.setPointSizeF(format.fontPointSize());
    else if (!format.hasProperty(QTextFormat::FontFamilies))
        font.setFamilies(document()->defaultFont().families());
    setFont(font);
    everything.beginEditBlock();
    everything.mergeCharFormat(format);
    QTextCursor(document()).mergeBlockCharFormat(format);
    everything.endEditBlock();
    if (!caret.hasSelection())
        mergeFormat(format);
    if (fresh)
        forgetHistory();
    release();
}

// --- the selection

/// The cursor that edits go through: inside a batch one of its own, since moving the widget's would
/// lay the document out each time.
QTextCursor RichTextBox::editCursor() const {
    return m_batches > 0 ? m_batchCursor : textCursor();
}

void RichTextBox::takeCursor(const QTextCursor& cursor) {
    if (m_batches > 0)
        m_batchCursor = cursor;
    else
        setTextCursor(cursor);
}

void RichTextBox::editAt(QTextCursor cursor, const std::function<void(QTextCursor&)>& edit) {
    const int from = cursor.selectionStart();
    const int removed = cursor.selectionEnd() - from;
    hold();
    edit(cursor);
    if (m_batches > 0)
        m_positions->changedInBlock(from, removed, cursor.position() - from);
    takeCursor(cursor);
    release();
}

/// Until release(), nobody hears of a change: they would find a selection that is still on its way.
void RichTextBox::hold() {
    ++m_holds;
}

void RichTextBox::release() {
    if (--m_holds > 0)
        return;
    tellChange();
    tellSelection();
}

void RichTextBox::tellChange() {
    if (m_holds == 0 && std::exchange(m_changeToTell, false))
        emit Change();
}

void RichTextBox::tellSelection() {
    const QTextCursor cursor = textCursor();
    if (m_holds > 0 || (cursor.anchor() == m_toldAnchor && cursor.position() == m_toldPosition))
        return;
    m_toldAnchor = cursor.anchor();
    m_toldPosition = cursor.position();
    emit SelChange();
}

int RichTextBox::SelStart() const {
    return m_positions->indexOf(editCursor().selectionStart());
}

void RichTextBox::SetSelStart(int start) {
    requireProperty(start >= 0);
    QTextCursor cursor = editCursor();
    cursor.setPosition(m_positions->positionOf(start));
    takeCursor(cursor);
}

int RichTextBox::SelLength() const {
    const QTextCursor cursor = editCursor();
    return m_positions->indexOf(cursor.selectionEnd()) -
           m_positions->indexOf(cursor.selectionStart());
}

void RichTextBox::SetSelLength(int length) {
    requireProperty(length >= 0);
    QTextCursor cursor = editCursor();
    const int start = cursor.selectionStart();
    const int end = m_positions->indexOf(start) + std::min(length, m_positions->length());
    cursor.setPosition(start);
    cursor.setPosition(m_positions->positionOf(end), QTextCursor::KeepAnchor);
    takeCursor(cursor);
}

QString RichTextBox::SelText() const {
    const QTextCursor cursor = editCursor();
    return m_positions->between(cursor.selectionStart(), cursor.selectionEnd());
}

void RichTextBox::SetSelText(const QString& text) {
    if (text.isEmpty() && !editCursor().hasSelection())
        return;
    const QTextCharFormat format = formatAtStart(editCursor());
    const QTextCharFormat anchors = anchorsAtEnd(editCursor());
    editAt(editCursor(), [&](QTextCursor& cursor) {
        const int from = cursor.selectionStart();
        cursor.beginEditBlock();
        cursor.removeSelectedText();
        insertPlain(cursor, text, format);
        if (!anchors.isEmpty() && cursor.position() > from && !cursor.atBlockStart()) {
            QTextCursor last(cursor);
            last.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor);
            last.mergeCharFormat(anchors);
        }
        cursor.endEditBlock();
        cursor.setCharFormat(anchors.isEmpty() ? format : cursor.charFormat());
    });
}

QByteArray RichTextBox::SelRTF() const {
    const QTextCursor cursor = editCursor();
    return rtf::writeRtf(*document(), cursor.selectionStart(), cursor.selectionEnd());
}

void RichTextBox::SetSelRTF(const QByteArray& rtf) {
    if (!rtf::looksLikeRtf(rtf)) {
        SetSelText(decodeText(rtf));
        return;
    }
    editAt(editCursor(), [&](QTextCursor& cursor) { rtf::insertRtf(rtf, cursor, readOptions()); });
}

void RichTextBox::SetSelRTF(const QString& rtf) {
    const QByteArray bytes = bytesOfRtf(rtf);
    if (rtf::looksLikeRtf(bytes))
        SetSelRTF(bytes);
    else
        SetSelText(rtf);
}

// --- search

int RichTextBox::Find(const QString& text, int start, int end, int options) {
    if (m_batches == 0)
        m_positions->text(); // worth having as a whole: searches come in rows
    const TextSearch search{text, (options & rtfWholeWord) != 0, (options & rtfMatchCase) != 0};
    const int limit = end < 0 ? m_positions->length() : end;
    const int found = findText(*m_positions, search, std::max(start, 0), limit);
    if (found >= 0) {
        QTextCursor cursor = editCursor();
        cursor.setPosition(m_positions->positionOf(found));
        cursor.setPosition(m_positions->positionOf(found + int(text.size())),
                           QTextCursor::KeepAnchor);
        takeCursor(cursor);
    }
    return found;
}

// --- batches

RichTextBox::Batch::Batch(RichTextBox& box)
    : m_box(box) {
    m_box.beginBatch();
}

RichTextBox::Batch::~Batch() noexcept(false) {
    if (std::uncaught_exceptions() > m_exceptions)
        endSilently([this] { m_box.endBatch(); });
    else
        m_box.endBatch();
}

void RichTextBox::beginBatch() {
    hold();
    if (m_batches++ > 0)
        return;
    m_batchBeganBare = document()->isEmpty() && hasNoHistory();
    m_batchCursor = textCursor();
    m_batchCursor.beginEditBlock();
}

void RichTextBox::endBatch() {
    if (--m_batches == 0) {
        m_batchCursor.endEditBlock();
        m_positions->blockClosed();
        setTextCursor(m_batchCursor);
        m_batchCursor = QTextCursor();
        if (m_batchBeganBare && document()->isEmpty())
            forgetHistory();
    }
    release();
}

} // namespace orvalis
