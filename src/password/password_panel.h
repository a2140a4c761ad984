// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/common_dialog.h"
#include "core/chrome_window.h"
#include "password/password_controls.h"
#include "password/save_menu.h"

namespace orvalis {

/// `frmnotes4`, the Password panel: on the left a text as written or loaded, on the right the
/// working copy that is scrambled with a password or brought back in its place. Nothing of it is
/// kept.
class frmnotes4 final : public ChromePanel<PasswordPanel>, public PasswordTexts {
public:
    explicit frmnotes4(Program& program);

    RichTextBox& txtrt1() override { return *ui.txtrt1; }
    RichTextBox& txtText() override { return *ui.txtText; }

    /// The cipher with this panel's progress bar. A failure is told in a box and leaves the bar
    /// standing. \param method 1 or 2. \returns an empty text after a failure.
    QString EncryptString(const QString& text, const QString& password, bool encrypt, int method);

protected:
    void onLoad() override;

private:
    void imgNew_Click();
    void imgOpen_Click();
    void imgMail_Click();
    void imgBack_Click();
    void cmdCrypt_Click(int index);

    PasswordControls ui;
    CommonDialog CommonDialog1;
};

} // namespace orvalis
