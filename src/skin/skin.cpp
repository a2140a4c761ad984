// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "skin/skin.h"

#include "skin/picture_icon.h"

#include <QDataStream>
#include <QDir>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QPicture>
#include <QResource>

#include <map>
#include <tuple>

using namespace Qt::StringLiterals;

// The pictures are linked in with a static library: without this call the linker would drop them.
// The macro must be used outside of every namespace.
static void registerPictures() {
    Q_INIT_RESOURCE(skin_pictures);
}

namespace orvalis::skin {

namespace {

constexpr auto Folder = ":/skin/"_L1;
constexpr auto Suffix = ".pic"_L1;

QString pathOf(QStringView name) {
    return Folder + name.toString() + Suffix;
}

void ensurePictures() {
    static const bool registered = [] {
        registerPictures();
        return true;
    }();
    Q_UNUSED(registered)
}

struct Record {
    QSize size;
    QString base;
    QPicture picture;
};

// The record of a picture, read once from the executable; an empty one for an unknown name.
const Record& recordOf(QStringView name) {
    static std::map<QString, Record> records;
    const QString key = name.toString();
    const auto found = records.find(key);
    if (found != records.end())
        return found->second;
    ensurePictures();
    Record record;
    const QResource resource(pathOf(name));
    if (resource.isValid()) {
        QDataStream stream(resource.uncompressedData());
        stream.setVersion(QDataStream::Qt_6_4);
        stream >> record.size >> record.base >> record.picture;
    } else {
        qWarning("skin: no picture \"%ls\"", qUtf16Printable(key));
    }
    return records.emplace(key, record).first->second;
}

// Replays what the picture has of its own, without its base, into the rectangle.
void replay(QPainter& painter, const Record& record, const QRectF& target) {
    painter.save();
    painter.translate(target.topLeft());
    painter.scale(target.width() / record.size.width(), target.height() / record.size.height());
    // Playing changes nothing that is seen from outside, yet is not const.
    QPicture picture = record.picture;
    picture.play(&painter);
    painter.restore();
}

using PixmapKey = std::tuple<QString, int, int, qreal>;

} // namespace

QStringList names() {
    ensurePictures();
    QStringList found;
    for (const QString& file : QDir(Folder).entryList(QDir::Files, QDir::Name))
        found.append(file.chopped(Suffix.size()));
    return found;
}

bool exists(QStringView name) {
    ensurePictures();
    return QResource(pathOf(name)).isValid();
}

QSize size(QStringView name) {
    return recordOf(name).size;
}

void paint(QPainter& painter, QStringView name, const QRectF& target) {
    const Record& record = recordOf(name);
    if (record.size.isEmpty())
        return;
    if (!record.base.isEmpty())
        replay(painter, recordOf(record.base), target);
    replay(painter, record, target);
}

QPixmap pixmap(QStringView name, QSize logicalSize, qreal devicePixelRatio) {
    static std::map<PixmapKey, QPixmap> cache;
    if (logicalSize.isEmpty() || size(name).isEmpty())
        return {};
    QPixmap& pixmap = cache[PixmapKey(name.toString(), logicalSize.width(), logicalSize.height(),
                                      devicePixelRatio)];
    if (!pixmap.isNull())
        return pixmap;
    // Buttons share their plate: it is drawn once and copied.
    const Record& record = recordOf(name);
    if (record.base.isEmpty()) {
        pixmap = QPixmap((QSizeF(logicalSize) * devicePixelRatio).toSize());
        pixmap.setDevicePixelRatio(devicePixelRatio);
        pixmap.fill(Qt::transparent);
    } else {
        pixmap = skin::pixmap(record.base, logicalSize, devicePixelRatio);
    }
    QPainter painter(&pixmap);
    replay(painter, record, QRectF(QPointF(), logicalSize));
    return pixmap;
}

QPixmap pixmap(QStringView name, qreal devicePixelRatio) {
    return pixmap(name, size(name), devicePixelRatio);
}

QIcon icon(QStringView name) {
    return exists(name) ? QIcon(new PictureIconEngine(name.toString())) : QIcon();
}

} // namespace orvalis::skin
