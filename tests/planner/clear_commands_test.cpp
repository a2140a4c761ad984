// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/grid_file.h"
#include "planner/panel_ground.h"
#include "support/plain_windows.h"

#include <QContextMenuEvent>
#include <QMenu>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int Information = 64;
constexpr int YesNoDefaultNo = 308;
constexpr int YesNoExclamation = 52;

/// Writes the commands down.
class RecordingCommands final : public ClearCommands {
public:
    void mnusamo() override { done << u"mnusamo"_s; }
    void mnusve() override { done << u"mnusve"_s; }
    void mnuclpr1() override { done << u"mnuclpr1"_s; }
    void mnuclpr2() override { done << u"mnuclpr2"_s; }
    void mnuclr1() override { done << u"mnuclr1"_s; }
    void mnuclr2() override { done << u"mnuclr2"_s; }

    QStringList done;
};

QStringList rows(const MSFlexGrid& grid) {
    QStringList texts;
    for (int row = 0; row < grid.Rows(); ++row)
        texts << grid.TextMatrix(row, 0);
    return texts;
}

using Command = void (ClearCommands::*)();

} // namespace

class ClearCommandsTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_ground.reset(); }

    void theMenuHasItsEntriesInTheirOrder();
    void theTwoListEntriesAreGreyed();
    void eachEntryDoesItsCommand();
    void theClearPictureOpensTheMenuWithTheLeftButtonAlone();
    void aRightClickOnAListOrTheToDoDocumentOpensTheMenu();
    void theKeyOfMenusOpensItAtTheCaretOrTheRow();
    void aCommandOfAnotherSubPanelIsRefused_data();
    void aCommandOfAnotherSubPanelIsRefused();
    void aRightClickOnAnotherListDoesNotSelectIt();

    void clearingASelectionAsksNothingAndSaves();
    void clearingWithoutASelectionIsToldSo();
    void clearingTheToDoListAsksWithNoAsDefault();
    void whatIsTypedIntoAClearedToDoListIsPlain();
    void aSaveThatFailsIsSilent();

    void aPriorityGoesWithItsHeaderAndBody();
    void aPriorityIsChosenByItsRedCellAlone_data();
    void aPriorityIsChosenByItsRedCellAlone();
    void withAnotherDecimalSignNoRowIsAHeader();
    void allPrioritiesGoOnYes();
    void noLeavesAllPriorities();
    void anEmptiedPriorityListIsOneEmptyRowInItsFile();

    void aReminderGoesFromBothGrids();
    void theFileLosesTheItemAtTheHiddenRow();
    void aReminderIsChosenByItsDateCellAlone();
    void theHiddenLastRowIsRemovedTwice();
    void nothingCatchesARemovalFromAnEmptyHiddenGrid();
    void allRemindersGoFromBothGridsOnYes();
    void noLeavesAllReminders();

private:
    void select(int subPanel) { m_ground->press(u"cmdmenu(%1)"_s.arg(subPanel)); }
    void fillHidden() { LoadRemindGrid(m_ground->app.file(u"tmp2.brf"_s), m_ground->MS2().grid()); }
    QByteArray written(const QString& name) { return m_ground->folder.read(name); }

    std::unique_ptr<PanelGround> m_ground;
    QStringList m_shown;
    std::optional<QPoint> m_place; ///< where a key asked for a menu
};

void ClearCommandsTest::init() {
    m_ground = std::make_unique<PanelGround>();
    m_shown.clear();
    m_ground->program.windows.registerMaker<PopupMenus>(
        [this] { return std::make_unique<MenuLog>(m_shown, &m_place); });
    m_ground->folder.write(u"tmp1.brf"_s, " 5  1 \r\n\r\nFriday\r\nurgent\r\nMonday\r\nlater\r\n");
    m_ground->folder.write(u"tmp2.brf"_s, " 5  1 \r\n\r\nh1\r\nb1\r\nh2\r\nb2\r\n");
    m_ground->folder.write(u"Vazno.rtf"_s, "{\\rtf1 water \\b the\\b0  roses}");
    m_ground->shown();
    fillHidden();
}

void ClearCommandsTest::theMenuHasItsEntriesInTheirOrder() {
    RecordingCommands commands;
    QWidget owner;
    QMenu* menu = makeClearMenu(&owner, [&]() -> ClearCommands& { return commands; });
    QCOMPARE(menu->objectName(), u"mnibrisi"_s);
    QCOMPARE(menu->title(), u"Brisi"_s);
    QStringList entries;
    for (const QAction* action : menu->actions())
        entries << (action->isSeparator() ? u"-"_s : action->objectName() + u' ' + action->text());
    QCOMPARE(
        entries,
        (QStringList{u"mnusamo Clear To-Do &Selection"_s, u"mnusve Clear To-Do &List"_s,
                     u"mnuc01 Clear List &Selection"_s, u"mnuc02 Clear &List"_s, u"-"_s,
                     u"mnuclpr1 Clear Selected &Priority"_s, u"mnuclpr2 Clear &All Priorities"_s,
                     u"-"_s, u"mnuclr1 Clear Selected &Reminder"_s,
                     u"mnuclr2 Clear All Re&minders"_s}));
}

void ClearCommandsTest::theTwoListEntriesAreGreyed() {
    RecordingCommands commands;
    QWidget owner;
    QMenu* menu = makeClearMenu(&owner, [&]() -> ClearCommands& { return commands; });
    QStringList greyed;
    for (const QAction* action : menu->actions())
        if (!action->isSeparator() && !action->isEnabled())
            greyed << action->objectName();
    QCOMPARE(greyed, (QStringList{u"mnuc01"_s, u"mnuc02"_s}));
    for (const QAction* action : menu->actions())
        QVERIFY(action->isVisible());
}

void ClearCommandsTest::eachEntryDoesItsCommand() {
    RecordingCommands commands;
    QWidget owner;
    QMenu* menu = makeClearMenu(&owner, [&]() -> ClearCommands& { return commands; });
    for (QAction* action : menu->actions())
        action->trigger();
    QCOMPARE(commands.done, (QStringList{u"mnusamo"_s, u"mnusve"_s, u"mnuclpr1"_s, u"mnuclpr2"_s,
                                         u"mnuclr1"_s, u"mnuclr2"_s}));
}

void ClearCommandsTest::theClearPictureOpensTheMenuWithTheLeftButtonAlone() {
    auto& picture = m_ground->control<Image>(u"imgDel"_s);
    QTest::mouseClick(&picture, Qt::RightButton);
    QCOMPARE(m_shown, QStringList());
    QTest::mousePress(&picture, Qt::LeftButton);
    QCOMPARE(m_shown, QStringList{u"mnibrisi"_s});
}

void ClearCommandsTest::aRightClickOnAListOrTheToDoDocumentOpensTheMenu() {
    QWidget* document = m_ground->rt1a().viewport();
    QTest::mouseClick(document, Qt::LeftButton);
    QCOMPARE(m_shown, QStringList());
    QTest::mouseClick(document, Qt::RightButton);
    QCOMPARE(m_shown, QStringList{u"mnibrisi"_s});
    for (MSFlexGrid* grid : {&m_ground->MS1(), &m_ground->MS3()}) {
        m_shown.clear();
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5),
                                grid->viewport()->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(grid->viewport(), &event);
        QCOMPARE(m_shown, QStringList{u"mnibrisi"_s});
    }
}

void ClearCommandsTest::theKeyOfMenusOpensItAtTheCaretOrTheRow() {
    const auto askByKey = [](QWidget& widget, QPoint place) {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, place, widget.mapToGlobal(place));
        QApplication::sendEvent(&widget, &event);
    };
    RichTextBox& document = m_ground->rt1a();
    askByKey(document, {});
    QCOMPARE(m_shown, QStringList{u"mnibrisi"_s});
    QCOMPARE(m_place, document.viewport()->mapToGlobal(document.cursorRect().bottomLeft()));
    m_shown.clear();
    MSFlexGrid& grid = m_ground->MS3();
    askByKey(*grid.viewport(), QPoint(30, 40));
    QCOMPARE(m_shown, QStringList{u"mnibrisi"_s});
    QCOMPARE(m_place, grid.viewport()->mapToGlobal(QPoint(30, 40)));
}

void ClearCommandsTest::aCommandOfAnotherSubPanelIsRefused_data() {
    QTest::addColumn<Command>("command");
    QTest::addColumn<int>("own");
    QTest::addColumn<QString>("words");
    const QString toDo = u"Select To-Do panel first."_s;
    const QString priority = u"Select Priority panel first."_s;
    const QString reminder = u"Select Reminder panel first."_s;
    QTest::newRow("selection") << &ClearCommands::mnusamo << 2 << toDo;
    QTest::newRow("document") << &ClearCommands::mnusve << 2 << toDo;
    QTest::newRow("priority") << &ClearCommands::mnuclpr1 << 1 << priority;
    QTest::newRow("priorities") << &ClearCommands::mnuclpr2 << 1 << priority;
    QTest::newRow("reminder") << &ClearCommands::mnuclr1 << 0 << reminder;
    QTest::newRow("reminders") << &ClearCommands::mnuclr2 << 0 << reminder;
}

void ClearCommandsTest::aCommandOfAnotherSubPanelIsRefused() {
    QFETCH(Command, command);
    QFETCH(int, own);
    QFETCH(QString, words);
    for (int other = 0; other < 4; ++other) {
        if (other == own)
            continue;
        select(other);
        m_ground->boxes.expect(words, Information, Answer::Ok);
        (m_ground->panel().*command)();
    }
    QCOMPARE(m_ground->boxes.asked.size(), 3);
    QCOMPARE(m_ground->MS1().Rows(), 5);
    QCOMPARE(m_ground->MS3().Rows(), 5);
    QCOMPARE(m_ground->rt1a().Text(), u"water the roses"_s);
}

void ClearCommandsTest::aRightClickOnAnotherListDoesNotSelectIt() {
    select(2);
    m_ground->MS1().setRow(1);
    emit m_ground->MS1().customContextMenuRequested(QPoint(5, 5));
    QCOMPARE(m_shown, QStringList{u"mnibrisi"_s});
    m_ground->boxes.expect(u"Select Priority panel first."_s, Information, Answer::Ok);
    m_ground->panel().mnuclpr1();
    QCOMPARE(m_ground->MS1().Rows(), 5);
}

void ClearCommandsTest::clearingASelectionAsksNothingAndSaves() {
    m_ground->rt1a().SetSelStart(5);
    m_ground->rt1a().SetSelLength(4);
    m_ground->panel().mnusamo();
    QCOMPARE(m_ground->rt1a().Text(), u"water roses"_s);
    QVERIFY(m_ground->boxes.asked.isEmpty());
    RichTextBox read;
    read.files().LoadFile(m_ground->app.file(u"Vazno.rtf"_s));
    QCOMPARE(read.Text(), u"water roses"_s);
}

void ClearCommandsTest::clearingWithoutASelectionIsToldSo() {
    m_ground->rt1a().SetSelStart(3);
    m_ground->boxes.expect(u"Select text you want to clear."_s, Information, Answer::Ok);
    m_ground->panel().mnusamo();
    QCOMPARE(m_ground->rt1a().Text(), u"water the roses"_s);
}

void ClearCommandsTest::clearingTheToDoListAsksWithNoAsDefault() {
    const QByteArray before = written(u"Vazno.rtf"_s);
    m_ground->boxes.expect(u"Clear all?"_s, YesNoDefaultNo, Answer::No);
    m_ground->panel().mnusve();
    QCOMPARE(m_ground->rt1a().Text(), u"water the roses"_s);
    QCOMPARE(written(u"Vazno.rtf"_s), before);
    m_ground->boxes.expect(u"Clear all?"_s, YesNoDefaultNo, Answer::Yes);
    m_ground->panel().mnusve();
    QCOMPARE(m_ground->rt1a().Text(), QString());
    RichTextBox read;
    read.files().LoadFile(m_ground->app.file(u"Vazno.rtf"_s));
    QCOMPARE(read.Text(), QString());
}

void ClearCommandsTest::whatIsTypedIntoAClearedToDoListIsPlain() {
    RichTextBox& document = m_ground->rt1a();
    document.SetSelStart(0);
    document.SetSelLength(15);
    document.SetSelBold(true);
    document.SetSelColor(255);
    m_ground->boxes.answer(Answer::Yes);
    m_ground->panel().mnusve();
    document.SetSelText(u"new"_s);
    document.SetSelStart(0);
    document.SetSelLength(3);
    QCOMPARE(document.SelBold(), std::optional(false));
    QCOMPARE(document.SelColor(), std::optional<quint32>(0));
}

void ClearCommandsTest::aSaveThatFailsIsSilent() {
    for (const QString& name : {u"Vazno.rtf"_s, u"tmp1.brf"_s, u"tmp2.brf"_s}) {
        QVERIFY(QFile::remove(m_ground->folder.file(name)));
        QVERIFY(QDir(m_ground->folder.path()).mkdir(name));
    }
    m_ground->rt1a().SetSelStart(0);
    m_ground->rt1a().SetSelLength(5);
    m_ground->panel().mnusamo();
    select(1);
    m_ground->MS1().setRow(1);
    m_ground->panel().mnuclpr1();
    select(0);
    m_ground->MS3().setRow(1);
    m_ground->panel().mnuclr1();
    QVERIFY(m_ground->boxes.asked.isEmpty());
    QCOMPARE(m_ground->MS1().Rows(), 3);
    QCOMPARE(m_ground->MS3().Rows(), 3);
}

void ClearCommandsTest::aPriorityGoesWithItsHeaderAndBody() {
    select(1);
    m_ground->MS1().setRow(1);
    m_ground->panel().mnuclpr1();
    QCOMPARE(rows(m_ground->MS1()), (QStringList{QString(), u"Monday"_s, u"later"_s}));
    QCOMPARE(written(u"tmp1.brf"_s), QByteArray(" 3  1 \r\n\r\nMonday\r\nlater\r\n"));
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void ClearCommandsTest::aPriorityIsChosenByItsRedCellAlone_data() {
    QTest::addColumn<int>("row");
    QTest::newRow("the empty row") << 0;
    QTest::newRow("a body") << 2;
    QTest::newRow("the last body") << 4;
}

void ClearCommandsTest::aPriorityIsChosenByItsRedCellAlone() {
    QFETCH(int, row);
    select(1);
    m_ground->MS1().setRow(row);
    m_ground->boxes.expect(u"Select the first cell (red colored) to delete entire priority."_s,
                           Information, Answer::Ok);
    m_ground->panel().mnuclpr1();
    QCOMPARE(m_ground->MS1().Rows(), 5);
}

void ClearCommandsTest::withAnotherDecimalSignNoRowIsAHeader() {
    for (int row = 0; row < 20; ++row) {
        QCOMPARE(IsOddRow(row, u'.'), row % 2 == 1);
        QVERIFY(!IsOddRow(row, u','));
    }
}

void ClearCommandsTest::allPrioritiesGoOnYes() {
    select(1);
    m_ground->boxes.expect(u"Clear All Priorities?"_s, YesNoExclamation, Answer::Yes, u"Clear"_s);
    m_ground->panel().mnuclpr2();
    QCOMPARE(rows(m_ground->MS1()), QStringList{QString()});
}

void ClearCommandsTest::noLeavesAllPriorities() {
    select(1);
    const QByteArray before = written(u"tmp1.brf"_s);
    m_ground->boxes.expect(u"Clear All Priorities?"_s, YesNoExclamation, Answer::No, u"Clear"_s);
    m_ground->panel().mnuclpr2();
    QCOMPARE(m_ground->MS1().Rows(), 5);
    QCOMPARE(written(u"tmp1.brf"_s), before);
}

void ClearCommandsTest::anEmptiedPriorityListIsOneEmptyRowInItsFile() {
    select(1);
    m_ground->boxes.answer(Answer::Yes);
    m_ground->panel().mnuclpr2();
    QCOMPARE(written(u"tmp1.brf"_s), QByteArray(" 1  1 \r\n\r\n"));
}

void ClearCommandsTest::aReminderGoesFromBothGrids() {
    select(0);
    m_ground->MS3().setRow(3);
    m_ground->MS2().setRow(3);
    m_ground->panel().mnuclr1();
    QCOMPARE(rows(m_ground->MS3()), (QStringList{QString(), u"h1"_s, u"b1"_s}));
    QCOMPARE(rows(m_ground->MS2()), (QStringList{QString(), u"h1"_s, u"b1"_s}));
    QCOMPARE(written(u"tmp2.brf"_s), QByteArray(" 3  1 \r\n\r\nh1\r\nb1\r\n"));
}

void ClearCommandsTest::theFileLosesTheItemAtTheHiddenRow() {
    select(0);
    m_ground->MS3().setRow(1);
    m_ground->MS2().setRow(3);
    m_ground->panel().mnuclr1();
    QCOMPARE(rows(m_ground->MS3()), (QStringList{QString(), u"h2"_s, u"b2"_s}));
    QCOMPARE(written(u"tmp2.brf"_s), QByteArray(" 3  1 \r\n\r\nh1\r\nb1\r\n"));
}

void ClearCommandsTest::aReminderIsChosenByItsDateCellAlone() {
    select(0);
    for (const int row : {0, 2, 4}) {
        m_ground->MS3().setRow(row);
        m_ground->boxes.expect(
            u"Select the first cell (with Date and Time) to delete entire priority."_s, Information,
            Answer::Ok);
        m_ground->panel().mnuclr1();
    }
    QCOMPARE(m_ground->MS3().Rows(), 5);
    QCOMPARE(m_ground->MS2().Rows(), 5);
}

void ClearCommandsTest::theHiddenLastRowIsRemovedTwice() {
    select(0);
    m_ground->MS3().setRow(1);
    m_ground->MS2().setRow(4);
    m_ground->panel().mnuclr1();
    // The second removal, of a row past the end, takes the last row.
    QCOMPARE(rows(m_ground->MS2()), (QStringList{QString(), u"h1"_s, u"b1"_s}));
}

void ClearCommandsTest::nothingCatchesARemovalFromAnEmptyHiddenGrid() {
    select(0);
    m_ground->MS3().setRow(1);
    m_ground->MS2().setRows(1);
    const auto failure = firstFailure([this] { m_ground->panel().mnuclr1(); });
    QVERIFY(failure);
    QCOMPARE(failure->number(), ErrorNumber::CannotRemoveLastRow);
    QCOMPARE(m_ground->MS3().Rows(), 3);
    QVERIFY(written(u"tmp2.brf"_s).startsWith(" 5  1 "));
}

void ClearCommandsTest::allRemindersGoFromBothGridsOnYes() {
    select(0);
    m_ground->boxes.expect(u"Clear All Reminders?"_s, YesNoExclamation, Answer::Yes, u"Clear"_s);
    m_ground->panel().mnuclr2();
    QCOMPARE(rows(m_ground->MS3()), QStringList{QString()});
    QCOMPARE(rows(m_ground->MS2()), QStringList{QString()});
    QCOMPARE(written(u"tmp2.brf"_s), QByteArray(" 1  1 \r\n\r\n"));
}

void ClearCommandsTest::noLeavesAllReminders() {
    select(0);
    m_ground->boxes.expect(u"Clear All Reminders?"_s, YesNoExclamation, Answer::No, u"Clear"_s);
    m_ground->panel().mnuclr2();
    QCOMPARE(m_ground->MS3().Rows(), 5);
    QCOMPARE(m_ground->MS2().Rows(), 5);
}

ORVALIS_TEST_MAIN_WITH(QApplication, ClearCommandsTest)
#include "clear_commands_test.moc"
