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
    if (m_picture == picture)
        return;
    m_picture = picture;
    if (!testAttribute(Qt::WA_Resized) && !picture.isNull())
        resize(picture.size());
    render();
}

void Image::setHoverPicture(const PictureSource& picture) {
    m_hoverPicture = picture;
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

void Image::setHovered(bool hovered) {
    if (m_hovered == hovered)
        return;
    m_hovered = hovered;
    if (!m_hoverPicture.isNull())
        render();
}

const PictureSource& Image::pictureOnShow() const {
    return m_hovered && !m_hoverPicture.isNull() ? m_hoverPicture : m_picture;
}

void Image::render() {
    setPixmap(pictureOnShow().pixmap(size(), devicePixelRatioF()));
}

QPixmap Image::disabledPixmap() const {
    if (!m_disabledPicture.isNull())
        return m_disabledPicture.pixmap(size(), devicePixelRatioF());
    QStyleOption option;
    option.initFrom(this);
    return style()->generatedIconPixmap(QIcon::Disabled, pixmap(), &option);
}

bool Image::event(QEvent* event) {
    if (event->type() == QEvent::ToolTipChange)
        setAccessibleName(toolTip().trimmed());
    return ClickableLabel::event(event);
}

void Image::enterEvent(QEnterEvent* event) {
    // First, since a listener may delete the image.
    setHovered(true);
    ClickableLabel::enterEvent(event);
}

void Image::leaveEvent(QEvent* event) {
    setHovered(false);
    ClickableLabel::leaveEvent(event);
}

void Image::hideEvent(QHideEvent* event) {
    // What is hidden under the pointer is not told that the pointer has gone.
    setHovered(false);
    ClickableLabel::hideEvent(event);
}

void Image::paintEvent(QPaintEvent*) {
    // The window may have come to a screen of another ratio since the picture was drawn.
    if (!pictureOnShow().isNull() && pixmap().devicePixelRatio() != devicePixelRatioF())
        render();
    if (pixmap().isNull())
        return;
    QPainter(this).drawPixmap(rect(), isEnabled() ? pixmap() : disabledPixmap());
    paintFocusMark();
}

void Image::resizeEvent(QResizeEvent* event) {
    ClickableLabel::resizeEvent(event);
    render();
}

} // namespace orvalis
