// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/rich_text_box.h"
#include "support/test_main.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTimer>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

QByteArray pngOf(const QColor& color, const QSize& size = {8, 6}) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return bytes;
}

/// What a paste of these data makes of an empty box.
QString pasted(QMimeData* data) {
    QApplication::clipboard()->setMimeData(data);
    RichTextBox box;
    box.Paste();
    return box.Text();
}

int pictureCount(const RichTextBox& box) {
    int count = 0;
    for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            if (it.fragment().charFormat().isImageFormat())
                count += it.fragment().length();
        }
    }
    return count;
}

} // namespace

class RichTextBoxEditTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cutTakesTheSelectionToTheClipboard();
    void copyLeavesTheText();
    void cutAndCopyWithoutASelectionLeaveTheClipboard();
    void whatIsCopiedIsOfferedAsRichTextHtmlAndText();
    void copiedFormatsComeBack();
    void copiedControlCharactersComeBack();
    void copiedPicturesComeBack();
    void picturesTravelInsideCopiedHtml();

    void canPasteFollowsTheClipboard();
    void aReadOnlyBoxTakesNothing();
    void pastingReplacesTheSelection();
    void pastedLineEndsOfOtherProgramsAreLineBreaks();
    void pastedTextTakesTheFormatAtTheSelectionsStart();
    void richTextComesBeforeHtmlAndText();
    void htmlKeepsItsRuns();
    void aTableInHtmlComesAsTextWithTabs();
    void listsInHtmlStayLists();
    void htmlFetchesNothing();
    void aPictureIsPasted();
    void aPicturesOwnBytesAreKept();
    void aPictureThatComesWithAPageAroundItIsAPicture();
    void pastingAPictureReplacesTheSelection();

    void undoTakesBackStepByStep();
    void undoKindsFollowWhatWasDone();
    void kindsSurviveUndoAndRedo();
    void kindsHaveTheirNames();
    void keysOfTheClipboardWork();
    void typedFormatsCanBeUndone();
    void backspaceAtABulletTakesTheBulletAndItsRoom();
    void emptyLinesKeepTheFormat();
    void anEmptyItemEndsItsList();

    void theEditMenuOpensUnlessTurnedOff();
    void theEditMenuEnablesWhatCanBeDone();
    void clicksAndPressesAreTold();
};

void RichTextBoxEditTest::init() {
    QApplication::clipboard()->clear();
}

void RichTextBoxEditTest::cutTakesTheSelectionToTheClipboard() {
    RichTextBox box;
    box.SetText(u"one two three"_s);
    box.SetSelStart(4);
    box.SetSelLength(4);
    box.Cut();
    QCOMPARE(box.Text(), u"one three"_s);
    QCOMPARE(QApplication::clipboard()->text(), u"two "_s);
    box.Paste();
    QCOMPARE(box.Text(), u"one two three"_s);
    QCOMPARE(box.SelStart(), 8);
}

void RichTextBoxEditTest::copyLeavesTheText() {
    RichTextBox box;
    box.SetText(u"one\r\ntwo"_s);
    box.selectAll();
    QSignalSpy changes(&box, &RichTextBox::Change);
    box.Copy();
    QCOMPARE(box.Text(), u"one\r\ntwo"_s);
    QCOMPARE(QApplication::clipboard()->text(), u"one\ntwo"_s);
    QCOMPARE(changes.count(), 0);
}

void RichTextBoxEditTest::cutAndCopyWithoutASelectionLeaveTheClipboard() {
    QApplication::clipboard()->setText(u"kept"_s);
    RichTextBox box;
    box.SetText(u"text"_s);
    box.Cut();
    box.Copy();
    QCOMPARE(QApplication::clipboard()->text(), u"kept"_s);
    QCOMPARE(box.Text(), u"text"_s);
}

void RichTextBoxEditTest::whatIsCopiedIsOfferedAsRichTextHtmlAndText() {
    RichTextBox box;
    box.SetText(u"some words"_s);
    box.SetSelStart(5);
    box.SetSelLength(5);
    box.SetSelBold(true);
    box.Copy();
    const QMimeData* data = QApplication::clipboard()->mimeData();
    for (const QString& name : {u"text/rtf"_s, u"application/rtf"_s, u"text/richtext"_s}) {
        QVERIFY(data->data(name).startsWith("{\\rtf1"));
        QVERIFY(data->data(name).contains("words"));
        QVERIFY(!data->data(name).contains("some"));
    }
    QVERIFY(data->html().contains(u"words"_s));
    QCOMPARE(data->text(), u"words"_s);
}

void RichTextBoxEditTest::copiedFormatsComeBack() {
    RichTextBox box;
    box.SetText(u"one\r\ntwo"_s);
    box.SetSelStart(5);
    box.SetSelLength(3);
    box.SetSelItalic(true);
    box.SetSelColor(0xFF);
    box.selectAll();
    box.Copy();
    RichTextBox other;
    other.Paste();
    QCOMPARE(other.Text(), u"one\r\ntwo"_s);
    other.SetSelStart(5);
    other.SetSelLength(3);
    QCOMPARE(other.SelItalic(), std::optional(true));
    QCOMPARE(other.SelColor(), std::optional<quint32>(0xFF));
    other.SetSelStart(0);
    other.SetSelLength(3);
    QCOMPARE(other.SelItalic(), std::optional(false));
}

void RichTextBoxEditTest::copiedControlCharactersComeBack() {
    QString codes;
    for (int code = 0; code < 256; ++code)
        codes += QChar(code) + u'x';
    RichTextBox box;
    box.SetText(codes);
    box.selectAll();
    box.Copy();
    RichTextBox other;
    other.Paste();
    QCOMPARE(other.Text(), codes);
}

void RichTextBoxEditTest::copiedPicturesComeBack() {
    auto* data = new QMimeData;
    data->setData(u"image/png"_s, pngOf(Qt::red));
    QApplication::clipboard()->setMimeData(data);
    RichTextBox box;
    box.Paste();
    QCOMPARE(pictureCount(box), 1);
    box.selectAll();
    box.Copy();
    RichTextBox other;
    other.Paste();
    QCOMPARE(pictureCount(other), 1);
    QCOMPARE(other.Text(), u" "_s);
}

void RichTextBoxEditTest::picturesTravelInsideCopiedHtml() {
    auto* data = new QMimeData;
    data->setData(u"image/png"_s, pngOf(Qt::red));
    QApplication::clipboard()->setMimeData(data);
    RichTextBox box;
    box.Paste();
    box.selectAll();
    box.Copy();
    const QString html = QApplication::clipboard()->mimeData()->html();
    auto* page = new QMimeData;
    page->setHtml(html);
    QApplication::clipboard()->setMimeData(page);
    RichTextBox other;
    other.Paste();
    QCOMPARE(pictureCount(other), 1);
}

void RichTextBoxEditTest::canPasteFollowsTheClipboard() {
    RichTextBox box;
    QVERIFY(!box.CanPaste());
    QApplication::clipboard()->setText(u"text"_s);
    QVERIFY(box.CanPaste());
    QApplication::clipboard()->setImage(QImage::fromData(pngOf(Qt::red)));
    QVERIFY(box.CanPaste());
    auto* unknown = new QMimeData;
    unknown->setData(u"application/x-unknown"_s, "bytes");
    QApplication::clipboard()->setMimeData(unknown);
    QVERIFY(!box.CanPaste());
    auto* rtf = new QMimeData;
    rtf->setData(u"application/rtf"_s, "{\\rtf1 x}");
    QApplication::clipboard()->setMimeData(rtf);
    QVERIFY(box.CanPaste());
}

void RichTextBoxEditTest::aReadOnlyBoxTakesNothing() {
    QApplication::clipboard()->setText(u"new"_s);
    RichTextBox box;
    box.SetText(u"kept"_s);
    box.setReadOnly(true);
    box.selectAll();
    QVERIFY(!box.CanPaste());
    box.Paste();
    box.Cut();
    QTest::keyClicks(&box, u"x"_s);
    QCOMPARE(box.Text(), u"kept"_s);
    box.Copy();
    QCOMPARE(QApplication::clipboard()->text(), u"kept"_s);
}

void RichTextBoxEditTest::pastingReplacesTheSelection() {
    QApplication::clipboard()->setText(u"big"_s);
    RichTextBox box;
    box.SetText(u"a small word"_s);
    box.SetSelStart(2);
    box.SetSelLength(5);
    box.Paste();
    QCOMPARE(box.Text(), u"a big word"_s);
    box.Undo();
    QCOMPARE(box.Text(), u"a small word"_s);
}

void RichTextBoxEditTest::pastedLineEndsOfOtherProgramsAreLineBreaks() {
    QApplication::clipboard()->setText(u"one\ntwo\r\nthree\rfour"_s);
    RichTextBox box;
    box.Paste();
    QCOMPARE(box.Text(), u"one\r\ntwo\r\nthree\r\nfour"_s);
}

void RichTextBoxEditTest::pastedTextTakesTheFormatAtTheSelectionsStart() {
    QApplication::clipboard()->setText(u"new"_s);
    RichTextBox box;
    box.SetText(u"old"_s);
    box.selectAll();
    box.SetSelBold(true);
    box.Paste();
    box.selectAll();
    QCOMPARE(box.SelBold(), std::optional(true));
}

void RichTextBoxEditTest::richTextComesBeforeHtmlAndText() {
    auto* data = new QMimeData;
    data->setData(u"text/rtf"_s, "{\\rtf1 from rtf\\par}");
    data->setHtml(u"<p>from html</p>"_s);
    data->setText(u"from text"_s);
    QCOMPARE(pasted(data), u"from rtf"_s);
    data = new QMimeData;
    data->setData(u"text/rtf"_s, "broken");
    data->setHtml(u"<p>from html</p>"_s);
    data->setText(u"from text"_s);
    QCOMPARE(pasted(data), u"from html"_s);
}

void RichTextBoxEditTest::htmlKeepsItsRuns() {
    auto* data = new QMimeData;
    data->setHtml(u"<p>plain <b>bold</b> <i style='color:#ff0000'>red</i></p><p "
                  "align='center'>middle<br>below</p>"_s);
    QApplication::clipboard()->setMimeData(data);
    RichTextBox box;
    box.Paste();
    QCOMPARE(box.Text(), u"plain bold red\r\nmiddle\r\nbelow"_s);
    box.SetSelStart(6);
    box.SetSelLength(4);
    QCOMPARE(box.SelBold(), std::optional(true));
    box.SetSelStart(11);
    box.SetSelLength(3);
    QCOMPARE(box.SelBold(), std::optional(false));
    QCOMPARE(box.SelItalic(), std::optional(true));
    QCOMPARE(box.SelColor(), std::optional<quint32>(0xFF));
    box.SetSelStart(17);
    QCOMPARE(box.SelAlignment(), std::optional(2));
}

void RichTextBoxEditTest::aTableInHtmlComesAsTextWithTabs() {
    auto* data = new QMimeData;
    data->setHtml(u"<table><tr><td>a</td><td>b</td></tr><tr><td>c</td><td>d</td></tr></table>"_s);
    QCOMPARE(pasted(data), u"a\tb\r\nc\td"_s);
}

void RichTextBoxEditTest::listsInHtmlStayLists() {
    auto* data = new QMimeData;
    data->setHtml(u"<ul><li>one</li><li>two</li></ul>"_s);
    QApplication::clipboard()->setMimeData(data);
    RichTextBox box;
    box.Paste();
    QCOMPARE(box.Text(), u"one\r\ntwo"_s);
    box.selectAll();
    QCOMPARE(box.SelBullet(), std::optional(true));
}

void RichTextBoxEditTest::htmlFetchesNothing() {
    auto* data = new QMimeData;
    data->setHtml(
        u"<p>a<img src='file:///etc/hostname'><img src='http://example.org/x.png'>b</p>"_s);
    QApplication::clipboard()->setMimeData(data);
    RichTextBox box;
    box.Paste();
    QCOMPARE(box.Text(), u"ab"_s);
    QCOMPARE(pictureCount(box), 0);
}

void RichTextBoxEditTest::aPictureIsPasted() {
    QApplication::clipboard()->setImage(QImage::fromData(pngOf(Qt::blue)));
    RichTextBox box;
    box.Paste();
    QCOMPARE(box.Text(), u" "_s);
    QCOMPARE(pictureCount(box), 1);
    QVERIFY(box.TextRTF().contains("\\pngblip"));
}

void RichTextBoxEditTest::aPicturesOwnBytesAreKept() {
    const QByteArray bytes = pngOf(Qt::green);
    auto* data = new QMimeData;
    data->setData(u"image/png"_s, bytes);
    QApplication::clipboard()->setMimeData(data);
    RichTextBox box;
    box.Paste();
    QVERIFY(box.TextRTF().replace("\r\n", "").contains(bytes.toHex()));
}

void RichTextBoxEditTest::aPictureThatComesWithAPageAroundItIsAPicture() {
    auto* data = new QMimeData;
    data->setHtml(u"<img src='https://example.org/cat.png'>"_s);
    data->setData(u"image/png"_s, pngOf(Qt::red));
    data->setImageData(QImage::fromData(pngOf(Qt::red)));
    QApplication::clipboard()->setMimeData(data);
    RichTextBox box;
    box.Paste();
    QCOMPARE(pictureCount(box), 1);
}

void RichTextBoxEditTest::pastingAPictureReplacesTheSelection() {
    QApplication::clipboard()->setImage(QImage::fromData(pngOf(Qt::blue)));
    RichTextBox box;
    box.SetText(u"a word b"_s);
    box.SetSelStart(2);
    box.SetSelLength(4);
    box.Paste();
    QCOMPARE(box.Text(), u"a   b"_s);
    QCOMPARE(box.SelStart(), 3);
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

void RichTextBoxEditTest::undoKindsFollowWhatWasDone() {
    RichTextBox box;
    QCOMPARE(box.UndoType(), UndoKind::LastAction);
    QTest::keyClicks(&box, u"words"_s);
    QCOMPARE(box.UndoType(), UndoKind::Typing);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QCOMPARE(box.UndoType(), UndoKind::Delete);
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

void RichTextBoxEditTest::kindsHaveTheirNames() {
    const QStringList names = {u"Last Action"_s, u"Typing"_s, u"Delete"_s,
                               u"Drag Drop"_s,   u"Cut"_s,    u"Paste"_s};
    for (int kind = 0; kind < names.size(); ++kind)
        QCOMPARE(undoKindName(kind), names.at(kind));
    QCOMPARE(undoKindName(6), QString());
    QCOMPARE(undoKindName(-1), QString());
}

void RichTextBoxEditTest::keysOfTheClipboardWork() {
    RichTextBox box;
    box.SetText(u"word"_s);
    box.selectAll();
    QTest::keySequence(&box, QKeySequence::Copy);
    QVERIFY(QApplication::clipboard()->mimeData()->hasFormat(u"text/rtf"_s));
    QTest::keySequence(&box, QKeySequence::Cut);
    QCOMPARE(box.Text(), QString());
    QTest::keySequence(&box, QKeySequence::Paste);
    QTest::keySequence(&box, QKeySequence::Paste);
    QCOMPARE(box.Text(), u"wordword"_s);
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
        QString opened;
        QTimer::singleShot(0, &box, [&] {
            if (QWidget* const popup = QApplication::activePopupWidget()) {
                opened = popup->objectName();
                popup->close();
            }
        });
        QApplication::sendEvent(box.viewport(), &event);
        QApplication::processEvents();
        return opened;
    };
    QCOMPARE(rightClick(), u"editMenu"_s);
    box.setEditMenu(false);
    QCOMPARE(rightClick(), QString());
}

void RichTextBoxEditTest::theEditMenuEnablesWhatCanBeDone() {
    RichTextBox box;
    const auto enabled = [&] {
        QStringList names;
        QTimer::singleShot(0, &box, [&] {
            QWidget* const popup = QApplication::activePopupWidget();
            for (const QAction* action : popup->actions()) {
                if (action->isEnabled() && !action->isSeparator())
                    names << action->objectName();
            }
            popup->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
        QApplication::sendEvent(box.viewport(), &event);
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

ORVALIS_TEST_MAIN_WITH(QApplication, RichTextBoxEditTest)
#include "rich_text_box_edit_test.moc"
