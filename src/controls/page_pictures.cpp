// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/page_pictures.h"

#include "rtf/formats/format_properties.h"

#include <QFontMetricsF>
#include <QImage>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

#include <vector>

namespace orvalis {
namespace {

/// The size of a picture in logical pixels as the layout will take it.
QSizeF pictureSize(const QTextDocument& document, const QTextImageFormat& format) {
    QSizeF size(format.width(), format.height());
    if (size.width() > 0 && size.height() > 0)
        return size;
    const QVariant picture = document.resource(QTextDocument::ImageResource, QUrl(format.name()));
    const QSizeF own = picture.value<QImage>().size();
    if (own.isEmpty())
        return {};
    if (size.width() > 0)
        return own * (size.width() / own.width());
    return size.height() > 0 ? own * (size.height() / own.height()) : own;
}

} // namespace

void shrinkPictures(QTextDocument& document, const QSizeF& page) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextBlockFormat paragraph = block.blockFormat();
        const qreal room =
            page.width() - qMax(0.0, paragraph.leftMargin()) - qMax(0.0, paragraph.rightMargin());
        struct Picture {
            int position;
            QTextImageFormat format;
        };
        std::vector<Picture> shrunk;
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (!fragment.charFormat().isImageFormat())
                continue;
            QTextImageFormat format = fragment.charFormat().toImageFormat();
            if (format.hasProperty(rtf::HiddenPictureSize))
                continue;
            const QSizeF size = pictureSize(document, format);
            // Below the picture the line still has room for letters that reach under it.
            const qreal descent = QFontMetricsF(format.font()).descent() + 1;
            const QSizeF most(qMax(1.0, room), qMax(1.0, page.height() - descent));
            if (size.width() <= most.width() && size.height() <= most.height())
                continue;
            const QSizeF scaled = size.scaled(most, Qt::KeepAspectRatio);
            format.setWidth(scaled.width());
            format.setHeight(scaled.height());
            for (int at = 0; at < fragment.length(); ++at)
                shrunk.push_back({fragment.position() + at, format});
        }
        QTextCursor cursor(&document);
        for (const Picture& picture : shrunk) {
            cursor.setPosition(picture.position);
            cursor.setPosition(picture.position + 1, QTextCursor::KeepAnchor);
            cursor.setCharFormat(picture.format);
        }
    }
}

} // namespace orvalis
