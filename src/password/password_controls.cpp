// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "password/password_controls.h"

#include "controls/image.h"
#include "controls/label.h"
#include "controls/progress_bar.h"
#include "controls/rich_text_box.h"
#include "controls/twips_geometry.h"
#include "core/page_controls.h"
#include "core/picture_button.h"
#include "core/skin_picture.h"
#include "skin/type.h"
#include "widgets/gg_command.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr QRgb FieldPaper = 0xFF86BDCB;
/// The right page's lower edge, where the picture buttons stand.
constexpr int CommandsTop = 5850;
constexpr int CommandsLeft = 5940;
constexpr int CommandSize = 480;
constexpr int CommandStep = 866;

/// The font of the two buttons, or the nearest to it that every machine has.
QFont cryptFont() {
    QFont font = skin::font(skin::points::Body);
    font.setFamilies(QStringList{u"MS Sans Serif"_s} + font.families());
    return font;
}

/// The two buttons that scramble and bring back.
constexpr skin::ButtonLook CryptButton{skin::PageButton.backColor, 0xFFFCF8, 0xCBBD86,
                                       skin::PageButton.foreColor, 0x808000, true};

RichTextBox* textArea(QWidget& panel, const QString& name, const QRectF& twips,
                      const QString& accessibleName) {
    auto* made = new RichTextBox(&panel);
    makePageText(*made, name, {}, accessibleName);
    made->files().setPlain(RichTextFiles::Plain::Ansi);
    made->setMarksNoBreakBlanks(true); // which are codes among others here
    setTwipsGeometry(*made, twips);
    return made;
}

} // namespace

PasswordControls::PasswordControls(QWidget& panel) {
    makeTexts(panel);
    makeFrame(panel);
    makeCommands(panel);
    makeMethods(panel);
    setTabOrder();
}

void PasswordControls::makeTexts(QWidget& panel) {
    txtrt1 = textArea(panel, u"txtrt1"_s, {480, 840, 3945, 5325}, u"Text on the left"_s);
    txtText = textArea(panel, u"txtText"_s, {5940, 840, 3945, 3225}, u"Text on the right"_s);
    PB1 = new ProgressBar(u"PB1"_s, &panel);
    setTwipsGeometry(*PB1, {840, 6240, 2895, 135});
    PB1->hide();
}

void PasswordControls::makeFrame(QWidget& panel) {
    Frame4 = pageFrame(panel, u"Frame4"_s, {}, u"Encrypt/Decrypt text "_s);
    setTwipsGeometry(*Frame4, {5940, 4110, 3945, 1575});
    Label6 = pageLabel(*Frame4, u"Label6"_s, {}, u"Password"_s);
    Label6->setAlignment(Qt::AlignCenter);
    setTwipsGeometry(*Label6, {1605, 240, 750, 210});
    txtPW = pageLine(*Frame4, u"txtPW"_s, {}, Label6->Caption());
    txtPW->setEchoMode(QLineEdit::Password);
    QPalette palette = txtPW->palette();
    palette.setColor(QPalette::Base, QColor(FieldPaper));
    txtPW->setPalette(palette);
    setTwipsGeometry(*txtPW, {585, 630, 2775, 255});
    const std::array captions{u"Encrypt"_s, u"Decrypt"_s};
    const std::array lefts{600, 2520};
    for (std::size_t index = 0; index < cmdCrypt.size(); ++index) {
        GGCommand* button =
            pageButton(*Frame4, u"cmdCrypt(%1)"_s.arg(index), {}, captions.at(index), CryptButton);
        button->setFont(cryptFont());
        setTwipsGeometry(*button, {static_cast<qreal>(lefts.at(index)), 1140, 855, 255});
        cmdCrypt.at(index) = button;
    }
}

void PasswordControls::makeCommands(QWidget& panel) {
    int left = CommandsLeft;
    const auto command = [&](const QString& name, const QString& toolTip, const QString& picture) {
        Image* image = pictureButton(panel, name, {}, toolTip, picture);
        setTwipsGeometry(*image, QRectF(left, CommandsTop, CommandSize, CommandSize));
        left += CommandStep;
        return image;
    };
    imgNew = command(u"imgNew"_s, u"New"_s, u"new"_s);
    imgOpen = command(u"imgOpen"_s, u"Open"_s, u"open_file"_s);
    imgSave = command(u"imgSave"_s, u"Save"_s, u"save"_s);
    imgMail = command(u"imgMail"_s, u"Sand Email"_s, u"mail"_s);
    imgBack = command(u"imgBack"_s, u"Encrypt/Decrypt"_s, u"carry_over"_s);
}

void PasswordControls::makeMethods(QWidget& panel) {
    const std::array places{QRectF(5475, 7035, 375, 195), QRectF(6300, 6900, 375, 255)};
    for (std::size_t index = 0; index < optMethod.size(); ++index) {
        auto* option = new QRadioButton(QString::number(index + 1), &panel);
        option->setObjectName(u"optMethod(%1)"_s.arg(index));
        option->setFocusPolicy(Qt::NoFocus);
        setTwipsGeometry(*option, places.at(index));
        optMethod.at(index) = option;
    }
    optMethod[1]->setChecked(true);
}

void PasswordControls::setTabOrder() {
    orvalis::setTabOrder({txtrt1, txtText, txtPW});
}

} // namespace orvalis
