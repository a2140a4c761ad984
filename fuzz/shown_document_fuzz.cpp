// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/control_marks.h"
#include "controls/html_import.h"
#include "rtf/reader.h"
#include "rtf/room/document_height.h"
#include "rtf/room/document_room.h"
#include "rtf/room/format_heights.h"
#include "rtf/room/uneven_words.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

using namespace orvalis;

namespace {

constexpr QSize Window(int(rtf::NarrowestBox), 160);
/// Seeds may be as large as what they stand for. What a fuzzer makes is small, for the sake of many
/// executions: the sizes and distances that add up are in few bytes as large as in many.
constexpr qsizetype LargestInput = ORVALIS_REPLAYS_SEEDS ? 8 << 20 : 1 << 10;

void require(bool held) {
    if (!held)
        std::abort();
}

/// A document as a narrow window shows it: laid out while it changes, and painted.
class Shown {
public:
    Shown() {
        m_document.setDocumentMargin(0);
        m_document.setTextWidth(Window.width());
        m_document.documentLayout();
    }

    QTextDocument& document() { return m_document; }

    void show() {
        const double height = m_document.documentLayout()->documentSize().height();
        // A run that was cut or split where the room ended stands in a line more, and a line can be
        // high; what must not be reached is the height at which no layout ends.
        const double told = rtf::documentHeight(m_document);
        require(told <= 1.5 * rtf::MostHeight);
        require(height < rtf::EndlessHeight);
        // What is told leaves an eighth, of which lines may lend one another a half.
        require(height <= (told + heightLent()) * rtf::EndlessHeight / rtf::MostHeight);
        paint(0);
        paint(height - Window.height());
    }

private:
    double heightLent() const {
        rtf::FormatHeights heights(m_document.defaultFont(), rtf::letterHeight);
        double height = 0;
        for (QTextBlock block = m_document.begin(); block.isValid(); block = block.next())
            height += rtf::heightLentInWords(block, heights);
        return height;
    }

    void paint(double top) {
        static QImage image(Window, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.translate(0, -top);
        m_document.drawContents(&painter, QRectF(QPointF(0, top), QSizeF(Window)));
    }

    QTextDocument m_document;
};

enum Way { Rtf, Text, Html, WayCount };

QByteArray asRtf(QByteArray bytes) {
    return rtf::looksLikeRtf(bytes) ? bytes : bytes.prepend("{\\rtf1 ");
}

void insert(QTextCursor& cursor, const QByteArray& bytes, int way) {
    switch (way) {
    case Rtf:
        rtf::insertRtf(asRtf(bytes), cursor);
        break;
    case Text:
        insertPlain(cursor, QString::fromUtf8(bytes), cursor.charFormat());
        break;
    case Html:
        insertHtml(cursor, QString::fromUtf8(bytes), cursor.charFormat());
        break;
    default:
        break;
    }
}

/// What people do to all of a document.
void change(QTextCursor& all, int which, int amount) {
    QTextCharFormat letters;
    QTextBlockFormat paragraphs;
    switch (which) {
    case 0:
        letters.setFontPointSize(std::max(amount, 1)); // no window asks for less
        break;
    case 1:
        letters.setFontFamilies({QStringLiteral("DejaVu Sans Mono")});
        letters.setFontWeight(QFont::Bold);
        break;
    case 2:
        paragraphs.setLeftMargin(amount);
        if (rtf::fitsParagraphs(all, paragraphs))
            all.mergeBlockFormat(paragraphs);
        return;
    default:
        return;
    }
    all.mergeCharFormat(rtf::fittingFormat(all, letters));
}

/// The input with all behind its first bar repeated, as often as can be.
QByteArray spelledOut(const QByteArray& input, int power) {
    const qsizetype bar = input.indexOf('|');
    if (bar < 0)
        return input;
    const QByteArray piece = input.mid(bar + 1);
    const qsizetype times = std::min(qsizetype(1) << power, LargestInput / (piece.size() + 1) + 1);
    return input.first(bar) + piece.repeated(times);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // A system of few fonts: which one stands in for an unknown family is looked up for each.
    static const QTemporaryDir folder;
    const QString fonts = folder.filePath(QStringLiteral("fonts.conf"));
    QFile file(fonts);
    require(file.open(QIODevice::WriteOnly));
    file.write("<fontconfig><dir>/usr/share/fonts/truetype/dejavu</dir><cachedir>" +
               folder.path().toUtf8() + "</cachedir></fontconfig>");
    file.close();
    qputenv("FONTCONFIG_FILE", fonts.toLocal8Bit());
    new QGuiApplication(*argc, *argv);
    return 0;
}

/// Whatever comes in, in whichever way and however often, can be shown. The first byte is the way,
/// the second how often what stands behind a bar comes again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2)
        return 0;
    const int way = data[0] % WayCount;
    const int power = data[1] % 24;
    const QByteArray bytes =
        spelledOut(QByteArray(reinterpret_cast<const char*>(data) + 2, qsizetype(size) - 2), power);
    Shown shown;
    QTextDocument& document = shown.document();
    if (way == Rtf) {
        rtf::readRtf(asRtf(bytes), document);
        shown.show();
    }
    QTextCursor cursor(&document);
    cursor.setPosition(document.characterCount() / 2);
    insert(cursor, bytes, way);
    cursor.movePosition(QTextCursor::End);
    insert(cursor, "again ", Text);
    shown.show();
    cursor.select(QTextCursor::Document);
    change(cursor, int(size % 4), data[1]);
    shown.show();
    document.undo();
    shown.show();
    return 0;
}
