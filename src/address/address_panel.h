// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "address/address_controls.h"
#include "address/contact_panel.h"
#include "controls/common_dialog.h"
#include "core/chrome_window.h"
#include "runtime/integer16.h"

namespace orvalis {

class AddressBook;

/// `frmnotes3`, the Address panel: shows one contact at a time on a card and edits the book. What
/// is typed touches nothing until Add or Save copies it into the book.
class frmnotes3 final : public ChromePanel<AddressPanel>, public ContactPanel {
    Q_OBJECT
public:
    /// \param book outlives the panel.
    frmnotes3(Program& program, AddressBook& book);

    AddressRecord shownContact() const override { return ui.contact(); }
    ProgressBar& PB1() override { return *ui.PB1; }
    /// Asks for the dialer's program and keeps its path for later runs.
    /// \returns the path; empty where the dialog was cancelled.
    QString Nadjiga();

public slots:
    /// Appends the contact on show to Address.txt.
    /// \throws RuntimeError as readWhole() and saveWhole() do.
    void funcSave();
    /// Puts the contact on show on the emptied page of the print window, and shows that window.
    void FillPrint();

protected:
    void onLoad() override;

private:
    // address_panel.cpp: what is on show
    void connectChrome();
    void ShowRecord(int index);
    void showPicture(const QString& path);
    void showDefaultPicture();
    void connectSteps();
    void step(int index);
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();

    // address_editing.cpp
    void connectEditing();
    bool lacksName();
    bool FirstExists(const QString& text);
    bool SecondExists(const QString& text);
    bool stands(const QString& text, QString AddressRecord::*field);
    AddressRecord contactToStore() const;
    void append(const AddressRecord& contact);
    void imgNew_Click();
    void imgAdd_Click();
    void imgSave_Click();
    void imgDel_Click();
    void imgAdresa1_Click();

    // address_finding.cpp: order and search
    void connectFinding();
    bool sortsByFirst();
    bool SortRecords();
    void SortItems();
    void ResetSearch();
    void imgSort_Click();
    void Combo2_Click();
    void cmdFind_Click();

    // address_actions.cpp: what goes out of the program
    void connectActions();
    void imgEmail_Click();
    void imgNet_Click();
    void imgPhone_Click();
    void imgBack_Click();
    bool askWhereToBackUp();

    AddressBook& m_book;
    AddressControls ui;
    CommonDialog CommonDialog1;
    /// The record that the commands act on. After a search or a sort another one is on show.
    Integer16 CurrentIndex;
    bool NewItemPending = false; ///< New was pressed, and nothing was added since
    bool FirstMatch = false;
    bool SecondMatch = false;
};

} // namespace orvalis
