// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/image.h"
#include "controls/label.h"
#include "support/test_program.h"
#include "widgets/gg_command.h"

#include <QApplication>
#include <QCheckBox>
#include <QToolButton>

namespace orvalis::test {

/// A window in a program over doubles, with what a test does to its controls. The window is made by
/// the first panel().
/// \tparam Role as which the registry knows the window; who derives from this registers its maker.
template <class Role, class Window>
class WindowGround : public TestProgram {
public:
    Window& panel() { return static_cast<Window&>(program.windows.get<Role>()); }
    /// The window on the screen and in use.
    Window& shown() {
        Window& form = panel();
        form.Show();
        QApplication::setActiveWindow(&form);
        return form;
    }
    void leave() { program.windows.unload<Role>(); }

    template <class Control>
    Control& control(const QString& name) {
        auto* found = panel().template findChild<Control*>(name);
        if (!found)
            qFatal("no control %s", qPrintable(name));
        return *found;
    }
    QString caption(const QString& label) { return control<Label>(label).Caption(); }
    bool isUp(const QString& name) { return !control<QWidget>(name).isHidden(); }

    /// Presses a button, a tool or a picture the way its handler hears of it.
    void press(const QString& name) {
        QWidget& widget = control<QWidget>(name);
        if (auto* button = qobject_cast<GGCommand*>(&widget))
            button->setValue(true);
        else if (auto* tool = qobject_cast<QToolButton*>(&widget))
            tool->click();
        else
            emit static_cast<Image&>(widget).Click();
    }
    void tick(const QString& name, bool on = true) { control<QCheckBox>(name).setChecked(on); }
};

} // namespace orvalis::test
