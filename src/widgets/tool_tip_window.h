// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/colour.h"
#include "widgets/tool_tip_placement.h"

#include <QTimer>
#include <QWidget>

class QPainterPath;

namespace orvalis {

/// The tool tip of one control: a small window on top of all others, a rectangle or a balloon, with
/// an optional bold title and icon, in two colours. It comes up once the pointer has rested, goes
/// after a while or with a press, and takes neither focus nor mouse.
class ToolTipWindow : public QWidget {
    Q_OBJECT
public:
    struct Content {
        QString text;
        QString title;
        /// 0 none, 1 information, 2 exclamation, 3 error. Shown beside a title.
        int icon = 0;
        bool balloon = false;
        bool centered = false;
        ColourValue backColor = ToolTipBackgroundColour;
        ColourValue foreColor = ToolTipTextColour;
    };

    /// \param tool the control it belongs to.
    ToolTipWindow(QWidget& tool, const Content& content);

    const Content& content() const { return m_content; }
    /// Changes the text of a tip that may be on show.
    void updateText(const QString& text);
    /// The pointer moved over the control: it has to rest anew before the tip comes up.
    void pointerMoved();
    /// Hides the tip until the control makes a new one.
    void dismiss();
    /// Where the window points at, once shown.
    const ToolTipPlace& place() const { return m_place; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void popUp();
    QSize bodySize() const;
    QRect bodyRect() const;
    QPainterPath outline() const;
    bool hasHeading() const { return !m_content.title.isEmpty() || m_content.icon != 0; }

    QWidget& m_tool;
    Content m_content;
    ToolTipPlace m_place;
    QTimer m_comes;
    QTimer m_goes;
    bool m_done = false;
};

} // namespace orvalis
