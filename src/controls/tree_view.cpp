// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/tree_view.h"

#include "runtime/failure.h"

#include <QMouseEvent>
#include <QStandardItemModel>

namespace orvalis {

namespace {

constexpr int ImageRole = Qt::UserRole;
constexpr int StepInward = 8; // pixels; small, as the deepest groups hold the longest captions

} // namespace

TreeView::TreeView(const QString& name, QWidget* parent)
    : QTreeView(parent)
    , m_nodes(new QStandardItemModel(this)) {
    setObjectName(name);
    setModel(m_nodes);
    setHeaderHidden(true);
    setEditTriggers(NoEditTriggers);
    setUniformRowHeights(true);
    setIndentation(StepInward);
}

void TreeView::setImage(int number, const QIcon& picture) {
    m_images.insert(number, picture);
}

QModelIndex TreeView::AddNode(const QString& relative, int relationship, const QString& key,
                              const QString& text, int image) {
    QStandardItem* parent =
        relative.isEmpty() ? m_nodes->invisibleRootItem() : m_byKey.value(relative);
    if (parent == nullptr || m_byKey.contains(key) || relationship != tvwChild)
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    auto* node = new QStandardItem(m_images.value(image), text);
    node->setData(image, ImageRole);
    parent->appendRow(node);
    if (!key.isEmpty())
        m_byKey.insert(key, node);
    return node->index();
}

std::optional<QString> TreeView::selectedCaption() const {
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    if (selected.isEmpty())
        return std::nullopt;
    return selected.first().data().toString();
}

int TreeView::imageOf(const QModelIndex& node) {
    return node.data(ImageRole).toInt();
}

void TreeView::mousePressEvent(QMouseEvent* event) {
    const QModelIndexList before = selectionModel()->selectedIndexes();
    const QMetaObject::Connection again =
        connect(this, &QTreeView::pressed, this, [this, &before](const QModelIndex& node) {
            // Another node has told of itself as the selection went over to it.
            if (before.contains(node))
                emit NodeClick();
        });
    QTreeView::mousePressEvent(event);
    disconnect(again);
}

void TreeView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    if (!selected.isEmpty())
        emit NodeClick();
}

} // namespace orvalis
