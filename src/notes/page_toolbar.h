// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QToolBar>

#include <vector>

class QButtonGroup;
class QToolButton;

namespace orvalis {

/// A row of small picture buttons at the head of a page. Its buttons and separators are told apart
/// by their index, from 1; a button goes by the toolbar's name with its index, as in "Toolbar1(5)".
class PageToolbar final : public QToolBar {
    Q_OBJECT
public:
    PageToolbar(const QString& name, QWidget* parent);

    /// A button that does something each time. \param picture of the skin.
    QToolButton* addPlain(const QString& toolTip, const QString& picture);
    /// A button that goes down and up by turns.
    QToolButton* addCheck(const QString& toolTip, const QString& picture);
    /// One of the buttons of which exactly one is down; all of a toolbar make one group.
    QToolButton* addOption(const QString& toolTip, const QString& picture);
    void addGap();

    /// The button of that index, which must be no separator's.
    QToolButton& button(int index) const;
    /// All of them, from left to right.
    QList<QToolButton*> buttons() const;
    /// Whether the button is down. Setting it is no click.
    int value(int index) const;
    void setValue(int index, bool down);

signals:
    /// The user pressed a button; its value is the new one already.
    void ButtonClick(int index);

protected:
    /// The page shows through.
    void paintEvent(QPaintEvent*) override {}

private:
    std::vector<QToolButton*> m_buttons; ///< by index, from 1; nothing where a separator stands
    QButtonGroup* m_options;
};

} // namespace orvalis
