// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QIcon>
#include <QTreeView>

#include <optional>

class QStandardItem;
class QStandardItemModel;

namespace orvalis {

/// A tree of captions with small pictures, which tells when a node is clicked. A node hangs on the
/// one whose key it names.
class TreeView : public QTreeView {
    Q_OBJECT
public:
    /// How a node that is added stands to the one that it names: `tvwChild`, the last child of it.
    enum Relationship : int { tvwChild = 4 };

    explicit TreeView(const QString& name, QWidget* parent = nullptr);

    /// Puts a picture into the image list, from which nodes take theirs by its number.
    void setImage(int number, const QIcon& picture);

    /// `Nodes.Add`: an empty \a relative makes a root; an empty \a key is none.
    /// \returns the node's place in the model.
    /// \throws RuntimeError InvalidProcedureCall when no node has the key \a relative, when one has
    /// \a key already, or for another relationship.
    QModelIndex AddNode(const QString& relative, int relationship, const QString& key,
                        const QString& text, int image);

    /// `SelectedItem`: the caption of the selected node, or nothing.
    std::optional<QString> selectedCaption() const;

    /// The number of a node's picture.
    static int imageOf(const QModelIndex& node);

signals:
    /// A node was chosen by a press of the mouse, the one that was selected already included, or
    /// by a key.
    void NodeClick();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

private:
    QStandardItemModel* m_nodes;
    QHash<QString, QStandardItem*> m_byKey;
    QHash<int, QIcon> m_images;
};

} // namespace orvalis
