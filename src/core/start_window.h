// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/common_dialog.h"
#include "controls/form.h"
#include "core/roles.h"
#include "core/tick.h"

namespace orvalis {

class AlignedTimer;
class Image;
class Label;
class Program;

/// `frmStart`, the hidden window that lives from the first moment to the last: it refuses a second
/// instance, chooses between the main window and the tray, and owns the tick of the windowed
/// program.
class frmStart final : public Form, public StartWindow, public TickOwner {
    Q_OBJECT
public:
    /// \param previousInstance whether the program runs already for this user and data folder.
    frmStart(Program& program, bool previousInstance);
    ~frmStart() override;

    Form& form() override { return *this; }
    void setTimer23Enabled(bool enabled) override;
    bool timer23Enabled() const override;
    MSFlexGrid& MS2() override { return *m_MS2; }

    void showClock(const QString& text) override;
    /// `FrmStartDisarm`
    void disarm() override;

protected:
    void onLoad() override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void timer23();

    Program& m_program;
    bool m_previousInstance;
    CommonDialog m_CommonDialog1;
    MSFlexGrid* m_MS2;
    Image* m_Image1;
    Label* m_lblVreme;
    Label* m_lblAlarm;
    AlignedTimer* m_Timer23;
};

} // namespace orvalis
