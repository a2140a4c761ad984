// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/rich_text_files.h"
#include "controls/undo_kind.h"
#include "rtf/progress.h"

#include <QByteArray>
#include <QString>
#include <QTextCursor>
#include <QTextEdit>

#include <exception>
#include <functional>
#include <memory>
#include <optional>

class QTextLine;

namespace orvalis {

class TextPositions;
class UndoKinds;

/// The control that holds every document of the program: rich text that is edited, searched, loaded
/// and saved (`RichTextFiles`), and printed (`RangeFormatter`).
///
/// A position is an index into Text(), where a line break is the two characters CR and LF and a
/// picture is one blank. Text() keeps every character that was set: control characters, a lone CR
/// and a lone LF show as small marks. What the program sets raises Change and SelChange like what
/// the user types.
class RichTextBox : public QTextEdit {
    Q_OBJECT

public:
    /// What files().LoadFile() and files().SaveFile() read and write.
    enum FileFlags : int { rtfRTF = 0, rtfText = 1 };
    /// Options of Find(), to be added up.
    enum FindOptions : int { rtfWholeWord = 2, rtfMatchCase = 4 };
    /// Values of SelAlignment; a justified paragraph can be read and set too.
    enum AlignmentValues : int { rtfLeft = 0, rtfRight = 1, rtfCenter = 2, rtfJustify = 3 };

    explicit RichTextBox(QWidget* parent = nullptr);
    ~RichTextBox() override;

    // --- the whole document

    /// The plain characters, without format.
    QString Text() const;
    /// Replaces everything by plain text that takes the format at the selection's start. The caret
    /// goes to the start and the history of undo is dropped.
    void SetText(const QString& text);
    /// The whole document as RTF.
    QByteArray TextRTF() const;
    /// Replaces everything by RTF; what is not RTF is taken as plain text, as by SetText().
    void SetTextRTF(const QByteArray& rtf);
    void SetTextRTF(const QString& rtf);

    /// A free string kept with the control.
    QString Tag() const { return m_tag; }
    void SetTag(const QString& tag) { m_tag = tag; }

    /// The font of the whole box: setting it changes all text and what is typed next.
    QString FontName() const;
    void SetFontName(const QString& family);
    /// In points.
    qreal FontSize() const;
    /// \throws RuntimeError InvalidPropertyValue unless above 0.
    void SetFontSize(qreal points);

    // --- the selection

    int SelStart() const;
    /// Puts the caret there and selects nothing. Beyond the end means the end; between CR and LF
    /// means ahead of both. \throws RuntimeError InvalidPropertyValue when negative.
    void SetSelStart(int start);
    int SelLength() const;
    /// \throws RuntimeError InvalidPropertyValue when negative.
    void SetSelLength(int length);
    QString SelText() const;
    /// Replaces the selection by plain text in the format at its start; the caret goes behind it.
    void SetSelText(const QString& text);
    /// The selection as RTF.
    QByteArray SelRTF() const;
    /// Replaces the selection by RTF, of which exactly one closing paragraph mark is dropped; what
    /// is not RTF is taken as plain text, as by SetSelText().
    void SetSelRTF(const QByteArray& rtf);
    void SetSelRTF(const QString& rtf);

    // Format of the selection, or of the caret and what is typed there. Reading gives nothing when
    // the selection is mixed.

    std::optional<bool> SelBold() const;
    void SetSelBold(bool on);
    std::optional<bool> SelItalic() const;
    void SetSelItalic(bool on);
    std::optional<bool> SelUnderline() const;
    void SetSelUnderline(bool on);
    std::optional<bool> SelStrikeThru() const;
    void SetSelStrikeThru(bool on);
    std::optional<QString> SelFontName() const;
    void SetSelFontName(const QString& family);
    /// In points.
    std::optional<qreal> SelFontSize() const;
    /// \throws RuntimeError InvalidPropertyValue unless above 0.
    void SetSelFontSize(qreal points);
    /// 0xBBGGRR; text without a colour of its own is 0. A colour of the system, with the top bit
    /// set, makes the text follow the window's own colour again.
    std::optional<quint32> SelColor() const;
    void SetSelColor(quint32 color);
    /// One of AlignmentValues.
    std::optional<int> SelAlignment() const;
    /// \throws RuntimeError InvalidPropertyValue for any other number.
    void SetSelAlignment(int alignment);
    /// The paragraphs' left indent in twips. A negative one is remembered, yet shows as none, so
    /// that no text leaves the window.
    std::optional<int> SelIndent() const;
    void SetSelIndent(int twips);
    std::optional<bool> SelBullet() const;
    void SetSelBullet(bool on);

    // --- files

    /// Loads and saves the document.
    RichTextFiles& files() { return m_files; }

    // --- search

    /// Selects the first match at or behind \a start that ends at or before \a end (-1: the end of
    /// the text). \returns its position, or -1 and the selection as it was.
    int Find(const QString& text, int start = 0, int end = -1, int options = 0);

    // --- editing

    bool CanUndo() const;
    void Undo();
    /// What the next Undo() takes back.
    UndoKind UndoType() const;
    /// Whether the clipboard offers anything that Paste() takes. It is asked once for each of its
    /// contents, so that whoever follows the text can ask at every key.
    bool CanPaste() const;
    void Cut();
    void Copy();
    void Paste();
    /// Replaces the selection by the picture that a file holds (its bytes), as a paste does.
    /// \throws RuntimeError InvalidPicture when it holds none; then nothing changes.
    void InsertPicture(const QByteArray& file);

    bool WordWrap() const;
    void SetWordWrap(bool on);

    /// Whether a right click opens the editing menu; a form with a menu of its own turns it off.
    bool editMenu() const;
    void setEditMenu(bool on);

    /// Whether a blank that does not break has a mark below it; elsewhere it looks like any blank.
    bool marksNoBreakBlanks() const;
    void setMarksNoBreakBlanks(bool on);

    /// Many edits as one: one step of undo, one layout, one Change and one SelChange at its end.
    /// Selection, SelText, SelRTF, formats and Find work inside as outside.
    class Batch {
    public:
        explicit Batch(RichTextBox& box);
        ~Batch() noexcept(false); // what is told at the end can fail in who hears it
        Q_DISABLE_COPY_MOVE(Batch)

    private:
        RichTextBox& m_box;
        int m_exceptions = std::uncaught_exceptions();
    };

    /// Somebody who hears, while it lives, how far long work on the document is: reading, loading,
    /// writing and saving it as RTF, and setting its text. What they paint meanwhile shows nothing
    /// of the box, which is not painted until then; its document may be in pieces.
    class Listener {
    public:
        Listener(RichTextBox& box, rtf::Progress progress);
        ~Listener();
        /// Hears of what follows in another way.
        void turnTo(rtf::Progress progress);
        Q_DISABLE_COPY_MOVE(Listener)

    private:
        RichTextBox& m_box;
    };

    /// The index in Text() of each place of the document.
    const TextPositions& positions() const { return *m_positions; }

signals:
    /// After each change of the content, also when the program sets it.
    void Change();
    /// After each change of the selection, also when the program sets it.
    void SelChange();
    /// After the clipboard changed, whoever changed it: CanPaste() may have.
    void CanPasteChanged();
    /// After a mouse button was pressed and let go inside the text.
    void Click();
    /// When a mouse button goes down inside the text, before the caret follows it.
    void MouseDown(Qt::MouseButton button);
    /// The key that opens menus was pressed in a box without its editing menu.
    /// \param place below the caret, on the screen.
    void menuAskedByKey(QPoint place);

protected:
    bool canInsertFromMimeData(const QMimeData* source) const override;
    QMimeData* createMimeDataFromSelection() const override;
    void insertFromMimeData(const QMimeData* source) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class RichTextFiles;

    // These would go round the rules above.
    using QTextEdit::append;
    using QTextEdit::clear;
    using QTextEdit::copy;
    using QTextEdit::cut;
    using QTextEdit::find;
    using QTextEdit::insertHtml;
    using QTextEdit::insertPlainText;
    using QTextEdit::mergeCurrentCharFormat;
    using QTextEdit::paste;
    using QTextEdit::print;
    using QTextEdit::redo;
    using QTextEdit::setAlignment;
    using QTextEdit::setCurrentCharFormat;
    using QTextEdit::setCurrentFont;
    using QTextEdit::setDocument;
    using QTextEdit::setFontFamily;
    using QTextEdit::setFontItalic;
    using QTextEdit::setFontPointSize;
    using QTextEdit::setFontUnderline;
    using QTextEdit::setFontWeight;
    using QTextEdit::setHtml;
    using QTextEdit::setMarkdown;
    using QTextEdit::setPlainText;
    using QTextEdit::setText;
    using QTextEdit::setTextBackgroundColor;
    using QTextEdit::setTextColor;
    using QTextEdit::toPlainText;
    using QTextEdit::undo;

    void takeChange(int from, int removed, int added);
    void takeSize(const QSizeF& size);
    QTextCursor editCursor() const;
    void takeCursor(const QTextCursor& cursor);
    void editAt(QTextCursor cursor, const std::function<void(QTextCursor&)>& edit);
    bool replaceEverything(const QString& text, QTextCharFormat format, QTextBlockFormat paragraph);
    bool takeRtf(const QByteArray& rtf);
    void contentWasSet(const QTextCharFormat& format);
    void mergeFormat(const QTextCharFormat& wanted);
    void setBoxFont(QFont font, QTextCharFormat format);
    bool hasNoHistory() const;
    void forgetHistory();
    void formatSelection(const std::function<void(QTextCursor&)>& change);
    void beginTyping();
    void moveThroughHistory(const std::function<void()>& move);
    void changeScattered(const std::function<void()>& change);
    void typeParagraphEnd();
    void typeText(QKeyEvent* event);
    QString signsAt(const QTextCursor& cursor, const QString& text) const;
    bool dropsOntoItself(const QDropEvent& event) const;
    void tellChange();
    void tellSelection();
    void hold();
    void release();
    void beginBatch();
    void endBatch();
    QTextCharFormat selectionFormat() const;
    void drawNoBreakMarks(QPainter& painter, const QRectF& clip);

    const qreal m_usualTabs; ///< pixels
    QString m_tag;
    RichTextFiles m_files{*this};
    bool m_editMenu = true;
    bool m_marksNoBreakBlanks = false;
    bool m_movesThroughHistory = false;
    bool m_batchBeganBare = false;  ///< with neither text nor history
    bool m_scatteredChange = false; ///< one step changes several places, in any order
    int m_batches = 0;
    int m_holds = 0;
    bool m_changeToTell = false;
    int m_toldAnchor = 0;
    int m_toldPosition = 0;
    QTextCursor m_batchCursor;
    mutable std::optional<bool> m_clipboardFits; ///< unknown until it is asked
    rtf::Progress m_progress;
    std::unique_ptr<TextPositions> m_positions;
    std::unique_ptr<UndoKinds> m_undoKinds;
};

} // namespace orvalis
