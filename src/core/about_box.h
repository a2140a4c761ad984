// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/roles.h"

namespace orvalis {

class Image;
class Label;
class Program;

/// `frmAbout`: a picture with the program's version. A click anywhere on it, or Escape, closes it.
class frmAbout final : public Form, public AboutBox {
    Q_OBJECT
public:
    explicit frmAbout(Program& program);

    Form& form() override { return *this; }
    /// Shows the box and holds the caller until it is closed. Timers go on meanwhile.
    void showModal() override;

protected:
    void onLoad() override;
    void onUnload() override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

signals:
    void closed();

private:
    Program& m_program;
    Image* m_Image1;
    Label* m_Label1;
    Label* m_Label3;
};

} // namespace orvalis
