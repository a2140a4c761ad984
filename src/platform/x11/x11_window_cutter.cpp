// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/x11/x11_window_cutter.h"

#include "platform/x11/x11_toolkit.h"

#include <QWidget>

#include <xcb/shape.h>
#include <xcb/xcb.h>

#include <vector>

namespace orvalis {

namespace {

constexpr int HalfOpaque = 127;
/// A compositing manager owns the selection of this name for as long as it runs.
constexpr char ManagerSelection[] = "_NET_WM_CM_S0";

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

bool X11WindowCutter::isNeeded() const {
    return toolkitConnection() != nullptr && !selectionIsOwned(ManagerSelection);
}

void X11WindowCutter::cut(QWidget& window, const QImage& picture) {
    xcb_connection_t* connection = toolkitConnection();
    if (connection == nullptr || !window.internalWinId() || !knowsShapes(connection))
        return;
    const auto handle = static_cast<xcb_window_t>(window.internalWinId());
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect& row : opaqueRows(picture))
        rectangles.push_back({static_cast<qint16>(row.x()), static_cast<qint16>(row.y()),
                              static_cast<quint16>(row.width()),
                              static_cast<quint16>(row.height())});
    if (rectangles.empty())
        xcb_shape_mask(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, handle, 0, 0,
                       XCB_PIXMAP_NONE);
    else
        xcb_shape_rectangles(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING,
                             XCB_CLIP_ORDERING_YX_BANDED, handle, 0, 0,
                             static_cast<quint32>(rectangles.size()), rectangles.data());
    xcb_flush(connection);
}

} // namespace orvalis
