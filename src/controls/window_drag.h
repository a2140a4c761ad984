// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPoint>

class QWidget;

namespace orvalis {

/// Lets a window be dragged from inside, as if by a title bar: by the system's own move where that
/// starts, otherwise by following the pointer until the button comes up.
class WindowDrag final : public QObject {
    Q_OBJECT
public:
    explicit WindowDrag(QWidget& window);

    /// To be called on the press of a button over the window.
    void start(Qt::MouseButton button, const QPoint& globalPosition);
    /// Whether the window follows the pointer now.
    bool isFollowing() const { return m_button != Qt::NoButton; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void end();

    QWidget& m_window;
    Qt::MouseButton m_button = Qt::NoButton;
    QPoint m_grip;
};

} // namespace orvalis
