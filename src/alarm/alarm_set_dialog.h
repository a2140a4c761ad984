// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/roles.h"

namespace orvalis {

class ComboBox;
class GGCommand;
class Label;
class Program;
class RichTextBox;

/// "Alarm Set": hour, minute, media file and message of an alarm. Its OK arms the alarm.
class frmAlSet final : public Form, public AlarmSetDialog {
    Q_OBJECT
public:
    explicit frmAlSet(Program& program);

    Form& form() override { return *this; }

protected:
    void onLoad() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeTimeControls(QWidget& frame);
    void makeMessageControls(QWidget& frame);
    void timeTyped(const ComboBox& box, int limit);
    void showChoice();
    void chooseMedia();
    void okClick();
    void arm();

    Program& m_program;
    ComboBox* m_Combo1 = nullptr;
    ComboBox* m_Combo2 = nullptr;
    Label* m_Label5 = nullptr;
    RichTextBox* m_rt1 = nullptr;
    GGCommand* m_imgOK = nullptr;
    GGCommand* m_imgCanc = nullptr;
};

} // namespace orvalis
