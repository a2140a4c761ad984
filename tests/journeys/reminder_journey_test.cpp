// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/reminder_road.h"
#include "ink.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QTest>

#include <algorithm>

#include <sys/inotify.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;
using namespace orvalis::test;

namespace {

/// Counts how often a file is opened by anybody.
class OpenCounter {
public:
    explicit OpenCounter(const QString& path)
        : m_watch(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
        ::inotify_add_watch(m_watch, QFile::encodeName(path).constData(), IN_OPEN);
    }
    ~OpenCounter() { ::close(m_watch); }
    OpenCounter(const OpenCounter&) = delete;
    OpenCounter& operator=(const OpenCounter&) = delete;

    int count() {
        alignas(inotify_event) char buffer[4096];
        for (ssize_t length = ::read(m_watch, buffer, sizeof(buffer)); length > 0;
             length = ::read(m_watch, buffer, sizeof(buffer))) {
            for (ssize_t at = 0; at < length;) {
                const auto* event = reinterpret_cast<const inotify_event*>(buffer + at);
                ++m_count;
                at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
            }
        }
        return m_count;
    }

private:
    int m_watch;
    int m_count = 0;
};

QDateTime moment(int hour, int minute, int second) {
    return {QDate(2026, 3, 14), QTime(hour, minute, second), Qt::UTC};
}

} // namespace

class ReminderJourneyTest : public QObject {
    Q_OBJECT
private slots:
    void aReminderGoesFromTheKeyToThePopUp();
    void theProgramEndsThroughItsCloseButton();
    void aSecondStartIsRefusedAndLeavesTheFirstAlone();
    void thirtyStartsAtOnceLeaveOneProcess();
    void afterAKillTheNextStartWorks();
};

void ReminderJourneyTest::aReminderGoesFromTheKeyToThePopUp() {
    Stage stage({});
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    DrivenProgram program(stage, QStringLiteral(ORVALIS_EXECUTABLE));
    program.setClock(moment(10, 24, 5));
    QVERIFY(program.start());

    ReminderRoad road(program, [](const QString&) {});
    road.openPanel();
    road.typeMessage(u"Garden"_s, u"Water the roses"_s);
    road.tickRemind();
    QVERIFY2(road.trouble().isEmpty(), qPrintable(road.trouble()));
    QVERIFY(!program.control(u"frmnotes1/imgSave"_s).enabled);
    road.pickDate(QDate(2026, 3, 14));
    road.pickTime(10, 40);
    road.typeEventMessage(u"Fetch the can"_s);
    road.pressOk();
    QVERIFY2(road.trouble().isEmpty(), qPrintable(road.trouble()));
    QVERIFY(program.control(u"frmnotes1/chkRemind"_s).checked);
    QVERIFY(program.control(u"frmnotes1/imgSave"_s).enabled);
    OpenCounter alarmOpens(program.folder() + u"/Alarm.wav"_s);
    road.pressSave();
    QVERIFY2(road.trouble().isEmpty(), qPrintable(road.trouble()));

    QVERIFY(waitUntil(
        [&] {
            return program.fileBytes(u"tmp2.brf"_s) ==
                   " 3  1 \r\n\r\nSaturday, March 14, 2026/10:40:00\r\nFetch the can\r\n";
        },
        5000));
    QVERIFY(waitUntil([&] { return program.fileBytes(u"tmp1.brf"_s) == " 1  1 \r\n\r\n"; }, 5000));
    const QByteArray toDo = program.fileBytes(u"Vazno.rtf"_s);
    QVERIFY(toDo.startsWith("{\\rtf1"));
    for (const char* piece : {"Garden", "___________________", "Water the roses",
                              "    To do: Saturday, March 14, 2026", "    Saved: "})
        QVERIFY2(toDo.contains(piece), piece);
    QVERIFY(program.click(u"frmnotes1/cmdmenu(0)"_s));
    QVERIFY(program.waitVisible(u"frmnotes1/MS3"_s));
    QCOMPARE(program.control(u"frmnotes1/MS3"_s).rows,
             (QStringList{QString(), u"Saturday, March 14, 2026/10:40:00"_s, u"Fetch the can"_s}));
    QCOMPARE(alarmOpens.count(), 0);

    program.setClock(moment(10, 39, 57));
    QVERIFY2(road.waitForSticker(15000), qPrintable(road.trouble()));
    QVERIFY(alarmOpens.count() > 0);
    QCOMPARE(program.control(u"xn/Text1"_s).text, u"\nREMINDER:\nFetch the can"_s);
    QCOMPARE(program.control(u"xn"_s).title, u"Sticker No1"_s);
    const Ink reminder = inkOn(program, u"xn/Text1"_s);
    QVERIFY(reminder.all > 0);
    QCOMPARE(reminder.blue, reminder.all);

    // MS3's current row is the one behind its last fill, MS2's the message row: the header stays in
    // neither, whatever the grids keep is what the file says.
    QVERIFY(waitUntil([&] { return program.fileBytes(u"tmp2.brf"_s) == " 1  1 \r\n\r\n"; }, 5000));

    const int opened = alarmOpens.count();
    sleepMilliseconds(2500);
    QCOMPARE(alarmOpens.count(), opened);
    QVERIFY(program.isRunning());

    QVERIFY(program.click(u"frmnotes1/imgNot"_s));
    const Ink plain = plainInk(program, {QString(), u"REMINDER:"_s, u"Fetch the can"_s});
    QVERIFY(plain.all > 0);
    QCOMPARE(plain.blue, 0);
    QVERIFY2(reminder.all > BoldOverPlain * plain.all,
             qPrintable(u"%1 against %2"_s.arg(reminder.all).arg(plain.all)));
}

void ReminderJourneyTest::theProgramEndsThroughItsCloseButton() {
    Stage stage({});
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    DrivenProgram program(stage, QStringLiteral(ORVALIS_EXECUTABLE));
    QVERIFY(program.start());
    QVERIFY(program.waitVisible(u"frmnotes"_s));
    QVERIFY(QDir(program.configFolder()).isEmpty());
    QVERIFY(program.click(u"frmnotes/imgExit"_s));
    QVERIFY(program.waitForEnd());
    QCOMPARE(program.output(), QByteArray());
}

void ReminderJourneyTest::aSecondStartIsRefusedAndLeavesTheFirstAlone() {
    Stage stage({});
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    DrivenProgram first(stage, QStringLiteral(ORVALIS_EXECUTABLE));
    QVERIFY(first.start());
    QVERIFY(first.waitVisible(u"frmnotes"_s));
    DrivenProgram second(first, 2);
    QVERIFY(second.start());
    QVERIFY(waitUntil([&] { return second.messageBox().found; }, 10000));
    QCOMPARE(second.messageBox().title, u"Orvalis Warning"_s);
    QCOMPARE(second.messageBox().text, u"orvalis is already running!"_s);
    QVERIFY(second.answer(u"OK"_s));
    QVERIFY(second.waitForEnd());
    QVERIFY(first.isRunning());
    QVERIFY(first.control(u"frmnotes"_s).visible);
}

void ReminderJourneyTest::thirtyStartsAtOnceLeaveOneProcess() {
    constexpr int Starts = 30;
    Stage stage({});
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    std::vector<std::unique_ptr<DrivenProgram>> programs;
    programs.push_back(std::make_unique<DrivenProgram>(stage, QStringLiteral(ORVALIS_EXECUTABLE)));
    for (int i = 1; i < Starts; ++i)
        programs.push_back(std::make_unique<DrivenProgram>(*programs.front(), i));
    for (const auto& program : programs)
        QVERIFY(program->launch());
    for (const auto& program : programs)
        QVERIFY(program->connectProbe());

    const auto count = [&](auto&& holds) {
        return std::count_if(
            programs.begin(), programs.end(),
            [&](const auto& program) { return program->isRunning() && holds(*program); });
    };
    QVERIFY(waitUntil(
        [&] {
            return count([](DrivenProgram& program) { return program.messageBox().found; }) ==
                   Starts - 1;
        },
        60000));
    const auto mainWindows = [&] {
        return count([](DrivenProgram& program) { return program.control(u"frmnotes"_s).visible; });
    };
    QVERIFY(waitUntil([&] { return mainWindows() == 1; }, 20000));
    QVERIFY(waitUntil(
        [&] {
            for (const auto& program : programs)
                if (program->isRunning() && program->messageBox().found)
                    program->answer(u"OK"_s);
            return count([](DrivenProgram&) { return true; }) == 1;
        },
        60000));
    QCOMPARE(mainWindows(), 1);
}

void ReminderJourneyTest::afterAKillTheNextStartWorks() {
    Stage stage({});
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    DrivenProgram program(stage, QStringLiteral(ORVALIS_EXECUTABLE));
    QVERIFY(program.start());
    QVERIFY(program.waitVisible(u"frmnotes"_s));
    program.kill();
    QVERIFY(program.start());
    QVERIFY(program.waitVisible(u"frmnotes"_s));
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, ReminderJourneyTest)
#include "reminder_journey_test.moc"
