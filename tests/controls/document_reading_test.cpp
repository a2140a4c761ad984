// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/document_reading.h"

#include "controls/rich_text_box.h"
#include "rtf/pictures/metafile_converter.h"
#include "support/test_main.h"

#include <QApplication>

using namespace orvalis;

namespace {

class CountingConverter final : public rtf::MetafileConverter {
public:
    int asked = 0;
    QImage convert(QByteArrayView, QSize pixels) override {
        ++asked;
        QImage image(pixels, QImage::Format_RGB32);
        image.fill(Qt::green);
        return image;
    }
};

/// A metafile of one rectangle: nothing but vectors in it.
const QByteArray VectorPicture =
    "{\\rtf1 a{\\pict\\wmetafile8\\picw1000\\pich1000\\picwgoal600\\pichgoal600 "
    "0100090000031300000000000700000000000700000 01b0464006400000000000300000000 00}b\\par}";

} // namespace

class DocumentReadingTest : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { setMetafileConverter(nullptr); }
    void theBoxHasVectorMetafilesDrawnByWhomTheProgramNames();
    void withoutAnybodyTheTextStillComes();
};

void DocumentReadingTest::theBoxHasVectorMetafilesDrawnByWhomTheProgramNames() {
    CountingConverter converter;
    setMetafileConverter(&converter);
    RichTextBox box;
    box.SetTextRTF(VectorPicture);
    QCOMPARE(converter.asked, 1);
    QCOMPARE(box.Text(), QStringLiteral("a b"));
}

void DocumentReadingTest::withoutAnybodyTheTextStillComes() {
    RichTextBox box;
    box.SetTextRTF(VectorPicture);
    QVERIFY(box.Text().startsWith(u'a'));
    QVERIFY(box.Text().endsWith(u'b'));
}

ORVALIS_TEST_MAIN_WITH(QApplication, DocumentReadingTest)
#include "document_reading_test.moc"
