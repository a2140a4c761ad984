// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>
#include <QTextDocument>

namespace orvalis {

/// While it lives nothing of a document is laid out, for its whole content is replaced. The layout
/// comes afterwards, bit by bit: what is looked at at once, the rest while the program is idle. So
/// a long document costs the handler that sets it no layout at all.
class LayoutPause {
public:
    explicit LayoutPause(QTextDocument& document)
        : m_document(document)
        , m_page(document.pageSize()) {
        m_document.setPageSize(QSizeF(0, 0));
    }
    ~LayoutPause() { m_document.setPageSize(m_page); }
    Q_DISABLE_COPY_MOVE(LayoutPause)

private:
    QTextDocument& m_document;
    QSizeF m_page;
};

} // namespace orvalis
