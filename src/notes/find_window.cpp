// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/find_window.h"

#include "controls/label.h"
#include "controls/message_boxes.h"
#include "controls/rich_text_box.h"
#include "core/dialog_controls.h"
#include "core/page_controls.h"
#include "core/program.h"
#include "core/top_most.h"
#include "runtime/twips.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr int ClientWidth = 4950; // twips
constexpr int ClientHeight = 1950;

QPushButton* button(QWidget& parent, const QString& name, const QString& caption, int top) {
    auto* made = new QPushButton(caption, &parent);
    made->setObjectName(name);
    made->setGeometry(236, top, 86, 21);
    // Enter presses the button that has the focus.
    made->setAutoDefault(true);
    return made;
}

} // namespace

frmFind::frmFind(Program& program)
    : Form(u"frmFind"_s, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , m_program(program) {
    setWindowTitle(u"Find"_s);
    setFixedSize(twipsToPixels(ClientWidth), twipsToPixels(ClientHeight));
    setFont(dialogFont());
    makeControls();
    connectControls();
}

void frmFind::makeControls() {
    const Label* findWhat = pageLabel(*this, u"Label1"_s, {10, 13, 78, 16}, u"Find what:"_s);
    m_Text1 = pageLine(*this, u"Text1"_s, {90, 10, 134, 22}, findWhat->Caption());
    const Label* replaceWith = pageLabel(*this, u"Label2"_s, {10, 43, 78, 16}, u"Replace with:"_s);
    m_Text2 = pageLine(*this, u"Text2"_s, {90, 40, 134, 22}, replaceWith->Caption());
    m_Check1 = pageCheck(*this, u"Check1"_s, {90, 72, 134, 20}, u"&Case sensitive"_s);
    m_Check2 = pageCheck(*this, u"Check2"_s, {90, 96, 134, 20}, u"&Whole word only"_s);
    m_FindButton = button(*this, u"FindButton"_s, u"Find"_s, 9);
    m_FindNextButton = button(*this, u"FindNextButton"_s, u"Find Next"_s, 32);
    m_ReplaceButton = button(*this, u"ReplaceButton"_s, u"Replace"_s, 55);
    m_ReplaceAllButton = button(*this, u"ReplaceAllButton"_s, u"Replace All"_s, 78);
    m_Command5 = button(*this, u"Command5"_s, u"Cancel"_s, 101);
    enableReplacing(false);
    m_FindNextButton->setEnabled(false);
}

void frmFind::connectControls() {
    connect(m_Text1, &QLineEdit::textChanged, this, [this] {
        enableReplacing(false);
        m_FindNextButton->setEnabled(false);
    });
    connect(m_FindButton, &QPushButton::clicked, this, &frmFind::FindButton_Click);
    connect(m_FindNextButton, &QPushButton::clicked, this, &frmFind::FindNextButton_Click);
    connect(m_ReplaceButton, &QPushButton::clicked, this, &frmFind::ReplaceButton_Click);
    connect(m_ReplaceAllButton, &QPushButton::clicked, this, &frmFind::ReplaceAllButton_Click);
    connect(m_Command5, &QPushButton::clicked, this, &Form::unloadRequested);
}

void frmFind::onLoad() {
    SetTopMost(*this);
    m_Text1->setFocus();
}

/// What a control does not take comes here, so that one press is one command.
void frmFind::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!m_Text2->hasFocus())
            FindButton_Click();
        break;
    case Qt::Key_F3:
        FindNextButton_Click();
        break;
    case Qt::Key_Escape:
        emit unloadRequested();
        break;
    default:
        Form::keyPressEvent(event);
    }
}

RichTextBox& frmFind::rtb() const {
    return m_program.windows.get<PrintWindow>().rtb();
}

FindRequest frmFind::request() const {
    return {.text = m_Text1->text(),
            .replacement = m_Text2->text(),
            .wholeWord = m_Check2->isChecked(),
            .matchCase = m_Check1->isChecked()};
}

void frmFind::enableReplacing(bool enabled) {
    m_ReplaceButton->setEnabled(enabled);
    m_ReplaceAllButton->setEnabled(enabled);
}

/// Only a Find that finds nothing disables Find Next too.
void frmFind::tellMiss() {
    m_program.boxes().MsgBox(u"String not found."_s);
    enableReplacing(false);
}

void frmFind::FindButton_Click() {
    if (!m_find.find(rtb(), request())) {
        tellMiss();
        m_FindNextButton->setEnabled(false);
        return;
    }
    enableReplacing(true);
    m_FindNextButton->setEnabled(true);
    focusPage();
}

void frmFind::FindNextButton_Click() {
    if (m_find.findNext(rtb(), request()))
        focusPage();
    else
        tellMiss();
}

void frmFind::ReplaceButton_Click() {
    if (!m_find.replace(rtb(), request()))
        tellMiss();
}

void frmFind::ReplaceAllButton_Click() {
    m_find.replaceAll(rtb(), request());
    enableReplacing(false);
    m_program.boxes().MsgBox(u"Replacing done."_s);
}

/// The page lies in another window, which gets the focus with it.
void frmFind::focusPage() {
    rtb().window()->activateWindow();
    rtb().setFocus();
}

void frmFind::FindNext() {
    FindNextButton_Click();
}

} // namespace orvalis
