// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/window_cut.h"

#include <QGuiApplication>
#include <QWidget>

#include <xcb/shape.h>
#include <xcb/xcb.h>

#include <vector>

namespace orvalis {

namespace {

constexpr int HalfOpaque = 127;

bool knowsShapes(xcb_connection_t* connection) {
    const xcb_query_extension_reply_t* shapes = xcb_get_extension_data(connection, &xcb_shape_id);
    return shapes && shapes->present;
}

} // namespace

QList<QRect> opaqueRows(const QImage& picture) {
    const QImage alpha = picture.convertToFormat(QImage::Format_Alpha8);
    QList<QRect> rows;
    for (int y = 0; y < alpha.height(); ++y) {
        const uchar* line = alpha.constScanLine(y);
        int left = 0;
        int right = alpha.width() - 1;
        while (left <= right && line[left] <= HalfOpaque)
            ++left;
        while (right >= left && line[right] <= HalfOpaque)
            --right;
        if (left > right)
            continue;
        if (!rows.isEmpty() && rows.constLast().left() == left &&
            rows.constLast().right() == right && rows.constLast().bottom() == y - 1)
            rows.last().setBottom(y);
        else
            rows.append(QRect(QPoint(left, y), QPoint(right, y)));
    }
    return rows;
}

void cutWindow(QWidget& window, const QImage& picture) {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // Platforms without a display server answer too, with no connection.
    if (!x11 || !x11->connection() || !window.internalWinId() || !knowsShapes(x11->connection()))
        return;
    const auto handle = static_cast<xcb_window_t>(window.internalWinId());
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect& row : opaqueRows(picture))
        rectangles.push_back({static_cast<qint16>(row.x()), static_cast<qint16>(row.y()),
                              static_cast<quint16>(row.width()),
                              static_cast<quint16>(row.height())});
    if (rectangles.empty())
        xcb_shape_mask(x11->connection(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, handle, 0, 0,
                       XCB_PIXMAP_NONE);
    else
        xcb_shape_rectangles(x11->connection(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING,
                             XCB_CLIP_ORDERING_YX_BANDED, handle, 0, 0,
                             static_cast<quint32>(rectangles.size()), rectangles.data());
    xcb_flush(x11->connection());
}

} // namespace orvalis
