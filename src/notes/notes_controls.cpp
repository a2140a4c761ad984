// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/notes_controls.h"

#include "controls/image.h"
#include "controls/label.h"
#include "controls/progress_bar.h"
#include "controls/rich_text_box.h"
#include "controls/twips_geometry.h"
#include "core/page_controls.h"
#include "core/picture_button.h"
#include "notes/document_rules.h"
#include "notes/page_toolbar.h"
#include "skin/ink.h"
#include "skin/palette.h"
#include "widgets/gg_command.h"

#include <QCheckBox>
#include <QFrame>
#include <QLineEdit>
#include <QToolButton>

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

// In twips, as all places of the pages.
constexpr QRect LeftPage(480, 1020, 3915, 4395);
constexpr QRect RightPage(5880, 1020, 3915, 4395);
constexpr QRect LeftTitle(480, 720, 3810, 240);
constexpr QRect RightTitle(6780, 720, 2970, 240);
constexpr QRect LeftProgress(480, 5580, 3915, 105);
constexpr QRect RightProgress(5880, 5580, 3915, 105);
constexpr QRect FindPlace(6120, 3180, 3495, 2205);
constexpr QRect LeftTools(480, 480, 3915, 240);
constexpr QRect RightTools(5880, 480, 3915, 240);
constexpr QRgb Grey = 0xFF808080;
constexpr int CommandsTop = 384; // pixels

Image* command(QWidget& panel, const QString& name, int left, const QString& toolTip,
               const QString& picture) {
    return pictureButton(panel, name, {left, CommandsTop, 32, 32}, toolTip, picture);
}

Label* title(QWidget& panel, const QString& name, const QRect& twips) {
    Label* made = pageLabel(panel, name, {}, untitled());
    setTwipsGeometry(*made, twips);
    made->setTextFormat(Qt::PlainText);
    made->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    made->setAttribute(Qt::WA_TransparentForMouseEvents);
    return made;
}

/// A page's text: it lies on the paper of the background.
RichTextBox* page(QWidget& panel, const QString& name, const QRect& twips,
                  const QString& accessibleName) {
    auto* made = new RichTextBox(&panel);
    makePageText(*made, name, {}, accessibleName);
    made->setProperty("skinSurface", u"paper"_s);
    setTwipsGeometry(*made, twips);
    return made;
}

ProgressBar* progress(QWidget& panel, const QString& name, const QRect& twips) {
    auto* made = new ProgressBar(name, &panel);
    setTwipsGeometry(*made, twips);
    made->hide();
    return made;
}

} // namespace

NotesControls::NotesControls(QWidget& panel) {
    makeToolbars(panel);
    makePages(panel);
    makeCommands(panel);
    makeFindFrame(panel);
    setTabOrder();
}

void NotesControls::makePages(QWidget& panel) {
    Label3 = title(panel, u"Label3"_s, LeftTitle);
    Label1 = title(panel, u"Label1"_s, RightTitle);
    skin::setInk(*Label3, skin::colour::Ink);
    skin::setInk(*Label1, Grey);
    Button1 = pageButton(panel, u"Button1"_s, {390, 48, 56, 18}, u"Edit"_s);
    rt1a = page(panel, u"rt1a"_s, RightPage, u"Right page"_s);
    rt1a->setReadOnly(true);
    rt5 = page(panel, u"rt5"_s, LeftPage, {});
    rt5->hide();
    rt1 = page(panel, u"rt1"_s, LeftPage, u"Left page"_s);
}

void NotesControls::makeToolbars(QWidget& panel) {
    Toolbar1 = new PageToolbar(u"Toolbar1"_s, &panel);
    setTwipsGeometry(*Toolbar1, LeftTools);
    Toolbar1->addOption(u"Left"_s, u"tool_left"_s)->setChecked(true);
    Toolbar1->addOption(u"Center"_s, u"tool_center"_s);
    Toolbar1->addOption(u"Right"_s, u"tool_right"_s);
    Toolbar1->addGap();
    Toolbar1->addCheck(u"Bold"_s, u"tool_bold"_s);
    Toolbar1->addCheck(u"Italic"_s, u"tool_italic"_s);
    Toolbar1->addCheck(u"Underline"_s, u"tool_underline"_s);
    Toolbar1->addGap();
    Toolbar1->addPlain(u"Cut"_s, u"tool_cut"_s);
    Toolbar1->addPlain(u"Copy"_s, u"tool_copy"_s);
    Toolbar1->addPlain(u"Paste"_s, u"tool_paste"_s);
    Toolbar1->addGap();
    Toolbar1->addPlain(u"Undo"_s, u"tool_undo"_s);

    Toolbar2 = new PageToolbar(u"Toolbar2"_s, &panel);
    setTwipsGeometry(*Toolbar2, RightTools);
    Toolbar2->addPlain(u"Font"_s, u"tool_font"_s);
    Toolbar2->addPlain(u"Font Color"_s, u"tool_font_color"_s);
    Toolbar2->addGap();
    Toolbar2->addPlain(u"Increase Indent"_s, u"tool_indent"_s);
    Toolbar2->addPlain(u"Decrease Indent"_s, u"tool_outdent"_s);
    Toolbar2->addGap();
    Toolbar2->addPlain(u"Find"_s, u"tool_find"_s);
    Toolbar2->addGap();
    Toolbar2->addPlain(u"Double Page"_s, u"tool_double_page"_s);
    Toolbar2->addPlain(u"Single Page "_s, u"tool_single_page"_s);
    Toolbar2->addGap();
    Toolbar2->addCheck(u"Toggle Word Wrap"_s, u"tool_wrap"_s)->setChecked(true);
    Toolbar2->addGap();
    Toolbar2->addCheck(u"Insert Bullets"_s, u"tool_bullets"_s);
}

void NotesControls::makeCommands(QWidget& panel) {
    imgNew = command(panel, u"imgNew"_s, 32, u"New"_s, u"new"_s);
    imgSave = command(panel, u"imgSave"_s, 78, u"Save"_s, u"save"_s);
    imgSlika = command(panel, u"imgSlika"_s, 124, u"Insert Image"_s, u"picture"_s);
    imgFind = command(panel, u"imgFind"_s, 170, u"Letters template"_s, u"letters"_s);
    imgMail = command(panel, u"imgMail"_s, 216, u"Send Email"_s, u"mail"_s);
    imgOpen = command(panel, u"imgOpen"_s, 392, u"Open"_s, u"open_file"_s);
    imgPrint = command(panel, u"imgPrint"_s, 438, u"Print"_s, u"print"_s);
    PB1 = progress(panel, u"PB1"_s, LeftProgress);
    PB2 = progress(panel, u"PB2"_s, RightProgress);
    ImUbaci = new Image(u"ImUbaci"_s, &panel);
    ImUbaci->hide();
}

void NotesControls::makeFindFrame(QWidget& panel) {
    Frame1 = new QFrame(&panel);
    Frame1->setObjectName(u"Frame1"_s);
    Frame1->setFrameShape(QFrame::StyledPanel);
    Frame1->setAutoFillBackground(true);
    setTwipsGeometry(*Frame1, FindPlace);
    Label5 = pageLabel(*Frame1, u"Label5"_s, {10, 10, 74, 18}, u"Find what:"_s);
    Text1 = pageLine(*Frame1, u"Text1"_s, {86, 8, 137, 22}, Label5->Caption());
    Label4 = pageLabel(*Frame1, u"Label4"_s, {10, 36, 74, 18}, u"Replace with:"_s);
    Text2 = pageLine(*Frame1, u"Text2"_s, {86, 34, 137, 22}, Label4->Caption());
    Check4 = pageCheck(*Frame1, u"Check4"_s, {10, 62, 100, 20}, u"&Case sensitive"_s);
    Check3 = pageCheck(*Frame1, u"Check3"_s, {112, 62, 116, 20}, u"&Whole word only"_s);
    FindButton = pageButton(*Frame1, u"FindButton"_s, {10, 89, 68, 23}, u"Find"_s);
    FindNextButton = pageButton(*Frame1, u"FindNextButton"_s, {10, 116, 68, 23}, u"Next"_s);
    ReplaceButton = pageButton(*Frame1, u"ReplaceButton"_s, {82, 89, 74, 23}, u"Replace"_s);
    ReplaceAllButton =
        pageButton(*Frame1, u"ReplaceAllButton"_s, {82, 116, 74, 23}, u"Replace All"_s);
    Command5 = pageButton(*Frame1, u"Command5"_s, {160, 116, 63, 23}, u"Close"_s);
    Frame1->hide();
}

void NotesControls::setTabOrder() {
    QWidgetList order{rt1, Text1, Text2, Check4, Check3};
    for (const PageToolbar* toolbar : {Toolbar1, Toolbar2})
        for (QToolButton* tool : toolbar->buttons())
            order << tool;
    order << QWidgetList{imgNew, imgSave, imgSlika, imgFind, imgMail, rt1a, imgOpen, imgPrint};
    orvalis::setTabOrder(order);
}

} // namespace orvalis
