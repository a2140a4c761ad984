// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "skin/picture_icon.h"

#include "skin/skin.h"

#include <QPaintDevice>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace orvalis::skin {

namespace {

constexpr int TinyUpTo = 20;
constexpr qreal DisabledOpacity = 0.4;

} // namespace

PictureIconEngine::PictureIconEngine(QString name)
    : m_name(std::move(name)) {}

QString PictureIconEngine::nameFor(int devicePixels) const {
    const QString tiny = m_name + u"_tiny"_s;
    return devicePixels <= TinyUpTo && skin::exists(tiny) ? tiny : m_name;
}

void PictureIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
                              QIcon::State) {
    const qreal ratio = painter->device()->devicePixelRatio();
    painter->save();
    if (mode == QIcon::Disabled)
        painter->setOpacity(painter->opacity() * DisabledOpacity);
    skin::paint(*painter, nameFor(qRound(rect.width() * ratio)), rect);
    painter->restore();
}

QPixmap PictureIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
}

QList<QSize> PictureIconEngine::availableSizes(QIcon::Mode, QIcon::State) {
    return {{16, 16}, {22, 22}, {24, 24}, {32, 32}, {48, 48}, {64, 64}};
}

QIconEngine* PictureIconEngine::clone() const {
    return new PictureIconEngine(m_name);
}

QString PictureIconEngine::key() const {
    return u"orvalis-picture"_s;
}

} // namespace orvalis::skin
