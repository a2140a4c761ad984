// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace orvalis {

/// Tells what the pointer does over a widget in the numbers of a tray icon. A press that comes
/// without a move before it (a click made by a program, a touch) is told with one.
class TrayMouseCodes : public QObject {
    Q_OBJECT
public:
    explicit TrayMouseCodes(QObject* parent = nullptr);

    void watch(QWidget* widget);
    bool isWatching() const { return !m_widget.isNull(); }

signals:
    void mouse(int code);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void press(int code);

    QPointer<QWidget> m_widget;
    bool m_passedOver = false;
};

} // namespace orvalis
