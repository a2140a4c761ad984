// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QObject>
#include <QString>

#include <array>

class QMenu;

namespace orvalis {

/// What a tray icon tells of the pointer, by number.
namespace TrayMouse {
inline constexpr int Move = 512;
inline constexpr int LeftDown = 513;
inline constexpr int LeftUp = 514;
inline constexpr int LeftDoubleClick = 515;
inline constexpr int RightDown = 516;
inline constexpr int RightUp = 517;
inline constexpr int RightDoubleClick = 518;
} // namespace TrayMouse

/// The text field of a tray record: 64 characters, the last of which is always a NUL.
class TrayTip {
public:
    static constexpr int Size = 64;

    /// Stores the text left-justified, cut after 63 characters and filled up with NUL.
    void set(const QString& text);
    /// The text up to its first NUL.
    QString text() const;
    /// Whether setting the text would leave the field as it is.
    bool holds(const QString& text) const;

private:
    std::array<QChar, Size> m_characters{};
};

/// The record under which an icon stands in the tray.
struct TrayRecord {
    /// Bits of `uFlags`: which fields of the record are news.
    enum Flag : quint32 { MessageChanged = 1, IconChanged = 2, TipChanged = 4 };

    quint32 cbSize = 88;
    WId hWnd = 0;
    qint64 uID = 0;
    quint32 uFlags = MessageChanged | IconChanged | TipChanged;
    quint32 uCallbackMessage = TrayMouse::Move;
    QIcon hIcon;
    TrayTip szTip;
};

/// The icon that stands for the program while none of its windows does. The pointer's doings over
/// it come back as numbers of `TrayMouse`; before any press or menu there was a Move.
class TrayIcon : public QObject {
    Q_OBJECT
public:
    /// The menu that hosts may show by themselves. It has to be named before `add` and must live
    /// until `remove`.
    virtual void setMenu(QMenu* menu) = 0;
    virtual void add(const TrayRecord& record) = 0;
    /// Takes over the fields that `uFlags` names.
    virtual void modify(const TrayRecord& record) = 0;
    virtual void remove(const TrayRecord& record) = 0;
    /// Shows the menu at the pointer, unless the host that asked for it shows it itself.
    virtual void popUp() = 0;

signals:
    void mouse(int code);
};

} // namespace orvalis
