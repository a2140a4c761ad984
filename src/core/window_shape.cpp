// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/window_shape.h"

#include "platform/window_cutter.h"
#include "skin/skin.h"

#include <QEvent>
#include <QPainter>
#include <QWidget>

namespace orvalis {

namespace {

/// The colour of a picture's edge: that of the pixels which it covers in part, by how much it does.
QColor edgeColour(const QImage& picture) {
    quint64 red = 0;
    quint64 green = 0;
    quint64 blue = 0;
    quint64 weight = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const auto alpha = static_cast<quint64>(qAlpha(line[x]));
            if (alpha == 0 || alpha == 255)
                continue;
            red += static_cast<quint64>(qRed(line[x])) * alpha;
            green += static_cast<quint64>(qGreen(line[x])) * alpha;
            blue += static_cast<quint64>(qBlue(line[x])) * alpha;
            weight += alpha;
        }
    }
    if (weight == 0)
        return Qt::transparent;
    return QColor(static_cast<int>(red / weight), static_cast<int>(green / weight),
                  static_cast<int>(blue / weight));
}

/// Paints a window's ground before the window paints itself.
class Ground final : public QObject {
public:
    explicit Ground(QWidget& window)
        : QObject(&window) {
        setObjectName(QStringLiteral("windowGround"));
        window.installEventFilter(this);
    }

    QColor colour = Qt::transparent;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && colour.alpha() > 0) {
            auto* window = static_cast<QWidget*>(watched);
            QPainter painter(window);
            // A window that is no whole number of the screen's pixels has a last one of its own.
            painter.fillRect(window->rect().adjusted(0, 0, 1, 1), colour);
        }
        return false;
    }
};

Ground& groundOf(QWidget& window) {
    auto* ground =
        window.findChild<QObject*>(QStringLiteral("windowGround"), Qt::FindDirectChildrenOnly);
    return ground != nullptr ? static_cast<Ground&>(*ground) : *new Ground(window);
}

} // namespace

void wearShape(QWidget& window, const QString& picture, WindowCutter* cutter) {
    if (cutter == nullptr)
        return;
    Ground& ground = groundOf(window);
    if (!cutter->isNeeded()) {
        ground.colour = Qt::transparent;
        cutter->cut(window, {});
        return;
    }
    // Nothing lies behind what the cut leaves, and what the picture covers in part would be dark.
    const QImage shape = skin::pixmap(picture, window.size(), window.devicePixelRatioF())
                             .toImage()
                             .convertToFormat(QImage::Format_ARGB32);
    ground.colour = edgeColour(shape);
    cutter->cut(window, shape);
}

} // namespace orvalis
