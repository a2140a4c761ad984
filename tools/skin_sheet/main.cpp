// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// skin_sheet <output.png> [scale] [pattern]: lays all pictures (or those whose name matches the
// regular expression) out on one sheet, each above its name, to be looked at.
#include "skin/skin.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace orvalis;

namespace {

constexpr int Width = 1100;
constexpr int Gap = 14;
constexpr int Caption = 14;
constexpr int Narrowest = 96;

struct Place {
    QString name;
    QRect rect;
};

QList<Place> layOut(const QRegularExpression& pattern, int& height) {
    QList<Place> places;
    int x = Gap;
    int y = Gap;
    int row = 0;
    for (const QString& name : skin::names()) {
        if (!pattern.match(name).hasMatch())
            continue;
        const QSize size = skin::size(name);
        const int width = qMax(size.width(), Narrowest);
        if (x > Gap && x + width + Gap > Width) {
            x = Gap;
            y += row + Caption + Gap;
            row = 0;
        }
        places.append({name, QRect(QPoint(x, y), size)});
        x += width + Gap;
        row = qMax(row, size.height());
    }
    height = y + row + Caption + Gap;
    return places;
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    if (arguments.size() < 2) {
        QTextStream(stderr) << "usage: skin_sheet <output.png> [scale] [pattern]\n";
        return 2;
    }
    const qreal scale = arguments.size() > 2 ? arguments[2].toDouble() : 1;
    int height = 0;
    const QList<Place> places = layOut(QRegularExpression(arguments.value(3)), height);
    QImage sheet((QSizeF(Width, height) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    sheet.setDevicePixelRatio(scale);
    sheet.fill(QColor(0xD6, 0xD8, 0xD9));
    QPainter painter(&sheet);
    QFont font;
    font.setPixelSize(9);
    painter.setFont(font);
    for (const Place& place : places) {
        painter.drawPixmap(place.rect.topLeft(),
                           skin::pixmap(place.name, place.rect.size(), scale));
        painter.drawText(place.rect.left(), place.rect.bottom() + Caption - 2, place.name);
    }
    painter.end();
    return sheet.save(arguments[1]) ? 0 : 1;
}
