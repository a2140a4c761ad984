// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/combo_box.h"
#include "controls/month_view.h"
#include "controls/ms_flex_grid.h"
#include "controls/rich_text_box.h"
#include "planner/reminder_panel.h"
#include "support/sticker_doubles.h"
#include "support/test_main.h"
#include "support/window_ground.h"

#include <QGroupBox>
#include <QLineEdit>

namespace orvalis::test {

/// The start window as far as the panel needs one: the owner of the hidden grid.
class GridOwner final : public Form, public StartWindow {
public:
    GridOwner()
        : Form(QStringLiteral("frmStart"))
        , m_MS2(new MSFlexGrid(this)) {}

    Form& form() override { return *this; }
    void setTimer23Enabled(bool enabled) override { m_timer = enabled; }
    bool timer23Enabled() const override { return m_timer; }
    MSFlexGrid& MS2() override { return *m_MS2; }

private:
    MSFlexGrid* m_MS2;
    bool m_timer = true;
};

/// A Reminder panel in a program over doubles. The panel is made by the first panel().
class PanelGround : public WindowGround<ReminderPanel, frmnotes1> {
public:
    explicit PanelGround(QSize screenSize = QSize(800, 600)) {
        screen.screenSize = screenSize;
        program.windows.registerMaker<StartWindow>([] { return std::make_unique<GridOwner>(); });
        program.windows.registerMaker<ReminderPanel>(
            [this] { return std::make_unique<frmnotes1>(program); });
        program.stickers = &stickers;
    }

    MSFlexGrid& MS2() { return program.windows.get<StartWindow>().MS2(); }

    RichTextBox& rt1() { return control<RichTextBox>(QStringLiteral("rt1")); }
    RichTextBox& rt1a() { return control<RichTextBox>(QStringLiteral("rt1a")); }
    RichTextBox& rtMs2() { return control<RichTextBox>(QStringLiteral("rtMs2")); }
    MSFlexGrid& MS1() { return control<MSFlexGrid>(QStringLiteral("MS1")); }
    MSFlexGrid& MS3() { return control<MSFlexGrid>(QStringLiteral("MS3")); }
    MonthView& calendar() { return control<MonthView>(QStringLiteral("MonthView1")); }
    ComboBox& combo(int number) { return control<ComboBox>(QStringLiteral("Combo%1").arg(number)); }
    /// Types into a combo's field.
    void type(ComboBox& combo, const QString& text) {
        combo.lineEdit()->selectAll();
        if (text.isEmpty())
            QTest::keyClick(combo.lineEdit(), Qt::Key_Delete);
        else
            QTest::keyClicks(combo.lineEdit(), text);
    }

    QStringList log;
    FakeStickers stickers{log};
};

} // namespace orvalis::test
