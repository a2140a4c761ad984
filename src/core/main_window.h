// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/chrome_window.h"

namespace orvalis {

/// `frmnotes`, the window that the user sees first: a clock, the alarm's display and four pictures
/// that open the panels.
class frmnotes final : public ChromePanel<MainWindow> {
    Q_OBJECT
public:
    explicit frmnotes(Program& program);

protected:
    void onLoad() override;

private:
    Image* makeOpener(int number, const QString& picture, const QString& name, const QRect& place,
                      ChromeKind target);
};

} // namespace orvalis
