// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/combo_box.h"
#include "core/options_dialog.h"
#include "runtime/clock_text.h"
#include "support/test_main.h"
#include "support/test_program.h"
#include "widgets/gg_command.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

/// The program with its options; they load at the first reference.
struct Options {
    Options() {
        outside.program.windows.registerMaker<OptionsWindow>(
            [this] { return std::make_unique<frmOptions>(outside.program); });
    }
    frmOptions& form() { return static_cast<frmOptions&>(role().form()); }
    OptionsWindow& role() { return outside.program.windows.get<OptionsWindow>(); }
    bool isLoaded() const { return outside.program.windows.loaded<OptionsWindow>() != nullptr; }
    template <class Control>
    Control* control(const QString& name) {
        return form().findChild<Control*>(name);
    }
    bool checked(const QString& name) { return control<QRadioButton>(name)->isChecked(); }
    QCheckBox* check1() { return control<QCheckBox>(u"Check1"_s); }
    ComboBox* list() { return control<ComboBox>(u"lstvreme"_s); }
    void chooseFormat(int index) {
        list()->setCurrentIndex(index);
        emit list()->activated(index);
    }
    void ok() { control<GGCommand>(u"imgOK"_s)->setValue(true); }
    void cancel() { control<GGCommand>(u"imgCanc"_s)->setValue(true); }
    void put(const QString& section, const QString& name, const StoredValue& value) {
        outside.store.setValue(Hive::CurrentUser, u"SOFTWARE\\Orvalis\\"_s + section, name, value);
    }
    void put(const QString& section, const QString& name, const QString& text) {
        put(section, name, StoredValue::string(text));
    }
    QString stored(const QString& section, const QString& name) {
        const auto value =
            outside.store.value(Hive::CurrentUser, u"SOFTWARE\\Orvalis\\"_s + section, name);
        return value ? value->text : u"(none)"_s;
    }
    int& format() { return outside.program.state.timeFormatIndex; }
    QString clock() { return ClockText(format(), outside.clock.time()); }

    TestProgram outside;
};

} // namespace

class OptionsDialogTest : public QObject {
    Q_OBJECT
private slots:
    void enterIsOkAndEscapeIsCancel_data() {
        QTest::addColumn<QString>("focus");
        for (const auto& name : {u"Option1(1)"_s, u"Check1"_s, u"optSort(0)"_s, u"lstvreme"_s})
            QTest::newRow(qPrintable(name)) << name;
    }
    void enterIsOkAndEscapeIsCancel() {
        QFETCH(QString, focus);
        for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
            Options options;
            options.form().Show();
            QVERIFY(QTest::qWaitForWindowActive(&options.form()));
            options.control<QWidget>(focus)->setFocus();
            QTest::keyClick(options.control<QWidget>(focus), static_cast<Qt::Key>(key));
            QVERIFY(!options.isLoaded());
            QCOMPARE(options.stored(u"Reg"_s, u"Start"_s),
                     key == Qt::Key_Escape ? u"(none)"_s : u"0"_s);
        }
    }

    void theKeyboardBeginsAtTheChosenPlayerAndGoesToNoButton() {
        for (const bool builtIn : {true, false}) {
            Options options;
            options.put(u"Media"_s, u"Player1"_s, builtIn ? u"True"_s : u"False"_s);
            options.put(u"Media"_s, u"Player2"_s, builtIn ? u"False"_s : u"True"_s);
            options.form().Show();
            QVERIFY(QTest::qWaitForWindowActive(&options.form()));
            QCOMPARE(options.form().focusWidget()->objectName(),
                     builtIn ? u"Option1(0)"_s : u"Option1(1)"_s);
            QSet<QString> reached;
            for (int i = 0; i < 10; ++i) {
                reached << options.form().focusWidget()->objectName();
                QTest::keyClick(options.form().focusWidget(), Qt::Key_Tab);
            }
            QCOMPARE(reached.size(), 4);
            QVERIFY(!reached.contains(u"imgOK"_s) && !reached.contains(u"imgCanc"_s));
        }
    }

    void theDialogCarriesItsWords() {
        Options options;
        QCOMPARE(options.form().windowTitle(), u"Orvalis Options"_s);
        QCOMPARE(options.form().size(), QSize(246, 267));
        QCOMPARE(options.control<QGroupBox>(u"Frame3"_s)->title(), u"Set Media Player"_s);
        QCOMPARE(options.control<QRadioButton>(u"Option1(0)"_s)->text(), u"Use &Orvalis Player"_s);
        QCOMPARE(options.control<QRadioButton>(u"Option1(1)"_s)->text(), u"Use &Default Player"_s);
        QCOMPARE(options.control<QGroupBox>(u"Frame2"_s)->title(), u"Start Up"_s);
        QCOMPARE(options.check1()->text(), u"&Load with Windows and stay Minimized"_s);
        QCOMPARE(options.control<QGroupBox>(u"Frame4"_s)->title(), u"Address Book"_s);
        QCOMPARE(options.control<QLabel>(u"Label1"_s)->text(), u"Sort Items:"_s);
        QCOMPARE(options.control<QRadioButton>(u"optSort(0)"_s)->text(), u"by &First"_s);
        QCOMPARE(options.control<QRadioButton>(u"optSort(1)"_s)->text(), u"by &Second"_s);
        QCOMPARE(options.control<QGroupBox>(u"Frame6"_s)->title(), u"Display Time Format"_s);
    }

    void itShowsWithoutHoldingTheOtherWindows() {
        Options options;
        options.form().Show();
        QVERIFY(options.form().isVisible());
        QCOMPARE(options.form().windowModality(), Qt::NonModal);
    }

    void eachMissingSettingHasADefaultOfItsOwn() {
        Options options;
        options.put(u"Media"_s, u"Player2"_s, u"False"_s);
        options.put(u"Reg"_s, u"1st"_s, u"False"_s);
        QVERIFY(!options.checked(u"Option1(0)"_s));
        QVERIFY(!options.checked(u"Option1(1)"_s));
        QVERIFY(!options.checked(u"optSort(0)"_s));
        QVERIFY(!options.checked(u"optSort(1)"_s));
    }

    void onAFreshProfileTheDefaultsShow() {
        Options options;
        QVERIFY(!options.checked(u"Option1(0)"_s));
        QVERIFY(options.checked(u"Option1(1)"_s));
        QVERIFY(!options.check1()->isChecked());
        QVERIFY(options.checked(u"optSort(0)"_s));
        QVERIFY(!options.checked(u"optSort(1)"_s));
        QCOMPARE(options.list()->ListIndex(), 0);
        QCOMPARE(options.list()->Text(), u"10 : 24 : 36"_s);
        QCOMPARE(options.format(), 0);
        QVERIFY(!options.role().builtInPlayer());
        QVERIFY(options.role().sortByFirst());
        QCOMPARE(options.outside.store.keyCount(), 0);
    }

    void theListHoldsTheTimeInThirteenFormats() {
        QCOMPARE(clockFormatList(QTime(19, 5, 8)),
                 (QStringList{u"19 : 05 : 08"_s, u"19 : 5 : 8"_s, u"07:05:08 PM"_s, u"07:05 PM"_s,
                              u"07:05 PM"_s, u"19 : 05"_s, u"19 : 05 : 00"_s, u"19 : 5"_s,
                              u"19 / 5 / 8"_s, u"07/05/08 PM"_s, u"07 / 05 PM"_s, u"19 / 05"_s,
                              u"19 / 05 / 00"_s}));
    }

    void theListIsASnapshotOfTheTimeAtLoad() {
        Options options;
        QCOMPARE(options.list()->ListCount(), 13);
        options.outside.clock.advanceSeconds(60);
        QCOMPARE(options.list()->List(0), u"10 : 24 : 36"_s);
        options.cancel();
        QCOMPARE(options.list()->List(0), u"10 : 25 : 36"_s);
    }

    void aReferenceLoadsTheSettingsWithoutShowing() {
        Options options;
        options.put(u"Media"_s, u"Player1"_s, u"True"_s);
        options.put(u"Media"_s, u"Player2"_s, u"False"_s);
        options.put(u"Reg"_s, u"1st"_s, u"False"_s);
        options.put(u"Reg"_s, u"2nd"_s, u"True"_s);
        options.put(u"Reg"_s, u"Start"_s, u"1"_s);
        options.put(u"Reg"_s, u"Vreme"_s, u"8"_s);
        QVERIFY(!options.isLoaded());
        QCOMPARE(options.format(), 0);
        QVERIFY(options.role().builtInPlayer());
        QVERIFY(!options.form().isVisible());
        QVERIFY(!options.role().sortByFirst());
        QVERIFY(options.check1()->isChecked());
        QCOMPARE(options.format(), 8);
        QCOMPARE(options.list()->Text(), u"10 / 24 / 36"_s);
    }

    void okWritesEverythingAsTextAndUnloads() {
        Options options;
        options.control<QRadioButton>(u"Option1(0)"_s)->setChecked(true);
        options.control<QRadioButton>(u"optSort(1)"_s)->setChecked(true);
        options.chooseFormat(2);
        options.ok();
        QVERIFY(!options.isLoaded());
        QCOMPARE(options.stored(u"Media"_s, u"Player1"_s), u"True"_s);
        QCOMPARE(options.stored(u"Media"_s, u"Player2"_s), u"False"_s);
        QCOMPARE(options.stored(u"Reg"_s, u"Start"_s), u"0"_s);
        QCOMPARE(options.stored(u"Reg"_s, u"1st"_s), u"False"_s);
        QCOMPARE(options.stored(u"Reg"_s, u"2nd"_s), u"True"_s);
        QCOMPARE(options.stored(u"Reg"_s, u"Vreme"_s), u"2"_s);
        QCOMPARE(options.outside.store.valueCount(), 6);
        QCOMPARE(options.format(), 2);
        QCOMPARE(options.clock(), u"10 : 24 : 36 AM"_s);
        QVERIFY(options.role().builtInPlayer());
    }

    void okGoesByTheRunEntryTheFormatAndTheSettingsInThatOrder() {
        Options options;
        options.check1()->setChecked(true);
        options.chooseFormat(7);
        QStringList seen;
        options.outside.logonEntry.atCall = [&] {
            seen << u"entry, format %1"_s.arg(options.format());
        };
        options.outside.store.atWrite = [&](const QString& path, const QString& name) {
            seen << path.section(u'\\', -1) + u'/' + name;
            QCOMPARE(options.format(), 7);
            QVERIFY(options.isLoaded());
        };
        options.ok();
        QCOMPARE(seen, (QStringList{u"entry, format 0"_s, u"Media/Player1"_s, u"Media/Player2"_s,
                                    u"Reg/Start"_s, u"Reg/1st"_s, u"Reg/2nd"_s, u"Reg/Vreme"_s}));
        QVERIFY(!options.isLoaded());
    }

    void theFormatKeepsItsValueWhenTheDialogGoes() {
        Options options;
        options.put(u"Reg"_s, u"Vreme"_s, u"8"_s);
        options.role();
        options.cancel();
        QVERIFY(!options.isLoaded());
        QCOMPARE(options.format(), 8);
    }

    void okWithoutAClickOnTheListStoresTheFirstFormat() {
        Options options;
        options.put(u"Reg"_s, u"Vreme"_s, u"8"_s);
        options.role();
        QCOMPARE(options.format(), 8);
        options.ok();
        QCOMPARE(options.format(), 0);
        QCOMPARE(options.stored(u"Reg"_s, u"Vreme"_s), u"0"_s);
    }

    void theTwinEntriesAreToldApartByTheClick() {
        Options options;
        options.chooseFormat(4);
        options.ok();
        QCOMPARE(options.stored(u"Reg"_s, u"Vreme"_s), u"4"_s);
    }

    void theArrowKeysPassTheTwinEntries() {
        Options options;
        options.form().Show();
        for (int down = 0; down < 6; ++down)
            QTest::keyClick(options.list(), Qt::Key_Down);
        QCOMPARE(options.list()->ListIndex(), 6);
        options.ok();
        QCOMPARE(options.stored(u"Reg"_s, u"Vreme"_s), u"6"_s);
    }

    void cancelAfterAChangeLeavesTheClocksAsTheyWere() {
        Options options;
        const QString before = options.clock();
        options.chooseFormat(9);
        options.check1()->setChecked(true);
        options.cancel();
        QCOMPARE(options.clock(), before);
        QVERIFY(!options.isLoaded());
        QCOMPARE(options.outside.store.valueCount(), 0);
        QVERIFY(options.outside.logonEntry.entries.isEmpty());
        QVERIFY(!options.check1()->isChecked());
    }

    void escapeIsCancel() {
        Options options;
        options.form().Show();
        options.chooseFormat(9);
        QTest::keyClick(&options.form(), Qt::Key_Escape);
        QVERIFY(!options.isLoaded());
        QCOMPARE(options.outside.store.valueCount(), 0);
    }

    void theWindowManagersCloseIsCancel() {
        Options options;
        options.form().Show();
        options.chooseFormat(9);
        options.form().close();
        QVERIFY(!options.isLoaded());
        QCOMPARE(options.outside.store.valueCount(), 0);
        QCOMPARE(options.format(), 0);
    }

    void tickingStartEntersTheProgramAtLogonAndUntickingTakesItOut() {
        Options options;
        options.check1()->setChecked(true);
        options.ok();
        QCOMPARE(options.stored(u"Reg"_s, u"Start"_s), u"1"_s);
        QCOMPARE(options.outside.logonEntry.entries.value(u"Orvalis"_s),
                 options.outside.app.executablePath());
        QVERIFY(options.check1()->isChecked());
        options.check1()->setChecked(false);
        options.ok();
        QCOMPARE(options.stored(u"Reg"_s, u"Start"_s), u"0"_s);
        QVERIFY(options.outside.logonEntry.entries.isEmpty());
        options.ok();
        QVERIFY(options.outside.logonEntry.entries.isEmpty());
    }

    void tickingStartWithoutTheRightToWriteTheLogonEntryIsSilent() {
        Options options;
        options.outside.logonEntry.permitted = false;
        options.check1()->setChecked(true);
        options.ok();
        QCOMPARE(options.stored(u"Reg"_s, u"Start"_s), u"1"_s);
        QVERIFY(options.outside.logonEntry.entries.isEmpty());
    }

    void settingsThatCannotBeWrittenAreSilent() {
        Options options;
        options.outside.store.writable = false;
        options.chooseFormat(5);
        options.ok();
        QVERIFY(!options.isLoaded());
        QCOMPARE(options.format(), 5);
    }

    void vremeOutsideTheListOrNoNumber_data() {
        QTest::addColumn<QString>("vreme");
        QTest::addColumn<int>("format");
        QTest::addColumn<int>("listIndex");
        QTest::addColumn<QString>("clock");
        QTest::newRow("13 is taken: no list text, an empty clock")
            << u"13"_s << 13 << -1 << QString();
        QTest::newRow("-1 is taken: no list text, an empty clock")
            << u"-1"_s << -1 << -1 << QString();
        QTest::newRow("x is passed over: the format stays") << u"x"_s << 3 << 3 << u"10 : 24 AM"_s;
        QTest::newRow("99999 overflows and is passed over: the format stays")
            << u"99999"_s << 3 << 3 << u"10 : 24 AM"_s;
        QTest::newRow("empty is passed over") << QString() << 3 << 3 << u"10 : 24 AM"_s;
        QTest::newRow("12 is the last") << u"12"_s << 12 << 12 << u"10/ 24/ 00"_s;
    }
    void vremeOutsideTheListOrNoNumber() {
        QFETCH(QString, vreme);
        QFETCH(int, format);
        QFETCH(int, listIndex);
        QFETCH(QString, clock);
        Options options;
        options.format() = 3;
        options.put(u"Reg"_s, u"Vreme"_s, vreme);
        QCOMPARE(options.list()->ListIndex(), listIndex);
        QCOMPARE(options.format(), format);
        QCOMPARE(options.clock(), clock);
    }

    void aSettingThatIsNoFlagLeavesItsControlAndTheOthersLoad() {
        Options options;
        options.put(u"Media"_s, u"Player1"_s, u"perhaps"_s);
        options.put(u"Media"_s, u"Player2"_s, u"perhaps"_s);
        options.put(u"Reg"_s, u"Start"_s, u"7"_s);
        options.put(u"Reg"_s, u"Vreme"_s, u"1"_s);
        QVERIFY(!options.checked(u"Option1(0)"_s));
        QVERIFY(!options.checked(u"Option1(1)"_s));
        QVERIFY(!options.check1()->isChecked());
        QVERIFY(options.checked(u"optSort(0)"_s));
        QCOMPARE(options.format(), 1);
    }

    void bothOptionsOfAGroupCanBeFalse() {
        Options options;
        options.put(u"Reg"_s, u"1st"_s, u"False"_s);
        QVERIFY(!options.checked(u"optSort(0)"_s));
        QVERIFY(!options.checked(u"optSort(1)"_s));
        options.ok();
        QCOMPARE(options.stored(u"Reg"_s, u"1st"_s), u"False"_s);
        QCOMPARE(options.stored(u"Reg"_s, u"2nd"_s), u"False"_s);
    }

    void startAsANumberOrAsTheThirdStateIsRead() {
        Options options;
        options.put(u"Reg"_s, u"Start"_s, StoredValue::doubleWord(1));
        QVERIFY(options.check1()->isChecked());
        options.cancel();
        options.put(u"Reg"_s, u"Start"_s, u"2"_s);
        QCOMPARE(options.check1()->checkState(), Qt::PartiallyChecked);
        options.ok();
        QCOMPARE(options.stored(u"Reg"_s, u"Start"_s), u"2"_s);
        QVERIFY(options.outside.logonEntry.entries.isEmpty());
    }
};

ORVALIS_TEST_MAIN_WITH(QApplication, OptionsDialogTest)
#include "options_dialog_test.moc"
