// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "selecting.h"
#include "support/temporary_folder.h"
#include "support/test_main.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QMimeData>
#include <QSignalSpy>
#include <QTextBlock>
#include <QUrl>

using namespace orvalis;
using namespace orvalis::test;
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
        for (auto it = block.begin(); !it.atEnd(); ++it)
            if (it.fragment().charFormat().isImageFormat())
                count += it.fragment().length();
    }
    return count;
}

} // namespace

class RichTextBoxClipboardTest : public QObject {
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
    void richTextIsTakenUnderAllItsNames_data();
    void richTextIsTakenUnderAllItsNames();
    void cutAndPaddedRichTextIsTakenWhole();
    void textComesBeforeItsPicture();
    void htmlKeepsItsRuns();
    void aTableInHtmlComesAsTextWithTabs();
    void listsInHtmlStayLists();
    void labelsOfListsInHtmlLookLikeTheirText();
    void htmlFetchesNothing();
    void aPictureIsPasted();
    void aPicturesOwnBytesAreKept();
    void aPictureThatComesWithAPageAroundItIsAPicture();
    void pastingAPictureReplacesTheSelection();
    void filesBringPicturesAndPaths();
    void addressesOfOtherComputersAreText();
    void aFileThatIsDroppedIsNotMoved();
    void richTextThatShowsNothingLeavesThePlaceToThePicture();
    void richTextOfNothingButBoxesLeavesThePlaceToThePicture_data();
    void richTextOfNothingButBoxesLeavesThePlaceToThePicture();
    void aPictureAloneIsOfferedAsAPicture();
    void whateverIsPastedIsOneStepOfUndo();
    void keysOfTheClipboardWork();
};

void RichTextBoxClipboardTest::init() {
    QApplication::clipboard()->clear();
}

void RichTextBoxClipboardTest::cutTakesTheSelectionToTheClipboard() {
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

void RichTextBoxClipboardTest::copyLeavesTheText() {
    RichTextBox box;
    box.SetText(u"one\r\ntwo"_s);
    box.selectAll();
    QSignalSpy changes(&box, &RichTextBox::Change);
    box.Copy();
    QCOMPARE(box.Text(), u"one\r\ntwo"_s);
    QCOMPARE(QApplication::clipboard()->text(), u"one\ntwo"_s);
    QCOMPARE(changes.count(), 0);
}

void RichTextBoxClipboardTest::cutAndCopyWithoutASelectionLeaveTheClipboard() {
    QApplication::clipboard()->setText(u"kept"_s);
    RichTextBox box;
    box.SetText(u"text"_s);
    box.Cut();
    box.Copy();
    QCOMPARE(QApplication::clipboard()->text(), u"kept"_s);
    QCOMPARE(box.Text(), u"text"_s);
}

void RichTextBoxClipboardTest::whatIsCopiedIsOfferedAsRichTextHtmlAndText() {
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

void RichTextBoxClipboardTest::copiedFormatsComeBack() {
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

void RichTextBoxClipboardTest::copiedControlCharactersComeBack() {
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

void RichTextBoxClipboardTest::copiedPicturesComeBack() {
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

void RichTextBoxClipboardTest::picturesTravelInsideCopiedHtml() {
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

void RichTextBoxClipboardTest::canPasteFollowsTheClipboard() {
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

void RichTextBoxClipboardTest::aReadOnlyBoxTakesNothing() {
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

void RichTextBoxClipboardTest::pastingReplacesTheSelection() {
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

void RichTextBoxClipboardTest::pastedLineEndsOfOtherProgramsAreLineBreaks() {
    QApplication::clipboard()->setText(u"one\ntwo\r\nthree\rfour"_s);
    RichTextBox box;
    box.Paste();
    QCOMPARE(box.Text(), u"one\r\ntwo\r\nthree\r\nfour"_s);
}

void RichTextBoxClipboardTest::pastedTextTakesTheFormatAtTheSelectionsStart() {
    QApplication::clipboard()->setText(u"new"_s);
    RichTextBox box;
    box.SetText(u"old"_s);
    box.selectAll();
    box.SetSelBold(true);
    box.Paste();
    box.selectAll();
    QCOMPARE(box.SelBold(), std::optional(true));
}

void RichTextBoxClipboardTest::richTextComesBeforeHtmlAndText() {
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

/// Programs offer a picture of what is copied beside it, cells of a sheet say.
void RichTextBoxClipboardTest::richTextIsTakenUnderAllItsNames_data() {
    QTest::addColumn<QString>("name");
    for (const char* name : {"text/rtf", "application/rtf", "text/richtext",
                             "application/x-qt-windows-mime;value=\"Rich Text Format\"",
                             "Rich Text Format", "application/x-rtf", "text/x-rtf"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void RichTextBoxClipboardTest::richTextIsTakenUnderAllItsNames() {
    QFETCH(QString, name);
    auto* data = new QMimeData;
    data->setData(name, "{\\rtf1 from {\\b rtf}\\par}");
    data->setText(u"from text"_s);
    QCOMPARE(pasted(data), u"from rtf"_s);
    auto* alone = new QMimeData;
    alone->setData(name, "{\\rtf1 x}");
    QApplication::clipboard()->setMimeData(alone);
    QVERIFY(RichTextBox().CanPaste());
}

void RichTextBoxClipboardTest::cutAndPaddedRichTextIsTakenWhole() {
    const QByteArray whole = "{\\rtf1 one\\par two";
    for (const QByteArray& end :
         {QByteArray("\\par}"), QByteArray("\\par}\0", 6), QByteArray("\\par}\r\n\0\0\0", 10),
          QByteArray("\\par"), QByteArray("\\par\r\n"), QByteArray("\\par\0\0", 6), QByteArray("}"),
          QByteArray()}) {
        auto* data = new QMimeData;
        data->setData(u"text/rtf"_s, whole + end);
        QCOMPARE(pasted(data), u"one\r\ntwo"_s);
    }
}

void RichTextBoxClipboardTest::textComesBeforeItsPicture() {
    const auto withPicture = [] {
        auto* data = new QMimeData;
        data->setData(u"image/png"_s, pngOf(Qt::red));
        data->setImageData(QImage::fromData(pngOf(Qt::red)));
        return data;
    };
    QMimeData* data = withPicture();
    data->setData(u"text/rtf"_s, "{\\rtf1 from rtf\\par}");
    QCOMPARE(pasted(data), u"from rtf"_s);
    data = withPicture();
    data->setHtml(u"<p>from html</p>"_s);
    data->setText(u"from text"_s);
    QCOMPARE(pasted(data), u"from html"_s);
    data = withPicture();
    data->setText(u"from text"_s);
    QCOMPARE(pasted(data), u"from text"_s);
}

void RichTextBoxClipboardTest::htmlKeepsItsRuns() {
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

void RichTextBoxClipboardTest::aTableInHtmlComesAsTextWithTabs() {
    auto* data = new QMimeData;
    data->setHtml(u"<table><tr><td>a</td><td>b</td></tr><tr><td>c</td><td>d</td></tr></table>"_s);
    QCOMPARE(pasted(data), u"a\tb\r\nc\td"_s);
}

void RichTextBoxClipboardTest::listsInHtmlStayLists() {
    auto* data = new QMimeData;
    data->setHtml(u"<ul><li>one</li><li>two</li></ul>"_s);
    QApplication::clipboard()->setMimeData(data);
    RichTextBox box;
    box.Paste();
    QCOMPARE(box.Text(), u"one\r\ntwo"_s);
    box.selectAll();
    QCOMPARE(box.SelBullet(), std::optional(true));
}

void RichTextBoxClipboardTest::htmlFetchesNothing() {
    auto* data = new QMimeData;
    data->setHtml(
        u"<p>a<img src='file:///etc/hostname'><img src='http://example.org/x.png'>b</p>"_s);
    QApplication::clipboard()->setMimeData(data);
    RichTextBox box;
    box.Paste();
    QCOMPARE(box.Text(), u"ab"_s);
    QCOMPARE(pictureCount(box), 0);
}

void RichTextBoxClipboardTest::aPictureIsPasted() {
    QApplication::clipboard()->setImage(QImage::fromData(pngOf(Qt::blue)));
    RichTextBox box;
    box.Paste();
    QCOMPARE(box.Text(), u" "_s);
    QCOMPARE(pictureCount(box), 1);
    QVERIFY(box.TextRTF().contains("\\pngblip"));
}

void RichTextBoxClipboardTest::aPicturesOwnBytesAreKept() {
    const QByteArray bytes = pngOf(Qt::green);
    auto* data = new QMimeData;
    data->setData(u"image/png"_s, bytes);
    QApplication::clipboard()->setMimeData(data);
    RichTextBox box;
    box.Paste();
    QVERIFY(box.TextRTF().replace("\r\n", "").contains(bytes.toHex()));
}

void RichTextBoxClipboardTest::aPictureThatComesWithAPageAroundItIsAPicture() {
    auto* data = new QMimeData;
    data->setHtml(u"<img src='https://example.org/cat.png'>"_s);
    data->setData(u"image/png"_s, pngOf(Qt::red));
    data->setImageData(QImage::fromData(pngOf(Qt::red)));
    QApplication::clipboard()->setMimeData(data);
    RichTextBox box;
    box.Paste();
    QCOMPARE(pictureCount(box), 1);
}

void RichTextBoxClipboardTest::pastingAPictureReplacesTheSelection() {
    QApplication::clipboard()->setImage(QImage::fromData(pngOf(Qt::blue)));
    RichTextBox box;
    box.SetText(u"a word b"_s);
    box.SetSelStart(2);
    box.SetSelLength(4);
    box.Paste();
    QCOMPARE(box.Text(), u"a   b"_s);
    QCOMPARE(box.SelStart(), 3);
}

void RichTextBoxClipboardTest::filesBringPicturesAndPaths() {
    const TemporaryFolder folder;
    const QUrl red = QUrl::fromLocalFile(folder.write(u"a red one.png"_s, pngOf(Qt::red)));
    const QUrl words = QUrl::fromLocalFile(folder.write(u"words.txt"_s, "plain words"));
    const QUrl gone = QUrl::fromLocalFile(folder.file(u"gone.png"_s));
    const QUrl zero = QUrl::fromLocalFile(u"/dev/zero"_s);
    auto* data = new QMimeData;
    data->setUrls({red, words, red, gone, zero});
    QApplication::clipboard()->setMimeData(data);
    RichTextBox box;
    box.SetText(u"a word b"_s);
    select(box, 2, 4);
    box.Paste();
    QCOMPARE(box.Text(), u"a  \r\n"_s + words.toLocalFile() + u"\r\n \r\n"_s + gone.toLocalFile() +
                             u"\r\n/dev/zero b"_s);
    QCOMPARE(pictureCount(box), 2);
    QVERIFY(box.TextRTF().replace("\r\n", "").contains(pngOf(Qt::red).toHex()));
    box.Undo();
    QCOMPARE(box.Text(), u"a word b"_s);
    QVERIFY(!box.CanUndo());
}

void RichTextBoxClipboardTest::addressesOfOtherComputersAreText() {
    auto* data = new QMimeData;
    data->setUrls({QUrl(u"https://example.org/cat.png"_s)});
    QCOMPARE(pasted(data), u"https://example.org/cat.png"_s);
    data = new QMimeData;
    data->setUrls({QUrl(u"file://elsewhere.example/share/cat.png"_s)});
    data->setText(u"a cat"_s);
    QCOMPARE(pasted(data), u"a cat"_s);
}

void RichTextBoxClipboardTest::aFileThatIsDroppedIsNotMoved() {
    const TemporaryFolder folder;
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(folder.write(u"a.png"_s, pngOf(Qt::red)))});
    RichTextBox box;
    const Qt::DropActions either = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter({5, 5}, either, &dragged, Qt::LeftButton, Qt::ShiftModifier);
    QDropEvent drop({5, 5}, either, &dragged, Qt::LeftButton, Qt::ShiftModifier);
    QCOMPARE(drop.proposedAction(), Qt::MoveAction);
    QApplication::sendEvent(box.viewport(), &enter);
    QApplication::sendEvent(box.viewport(), &drop);
    QCOMPARE(pictureCount(box), 1);
    QVERIFY(drop.isAccepted());
    QCOMPARE(drop.dropAction(), Qt::CopyAction);
}

void RichTextBoxClipboardTest::keysOfTheClipboardWork() {
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

void RichTextBoxClipboardTest::richTextThatShowsNothingLeavesThePlaceToThePicture() {
    auto* data = new QMimeData;
    data->setData(u"text/rtf"_s, "{\\rtf1{\\*\\objdata 0105}}");
    data->setData(u"image/png"_s, pngOf(Qt::red));
    QApplication::clipboard()->setMimeData(data);
    RichTextBox box;
    box.SetText(u"a word b"_s);
    box.SetSelStart(2);
    box.SetSelLength(4);
    box.Paste();
    QCOMPARE(box.Text(), u"a   b"_s);
    QCOMPARE(pictureCount(box), 1);
    box.Undo();
    QCOMPARE(box.Text(), u"a word b"_s);
    QVERIFY(!box.CanUndo());
}

void RichTextBoxClipboardTest::richTextOfNothingButBoxesLeavesThePlaceToThePicture_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("beside");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("box");
    const QByteArray pict = "{\\pict\\macpict 0011}";
    const QByteArray png = pngOf(Qt::red);
    QTest::newRow("a picture") << pict + "\\par" << png << u"a   b"_s << false;
    QTest::newRow("text beside it") << pict + "x" << png << u"a  x b"_s << true;
    QTest::newRow("text before it") << "x" + pict << png << u"a x  b"_s << true;
    QTest::newRow("no picture next to it") << pict << QByteArray() << u"a   b"_s << true;
    QTest::newRow("a broken picture next to it") << pict << png.first(20) << u"a   b"_s << true;
}

void RichTextBoxClipboardTest::richTextOfNothingButBoxesLeavesThePlaceToThePicture() {
    QFETCH(QByteArray, body);
    QFETCH(QByteArray, beside);
    QFETCH(QString, text);
    QFETCH(bool, box);
    auto* data = new QMimeData;
    data->setData(u"text/rtf"_s, "{\\rtf1 " + body + "}");
    if (!beside.isEmpty())
        data->setData(u"image/png"_s, beside);
    QApplication::clipboard()->setMimeData(data);
    RichTextBox target;
    target.SetText(u"a word b"_s);
    target.SetSelStart(2);
    target.SetSelLength(4);
    target.Paste();
    QCOMPARE(target.Text(), text);
    QCOMPARE(pictureCount(target), 1);
    QCOMPARE(target.TextRTF().contains("\\macpict"), box);
    QCOMPARE(target.TextRTF().contains("\\pngblip"), !box);
    target.Undo();
    QCOMPARE(target.Text(), u"a word b"_s);
    QVERIFY(!target.CanUndo());
}

void RichTextBoxClipboardTest::aPictureAloneIsOfferedAsAPicture() {
    const QByteArray bytes = pngOf(Qt::red);
    auto* data = new QMimeData;
    data->setData(u"image/png"_s, bytes);
    QApplication::clipboard()->setMimeData(data);
    RichTextBox box;
    box.SetText(u"ab"_s);
    box.SetSelStart(1);
    box.Paste();
    box.SetSelStart(1);
    box.SetSelLength(1);
    box.Copy();
    QCOMPARE(QApplication::clipboard()->mimeData()->data(u"image/png"_s), bytes);
    for (const int start : {0, 2}) {
        box.SetSelStart(start);
        box.SetSelLength(start == 0 ? 2 : 1);
        box.Copy();
        QVERIFY(!QApplication::clipboard()->mimeData()->hasFormat(u"image/png"_s));
    }
}

void RichTextBoxClipboardTest::whateverIsPastedIsOneStepOfUndo() {
    const auto offer = [](int kind) {
        auto* data = new QMimeData;
        if (kind == 0)
            data->setData(u"text/rtf"_s, "{\\rtf1 one\\par {\\b two}\\par three\\par}");
        else if (kind == 1)
            data->setHtml(u"<p>one <b>two</b></p><ul><li>three</ul>"_s);
        else if (kind == 2)
            data->setText(u"one\ntwo\n\u0001"_s);
        else
            data->setData(u"image/png"_s, pngOf(Qt::red));
        QApplication::clipboard()->setMimeData(data);
    };
    for (int kind = 0; kind < 4; ++kind) {
        offer(kind);
        RichTextBox box;
        box.SetText(u"a word b"_s);
        box.SetSelStart(2);
        box.SetSelLength(4);
        QSignalSpy changes(&box, &RichTextBox::Change);
        box.Paste();
        QVERIFY(box.Text() != u"a word b"_s);
        QCOMPARE(changes.count(), 1);
        QCOMPARE(box.UndoType(), UndoKind::Paste);
        box.Undo();
        QCOMPARE(box.Text(), u"a word b"_s);
        QVERIFY(!box.CanUndo());
    }
}

void RichTextBoxClipboardTest::labelsOfListsInHtmlLookLikeTheirText() {
    auto* data = new QMimeData;
    data->setHtml(u"<ol><li>plain<li><b style='color:#ff0000'>bold</b></ol>"_s);
    QApplication::clipboard()->setMimeData(data);
    RichTextBox box;
    box.SetText(u"title"_s);
    box.selectAll();
    box.SetSelBold(true);
    box.SetSelFontSize(30);
    box.Paste();
    QCOMPARE(box.Text(), u"plain\r\nbold"_s);
    const QTextCharFormat first = box.document()->begin().charFormat();
    QVERIFY(first.fontWeight() <= QFont::Normal);
    QCOMPARE(first.fontPointSize(), 30.0);
    const QTextCharFormat second = box.document()->lastBlock().charFormat();
    QCOMPARE(second.fontWeight(), int(QFont::Bold));
    QCOMPARE(second.foreground().color(), QColor(255, 0, 0));
}

ORVALIS_TEST_MAIN_WITH(QApplication, RichTextBoxClipboardTest)
#include "rich_text_box_clipboard_test.moc"
