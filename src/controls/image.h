// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/clickable_label.h"
#include "controls/picture_source.h"

namespace orvalis {

/// A picture on a form, which can be a button. It fills its own area with the picture, drawn for
/// the device pixel ratio of the window it is in. A tool tip, trimmed, is also its accessible name.
class Image : public ClickableLabel {
    Q_OBJECT
public:
    explicit Image(QWidget* parent = nullptr);
    explicit Image(const QString& name, QWidget* parent = nullptr);

    const PictureSource& Picture() const { return m_picture; }
    /// Shows another picture. An image that was never given a size takes the picture's own.
    void setPicture(const PictureSource& picture);
    /// The picture shown while the pointer is on the control; without one, the picture itself. It
    /// is none of what Picture() tells.
    void setHoverPicture(const PictureSource& picture);
    /// The picture shown while the control is disabled; without one, the picture in faint grey.
    void setDisabledPicture(const PictureSource& picture);
    /// The handle of the picture on show; 0 without one.
    qint64 handle() const;

    QString spokenName() const override;
    QSize sizeHint() const override { return m_picture.size(); }
    QSize minimumSizeHint() const override { return {}; }

protected:
    bool event(QEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void setHovered(bool hovered);
    const PictureSource& pictureOnShow() const;
    void render();
    QPixmap disabledPixmap() const;

    PictureSource m_picture;
    PictureSource m_hoverPicture;
    PictureSource m_disabledPicture;
    bool m_hovered = false;
};

} // namespace orvalis
