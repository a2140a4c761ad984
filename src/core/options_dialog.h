// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/roles.h"
#include "runtime/integer16.h"

#include <QTime>

#include <array>

class QCheckBox;
class QRadioButton;

namespace orvalis {

class ComboBox;
class GGCommand;
class Program;

/// The thirteen entries of the list of clock formats at a time of day. Some differ in spacing from
/// what the clock then shows.
QStringList clockFormatList(QTime time);

/// "Orvalis Options": the user's settings. Its load is the moment at which they take effect, also
/// where it is loaded by a look at one of its controls and never shown.
class frmOptions final : public Form, public OptionsWindow {
    Q_OBJECT
public:
    explicit frmOptions(Program& program);

    Form& form() override { return *this; }
    bool builtInPlayer() const override;
    bool sortByFirst() const override;

protected:
    void onLoad() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makePlayerFrame();
    void makeStartFrame();
    void makeSortFrame();
    void makeTimeFrame();
    void makeButtons();
    void lstvremeClick();
    void okClick();
    void writeSettings() const;

    Program& m_program;
    std::array<QRadioButton*, 2> m_Option1 = {};
    QCheckBox* m_Check1 = nullptr;
    std::array<QRadioButton*, 2> m_optSort = {};
    ComboBox* m_lstvreme = nullptr;
    GGCommand* m_imgOK = nullptr;
    GGCommand* m_imgCanc = nullptr;
    Integer16 m_selected = 0; ///< only a click on the list sets it
};

} // namespace orvalis
