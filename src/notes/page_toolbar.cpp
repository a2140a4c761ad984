// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/page_toolbar.h"

#include "core/tool_button.h"
#include "skin/skin.h"

#include <QButtonGroup>
#include <QLayout>

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize ButtonSize(21, 15);
constexpr QSize PictureSize(13, 13);

} // namespace

PageToolbar::PageToolbar(const QString& name, QWidget* parent)
    : QToolBar(parent)
    , m_buttons(1)
    , m_options(new QButtonGroup(this)) {
    setObjectName(name);
    setMovable(false);
    setFloatable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setIconSize(PictureSize);
    layout()->setContentsMargins(0, 0, 0, 0);
    layout()->setSpacing(0);
}

QToolButton* PageToolbar::addPlain(const QString& toolTip, const QString& picture) {
    auto* made = new ToolButton(this);
    const auto index = static_cast<int>(m_buttons.size());
    made->setObjectName(u"%1(%2)"_s.arg(objectName()).arg(index));
    made->setAutoRaise(true);
    made->setFixedSize(ButtonSize);
    made->setIcon(skin::icon(picture));
    made->setToolTip(toolTip);
    made->setAccessibleName(toolTip.trimmed());
    connect(made, &QToolButton::clicked, this, [this, index] { emit ButtonClick(index); });
    addWidget(made);
    m_buttons.push_back(made);
    return made;
}

QToolButton* PageToolbar::addCheck(const QString& toolTip, const QString& picture) {
    QToolButton* made = addPlain(toolTip, picture);
    made->setCheckable(true);
    return made;
}

QToolButton* PageToolbar::addOption(const QString& toolTip, const QString& picture) {
    QToolButton* made = addCheck(toolTip, picture);
    m_options->addButton(made);
    return made;
}

void PageToolbar::addGap() {
    addSeparator();
    m_buttons.push_back(nullptr);
}

QToolButton& PageToolbar::button(int index) const {
    return *m_buttons.at(static_cast<std::size_t>(index));
}

QList<QToolButton*> PageToolbar::buttons() const {
    QList<QToolButton*> all;
    for (QToolButton* button : m_buttons)
        if (button != nullptr)
            all << button;
    return all;
}

int PageToolbar::value(int index) const {
    return button(index).isChecked() ? 1 : 0;
}

void PageToolbar::setValue(int index, bool down) {
    button(index).setChecked(down);
}

} // namespace orvalis
