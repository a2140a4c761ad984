// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/common_dialog.h"
#include "controls/form.h"
#include "core/recovery.h"
#include "core/roles.h"

class QLineEdit;

namespace orvalis {

class AlignedTimer;
class ClockLabel;
class GGCommand;
class Image;
class Program;
class WindowDrag;

/// A small free-floating note: a title, a text, a clock that is also the handle for dragging, and a
/// pin that keeps it above other windows. Its two classes, `frmstick` and `xn`, differ in name,
/// design caption and height alone. Nothing of a sticker outlives it,
/// unless the program ends without asking.
class StickerForm : public Form, public StickerWindow {
    Q_OBJECT
public:
    Form& form() override { return *this; }
    RichTextBox& Text1() override { return *m_Text1; }
    void popUp() override { showWithoutFocus(); }

protected:
    /// \param height of the client area, in twips.
    StickerForm(Program& program, const QString& name, const QString& designCaption, int height);

    void onLoad() override;
    void onUnload() override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    GGCommand* makeButton(const QString& name, const QString& picture, const QString& toolTip,
                          const QRect& place);
    Image* makePin(const QString& name, const QString& picture, const QString& spokenName);
    void makeTitle();
    void makeText();
    void makeClock();
    void pin(bool onTop);
    void updateClock();
    void chooseFont();
    std::vector<UnsavedText> unsavedText() const;

    Program& m_program;
    CommonDialog m_CommonDialog1;
    QLineEdit* m_txtLabel1 = nullptr;
    RichTextBox* m_Text1 = nullptr;
    ClockLabel* m_lblVreme = nullptr;
    Image* m_imgOn = nullptr;
    Image* m_imgOff = nullptr;
    AlignedTimer* m_Timer1 = nullptr;
    WindowDrag* m_drag = nullptr;
    Recovery::Registration m_unsaved;
};

/// The sticker that the user creates from a panel or the tray.
class frmstick final : public StickerForm {
    Q_OBJECT
public:
    explicit frmstick(Program& program);
};

/// The sticker that another sticker creates, and that alarm and reminders pop up in.
class xn final : public StickerForm {
    Q_OBJECT
public:
    explicit xn(Program& program);
};

} // namespace orvalis
