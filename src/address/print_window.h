// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/common_dialog.h"
#include "core/roles.h"

#include <QElapsedTimer>

#include <functional>

class QToolBar;

namespace orvalis {

class AddressBook;
class ContactPanel;
class Program;
struct AddressRecord;

/// `frmPrint`: a page on which contacts are gathered and edited, to be printed or saved. What is on
/// it goes with the window.
class frmPrint final : public Form, public PrintWindow {
public:
    /// \param panel asked for anew at each command, as the address panel comes and goes.
    frmPrint(Program& program, AddressBook& book, std::function<ContactPanel&()> panel);

    Form& form() override { return *this; }
    RichTextBox& rtb() override { return *m_rtb; }
    void stampa() override;
    /// \throws RuntimeError Overflow at record 328, with that record on the page and the snapshot
    /// as it was; PathFileAccessError where the snapshot cannot be written.
    void stampaAll() override;

protected:
    void onLoad() override;
    void onUnload() override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    void makeToolbar();
    void tb1_ButtonClick(const QString& key);
    void print();
    void open();
    void save();
    bool askWhereToSave();
    void changeFont();
    void clearSelection();
    void showFind();
    void loadFont();
    void storeFont();
    void insertNumbered(int number, const AddressRecord& contact);
    bool isTooSmall() const;
    void growBack(bool byTheSystem);
    void layOut();

    Program& m_program;
    AddressBook& m_book;
    std::function<ContactPanel&()> m_panel;
    CommonDialog CommonDialog1;
    QToolBar* m_tb1;
    RichTextBox* m_rtb;
    QSize m_grownFrom;           ///< the size that was last found too small
    QElapsedTimer m_sinceGrowth; ///< since then
};

} // namespace orvalis
