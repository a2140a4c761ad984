// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/common_dialog.h"
#include "core/chrome_window.h"
#include "core/kept_font.h"
#include "core/recovery.h"
#include "planner/clear_menu.h"
#include "planner/entry_frame.h"
#include "planner/planner_page.h"
#include "planner/reminder_controls.h"
#include "planner/reminder_rules.h"

namespace orvalis {

class GridModel;

/// `frmnotes1`, the Reminder panel: a calendar and an entry area on the left page; the Remind and
/// Priority lists, the to-do document and the weekly planner on the right. It reads its files at
/// its load and writes them at its commands.
class frmnotes1 final : public ChromePanel<ReminderPanel>, public ClearCommands {
public:
    explicit frmnotes1(Program& program);

    MSFlexGrid& MS3() override { return *ui.MS3; }
    void sv1() override;
    void sv3() override;
    void Sacremi() override;

    /// Writes a grid to the Priority list's file.
    void MatSave1(const GridModel& grid);

    // The commands of the weekly planner.
    /// Asks, then writes the page of the calendar's week.
    void todo1();
    /// Loads another planner.
    void todo2();
    /// Saves the planner.
    void todo3();
    /// Saves the planner under another name.
    void todo4();
    /// The font of the planner's selection.
    void todo5();
    /// Write the page of the calendar's week and save it.
    void NewPlannerSundayFirst();
    void NewPlannerMondayFirst();

    // The clear commands; each refuses while its sub-panel is not the selected one.
    void mnusamo() override;
    void mnusve() override;
    void mnuclpr1() override;
    void mnuclpr2() override;
    void mnuclr1() override;
    void mnuclr2() override;

protected:
    void onLoad() override;
    void onActivate() override;
    void onQueryUnload() override { Sacremi(); }
    void onUnload() override { Sacremi(); }
    bool exitExtra() override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // reminder_panel.cpp
    void loadDocuments();
    void loadDateAndLists();
    void layOutPages();
    void placeByPicture();
    void goToToday();

    // reminder_entry.cpp: message, reminder and what leads to and from them
    void connectEntryArea();
    void showEntryFrame(EntryFrame frame);
    void chkRemind_Click();
    void endReminderFrame();
    void Combo_Change(const ComboBox& combo, int limit);
    void showTime();
    void Button1_Click();
    void Button2_Click();
    void imgNew_Click();
    void Command2_Click();
    bool hasUnsavedMessage() const;
    bool askToSave(const QString& question);
    std::vector<UnsavedText> unsavedTexts() const;

    // message_save.cpp
    void imgSave_Click();
    void appendEntry(QDate date);
    void addToLists(QDate date);
    void saveAndReadBack();
    void clearEntry();

    // todo_find.cpp
    void connectFind();
    void imgFind_Click();
    void imgBack_Click();
    void FindButton_Click();
    void FindNextButton_Click();
    void find(int leastFound);

    // reminder_keys.cpp: what the keyboard does beside the controls
    void connectKeys();
    bool onRightPage() const;
    void showSubPanelByKey(std::size_t index);

    // reminder_lists.cpp: sub-panels, grids and their files
    void connectLists();
    void selectSubPanel(std::size_t index);
    void MS3_KeyPress(const QString& key);
    void imstodo_Click();
    void imgso_Click();
    QString gridPath(const QString& name);
    void SaveTmp2(const GridModel& grid);
    void LoadTmp1(GridModel& grid);
    void LoadTmp2(GridModel& grid);
    GridModel& hiddenReminders() const;

    // weekly_planner.cpp
    void connectPlanner();
    void newPlanner(FirstDay firstDay);
    QString plannerFile() const;
    QString askPlannerName();

    // clear_commands.cpp
    void connectClearMenu();
    void showClearMenu(std::optional<QPoint> place = {});
    bool isSelected(std::size_t subPanel, const QString& otherwise);
    bool isToDoSelected();
    bool isPrioritySelected();
    bool isReminderSelected();
    bool isHeader(int row, const QString& otherwise);

    ReminderControls ui;
    CommonDialog CommonDialog1;
    FindSteps FindPosition;
    KeptFont m_font;
    Recovery::Registration m_unsaved;
};

} // namespace orvalis
