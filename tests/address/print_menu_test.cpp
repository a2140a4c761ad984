// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/print_menu.h"

#include "support/plain_windows.h"
#include "support/test_main.h"

#include <QApplication>
#include <QMenu>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

class PrintMenuTest : public QObject {
    Q_OBJECT
private slots:
    void theEntriesHaveTheirNamesAndWords();
    void eachEntryRunsItsCommandOfTheWindow();
};

void PrintMenuTest::theEntriesHaveTheirNamesAndWords() {
    QWidget parent;
    const QMenu* menu = makePrintMenu(&parent, {});
    QCOMPARE(menu->objectName(), u"mnustampa"_s);
    QStringList entries;
    for (const QAction* action : menu->actions())
        entries << action->objectName() + u": "_s + action->text();
    QCOMPARE(entries, (QStringList{u"mnup1: Print &All"_s, u"mnup2: Print &Current"_s}));
}

void PrintMenuTest::eachEntryRunsItsCommandOfTheWindow() {
    QWidget parent;
    PlainWindow<PrintWindow> window(u"frmPrint"_s);
    int asked = 0;
    const QMenu* menu = makePrintMenu(&parent, [&]() -> PrintWindow& {
        ++asked;
        return window;
    });
    QCOMPARE(asked, 0);
    menu->actions().at(1)->trigger();
    menu->actions().at(0)->trigger();
    QCOMPARE(window.calls, (QStringList{u"stampa"_s, u"stampaAll"_s}));
    QCOMPARE(asked, 2);
}

ORVALIS_TEST_MAIN_WITH(QApplication, PrintMenuTest)
#include "print_menu_test.moc"
