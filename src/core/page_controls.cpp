// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/page_controls.h"

#include "controls/combo_box.h"
#include "controls/edit_menu.h"
#include "controls/label.h"
#include "controls/rich_text_box.h"
#include "core/button_look.h"
#include "skin/type.h"
#include "widgets/gg_command.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>

namespace orvalis {

namespace {

void place(QWidget& control, const QRect& where) {
    if (!where.isNull())
        control.setGeometry(where);
    control.setFont(skin::font(skin::points::Body));
}

} // namespace

Label* pageLabel(QWidget& parent, const QString& name, const QRect& where, const QString& caption) {
    auto* made = new Label(name, caption, &parent);
    place(*made, where);
    return made;
}

QLineEdit* pageLine(QWidget& parent, const QString& name, const QRect& where,
                    const QString& accessibleName) {
    auto* made = new QLineEdit(&parent);
    made->setObjectName(name);
    made->setAccessibleName(accessibleName);
    place(*made, where);
    giveEditMenu(*made);
    return made;
}

QCheckBox* pageCheck(QWidget& parent, const QString& name, const QRect& where,
                     const QString& caption) {
    auto* made = new QCheckBox(caption, &parent);
    made->setObjectName(name);
    place(*made, where);
    return made;
}

ComboBox* pageCombo(QWidget& parent, const QString& name, const QRect& where,
                    const QString& accessibleName) {
    auto* made = new ComboBox(name, &parent);
    made->setAccessibleName(accessibleName);
    place(*made, where);
    return made;
}

QGroupBox* pageFrame(QWidget& parent, const QString& name, const QRect& where,
                     const QString& caption) {
    auto* made = new QGroupBox(caption, &parent);
    made->setObjectName(name);
    place(*made, where);
    return made;
}

GGCommand* pageButton(QWidget& parent, const QString& name, const QRect& where,
                      const QString& caption, const skin::ButtonLook& look) {
    auto* made = new GGCommand(name, &parent);
    made->setCaption(caption);
    place(*made, where);
    wearLook(*made, look);
    return made;
}

void makePageText(RichTextBox& text, const QString& name, const QRect& where,
                  const QString& accessibleName) {
    text.setObjectName(name);
    text.setAccessibleName(accessibleName);
    text.setTabChangesFocus(true);
    place(text, where);
}

void setTabOrder(const QList<QWidget*>& order) {
    for (qsizetype i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}

} // namespace orvalis
