// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/document_reading.h"
#include "controls/rich_text_box.h"
#include "rtf/pictures/metafile_converter.h"
#include "rtf/room/document_room.h"
#include "shown_box.h"
#include "support/counted_memory.h"
#include "support/temporary_folder.h"
#include "support/test_main.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QMimeData>
#include <QTextBlock>
#include <QUrl>

using namespace orvalis;
using namespace Qt::StringLiterals;
using namespace orvalis::test;

namespace {

void paste(RichTextBox& box, QMimeData* data) {
    QApplication::clipboard()->setMimeData(data);
    box.Paste();
}

void pasteText(RichTextBox& box, const QString& text) {
    auto* const data = new QMimeData;
    data->setText(text);
    paste(box, data);
}

void pasteHtml(RichTextBox& box, const QString& html) {
    auto* const data = new QMimeData;
    data->setHtml(html);
    paste(box, data);
}

QByteArray pngOf(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

/// Pictures of one pixel, each of a colour of its own.
QByteArrayList manyPictures(int count) {
    QByteArrayList pictures;
    for (int i = 0; i < count; ++i) {
        QImage image(1, 1, QImage::Format_RGB32);
        image.fill(qRgb(i / 256, i % 256, 0));
        pictures << pngOf(image);
    }
    return pictures;
}

QByteArray rtfOf(const QByteArrayList& pictures) {
    QByteArray rtf = "{\\rtf1 ";
    for (const QByteArray& png : pictures)
        rtf += "{\\pict\\pngblip " + png.toHex() + '}';
    return rtf + '}';
}

qint64 pixelsHeld(const QTextDocument& document) {
    QSet<QString> names;
    qint64 pixels = 0;
    for (const QTextFormat& format : document.allFormats()) {
        const QString name = format.toImageFormat().name();
        if (!format.isImageFormat() || names.contains(name))
            continue;
        names.insert(name);
        const auto image =
            document.resource(QTextDocument::ImageResource, QUrl(name)).value<QImage>();
        pixels += image.sizeInBytes() / 4;
    }
    return pixels;
}

class GreenConverter final : public rtf::MetafileConverter {
public:
    QImage convert(QByteArrayView, QSize pixels) override {
        QImage image(pixels, QImage::Format_RGB32);
        image.fill(Qt::green);
        return image;
    }
};

const QByteArray VectorMetafile = QByteArray::fromHex("0100090000031300000000000700000000000700000"
                                                      "01b0464006400000000000300000000"
                                                      "00");

} // namespace

class HostilePasteTest : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { setMetafileConverter(nullptr); }
    void pagesOfHtmlOfAnyHeightAreShown_data();
    void pagesOfHtmlOfAnyHeightAreShown();
    void pastingAgainAndAgainEndsWhereTheDocumentIsFull();
    void thePicturesOfOnePageHaveACommonBound();
    void aMetafileThatIsDroppedAsAFileIsDrawn();
    void eachCopyOfAPictureCarriesIt();
    void whatACopyTakesGrowsWithItsPicturesAndNoFaster();
};

void HostilePasteTest::pagesOfHtmlOfAnyHeightAreShown_data() {
    QTest::addColumn<QString>("html");
    QTest::newRow("many paragraphs") << u"<p>a</p>"_s.repeated(200'000);
    QTest::newRow("huge letters") << u"<p style='font-size:99999999pt'>a</p>"_s.repeated(5000);
    QTest::newRow("letters of many pixels")
        << u"<p style='font-size:999999px'>a</p>"_s.repeated(5000);
    QTest::newRow("a long word") << QString(2'000'000, u'a');
    QTest::newRow("line breaks") << u"a<br>"_s.repeated(300'000);
    QTest::newRow("cells") << u"<table>"_s + u"<tr><td>a</td><td>b</td></tr>"_s.repeated(5000) +
                                  u"</table>"_s;
    QTest::newRow("nested lists") << u"<ul><li>a"_s.repeated(2000);
    QTest::newRow("nested blocks") << u"<div>a"_s.repeated(5000);
    QTest::newRow("nested tables") << u"<table><tr><td>a"_s.repeated(500);
    QString fonts;
    for (int i = 0; i < 20'000; ++i)
        fonts += u"<span style='font-family:F%1'>a</span>"_s.arg(i);
    QTest::newRow("fonts") << fonts;
}

void HostilePasteTest::pagesOfHtmlOfAnyHeightAreShown() {
    QFETCH(QString, html);
    RichTextBox box;
    pasteHtml(box, html);
    QVERIFY(box.Text().startsWith(u'a'));
    showAndType(box);
    QVERIFY(heightOf(box) < rtf::EndlessHeight);
}

void HostilePasteTest::pastingAgainAndAgainEndsWhereTheDocumentIsFull() {
    RichTextBox box;
    const QString text = u"word "_s.repeated(100'000) + u'\n';
    int length = 0;
    for (int time = 0; time < 20; ++time) {
        pasteText(box, text);
        length = int(box.document()->characterCount());
    }
    QVERIFY2(length > 5'000'000 && length <= rtf::MostCharacters,
             qPrintable(QString::number(length)));
    pasteText(box, text);
    QCOMPARE(box.document()->characterCount(), length);
    showAndType(box);
    QVERIFY(heightOf(box) < rtf::EndlessHeight);
}

void HostilePasteTest::thePicturesOfOnePageHaveACommonBound() {
    constexpr int Pictures = 8;
    QString html;
    for (int i = 0; i < Pictures; ++i) {
        QImage image(4000, 1000, QImage::Format_RGB32);
        image.fill(QColor::fromHsv(i * 40, 255, 255));
        html += u"<p>a<img src='data:image/png;base64,"_s +
                QString::fromLatin1(pngOf(image).toBase64()) + u"'>"_s;
    }
    RichTextBox box;
    pasteHtml(box, html);
    QCOMPARE(box.Text().count(u'a'), Pictures);
    const qint64 pixels = pixelsHeld(*box.document());
    QVERIFY2(pixels >= 4'000'000 && pixels <= 8'400'000, qPrintable(QString::number(pixels)));
}

void HostilePasteTest::aMetafileThatIsDroppedAsAFileIsDrawn() {
    GreenConverter converter;
    setMetafileConverter(&converter);
    const TemporaryFolder folder;
    auto* const data = new QMimeData;
    data->setUrls({QUrl::fromLocalFile(folder.write(u"drawing.wmf"_s, VectorMetafile))});
    RichTextBox box;
    paste(box, data);
    const QTextCharFormat format = box.document()->firstBlock().begin().fragment().charFormat();
    QVERIFY(format.isImageFormat());
    const auto image =
        box.document()
            ->resource(QTextDocument::ImageResource, QUrl(format.toImageFormat().name()))
            .value<QImage>();
    QCOMPARE(image.pixelColor(1, 1), QColor(Qt::green));
}

void HostilePasteTest::eachCopyOfAPictureCarriesIt() {
    const QByteArrayList pictures = manyPictures(800);
    RichTextBox box;
    box.SetTextRTF(rtfOf(pictures));
    QStringList carried;
    for (const QByteArray& png : pictures)
        carried << QString::fromLatin1(png.toBase64());
    box.selectAll();
    box.Copy();
    const QString html = QApplication::clipboard()->mimeData()->html();
    qsizetype at = 0;
    for (const QString& picture : std::as_const(carried)) {
        at = html.indexOf(u"<img src=\"data:image/png;base64,"_s + picture + u'"', at);
        QVERIFY(at >= 0);
    }
}

/// Bytes that are written, pictures that are read and made, texts that make room for them, all of
/// it takes memory or moves it: four times as many pictures take four times as much, and not
/// sixteen.
void HostilePasteTest::whatACopyTakesGrowsWithItsPicturesAndNoFaster() {
    const auto takenBy = [](int pictures) {
        RichTextBox box;
        box.SetTextRTF(rtfOf(manyPictures(pictures)));
        box.selectAll();
        const TakenMemory taken = memoryTakenBy([&] { box.Copy(); });
        return taken.asked + taken.shifted;
    };
    takenBy(1); // the first one takes what all share
    const qint64 few = takenBy(200);
    const qint64 many = takenBy(800);
    QCOMPARE(few > 0, CountsMemory);
    QVERIFY2(many <= 5 * few, qPrintable(u"%1 and %2 bytes"_s.arg(few).arg(many)));
}

ORVALIS_TEST_MAIN_WITH(QApplication, HostilePasteTest)
#include "hostile_paste_test.moc"
