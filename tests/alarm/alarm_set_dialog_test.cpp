// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "alarm/alarm_set_dialog.h"
#include "controls/combo_box.h"
#include "controls/label.h"
#include "controls/rich_text_box.h"
#include "runtime/failure.h"
#include "support/plain_windows.h"
#include "support/test_main.h"
#include "support/test_program.h"
#include "widgets/gg_command.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDir>
#include <QGroupBox>
#include <QLineEdit>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

struct Dialog {
    explicit Dialog(bool builtInPlayer = false) {
        Windows& windows = outside.program.windows;
        windows.registerMaker<AlarmSetDialog>(
            [this] { return std::make_unique<frmAlSet>(outside.program); });
        windows.registerMaker<OptionsWindow>([this, builtInPlayer] {
            hourglassAtTheOptions = hourglass();
            return std::make_unique<PlainOptions>(builtInPlayer);
        });
    }
    Form& form() { return outside.program.windows.get<AlarmSetDialog>().form(); }
    bool isLoaded() const { return outside.program.windows.loaded<AlarmSetDialog>() != nullptr; }
    template <class Control>
    Control* control(const QString& name) {
        return form().findChild<Control*>(name);
    }
    ComboBox* hour() { return control<ComboBox>(u"Combo1"_s); }
    ComboBox* minute() { return control<ComboBox>(u"Combo2"_s); }
    QString shown() { return control<Label>(u"Label5"_s)->Caption(); }
    RichTextBox* message() { return control<RichTextBox>(u"rt1"_s); }
    void choose(ComboBox* box, int index) {
        box->setCurrentIndex(index);
        emit box->activated(index);
    }
    void type(ComboBox* box, const QString& text) {
        box->lineEdit()->clear();
        QTest::keyClicks(box->lineEdit(), text);
    }
    void ok() { control<GGCommand>(u"imgOK"_s)->setValue(true); }
    void cancel() { control<GGCommand>(u"imgCanc"_s)->setValue(true); }
    void media() { control<GGCommand>(u"imgMed"_s)->setValue(true); }
    SharedState& state() { return outside.program.state; }
    static bool hourglass() {
        const QCursor* pointer = QGuiApplication::overrideCursor();
        return pointer != nullptr && pointer->shape() == Qt::WaitCursor;
    }
    QByteArray msg() const { return outside.folder.read(u"Msg.txt"_s); }

    TestProgram outside;
    bool hourglassAtTheOptions = false;
};

} // namespace

class AlarmSetDialogTest : public QObject {
    Q_OBJECT
private slots:
    void enterIsOkAndEscapeIsCancel() {
        for (const auto& name : {u"Combo1"_s, u"Combo2"_s}) {
            for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
                Dialog dialog;
                dialog.form().Show();
                QVERIFY(QTest::qWaitForWindowActive(&dialog.form()));
                auto* box = dialog.control<ComboBox>(name);
                box->setFocus();
                QTest::keyClick(box, static_cast<Qt::Key>(key));
                QVERIFY(!dialog.isLoaded());
                QCOMPARE(dialog.state().alarmArmed, key != Qt::Key_Escape);
            }
        }
    }

    void inTheMessageEnterBeginsALineAndWithControlItIsOk() {
        Dialog dialog;
        dialog.form().Show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog.form()));
        dialog.message()->setFocus();
        QTest::keyClicks(dialog.message(), u"a"_s);
        QTest::keyClick(dialog.message(), Qt::Key_Return);
        QTest::keyClicks(dialog.message(), u"b"_s);
        QVERIFY(dialog.isLoaded());
        QTest::keyClick(dialog.message(), Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(!dialog.isLoaded());
        QCOMPARE(dialog.msg(), QByteArray("Alarm time: 00:00:00\r\na\r\nb"));
    }

    void theMediaFileIsChosenByKey() {
        Dialog dialog;
        const QString file = dialog.outside.folder.write(u"song.wav"_s, {});
        dialog.form().Show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog.form()));
        dialog.message()->setFocus();
        dialog.outside.dialogs.answerOpen(file);
        QTest::keyClick(dialog.message(), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(dialog.state().alarmMediaFile, file);
    }

    void hourMinuteAndMessageHaveTheEditingMenu() {
        Dialog dialog;
        dialog.form().Show();
        for (QWidget* box :
             std::initializer_list<QWidget*>{dialog.hour()->lineEdit(), dialog.minute()->lineEdit(),
                                             dialog.message()->viewport()}) {
            QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(5, 5),
                                    box->mapToGlobal(QPoint(5, 5)));
            QApplication::sendEvent(box, &asked);
            QWidget* menu = QApplication::activePopupWidget();
            QVERIFY(menu != nullptr);
            QCOMPARE(menu->objectName(), u"editMenu"_s);
            menu->close();
        }
    }

    void theDialogCarriesItsWords() {
        Dialog dialog;
        QCOMPARE(dialog.control<QGroupBox>(u"Frame1"_s)->title(),
                 u"Set alarm time, sound or message"_s);
        QCOMPARE(dialog.control<Label>(u"Label1"_s)->Caption(), u"Hour"_s);
        QCOMPARE(dialog.control<Label>(u"Label2"_s)->Caption(), u"Min"_s);
        QCOMPARE(dialog.control<Label>(u"Label3"_s)->Caption(),
                 u"Select multimedia file for alarm notification:"_s);
        QCOMPARE(dialog.control<Label>(u"Label4"_s)->Caption(), u"Alarm message"_s);
        QCOMPARE(dialog.form().size(), QSize(271, 278));
    }

    void beforeItsLoadItIsAlarmSet() {
        Dialog dialog;
        const frmAlSet form(dialog.outside.program);
        QCOMPARE(form.windowTitle(), u"Alarm Set"_s);
        QCOMPARE(form.findChild<Label*>(u"Label5"_s)->Caption(), u"00:00:00"_s);
        QCOMPARE(form.findChild<ComboBox*>(u"Combo1"_s)->Text(), u"00"_s);
        QCOMPARE(form.findChild<ComboBox*>(u"Combo2"_s)->Text(), u"00"_s);
    }

    void itShowsWithoutHoldingTheOtherWindows() {
        Dialog dialog;
        dialog.form().Show();
        QVERIFY(dialog.form().isVisible());
        QCOMPARE(dialog.form().windowModality(), Qt::NonModal);
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

    void theListsHoldEachHourAndMinuteOnceInTwoDigits() {
        Dialog dialog;
        QCOMPARE(dialog.hour()->ListCount(), 24);
        QCOMPARE(dialog.minute()->ListCount(), 60);
        for (ComboBox* box : {dialog.hour(), dialog.minute()})
            for (int i = 0; i < box->ListCount(); ++i)
                QCOMPARE(box->List(i), u"%1"_s.arg(i, 2, 10, QChar(u'0')));
        QCOMPARE(dialog.hour()->Text(), u"00"_s);
        QCOMPARE(dialog.minute()->Text(), u"00"_s);
        QCOMPARE(dialog.shown(), u"00 : 00 : 00"_s);
    }

    void theCaptionFollowsTheChoice() {
        Dialog dialog;
        QCOMPARE(dialog.form().windowTitle(), u"Alarm Time Set:  00 : 00 : 00"_s);
        dialog.choose(dialog.hour(), 7);
        dialog.choose(dialog.minute(), 30);
        QCOMPARE(dialog.shown(), u"07 : 30 : 00"_s);
        QCOMPARE(dialog.form().windowTitle(), u"Alarm Time Set:  07 : 30 : 00"_s);
    }

    void okWithBothBoxesAt00ArmsTheAlarmForMidnight() {
        Dialog dialog;
        dialog.form().Show();
        dialog.ok();
        QVERIFY(dialog.state().alarmArmed);
        QCOMPARE(dialog.state().alarmTimeText, u"00:00:00"_s);
        QCOMPARE(dialog.state().alarmTime, QTime(0, 0, 0));
        QVERIFY(!dialog.isLoaded());
        QCOMPARE(dialog.msg(), QByteArray("Alarm time: 00:00:00\r\nMessage not set"));
    }

    void okStoresTimeAndMessage() {
        Dialog dialog;
        dialog.choose(dialog.hour(), 19);
        dialog.choose(dialog.minute(), 5);
        dialog.message()->SetText(u"Tea\r\nand cake"_s);
        dialog.ok();
        QCOMPARE(dialog.state().alarmTimeText, u"19:05:00"_s);
        QCOMPARE(dialog.state().alarmTime, QTime(19, 5, 0));
        QCOMPARE(dialog.msg(), QByteArray("Alarm time: 19:05:00\r\nTea\r\nand cake"));
    }

    void anEmptyMessageIsNotSet() {
        Dialog dialog;
        dialog.ok();
        QCOMPARE(dialog.msg().split('\n').at(1), QByteArray("Message not set"));
    }

    void aSecondAlarmOverwritesTheMessageOfTheFirst() {
        Dialog dialog;
        dialog.message()->SetText(u"a long message that must not show through"_s);
        dialog.ok();
        dialog.message()->SetText(u"x"_s);
        dialog.ok();
        QCOMPARE(dialog.msg(), QByteArray("Alarm time: 00:00:00\r\nx"));
    }

    void aSingleDigitGetsItsZero() {
        Dialog dialog;
        dialog.type(dialog.hour(), u"7"_s);
        dialog.type(dialog.minute(), u"5"_s);
        QCOMPARE(dialog.shown(), u"7 : 5 : 00"_s);
        dialog.ok();
        QCOMPARE(dialog.state().alarmTimeText, u"07:05:00"_s);
    }

    void typing24GivesTheMessageAndTheTextStays() {
        Dialog dialog;
        dialog.outside.boxes.expect(u"Invalid input for time."_s, 16, Answer::Ok);
        dialog.type(dialog.hour(), u"24"_s);
        dialog.outside.boxes.verifyAllAsked();
        QCOMPARE(dialog.hour()->Text(), u"24"_s);
        QCOMPARE(dialog.shown(), u"2 : 00 : 00"_s);
    }

    void whatIsNoTimeGivesTheMessage_data() {
        QTest::addColumn<bool>("hour");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("refused");
        QTest::newRow("hour 23") << true << u"23"_s << false;
        QTest::newRow("hour 24") << true << u"24"_s << true;
        QTest::newRow("hour -1") << true << u"-1"_s << true;
        QTest::newRow("hour x") << true << u"x"_s << true;
        QTest::newRow("minute 59") << false << u"59"_s << false;
        QTest::newRow("minute 60") << false << u"60"_s << true;
        QTest::newRow("minute word") << false << u"noon"_s << true;
    }
    void whatIsNoTimeGivesTheMessage() {
        QFETCH(bool, hour);
        QFETCH(QString, text);
        QFETCH(bool, refused);
        Dialog dialog;
        if (refused)
            dialog.outside.boxes.expect(u"Invalid input for time."_s, 16, Answer::Ok);
        (hour ? dialog.hour() : dialog.minute())->setText(text);
        dialog.outside.boxes.verifyAllAsked();
    }

    void anEmptiedBoxGivesNoMessage() {
        Dialog dialog;
        dialog.hour()->lineEdit()->selectAll();
        QTest::keyClick(dialog.hour()->lineEdit(), Qt::Key_Delete);
        QCOMPARE(dialog.hour()->Text(), QString());
        QVERIFY(dialog.outside.boxes.asked.isEmpty());
        QCOMPARE(dialog.shown(), u"00 : 00 : 00"_s);
    }

    void choosingFromAListShowsNoMessage() {
        Dialog dialog;
        dialog.outside.boxes.expect(u"Invalid input for time."_s, 16, Answer::Ok);
        dialog.minute()->setText(u"99"_s);
        dialog.outside.boxes.verifyAllAsked();
        dialog.choose(dialog.hour(), 3);
        QCOMPARE(dialog.outside.boxes.asked.size(), 1);
        QCOMPARE(dialog.shown(), u"03 : 99 : 00"_s);
    }

    void invalidTextAtOkIsReportedAndTheDialogStays_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("24") << u"24"_s;
        QTest::newRow("x") << u"x"_s;
        QTest::newRow("empty") << QString();
    }
    void invalidTextAtOkIsReportedAndTheDialogStays() {
        QFETCH(QString, text);
        Dialog dialog;
        dialog.state().alarmTime = QTime(8, 15);
        if (!text.isEmpty())
            dialog.outside.boxes.expect(u"Invalid input for time."_s, 16, Answer::Ok);
        dialog.hour()->setText(text);
        dialog.outside.boxes.expect(u"Type mismatch"_s, 64, Answer::Ok);
        dialog.ok();
        dialog.outside.boxes.verifyAllAsked();
        QVERIFY(dialog.isLoaded());
        QVERIFY(!dialog.state().alarmArmed);
        QCOMPARE(dialog.state().alarmTimeText, text + u":00:00"_s);
        QCOMPARE(dialog.state().alarmTime, QTime(8, 15));
        QCOMPARE(dialog.message()->Text(), u"Message not set"_s);
        QVERIFY(dialog.msg().isEmpty());
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }

    void aNumberBelowZeroMeetsTheZeroAhead() {
        Dialog dialog;
        dialog.outside.boxes.expect(u"Invalid input for time."_s, 16, Answer::Ok);
        dialog.hour()->setText(u"-5"_s);
        dialog.outside.boxes.expect(u"Invalid input for time."_s, 16, Answer::Ok);
        dialog.outside.boxes.expect(u"Type mismatch"_s, 64, Answer::Ok);
        dialog.ok();
        dialog.outside.boxes.verifyAllAsked();
        QCOMPARE(dialog.hour()->Text(), u"0-5"_s);
    }

    void anUnwritableMsgIsReportedAndTheAlarmIsNotArmed() {
        Dialog dialog;
        QVERIFY(QDir().mkdir(dialog.outside.folder.file(u"Msg.txt"_s)));
        dialog.choose(dialog.hour(), 6);
        dialog.outside.boxes.expect(u"Path/File access error"_s, 64, Answer::Ok);
        dialog.ok();
        dialog.outside.boxes.verifyAllAsked();
        QVERIFY(!dialog.state().alarmArmed);
        QVERIFY(dialog.isLoaded());
        QCOMPARE(dialog.state().alarmTimeText, u"06:00:00"_s);
        QCOMPARE(dialog.state().alarmTime, QTime(6, 0, 0));
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }

    void okAfterAMsgThatCouldNotBeWrittenHeadsTheMessageTwice() {
        Dialog dialog;
        const QString msg = dialog.outside.folder.file(u"Msg.txt"_s);
        QVERIFY(QDir().mkdir(msg));
        dialog.message()->SetText(u"Tea"_s);
        dialog.outside.boxes.expect(u"Path/File access error"_s, 64, Answer::Ok);
        dialog.ok();
        QCOMPARE(dialog.message()->Text(), u"Alarm time: 00:00:00\r\nTea"_s);
        QVERIFY(QDir().rmdir(msg));
        dialog.ok();
        QVERIFY(dialog.state().alarmArmed);
        QCOMPARE(dialog.msg(), QByteArray("Alarm time: 00:00:00\r\nAlarm time: 00:00:00\r\nTea"));
    }

    void anAlarmThatIsArmedStaysSoAtCancelAndIsReplacedAtOk() {
        Dialog dialog;
        dialog.choose(dialog.hour(), 6);
        dialog.message()->SetText(u"first"_s);
        dialog.ok();
        dialog.choose(dialog.hour(), 9);
        dialog.cancel();
        QVERIFY(dialog.state().alarmArmed);
        QCOMPARE(dialog.state().alarmTimeText, u"06:00:00"_s);
        QCOMPARE(dialog.state().alarmTime, QTime(6, 0));
        QCOMPARE(dialog.msg(), QByteArray("Alarm time: 06:00:00\r\nfirst"));
        dialog.choose(dialog.hour(), 9);
        dialog.ok();
        QVERIFY(dialog.state().alarmArmed);
        QCOMPARE(dialog.state().alarmTimeText, u"09:00:00"_s);
        QCOMPARE(dialog.state().alarmTime, QTime(9, 0));
        QCOMPARE(dialog.msg(), QByteArray("Alarm time: 09:00:00\r\nMessage not set"));
    }

    void openingForgetsAnEarlierFileAlsoWhenLeftByCancel() {
        Dialog dialog;
        dialog.state().alarmMediaFile = u"/music/old.wav"_s;
        dialog.state().alarmTimeText = u"08:00:00"_s;
        dialog.form().Show();
        QCOMPARE(dialog.state().alarmMediaFile, QString());
        dialog.cancel();
        QVERIFY(!dialog.isLoaded());
        QVERIFY(!dialog.state().alarmArmed);
        QCOMPARE(dialog.state().alarmTimeText, u"08:00:00"_s);
        QVERIFY(dialog.msg().isEmpty());
    }

    void escapeIsCancel() {
        Dialog dialog;
        dialog.form().Show();
        QTest::keyClick(&dialog.form(), Qt::Key_Escape);
        QVERIFY(!dialog.isLoaded());
        QVERIFY(!dialog.state().alarmArmed);
    }

    void theWindowManagersCloseIsCancel() {
        Dialog dialog;
        dialog.form().Show();
        dialog.form().close();
        QVERIFY(!dialog.isLoaded());
        QVERIFY(!dialog.state().alarmArmed);
        QVERIFY(dialog.msg().isEmpty());
    }

    void eachOpeningStartsFrom00() {
        Dialog dialog;
        dialog.choose(dialog.hour(), 12);
        dialog.message()->SetText(u"x"_s);
        dialog.ok();
        QCOMPARE(dialog.hour()->Text(), u"00"_s);
        QCOMPARE(dialog.message()->Text(), QString());
    }

    void aFileThatIsThereIsTaken_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("length");
        QTest::newRow("signs of a shell") << u"song of $(the) ;\"night\".mp3"_s << 0;
        QTest::newRow("leading dash") << u"-rf"_s << 0;
        QTest::newRow("4000 characters") << u"-a song.mp3"_s << 4000;
    }
    void aFileThatIsThereIsTaken() {
        QFETCH(QString, name);
        QFETCH(int, length);
        Dialog dialog;
        const TemporaryFolder& folder = dialog.outside.folder;
        const QString file =
            length == 0 ? folder.write(name, "x") : folder.writeFarDown(name, length);
        dialog.outside.dialogs.answerOpen(file);
        dialog.media();
        QCOMPARE(dialog.state().alarmMediaFile, file);
        const FileRequest& request = dialog.outside.dialogs.opened.constFirst();
        QCOMPARE(
            request.filter,
            u"Media Files (*.wav;*.mid;*.mp3;*.m3u)|*.wav;*.mid;*.mp3;*.m3u|All Files (*.*)|*.*"_s);
        QCOMPARE(request.fileName, QString());
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }

    void cancelOfTheFileDialogIsFileNotFoundAndTheDialogStays() {
        Dialog dialog;
        dialog.form().Show();
        dialog.state().alarmMediaFile = u"/music/chosen.wav"_s;
        dialog.outside.dialogs.answerOpen(std::nullopt);
        dialog.outside.boxes.expect(u"File not found."_s, 16, Answer::Ok);
        dialog.media();
        dialog.outside.boxes.verifyAllAsked();
        QCOMPARE(dialog.state().alarmMediaFile, u"/music/chosen.wav"_s);
        QVERIFY(dialog.isLoaded());
        QVERIFY(dialog.form().isVisible());
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }

    void aFileThatVanishedLeavesTheOneChosenBefore_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("vanished") << u"gone.wav"_s;
        QTest::newRow("folder") << u"folder"_s;
        QTest::newRow("4000 characters") << QString(4000, u'n') + u".wav"_s;
        QTest::newRow("leading dash") << u"-rf"_s;
    }
    void aFileThatVanishedLeavesTheOneChosenBefore() {
        QFETCH(QString, name);
        Dialog dialog;
        QVERIFY(QDir().mkdir(dialog.outside.folder.file(u"folder"_s)));
        const QString file = dialog.outside.folder.write(u"first.wav"_s, "x");
        dialog.outside.dialogs.answerOpen(file);
        dialog.media();
        dialog.outside.dialogs.answerOpen(dialog.outside.folder.file(name));
        dialog.outside.boxes.expect(u"File not found."_s, 16, Answer::Ok);
        dialog.media();
        dialog.outside.boxes.verifyAllAsked();
        QCOMPARE(dialog.state().alarmMediaFile, file);
    }

    void aFailureOfTheFileChoiceIsReportedWithTheStopIcon() {
        Dialog dialog;
        dialog.outside.dialogs.whileOpen = [] {
            throw RuntimeError(ErrorNumber::PermissionDenied);
        };
        dialog.outside.boxes.expect(u"Permission denied"_s, 16, Answer::Ok);
        dialog.media();
        dialog.outside.boxes.verifyAllAsked();
        QVERIFY(dialog.isLoaded());
        QCOMPARE(dialog.state().alarmMediaFile, QString());
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }

    void theHourglassIsUpAroundTheFileDialogAndTheArming() {
        Dialog dialog;
        bool up = false;
        dialog.outside.dialogs.answerOpen(std::nullopt);
        dialog.outside.dialogs.whileOpen = [&] { up = Dialog::hourglass(); };
        bool upAtTheBox = false;
        dialog.outside.boxes.answer(Answer::Ok);
        dialog.outside.boxes.meanwhile([&] { upAtTheBox = Dialog::hourglass(); });
        dialog.media();
        QVERIFY(up);
        QVERIFY(upAtTheBox);
        QVERIFY(!Dialog::hourglass());

        upAtTheBox = false;
        dialog.hour()->lineEdit()->clear();
        dialog.outside.boxes.answer(Answer::Ok);
        dialog.outside.boxes.meanwhile([&] { upAtTheBox = Dialog::hourglass(); });
        dialog.ok();
        QVERIFY(upAtTheBox);
        QVERIFY(!Dialog::hourglass());
    }

    void withTheBuiltInPlayerTheFileChoiceOnlyFlashesTheHourglass() {
        Dialog dialog(true);
        dialog.media();
        QVERIFY(dialog.hourglassAtTheOptions);
        QVERIFY(dialog.outside.dialogs.opened.isEmpty());
        QVERIFY(dialog.outside.boxes.asked.isEmpty());
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }
};

ORVALIS_TEST_MAIN_WITH(QApplication, AlarmSetDialogTest)
#include "alarm_set_dialog_test.moc"
