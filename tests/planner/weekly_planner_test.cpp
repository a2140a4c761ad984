// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/panel_ground.h"

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int OverwriteFlags = 36;
constexpr int ReplaceFlags = 1;

} // namespace

class WeeklyPlannerTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_ground.reset(); }

    void newOverAnEmptyPageAsksNothing();
    void newAsksBeforeItOverwrites();
    void newIsWrittenFromTheCalendarsDate();
    void newIsOnTheDiskAtOnce();
    void theMondayPageIsSavedTooAndHasNoRange();
    void openLoadsAnotherPlanner();
    void openCancelledChangesNothing();
    void openOfWhatIsNoRtfIsSilent();
    void saveWritesWeeklyRtf();
    void saveWhereNothingCanBeWrittenIsSilent();
    void saveAsAsksForPlannersInTheDataFolder();
    void saveAsRefusesTheTwoFilesOfTheProgram_data();
    void saveAsRefusesTheTwoFilesOfTheProgram();
    void saveAsProtectsTheLiteralPathsAlone();
    void saveAsCancelledAfterTheWarningWritesNothing();
    void saveAsReplacesOnOk();
    void cancelOfTheQuestionStillReplacesAfterTheSecondDialog();
    void whatIsChosenInTheSecondDialogIsNotTaken();
    void bothCancelsLeaveTheFileThatExists();
    void saveAsThatFailsIsSilent();
    void fontShowsTheSelectionAndWritesTheSevenBack();
    void fontCancelledWritesBackWhatItLoaded();
    void fontOverAMixedSelectionKeepsWhatWasNotChosen();
    void fontOverAMixedSelectionWritesWhatWasChosen();

private:
    RichTextBox& rt2() { return m_ground->control<RichTextBox>(u"rt2"_s); }
    QString file(const QString& name) { return m_ground->app.file(name); }
    static QString question(const QString& name) {
        return u"The File "_s + name + u" already exists.\r\nDo you want to replace it?"_s;
    }

    std::unique_ptr<PanelGround> m_ground;
};

void WeeklyPlannerTest::init() {
    m_ground = std::make_unique<PanelGround>();
    m_ground->shown();
    m_ground->press(u"cmdmenu(3)"_s);
    m_ground->calendar().setValue(QDate(2002, 6, 12));
}

void WeeklyPlannerTest::newOverAnEmptyPageAsksNothing() {
    m_ground->press(u"Button4"_s);
    QVERIFY(m_ground->boxes.asked.isEmpty());
    QVERIFY(rt2().Text().startsWith(u"WEEKLY PLANNER"_s));
}

void WeeklyPlannerTest::newAsksBeforeItOverwrites() {
    rt2().SetText(u"mine"_s);
    m_ground->boxes.expect(u"Overwrite current planner."_s, OverwriteFlags, Answer::No,
                           u"New Planner"_s);
    m_ground->press(u"Button4"_s);
    QCOMPARE(rt2().Text(), u"mine"_s);
    QVERIFY(!QFile::exists(file(u"weekly.rtf"_s)));
    m_ground->boxes.expect(u"Overwrite current planner."_s, OverwriteFlags, Answer::Yes,
                           u"New Planner"_s);
    m_ground->press(u"Button4"_s);
    QVERIFY(rt2().Text().startsWith(u"WEEKLY PLANNER"_s));
}

void WeeklyPlannerTest::newIsWrittenFromTheCalendarsDate() {
    m_ground->press(u"Button4"_s);
    const QString head =
        u"WEEKLY PLANNER\r\n\r\nWEEK No: 24 / June 2002\r\nFrom June 9 To 15\r\n"_s;
    QCOMPARE(rt2().Text().left(head.size()), head);
    QVERIFY(rt2().isVisible());
}

void WeeklyPlannerTest::newIsOnTheDiskAtOnce() {
    m_ground->press(u"Button4"_s);
    RichTextBox read;
    read.files().LoadFile(file(u"weekly.rtf"_s));
    QCOMPARE(read.Text(), rt2().Text());
}

void WeeklyPlannerTest::theMondayPageIsSavedTooAndHasNoRange() {
    m_ground->panel().NewPlannerMondayFirst();
    const QString head = u"WEEKLY PLANNER\r\n\r\nWEEK No: 24 / June 2002\r\n___"_s;
    QCOMPARE(rt2().Text().left(head.size()), head);
    RichTextBox read;
    read.files().LoadFile(file(u"weekly.rtf"_s));
    QCOMPARE(read.Text(), rt2().Text());
}

void WeeklyPlannerTest::openLoadsAnotherPlanner() {
    m_ground->folder.write(u"june.rtf"_s, "{\\rtf1 June\\par}");
    m_ground->dialogs.answerOpen(m_ground->folder.file(u"june.rtf"_s));
    m_ground->press(u"imgOpen"_s);
    QVERIFY(rt2().Text().startsWith(u"June"_s));
    QCOMPARE(m_ground->dialogs.opened.constLast().filter, u"Planner (*.rtf)|*.rtf"_s);
    QCOMPARE(m_ground->dialogs.opened.constLast().fileName, QString());
}

void WeeklyPlannerTest::openCancelledChangesNothing() {
    rt2().SetText(u"mine"_s);
    m_ground->dialogs.answerOpen(std::nullopt);
    m_ground->press(u"imgOpen"_s);
    QCOMPARE(rt2().Text(), u"mine"_s);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void WeeklyPlannerTest::openOfWhatIsNoRtfIsSilent() {
    rt2().SetText(u"mine"_s);
    m_ground->folder.write(u"note.rtf"_s, "no document");
    m_ground->dialogs.answerOpen(m_ground->folder.file(u"note.rtf"_s));
    m_ground->press(u"imgOpen"_s);
    QCOMPARE(rt2().Text(), u"mine"_s);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void WeeklyPlannerTest::saveWritesWeeklyRtf() {
    rt2().SetText(u"water the roses"_s);
    m_ground->press(u"imgoe"_s);
    RichTextBox read;
    read.files().LoadFile(file(u"weekly.rtf"_s));
    QCOMPARE(read.Text(), u"water the roses"_s);
}

void WeeklyPlannerTest::saveWhereNothingCanBeWrittenIsSilent() {
    QVERIFY(QDir(m_ground->folder.path()).mkdir(u"weekly.rtf"_s));
    m_ground->press(u"imgoe"_s);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void WeeklyPlannerTest::saveAsAsksForPlannersInTheDataFolder() {
    rt2().SetText(u"mine"_s);
    m_ground->dialogs.answerSave(m_ground->folder.file(u"june.rtf"_s));
    m_ground->press(u"Button5"_s);
    const FileRequest& asked = m_ground->dialogs.saved.constLast();
    QCOMPARE(asked.filter, u"Planner (*.rtf)|*.rtf"_s);
    QCOMPARE(asked.fileName, QString());
    QCOMPARE(asked.directory, m_ground->app.Path());
    RichTextBox read;
    read.files().LoadFile(m_ground->folder.file(u"june.rtf"_s));
    QCOMPARE(read.Text(), u"mine"_s);
    QVERIFY(!QFile::exists(file(u"weekly.rtf"_s)));
}

void WeeklyPlannerTest::saveAsRefusesTheTwoFilesOfTheProgram_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("planner") << u"weekly.rtf"_s;
    QTest::newRow("to-do document") << u"Vazno.rtf"_s;
}

void WeeklyPlannerTest::saveAsRefusesTheTwoFilesOfTheProgram() {
    QFETCH(QString, name);
    rt2().SetText(u"mine"_s);
    m_ground->dialogs.answerSave(file(name));
    m_ground->dialogs.answerSave(m_ground->folder.file(u"other.rtf"_s));
    m_ground->boxes.expect(
        u"Can't overwrite files needed for Orvalis. Choose a different name for backup file."_s, 16,
        Answer::Ok, u"Warning"_s);
    m_ground->press(u"Button5"_s);
    QVERIFY(!QFile::exists(file(name)));
    QVERIFY(QFile::exists(m_ground->folder.file(u"other.rtf"_s)));
    QCOMPARE(m_ground->dialogs.saved.size(), 2);
    QCOMPARE(m_ground->dialogs.saved.constLast().fileName, QString());
}

void WeeklyPlannerTest::saveAsProtectsTheLiteralPathsAlone() {
    for (const QString& name :
         {m_ground->app.Path() + u"/WEEKLY.rtf"_s, m_ground->app.Path() + u"/../"_s +
                                                       QFileInfo(m_ground->app.Path()).fileName() +
                                                       u"/weekly.rtf"_s}) {
        m_ground->dialogs.answerSave(name);
        m_ground->press(u"Button5"_s);
        QVERIFY(QFile::exists(name));
    }
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void WeeklyPlannerTest::saveAsCancelledAfterTheWarningWritesNothing() {
    m_ground->dialogs.answerSave(file(u"weekly.rtf"_s));
    m_ground->dialogs.answerSave(std::nullopt);
    m_ground->boxes.answer(Answer::Ok);
    m_ground->press(u"Button5"_s);
    QVERIFY(!QFile::exists(file(u"weekly.rtf"_s)));
}

void WeeklyPlannerTest::saveAsReplacesOnOk() {
    const QString name = m_ground->folder.write(u"june.rtf"_s, "{\\rtf1 old}");
    rt2().SetText(u"mine"_s);
    m_ground->dialogs.answerSave(name);
    m_ground->boxes.expect(question(name), ReplaceFlags, Answer::Ok);
    m_ground->press(u"Button5"_s);
    QVERIFY(m_ground->folder.read(u"june.rtf"_s).contains("mine"));
    QCOMPARE(m_ground->dialogs.saved.size(), 1);
}

void WeeklyPlannerTest::cancelOfTheQuestionStillReplacesAfterTheSecondDialog() {
    const QString name = m_ground->folder.write(u"june.rtf"_s, "{\\rtf1 old}");
    rt2().SetText(u"mine"_s);
    m_ground->dialogs.answerSave(name);
    m_ground->dialogs.answerSave(name);
    m_ground->boxes.expect(question(name), ReplaceFlags, Answer::Cancel);
    m_ground->press(u"Button5"_s);
    QVERIFY(m_ground->folder.read(u"june.rtf"_s).contains("mine"));
}

void WeeklyPlannerTest::whatIsChosenInTheSecondDialogIsNotTaken() {
    const QString name = m_ground->folder.write(u"june.rtf"_s, "{\\rtf1 old}");
    const QString other = m_ground->folder.file(u"july.rtf"_s);
    rt2().SetText(u"mine"_s);
    m_ground->dialogs.answerSave(name);
    m_ground->dialogs.answerSave(other);
    m_ground->boxes.expect(question(name), ReplaceFlags, Answer::Cancel);
    m_ground->press(u"Button5"_s);
    QVERIFY(m_ground->folder.read(u"june.rtf"_s).contains("mine"));
    QVERIFY(!QFile::exists(other));
}

void WeeklyPlannerTest::bothCancelsLeaveTheFileThatExists() {
    const QString name = m_ground->folder.write(u"june.rtf"_s, "{\\rtf1 old}");
    rt2().SetText(u"mine"_s);
    m_ground->dialogs.answerSave(name);
    m_ground->dialogs.answerSave(std::nullopt);
    m_ground->boxes.expect(question(name), ReplaceFlags, Answer::Cancel);
    m_ground->press(u"Button5"_s);
    QCOMPARE(m_ground->folder.read(u"june.rtf"_s), QByteArray("{\\rtf1 old}"));
}

void WeeklyPlannerTest::saveAsThatFailsIsSilent() {
    m_ground->dialogs.answerSave(m_ground->folder.file(u"no such folder/june.rtf"_s));
    m_ground->press(u"Button5"_s);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void WeeklyPlannerTest::fontShowsTheSelectionAndWritesTheSevenBack() {
    rt2().SetText(u"mine"_s);
    rt2().SetSelLength(4);
    rt2().SetSelItalic(true);
    m_ground->dialogs.answerFont(FontChoice{.italic = false,
                                            .bold = true,
                                            .name = u"Courier New"_s,
                                            .size = 14,
                                            .strikethrough = true,
                                            .underline = true,
                                            .colour = 0x0000FF});
    m_ground->press(u"Button6"_s);
    QVERIFY(m_ground->dialogs.fonts.constLast().italic);
    QCOMPARE(rt2().SelLength(), 4);
    QCOMPARE(rt2().SelItalic(), std::optional(false));
    QCOMPARE(rt2().SelBold(), std::optional(true));
    QCOMPARE(rt2().SelFontName(), std::optional(u"Courier New"_s));
    QCOMPARE(rt2().SelFontSize(), std::optional<qreal>(14));
    QCOMPARE(rt2().SelStrikeThru(), std::optional(true));
    QCOMPARE(rt2().SelUnderline(), std::optional(true));
    QCOMPARE(rt2().SelColor(), std::optional<quint32>(0xFF));
    QVERIFY(rt2().hasFocus());
}

void WeeklyPlannerTest::fontCancelledWritesBackWhatItLoaded() {
    rt2().SetText(u"mine"_s);
    rt2().SetSelLength(4);
    rt2().SetSelItalic(true);
    // No colour of its own yet: it is told as black, and written back as such.
    QVERIFY(!rt2().TextRTF().contains("\\cf1"));
    m_ground->dialogs.answerFont(std::nullopt);
    m_ground->press(u"Button6"_s);
    QVERIFY(rt2().TextRTF().contains("\\cf1"));
    QCOMPARE(rt2().SelItalic(), std::optional(true));
    QCOMPARE(rt2().SelBold(), std::optional(false));
    QCOMPARE(rt2().Text(), u"mine"_s);
    QVERIFY(rt2().hasFocus());
}

void WeeklyPlannerTest::fontOverAMixedSelectionKeepsWhatWasNotChosen() {
    rt2().SetText(u"mine"_s);
    rt2().SetSelLength(2);
    rt2().SetSelBold(true);
    rt2().SetSelFontSize(20);
    rt2().SetSelStart(0);
    rt2().SetSelLength(4);
    m_ground->dialogs.answerFont(std::nullopt);
    m_ground->press(u"Button6"_s);
    rt2().SetSelStart(0);
    rt2().SetSelLength(2);
    QCOMPARE(rt2().SelBold(), std::optional(true));
    QCOMPARE(rt2().SelFontSize(), std::optional<qreal>(20));
    rt2().SetSelStart(2);
    rt2().SetSelLength(2);
    QCOMPARE(rt2().SelBold(), std::optional(false));
    QVERIFY(rt2().SelFontSize() != std::optional<qreal>(20));
}

void WeeklyPlannerTest::fontOverAMixedSelectionWritesWhatWasChosen() {
    rt2().SetText(u"mine"_s);
    rt2().SetSelLength(2);
    rt2().SetSelFontSize(20);
    rt2().SetSelStart(0);
    rt2().SetSelLength(4);
    FontChoice choice;
    choice.name = *rt2().SelFontName();
    choice.size = 30;
    m_ground->dialogs.answerFont(choice);
    m_ground->press(u"Button6"_s);
    QCOMPARE(rt2().SelFontSize(), std::optional<qreal>(30));
}

ORVALIS_TEST_MAIN_WITH(QApplication, WeeklyPlannerTest)
#include "weekly_planner_test.moc"
