// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/notes_ground.h"

#include "controls/twips_geometry.h"
#include "core/clock_label.h"
#include "core/popup_menus.h"
#include "core/recovery.h"
#include "notes/date_menu.h"
#include "support/pointer_events.h"
#include "support/role_doubles.h"

#include <QFrame>
#include <QMenu>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

class NotesPanelTest : public QObject {
    Q_OBJECT
private slots:
    void init() { m_ground = std::make_unique<NotesGround>(); }
    void cleanup() { m_ground.reset(); }

    void theWindowHasTheSizeOfTheBook();
    void thePagesStandInTheirPlaces();
    void thePageTitlesAreUntitledAndTheRightOneIsGrey();
    void theToolbarsStandAboveThePages();
    void nothingOnTheBookOverlaps();
    void theCommandsHaveTheirToolTips();
    void theChromeIsThatOfTheNotes();
    void theEditorHasTheFocusAtTheStart();
    void theFontIsArial8UnlessOneIsKept();
    void aKeptFontIsTheEditorsAndWhatIsTypedHasIt();
    void aFontSizeThatIsNoneIsPassedOver_data();
    void aFontSizeThatIsNoneIsPassedOver();
    void aKeptSizeSurvivesRunsOnAnyScreen();
    void theRightPageWritesInTenPoints();
    void aRightPressOnTheClockOpensTheDateMenu();
    void theDateMenuWritesIntoTheNotes();
    void sadReplacesTheSelection();
    void sadWritesTheClockAsItIsShown();
    void switchingPanelsAndGoingToTheTrayKeepTheDocumentAndAskNothing();
    void theLettersGoWithTheLabelsAndToTheTray();
    void unsavedChangesAreRecoveredUnderTheirTitle();
    void aSavedDocumentIsNotRecovered();
    void unloadedPanelsRecoverNothing();

private:
    frmnotes2& panel() { return m_ground->panel(); }
    RichTextBox& rt1() { return m_ground->rt1(); }
    QRectF twips(const QString& name) { return twipsGeometry(m_ground->control<QWidget>(name)); }

    std::unique_ptr<NotesGround> m_ground;
};

void NotesPanelTest::theWindowHasTheSizeOfTheBook() {
    // 10500 by 6750 twips
    QCOMPARE(m_ground->shown().size(), QSize(700, 450));
    QCOMPARE(m_ground->control<Image>(u"Image34"_s).size(), QSize(700, 450));
    panel().resize(300, 300);
    QCOMPARE(panel().size(), QSize(700, 450));
}

void NotesPanelTest::thePagesStandInTheirPlaces() {
    // The layout moves everything by the ratio of the design's width to the picture's.
    const double ratio = 10530.0 / 10500;
    const QMap<QString, QRectF> places{{u"rt1"_s, {480, 1020, 3915, 4395}},
                                       {u"rt1a"_s, {5880, 1020, 3915, 4395}},
                                       {u"Label3"_s, {480, 720, 3810, 240}},
                                       {u"Label1"_s, {6780, 720, 2970, 240}},
                                       {u"Frame1"_s, {6120, 3180, 3495, 2205}}};
    for (auto it = places.begin(); it != places.end(); ++it) {
        const QRectF is = twips(it.key());
        const QRectF design = it.value();
        QVERIFY2(qAbs(is.left() - design.left() / ratio) < 0.1, qPrintable(it.key()));
        QVERIFY2(qAbs(is.top() - design.top() / ratio) < 0.1, qPrintable(it.key()));
        QVERIFY2(qAbs(is.width() - design.width() / ratio) < 0.1, qPrintable(it.key()));
        QVERIFY2(qAbs(is.height() - design.height() / ratio) < 0.1, qPrintable(it.key()));
    }
    QVERIFY(m_ground->rt1a().isReadOnly());
    QVERIFY(!m_ground->isUp(u"rt5"_s));
}

void NotesPanelTest::thePageTitlesAreUntitledAndTheRightOneIsGrey() {
    QCOMPARE(m_ground->caption(u"Label3"_s), u"Untitled"_s);
    QCOMPARE(m_ground->caption(u"Label1"_s), u"Untitled"_s);
    QCOMPARE(m_ground->control<Label>(u"Label1"_s).palette().color(QPalette::WindowText),
             QColor(0x80, 0x80, 0x80));
}

void NotesPanelTest::theToolbarsStandAboveThePages() {
    m_ground->shown();
    const QRect first = m_ground->control<QWidget>(u"Toolbar1"_s).geometry();
    const QRect second = m_ground->control<QWidget>(u"Toolbar2"_s).geometry();
    QVERIFY(first.bottom() < rt1().y());
    QVERIFY(second.bottom() < m_ground->rt1a().y());
    QVERIFY(first.left() == rt1().x() && first.right() == rt1().geometry().right());
    QVERIFY(second.left() == m_ground->rt1a().x());
    const auto buttons = panel().findChildren<QToolButton*>();
    for (const QToolButton* button : buttons)
        if (!button->objectName().startsWith(u"qt_"_s)) {
            QVERIFY2(button->isVisible(), qPrintable(button->objectName()));
            QVERIFY(button->parentWidget()->rect().contains(button->geometry()));
        }
}

void NotesPanelTest::nothingOnTheBookOverlaps() {
    m_ground->shown();
    QList<QWidget*> seen;
    const auto children = panel().findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : children)
        if (child->isVisible() && child->objectName() != u"Image34"_s)
            seen << child;
    for (QWidget* one : std::as_const(seen)) {
        QVERIFY2(panel().rect().contains(one->geometry()), qPrintable(one->objectName()));
        for (QWidget* other : std::as_const(seen))
            if (one != other)
                QVERIFY2(!one->geometry().intersects(other->geometry()),
                         qPrintable(one->objectName() + u' ' + other->objectName()));
    }
}

void NotesPanelTest::theCommandsHaveTheirToolTips() {
    const QMap<QString, QString> tips{
        {u"imgNew"_s, u"New"_s},         {u"imgOpen"_s, u"Open"_s},
        {u"imgSave"_s, u"Save"_s},       {u"imgFind"_s, u"Letters template"_s},
        {u"imgMail"_s, u"Send Email"_s}, {u"imgSlika"_s, u"Insert Image"_s},
        {u"imgPrint"_s, u"Print"_s}};
    for (auto it = tips.begin(); it != tips.end(); ++it) {
        QCOMPARE(m_ground->control<Image>(it.key()).toolTip(), it.value());
        QVERIFY(m_ground->control<Image>(it.key()).isPressable());
    }
    QCOMPARE(m_ground->control<GGCommand>(u"Button1"_s).Caption(), u"Edit"_s);
}

void NotesPanelTest::theChromeIsThatOfTheNotes() {
    QCOMPARE(panel().objectName(), u"frmnotes2"_s);
    QCOMPARE(m_ground->caption(u"lblRem"_s), u"NOTES"_s);
    QCOMPARE(panel().lblNot().Caption(), u"Reminder"_s);
    QVERIFY(panel().findChild<QObject*>(u"Timer3"_s) != nullptr);
}

void NotesPanelTest::theEditorHasTheFocusAtTheStart() {
    QCOMPARE(m_ground->shown().focusWidget(), &rt1());
}

void NotesPanelTest::theFontIsArial8UnlessOneIsKept() {
    QCOMPARE(rt1().FontName(), u"Arial"_s);
    QCOMPARE(rt1().FontSize(), 8.0);
}

void NotesPanelTest::aKeptFontIsTheEditorsAndWhatIsTypedHasIt() {
    m_ground->setSetting(u"RT2"_s, u"FN"_s, u"DejaVu Serif"_s);
    m_ground->setSetting(u"RT2"_s, u"FS"_s, u"14"_s);
    m_ground->shown();
    QTest::keyClicks(&rt1(), u"text"_s);
    m_ground->select(0, 4);
    QCOMPARE(rt1().SelFontName(), std::optional(u"DejaVu Serif"_s));
    QCOMPARE(rt1().SelFontSize(), std::optional(14.0));
}

void NotesPanelTest::aFontSizeThatIsNoneIsPassedOver_data() {
    QTest::addColumn<QString>("size");
    for (const char* size : {"", "large", "0", "-3", "100000"})
        QTest::newRow(size) << QString::fromLatin1(size);
}

void NotesPanelTest::aFontSizeThatIsNoneIsPassedOver() {
    QFETCH(QString, size);
    m_ground->setSetting(u"RT2"_s, u"FS"_s, size);
    m_ground->setSetting(u"RT2"_s, u"FN"_s, u"DejaVu Serif"_s);
    QCOMPARE(rt1().FontName(), u"DejaVu Serif"_s);
    QVERIFY(rt1().FontSize() >= 1 && rt1().FontSize() < 100);
}

void NotesPanelTest::aKeptSizeSurvivesRunsOnAnyScreen() {
    m_ground = std::make_unique<NotesGround>(QSize(1600, 1200));
    m_ground->setSetting(u"RT2"_s, u"FS"_s, u"14"_s);
    for (int run = 0; run < 3; ++run) {
        QCOMPARE(rt1().FontSize(), 7.0);
        m_ground->dialogs.answerFont(std::nullopt);
        m_ground->press(u"Toolbar2(1)"_s);
        QCOMPARE(m_ground->settings.setting(u"RT2"_s, u"FS"_s, {}).toString(), u"14"_s);
        m_ground->leave();
    }
}

void NotesPanelTest::theRightPageWritesInTenPoints() {
    QCOMPARE(m_ground->rt1a().SelFontSize(), std::optional(10.0));
    m_ground = std::make_unique<NotesGround>(QSize(1600, 1200));
    QCOMPARE(m_ground->rt1a().SelFontSize(), std::optional(10.0));
}

void NotesPanelTest::aRightPressOnTheClockOpensTheDateMenu() {
    QStringList asked;
    m_ground->program.windows.registerMaker<PopupMenus>(
        [&asked] { return std::make_unique<MenuLog>(asked); });
    auto& clock = m_ground->control<ClockLabel>(u"lblVreme"_s);
    Pointer(clock).press({5, 5}, Qt::LeftButton);
    QCOMPARE(asked, QStringList());
    Pointer(clock).press({5, 5}, Qt::RightButton);
    QCOMPARE(asked, QStringList{u"mnudate"_s});
    m_ground->program.windows.unload<PopupMenus>();
}

void NotesPanelTest::theDateMenuWritesIntoTheNotes() {
    QWidget parent;
    QMenu* menu = makeDateMenu(&parent, [this]() -> NotesPanel& { return m_ground->panel(); });
    QCOMPARE(menu->objectName(), u"mnudate"_s);
    QCOMPARE(menu->title(), u"Insert"_s);
    QStringList entries;
    const auto actions = menu->actions();
    for (const QAction* action : actions)
        if (!action->isSeparator())
            entries << action->objectName() + u' ' + action->text();
    QCOMPARE(entries,
             (QStringList{u"mnuid &Date"_s, u"mnuit &Time"_s, u"mnuidt Date &and Time"_s}));
    m_ground->control<ClockLabel>(u"lblVreme"_s).setCaption(u"10 : 24 : 36"_s);
    const QStringList written{u"Saturday, March 14, 2026"_s, u"10 : 24 : 36"_s,
                              u"Saturday, March 14, 2026 / 10 : 24 : 36"_s};
    for (int i = 0; i < 3; ++i) {
        rt1().SetText({});
        menu->actions().at(i + 1)->trigger();
        QCOMPARE(rt1().Text(), written.at(i));
    }
}

void NotesPanelTest::sadReplacesTheSelection() {
    m_ground->write(u"on DAY we"_s);
    m_ground->select(3, 3);
    panel().Sad(1);
    QCOMPARE(rt1().Text(), u"on Saturday, March 14, 2026 we"_s);
    m_ground->select(0, 2);
    panel().Sad(7);
    QCOMPARE(rt1().Text(), u"on Saturday, March 14, 2026 we"_s);
}

void NotesPanelTest::sadWritesTheClockAsItIsShown() {
    m_ground->control<ClockLabel>(u"lblVreme"_s).setCaption(u"whatever it shows"_s);
    panel().Sad(2);
    QCOMPARE(rt1().Text(), u"whatever it shows"_s);
}

void NotesPanelTest::switchingPanelsAndGoingToTheTrayKeepTheDocumentAndAskNothing() {
    QStringList log;
    m_ground->program.windows.registerMaker<AddressPanel>([this, &log] {
        return std::make_unique<LoggedPanel<AddressPanel>>(m_ground->program, ChromeKind::Address,
                                                           log);
    });
    m_ground->shown();
    m_ground->write(u"words"_s);
    QTest::mouseClick(&m_ground->control<Label>(u"lblAdd"_s), Qt::LeftButton);
    QVERIFY(panel().isHidden());
    QVERIFY(log.contains(u"show frmnotes3"_s));
    panel().Show();
    QCOMPARE(rt1().Text(), u"words"_s);
    QVERIFY(m_ground->boxes.asked.isEmpty());
    m_ground->program.windows.unload<AddressPanel>();
}

void NotesPanelTest::theLettersGoWithTheLabelsAndToTheTray() {
    QStringList log;
    registerLogged<LettersWindow>(m_ground->program, u"frmpisma"_s, log);
    m_ground->program.windows.registerMaker<PasswordPanel>([this, &log] {
        return std::make_unique<LoggedPanel<PasswordPanel>>(m_ground->program, ChromeKind::Password,
                                                            log);
    });
    m_ground->shown();
    m_ground->press(u"imgFind"_s);
    QTest::mouseClick(&m_ground->control<Label>(u"lblPass"_s), Qt::LeftButton);
    QVERIFY(log.contains(u"unload frmpisma"_s));
    QVERIFY(log.indexOf(u"unload frmpisma"_s) < log.indexOf(u"show frmnotes4"_s));
    m_ground->program.windows.unload<PasswordPanel>();
}

void NotesPanelTest::unsavedChangesAreRecoveredUnderTheirTitle() {
    m_ground->write(u"words"_s);
    m_ground->select(0, 5);
    rt1().SetSelBold(true);
    m_ground->program.recovery.keep();
    RichTextBox box;
    box.files().LoadFile(m_ground->app.file(u"recovered.rtf"_s));
    QVERIFY(box.Text().startsWith(u"Notes, left page \"Untitled\""_s));
    const int at = box.Find(u"words"_s);
    QVERIFY(at > 0);
    QCOMPARE(box.SelBold(), std::optional(true));
}

void NotesPanelTest::aSavedDocumentIsNotRecovered() {
    m_ground->write(u"words"_s);
    m_ground->dialogs.answerSave(m_ground->folder.file(u"a.rtf"_s));
    m_ground->press(u"imgSave"_s);
    m_ground->program.recovery.keep();
    QVERIFY(!QFile::exists(m_ground->app.file(u"recovered.rtf"_s)));
}

void NotesPanelTest::unloadedPanelsRecoverNothing() {
    m_ground->write(u"words"_s);
    m_ground->leave();
    m_ground->program.recovery.keep();
    QVERIFY(!QFile::exists(m_ground->app.file(u"recovered.rtf"_s)));
}

ORVALIS_TEST_MAIN_WITH(QApplication, NotesPanelTest)
#include "notes_panel_test.moc"
