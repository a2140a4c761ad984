// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT

// draw_icons PICTURE.svg FOLDER SIZE...: draws the picture into FOLDER/SIZE.png for each size.

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fprintf(stderr, "usage: %s PICTURE.svg FOLDER SIZE...\n", argv[0]);
        return 2;
    }
    QSvgRenderer picture(QFile::decodeName(argv[1]));
    const QDir folder(QFile::decodeName(argv[2]));
    for (int i = 3; i < argc; ++i) {
        const int size = QByteArray(argv[i]).toInt();
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        picture.render(&painter);
        painter.end();
        const QString file = folder.filePath(QStringLiteral("%1.png").arg(size));
        if (!picture.isValid() || !image.save(file)) {
            std::fprintf(stderr, "%s cannot be drawn\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
