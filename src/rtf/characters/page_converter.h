// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

namespace orvalis::rtf {

/// The system's converter of one of Windows' code pages. The one place that knows which system.
class PageConverter {
public:
    static bool knows(int page);

    /// \param page one that is known.
    explicit PageConverter(int page);
    ~PageConverter();
    PageConverter(const PageConverter&) = delete;
    PageConverter& operator=(const PageConverter&) = delete;

    /// Appends the text of the bytes; those that mean nothing become U+FFFD.
    /// \returns how many bytes were taken: all, but for the beginning of a character at the end.
    qsizetype convert(QByteArrayView bytes, QString& text);

private:
#ifdef Q_OS_WIN
    uint m_page;
#else
    int m_page;
    void* m_handle;
#endif
};

} // namespace orvalis::rtf
