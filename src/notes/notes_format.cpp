// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/rich_text_box.h"
#include "controls/selection_font.h"
#include "controls/selection_format.h"
#include "core/program.h"
#include "notes/notes_panel.h"
#include "notes/page_toolbar.h"
#include "notes/toolbar_state.h"

#include <QStyle>
#include <QTextBlock>
#include <QToolButton>

// The toolbars: what their buttons do, and how they follow the selection.

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr int IndentMillimetres = 8;
constexpr quint32 Black = 0;

/// The button of each alignment; the order of the buttons is not that of the values.
constexpr int alignmentButton(int alignment) {
    switch (alignment) {
    case RichTextBox::rtfRight:
        return Toolbar1Button::Right;
    case RichTextBox::rtfCenter:
        return Toolbar1Button::Center;
    default:
        return Toolbar1Button::Left;
    }
}

FormatButtons buttonsDown(const PageToolbar& first, const PageToolbar& second) {
    FormatButtons down;
    for (const int alignment : {RichTextBox::rtfRight, RichTextBox::rtfCenter})
        if (first.value(alignmentButton(alignment)))
            down.alignment = alignment;
    down.bold = first.value(Toolbar1Button::Bold) != 0;
    down.italic = first.value(Toolbar1Button::Italic) != 0;
    down.underline = first.value(Toolbar1Button::Underline) != 0;
    down.bullets = second.value(Toolbar2Button::Bullets) != 0;
    return down;
}

void setButtonsDown(PageToolbar& first, PageToolbar& second, const FormatButtons& down) {
    first.setValue(Toolbar1Button::Bold, down.bold);
    first.setValue(Toolbar1Button::Italic, down.italic);
    first.setValue(Toolbar1Button::Underline, down.underline);
    first.setValue(alignmentButton(down.alignment), true);
    second.setValue(Toolbar2Button::Bullets, down.bullets);
}

} // namespace

void frmnotes2::connectToolbars() {
    connect(ui.Toolbar1, &PageToolbar::ButtonClick, this, &frmnotes2::Toolbar1_ButtonClick);
    connect(ui.Toolbar2, &PageToolbar::ButtonClick, this, &frmnotes2::Toolbar2_ButtonClick);
    const auto follow = [this] {
        AdjustButtons2();
        UpdateTB();
    };
    connect(ui.rt1, &RichTextBox::Click, this, follow);
    connect(ui.rt1, &RichTextBox::SelChange, this, follow);
    connect(ui.rt1, &RichTextBox::CanPasteChanged, this, &frmnotes2::UpdateTB);
}

void frmnotes2::AdjustButtons2() {
    if (ui.rt1->isHidden())
        return;
    const SelectionFormat selection{.bold = ui.rt1->SelBold(),
                                    .italic = ui.rt1->SelItalic(),
                                    .underline = ui.rt1->SelUnderline(),
                                    .alignment = ui.rt1->SelAlignment(),
                                    .bullet = ui.rt1->SelBullet()};
    setButtonsDown(*ui.Toolbar1, *ui.Toolbar2,
                   adjusted(buttonsDown(*ui.Toolbar1, *ui.Toolbar2), selection));
}

void frmnotes2::UpdateTB() {
    const bool canUndo = CanUndo();
    ui.Toolbar1->button(Toolbar1Button::Cut).setEnabled(CanCopy());
    ui.Toolbar1->button(Toolbar1Button::Copy).setEnabled(CanCopy());
    ui.Toolbar1->button(Toolbar1Button::Paste).setEnabled(CanPaste());
    ui.Toolbar1->button(Toolbar1Button::Undo).setEnabled(canUndo);
}

void frmnotes2::Toolbar1_ButtonClick(int index) {
    const bool down = ui.Toolbar1->value(index) != 0;
    switch (index) {
    case Toolbar1Button::Left:
        optAlign_Click(RichTextBox::rtfLeft);
        break;
    case Toolbar1Button::Center:
        optAlign_Click(RichTextBox::rtfCenter);
        break;
    case Toolbar1Button::Right:
        optAlign_Click(RichTextBox::rtfRight);
        break;
    case Toolbar1Button::Bold:
        ui.rt1->SetSelBold(down);
        ui.rt1->setFocus();
        break;
    case Toolbar1Button::Italic:
        ui.rt1->SetSelItalic(down);
        ui.rt1->setFocus();
        break;
    case Toolbar1Button::Underline:
        ui.rt1->SetSelUnderline(down);
        ui.rt1->setFocus();
        break;
    case Toolbar1Button::Cut:
        Cut();
        break;
    case Toolbar1Button::Copy:
        Copy();
        break;
    case Toolbar1Button::Paste:
        Paste();
        break;
    case Toolbar1Button::Undo:
        Undo();
        break;
    default:
        Q_UNREACHABLE();
    }
}

void frmnotes2::Toolbar2_ButtonClick(int index) {
    const bool down = ui.Toolbar2->value(index) != 0;
    switch (index) {
    case Toolbar2Button::Font:
        Image14_Click();
        break;
    case Toolbar2Button::FontColor:
        Command3_Click();
        break;
    case Toolbar2Button::IncreaseIndent:
        shiftIndent(IndentMillimetres);
        break;
    case Toolbar2Button::DecreaseIndent:
        shiftIndent(-IndentMillimetres);
        break;
    case Toolbar2Button::Find:
        showFindFrame();
        break;
    case Toolbar2Button::DoublePage:
        setPageWidth(ui.rt1a->width() + (ui.rt1a->x() - ui.rt1->x()), true);
        break;
    case Toolbar2Button::SinglePage:
        setPageWidth(ui.Toolbar2->width(), false);
        break;
    case Toolbar2Button::WordWrap:
        ui.rt1->SetWordWrap(down);
        break;
    case Toolbar2Button::Bullets:
        ui.rt1->SetSelBullet(down);
        ui.rt1->setFocus();
        break;
    default:
        Q_UNREACHABLE();
    }
}

void frmnotes2::optAlign_Click(int index) {
    ui.rt1->SetSelAlignment(index);
    ui.rt1->setFocus();
}

void frmnotes2::Image14_Click() {
    chooseFontPassingOver(CommonDialog1, *ui.rt1);
    m_font.store(*ui.rt1);
    ui.rt1->setFocus();
}

void frmnotes2::Command3_Click() {
    endSilently([this] {
        CommonDialog1.CancelError = true;
        CommonDialog1.ShowColor();
        ui.rt1->SetSelColor(CommonDialog1.Color);
        ui.rt1->setFocus();
    });
}

/// Where the paragraphs of the selection differ, each moves by itself.
void frmnotes2::shiftIndent(int millimetres) {
    QTextCursor selection = ui.rt1->textCursor();
    selection.beginEditBlock();
    visitParagraphs(selection, [millimetres](const QTextBlock& block) {
        QTextCursor paragraph(block);
        indentParagraphs(paragraph, shiftedIndent(indentOf(block), millimetres));
        return true;
    });
    selection.endEditBlock();
    ui.rt1->setFocus();
}

void frmnotes2::setPageWidth(int width, bool coversBoth) {
    // A sheet that covers the other page lets nothing of it through.
    ui.rt1->setProperty("skinSurface", coversBoth ? u"sheet"_s : u"paper"_s);
    ui.rt1->style()->polish(ui.rt1);
    ui.rt1->resize(width, ui.rt1->height());
}

void frmnotes2::resetFormat() {
    setButtonsDown(*ui.Toolbar1, *ui.Toolbar2, FormatButtons());
    ui.rt1->SetSelAlignment(RichTextBox::rtfLeft);
    ui.rt1->SetSelIndent(0);
    ui.rt1->SetSelBullet(false);
    ui.rt1->SetSelColor(Black);
    ui.rt1->SetSelBold(false);
    ui.rt1->SetSelItalic(false);
    ui.rt1->SetSelUnderline(false);
}

} // namespace orvalis
