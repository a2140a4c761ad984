// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/combo_box.h"

#include "controls/edit_menu.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QScopedValueRollback>
#include <QStringListModel>
#include <QTimer>
#include <QWheelEvent>

namespace orvalis {

ComboBox::ComboBox(QWidget* parent, Style style)
    : QComboBox(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setInsertPolicy(NoInsert);
    connect(this, &QComboBox::activated, this, [this] {
        m_choosing = false;
        emit Click();
    });
    followModel();
    if (style == Style::DropDown) {
        setEditable(true);
        setCompleter(nullptr);
        // Qt takes a typed text that stands in the list for a choice of that entry once Enter is
        // pressed or the box is left. It was typed, and its change has been told.
        lineEdit()->disconnect(SIGNAL(editingFinished()), this);
        connect(lineEdit(), &QLineEdit::textChanged, this, &ComboBox::textChanged);
        giveEditMenu(*lineEdit());
    }
}

ComboBox::ComboBox(const QString& name, QWidget* parent, Style style)
    : ComboBox(parent, style) {
    setObjectName(name);
}

void ComboBox::AddItem(const QString& text) {
    const QScopedValueRollback filling(m_filling, m_filling + 1);
    const QString before = Text();
    const int index = currentIndex();
    addItem(text);
    if (currentIndex() != index)
        setCurrentIndex(index);
    if (lineEdit() && lineEdit()->text() != before)
        lineEdit()->setText(before);
}

void ComboBox::Clear() {
    const QScopedValueRollback filling(m_filling, m_filling + 1);
    clear();
    if (lineEdit())
        lineEdit()->clear();
}

void ComboBox::SetList(const QStringList& entries) {
    const QScopedValueRollback filling(m_filling, m_filling + 1);
    auto* texts = qobject_cast<QStringListModel*>(model());
    if (texts == nullptr) {
        // A model of items would make an object of each entry.
        texts = new QStringListModel(this);
        setModel(texts);
        followModel();
        setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
        if (auto* list = qobject_cast<QListView*>(view()))
            list->setUniformItemSizes(true);
    }
    texts->setStringList(entries);
    setCurrentIndex(-1);
    if (lineEdit())
        lineEdit()->clear();
}

int ComboBox::ListIndex() const {
    return itemText(currentIndex()) == Text() ? currentIndex() : -1;
}

void ComboBox::setText(const QString& text) {
    if (lineEdit()) {
        lineEdit()->setText(text);
        return;
    }
    // Two entries may read the same: the one that stands there stays.
    if (text == Text())
        return;
    const int index = findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0)
        setCurrentIndex(index);
}

void ComboBox::hidePopup() {
    // The list closes first and tells its choice afterwards. One that closes without a choice tells
    // nothing, and the next turn of the event loop finds it so.
    if (view()->isVisible()) {
        m_choosing = true;
        QTimer::singleShot(0, this, [this] { m_choosing = false; });
    }
    QComboBox::hidePopup();
}

void ComboBox::contextMenuEvent(QContextMenuEvent* event) {
    // The menu key finds the box, not its line; Qt would open a menu of its own.
    if (lineEdit() == nullptr) {
        QComboBox::contextMenuEvent(event);
        return;
    }
    QContextMenuEvent onLine(event->reason(), lineEdit()->mapFrom(this, event->pos()),
                             event->globalPos(), event->modifiers());
    QCoreApplication::sendEvent(lineEdit(), &onLine);
}

void ComboBox::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    m_choosing = key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
                 key == Qt::Key_PageDown;
    const QPointer<ComboBox> self(this);
    QComboBox::keyPressEvent(event);
    if (self)
        m_choosing = false;
}

void ComboBox::wheelEvent(QWheelEvent* event) {
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    m_choosing = true;
    const QPointer<ComboBox> self(this);
    QComboBox::wheelEvent(event);
    if (self)
        m_choosing = false;
}

void ComboBox::followModel() {
    // The list's own first entry becomes the text of an empty box: that is filling, not a change.
    connect(
        model(), &QAbstractItemModel::rowsAboutToBeInserted, this, [this] { ++m_filling; });
    connect(model(), &QAbstractItemModel::rowsInserted, this, [this] { --m_filling; });
}

void ComboBox::textChanged() {
    if (m_filling == 0 && !m_choosing)
        emit Change();
}

} // namespace orvalis
