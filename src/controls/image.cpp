// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/image.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace orvalis {

Image::Image(QWidget* parent)
    : ClickableLabel(parent) {}

Image::Image(const QString& name, QWidget* parent)
    : Image(parent) {
    setObjectName(name);
}

void Image::setPicture(const PictureSource& picture) {
    if (m_picture == picture) {
        return;
    }
    m_picture = picture;
    if (!testAttribute(Qt::WA_Resized) && !picture.isNull()) {
        resize(picture.size());
    }
    render();
}

void Image::setDisabledPicture(const PictureSource& picture) {
    m_disabledPicture = picture;
    update();
}

qint64 Image::handle() const {
    const QPixmap shown = pixmap();
    return shown.isNull() ? 0 : shown.cacheKey();
}

QString Image::spokenName() const {
    return accessibleName();
}

void Image::render() {
    setPixmap(m_picture.pixmap(size(), devicePixelRatioF()));
}

QPixmap Image::disabledPixmap() const {
    if (!m_disabledPicture.isNull()) {
        return m_disabledPicture.pixmap(size(), devicePixelRatioF());
    }
    QStyleOption option;
    option.initFrom(this);
    return style()->generatedIconPixmap(QIcon::Disabled, pixmap(), &option);
}

bool Image::event(QEvent* event) {
    if (event->type() == QEvent::ToolTipChange) {
        setAccessibleName(toolTip().trimmed());
    }
    return ClickableLabel::event(event);
}

void Image::paintEvent(QPaintEvent*) {
    // The window may have come to a screen of another ratio since the picture was drawn.
    if (!m_picture.isNull() && pixmap().devicePixelRatio() != devicePixelRatioF()) {
        render();
    }
    if (pixmap().isNull()) {
        return;
    }
    QPainter painter(this);
    painter.drawPixmap(rect(), isEnabled() ? pixmap() : disabledPixmap());
}

void Image::resizeEvent(QResizeEvent* event) {
    ClickableLabel::resizeEvent(event);
    render();
}

} // namespace orvalis
