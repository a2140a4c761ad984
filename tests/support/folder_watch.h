// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QStringList>

#include <array>

#include <sys/inotify.h>
#include <unistd.h>

namespace orvalis::test {

/// Sees which files of a folder are put in place, as somebody outside the program does.
class FolderWatch {
public:
    explicit FolderWatch(const QString& folder)
        : m_queue(inotify_init1(IN_NONBLOCK)) {
        // Both ends of a renaming, since the system tells two like events in a row but once.
        if (inotify_add_watch(m_queue, QFile::encodeName(folder).constData(), IN_MOVE) < 0)
            qFatal("the folder cannot be watched");
    }
    ~FolderWatch() { close(m_queue); }
    FolderWatch(const FolderWatch&) = delete;
    FolderWatch& operator=(const FolderWatch&) = delete;

    /// The names that files were renamed to since the last call, in order.
    QStringList renamedTo() const {
        QStringList names;
        alignas(inotify_event) std::array<char, 65536> bytes{};
        const ssize_t length = read(m_queue, bytes.data(), bytes.size());
        for (ssize_t at = 0; at < length;) {
            const auto* event = reinterpret_cast<const inotify_event*>(bytes.data() + at);
            if ((event->mask & IN_MOVED_TO) != 0)
                names << QFile::decodeName(event->name);
            at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
        }
        return names;
    }

private:
    int m_queue;
};

} // namespace orvalis::test
