// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/load_picture.h"

#include "controls/rich_text_box.h"
#include "rtf/pictures/picture_format.h"
#include "runtime/failure.h"
#include "support/failure_of.h"
#include "support/test_main.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QImage>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTextBlock>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

QByteArray picture(const char* format, const QColor& color = Qt::red) {
    QImage image(12, 8, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

/// The bytes of the picture that stands at a place of the text.
QByteArray bytesAt(const RichTextBox& box, int position) {
    QTextCursor cursor(box.document());
    cursor.setPosition(position + 1);
    return rtf::pictureOfFormat(*box.document(), cursor.charFormat().toImageFormat()).bytes;
}

} // namespace

class LoadPictureTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void aPictureIsReadByWhatItHolds_data();
    void aPictureIsReadByWhatItHolds();
    void aPictureOfMorePixelsComesSmallerInItsShape();
    void whatIsNoPictureFails_data();
    void whatIsNoPictureFails();
    void aMissingFileFails();
    void theClipboardHasThePictureAndItsOwnBytes();
    void theClipboardHasAPictureOfAnotherKindToo();

    void anInsertedPictureReplacesTheSelection();
    void anInsertedPictureKeepsItsBytes();
    void anInsertedPictureIsOneStepOfUndo();
    void aPictureGoesInInsideABatchToo();
    void aRefusedPictureChangesNothing();

private:
    QString file(const QByteArray& bytes, const QString& name = u"picture"_s) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void LoadPictureTest::init() {
    m_folder = std::make_unique<QTemporaryDir>();
    QApplication::clipboard()->clear();
}

QString LoadPictureTest::file(const QByteArray& bytes, const QString& name) const {
    const QString path = m_folder->filePath(name);
    QFile out(path);
    if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size())
        QTest::qFail("The file could not be written", __FILE__, __LINE__);
    return path;
}

void LoadPictureTest::aPictureIsReadByWhatItHolds_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    QTest::newRow("png") << picture("PNG") << u"x.png"_s;
    QTest::newRow("bmp") << picture("BMP") << u"x.bmp"_s;
    QTest::newRow("jpg") << picture("JPG") << u"x.jpg"_s;
    QTest::newRow("named for another kind") << picture("PNG") << u"x.wmf"_s;
    QTest::newRow("without an ending") << picture("JPG") << u"x"_s;
}

void LoadPictureTest::aPictureIsReadByWhatItHolds() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    const LoadedPicture loaded = LoadPicture(file(bytes, name));
    QCOMPARE(loaded.file, bytes);
    QCOMPARE(loaded.picture.size(), QSize(12, 8));
    const QColor shown = loaded.picture.pixmap(loaded.picture.size(), 1).toImage().pixelColor(6, 4);
    QVERIFY(shown.red() > 240 && shown.green() < 15 && shown.blue() < 15);
}

void LoadPictureTest::aPictureOfMorePixelsComesSmallerInItsShape() {
    const QString path = m_folder->filePath(u"large.png"_s);
    QImage large(400, 200, QImage::Format_RGB32);
    large.fill(Qt::red);
    QVERIFY(large.save(path));
    QCOMPARE(LoadPicture(path).picture.size(), QSize(400, 200));
    QCOMPARE(LoadPicture(path, 80000).picture.size(), QSize(400, 200));
    QCOMPARE(LoadPicture(path, 20000).picture.size(), QSize(200, 100));
}

void LoadPictureTest::whatIsNoPictureFails_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("no picture at all");
    QTest::newRow("a head alone") << picture("PNG").left(40);
}

void LoadPictureTest::whatIsNoPictureFails() {
    QFETCH(QByteArray, bytes);
    const QString path = file(bytes, u"x.bmp"_s);
    QCOMPARE(failureOf([&] { LoadPicture(path); }), ErrorNumber::InvalidPicture);
}

void LoadPictureTest::aMissingFileFails() {
    QCOMPARE(failureOf([&] { LoadPicture(m_folder->filePath(u"no"_s)); }),
             ErrorNumber::FileNotFound);
}

void LoadPictureTest::theClipboardHasThePictureAndItsOwnBytes() {
    const QByteArray bytes = picture("JPG");
    setClipboardPicture(LoadPicture(file(bytes)));
    const QMimeData* const data = QApplication::clipboard()->mimeData();
    QCOMPARE(data->data(u"image/jpeg"_s), bytes);
    QCOMPARE(qvariant_cast<QImage>(data->imageData()).size(), QSize(12, 8));
}

void LoadPictureTest::theClipboardHasAPictureOfAnotherKindToo() {
    setClipboardPicture(LoadPicture(file(picture("BMP"))));
    RichTextBox box;
    QVERIFY(box.CanPaste());
    box.Paste();
    QCOMPARE(box.Text(), u" "_s);
    QVERIFY(!bytesAt(box, 0).isEmpty());
}

void LoadPictureTest::anInsertedPictureReplacesTheSelection() {
    RichTextBox box;
    box.SetText(u"abcd"_s);
    box.SetSelStart(1);
    box.SetSelLength(2);
    box.InsertPicture(picture("PNG"));
    QCOMPARE(box.Text(), u"a d"_s);
    QCOMPARE(box.SelStart(), 2);
    QCOMPARE(box.SelLength(), 0);
}

void LoadPictureTest::anInsertedPictureKeepsItsBytes() {
    RichTextBox box;
    const QByteArray bytes = picture("JPG");
    box.InsertPicture(bytes);
    QCOMPARE(bytesAt(box, 0), bytes);
}

void LoadPictureTest::anInsertedPictureIsOneStepOfUndo() {
    RichTextBox box;
    box.SetText(u"abcd"_s);
    box.selectAll();
    box.InsertPicture(picture("PNG"));
    QCOMPARE(box.UndoType(), UndoKind::Paste);
    box.Undo();
    QCOMPARE(box.Text(), u"abcd"_s);
    QVERIFY(!box.CanUndo());
}

void LoadPictureTest::aPictureGoesInInsideABatchToo() {
    RichTextBox box;
    box.SetText(u"abcd"_s);
    {
        const RichTextBox::Batch batch(box);
        box.SetSelStart(1);
        box.SetSelLength(2);
        box.InsertPicture(picture("PNG"));
        QCOMPARE(failureOf([&] { box.InsertPicture("none"); }), ErrorNumber::InvalidPicture);
        QCOMPARE(box.SelStart(), 2);
        box.SetSelText(u"x"_s);
        QCOMPARE(box.Find(u"d"_s), 3);
    }
    QCOMPARE(box.Text(), u"a xd"_s);
}

void LoadPictureTest::aRefusedPictureChangesNothing() {
    RichTextBox box;
    box.SetText(u"abcd"_s);
    box.SetSelStart(1);
    box.SetSelLength(2);
    QCOMPARE(failureOf([&] { box.InsertPicture("no picture"); }), ErrorNumber::InvalidPicture);
    QCOMPARE(box.Text(), u"abcd"_s);
    QCOMPARE(box.SelText(), u"bc"_s);
    QVERIFY(!box.CanUndo());
}

ORVALIS_TEST_MAIN_WITH(QApplication, LoadPictureTest)
#include "load_picture_test.moc"
