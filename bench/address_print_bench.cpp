// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/address_book.h"
#include "address/contact_panel.h"
#include "address/print_window.h"
#include "controls/progress_bar.h"
#include "support/plain_windows.h"
#include "support/test_program.h"
#include "timing.h"

#include <QFileInfo>

#include <cstdio>

using namespace orvalis;
using namespace orvalis::test;
using bench::medianMilliseconds;
using namespace Qt::StringLiterals;

namespace {

constexpr int Contacts = 32766;
constexpr int PrintedContacts = 327;
constexpr int Rounds = 9;

/// A contact whose lines in the file have some 160 bytes.
AddressRecord contact(int number) {
    AddressRecord record;
    record.First = u"First%1"_s.arg(number * 7919 % Contacts);
    record.Second = u"Second%1"_s.arg(number * 104729 % Contacts);
    record.Area = u"Friends"_s;
    record.Address = u"%1 Mill Lane\r\nback yard"_s.arg(number);
    record.Tel = u"555 %1"_s.arg(number);
    record.Email = u"contact%1@example.org"_s.arg(number);
    record.Web = u"http://"_s;
    return record;
}

void fill(AddressBook& book, int contacts) {
    for (int number = 0; number < contacts; ++number) {
        book.makeRoom();
        book.record(book.AddressCount) = contact(number);
        ++book.AddressCount;
    }
}

class BarePanel final : public QWidget, public ContactPanel {
public:
    AddressRecord shownContact() const override { return {}; }
    ProgressBar& PB1() override { return m_PB1; }

private:
    ProgressBar m_PB1{u"PB1"_s, this};
};

bool measureFile() {
    TestProgram test;
    AddressBook book(test.app);
    fill(book, Contacts);
    const double write = medianMilliseconds(
        Rounds, [&] { book.WriteAddressFile(); });
    const double load = medianMilliseconds(Rounds, [&] { book.load(); });
    const double megabytes = double(QFileInfo(book.path()).size()) / 1e6;
    std::printf("a book of %d contacts (%.1f MB) from its file: %.1f ms (aim: below 100)\n",
                Contacts, megabytes, load);
    std::printf("the same book into its file: %.1f ms (aim: below 100)\n", write);
    return book.AddressCount == Contacts && load < 100 && write < 100;
}

bool measurePrintAll() {
    TestProgram test;
    AddressBook book(test.app);
    fill(book, PrintedContacts);
    BarePanel panel;
    panel.show();
    frmPrint window(test.program, book, [&panel]() -> ContactPanel& { return panel; });
    window.load();
    const auto printAll = [&] {
        window.stampaAll();
        QApplication::processEvents();
    };
    const double first = bench::millisecondsOf(printAll);
    const double second = bench::millisecondsOf(printAll);
    std::printf("Print All of %d contacts: %.1f ms (aim: below 500)\n", PrintedContacts, first);
    std::printf("a second Print All onto the shown page: %.1f ms (aim: below 500)\n", second);
    return first < 500 && second < 500;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Application app(argc, argv);
    const bool quickFile = measureFile();
    const bool quickPrint = measurePrintAll();
    return quickFile && quickPrint ? 0 : 1;
}
