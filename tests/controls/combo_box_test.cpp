// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/combo_box.h"
#include "support/test_main.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWheelEvent>

using namespace orvalis;
using namespace Qt::StringLiterals;

class ComboBoxTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void eachTypedCharacterIsAChange();
    void textSetByCodeIsAChangeWhenItDiffers();
    void settingTheTextThatStandsThereIsNoChange();
    void settingTheTextOfTheEntryThatWasTypedOverIsAChange();
    void fillingIsNeitherChangeNorClick();
    void fillingLeavesTheText();
    void fillingThroughTheBaseClassTellsNothingEither();
    void clearingEmptiesListAndTextSilently();
    void aNewListTakesTheTextAwaySilently();
    void aNewListIsChosenFromAndAddedToLikeAnother();
    void aNewListMayBeVeryLong();
    void anEntryChosenWithThePointerIsAClickAndNoChange();
    void theSameEntryChosenAgainIsAClick();
    void theEntryBehindATypedTextIsAClickAndNoChange();
    void aListClosedWithoutAChoiceTellsNothing();
    void aChangeAfterAListClosedWithoutAChoiceIsTold();
    void anArrowKeyChooses();
    void leavingTheBoxTakesATypedTextForNoChoice();
    void enterTakesATypedTextForNoChoice();
    void typedTextIsNeitherCompletedNorInserted();
    void typedTextKeepsItsCase();
    void theWheelTurnsOnlyABoxWithTheFocus();
    void turningTheWheelIsAClick();
    void theIndexIsThatOfTheEntryThatStandsThere();
    void aListOnlyBoxTakesEntriesOfItsListAlone();
    void aHandlerMayDeleteTheBox();

private:
    void showBox();
    void pick(int row);

    QWidget* m_window = nullptr;
    ComboBox* m_box = nullptr;
    QSignalSpy* m_changes = nullptr;
    QSignalSpy* m_clicks = nullptr;
};

void ComboBoxTest::init() {
    m_window = new QWidget;
    auto* layout = new QVBoxLayout(m_window);
    m_box = new ComboBox(u"Combo1"_s, m_window);
    layout->addWidget(m_box);
    layout->addWidget(new QLineEdit(m_window));
    for (const auto& text : {u"00"_s, u"01"_s, u"02"_s, u"07"_s})
        m_box->AddItem(text);
    m_box->lineEdit()->setText(u"00"_s);
    m_changes = new QSignalSpy(m_box, &ComboBox::Change);
    m_clicks = new QSignalSpy(m_box, &ComboBox::Click);
}

void ComboBoxTest::cleanup() {
    delete m_changes;
    delete m_clicks;
    delete m_window;
}

void ComboBoxTest::showBox() {
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    m_box->setFocus();
    QVERIFY(m_box->hasFocus());
}

void ComboBoxTest::pick(int row) {
    m_box->showPopup();
    QAbstractItemView* view = m_box->view();
    QVERIFY(QTest::qWaitForWindowExposed(view->window()));
    view->setCurrentIndex(view->model()->index(row, 0));
    QTest::keyClick(view, Qt::Key_Return);
    QTRY_VERIFY(!view->isVisible());
}

void ComboBoxTest::eachTypedCharacterIsAChange() {
    showBox();
    m_box->lineEdit()->selectAll();
    QTest::keyClicks(m_box, u"24"_s);
    QCOMPARE(m_box->Text(), u"24"_s);
    QCOMPARE(m_changes->count(), 2);
    QCOMPARE(m_clicks->count(), 0);
}

void ComboBoxTest::textSetByCodeIsAChangeWhenItDiffers() {
    m_box->setText(u"7"_s);
    QCOMPARE(m_changes->count(), 1);
    m_box->setEditText(u"8"_s);
    QCOMPARE(m_changes->count(), 2);
    m_box->setCurrentText(u"9"_s);
    QCOMPARE(m_changes->count(), 3);
    QCOMPARE(m_clicks->count(), 0);
}

void ComboBoxTest::settingTheTextThatStandsThereIsNoChange() {
    m_box->setText(u"00"_s);
    QCOMPARE(m_changes->count(), 0);
    QCOMPARE(m_clicks->count(), 0);
}

void ComboBoxTest::settingTheTextOfTheEntryThatWasTypedOverIsAChange() {
    showBox();
    pick(3);
    m_box->lineEdit()->selectAll();
    QTest::keyClicks(m_box, u"7"_s);
    m_changes->clear();
    m_box->setText(u"07"_s);
    QCOMPARE(m_changes->count(), 1);
}

void ComboBoxTest::fillingIsNeitherChangeNorClick() {
    ComboBox box;
    QSignalSpy changes(&box, &ComboBox::Change);
    QSignalSpy clicks(&box, &ComboBox::Click);
    box.AddItem(u"First"_s);
    box.AddItem(u"Second"_s);
    QCOMPARE(box.ListCount(), 2);
    QCOMPARE(box.List(1), u"Second"_s);
    QCOMPARE(box.List(2), QString());
    QCOMPARE(changes.count(), 0);
    QCOMPARE(clicks.count(), 0);
}

void ComboBoxTest::fillingLeavesTheText() {
    ComboBox box;
    box.AddItem(u"First"_s);
    QCOMPARE(box.Text(), QString());
    QCOMPARE(box.ListIndex(), -1);
    box.Clear();
    box.setText(u"Select method"_s);
    box.AddItem(u"First"_s);
    QCOMPARE(box.Text(), u"Select method"_s);

    ComboBox list(nullptr, ComboBox::Style::DropDownList);
    list.AddItem(u"First"_s);
    QCOMPARE(list.Text(), QString());
    QCOMPARE(list.ListIndex(), -1);
}

void ComboBoxTest::fillingThroughTheBaseClassTellsNothingEither() {
    ComboBox box;
    QSignalSpy changes(&box, &ComboBox::Change);
    QSignalSpy clicks(&box, &ComboBox::Click);
    QComboBox& base = box;
    base.addItems({u"00"_s, u"01"_s});
    base.insertItem(0, u"x"_s);
    QCOMPARE(changes.count(), 0);
    QCOMPARE(clicks.count(), 0);
    box.setText(u"y"_s);
    QCOMPARE(changes.count(), 1);
}

void ComboBoxTest::clearingEmptiesListAndTextSilently() {
    m_box->setText(u"typed"_s);
    m_changes->clear();
    m_box->Clear();
    QCOMPARE(m_box->ListCount(), 0);
    QCOMPARE(m_box->Text(), QString());
    QCOMPARE(m_changes->count(), 0);
    QCOMPARE(m_clicks->count(), 0);
}

void ComboBoxTest::aNewListTakesTheTextAwaySilently() {
    m_box->SetList({u"x"_s, QString(), u"x"_s});
    QCOMPARE(m_box->Text(), QString());
    QCOMPARE(m_box->ListCount(), 3);
    QCOMPARE(m_box->List(0), u"x"_s);
    QCOMPARE(m_box->List(1), QString());
    m_box->setText(u"y"_s);
    m_changes->clear();
    m_box->SetList({});
    QCOMPARE(m_box->Text(), QString());
    QCOMPARE(m_box->ListCount(), 0);
    QCOMPARE(m_changes->count(), 0);
    QCOMPARE(m_clicks->count(), 0);
}

void ComboBoxTest::aNewListIsChosenFromAndAddedToLikeAnother() {
    m_box->SetList({u"a"_s, u"b"_s});
    m_box->AddItem(u"c"_s);
    QCOMPARE(m_box->Text(), QString());
    QCOMPARE(m_changes->count(), 0);
    showBox();
    pick(2);
    QCOMPARE(m_box->Text(), u"c"_s);
    QCOMPARE(m_clicks->count(), 1);
    QCOMPARE(m_changes->count(), 0);
    m_box->Clear();
    QCOMPARE(m_box->ListCount(), 0);
    QCOMPARE(m_box->Text(), QString());
}

void ComboBoxTest::aNewListMayBeVeryLong() {
    QStringList entries;
    for (int i = 0; i < 30000; ++i)
        entries << QString::number(i);
    m_box->SetList(entries);
    QCOMPARE(m_box->ListCount(), 30000);
    showBox();
    pick(29999);
    QCOMPARE(m_box->Text(), u"29999"_s);
}

void ComboBoxTest::anEntryChosenWithThePointerIsAClickAndNoChange() {
    showBox();
    m_box->showPopup();
    QAbstractItemView* view = m_box->view();
    QVERIFY(QTest::qWaitForWindowExposed(view->window()));
    const QPoint row = view->visualRect(view->model()->index(2, 0)).center();
    QTest::mouseMove(view->viewport(), row);
    // A release that comes too soon after the list opened belongs to the press that opened it.
    QTRY_VERIFY_WITH_TIMEOUT(
        (QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, row), m_clicks->count() > 0),
        5000);
    QCOMPARE(m_box->Text(), u"02"_s);
    QCOMPARE(m_box->ListIndex(), 2);
    QCOMPARE(m_clicks->count(), 1);
    QCOMPARE(m_changes->count(), 0);
}

void ComboBoxTest::theSameEntryChosenAgainIsAClick() {
    showBox();
    pick(2);
    pick(2);
    QCOMPARE(m_clicks->count(), 2);
    QCOMPARE(m_changes->count(), 0);
}

void ComboBoxTest::theEntryBehindATypedTextIsAClickAndNoChange() {
    showBox();
    pick(3);
    m_box->setText(u"7"_s);
    m_changes->clear();
    m_clicks->clear();
    pick(3);
    QCOMPARE(m_box->Text(), u"07"_s);
    QCOMPARE(m_clicks->count(), 1);
    QCOMPARE(m_changes->count(), 0);
}

void ComboBoxTest::aListClosedWithoutAChoiceTellsNothing() {
    showBox();
    m_box->showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(m_box->view()->window()));
    QTest::keyClick(m_box->view(), Qt::Key_Escape);
    QTRY_VERIFY(!m_box->view()->isVisible());
    QCOMPARE(m_clicks->count(), 0);
    QCOMPARE(m_changes->count(), 0);
}

void ComboBoxTest::aChangeAfterAListClosedWithoutAChoiceIsTold() {
    aListClosedWithoutAChoiceTellsNothing();
    QCoreApplication::processEvents();
    QTest::keyClicks(m_box, u"5"_s);
    QCOMPARE(m_changes->count(), 1);
}

void ComboBoxTest::anArrowKeyChooses() {
    showBox();
    pick(0);
    m_clicks->clear();
    QTest::keyClick(m_box, Qt::Key_Down);
    QCOMPARE(m_box->Text(), u"01"_s);
    QCOMPARE(m_clicks->count(), 1);
    QCOMPARE(m_changes->count(), 0);
}

void ComboBoxTest::leavingTheBoxTakesATypedTextForNoChoice() {
    showBox();
    m_box->lineEdit()->selectAll();
    QTest::keyClicks(m_box, u"07"_s);
    QTest::keyClick(m_box, Qt::Key_Tab);
    QTRY_VERIFY(!m_box->hasFocus());
    QCOMPARE(m_clicks->count(), 0);
    QCOMPARE(m_changes->count(), 2);
}

void ComboBoxTest::enterTakesATypedTextForNoChoice() {
    showBox();
    m_box->lineEdit()->selectAll();
    QTest::keyClicks(m_box, u"07"_s);
    QSignalSpy enters(m_box->lineEdit(), &QLineEdit::returnPressed);
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(enters.count(), 1);
    QCOMPARE(m_clicks->count(), 0);
}

void ComboBoxTest::typedTextIsNeitherCompletedNorInserted() {
    showBox();
    m_box->lineEdit()->clear();
    QTest::keyClicks(m_box, u"0"_s);
    QCOMPARE(m_box->Text(), u"0"_s);
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_box->Text(), u"0"_s);
    QCOMPARE(m_box->ListCount(), 4);
}

void ComboBoxTest::typedTextKeepsItsCase() {
    showBox();
    m_box->AddItem(u"Friends"_s);
    m_box->lineEdit()->clear();
    QTest::keyClicks(m_box, u"friends"_s);
    QTest::keyClick(m_box, Qt::Key_Return);
    QTest::keyClick(m_box, Qt::Key_Tab);
    QCOMPARE(m_box->Text(), u"friends"_s);
}

namespace {
bool turnWheel(QWidget& widget, int angle) {
    const QPointF middle = QRectF(widget.rect()).center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), {}, QPoint(0, angle), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}
} // namespace

void ComboBoxTest::theWheelTurnsOnlyABoxWithTheFocus() {
    showBox();
    QTest::keyClick(m_box, Qt::Key_Tab);
    QTRY_VERIFY(!m_box->hasFocus());
    QVERIFY(!turnWheel(*m_box, -120));
    QCOMPARE(m_box->Text(), u"00"_s);
    QCOMPARE(m_clicks->count(), 0);
}

void ComboBoxTest::turningTheWheelIsAClick() {
    showBox();
    turnWheel(*m_box, -120);
    QCOMPARE(m_clicks->count(), 1);
    QCOMPARE(m_changes->count(), 0);
}

void ComboBoxTest::theIndexIsThatOfTheEntryThatStandsThere() {
    showBox();
    pick(3);
    QCOMPARE(m_box->ListIndex(), 3);
    m_box->setText(u"7"_s);
    QCOMPARE(m_box->ListIndex(), -1);
}

void ComboBoxTest::aListOnlyBoxTakesEntriesOfItsListAlone() {
    ComboBox list(u"lstvreme"_s, nullptr, ComboBox::Style::DropDownList);
    list.AddItem(u"10 : 24"_s);
    list.AddItem(u"10 : 24"_s);
    list.AddItem(u"9 : 24"_s);
    list.setText(u"9 : 24"_s);
    QCOMPARE(list.ListIndex(), 2);
    list.setText(u"none of them"_s);
    QCOMPARE(list.Text(), u"9 : 24"_s);
    QCOMPARE(list.objectName(), u"lstvreme"_s);
}

void ComboBoxTest::aHandlerMayDeleteTheBox() {
    for (const bool onChange : {true, false}) {
        auto* box = new ComboBox;
        box->AddItem(u"00"_s);
        box->AddItem(u"01"_s);
        QPointer<ComboBox> alive(box);
        connect(box, onChange ? &ComboBox::Change : &ComboBox::Click, this,
                [box] { box->deleteLater(); });
        box->setText(u"5"_s);
        QTest::keyClick(box, Qt::Key_Down);
        QCoreApplication::sendPostedEvents(box, QEvent::DeferredDelete);
        QVERIFY(!alive);
    }
}

ORVALIS_TEST_MAIN_WITH(QApplication, ComboBoxTest)
#include "combo_box_test.moc"
