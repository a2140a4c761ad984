// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/rich_clipboard.h"

#include "controls/control_marks.h"
#include "controls/document_reading.h"
#include "controls/dropped_files.h"
#include "controls/html_import.h"
#include "rtf/formats/format_properties.h"
#include "rtf/pictures/picture_format.h"
#include "rtf/pictures/picture_image.h"
#include "rtf/reader.h"
#include "rtf/writer.h"

#include <QHash>
#include <QImage>
#include <QMimeData>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>

#include <algorithm>
#include <iterator>

namespace orvalis {
namespace {

using namespace Qt::StringLiterals;

/// The names under which desktops and programs know RTF.
const QString RtfNames[] = {u"text/rtf"_s, u"application/rtf"_s, u"text/richtext"_s,
                            u"application/x-qt-windows-mime;value=\"Rich Text Format\""_s};
/// Names that some programs use beside these or instead of them.
const QString FurtherRtfNames[] = {u"Rich Text Format"_s, u"application/x-rtf"_s, u"text/x-rtf"_s};
const QString PictureNames[] = {u"image/png"_s, u"image/jpeg"_s};

QByteArray rtfOf(const QMimeData& data) {
    QByteArray bytes;
    const auto offers = [&](const QString& name) {
        bytes = data.data(name);
        return rtf::looksLikeRtf(bytes);
    };
    const bool offered =
        std::any_of(std::begin(RtfNames), std::end(RtfNames), offers) ||
        std::any_of(std::begin(FurtherRtfNames), std::end(FurtherRtfNames), offers);
    return offered ? bytes : QByteArray();
}

/// The picture's own bytes where they can be kept, so that a photograph stays as small as it is.
QByteArray pictureOf(const QMimeData& data) {
    for (const QString& name : PictureNames) {
        const QByteArray bytes = data.data(name);
        if (!bytes.isEmpty())
            return bytes;
    }
    const auto image = qvariant_cast<QImage>(data.imageData());
    return image.isNull() ? QByteArray() : rtf::pngOf(image);
}

bool offersPicture(const QMimeData& data) {
    return data.hasImage() || std::any_of(
                                  std::begin(PictureNames), std::end(PictureNames),
                                  [&](const QString& name) { return data.hasFormat(name); });
}

bool takePicture(const QMimeData& data, QTextCursor& selection) {
    const QByteArray bytes = pictureOf(data);
    rtf::PictureBounds bounds;
    return !bytes.isEmpty() &&
           rtf::insertPicture(selection, bytes, readOptions().metafiles, bounds);
}

/// Whether a part of a document holds nothing to see but boxes that stand for pictures.
bool holdsOnlyBoxes(const QTextDocument& document, int from, int to) {
    bool any = false;
    QTextBlock block = document.findBlock(from);
    for (; block.isValid() && block.position() < to; block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment run = it.fragment();
            if (run.position() >= to || run.position() + run.length() <= from)
                continue;
            const bool box = run.charFormat().boolProperty(rtf::PictureIsBox);
            any |= box;
            if (!box && !run.text().trimmed().isEmpty())
                return false;
        }
    }
    return any;
}

/// RTF that holds nothing we can show leaves the place to what comes beside it: some programs put
/// an object into it, or a picture of their own kind, and a common picture next to it.
bool takeRtf(const QMimeData& data, QTextCursor& selection) {
    const QByteArray rtf = rtfOf(data);
    if (rtf.isEmpty())
        return false;
    const int from = selection.selectionStart();
    rtf::insertRtf(rtf, selection, readOptions());
    const int to = selection.position();
    if (offersPicture(data) && holdsOnlyBoxes(*selection.document(), from, to)) {
        QTextCursor boxes(selection);
        boxes.setPosition(from);
        boxes.setPosition(to, QTextCursor::KeepAnchor);
        if (takePicture(data, boxes))
            selection = boxes;
    }
    return to > from;
}

/// The address of a picture that carries its bytes along, empty where no page could show it.
QString carriedPicture(const rtf::Picture& picture) {
    const bool jpeg = picture.kind == rtf::PictureKind::Jpeg;
    if (!jpeg && picture.kind != rtf::PictureKind::Png)
        return {};
    return (jpeg ? u"data:image/jpeg;base64,"_s : u"data:image/png;base64,"_s) +
           QString::fromLatin1(picture.bytes.toBase64());
}

/// The addresses of a selection's pictures by the names that they have here.
QHash<QString, QString> carriedPictures(const QTextCursor& selection) {
    QHash<QString, QString> carried;
    const QTextDocument& document = *selection.document();
    const int to = selection.selectionEnd();
    QTextBlock block = document.findBlock(selection.selectionStart());
    for (; block.isValid() && block.position() < to; block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            const QString name = format.toImageFormat().name();
            if (format.isImageFormat() && !carried.contains(name))
                carried.insert(
                    name, carriedPicture(rtf::pictureOfFormat(document, format.toImageFormat())));
        }
    }
    return carried;
}

/// HTML in which each picture carries its bytes along: the name it has here means nothing
/// elsewhere. Pictures that would make the whole larger than any program takes keep their names.
QString htmlOf(const QTextCursor& selection) {
    constexpr qsizetype LargestHtml = qsizetype{32} << 20; // characters
    const QString html = selection.selection().toHtml();
    const QHash<QString, QString> carried = carriedPictures(selection);
    if (carried.isEmpty())
        return html;
    const QString source = u"<img src=\""_s;
    QString whole;
    qsizetype done = 0;
    for (qsizetype at = html.indexOf(source); at >= 0; at = html.indexOf(source, done)) {
        const qsizetype name = at + source.size();
        const qsizetype end = html.indexOf(u'"', name);
        const QString address = carried.value(html.mid(name, end - name));
        const bool carries = !address.isEmpty() && whole.size() + address.size() <= LargestHtml;
        whole += QStringView(html).sliced(done, name - done);
        whole += carries ? QStringView(address) : QStringView(html).sliced(name, end - name);
        done = end;
    }
    return whole += QStringView(html).sliced(done);
}

/// A picture alone is offered as one too, to programs that know of nothing else.
void offerPicture(QMimeData& data, const QTextCursor& selection) {
    if (selection.selectionEnd() - selection.selectionStart() != 1)
        return;
    QTextCursor behind(selection);
    behind.setPosition(selection.selectionEnd());
    if (!behind.charFormat().isImageFormat())
        return;
    const rtf::Picture picture =
        rtf::pictureOfFormat(*selection.document(), behind.charFormat().toImageFormat());
    if (picture.kind == rtf::PictureKind::Png || picture.kind == rtf::PictureKind::Jpeg)
        data.setData(picture.kind == rtf::PictureKind::Png ? u"image/png"_s : u"image/jpeg"_s,
                     picture.bytes);
}

/// Line ends of other programs, as a document knows them.
QString withCrLf(QString text) {
    text.replace(u"\r\n"_s, u"\n"_s);
    text.replace(u'\r', u'\n');
    return text.replace(u"\n"_s, u"\r\n"_s);
}

bool takeBest(const QMimeData& data, QTextCursor& selection, const QTextCharFormat& plain) {
    if (takeRtf(data, selection))
        return true;
    // A browser offers a picture as a page that only points to it.
    if (offersPicture(data) && data.text().trimmed().isEmpty() && takePicture(data, selection))
        return true;
    if (takeFiles(data, selection, plain))
        return true;
    if (data.hasHtml() && insertHtml(selection, data.html(), plain))
        return true;
    if (data.hasText()) {
        selection.beginEditBlock();
        selection.removeSelectedText();
        insertPlain(selection, withCrLf(data.text()), plain);
        selection.endEditBlock();
        return true;
    }
    return offersPicture(data) && takePicture(data, selection);
}

} // namespace

std::unique_ptr<QMimeData> clipboardData(const QTextCursor& selection, const QString& plain) {
    auto data = std::make_unique<QMimeData>();
    const QByteArray rtf =
        rtf::writeRtf(*selection.document(), selection.selectionStart(), selection.selectionEnd());
    for (const QString& name : RtfNames)
        data->setData(name, rtf);
    data->setHtml(htmlOf(selection));
    data->setText(QString(plain).replace(u"\r\n"_s, u"\n"_s));
    offerPicture(*data, selection);
    return data;
}

bool canTake(const QMimeData& data) {
    return data.hasText() || data.hasHtml() || offersPicture(data) || !rtfOf(data).isEmpty();
}

bool takeClipboard(const QMimeData& data, QTextCursor& selection, const QTextCharFormat& plain) {
    selection.beginEditBlock();
    const bool taken = takeBest(data, selection, plain);
    selection.endEditBlock();
    return taken;
}

} // namespace orvalis
