// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/picture_source.h"

#include <QDataStream>

#include <algorithm>
#include <vector>

namespace orvalis {

namespace {
// A picture is on show at few sizes at a time: its own, a scaled one, and those of a screen left.
constexpr std::size_t KeptRenderings = 6;
} // namespace

struct PictureSource::Shared {
    struct Rendering {
        QSize size;
        qreal ratio;
        QPixmap pixmap;
    };

    QSize size;
    Renderer renderer;
    std::vector<Rendering> renderings;
};

PictureSource::PictureSource(const QPixmap& pixmap) {
    if (pixmap.isNull())
        return;
    const QSize own = pixmap.deviceIndependentSize().toSize();
    *this = PictureSource(own, [pixmap](const QSize& size, qreal ratio) {
        const QSize pixels = (QSizeF(size) * ratio).toSize();
        if (pixels == pixmap.size() && pixmap.devicePixelRatio() == ratio)
            return pixmap;
        return pixmap.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    });
}

PictureSource::PictureSource(const QSize& size, Renderer renderer)
    : m_picture(std::make_shared<Shared>(Shared{size, std::move(renderer), {}})) {}

QSize PictureSource::size() const {
    return m_picture ? m_picture->size : QSize();
}

QPixmap PictureSource::pixmap(const QSize& size, qreal ratio) const {
    if (!m_picture || size.isEmpty())
        return {};
    auto& kept = m_picture->renderings;
    const auto found = std::find_if(kept.cbegin(), kept.cend(), [&](const auto& rendering) {
        return rendering.size == size && rendering.ratio == ratio;
    });
    if (found != kept.cend())
        return found->pixmap;
    QPixmap made = m_picture->renderer(size, ratio);
    if (made.devicePixelRatio() != ratio)
        made.setDevicePixelRatio(ratio);
    if (kept.size() == KeptRenderings)
        kept.erase(kept.begin());
    kept.push_back({size, ratio, made});
    return made;
}

QDataStream& operator<<(QDataStream& stream, const PictureSource& picture) {
    return stream << picture.pixmap(picture.size(), 1);
}

QDataStream& operator>>(QDataStream& stream, PictureSource& picture) {
    QPixmap pixmap;
    stream >> pixmap;
    picture = PictureSource(pixmap);
    return stream;
}

} // namespace orvalis
