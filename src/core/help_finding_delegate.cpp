// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/help_finding_delegate.h"

#include <QAbstractItemView>
#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPainter>
#include <QTextDocument>

namespace orvalis {

namespace {

constexpr int Room = 5; // pixels around a finding

void lay(QTextDocument& words, const QStyleOptionViewItem& option, const QModelIndex& index) {
    words.setDocumentMargin(Room);
    words.setDefaultFont(option.font);
    words.setHtml(index.data(HelpFindingDelegate::HtmlRole).toString());
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    words.setTextWidth(view != nullptr ? view->viewport()->width() : option.rect.width());
}

} // namespace

void HelpFindingDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
    QStyleOptionViewItem empty(option);
    initStyleOption(&empty, index);
    empty.text.clear();
    const QStyle* style = option.widget != nullptr ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &empty, painter, option.widget);

    QTextDocument words;
    lay(words, option, index);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = option.palette;
    const bool chosen = option.state.testFlag(QStyle::State_Selected);
    context.palette.setColor(
        QPalette::Text, option.palette.color(chosen ? QPalette::HighlightedText : QPalette::Text));
    painter->save();
    painter->translate(option.rect.topLeft());
    words.documentLayout()->draw(painter, context);
    painter->restore();
}

QSize HelpFindingDelegate::sizeHint(const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
    QTextDocument words;
    lay(words, option, index);
    // The width is the list's own, whatever that is when it is drawn.
    return {1, qCeil(words.size().height())};
}

} // namespace orvalis
