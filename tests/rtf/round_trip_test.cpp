// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "document_comparison.h"
#include "rtf/formats/format_properties.h"
#include "rtf/formats/formats.h"
#include "rtf/formats/paragraph_place.h"
#include "rtf/pictures/device_bitmap.h"
#include "rtf/pictures/picture_format.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "sample_metafile.h"
#include "sample_rtf.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QRandomGenerator>
#include <QTextCursor>
#include <QTextDocument>

using namespace orvalis;
using namespace orvalis::rtf;

namespace {

constexpr int DefaultTab = 1200; // of a document that nobody has set one for

/// Makes documents of everything the writer can write, the same ones for the same seed.
class RandomDocument {
public:
    explicit RandomDocument(quint32 seed)
        : m_random(seed) {}

    void fill(QTextDocument& document) {
        QTextCursor cursor(&document);
        const int paragraphs = 1 + below(8);
        for (int i = 0; i < paragraphs; ++i) {
            if (i == 0)
                cursor.setBlockFormat(shape());
            else
                cursor.insertBlock(shape(), look());
            if (below(4) == 0)
                list(cursor);
            const int runs = below(5);
            for (int run = 0; run < runs; ++run)
                if (below(8) == 0)
                    picture(cursor);
                else
                    cursor.insertText(text(), below(6) == 0 ? hidden(look()) : look());
        }
    }

private:
    int below(int limit) { return int(m_random.bounded(limit)); }

    QString text() {
        static const QString pieces[] = {
            QStringLiteral("word"),   QStringLiteral(" "),      QStringLiteral("\\{}"),
            QStringLiteral("\t"),     QStringLiteral("\u2028"), QStringLiteral("caf\u00e9"),
            QStringLiteral("\u20ac"), QStringLiteral("\u0436"), QString::fromUcs4(U"\U0001f600"),
            QStringLiteral("-5"),     QStringLiteral("\u00a0"), QStringLiteral("\u00ad"),
            QStringLiteral("\u2011"), QStringLiteral("\u0081"), QStringLiteral("\u4e2d\u6587"),
            QStringLiteral("?"),      QStringLiteral("'b7"),    QStringLiteral("  ")};
        QString result;
        for (int i = 1 + below(4); i > 0; --i)
            result += pieces[below(int(std::size(pieces)))];
        return result;
    }

    QTextCharFormat look() {
        static const QString families[] = {QStringLiteral("Arial"), QStringLiteral("Times"),
                                           QStringLiteral("Symbol"),
                                           QStringLiteral("\u5b8b\u4f53")};
        QTextCharFormat format;
        format.setFontFamilies({families[below(4)]});
        format.setFontPointSize(6 + below(40) / 2.0);
        format.setFontWeight(below(3) == 0 ? QFont::Bold : QFont::Normal);
        format.setFontItalic(below(3) == 0);
        format.setFontStrikeOut(below(5) == 0);
        format.setUnderlineStyle(
            static_cast<QTextCharFormat::UnderlineStyle>(below(3) == 0 ? 1 + below(4) : 0));
        if (format.underlineStyle() == QTextCharFormat::SingleUnderline && below(2) == 0) {
            static constexpr Underline Kinds[] = {Underline::Words, Underline::Double,
                                                  Underline::Thick};
            format.setProperty(UnderlineKind, int(Kinds[below(3)]));
        }
        if (below(3) == 0)
            format.setForeground(QColor(below(256), below(256), below(256)));
        if (below(5) == 0)
            format.setBackground(QColor(below(256), below(256), below(256)));
        if (below(6) == 0)
            format.setVerticalAlignment(below(2) == 0 ? QTextCharFormat::AlignSuperScript
                                                      : QTextCharFormat::AlignSubScript);
        if (below(6) == 0)
            format.setBaselineOffset((below(25) - 12) * 50 / format.fontPointSize());
        if (below(4) == 0)
            format.setFontCapitalization(below(2) == 0 ? QFont::AllUppercase : QFont::SmallCaps);
        if (below(6) == 0) {
            format.setAnchor(true);
            format.setAnchorHref(QStringLiteral("http://a.b/%1?\"c\\d").arg(below(3)));
        }
        return format;
    }

    static QTextCharFormat hidden(QTextCharFormat format) {
        const bool automatic = format.foreground().style() == Qt::NoBrush;
        format.setProperty(HiddenText,
                           int(automatic ? AutomaticColor : format.foreground().color().rgb()));
        format.setForeground(QColor(Qt::transparent));
        format.setFontLetterSpacingType(QFont::PercentageSpacing);
        format.setFontLetterSpacing(1);
        return format;
    }

    void picture(QTextCursor& cursor) {
        const QImage image = test::sampleImage(1 + below(6), 1 + below(6));
        Picture picture;
        switch (below(4)) {
        case 0:
            picture.kind = PictureKind::Png;
            picture.bytes = test::encoded(image, "PNG");
            break;
        case 1:
            picture.kind = PictureKind::Jpeg;
            picture.bytes = test::encoded(image, "JPG");
            break;
        case 2:
            picture.kind = PictureKind::Wmf;
            picture.bytes = metafileOfDib(dibOfImage(image), image.size());
            break;
        default:
            picture.kind = PictureKind::Emf;
            picture.bytes = test::vectorEnhancedMetafile({0, 0, 2540, 2540});
        }
        if (below(2) == 0) {
            picture.goalWidth = 1 + below(2000);
            picture.goalHeight = 1 + below(2000);
        }
        PictureBounds bounds;
        QTextCharFormat format = look();
        format.merge(pictureFormat(*cursor.document(), picture, nullptr, bounds));
        cursor.insertImage(format.toImageFormat());
    }

    QTextBlockFormat shape() {
        static constexpr Qt::Alignment Alignments[] = {Qt::AlignLeft, Qt::AlignRight,
                                                       Qt::AlignHCenter, Qt::AlignJustify};
        QTextBlockFormat format;
        format.setAlignment(Alignments[below(4)]);
        ParagraphFormat place;
        place.rightToLeft = below(6) == 0;
        if (place.rightToLeft)
            format.setLayoutDirection(Qt::RightToLeft);
        place.left = below(3) * 360;
        place.first = below(3) * 150 - below(2) * 450;
        if (below(4) == 0)
            place.tabs = {{1500, QTextOption::RightTab, TabLeader::Dots}};
        place.right = below(2) * 240;
        placeParagraph(format, place, DefaultTab);
        format.setTopMargin(below(2) * 8);
        format.setBottomMargin(below(2) * 13);
        if (below(4) == 0)
            format.setLineHeight(150, QTextBlockFormat::ProportionalHeight);
        if (below(8) == 0)
            format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        return format;
    }

    void list(QTextCursor& cursor) {
        QTextBlockFormat format = cursor.blockFormat();
        ParagraphFormat place;
        place.rightToLeft = format.layoutDirection() == Qt::RightToLeft;
        (place.rightToLeft ? place.right : place.left) = 2880;
        place.first = -2880; // room for the longest of the labels
        place.list.kind = ListKind::Bullet;
        placeParagraph(format, place, DefaultTab);
        cursor.setBlockFormat(format);
        QTextListFormat style;
        style.setIndent(0);
        style.setStyle(static_cast<QTextListFormat::Style>(
            below(2) == 0 ? int(QTextListFormat::ListDisc)
                          : int(QTextListFormat::ListDecimal) - below(5)));
        if (style.style() != QTextListFormat::ListDisc)
            style.setNumberSuffix(QStringLiteral(")"));
        cursor.createList(style);
    }

    QRandomGenerator m_random;
};

} // namespace

class RoundTripTest : public QObject {
    Q_OBJECT
private slots:
    void randomDocumentsSurviveWritingAndReading();
    void theSameDocumentGivesTheSameBytes();
    void whatWasReadIsWrittenTheSameAgain();
    void neighbouringListsOfBulletsAreWrittenTheSameAgain();
    void aPictureAmongHiddenTextStays();
    void aHiddenPictureStaysHidden();
    void aPictureTooSmallToSeeStays();
    void everyPartOfADocumentCanBeWritten();
    void onlyAsciiIsWritten();
    void signsKeepTheirFontAndTheirCodes_data();
    void signsKeepTheirFontAndTheirCodes();
    void signsOfAFontWithoutACharsetStay();
};

void RoundTripTest::randomDocumentsSurviveWritingAndReading() {
    for (quint32 seed = 0; seed < 400; ++seed) {
        QTextDocument document;
        RandomDocument(seed).fill(document);
        const QByteArray written = writeRtf(document);
        QTextDocument again;
        QVERIFY(readRtf(written, again).ok());
        const QString difference = test::firstDifference(document, again);
        QVERIFY2(difference.isEmpty(),
                 qPrintable(QStringLiteral("seed %1: %2").arg(seed).arg(difference)));
        const QByteArray second = writeRtf(again);
        const auto parted =
            std::mismatch(written.begin(), written.end(), second.begin(), second.end());
        QVERIFY2(second == written, written.mid(parted.first - written.begin() - 60, 120) + "\n" +
                                        second.mid(parted.second - second.begin() - 60, 120));
    }
}

void RoundTripTest::theSameDocumentGivesTheSameBytes() {
    QTextDocument one;
    QTextDocument other;
    RandomDocument(7).fill(one);
    RandomDocument(7).fill(other);
    QCOMPARE(writeRtf(one), writeRtf(one));
    QCOMPARE(writeRtf(one), writeRtf(other));
}

void RoundTripTest::whatWasReadIsWrittenTheSameAgain() {
    QTextDocument document;
    QVERIFY(readRtf(test::richSample(), document).ok());
    const QByteArray written = writeRtf(document);
    QTextDocument again;
    QVERIFY(readRtf(written, again).ok());
    QCOMPARE(test::firstDifference(document, again), QString());
    QCOMPARE(writeRtf(again), written);
}

void RoundTripTest::neighbouringListsOfBulletsAreWrittenTheSameAgain() {
    QTextDocument document;
    QTextCursor cursor(&document);
    QTextListFormat bullets;
    bullets.setStyle(QTextListFormat::ListDisc);
    for (int item = 0; item < 3; ++item) {
        if (item > 0)
            cursor.insertBlock(QTextBlockFormat());
        cursor.createList(bullets);
        cursor.insertText(QStringLiteral("item"));
    }
    const QByteArray written = writeRtf(document);
    QTextDocument again;
    QVERIFY(readRtf(written, again).ok());
    QCOMPARE(writeRtf(again), written);
}

void RoundTripTest::aPictureAmongHiddenTextStays() {
    QTextDocument document;
    QTextCursor cursor(&document);
    readRtf("{\\rtf1\\v hidden\\par}", document);
    cursor.setPosition(3);
    PictureBounds bounds;
    QVERIFY(insertPicture(cursor, test::encoded(test::sampleImage(), "PNG"), nullptr, bounds));
    QTextDocument again;
    QVERIFY(readRtf(writeRtf(document), again).ok());
    QCOMPARE(again.toRawText(), QStringLiteral("hid\ufffcden"));
    QVERIFY(again.firstBlock().begin().fragment().charFormat().hasProperty(HiddenText));
}

void RoundTripTest::aHiddenPictureStaysHidden() {
    QTextDocument document;
    const QByteArray png = test::encoded(test::sampleImage(), "PNG");
    QVERIFY(readRtf("{\\rtf1 a{\\v{\\pict\\pngblip\\picwgoal600\\pichgoal300 " + png.toHex() +
                        "}}b\\par}",
                    document)
                .ok());
    QCOMPARE(document.toRawText(), QStringLiteral("a\ufffcb"));
    const QTextImageFormat format =
        (++document.firstBlock().begin()).fragment().charFormat().toImageFormat();
    QCOMPARE(format.width(), 0.0);
    QCOMPARE(format.height(), 0.0);
    document.setTextWidth(1000);
    const double width = document.idealWidth();
    QTextDocument without;
    readRtf("{\\rtf1 ab\\par}", without);
    without.setTextWidth(1000);
    QVERIFY(std::abs(width - without.idealWidth()) < 1);
    const QByteArray written = writeRtf(document);
    QVERIFY(written.contains(
        "\\v{\\*\\shppict{\\pict\\pngblip\\picw4\\pich3\\picwgoal600\\pichgoal300"));
    QTextDocument again;
    QVERIFY(readRtf(written, again).ok());
    QCOMPARE(test::firstDifference(document, again), QString());
    QCOMPARE(writeRtf(again), written);
}

void RoundTripTest::aPictureTooSmallToSeeStays() {
    QTextDocument document;
    const QByteArray png = test::encoded(test::sampleImage(), "PNG");
    QVERIFY(readRtf("{\\rtf1{\\pict\\pngblip\\picwgoal1\\picscalex10\\pichgoal300 " + png.toHex() +
                        "}\\par}",
                    document)
                .ok());
    const QByteArray written = writeRtf(document);
    QVERIFY(written.contains("\\picwgoal1\\pichgoal300"));
    QTextDocument again;
    QVERIFY(readRtf(written, again).ok());
    QCOMPARE(writeRtf(again), written);
}

void RoundTripTest::everyPartOfADocumentCanBeWritten() {
    QTextDocument document;
    QVERIFY(readRtf(test::richSample(), document).ok());
    const QString text = document.toRawText();
    for (int from = 0; from <= text.size(); from += 3) {
        for (int to = from; to <= text.size(); to += 5) {
            QTextDocument part;
            QVERIFY(readRtf(writeRtf(document, to, from), part).ok());
            QCOMPARE(part.toRawText(), text.mid(from, to - from));
        }
    }
}

void RoundTripTest::onlyAsciiIsWritten() {
    for (quint32 seed = 0; seed < 50; ++seed) {
        QTextDocument document;
        RandomDocument(seed).fill(document);
        const QByteArray written = writeRtf(document);
        QVERIFY(std::all_of(written.begin(), written.end(), [](char c) {
            return (c >= 0x20 && c < 0x7f) || c == '\r' || c == '\n';
        }));
        QVERIFY(written.startsWith("{\\rtf1\\ansi\\ansicpg1252\\deff0"));
        QVERIFY(written.endsWith("\\par\r\n}\r\n"));
    }
}

void RoundTripTest::signsKeepTheirFontAndTheirCodes_data() {
    QTest::addColumn<QByteArray>("font");
    for (const char* font :
         {"Symbol", "Standard Symbols L", "Wingdings", "Wingdings 2", "Wingdings 3", "Webdings"})
        QTest::newRow(font) << QByteArray(font);
}

void RoundTripTest::signsKeepTheirFontAndTheirCodes() {
    QFETCH(QByteArray, font);
    QByteArray codes;
    for (int code = 0x21; code <= 0xff; ++code)
        codes += "\\'" + QByteArray::number(code, 16);
    QTextDocument document;
    readRtf("{\\rtf1\\deff0{\\fonttbl{\\f0\\fnil\\fcharset2 " + font + ";}}\\f0 " + codes +
                "\\par}",
            document);
    QCOMPARE(document.firstBlock().begin().fragment().charFormat().fontFamilies().toStringList(),
             QStringList(QString::fromLatin1(font)));
    const QByteArray written = writeRtf(document);
    QVERIFY(written.contains("{\\f0\\fnil\\fcharset2 " + font + ";}"));
    QVERIFY(written.contains("\\f0\\fs24" + codes + "\\par"));
}

void RoundTripTest::signsOfAFontWithoutACharsetStay() {
    QTextDocument document;
    readRtf("{\\rtf1{\\fonttbl{\\f0\\fnil Symbol;}{\\f1\\fnil\\fcharset0 Wingdings;}}"
            "\\f0\\u-3913?b\\f1\\u-3844?\\par}",
            document);
    QCOMPARE(document.toRawText(), QStringLiteral("\u2022b\u2713"));
    QTextDocument again;
    readRtf(writeRtf(document), again);
    QCOMPARE(again.toRawText(), document.toRawText());
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, RoundTripTest)
#include "round_trip_test.moc"
