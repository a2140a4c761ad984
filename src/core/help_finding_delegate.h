// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

class QTextDocument;

namespace orvalis {

/// Draws a page that a search of the help has found: its title, and below it a piece of its text.
class HelpFindingDelegate final : public QStyledItemDelegate {
    Q_OBJECT
public:
    /// Title and text with their marks, as HTML. The plain words stand in the display role.
    static constexpr int HtmlRole = Qt::UserRole + 1;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace orvalis
