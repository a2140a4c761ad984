// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>
#include <QPixmap>
#include <QSize>

#include <functional>
#include <memory>

class QDataStream;

namespace orvalis {

/// A picture that can be had at any size and any device pixel ratio. Copies share one picture, and
/// each rendering is made once: the same picture at the same size and ratio gives the same pixmap,
/// so that its cacheKey() serves as the picture's handle.
class PictureSource {
public:
    /// Draws the picture. \a size is in logical pixels; the pixmap returned is to carry \a ratio.
    using Renderer = std::function<QPixmap(const QSize& size, qreal ratio)>;

    /// No picture.
    PictureSource() = default;
    /// A picture of fixed pixels, such as a photograph: scaled where another size is asked for.
    PictureSource(const QPixmap& pixmap); // NOLINT(google-explicit-constructor): stands for it
    /// A picture drawn anew for each size and ratio. \a size is its own size in logical pixels.
    PictureSource(const QSize& size, Renderer renderer);

    bool isNull() const { return !m_picture; }
    /// The picture's own size in logical pixels; empty for no picture.
    QSize size() const;
    /// The picture at the size (logical pixels) and ratio given.
    QPixmap pixmap(const QSize& size, qreal ratio) const;

    /// Whether both are the same picture: the comparison of handles.
    friend bool operator==(const PictureSource& a, const PictureSource& b) {
        return a.m_picture == b.m_picture;
    }
    friend bool operator!=(const PictureSource& a, const PictureSource& b) { return !(a == b); }

    /// Stores the picture in its own size. What is read back is a picture of these pixels.
    friend QDataStream& operator<<(QDataStream& stream, const PictureSource& picture);
    friend QDataStream& operator>>(QDataStream& stream, PictureSource& picture);

private:
    struct Shared;
    std::shared_ptr<Shared> m_picture;
};

} // namespace orvalis

Q_DECLARE_METATYPE(orvalis::PictureSource)
