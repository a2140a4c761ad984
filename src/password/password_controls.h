// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>

class QGroupBox;
class QLineEdit;
class QRadioButton;
class QWidget;

namespace orvalis {

class GGCommand;
class Image;
class Label;
class ProgressBar;
class RichTextBox;

/// The controls of the Password panel beside the chrome, made on the panel in their design places.
/// The panel owns them; this only names them.
class PasswordControls {
public:
    explicit PasswordControls(QWidget& panel);

    RichTextBox* txtrt1;
    ProgressBar* PB1;
    RichTextBox* txtText;

    // "Encrypt/Decrypt text "
    QGroupBox* Frame4;
    Label* Label6;
    QLineEdit* txtPW;
    std::array<GGCommand*, 2> cmdCrypt;

    Image* imgNew;
    Image* imgOpen;
    Image* imgSave;
    Image* imgMail;
    Image* imgBack;

    /// Which method is at work. Both lie below the panel's lower edge, out of the user's reach: the
    /// second one is chosen, and the first one stays for whoever changes this.
    std::array<QRadioButton*, 2> optMethod;

private:
    void makeTexts(QWidget& panel);
    void makeFrame(QWidget& panel);
    void makeCommands(QWidget& panel);
    void makeMethods(QWidget& panel);
    void setTabOrder();
};

} // namespace orvalis
