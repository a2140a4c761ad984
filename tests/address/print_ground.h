// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "address/address_book.h"
#include "address/contact_panel.h"
#include "address/print_window.h"
#include "controls/progress_bar.h"
#include "controls/rich_text_box.h"
#include "support/plain_windows.h"
#include "support/role_doubles.h"
#include "support/test_program.h"

#include <QToolBar>
#include <QToolButton>

namespace orvalis::test {

/// The address panel as far as the print window asks of it, in a window of its own.
class FakeContactPanel final : public QWidget, public ContactPanel {
public:
    FakeContactPanel()
        : m_PB1(QStringLiteral("PB1"), this) {
        m_PB1.hide();
    }
    AddressRecord shownContact() const override { return shown; }
    ProgressBar& PB1() override { return m_PB1; }

    AddressRecord shown;

private:
    ProgressBar m_PB1;
};

/// The print window over doubles of everything around it.
struct PrintGround : TestProgram {
    PrintGround() {
        program.windows.registerMaker<PrintWindow>([this] {
            return std::make_unique<frmPrint>(
                program, book, [this]() -> ContactPanel& { return panel; });
        });
        program.windows.registerMaker<NotesPanel>([this] {
            return std::make_unique<LoggedPanel<NotesPanel>>(program, ChromeKind::Notes, log);
        });
        program.windows.registerMaker<FindWindow>(
            [] { return std::make_unique<PlainWindow<FindWindow>>(QStringLiteral("frmFind")); });
    }
    ~PrintGround() {
        program.windows.unload<PrintWindow>();
        program.windows.unload<NotesPanel>();
    }
    PrintGround(const PrintGround&) = delete;
    PrintGround& operator=(const PrintGround&) = delete;

    frmPrint& window() { return static_cast<frmPrint&>(program.windows.get<PrintWindow>()); }
    RichTextBox& rtb() { return window().rtb(); }
    QToolButton& button(const QString& key) {
        auto* found = window().findChild<QToolButton*>(QStringLiteral("tb1(%1)").arg(key));
        if (found == nullptr)
            qFatal("no button %s", qPrintable(key));
        return *found;
    }
    void press(const QString& key) { button(key).click(); }
    void select(const QString& text) {
        if (rtb().Find(text) < 0)
            qFatal("not on the page: %s", qPrintable(text));
    }
    QStringList printed() {
        return static_cast<LoggedPanel<NotesPanel>&>(program.windows.get<NotesPanel>()).printed;
    }
    QString setting(const QString& name) const {
        return settings.setting(QStringLiteral("Slova"), name, QString()).toString();
    }
    /// A book of contacts that are called "Ann 1" and on, each with a picture of that number.
    void fillBook(int contacts) {
        for (int number = 1; number <= contacts; ++number) {
            book.makeRoom();
            AddressRecord& record = book.record(book.AddressCount);
            record.First = QStringLiteral("Ann %1").arg(number);
            record.Picture = QStringLiteral("/pictures/%1.png").arg(number);
            ++book.AddressCount;
        }
    }

    QStringList log;
    FakeContactPanel panel;
    AddressBook book{app};
};

} // namespace orvalis::test
