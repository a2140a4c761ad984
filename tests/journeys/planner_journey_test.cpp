// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/reminder_road.h"

#include "support/test_main.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;

namespace {

constexpr int RightButton = 3;

QByteArray reminders() {
    return " 5  1 \r\n\r\nh1\r\nb1\r\nh2\r\nb2\r\n";
}

} // namespace

/// The weekly planner and the clear menu as a person meets them.
class PlannerJourneyTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void aPlannerIsMadeChangedAndSavedUnderAnotherName();
    void eachClearCommandInItsSubPanel();

private:
    bool writeData(const QString& name, const QByteArray& bytes);
    bool openPanel();
    bool box(const QString& title, const QString& text, const QStringList& buttons);
    void saveAs(const QString& name);
    bool noDialog();
    bool choose(const QString& entry);
    bool rowsOf(const QString& grid, const QStringList& rows);

    std::unique_ptr<Stage> m_stage;
    std::unique_ptr<DrivenProgram> m_program;
};

void PlannerJourneyTest::init() {
    m_stage = std::make_unique<Stage>(Stage::Plan());
    QVERIFY2(m_stage->trouble().isEmpty(), qPrintable(m_stage->trouble()));
    m_program = std::make_unique<DrivenProgram>(*m_stage, QStringLiteral(ORVALIS_EXECUTABLE));
    m_program->setClock(QDateTime(QDate(2024, 2, 28), QTime(10, 24, 5), Qt::UTC));
}

void PlannerJourneyTest::cleanup() {
    m_program.reset();
    m_stage.reset();
}

bool PlannerJourneyTest::writeData(const QString& name, const QByteArray& bytes) {
    QFile file(m_program->folder() + u'/' + name);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool PlannerJourneyTest::openPanel() {
    ReminderRoad road(*m_program, [](const QString&) {});
    road.openPanel();
    return road.trouble().isEmpty();
}

/// Whether the box with these words and buttons is up.
bool PlannerJourneyTest::box(const QString& title, const QString& text,
                             const QStringList& buttons) {
    if (!waitUntil([&] { return m_program->messageBox().found; }, 10000))
        return false;
    Control shown = m_program->messageBox();
    for (QString& button : shown.buttons)
        button.remove(u'&');
    if (shown.title == title && shown.text == text && shown.buttons == buttons)
        return true;
    qWarning() << "another box:" << shown.title << shown.text << shown.buttons;
    return false;
}

bool PlannerJourneyTest::noDialog() {
    return waitUntil([&] { return !m_program->control(u"FileDialog"_s).visible; }, 10000);
}

/// Answers the save dialog that is up with a name, or cancels it where there is none.
void PlannerJourneyTest::saveAs(const QString& name) {
    QVERIFY(m_program->waitVisible(u"FileDialog"_s));
    if (!name.isEmpty())
        m_program->type(name);
    m_program->key(name.isEmpty() ? u"Escape"_s : u"Return"_s);
}

bool PlannerJourneyTest::choose(const QString& entry) {
    return m_program->click(u"frmnotes1/imgDel"_s) &&
           waitUntil([&] { return m_program->menuEntry(entry).visible; }, 5000) &&
           m_program->choose(entry);
}

bool PlannerJourneyTest::rowsOf(const QString& grid, const QStringList& rows) {
    return waitUntil([&] { return m_program->control(u"frmnotes1/"_s + grid).rows == rows; }, 5000);
}

void PlannerJourneyTest::aPlannerIsMadeChangedAndSavedUnderAnotherName() {
    QVERIFY(m_program->start());
    QVERIFY(openPanel());
    QVERIFY(m_program->click(u"frmnotes1/cmdmenu(3)"_s));
    QVERIFY(m_program->waitVisible(u"frmnotes1/rt2"_s));
    QVERIFY(m_program->click(u"frmnotes1/Button4"_s));
    const QString head =
        u"WEEKLY PLANNER\n\nWEEK No: 9 / February 2024\nFrom February 25 To March 3"_s;
    QVERIFY(waitUntil([&] { return m_program->control(u"frmnotes1/rt2"_s).text.startsWith(head); },
                      5000));
    QVERIFY(waitUntil(
        [&] { return m_program->fileBytes(u"weekly.rtf"_s).contains("WEEKLY PLANNER"); }, 5000));

    QVERIFY(m_program->click(u"frmnotes1/rt2"_s));
    m_program->key(u"ctrl+End"_s);
    m_program->type(u"Call Anna"_s);
    QVERIFY(!m_program->fileBytes(u"weekly.rtf"_s).contains("Anna"));
    QVERIFY(m_program->click(u"frmnotes1/imgoe"_s));
    QVERIFY(waitUntil([&] { return m_program->fileBytes(u"weekly.rtf"_s).contains("Call Anna"); },
                      5000));

    // The planner's own file is refused, and the dialog comes again.
    QVERIFY(m_program->click(u"frmnotes1/Button5"_s));
    saveAs(m_program->folder() + u"/weekly.rtf"_s);
    QVERIFY(
        box(u"Warning"_s,
            u"Can't overwrite files needed for Orvalis. Choose a different name for backup file."_s,
            {u"OK"_s}));
    QVERIFY(m_program->answer(u"OK"_s));
    const QString other = m_program->folder() + u"/february.rtf"_s;
    saveAs(other);
    QVERIFY(
        waitUntil([&] { return m_program->fileBytes(u"february.rtf"_s).contains("Anna"); }, 5000));
    QVERIFY(noDialog());

    // Another New asks; No leaves the page.
    QVERIFY(m_program->click(u"frmnotes1/Button4"_s));
    QVERIFY(box(u"New Planner"_s, u"Overwrite current planner."_s, {u"Yes"_s, u"No"_s}));
    QVERIFY(m_program->answer(u"No"_s));
    QVERIFY(m_program->control(u"frmnotes1/rt2"_s).text.contains(u"Call Anna"_s));

    // A file that exists: Cancel of the question and of the dialog behind it leaves it ...
    QVERIFY(m_program->click(u"frmnotes1/rt2"_s));
    m_program->key(u"ctrl+End"_s);
    m_program->type(u" and Ben"_s);
    const QString question =
        u"The File "_s + other + u" already exists.\r\nDo you want to replace it?"_s;
    for (const bool cancelled : {true, false}) {
        QVERIFY(m_program->click(u"frmnotes1/Button5"_s));
        saveAs(other);
        QVERIFY(box(u"Orvalis"_s, question, {u"OK"_s, u"Cancel"_s}));
        QVERIFY(m_program->answer(u"Cancel"_s));
        // ... and what is chosen in the second dialog is not taken: the first name is.
        saveAs(cancelled ? QString() : m_program->folder() + u"/march.rtf"_s);
        QVERIFY(noDialog());
        QVERIFY(waitUntil(
            [&] { return m_program->fileBytes(u"february.rtf"_s).contains("Ben") != cancelled; },
            5000));
    }
    QVERIFY(!QFile::exists(m_program->folder() + u"/march.rtf"_s));

    // The planner comes back from where it was saved.
    QVERIFY(m_program->click(u"frmnotes1/Button4"_s));
    QVERIFY(box(u"New Planner"_s, u"Overwrite current planner."_s, {u"Yes"_s, u"No"_s}));
    QVERIFY(m_program->answer(u"Yes"_s));
    QVERIFY(waitUntil(
        [&] { return !m_program->control(u"frmnotes1/rt2"_s).text.contains(u"Anna"_s); }, 5000));
    QVERIFY(m_program->click(u"frmnotes1/imgOpen"_s));
    saveAs(other);
    QVERIFY(waitUntil(
        [&] {
            return m_program->control(u"frmnotes1/rt2"_s).text.contains(u"Call Anna and Ben"_s);
        },
        5000));
}

void PlannerJourneyTest::eachClearCommandInItsSubPanel() {
    QVERIFY(writeData(u"tmp1.brf"_s, " 5  1 \r\n\r\nFriday\r\nurgent\r\nMonday\r\nlater\r\n"));
    QVERIFY(writeData(u"tmp2.brf"_s, reminders()));
    QVERIFY(writeData(u"Vazno.rtf"_s, "{\\rtf1 water the roses}"));
    QVERIFY(m_program->start());
    QVERIFY(openPanel());

    QVERIFY(choose(u"mnusamo"_s));
    QVERIFY(box(u"Orvalis"_s, u"Select text you want to clear."_s, {u"OK"_s}));
    QVERIFY(m_program->answer(u"OK"_s));
    QVERIFY(choose(u"mnuclpr1"_s));
    QVERIFY(box(u"Orvalis"_s, u"Select Priority panel first."_s, {u"OK"_s}));
    QVERIFY(m_program->answer(u"OK"_s));
    QVERIFY(m_program->click(u"frmnotes1/rt1a"_s));
    m_program->key(u"ctrl+Home"_s);
    m_program->key(u"ctrl+shift+Right"_s);
    QVERIFY(m_program->click(u"frmnotes1/rt1a"_s, RightButton));
    QVERIFY(waitUntil([&] { return m_program->menuEntry(u"mnusamo"_s).visible; }, 5000));
    QVERIFY(!m_program->menuEntry(u"mnuc01"_s).enabled);
    QVERIFY(!m_program->menuEntry(u"mnuc02"_s).enabled);
    QVERIFY(m_program->choose(u"mnusamo"_s));
    QVERIFY(m_program->waitText(u"frmnotes1/rt1a"_s, u"the roses"_s));
    QVERIFY(waitUntil(
        [&] {
            const QByteArray bytes = m_program->fileBytes(u"Vazno.rtf"_s);
            return bytes.contains("the roses") && !bytes.contains("water");
        },
        5000));
    QVERIFY(choose(u"mnusve"_s));
    QVERIFY(box(u"Orvalis"_s, u"Clear all?"_s, {u"Yes"_s, u"No"_s}));
    QVERIFY(m_program->answer(u"Yes"_s));
    QVERIFY(m_program->waitText(u"frmnotes1/rt1a"_s, QString()));

    QVERIFY(m_program->click(u"frmnotes1/cmdmenu(1)"_s));
    const QRect priorities = m_program->waitAtRest(u"frmnotes1/MS1"_s).rect;
    QVERIFY(choose(u"mnuclpr1"_s));
    QVERIFY(box(u"Orvalis"_s, u"Select the first cell (red colored) to delete entire priority."_s,
                {u"OK"_s}));
    QVERIFY(m_program->answer(u"OK"_s));
    // The red cell stands below the empty row: a right click makes it the current one.
    m_program->clickAt(priorities.topLeft() + QPoint(40, priorities.height() / 13));
    m_program->key(u"Up"_s);
    m_program->key(u"Up"_s);
    m_program->key(u"Up"_s);
    m_program->key(u"Down"_s);
    QVERIFY(choose(u"mnuclpr1"_s));
    QVERIFY(rowsOf(u"MS1"_s, {QString(), u"Monday"_s, u"later"_s}));
    QVERIFY(choose(u"mnuclpr2"_s));
    QVERIFY(box(u"Clear"_s, u"Clear All Priorities?"_s, {u"Yes"_s, u"No"_s}));
    QVERIFY(m_program->answer(u"Yes"_s));
    QVERIFY(
        waitUntil([&] { return m_program->fileBytes(u"tmp1.brf"_s) == " 1  1 \r\n\r\n"; }, 5000));

    QVERIFY(m_program->click(u"frmnotes1/cmdmenu(0)"_s));
    QVERIFY(m_program->waitVisible(u"frmnotes1/imgso"_s));
    QVERIFY(m_program->click(u"frmnotes1/imgso"_s)); // the hidden copy gets its rows
    const QRect list = m_program->waitAtRest(u"frmnotes1/MS3"_s).rect;
    m_program->clickAt(list.topLeft() + QPoint(40, list.height() / 13));
    for (int i = 0; i < 4; ++i)
        m_program->key(u"Up"_s);
    m_program->key(u"Down"_s);
    QVERIFY(choose(u"mnuclr1"_s));
    QVERIFY(rowsOf(u"MS3"_s, {QString(), u"h2"_s, u"b2"_s}));
    // What goes from the file is the item at the hidden copy's row: its last one.
    QVERIFY(waitUntil(
        [&] { return m_program->fileBytes(u"tmp2.brf"_s) == " 3  1 \r\n\r\nh1\r\nb1\r\n"; }, 5000));
    QVERIFY(choose(u"mnuclr2"_s));
    QVERIFY(box(u"Clear"_s, u"Clear All Reminders?"_s, {u"Yes"_s, u"No"_s}));
    QVERIFY(m_program->answer(u"No"_s));
    QVERIFY(rowsOf(u"MS3"_s, {QString(), u"h2"_s, u"b2"_s}));
    QVERIFY(choose(u"mnuclr2"_s));
    QVERIFY(box(u"Clear"_s, u"Clear All Reminders?"_s, {u"Yes"_s, u"No"_s}));
    QVERIFY(m_program->answer(u"Yes"_s));
    QVERIFY(
        waitUntil([&] { return m_program->fileBytes(u"tmp2.brf"_s) == " 1  1 \r\n\r\n"; }, 5000));
    QVERIFY(m_program->isRunning());
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, PlannerJourneyTest)
#include "planner_journey_test.moc"
