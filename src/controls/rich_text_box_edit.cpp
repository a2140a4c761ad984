// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/clipboard_content.h"
#include "controls/document_reading.h"
#include "controls/edit_menu.h"
#include "controls/rich_clipboard.h"
#include "controls/rich_text_box.h"
#include "controls/selection_format.h"
#include "controls/text_positions.h"
#include "rtf/characters/control_marks.h"
#include "rtf/characters/symbol_font.h"
#include "rtf/formats/format_properties.h"
#include "rtf/kept/kept_shape.h"
#include "rtf/kept/kept_text.h"
#include "rtf/pictures/picture_format.h"
#include "rtf/room/document_room.h"
#include "rtf/room/intake.h"
#include "runtime/failure.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextDocument>

#include <optional>

// What the user does to the text: keys, pointer, clipboard, undo.

namespace orvalis {
namespace {

bool deletes(const QKeyEvent& event) {
    for (const auto key :
         {QKeySequence::Delete, QKeySequence::DeleteStartOfWord, QKeySequence::DeleteEndOfWord,
          QKeySequence::DeleteEndOfLine, QKeySequence::DeleteCompleteLine, QKeySequence::Backspace})
        if (event.matches(key))
            return true;
    return event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete;
}

bool types(const QKeyEvent& event) {
    const bool command = event.modifiers() & (Qt::ControlModifier | Qt::MetaModifier);
    return !command && !event.text().isEmpty() && event.text().front().isPrint();
}

/// Keys that bring no text have none, or that of a command.
bool writes(const QKeyEvent& event) {
    return !deletes(event) && !event.text().isEmpty() &&
           (types(event) || event.key() == Qt::Key_Tab || event.key() == Qt::Key_Return ||
            event.key() == Qt::Key_Enter);
}

/// The toolkit knows one key for it on each desktop; people bring the other one along.
bool redoes(const QKeyEvent& event) {
    return event.matches(QKeySequence::Redo) || event.keyCombination() == (Qt::CTRL | Qt::Key_Y);
}

/// Where a backspace would take the bullet away, and with it the room that the bullet hangs in.
bool atBullet(const QTextCursor& cursor) {
    return !cursor.hasSelection() && cursor.atBlockStart() && hasBullet(cursor.block());
}

/// Whether the cursor stands in the midst of what shares one value of the property.
bool isWithin(const QTextCursor& cursor, int property) {
    if (cursor.atBlockStart() || cursor.atBlockEnd())
        return false;
    QTextCursor next(cursor);
    next.setPosition(cursor.position() + 1);
    return next.charFormat().property(property) == cursor.charFormat().property(property);
}

/// What is typed at the end of a field would go when the field is worked out anew, and behind an
/// entry of an index others would not show it. The text of a shape has nothing behind it.
bool leavesField(const QTextCursor& cursor, const QTextCharFormat& format) {
    if (!format.hasProperty(rtf::KeptField) || isWithin(cursor, rtf::KeptField))
        return false;
    const QString field = format.stringProperty(rtf::KeptField);
    const std::optional<rtf::KeptShown> shown = rtf::shownBy(field);
    return !shown || !rtf::isShapeInLine(shown->group);
}

/// What is anchored to a word's end goes on with the word, and stays where it is when anything else
/// follows.
bool leavesAnchors(const QTextCursor& cursor, const QTextCharFormat& format, const QString& typed) {
    return format.hasProperty(rtf::KeptAnchors) && !typed.isEmpty() &&
           !typed.front().isLetterOrNumber() && !isWithin(cursor, rtf::KeptAnchors);
}

/// What is typed behind a mark is no mark, and in text that somebody else has brought in it is not
/// theirs. \returns whether the cursor's format changed.
bool leaveMarks(QTextCursor& cursor, const QString& typed) {
    const QTextCharFormat before = cursor.charFormat();
    QTextCharFormat format = before;
    format.clearProperty(rtf::ControlMarks);
    format.clearProperty(rtf::CellShape);
    if (leavesAnchors(cursor, before, typed))
        format.clearProperty(rtf::KeptAnchors);
    if (leavesField(cursor, before))
        format.clearProperty(rtf::KeptField);
    if (const QString kept = format.stringProperty(rtf::KeptOfCharacters); rtf::isTracked(kept))
        format.setProperty(rtf::KeptOfCharacters, rtf::withoutTracked(kept));
    if (format == before)
        return false;
    cursor.setCharFormat(format);
    return true;
}

/// Where Tab leaves the box, Control and Tab writes one.
bool writesTab(const QKeyEvent& event) {
    return event.key() == Qt::Key_Tab && event.modifiers() == Qt::ControlModifier;
}

} // namespace

bool RichTextBox::CanUndo() const {
    return document()->isUndoAvailable();
}

void RichTextBox::Undo() {
    moveThroughHistory([this] { undo(); });
}

void RichTextBox::moveThroughHistory(const std::function<void()>& move) {
    const QScopedValueRollback history(m_movesThroughHistory, true);
    changeScattered(move);
}

/// The text ahead of the change tells how far it reached.
void RichTextBox::changeScattered(const std::function<void()>& change) {
    m_positions->text();
    const QScopedValueRollback scattered(m_scatteredChange, true);
    change();
    rtf::DocumentRoom::of(*document()).forget();
}

UndoKind RichTextBox::UndoType() const {
    return m_undoKinds->kindOfNext();
}

bool RichTextBox::CanPaste() const {
    if (isReadOnly())
        return false;
    if (!m_clipboardFits) {
        const QMimeData* const offered = clipboardContent();
        if (!offered)
            return false; // an owner that is silent now may tell more later
        m_clipboardFits = canInsertFromMimeData(offered);
    }
    return *m_clipboardFits;
}

void RichTextBox::Cut() {
    if (isReadOnly() || !editCursor().hasSelection())
        return;
    Copy();
    const UndoKindScope kind(*m_undoKinds, UndoKind::Cut);
    SetSelText(QString());
}

void RichTextBox::Copy() {
    if (editCursor().hasSelection())
        QApplication::clipboard()->setMimeData(createMimeDataFromSelection());
}

void RichTextBox::Paste() {
    const QMimeData* offered = clipboardContent();
    if (!offered)
        return;
    const UndoKindScope kind(*m_undoKinds, UndoKind::Paste);
    insertFromMimeData(offered);
}

void RichTextBox::InsertPicture(const QByteArray& file) {
    const UndoKindScope kind(*m_undoKinds, UndoKind::Paste);
    QTextCursor cursor = editCursor();
    const int from = cursor.selectionStart();
    const int removed = cursor.selectionEnd() - from;
    rtf::PictureBounds bounds;
    hold();
    const bool taken = rtf::insertPicture(cursor, file, readOptions().metafiles, bounds);
    if (taken && m_batches > 0)
        m_positions->changedInBlock(from, removed, cursor.position() - from);
    if (taken)
        takeCursor(cursor);
    release();
    if (!taken)
        throw RuntimeError(ErrorNumber::InvalidPicture);
    ensureCursorVisible();
}

bool RichTextBox::canInsertFromMimeData(const QMimeData* source) const {
    return canTake(*source);
}

QMimeData* RichTextBox::createMimeDataFromSelection() const {
    return clipboardData(editCursor(), SelText()).release();
}

void RichTextBox::insertFromMimeData(const QMimeData* source) {
    if (isReadOnly() || !source)
        return;
    const QTextCharFormat format = formatAtStart(editCursor());
    editAt(editCursor(), [&](QTextCursor& cursor) { takeClipboard(*source, cursor, format); });
    ensureCursorVisible();
}

void RichTextBox::keyPressEvent(QKeyEvent* event) {
    if (writes(*event) && !rtf::hasRoomFor(editCursor(), event->text())) {
        event->accept();
        return;
    }
    // The editing keys go the way of the members, so that both do the same.
    if (event->matches(QKeySequence::Cut)) {
        Cut();
    } else if (event->matches(QKeySequence::Copy)) {
        Copy();
    } else if (event->matches(QKeySequence::Paste)) {
        Paste();
    } else if (event->matches(QKeySequence::Undo) && !isReadOnly()) {
        Undo();
    } else if (redoes(*event) && !isReadOnly()) {
        moveThroughHistory([this] { redo(); });
    } else if (event->key() == Qt::Key_Backspace && atBullet(editCursor()) && !isReadOnly()) {
        const UndoKindScope kind(*m_undoKinds, UndoKind::Delete);
        SetSelBullet(false);
    } else if (event->matches(QKeySequence::InsertParagraphSeparator) && !isReadOnly()) {
        const UndoKindScope kind(*m_undoKinds, UndoKind::Typing);
        typeParagraphEnd();
    } else if (writesTab(*event) && tabChangesFocus() && !isReadOnly()) {
        const UndoKindScope kind(*m_undoKinds, UndoKind::Typing);
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, QStringLiteral("\t"));
        typeText(&tab);
    } else if (types(*event) && !isReadOnly()) {
        const UndoKindScope kind(*m_undoKinds, UndoKind::Typing);
        typeText(event);
    } else {
        const UndoKindScope kind(*m_undoKinds,
                                 deletes(*event) ? UndoKind::Delete : UndoKind::Typing);
        if (!deletes(*event))
            beginTyping();
        QTextEdit::keyPressEvent(event);
        return;
    }
    event->accept();
}

/// The document would take what is typed for one step with the insertion ahead of it, whatever that
/// was; it does so only where it has changed since it counted as unmodified.
void RichTextBox::beginTyping() {
    if (UndoType() != UndoKind::Typing)
        document()->setModified(false);
}

/// What is typed in a font of signs is the signs, as what a file has in it is.
QString RichTextBox::signsAt(const QTextCursor& cursor, const QString& text) const {
    const QString family = familyOf(formatAtStart(cursor), document()->defaultFont());
    return rtf::inSigns(rtf::symbolFontOf(family), text);
}

/// What is typed over a selection takes the format at its start; the editor's own way would ask at
/// which end the caret stands.
void RichTextBox::typeText(QKeyEvent* event) {
    QTextCursor cursor = editCursor();
    beginTyping();
    const QString text = signsAt(cursor, event->text());
    if (cursor.hasSelection()) {
        SetSelText(text);
        ensureCursorVisible();
        return;
    }
    if (leaveMarks(cursor, text))
        takeCursor(cursor);
    if (text == event->text()) {
        QTextEdit::keyPressEvent(event);
        return;
    }
    QKeyEvent sign(event->type(), event->key(), event->modifiers(), text, event->isAutoRepeat());
    QTextEdit::keyPressEvent(&sign);
}

/// The new paragraph goes on in the format of the old one; the editor's own way would go back to no
/// format at all behind an empty line. An empty item ends its list.
void RichTextBox::typeParagraphEnd() {
    if (atBullet(editCursor()) && editCursor().block().length() == 1) {
        SetSelBullet(false);
        return;
    }
    editAt(editCursor(), [](QTextCursor& cursor) {
        const QTextCharFormat format = formatAtStart(cursor);
        const QTextBlockFormat paragraph = paragraphBehind(cursor);
        cursor.beginEditBlock();
        cursor.removeSelectedText();
        cursor.insertBlock(paragraph, format);
        cursor.endEditBlock();
        cursor.setCharFormat(format);
    });
}

/// As typeText(): what is composed over a selection takes the format at its start, whether it comes
/// at once or is shown before it is committed.
void RichTextBox::inputMethodEvent(QInputMethodEvent* event) {
    if (isReadOnly()) {
        event->ignore();
        return;
    }
    const UndoKindScope kind(*m_undoKinds, UndoKind::Typing);
    QTextCursor cursor = editCursor();
    if (!rtf::hasRoomFor(cursor, event->commitString())) {
        event->accept();
        return;
    }
    const bool writes = !event->commitString().isEmpty() || !event->preeditString().isEmpty();
    if (writes && cursor.hasSelection() && event->replacementLength() == 0) {
        SetSelText(event->commitString());
        QInputMethodEvent rest(event->preeditString(), event->attributes());
        QTextEdit::inputMethodEvent(&rest);
        event->accept();
        return;
    }
    if (writes && leaveMarks(cursor, event->commitString()))
        takeCursor(cursor);
    QTextEdit::inputMethodEvent(event);
}

/// Text that is put back onto itself stays as it is, in its selection.
bool RichTextBox::dropsOntoItself(const QDropEvent& event) const {
    const QTextCursor selection = editCursor();
    const int place = cursorForPosition(event.position().toPoint()).position();
    return event.source() == viewport() && event.dropAction() == Qt::MoveAction &&
           place >= selection.selectionStart() && place <= selection.selectionEnd();
}

void RichTextBox::dropEvent(QDropEvent* event) {
    if (dropsOntoItself(*event)) {
        QDragLeaveEvent gone;
        dragLeaveEvent(&gone);
        event->ignore();
        return;
    }
    const UndoKindScope kind(*m_undoKinds, UndoKind::DragDrop);
    changeScattered([&] { QTextEdit::dropEvent(event); });
    // A file that was dropped stays where it is; whoever offered it is to leave it there.
    if (event->isAccepted() && event->mimeData()->hasUrls())
        event->setDropAction(Qt::CopyAction);
}

void RichTextBox::mousePressEvent(QMouseEvent* event) {
    emit MouseDown(event->button());
    QTextEdit::mousePressEvent(event);
}

void RichTextBox::mouseReleaseEvent(QMouseEvent* event) {
    QTextEdit::mouseReleaseEvent(event);
    if (viewport()->rect().contains(event->position().toPoint()))
        emit Click();
}

bool RichTextBox::WordWrap() const {
    return lineWrapMode() != NoWrap;
}

void RichTextBox::SetWordWrap(bool on) {
    setWordWrapMode(rtf::DocumentRoom::of(*document()).wrapMode());
    if (!on)
        setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setLineWrapMode(on ? WidgetWidth : NoWrap);
}

bool RichTextBox::editMenu() const {
    return m_editMenu;
}

void RichTextBox::setEditMenu(bool on) {
    m_editMenu = on;
}

void RichTextBox::contextMenuEvent(QContextMenuEvent* event) {
    if (!m_editMenu) {
        if (event->reason() == QContextMenuEvent::Keyboard)
            emit menuAskedByKey(viewport()->mapToGlobal(cursorRect().bottomLeft()));
        event->ignore();
        return;
    }
    const bool writable = !isReadOnly();
    const bool selected = editCursor().hasSelection();
    popUpEditMenu(*this, event->globalPos(),
                  {.undo = {writable && CanUndo(), [this] { Undo(); }},
                   .cut = {writable && selected, [this] { Cut(); }},
                   .copy = {selected, [this] { Copy(); }},
                   .paste = {CanPaste(), [this] { Paste(); }},
                   .remove = {writable && selected,
                              [this] {
                                  const UndoKindScope kind(*m_undoKinds, UndoKind::Delete);
                                  SetSelText(QString());
                              }},
                   .selectAll = {!document()->isEmpty(), [this] { selectAll(); }}});
    event->accept();
}

} // namespace orvalis
