// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// Order and search of the Address panel.
#include "address/address_ground.h"

#include "runtime/failure.h"
#include "support/folder_watch.h"

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int Information = 64;
const QString ByFirst = u"Items sorted by First Name."_s;
const QString BySecond = u"Items sorted by Second Name."_s;

std::vector<AddressRecord> threeContacts() {
    return {named(u"a"_s, u"3"_s), named(u"b"_s, u"2"_s), named(u"c"_s, u"1"_s)};
}

} // namespace

class AddressFindingTest : public QObject {
    Q_OBJECT
private slots:
    void init() { m_ground = std::make_unique<AddressGround>(); }
    void cleanup() { m_ground.reset(); }

    void sortTellsTheNameItSortedBy();
    void theOptionSaysWhichName();
    void theLoadSortsByTheOptionToo();
    void capitalsSortBeforeSmallLetters();
    void equalNamesStandWhereTheExchangeSortLeavesThem();
    void sortOfLessThanTwoSaysNothing();
    void sortWritesNothingAndTheNextEditDoes();
    void sortKeepsScreenAndIndex();
    void sortDropsTheChosenPictureAndTheSearch();
    void twoMethodsAreOffered();
    void theListIsTheFieldOfAllInTheirOrder_data();
    void theListIsTheFieldOfAllInTheirOrder();
    void choosingAMethodEmptiesTheValueAndGoesThere();
    void anUnknownMethodLeavesTheList();
    void theMethodCannotBeTyped();
    void aClickOnTheMethodOpensItsList();
    void findWithoutAMethodSaysSo();
    void findWithoutAValueSaysSo();
    void findShowsTheFirstHit();
    void findOfAnEmptyFieldHasNoValue();
    void findMatchesCapitalsOnlyWhereAsked();
    void findOfAPartFindsNothing();
    void aMissLeavesTheSearchAsItWas();
    void aHitEndsTheSearch();
    void aHitLeavesTheIndex();
    void aHitForgetsTheChosenPicture();
    void aLaterRecordOfTheSameValueIsNotReached();
    void enterInTheValueFinds();
    void aSearchInAnEmptyBookFails();
    void aSearchGoesByTheListThatWasFilled();
    void everyEditEndsTheSearch_data();
    void everyEditEndsTheSearch();
    void stepsLeaveTheSearch();

private:
    std::unique_ptr<AddressGround> m_ground;
};

void AddressFindingTest::sortTellsTheNameItSortedBy() {
    m_ground->open(threeContacts());
    m_ground->save();
    QCOMPARE(m_ground->inMemory(), (QStringList{u"b 2"_s, u"c 1"_s, u"a 3"_s}));
    m_ground->pressAndRead(u"imgSort"_s, ByFirst, Information);
    QCOMPARE(m_ground->inMemory(), (QStringList{u"a 3"_s, u"b 2"_s, u"c 1"_s}));
}

void AddressFindingTest::theOptionSaysWhichName() {
    m_ground->open(threeContacts());
    m_ground->byFirst = false;
    m_ground->pressAndRead(u"imgSort"_s, BySecond, Information);
    QCOMPARE(m_ground->inMemory(), (QStringList{u"c 1"_s, u"b 2"_s, u"a 3"_s}));
}

void AddressFindingTest::theLoadSortsByTheOptionToo() {
    m_ground->byFirst = false;
    m_ground->open(threeContacts());
    QCOMPARE(m_ground->inMemory(), (QStringList{u"c 1"_s, u"b 2"_s, u"a 3"_s}));
    QCOMPARE(m_ground->names(), u"c 1"_s);
}

void AddressFindingTest::capitalsSortBeforeSmallLetters() {
    m_ground->open({named(u"adams"_s, u"x"_s), named(u"Smith"_s, u"y"_s)});
    QCOMPARE(m_ground->inMemory(), (QStringList{u"Smith y"_s, u"adams x"_s}));
}

void AddressFindingTest::equalNamesStandWhereTheExchangeSortLeavesThem() {
    m_ground->open({named(u"b"_s, u"first"_s), named(u"b"_s, u"second"_s), named(u"a"_s, u"x"_s)});
    QCOMPARE(m_ground->inMemory(), (QStringList{u"a x"_s, u"b second"_s, u"b first"_s}));
    m_ground->pressAndRead(u"imgSort"_s, ByFirst, Information);
    QCOMPARE(m_ground->inMemory(), (QStringList{u"a x"_s, u"b second"_s, u"b first"_s}));
}

void AddressFindingTest::sortOfLessThanTwoSaysNothing() {
    m_ground->open({named(u"a"_s, u"1"_s)});
    m_ground->press(u"imgSort"_s);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void AddressFindingTest::sortWritesNothingAndTheNextEditDoes() {
    m_ground->open(threeContacts());
    m_ground->byFirst = false;
    const FolderWatch watch(m_ground->folder.path());
    m_ground->pressAndRead(u"imgSort"_s, BySecond, Information);
    QCOMPARE(watch.renamedTo(), QStringList());
    QCOMPARE(m_ground->inFile(), (QStringList{u"a 3"_s, u"b 2"_s, u"c 1"_s}));
    m_ground->typeNames(u"d"_s, u"4"_s);
    m_ground->add();
    QCOMPARE(m_ground->inFile(), (QStringList{u"c 1"_s, u"b 2"_s, u"a 3"_s, u"d 4"_s}));
}

void AddressFindingTest::sortKeepsScreenAndIndex() {
    m_ground->open(threeContacts());
    m_ground->byFirst = false;
    m_ground->pressAndRead(u"imgSort"_s, BySecond, Information);
    QCOMPARE(m_ground->names(), u"a 3"_s);
    // The index is still that of the first record, which is another one now.
    m_ground->next();
    QCOMPARE(m_ground->names(), u"b 2"_s);
    m_ground->previous();
    QCOMPARE(m_ground->names(), u"c 1"_s);
}

void AddressFindingTest::sortDropsTheChosenPictureAndTheSearch() {
    m_ground->open(threeContacts());
    AddressGround::choose(m_ground->combo(u"Combo2"_s), u"First"_s);
    m_ground->choosePicture(m_ground->picture(u"a.png"_s));
    m_ground->pressAndRead(u"imgSort"_s, ByFirst, Information);
    QCOMPARE(m_ground->book.PicPath, QString());
    QVERIFY(m_ground->searchIsIdle());
    QVERIFY(!m_ground->showsDefaultPicture());
}

void AddressFindingTest::twoMethodsAreOffered() {
    m_ground->open(threeContacts());
    const ComboBox& methods = m_ground->combo(u"Combo2"_s);
    QCOMPARE(methods.ListCount(), 2);
    QCOMPARE(methods.List(0), u"First"_s);
    QCOMPARE(methods.List(1), u"Second"_s);
    QCOMPARE(methods.Text(), u"Select method"_s);
}

void AddressFindingTest::theListIsTheFieldOfAllInTheirOrder_data() {
    QTest::addColumn<QString>("method");
    QTest::addColumn<int>("field");
    int field = 0;
    for (const QString& method :
         {u"First"_s, u"Second"_s, u"Area"_s, u"Address"_s, u"Town"_s, u"Pin"_s, u"District"_s,
          u"State"_s, u"Country"_s, u"Tel"_s, u"Fax"_s, u"Email"_s, u"Web"_s})
        QTest::newRow(qPrintable(method)) << method << field++;
}

void AddressFindingTest::theListIsTheFieldOfAllInTheirOrder() {
    QFETCH(QString, method);
    QFETCH(int, field);
    std::vector<AddressRecord> contacts = threeContacts();
    const auto member = AddressFields.at(static_cast<std::size_t>(field));
    if (field > 1)
        contacts[0].*member = u"z, and more"_s;
    contacts[2].*member = u"last"_s;
    m_ground->open(contacts);
    ComboBox& methods = m_ground->combo(u"Combo2"_s);
    // The handler knows more methods than the list offers.
    if (field > 1)
        methods.AddItem(method);
    AddressGround::choose(methods, method);
    const ComboBox& values = m_ground->combo(u"Combo3"_s);
    QCOMPARE(values.ListCount(), 3);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(values.List(i), m_ground->book.record(i).*member);
    m_ground->find(method, u"last"_s);
    QVERIFY(m_ground->panel().shownContact().*member == u"last"_s);
    QVERIFY(m_ground->searchIsIdle());
}

void AddressFindingTest::choosingAMethodEmptiesTheValueAndGoesThere() {
    m_ground->layDown(threeContacts());
    m_ground->shown();
    ComboBox& values = m_ground->combo(u"Combo3"_s);
    QVERIFY(m_ground->searchIsIdle());
    AddressGround::choose(m_ground->combo(u"Combo2"_s), u"First"_s);
    QVERIFY(values.isEnabled());
    QVERIFY(m_ground->control<GGCommand>(u"cmdFind"_s).Enabled());
    QVERIFY(values.hasFocus());
    QCOMPARE(values.Text(), QString());
    values.setText(u"a"_s);
    AddressGround::choose(m_ground->combo(u"Combo2"_s), u"Second"_s);
    QCOMPARE(values.Text(), QString());
    QCOMPARE(values.List(0), u"3"_s);
    QCOMPARE(values.ListCount(), 3);
}

void AddressFindingTest::anUnknownMethodLeavesTheList() {
    m_ground->open(threeContacts());
    ComboBox& methods = m_ground->combo(u"Combo2"_s);
    methods.AddItem(u"Notes"_s);
    AddressGround::choose(methods, u"First"_s);
    AddressGround::choose(methods, u"Notes"_s);
    QCOMPARE(m_ground->combo(u"Combo3"_s).List(0), u"a"_s);
    QVERIFY(m_ground->combo(u"Combo3"_s).isEnabled());
}

void AddressFindingTest::theMethodCannotBeTyped() {
    m_ground->layDown(threeContacts());
    m_ground->shown();
    QTest::keyClicks(m_ground->combo(u"Combo2"_s).lineEdit(), u"x"_s);
    QVERIFY(m_ground->searchIsIdle());
}

void AddressFindingTest::aClickOnTheMethodOpensItsList() {
    m_ground->layDown(threeContacts());
    m_ground->shown();
    ComboBox& methods = m_ground->combo(u"Combo2"_s);
    QTest::mouseClick(methods.lineEdit(), Qt::LeftButton);
    QTRY_VERIFY(methods.view()->isVisible());
    methods.hidePopup();
}

void AddressFindingTest::findWithoutAMethodSaysSo() {
    m_ground->open(threeContacts());
    m_ground->pressAndRead(u"cmdFind"_s, u"Select search method."_s, Information);
}

void AddressFindingTest::findWithoutAValueSaysSo() {
    m_ground->open(threeContacts());
    AddressGround::choose(m_ground->combo(u"Combo2"_s), u"First"_s);
    m_ground->pressAndRead(u"cmdFind"_s, u"Enter search string."_s, Information);
    QVERIFY(!m_ground->searchIsIdle());
}

void AddressFindingTest::findShowsTheFirstHit() {
    std::vector<AddressRecord> contacts = threeContacts();
    contacts[1].Picture = m_ground->picture(u"b.png"_s);
    m_ground->open(contacts);
    m_ground->find(u"First"_s, u"b"_s);
    QCOMPARE(m_ground->names(), u"b 2"_s);
    QVERIFY(!m_ground->showsDefaultPicture());
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void AddressFindingTest::findOfAnEmptyFieldHasNoValue() {
    m_ground->open({named(u"a"_s, u"1"_s)});
    AddressGround::choose(m_ground->combo(u"Combo2"_s), u"First"_s);
    m_ground->combo(u"Combo3"_s).setText({});
    m_ground->pressAndRead(u"cmdFind"_s, u"Enter search string."_s, Information);
}

void AddressFindingTest::findMatchesCapitalsOnlyWhereAsked() {
    m_ground->open({named(u"Ann"_s, u"1"_s), named(u"Bob"_s, u"2"_s)});
    m_ground->next();
    m_ground->control<QCheckBox>(u"chCase"_s).setChecked(true);
    m_ground->boxes.expect(u"No such item."_s, Information, Answer::Ok, u"Address Search"_s);
    m_ground->find(u"First"_s, u"ann"_s);
    QCOMPARE(m_ground->names(), u"Bob 2"_s);
    m_ground->control<QCheckBox>(u"chCase"_s).setChecked(false);
    m_ground->find(u"First"_s, u"ann"_s);
    QCOMPARE(m_ground->names(), u"Ann 1"_s);
}

void AddressFindingTest::findOfAPartFindsNothing() {
    m_ground->open({named(u"Ann"_s, u"1"_s)});
    for (const QString& value : {u"An"_s, u"Anna"_s, u"A*"_s, u"A??"_s}) {
        m_ground->boxes.expect(u"No such item."_s, Information, Answer::Ok, u"Address Search"_s);
        m_ground->find(u"First"_s, value);
    }
}

void AddressFindingTest::aMissLeavesTheSearchAsItWas() {
    m_ground->open(threeContacts());
    m_ground->boxes.expect(u"No such item."_s, Information, Answer::Ok, u"Address Search"_s);
    m_ground->find(u"First"_s, u"x"_s);
    QVERIFY(m_ground->combo(u"Combo3"_s).isEnabled());
    QCOMPARE(m_ground->combo(u"Combo3"_s).Text(), u"x"_s);
    QCOMPARE(m_ground->combo(u"Combo2"_s).Text(), u"First"_s);
    m_ground->combo(u"Combo3"_s).setText(u"c"_s);
    m_ground->press(u"cmdFind"_s);
    QCOMPARE(m_ground->names(), u"c 1"_s);
}

void AddressFindingTest::aHitEndsTheSearch() {
    m_ground->open(threeContacts());
    m_ground->find(u"Second"_s, u"2"_s);
    QVERIFY(m_ground->searchIsIdle());
}

void AddressFindingTest::aHitLeavesTheIndex() {
    m_ground->open(threeContacts());
    m_ground->find(u"First"_s, u"c"_s);
    QCOMPARE(m_ground->names(), u"c 1"_s);
    m_ground->next();
    QCOMPARE(m_ground->names(), u"b 2"_s);
    m_ground->find(u"First"_s, u"a"_s);
    m_ground->answerDelete(Answer::Yes);
    QCOMPARE(m_ground->inMemory(), (QStringList{u"a 3"_s, u"c 1"_s}));
}

void AddressFindingTest::aHitForgetsTheChosenPicture() {
    m_ground->open(threeContacts());
    m_ground->choosePicture(m_ground->picture(u"a.png"_s));
    m_ground->find(u"First"_s, u"a"_s);
    QCOMPARE(m_ground->book.PicPath, QString());
    QVERIFY(m_ground->showsDefaultPicture());
}

void AddressFindingTest::aLaterRecordOfTheSameValueIsNotReached() {
    m_ground->open({named(u"a"_s, u"1"_s), named(u"a"_s, u"2"_s)});
    for (int round = 0; round < 2; ++round) {
        m_ground->find(u"First"_s, u"a"_s);
        QCOMPARE(m_ground->names(), u"a 1"_s);
    }
}

void AddressFindingTest::enterInTheValueFinds() {
    m_ground->layDown(threeContacts());
    m_ground->shown();
    ComboBox& values = m_ground->combo(u"Combo3"_s);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        AddressGround::choose(m_ground->combo(u"Combo2"_s), u"First"_s);
        QTest::keyClicks(&values, u"c"_s);
        QTest::keyClick(&values, key);
        QCOMPARE(m_ground->names(), u"c 1"_s);
        QVERIFY(m_ground->searchIsIdle());
        m_ground->first();
    }
    AddressGround::choose(m_ground->combo(u"Combo2"_s), u"First"_s);
    m_ground->boxes.expect(u"Enter search string."_s, Information, Answer::Ok);
    QTest::keyClick(&values, Qt::Key_Return);
}

void AddressFindingTest::aSearchInAnEmptyBookFails() {
    m_ground->open({});
    AddressGround::choose(m_ground->combo(u"Combo2"_s), u"First"_s);
    m_ground->combo(u"Combo3"_s).setText(u"a"_s);
    const auto failure = firstFailure([this] { m_ground->press(u"cmdFind"_s); });
    QVERIFY(failure);
    QCOMPARE(failure->number(), ErrorNumber::SubscriptOutOfRange);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void AddressFindingTest::aSearchGoesByTheListThatWasFilled() {
    m_ground->open(threeContacts());
    AddressGround::choose(m_ground->combo(u"Combo2"_s), u"First"_s);
    m_ground->book.record(2).First = u"x"_s;
    m_ground->combo(u"Combo3"_s).setText(u"c"_s);
    m_ground->press(u"cmdFind"_s);
    QCOMPARE(m_ground->names(), u"x 1"_s);
}

void AddressFindingTest::everyEditEndsTheSearch_data() {
    QTest::addColumn<QString>("button");
    for (const QString& button :
         {u"imgNew"_s, u"imgAdd"_s, u"imgSave"_s, u"imgDel"_s, u"imgSort"_s})
        QTest::newRow(qPrintable(button)) << button;
}

void AddressFindingTest::everyEditEndsTheSearch() {
    QFETCH(QString, button);
    m_ground->open(threeContacts());
    AddressGround::choose(m_ground->combo(u"Combo2"_s), u"First"_s);
    QVERIFY(!m_ground->searchIsIdle());
    m_ground->line(u"Text1"_s).setText(u"new"_s);
    if (button == u"imgDel") {
        m_ground->answerDelete(Answer::Yes);
    } else {
        if (button != u"imgNew")
            m_ground->boxes.answer(Answer::Ok);
        m_ground->press(button);
    }
    QVERIFY(m_ground->searchIsIdle());
}

void AddressFindingTest::stepsLeaveTheSearch() {
    m_ground->open(threeContacts());
    AddressGround::choose(m_ground->combo(u"Combo2"_s), u"First"_s);
    m_ground->next();
    QVERIFY(!m_ground->searchIsIdle());
}

ORVALIS_TEST_MAIN_WITH(Application, AddressFindingTest)
#include "address_finding_test.moc"
