// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "widgets/tool_tip_placement.h"

#include <algorithm>

namespace orvalis {

ToolTipPlace placeToolTip(const ToolTipRequest& request) {
    const int width = request.size.width();
    const int height = request.size.height();
    const QRect& screen = request.screen;
    const int screenRight = screen.left() + screen.width();
    const int screenBottom = screen.top() + screen.height();

    const int middle =
        request.centered ? request.tool.left() + request.tool.width() / 2 : request.pointer.x();
    int x = middle;
    if (request.centered)
        x = middle - width / 2;
    else if (request.balloon)
        x = middle - BalloonStemInset;
    x = std::max(screen.left(), std::min(x, screenRight - width));

    const int below = request.centered ? request.tool.top() + request.tool.height()
                                       : request.pointer.y() + request.pointerHeight;
    const int above = (request.centered ? request.tool.top() : request.pointer.y()) - height;
    const bool roomBelow = below + height <= screenBottom;
    const bool roomAbove = above >= screen.top();
    const bool prefersAbove = request.balloon && !request.centered;

    ToolTipPlace place;
    place.above = prefersAbove ? roomAbove || !roomBelow : !roomBelow && roomAbove;
    const int y = place.above ? above : below;
    place.position = {x, std::max(screen.top(), std::min(y, screenBottom - height))};
    place.stemX = std::clamp(middle - x, std::min(BalloonStemInset, width / 2),
                             std::max(width - BalloonStemInset, width / 2));
    return place;
}

} // namespace orvalis
