// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

namespace orvalis {

/// A box with a list below it. A *change* is typed text, or text set by code that differs; a
/// *click* is a choice from the list, the entry that already stands there included. Filling the
/// list is neither, and leaves the text as it is. The box completes nothing, never puts a typed
/// text into its list, and the wheel turns it only while it has the focus. Where text can be typed,
/// a right click opens the editing menu.
class ComboBox : public QComboBox {
    Q_OBJECT
public:
    enum class Style {
        /// Any text can be typed.
        DropDown,
        /// The text is one of the list's entries, or nothing. There is no change, only clicks.
        DropDownList,
    };

    explicit ComboBox(QWidget* parent = nullptr, Style style = Style::DropDown);
    explicit ComboBox(const QString& name, QWidget* parent = nullptr,
                      Style style = Style::DropDown);

    /// Adds an entry at the list's end. Neither the text nor the chosen entry changes.
    void AddItem(const QString& text);
    /// Takes all entries and the text away, without a change being told.
    void Clear();
    /// The same, and puts other entries there. However many they are, it takes no time to speak of.
    void SetList(const QStringList& entries);
    int ListCount() const { return count(); }
    /// The entry at \a index; "" outside the list.
    QString List(int index) const { return itemText(index); }
    /// The chosen entry; -1 where the text is not that entry's.
    int ListIndex() const;

    QString Text() const { return currentText(); }
    /// Sets the text. A DropDown takes any; a DropDownList takes an entry of its list and stays as
    /// it is when it has none such.
    void setText(const QString& text);

    void hidePopup() override;

signals:
    void Change();
    void Click();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void followModel();
    void textChanged();

    /// The user is choosing from the list: the text follows the entry, and that is no change.
    bool m_choosing = false;
    /// Above 0 while entries come and go.
    int m_filling = 0;
};

} // namespace orvalis
