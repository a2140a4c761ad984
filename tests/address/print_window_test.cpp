// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/print_ground.h"

#include "runtime/failure.h"
#include "support/folder_watch.h"
#include "support/role_doubles.h"
#include "support/test_main.h"

#include <QResizeEvent>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

constexpr quint32 Red = 255;
constexpr quint32 Black = 0;
const QString Snapshot = u"address1tmp.dat"_s;

/// The lines of the page that begin an item.
QStringList headings(const QString& page) {
    return page.split(u"\r\n"_s).filter(u"Item No"_s);
}

} // namespace

/// The print window: how it looks, how it gathers contacts, how it follows its size.
class PrintWindowTest : public QObject {
    Q_OBJECT
private slots:
    void init() { m_test = std::make_unique<PrintGround>(); }
    void cleanup() { m_test.reset(); }

    void theWindowHasItsWordsAndSize();
    void theButtonsStandInTheirOrderWithTheirToolTips();
    void tabLeavesThePageAndCtrlTabWritesOne();
    void enterPressesATool();
    void itBeginsWithTheFontOfTheSettings();
    void withoutSettingsItBeginsWithArialOf10Points();
    void aFontSettingThatIsNoSizeIsPassedOver_data();
    void aFontSettingThatIsNoSizeIsPassedOver();
    void whatIsAddedTakesTheStartingFont();
    void printCurrentAppendsWhatThePanelShows();
    void printCurrentLeavesBoldOn();
    void theAddButtonIsPrintCurrent();
    void printAllOfThreeRecordsNumbersThemOneToThree();
    void eachItemsNumberIsRedAndItsBlockBlackAndBold();
    void printAllSwitchesBoldOff();
    void aSecondPrintAllGivesSixBlocksAndTheCaptionAgainSaysThree();
    void printCurrentBehindPrintAllAddsToThePageAndKeepsTheCaption();
    void printAllKeepsWhatStandsOnThePage();
    void printAllOfAnEmptyBookSaysNone();
    void printAllLeavesTheLastPictureToBeStored();
    void printAllWritesTheSnapshotTwice();
    void theSnapshotHoldsTheBook();
    void printAllNeverTouchesTheBooksFile();
    void printAllShowsItsProgressAndHidesItAgain();
    void printAllServes327Records();
    void printAllOf328RecordsOverflowsAtRecord328();
    void theOverflowEndsTheProgramWithItsBox();
    void aSnapshotThatCannotBeOpenedEndsPrintAllAhead_data();
    void aSnapshotThatCannotBeOpenedEndsPrintAllAhead();
    void oneUndoTakesAPrintAllBack();
    void theNextWindowBeginsEmpty();
    void closingUnloadsTheFindWindow();
    void openingDoesNotTriggerTheSizeRule();
    void aWindowThatIsTooSmallJumpsBack_data();
    void aWindowThatIsTooSmallJumpsBack();
    void aWindowThatIsLargeEnoughKeepsItsSize_data();
    void aWindowThatIsLargeEnoughKeepsItsSize();
    void aMinimizedWindowIsLeftAlone();
    void thePageFollowsTheWindow();

private:
    std::unique_ptr<PrintGround> m_test;
};

void PrintWindowTest::theWindowHasItsWordsAndSize() {
    frmPrint& window = m_test->window();
    QCOMPARE(window.objectName(), u"frmPrint"_s);
    QCOMPARE(window.windowTitle(), u"Address Print"_s);
    QCOMPARE(window.size(), QSize(434, 413)); // 6510 by 6195 twips
    QVERIFY(!window.isModal());
    QCOMPARE(m_test->rtb().objectName(), u"rtb"_s);
    QCOMPARE(m_test->rtb().Text(), QString());
}

void PrintWindowTest::theButtonsStandInTheirOrderWithTheirToolTips() {
    auto* toolbar = m_test->window().findChild<QToolBar*>(u"tb1"_s);
    QVERIFY(toolbar);
    QStringList buttons;
    for (const QToolButton* button : toolbar->findChildren<QToolButton*>())
        if (!button->objectName().startsWith(u"qt_"))
            buttons << button->objectName() + u':' + button->toolTip();
    QCOMPARE(buttons,
             (QStringList{u"tb1(print): Print "_s, u"tb1(open):Open"_s, u"tb1(save): Save "_s,
                          u"tb1(add): Add current item"_s, u"tb1(font): Change font settings "_s,
                          u"tb1(del): Clear selected text "_s, u"tb1(find):Find"_s}));
    QStringList separators;
    for (const QAction* action : toolbar->actions())
        if (action->isSeparator())
            separators << action->objectName();
    QCOMPARE(separators, (QStringList{u"tb1(cpl)"_s, u"tb1(cvp)"_s, u"tb1(cvo)"_s, u"tb1(sen)"_s}));
    for (const QString& key :
         {u"print"_s, u"open"_s, u"save"_s, u"add"_s, u"font"_s, u"del"_s, u"find"_s}) {
        QVERIFY(!m_test->button(key).icon().isNull());
        QVERIFY(!m_test->button(key).accessibleName().isEmpty());
    }
}

void PrintWindowTest::tabLeavesThePageAndCtrlTabWritesOne() {
    m_test->window().Show();
    m_test->window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_test->window()));
    RichTextBox& page = m_test->rtb();
    page.setFocus();
    QTest::keyClick(&page, Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(page.Text(), u"\t"_s);
    QVERIFY(page.hasFocus());
    QTest::keyClick(&page, Qt::Key_Tab);
    QVERIFY(!page.hasFocus());
    QCOMPARE(page.Text(), u"\t"_s);
}

void PrintWindowTest::enterPressesATool() {
    m_test->panel.shown.First = u"Ann"_s;
    m_test->window().Show();
    QTest::keyClick(&m_test->button(u"add"_s), Qt::Key_Return);
    QVERIFY(m_test->rtb().Text().contains(u"Ann"));
}

void PrintWindowTest::itBeginsWithTheFontOfTheSettings() {
    m_test->setSetting(u"Slova"_s, u"Imslova"_s, u"Courier New"_s);
    m_test->setSetting(u"Slova"_s, u"Vslova"_s, u"14"_s);
    QCOMPARE(m_test->rtb().SelFontName(), u"Courier New"_s);
    QCOMPARE(m_test->rtb().SelFontSize(), 14.0);
}

void PrintWindowTest::withoutSettingsItBeginsWithArialOf10Points() {
    QCOMPARE(m_test->rtb().SelFontName(), u"Arial"_s);
    QCOMPARE(m_test->rtb().SelFontSize(), 10.0);
}

void PrintWindowTest::aFontSettingThatIsNoSizeIsPassedOver_data() {
    QTest::addColumn<QString>("size");
    for (const QString& size : {u""_s, u"large"_s, u"0"_s, u"-3"_s, u"1e9"_s})
        QTest::newRow(qPrintable(u"'%1'"_s.arg(size))) << size;
}

void PrintWindowTest::aFontSettingThatIsNoSizeIsPassedOver() {
    QFETCH(QString, size);
    const qreal usual = *RichTextBox().SelFontSize();
    m_test->setSetting(u"Slova"_s, u"Imslova"_s, u"Courier New"_s);
    m_test->setSetting(u"Slova"_s, u"Vslova"_s, size);
    QCOMPARE(m_test->rtb().SelFontName(), u"Courier New"_s);
    QVERIFY(qAbs(*m_test->rtb().SelFontSize() - usual) < 4);
}

void PrintWindowTest::whatIsAddedTakesTheStartingFont() {
    m_test->setSetting(u"Slova"_s, u"Imslova"_s, u"Courier New"_s);
    m_test->setSetting(u"Slova"_s, u"Vslova"_s, u"14"_s);
    m_test->fillBook(2);
    m_test->window().stampaAll();
    m_test->rtb().selectAll();
    QCOMPARE(m_test->rtb().SelFontName(), std::optional(u"Courier New"_s));
    QCOMPARE(m_test->rtb().SelFontSize(), std::optional(14.0));
}

void PrintWindowTest::printCurrentAppendsWhatThePanelShows() {
    m_test->fillBook(1);
    m_test->panel.shown.First = u"typed, not stored"_s;
    m_test->panel.shown.Notes = u"a note"_s;
    m_test->window().stampa();
    QCOMPARE(m_test->rtb().Text(),
             u"\r\nFirst Name \r\n     typed, not stored\r\nSecond Name \r\n     \r\n"
             "Group \r\n     \r\nAddress \r\n     \r\nPhone \r\n     \r\nFAX \r\n     \r\n"
             "Email \r\n     \r\nURL \r\n     \r\nComments \r\n     a note\r\n"_s);
    QVERIFY(m_test->window().isVisible());
    QCOMPARE(m_test->window().windowTitle(), u"Address Print"_s);
    QCOMPARE(m_test->folder.names(), QStringList());
}

void PrintWindowTest::printCurrentLeavesBoldOn() {
    m_test->window().stampa();
    QCOMPARE(m_test->rtb().SelBold(), true);
}

void PrintWindowTest::theAddButtonIsPrintCurrent() {
    m_test->panel.shown.First = u"Ann"_s;
    m_test->press(u"add"_s);
    const QString once = m_test->rtb().Text();
    QVERIFY(once.contains(u"     Ann\r\n"_s));
    m_test->press(u"add"_s);
    QCOMPARE(m_test->rtb().Text(), once + once);
}

void PrintWindowTest::printAllOfThreeRecordsNumbersThemOneToThree() {
    m_test->fillBook(3);
    m_test->window().stampaAll();
    QCOMPARE(headings(m_test->rtb().Text()),
             (QStringList{u"---------- Item No 1 ---------"_s, u"---------- Item No 2 ---------"_s,
                          u"---------- Item No 3 ---------"_s}));
    QCOMPARE(m_test->window().windowTitle(), u"Print Address : Total No 3"_s);
    QVERIFY(m_test->window().isVisible());
    QVERIFY(m_test->rtb().Text().startsWith(
        u"\r\n---------- Item No 1 ---------\r\n\r\nFirst Name \r\n     Ann 1\r\n"_s));
    QVERIFY(m_test->rtb().Text().contains(
        u"Comments \r\n     \r\n\r\n---------- Item No 2 ---------\r\n\r\nFirst Name \r\n"
        "     Ann 2\r\n"_s));
}

void PrintWindowTest::eachItemsNumberIsRedAndItsBlockBlackAndBold() {
    m_test->fillBook(2);
    m_test->window().stampaAll();
    for (const QString& number : {u"1"_s, u"2"_s}) {
        m_test->select(u"---------- Item No "_s + number + u" ---------"_s);
        QCOMPARE(m_test->rtb().SelColor(), std::optional(Red));
        QCOMPARE(m_test->rtb().SelBold(), std::optional(false));
        m_test->select(u"     Ann "_s + number);
        QCOMPARE(m_test->rtb().SelColor(), std::optional(Black));
        QCOMPARE(m_test->rtb().SelBold(), std::optional(true));
    }
    m_test->select(u"First Name "_s);
    QCOMPARE(m_test->rtb().SelBold(), std::optional(false));
    QCOMPARE(m_test->rtb().SelColor(), std::optional(Black));
}

void PrintWindowTest::printAllSwitchesBoldOff() {
    m_test->fillBook(1);
    m_test->window().stampaAll();
    QCOMPARE(m_test->rtb().SelBold(), false);
}

void PrintWindowTest::aSecondPrintAllGivesSixBlocksAndTheCaptionAgainSaysThree() {
    m_test->fillBook(3);
    m_test->window().stampaAll();
    m_test->window().stampaAll();
    QCOMPARE(headings(m_test->rtb().Text()).size(), 6);
    QCOMPARE(m_test->rtb().Text().count(u"First Name "_s), 6);
    QCOMPARE(m_test->window().windowTitle(), u"Print Address : Total No 3"_s);
}

void PrintWindowTest::printCurrentBehindPrintAllAddsToThePageAndKeepsTheCaption() {
    m_test->fillBook(2);
    m_test->window().stampaAll();
    m_test->window().stampa();
    QCOMPARE(m_test->rtb().Text().count(u"First Name "_s), 3);
    QCOMPARE(m_test->window().windowTitle(), u"Print Address : Total No 2"_s);
}

void PrintWindowTest::printAllKeepsWhatStandsOnThePage() {
    m_test->fillBook(1);
    m_test->rtb().SetText(u"above below"_s);
    m_test->rtb().SetSelStart(6);
    m_test->window().stampaAll();
    QVERIFY(m_test->rtb().Text().startsWith(u"above \r\n----------"_s));
    QVERIFY(m_test->rtb().Text().endsWith(u"\r\nbelow"_s));
}

void PrintWindowTest::printAllOfAnEmptyBookSaysNone() {
    m_test->window().stampaAll();
    QCOMPARE(m_test->rtb().Text(), QString());
    QCOMPARE(m_test->window().windowTitle(), u"Print Address : Total No 0"_s);
    QCOMPARE(m_test->folder.names(), QStringList{Snapshot});
    QVERIFY(m_test->window().isVisible());
}

void PrintWindowTest::printAllLeavesTheLastPictureToBeStored() {
    m_test->fillBook(3);
    m_test->book.PicPath = u"/chosen.png"_s;
    m_test->window().stampa();
    QCOMPARE(m_test->book.PicPath, u"/chosen.png"_s);
    m_test->window().stampaAll();
    QCOMPARE(m_test->book.PicPath, u"/pictures/3.png"_s);
}

void PrintWindowTest::printAllWritesTheSnapshotTwice() {
    m_test->fillBook(2);
    const FolderWatch watch(m_test->folder.path());
    m_test->window().stampaAll();
    // The system tells two like events in a row but once; their sources differ here.
    QCOMPARE(watch.renamedTo(), (QStringList{Snapshot, Snapshot}));
    QCOMPARE(m_test->folder.names(), QStringList{Snapshot});
}

void PrintWindowTest::theSnapshotHoldsTheBook() {
    m_test->fillBook(3);
    m_test->window().stampaAll();
    m_test->book.writeTo(m_test->folder.file(u"book"_s));
    QVERIFY(!m_test->folder.read(Snapshot).isEmpty());
    QCOMPARE(m_test->folder.read(Snapshot), m_test->folder.read(u"book"_s));
}

void PrintWindowTest::printAllNeverTouchesTheBooksFile() {
    m_test->fillBook(3);
    m_test->folder.write(u"address1.dat"_s, "as it was");
    m_test->window().stampaAll();
    QCOMPARE(m_test->folder.read(u"address1.dat"_s), QByteArray("as it was"));
}

void PrintWindowTest::printAllShowsItsProgressAndHidesItAgain() {
    m_test->fillBook(4);
    m_test->panel.show();
    QList<float> values;
    bool shown = true;
    connect(&m_test->panel.PB1(), &QProgressBar::valueChanged, this, [&](int value) {
        values << static_cast<float>(value);
        shown = shown && m_test->panel.PB1().isVisible();
    });
    m_test->window().stampaAll();
    QCOMPARE(values, (QList<float>{25, 50, 75, 100}));
    QVERIFY(shown);
    QVERIFY(!m_test->panel.PB1().isVisible());
    QCOMPARE(m_test->panel.PB1().Value(), 100.0F);
}

void PrintWindowTest::printAllServes327Records() {
    m_test->fillBook(327);
    m_test->window().stampaAll();
    QCOMPARE(headings(m_test->rtb().Text()).size(), 327);
    QCOMPARE(m_test->window().windowTitle(), u"Print Address : Total No 327"_s);
}

void PrintWindowTest::printAllOf328RecordsOverflowsAtRecord328() {
    m_test->fillBook(400);
    m_test->panel.show();
    const auto failure = firstFailure([&] { m_test->window().stampaAll(); });
    QVERIFY(failure);
    QCOMPARE(failure->number(), ErrorNumber::Overflow);
    // Record 328 is on the page; its progress is what overflows.
    QCOMPARE(headings(m_test->rtb().Text()).constLast(), u"---------- Item No 328 ---------"_s);
    QVERIFY(m_test->rtb().Text().contains(u"     Ann 328\r\n"_s));
    QCOMPARE(m_test->book.PicPath, u"/pictures/328.png"_s);
    QVERIFY(m_test->panel.PB1().isVisible());
    QCOMPARE(m_test->window().windowTitle(), u"Address Print"_s);
    QVERIFY(!m_test->window().isVisible());
    // What UpisiTmp wrote is whole, and nothing lies beside it.
    QCOMPARE(m_test->folder.read(Snapshot).count('\n'), 400 * 15);
    QCOMPARE(m_test->folder.names(), QStringList{Snapshot});
}

void PrintWindowTest::theOverflowEndsTheProgramWithItsBox() {
    m_test->fillBook(328);
    m_test->boxes.expect(u"Run-time error '6':\n\nOverflow"_s, 16, Answer::Ok);
    // The menu's entry runs it from the event loop.
    QMetaObject::invokeMethod(
        &m_test->window(), [this] { m_test->window().stampaAll(); }, Qt::QueuedConnection);
    QCoreApplication::sendPostedEvents();
    QVERIFY(programHasEnded());
}

void PrintWindowTest::aSnapshotThatCannotBeOpenedEndsPrintAllAhead_data() {
    QTest::addColumn<int>("contacts");
    for (const int contacts : {0, 3})
        QTest::addRow("%d", contacts) << contacts;
}

void PrintWindowTest::aSnapshotThatCannotBeOpenedEndsPrintAllAhead() {
    QFETCH(int, contacts);
    m_test->fillBook(contacts);
    QVERIFY(QDir(m_test->folder.path()).mkdir(Snapshot));
    const auto failure = firstFailure([&] { m_test->window().stampaAll(); });
    QVERIFY(failure);
    QCOMPARE(failure->number(), ErrorNumber::PathFileAccessError);
    QCOMPARE(m_test->rtb().Text(), QString());
    QVERIFY(!m_test->window().isVisible());
}

void PrintWindowTest::oneUndoTakesAPrintAllBack() {
    m_test->fillBook(3);
    m_test->rtb().SetText(u"above"_s);
    m_test->window().stampaAll();
    m_test->rtb().Undo();
    QCOMPARE(m_test->rtb().Text(), u"above"_s);
}

void PrintWindowTest::theNextWindowBeginsEmpty() {
    m_test->fillBook(3);
    m_test->window().stampaAll();
    m_test->window().close();
    QVERIFY(!m_test->program.windows.loaded<PrintWindow>());
    QCOMPARE(m_test->rtb().Text(), QString());
    QCOMPARE(m_test->window().windowTitle(), u"Address Print"_s);
}

void PrintWindowTest::closingUnloadsTheFindWindow() {
    QStringList log;
    registerLogged<FindWindow>(m_test->program, u"frmFind"_s, log);
    m_test->window().Show();
    m_test->press(u"find"_s);
    QVERIFY(m_test->program.windows.loaded<FindWindow>());
    m_test->window().close();
    QVERIFY(log.contains(u"unload frmFind"_s));
    QVERIFY(!m_test->program.windows.loaded<FindWindow>());
    QVERIFY(!m_test->program.windows.loaded<PrintWindow>());
}

void PrintWindowTest::openingDoesNotTriggerTheSizeRule() {
    frmPrint& window = m_test->window();
    window.Show();
    QCoreApplication::processEvents();
    QCOMPARE(window.size(), QSize(434, 413));
    window.Hide();
    window.Show();
    QCoreApplication::processEvents();
    QCOMPARE(window.size(), QSize(434, 413));
}

void PrintWindowTest::aWindowThatIsTooSmallJumpsBack_data() {
    QTest::addColumn<QSize>("size"); // with the frame
    QTest::newRow("both sides") << QSize(200, 200);
    QTest::newRow("its width alone, by a pixel") << QSize(441, 600);
    QTest::newRow("its height alone, by a pixel") << QSize(700, 355);
    QTest::newRow("wider than it opened, and not wide enough") << QSize(440, 417);
}

void PrintWindowTest::aWindowThatIsTooSmallJumpsBack() {
    QFETCH(QSize, size);
    frmPrint& window = m_test->window();
    window.Show();
    const QSize frame = window.frameGeometry().size() - window.size();
    for (int time = 0; time < 2; ++time) {
        window.resize(size - frame);
        QCoreApplication::processEvents();
        QCOMPARE(window.frameGeometry().size(), QSize(442, 356)); // 6630 by 5340 twips
    }
}

void PrintWindowTest::aWindowThatIsLargeEnoughKeepsItsSize_data() {
    QTest::addColumn<QSize>("size");
    QTest::newRow("the least") << QSize(442, 356);
    QTest::newRow("large") << QSize(900, 700);
}

void PrintWindowTest::aWindowThatIsLargeEnoughKeepsItsSize() {
    QFETCH(QSize, size);
    frmPrint& window = m_test->window();
    window.Show();
    const QSize frame = window.frameGeometry().size() - window.size();
    window.resize(size - frame);
    QCoreApplication::processEvents();
    QCOMPARE(window.frameGeometry().size(), size);
}

void PrintWindowTest::aMinimizedWindowIsLeftAlone() {
    frmPrint& window = m_test->window();
    window.Show();
    window.resize(900, 700);
    const QRect page = m_test->rtb().geometry();
    window.setWindowState(Qt::WindowMinimized);
    QResizeEvent small(QSize(160, 30), QSize(900, 700));
    QCoreApplication::sendEvent(&window, &small);
    QCOMPARE(m_test->rtb().geometry(), page);
    QCOMPARE(window.size(), QSize(900, 700));
}

void PrintWindowTest::thePageFollowsTheWindow() {
    frmPrint& window = m_test->window();
    window.Show();
    window.resize(900, 700);
    const int toolbar = window.findChild<QToolBar*>(u"tb1"_s)->height();
    QVERIFY(toolbar > 16);
    // 250 twips less than the window; twice the toolbar and 300 twips less.
    QCOMPARE(m_test->rtb().width(), window.frameGeometry().width() - 17);
    QCOMPARE(m_test->rtb().height(), window.frameGeometry().height() - 2 * toolbar - 20);
    const QRect below = window.rect().adjusted(0, toolbar, 0, 0);
    QVERIFY(below.contains(m_test->rtb().geometry()));
    QVERIFY((below.center() - m_test->rtb().geometry().center()).manhattanLength() <= 1);
}

ORVALIS_TEST_MAIN_WITH(Application, PrintWindowTest)
#include "print_window_test.moc"
