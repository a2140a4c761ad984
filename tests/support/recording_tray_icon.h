// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/tray_icon.h"

#include <QList>

#include <algorithm>
#include <functional>

namespace orvalis::test {

/// A tray that keeps what it was told, and lets a test move the pointer over its icon.
class RecordingTrayIcon final : public TrayIcon {
public:
    enum class Call { Add, Modify, Delete, PopUp };
    struct Entry {
        Call call;
        quint32 flags = 0;
        QString tip;
        qint64 icon = 0;
    };

    void setMenu(QMenu* menu) override { m_menu = menu; }
    void add(const TrayRecord& record) override { keep(Call::Add, record); }
    void modify(const TrayRecord& record) override { keep(Call::Modify, record); }
    void remove(const TrayRecord& record) override { keep(Call::Delete, record); }
    void popUp() override { m_entries.append(Entry{Call::PopUp, 0, {}, 0}); }

    /// The pointer does what the number says.
    void tell(int code) { emit mouse(code); }
    void tell(const QList<int>& codes) {
        for (const int code : codes)
            emit mouse(code);
    }

    const QList<Entry>& entries() const { return m_entries; }
    void forget() { m_entries.clear(); }
    int count(Call call) const {
        return static_cast<int>(std::count_if(
            m_entries.begin(), m_entries.end(), [call](const Entry& e) { return e.call == call; }));
    }
    QMenu* menu() const { return m_menu; }
    /// The record as it last came.
    const TrayRecord& record() const { return m_record; }

    /// Runs at each call that sends a record, before the call returns.
    std::function<void(Call)> atCall;

private:
    void keep(Call call, const TrayRecord& record) {
        m_record = record;
        m_entries.append(Entry{call, record.uFlags, record.szTip.text(), record.hIcon.cacheKey()});
        if (atCall)
            atCall(call);
    }

    QMenu* m_menu = nullptr;
    TrayRecord m_record;
    QList<Entry> m_entries;
};

} // namespace orvalis::test
