// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/rich_text_box.h"
#include "support/test_main.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTimer>

#include <functional>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

/// How many paragraphs begin a page.
int pagesBegun(const RichTextBox& box) {
    int count = 0;
    for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next())
        count += block.blockFormat().pageBreakPolicy() == QTextFormat::PageBreak_AlwaysBefore;
    return count;
}

/// What an input method sends while something is composed, and when it is done.
void compose(RichTextBox& box, const QString& shown, const QString& committed = {}) {
    QInputMethodEvent event(shown, {});
    event.setCommitString(committed);
    QApplication::sendEvent(&box, &event);
}

template <class Box>
constexpr bool Clears = requires(Box& box) {
    box.clear();
};
template <class Box>
constexpr bool Finds = requires(Box& box) {
    box.find(QString());
};
template <class Box>
constexpr bool Prints = requires(Box& box) {
    box.print(nullptr);
};
template <class Box>
constexpr bool TakesDocuments = requires(Box& box) {
    box.setDocument(nullptr);
};
template <class Box>
constexpr bool Aligns = requires(Box& box) {
    box.setAlignment(Qt::AlignLeft);
};
template <class Box>
constexpr bool TakesFonts = requires(Box& box) {
    box.setCurrentFont(QFont());
};
template <class Box>
constexpr bool TakesFormats = requires(Box& box) {
    box.setCurrentCharFormat({});
};
template <class Box>
constexpr bool TakesColours = requires(Box& box) {
    box.setTextColor(QColor());
};

// The toolkit's own ways to the text keep none of the control's rules.
static_assert(Clears<QTextEdit> && !Clears<RichTextBox>);
static_assert(Finds<QTextEdit> && !Finds<RichTextBox>);
static_assert(Prints<QTextEdit> && !Prints<RichTextBox>);
static_assert(TakesDocuments<QTextEdit> && !TakesDocuments<RichTextBox>);
static_assert(Aligns<QTextEdit> && !Aligns<RichTextBox>);
static_assert(TakesFonts<QTextEdit> && !TakesFonts<RichTextBox>);
static_assert(TakesFormats<QTextEdit> && !TakesFormats<RichTextBox>);
static_assert(TakesColours<QTextEdit> && !TakesColours<RichTextBox>);

} // namespace

class RichTextBoxEditTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void undoTakesBackStepByStep();
    void undoReachesBackOverManySteps();
    void undoKindsFollowWhatWasDone();
    void kindsSurviveUndoAndRedo();
    void bothKeysOfRedoWork_data();
    void bothKeysOfRedoWork();
    void kindsHaveTheirNames();
    void typedFormatsCanBeUndone();
    void whatIsTypedOverASelectionTakesTheFormatAtItsStart();
    void aMarkTypedBehindAControlCharacterIsNoCode();
    void composingLeavesTheTextAsItIsUntilItIsCommitted();
    void composingReplacesTheSelection();
    void whatIsCommittedOverASelectionTakesTheFormatAtItsStart();
    void aReadOnlyBoxTakesNothingComposed();
    void backspaceAtABulletTakesTheBulletAndItsRoom();
    void emptyLinesKeepTheFormat();
    void aParagraphBehindOneThatBeginsAPageBeginsNone();
    void anEmptyItemEndsItsList();

    void theEditMenuOpensUnlessTurnedOff();
    void theEditMenuEnablesWhatCanBeDone();
    void clicksAndPressesAreTold();
};

void RichTextBoxEditTest::init() {
    QApplication::clipboard()->clear();
}

void RichTextBoxEditTest::undoTakesBackStepByStep() {
    RichTextBox box;
    QVERIFY(!box.CanUndo());
    box.Undo();
    box.SetSelText(u"one"_s);
    box.SetSelText(u" two"_s);
    box.selectAll();
    box.SetSelBold(true);
    QVERIFY(box.CanUndo());
    box.Undo();
    box.selectAll();
    QCOMPARE(box.SelBold(), std::optional(false));
    QCOMPARE(box.Text(), u"one two"_s);
    while (box.CanUndo())
        box.Undo();
    QCOMPARE(box.Text(), QString());
}

void RichTextBoxEditTest::undoReachesBackOverManySteps() {
    constexpr int Steps = 300;
    RichTextBox box;
    QStringList texts{QString()};
    for (int i = 0; i < Steps; ++i) {
        box.SetSelStart(0);
        box.SetSelText(QString::number(i) + u' ');
        texts << box.Text();
    }
    for (int i = Steps; i > 0; --i) {
        QVERIFY(box.CanUndo());
        box.Undo();
        QCOMPARE(box.Text(), texts.at(i - 1));
    }
    QVERIFY(!box.CanUndo());
    for (int i = 1; i <= Steps; ++i)
        QTest::keySequence(&box, QKeySequence::Redo);
    QCOMPARE(box.Text(), texts.last());
}

void RichTextBoxEditTest::undoKindsFollowWhatWasDone() {
    RichTextBox box;
    QCOMPARE(box.UndoType(), UndoKind::LastAction);
    QTest::keyClicks(&box, u"words"_s);
    QCOMPARE(box.UndoType(), UndoKind::Typing);
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.UndoType(), UndoKind::Typing);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QCOMPARE(box.UndoType(), UndoKind::Delete);
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.UndoType(), UndoKind::Typing);
    QTest::keyClick(&box, Qt::Key_Backspace);
    box.SetSelStart(0);
    box.SetSelLength(2);
    box.Cut();
    QCOMPARE(box.UndoType(), UndoKind::Cut);
    box.Paste();
    QCOMPARE(box.UndoType(), UndoKind::Paste);
    box.selectAll();
    box.SetSelBold(true);
    QCOMPARE(box.UndoType(), UndoKind::LastAction);
    QInputMethodEvent composed;
    composed.setCommitString(u"\u4E2D"_s);
    QApplication::sendEvent(&box, &composed);
    QCOMPARE(box.UndoType(), UndoKind::Typing);

    QMimeData dragged;
    dragged.setText(u"dropped"_s);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(box.viewport(), &enter);
    QApplication::sendEvent(box.viewport(), &drop);
    QVERIFY(box.Text().contains(u"dropped"_s));
    QCOMPARE(box.UndoType(), UndoKind::DragDrop);
}

void RichTextBoxEditTest::kindsSurviveUndoAndRedo() {
    RichTextBox box;
    QTest::keyClicks(&box, u"word"_s);
    box.selectAll();
    box.Cut();
    QCOMPARE(box.UndoType(), UndoKind::Cut);
    box.Undo();
    QCOMPARE(box.Text(), u"word"_s);
    QCOMPARE(box.UndoType(), UndoKind::Typing);
    QTest::keySequence(&box, QKeySequence::Redo);
    QCOMPARE(box.Text(), QString());
    QCOMPARE(box.UndoType(), UndoKind::Cut);
    QTest::keySequence(&box, QKeySequence::Undo);
    QCOMPARE(box.UndoType(), UndoKind::Typing);
    box.SetSelStart(4);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QCOMPARE(box.Text(), u"wor"_s);
    QCOMPARE(box.UndoType(), UndoKind::Delete);
    box.Undo();
    QCOMPARE(box.UndoType(), UndoKind::Typing);
    box.Undo();
    QCOMPARE(box.UndoType(), UndoKind::LastAction);
}

void RichTextBoxEditTest::bothKeysOfRedoWork_data() {
    QTest::addColumn<QKeySequence>("keys");
    QTest::newRow("Ctrl+Y") << QKeySequence(Qt::CTRL | Qt::Key_Y);
    QTest::newRow("Ctrl+Shift+Z") << QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
}

void RichTextBoxEditTest::bothKeysOfRedoWork() {
    QFETCH(QKeySequence, keys);
    RichTextBox box;
    box.SetSelText(u"one"_s);
    box.SetSelText(u" two"_s);
    box.Undo();
    box.Undo();
    QTest::keySequence(&box, keys);
    QCOMPARE(box.Text(), u"one"_s);
    QTest::keySequence(&box, keys);
    QCOMPARE(box.Text(), u"one two"_s);
    QTest::keySequence(&box, keys);
    box.Undo();
    box.setReadOnly(true);
    QTest::keySequence(&box, keys);
    QTest::keySequence(&box, QKeySequence::Undo);
    QCOMPARE(box.Text(), u"one"_s);
}

void RichTextBoxEditTest::kindsHaveTheirNames() {
    const QStringList names = {u"Last Action"_s, u"Typing"_s, u"Delete"_s,
                               u"Drag Drop"_s,   u"Cut"_s,    u"Paste"_s};
    for (int kind = 0; kind < names.size(); ++kind)
        QCOMPARE(undoKindName(kind), names.at(kind));
    QCOMPARE(undoKindName(6), QString());
    QCOMPARE(undoKindName(-1), QString());
}

void RichTextBoxEditTest::typedFormatsCanBeUndone() {
    RichTextBox box;
    box.SetText(u"word"_s);
    box.selectAll();
    box.SetSelColor(0xFF);
    const QString before = box.Text();
    box.Undo();
    QCOMPARE(box.Text(), before);
    box.selectAll();
    QCOMPARE(box.SelColor(), std::optional<quint32>(0));
}

void RichTextBoxEditTest::backspaceAtABulletTakesTheBulletAndItsRoom() {
    RichTextBox box;
    box.SetText(u"one\r\ntwo"_s);
    box.SetSelStart(5);
    box.SetSelBullet(true);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QCOMPARE(box.Text(), u"one\r\ntwo"_s);
    QCOMPARE(box.SelBullet(), std::optional(false));
    QCOMPARE(box.document()->lastBlock().blockFormat().leftMargin(), 0.0);
    QCOMPARE(box.UndoType(), UndoKind::Delete);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QCOMPARE(box.Text(), u"onetwo"_s);
}

void RichTextBoxEditTest::emptyLinesKeepTheFormat() {
    RichTextBox box;
    box.SetSelFontSize(15);
    box.SetSelBold(true);
    box.SetSelAlignment(RichTextBox::rtfCenter);
    QTest::keyClicks(&box, u"title"_s);
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClicks(&box, u"more"_s);
    QCOMPARE(box.Text(), u"title\r\n\r\n\r\nmore"_s);
    box.selectAll();
    QCOMPARE(box.SelFontSize(), std::optional<qreal>(15));
    QCOMPARE(box.SelBold(), std::optional(true));
    QCOMPARE(box.SelAlignment(), std::optional(2));
    box.SetSelLength(5);
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.Text(), u"\r\n\r\n\r\n\r\nmore"_s);
}

void RichTextBoxEditTest::anEmptyItemEndsItsList() {
    RichTextBox box;
    box.SetSelBullet(true);
    QTest::keyClicks(&box, u"item"_s);
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.SelBullet(), std::optional(true));
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.SelBullet(), std::optional(false));
    QCOMPARE(box.Text(), u"item\r\n"_s);
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.Text(), u"item\r\n\r\n"_s);
}

void RichTextBoxEditTest::theEditMenuOpensUnlessTurnedOff() {
    RichTextBox box;
    QVERIFY(box.editMenu());
    const auto rightClick = [&] {
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
        QApplication::sendEvent(box.viewport(), &event);
        QWidget* const popup = QApplication::activePopupWidget();
        const QString opened = popup ? popup->objectName() : QString();
        if (popup)
            popup->close();
        return opened;
    };
    QCOMPARE(rightClick(), u"editMenu"_s);
    box.setEditMenu(false);
    QCOMPARE(rightClick(), QString());
}

void RichTextBoxEditTest::theEditMenuEnablesWhatCanBeDone() {
    RichTextBox box;
    const auto enabled = [&] {
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
        QApplication::sendEvent(box.viewport(), &event);
        QWidget* const popup = QApplication::activePopupWidget();
        QStringList names;
        for (const QAction* action : popup->actions())
            if (action->isEnabled() && !action->isSeparator())
                names << action->objectName();
        popup->close();
        return names;
    };
    QCOMPARE(enabled(), QStringList());
    QTest::keyClicks(&box, u"ab"_s);
    QCOMPARE(enabled(), (QStringList{u"editUndo"_s, u"editSelectAll"_s}));
    box.selectAll();
    box.Copy();
    QCOMPARE(enabled(), (QStringList{u"editUndo"_s, u"editCut"_s, u"editCopy"_s, u"editPaste"_s,
                                     u"editDelete"_s, u"editSelectAll"_s}));
    box.setReadOnly(true);
    QCOMPARE(enabled(), (QStringList{u"editCopy"_s, u"editSelectAll"_s}));
}

void RichTextBoxEditTest::clicksAndPressesAreTold() {
    RichTextBox box;
    box.resize(100, 100);
    QSignalSpy clicks(&box, &RichTextBox::Click);
    QSignalSpy presses(&box, &RichTextBox::MouseDown);
    QTest::mouseClick(box.viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(presses.count(), 1);
    QTest::mousePress(box.viewport(), Qt::RightButton, {}, QPoint(5, 5));
    QCOMPARE(presses.count(), 2);
    QCOMPARE(presses.at(1).at(0).value<Qt::MouseButton>(), Qt::RightButton);
    QTest::mouseRelease(box.viewport(), Qt::RightButton, {}, QPoint(-50, 5));
    QCOMPARE(clicks.count(), 1);
}

void RichTextBoxEditTest::aParagraphBehindOneThatBeginsAPageBeginsNone() {
    const auto paste = [](RichTextBox& box, const QString& name) {
        auto* data = new QMimeData;
        data->setData(name, name == u"text/html"_s ? "<p>x</p><p>y</p>" : "x\ny");
        QApplication::clipboard()->setMimeData(data);
        box.Paste();
    };
    const std::pair<QString, std::function<void(RichTextBox&)>> ways[] = {
        {u"key"_s, [](RichTextBox& box) { QTest::keyClick(&box, Qt::Key_Return); }},
        {u"text"_s, [](RichTextBox& box) { box.SetSelText(u"x\r\ny\r\nz"_s); }},
        {u"rich text"_s,
         [](RichTextBox& box) { box.SetSelRTF(QByteArrayLiteral("{\\rtf1 x\\par y\\par}")); }},
        {u"pasted text"_s, [&](RichTextBox& box) { paste(box, u"text/plain"_s); }},
        {u"pasted page"_s, [&](RichTextBox& box) { paste(box, u"text/html"_s); }},
    };
    for (const auto& [name, way] : ways) {
        for (const int start : {6, 8}) {
            RichTextBox box;
            box.SetTextRTF(QByteArrayLiteral("{\\rtf1 one\\par\\pagebb two\\par}"));
            QCOMPARE(pagesBegun(box), 1);
            box.SetSelStart(start);
            way(box);
            QVERIFY(box.document()->blockCount() > 2);
            QVERIFY2(pagesBegun(box) == 1, qPrintable(name));
            QVERIFY2(box.document()->findBlockByNumber(1).blockFormat().hasProperty(
                         QTextFormat::PageBreakPolicy),
                     qPrintable(name));
        }
    }
}

void RichTextBoxEditTest::whatIsTypedOverASelectionTakesTheFormatAtItsStart() {
    for (const bool backwards : {false, true}) {
        RichTextBox box;
        box.SetText(u"plain bold plain"_s);
        box.SetSelStart(6);
        box.SetSelLength(4);
        box.SetSelBold(true);
        for (const auto& [start, bold] : {std::pair(6, true), std::pair(4, false)}) {
            QTextCursor cursor = box.textCursor();
            cursor.setPosition(backwards ? 10 : start);
            cursor.setPosition(backwards ? start : 10, QTextCursor::KeepAnchor);
            box.setTextCursor(cursor);
            QTest::keyClicks(&box, u"XY"_s);
            QCOMPARE(box.UndoType(), UndoKind::Typing);
            QCOMPARE(box.SelStart(), start + 2);
            box.SetSelStart(start);
            box.SetSelLength(2);
            QCOMPARE(box.SelText(), u"XY"_s);
            QCOMPARE(box.SelBold(), std::optional(bold));
            while (box.Text() != u"plain bold plain"_s)
                box.Undo();
        }
    }
}

void RichTextBoxEditTest::aMarkTypedBehindAControlCharacterIsNoCode() {
    RichTextBox box;
    box.SetText(u"\u0001"_s);
    box.SetSelStart(1);
    QKeyEvent key(QEvent::KeyPress, 0, {}, u"\u2801"_s);
    QApplication::sendEvent(&box, &key);
    QCOMPARE(box.Text(), u"\u0001\u2801"_s);
    box.selectAll();
    QApplication::sendEvent(&box, &key);
    QCOMPARE(box.Text(), u"\u2801"_s);
}

void RichTextBoxEditTest::composingLeavesTheTextAsItIsUntilItIsCommitted() {
    RichTextBox box;
    box.SetText(u"one three"_s);
    box.SetSelStart(4);
    QSignalSpy changes(&box, &RichTextBox::Change);
    compose(box, u"ni"_s);
    compose(box, u"nihao"_s);
    QCOMPARE(box.Text(), u"one three"_s);
    QCOMPARE(box.SelStart(), 4);
    QVERIFY(!box.CanUndo());
    compose(box, {}, u"\u4F60\u597D "_s);
    QCOMPARE(box.Text(), u"one \u4F60\u597D three"_s);
    QCOMPARE(box.SelStart(), 7);
    QVERIFY(changes.count() >= 1);
    box.SetSelStart(8);
    QCOMPARE(box.Find(u"three"_s), 7);
    QCOMPARE(box.UndoType(), UndoKind::Typing);
    box.Undo();
    QCOMPARE(box.Text(), u"one three"_s);
    QVERIFY(!box.CanUndo());
}

void RichTextBoxEditTest::composingReplacesTheSelection() {
    RichTextBox box;
    box.SetText(u"one\r\ntwo\r\nthree"_s);
    box.SetSelStart(5);
    box.SetSelLength(3);
    QSignalSpy changes(&box, &RichTextBox::Change);
    QSignalSpy selections(&box, &RichTextBox::SelChange);
    compose(box, u"ni"_s);
    QCOMPARE(box.Text(), u"one\r\n\r\nthree"_s);
    QCOMPARE(box.SelStart(), 5);
    QCOMPARE(box.SelLength(), 0);
    QVERIFY(changes.count() >= 1);
    QVERIFY(selections.count() >= 1);
    compose(box, {}, u"\u4F60"_s);
    QCOMPARE(box.Text(), u"one\r\n\u4F60\r\nthree"_s);
    QCOMPARE(box.SelStart(), 6);
    QCOMPARE(box.UndoType(), UndoKind::Typing);
    while (box.CanUndo()) {
        QCOMPARE(box.UndoType(), UndoKind::Typing);
        box.Undo();
    }
    QCOMPARE(box.Text(), u"one\r\ntwo\r\nthree"_s);
    while (box.document()->isRedoAvailable())
        QTest::keySequence(&box, QKeySequence::Redo);
    QCOMPARE(box.Text(), u"one\r\n\u4F60\r\nthree"_s);

    // Given up, it leaves what a deleted selection leaves.
    box.SetSelStart(0);
    box.SetSelLength(5);
    compose(box, u"ni"_s);
    compose(box, {});
    QCOMPARE(box.Text(), u"\u4F60\r\nthree"_s);
    QCOMPARE(box.SelStart(), 0);
}

void RichTextBoxEditTest::whatIsCommittedOverASelectionTakesTheFormatAtItsStart() {
    for (const bool composed : {false, true}) {
        RichTextBox box;
        box.SetText(u"plain bold plain"_s);
        box.SetSelStart(6);
        box.SetSelLength(4);
        box.SetSelBold(true);
        if (composed)
            compose(box, u"x"_s);
        compose(box, {}, u"\u4F60"_s);
        QCOMPARE(box.Text(), u"plain \u4F60 plain"_s);
        QCOMPARE(box.SelStart(), 7);
        box.SetSelStart(6);
        box.SetSelLength(1);
        QCOMPARE(box.SelBold(), std::optional(true));
        box.Undo();
        if (composed)
            box.Undo();
        QCOMPARE(box.Text(), u"plain bold plain"_s);
    }
    RichTextBox box;
    box.SetText(u"\u0001"_s);
    box.SetSelStart(1);
    compose(box, {}, u"\u2801"_s);
    QCOMPARE(box.Text(), u"\u0001\u2801"_s);
}

void RichTextBoxEditTest::aReadOnlyBoxTakesNothingComposed() {
    RichTextBox box;
    box.SetText(u"text"_s);
    box.selectAll();
    box.setReadOnly(true);
    compose(box, u"ni"_s);
    compose(box, {}, u"\u4F60"_s);
    QCOMPARE(box.Text(), u"text"_s);
    QCOMPARE(box.SelLength(), 4);
}

ORVALIS_TEST_MAIN_WITH(QApplication, RichTextBoxEditTest)
#include "rich_text_box_edit_test.moc"
