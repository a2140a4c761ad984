// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// New, Add, Save, Delete and the picture of the Address panel.
#include "address/address_ground.h"

#include "support/folder_watch.h"
#include "support/small_disk.h"
#include "support/without_root.h"

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int Plain = 0;
constexpr int Exclamation = 48;
constexpr int Information = 64;

const QString FirstRequired = u"First Name is required item."_s;
const QString SecondRequired = u"Second Name is required item."_s;
const QString AddFirst = u"Click on Add Button to add data as a new item."_s;

QString alreadyThere(const QString& first, const QString& second) {
    return u"Item \n"_s + first + u"  "_s + second +
           u"\nalready exist.\nChange First or Second Name to save data as a new item."_s;
}

std::vector<AddressRecord> threeContacts() {
    return {named(u"a"_s, u"1"_s), named(u"b"_s, u"2"_s), named(u"c"_s, u"3"_s)};
}

} // namespace

class AddressEditingTest : public QObject {
    Q_OBJECT
private slots:
    void init() { m_ground = std::make_unique<AddressGround>(); }
    void cleanup() { m_ground.reset(); }

    void newInAnEmptyBookChangesNothing();
    void newPutsTheFirstTextsIntoTheFields();
    void newDropsTheChosenPictureAndTheSearch();
    void addWantsBothNames();
    void addPutsTheRecordAtTheEndAndWritesOnce();
    void addStoresEveryField();
    void addInAnEmptyBookStoresTheDesignTextsThatAreLeft();
    void addKeepsWhatIsOnShowAndLeavesTheSearch();
    void theNamesThatNewBeginsWithAreNotRejected();
    void addRefusesNamesThatStandInDifferentRecords();
    void addTellsCapitalsApart();
    void addRefusesOnlyWhereBothNamesStand();
    void addAllowsNamesThatOnceStood();
    void namesInAnyFormStandInTheBoxAsTheyAre();
    void addStoresTheChosenPictureOnce();
    void addThatCannotWriteSaysAddedAndKeepsTheOldFile();
    void aFullBookTakesNoMore();
    void saveWantsBothNames();
    void saveInAnEmptyBookRefuses();
    void saveAfterNewRefusesThoughAnotherRecordIsOnShow();
    void saveMovesAnUnchangedRecordToTheEndAndTakesItsPicture();
    void saveKeepsAPictureThatWasJustChosen();
    void saveReplacesTheCurrentRecordAndWritesOnce();
    void saveShowsTheSavedRecordAndGoesOnFromThere();
    void saveOfTheOnlyRecordKeepsIt();
    void saveTestsForNoDuplicate();
    void saveAfterASearchReplacesTheRecordAtTheIndex();
    void saveAfterASortReplacesTheRecordAtTheIndex();
    void saveThatCannotWriteSaysSavedAndKeepsTheOldFile();
    void theNextLoadSortsASavedRecordBack();
    void deleteOfTheLastRecordRefuses();
    void deleteRightAfterNewSaysThatItIsNotAdded();
    void deleteAsksFirst();
    void deleteShowsTheRecordThatMovedUp();
    void deleteAtTheLastIndexShowsTheFirst();
    void deleteWritesTwiceAndLeavesNoRecordTwice();
    void deleteInAnEmptyBookEmptiesTheFieldsAndWritesNothing();
    void deleteThatCannotWriteEndsBeforeTheCount();
    void deleteLeavesTheSearchAndTheChosenPicture();
    void newStaysPendingUntilAnAdd();
    void aReloadEndsNew();
    void aPictureIsAskedForAsAnImage();
    void aChosenPictureIsShownAndNoted();
    void aPictureThatIsNotThereGivesTheDefault();
    void aPictureThatCannotBeReadLeavesWhatIsShown();
    void aCancelledDialogTakesTheFileOfTheOneBefore();
    void aPictureDialogBehindABackupIsNoFailureWhenCancelled();

private:
    std::unique_ptr<AddressGround> m_ground;
};

void AddressEditingTest::newInAnEmptyBookChangesNothing() {
    m_ground->open({});
    m_ground->press(u"imgNew"_s);
    QCOMPARE(m_ground->names(), u"required required"_s);
    QCOMPARE(m_ground->lineText(u"Text12"_s), QString());
    // New is not pending: Delete asks as it does without it.
    m_ground->answerDelete(Answer::No);
}

void AddressEditingTest::newPutsTheFirstTextsIntoTheFields() {
    AddressRecord contact = named(u"a"_s, u"1"_s);
    for (const auto field : AddressFields)
        contact.*field = u"x"_s;
    contact.Picture = m_ground->picture(u"a.png"_s);
    m_ground->open({contact});
    m_ground->press(u"imgNew"_s);
    AddressRecord expected = named(u"Required"_s, u"Required"_s);
    expected.Web = u"http://"_s;
    QVERIFY(m_ground->panel().shownContact() == expected);
    QVERIFY(m_ground->showsDefaultPicture());
    QCOMPARE(m_ground->inMemory(), QStringList{u"x x"_s});
}

void AddressEditingTest::newDropsTheChosenPictureAndTheSearch() {
    m_ground->open(threeContacts());
    m_ground->choosePicture(m_ground->picture(u"a.png"_s));
    AddressGround::choose(m_ground->combo(u"Combo2"_s), u"First"_s);
    QVERIFY(!m_ground->searchIsIdle());
    m_ground->press(u"imgNew"_s);
    QCOMPARE(m_ground->book.PicPath, QString());
    QVERIFY(m_ground->searchIsIdle());
}

void AddressEditingTest::addWantsBothNames() {
    m_ground->open(threeContacts());
    m_ground->typeNames({}, {});
    m_ground->pressAndRead(u"imgAdd"_s, FirstRequired, Information);
    m_ground->typeNames(u"d"_s, {});
    m_ground->pressAndRead(u"imgAdd"_s, SecondRequired, Information);
    QCOMPARE(m_ground->book.AddressCount, 3);
}

void AddressEditingTest::addPutsTheRecordAtTheEndAndWritesOnce() {
    m_ground->open(threeContacts());
    m_ground->press(u"imgNew"_s);
    m_ground->typeNames(u"Abe"_s, u"0"_s);
    const FolderWatch watch(m_ground->folder.path());
    m_ground->add();
    QCOMPARE(watch.renamedTo(), QStringList{u"address1.dat"_s});
    QCOMPARE(m_ground->inMemory(), (QStringList{u"a 1"_s, u"b 2"_s, u"c 3"_s, u"Abe 0"_s}));
    QCOMPARE(m_ground->inFile(), m_ground->inMemory());
    // The new record is the current one.
    m_ground->previous();
    QCOMPARE(m_ground->names(), u"c 3"_s);
}

void AddressEditingTest::addStoresEveryField() {
    AddressRecord contact;
    int number = 0;
    for (const auto field : AddressFields)
        contact.*field = u"field %1"_s.arg(++number);
    contact.Address = u"one\r\ntwo"_s;
    contact.Notes = u"\r\nthree\r\n"_s;
    contact.Picture = QString();
    m_ground->open({contact});
    m_ground->line(u"Text1"_s).setText(u"another"_s);
    m_ground->add();
    contact.First = u"another"_s;
    QVERIFY(m_ground->book.record(1) == contact);
    const QByteArray lines = addressFileBytes(std::vector{contact});
    QVERIFY(m_ground->file().endsWith(lines));
    QVERIFY(lines.startsWith("\"another\"\r\n\"field 2\"\r\n\"field 3\"\r\n\"one\r\ntwo\"\r\n"));
    QVERIFY(lines.endsWith("\"field 13\"\r\n\"\r\nthree\r\n\"\r\n\"\"\r\n"));
}

void AddressEditingTest::addInAnEmptyBookStoresTheDesignTextsThatAreLeft() {
    m_ground->open({});
    m_ground->line(u"Text1"_s).setText(u"Ann"_s);
    m_ground->add();
    QCOMPARE(m_ground->file(),
             QByteArray("\"Ann\"\r\n\"required\"\r\n\"Friends\"\r\n\"\"\r\n\"Town\"\r\n\"Pin\"\r\n"
                        "\"District\"\r\n\"State\"\r\n\"Country\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
                        "\"\"\r\n\"\"\r\n\"\"\r\n"));
}

void AddressEditingTest::addKeepsWhatIsOnShowAndLeavesTheSearch() {
    m_ground->open(threeContacts());
    AddressGround::choose(m_ground->combo(u"Combo2"_s), u"Second"_s);
    m_ground->typeNames(u"d"_s, u"4"_s);
    m_ground->add();
    QCOMPARE(m_ground->names(), u"d 4"_s);
    QVERIFY(m_ground->searchIsIdle());
}

void AddressEditingTest::theNamesThatNewBeginsWithAreNotRejected() {
    m_ground->open(threeContacts());
    m_ground->press(u"imgNew"_s);
    m_ground->add();
    QCOMPARE(m_ground->inMemory().last(), u"Required Required"_s);
    QCOMPARE(m_ground->book.record(3).Web, u"http://"_s);
}

void AddressEditingTest::addRefusesNamesThatStandInDifferentRecords() {
    m_ground->open({named(u"Ann"_s, u"Kay"_s), named(u"Bob"_s, u"Lee"_s)});
    m_ground->typeNames(u"Ann"_s, u"Lee"_s);
    m_ground->pressAndRead(u"imgAdd"_s, alreadyThere(u"Ann"_s, u"Lee"_s), Information);
    QCOMPARE(m_ground->book.AddressCount, 2);
    QCOMPARE(m_ground->names(), u"Ann Lee"_s);
}

void AddressEditingTest::addTellsCapitalsApart() {
    m_ground->open({named(u"Ann"_s, u"Lee"_s)});
    m_ground->typeNames(u"ann"_s, u"Lee"_s);
    m_ground->add();
    QCOMPARE(m_ground->book.AddressCount, 2);
}

void AddressEditingTest::addRefusesOnlyWhereBothNamesStand() {
    m_ground->open({named(u"Ann"_s, u"Lee"_s)});
    m_ground->typeNames(u"Ann"_s, u"Kay"_s);
    m_ground->add();
    m_ground->typeNames(u"Bob"_s, u"Lee"_s);
    m_ground->add();
    QCOMPARE(m_ground->inMemory(), (QStringList{u"Ann Lee"_s, u"Ann Kay"_s, u"Bob Lee"_s}));
}

void AddressEditingTest::addAllowsNamesThatOnceStood() {
    m_ground->open(threeContacts());
    m_ground->last();
    m_ground->answerDelete(Answer::Yes);
    // What is deleted still stands behind the records that count.
    m_ground->typeNames(u"c"_s, u"3"_s);
    m_ground->add();
    QCOMPARE(m_ground->inMemory(), (QStringList{u"a 1"_s, u"b 2"_s, u"c 3"_s}));
}

void AddressEditingTest::namesInAnyFormStandInTheBoxAsTheyAre() {
    const QString odd = u"<b>%1</b> %2 & "_s;
    m_ground->open({named(odd, u"%1"_s)});
    m_ground->pressAndRead(u"imgAdd"_s, alreadyThere(odd, u"%1"_s), Information);
}

void AddressEditingTest::addStoresTheChosenPictureOnce() {
    m_ground->open(threeContacts());
    const QString path = m_ground->picture(u"a.png"_s);
    m_ground->choosePicture(path);
    m_ground->typeNames(u"d"_s, u"4"_s);
    m_ground->add();
    QCOMPARE(m_ground->book.record(3).Picture, path);
    QCOMPARE(m_ground->book.PicPath, QString());
    QCOMPARE(m_ground->lineText(u"txtppath"_s), QString());
    QVERIFY(!m_ground->showsDefaultPicture());
    m_ground->typeNames(u"e"_s, u"5"_s);
    m_ground->add();
    QCOMPARE(m_ground->book.record(4).Picture, QString());
}

void AddressEditingTest::addThatCannotWriteSaysAddedAndKeepsTheOldFile() {
    m_ground->open(threeContacts());
    const QByteArray before = m_ground->file();
    {
        const SmallDisk disk(20);
        m_ground->press(u"imgNew"_s);
        m_ground->typeNames(u"d"_s, u"4"_s);
        m_ground->add();
    }
    QCOMPARE(m_ground->file(), before);
    QCOMPARE(m_ground->folder.names(), QStringList{u"address1.dat"_s});
    QCOMPARE(m_ground->book.AddressCount, 4);
    // New is no longer pending, and the next write has everything.
    m_ground->save();
    QCOMPARE(m_ground->inFile(), (QStringList{u"a 1"_s, u"b 2"_s, u"c 3"_s, u"d 4"_s}));
}

void AddressEditingTest::aFullBookTakesNoMore() {
    constexpr int Most = 32767;
    m_ground->open({});
    m_ground->book.AddressRecords.resize(Most + 1);
    m_ground->book.AddressCount = Most;
    for (int i = 0; i < Most; ++i)
        m_ground->book.record(i) = named(u"a"_s, QString::number(i));
    m_ground->typeNames(u"b"_s, u"0"_s);
    m_ground->add();
    QCOMPARE(m_ground->book.AddressCount, Most);
    QCOMPARE(m_ground->inFile().size(), Most);
    QCOMPARE(m_ground->inFile().last(), u"a 32766"_s);
    // It can still be gone through, changed and made smaller.
    m_ground->next();
    QCOMPARE(m_ground->names(), u"a 0"_s);
    m_ground->previous();
    QCOMPARE(m_ground->names(), u"a 32766"_s);
    m_ground->first();
    m_ground->save();
    QCOMPARE(m_ground->book.AddressCount, Most);
    QCOMPARE(m_ground->inFile().last(), u"a 0"_s);
    m_ground->answerDelete(Answer::Yes);
    QCOMPARE(m_ground->book.AddressCount, Most - 1);
    QCOMPARE(m_ground->names(), u"a 1"_s);
}

void AddressEditingTest::saveWantsBothNames() {
    m_ground->open(threeContacts());
    m_ground->typeNames({}, {});
    m_ground->pressAndRead(u"imgSave"_s, FirstRequired, Information);
    m_ground->typeNames(u"d"_s, {});
    m_ground->pressAndRead(u"imgSave"_s, SecondRequired, Information);
    QCOMPARE(m_ground->inMemory(), (QStringList{u"a 1"_s, u"b 2"_s, u"c 3"_s}));
}

void AddressEditingTest::saveInAnEmptyBookRefuses() {
    m_ground->open({});
    m_ground->pressAndRead(u"imgSave"_s, AddFirst, Plain);
    QCOMPARE(m_ground->book.AddressCount, 0);
    QCOMPARE(m_ground->file(), QByteArray());
}

void AddressEditingTest::saveAfterNewRefusesThoughAnotherRecordIsOnShow() {
    m_ground->open(threeContacts());
    m_ground->press(u"imgNew"_s);
    m_ground->next();
    QCOMPARE(m_ground->names(), u"b 2"_s);
    m_ground->pressAndRead(u"imgSave"_s, AddFirst, Plain);
    QCOMPARE(m_ground->inMemory(), (QStringList{u"a 1"_s, u"b 2"_s, u"c 3"_s}));
}

void AddressEditingTest::saveMovesAnUnchangedRecordToTheEndAndTakesItsPicture() {
    std::vector<AddressRecord> contacts = threeContacts();
    contacts[0].Picture = m_ground->picture(u"a.png"_s);
    m_ground->open(contacts);
    QVERIFY(!m_ground->showsDefaultPicture());
    m_ground->save();
    QCOMPARE(m_ground->inMemory(), (QStringList{u"b 2"_s, u"c 3"_s, u"a 1"_s}));
    QCOMPARE(m_ground->inFile(), m_ground->inMemory());
    QCOMPARE(m_ground->book.record(2).Picture, QString());
    QVERIFY(m_ground->showsDefaultPicture());
}

void AddressEditingTest::saveKeepsAPictureThatWasJustChosen() {
    m_ground->open(threeContacts());
    const QString path = m_ground->picture(u"a.png"_s);
    m_ground->choosePicture(path);
    QCOMPARE(m_ground->lineText(u"txtppath"_s), path);
    m_ground->save();
    QCOMPARE(m_ground->book.record(2).Picture, path);
    QVERIFY(!m_ground->showsDefaultPicture());
    QCOMPARE(m_ground->lineText(u"txtppath"_s), QString());
    QCOMPARE(m_ground->book.PicPath, QString());
}

void AddressEditingTest::saveReplacesTheCurrentRecordAndWritesOnce() {
    m_ground->open(threeContacts());
    m_ground->next();
    m_ground->line(u"Text11"_s).setText(u"b@example.org"_s);
    AddressGround::choose(m_ground->combo(u"Combo2"_s), u"First"_s);
    const FolderWatch watch(m_ground->folder.path());
    m_ground->save();
    QCOMPARE(watch.renamedTo(), QStringList{u"address1.dat"_s});
    QCOMPARE(m_ground->inFile(), (QStringList{u"a 1"_s, u"c 3"_s, u"b 2"_s}));
    QCOMPARE(m_ground->book.record(2).Email, u"b@example.org"_s);
    QVERIFY(m_ground->searchIsIdle());
}

void AddressEditingTest::saveShowsTheSavedRecordAndGoesOnFromThere() {
    m_ground->open(threeContacts());
    m_ground->save();
    QCOMPARE(m_ground->names(), u"a 1"_s);
    m_ground->next();
    QCOMPARE(m_ground->names(), u"b 2"_s);
    m_ground->previous();
    m_ground->previous();
    QCOMPARE(m_ground->names(), u"c 3"_s);
}

void AddressEditingTest::saveOfTheOnlyRecordKeepsIt() {
    m_ground->open({named(u"a"_s, u"1"_s)});
    m_ground->typeNames(u"b"_s, u"2"_s);
    m_ground->save();
    QCOMPARE(m_ground->inFile(), QStringList{u"b 2"_s});
    QCOMPARE(m_ground->names(), u"b 2"_s);
    m_ground->next();
    QCOMPARE(m_ground->names(), u"b 2"_s);
}

void AddressEditingTest::saveTestsForNoDuplicate() {
    m_ground->open(threeContacts());
    m_ground->typeNames(u"b"_s, u"2"_s);
    m_ground->save();
    QCOMPARE(m_ground->inFile(), (QStringList{u"b 2"_s, u"c 3"_s, u"b 2"_s}));
}

void AddressEditingTest::saveAfterASearchReplacesTheRecordAtTheIndex() {
    m_ground->open(threeContacts());
    m_ground->find(u"First"_s, u"c"_s);
    QCOMPARE(m_ground->names(), u"c 3"_s);
    m_ground->typeNames(u"changed"_s, u"3"_s);
    m_ground->save();
    QCOMPARE(m_ground->inMemory(), (QStringList{u"b 2"_s, u"c 3"_s, u"changed 3"_s}));
}

void AddressEditingTest::saveAfterASortReplacesTheRecordAtTheIndex() {
    m_ground->open(threeContacts());
    m_ground->save();
    QCOMPARE(m_ground->inMemory(), (QStringList{u"b 2"_s, u"c 3"_s, u"a 1"_s}));
    m_ground->pressAndRead(u"imgSort"_s, u"Items sorted by First Name."_s, Information);
    QCOMPARE(m_ground->names(), u"a 1"_s);
    m_ground->save();
    QCOMPARE(m_ground->inMemory(), (QStringList{u"a 1"_s, u"b 2"_s, u"a 1"_s}));
}

void AddressEditingTest::saveThatCannotWriteSaysSavedAndKeepsTheOldFile() {
    m_ground->open(threeContacts());
    const QByteArray before = m_ground->file();
    QFile::setPermissions(m_ground->folder.path(),
                          QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    {
        const WithoutRoot user;
        m_ground->typeNames(u"d"_s, u"4"_s);
        m_ground->save();
    }
    m_ground->folder.setWritable(true);
    QCOMPARE(m_ground->file(), before);
    QCOMPARE(m_ground->inMemory(), (QStringList{u"b 2"_s, u"c 3"_s, u"d 4"_s}));
}

void AddressEditingTest::theNextLoadSortsASavedRecordBack() {
    m_ground->open(threeContacts());
    m_ground->save();
    QCOMPARE(m_ground->inFile(), (QStringList{u"b 2"_s, u"c 3"_s, u"a 1"_s}));
    m_ground->startAgain();
    m_ground->panel();
    QCOMPARE(m_ground->inMemory(), (QStringList{u"a 1"_s, u"b 2"_s, u"c 3"_s}));
}

void AddressEditingTest::deleteOfTheLastRecordRefuses() {
    m_ground->open({named(u"a"_s, u"1"_s)});
    const QString words = u"Can't remove last item. Modify it and save changes."_s;
    m_ground->pressAndRead(u"imgDel"_s, words, Exclamation);
    m_ground->press(u"imgNew"_s);
    m_ground->pressAndRead(u"imgDel"_s, words, Exclamation);
    QCOMPARE(m_ground->inFile(), QStringList{u"a 1"_s});
}

void AddressEditingTest::deleteRightAfterNewSaysThatItIsNotAdded() {
    m_ground->open(threeContacts());
    m_ground->press(u"imgNew"_s);
    m_ground->pressAndRead(u"imgDel"_s, u"Item not added yet."_s, Plain);
    QCOMPARE(m_ground->book.AddressCount, 3);
}

void AddressEditingTest::deleteAsksFirst() {
    m_ground->open(threeContacts());
    m_ground->answerDelete(Answer::No);
    QCOMPARE(m_ground->inFile(), (QStringList{u"a 1"_s, u"b 2"_s, u"c 3"_s}));
    QCOMPARE(m_ground->names(), u"a 1"_s);
}

void AddressEditingTest::deleteShowsTheRecordThatMovedUp() {
    std::vector<AddressRecord> contacts = threeContacts();
    contacts[1].Picture = m_ground->picture(u"b.png"_s);
    m_ground->open(contacts);
    m_ground->answerDelete(Answer::Yes);
    QCOMPARE(m_ground->names(), u"b 2"_s);
    QVERIFY(!m_ground->showsDefaultPicture());
    QCOMPARE(m_ground->inMemory(), (QStringList{u"b 2"_s, u"c 3"_s}));
    m_ground->next();
    QCOMPARE(m_ground->names(), u"c 3"_s);
}

void AddressEditingTest::deleteAtTheLastIndexShowsTheFirst() {
    m_ground->open(threeContacts());
    m_ground->last();
    m_ground->answerDelete(Answer::Yes);
    QCOMPARE(m_ground->names(), u"a 1"_s);
    m_ground->next();
    QCOMPARE(m_ground->names(), u"b 2"_s);
}

void AddressEditingTest::deleteWritesTwiceAndLeavesNoRecordTwice() {
    m_ground->open(threeContacts());
    const FolderWatch watch(m_ground->folder.path());
    m_ground->answerDelete(Answer::Yes);
    QCOMPARE(watch.renamedTo(), (QStringList{u"address1.dat"_s, u"address1.dat"_s}));
    QCOMPARE(m_ground->inFile(), (QStringList{u"b 2"_s, u"c 3"_s}));
}

void AddressEditingTest::deleteInAnEmptyBookEmptiesTheFieldsAndWritesNothing() {
    m_ground->open({});
    m_ground->typeNames(u"a"_s, u"1"_s);
    m_ground->book.PicPath = u"/p.png"_s;
    AddressGround::choose(m_ground->combo(u"Combo2"_s), u"First"_s);
    const FolderWatch watch(m_ground->folder.path());
    m_ground->answerDelete(Answer::Yes);
    QVERIFY(m_ground->panel().shownContact() == AddressRecord());
    QCOMPARE(m_ground->book.AddressCount, 0);
    QCOMPARE(m_ground->book.PicPath, QString());
    QCOMPARE(watch.renamedTo(), QStringList());
    // The operation ended there.
    QVERIFY(!m_ground->searchIsIdle());
}

void AddressEditingTest::deleteThatCannotWriteEndsBeforeTheCount() {
    m_ground->open(threeContacts());
    const QByteArray before = m_ground->file();
    {
        const SmallDisk disk(20);
        m_ground->answerDelete(Answer::Yes);
    }
    QCOMPARE(m_ground->file(), before);
    QCOMPARE(m_ground->inMemory(), (QStringList{u"b 2"_s, u"c 3"_s, u"c 3"_s}));
    QCOMPARE(m_ground->names(), u"a 1"_s);
}

void AddressEditingTest::deleteLeavesTheSearchAndTheChosenPicture() {
    m_ground->open(threeContacts());
    AddressGround::choose(m_ground->combo(u"Combo2"_s), u"First"_s);
    m_ground->choosePicture(m_ground->picture(u"a.png"_s));
    m_ground->answerDelete(Answer::Yes);
    QVERIFY(m_ground->searchIsIdle());
    QCOMPARE(m_ground->book.PicPath, QString());
}

void AddressEditingTest::newStaysPendingUntilAnAdd() {
    m_ground->open(threeContacts());
    m_ground->press(u"imgNew"_s);
    m_ground->typeNames(u"b"_s, u"3"_s);
    m_ground->pressAndRead(u"imgAdd"_s, alreadyThere(u"b"_s, u"3"_s), Information);
    m_ground->pressAndRead(u"imgDel"_s, u"Item not added yet."_s, Plain);
    m_ground->typeNames(u"d"_s, u"4"_s);
    m_ground->add();
    m_ground->save();
    m_ground->answerDelete(Answer::No);
}

void AddressEditingTest::aReloadEndsNew() {
    m_ground->open(threeContacts());
    m_ground->press(u"imgNew"_s);
    m_ground->startAgain();
    m_ground->panel();
    m_ground->save();
}

void AddressEditingTest::aPictureIsAskedForAsAnImage() {
    m_ground->open(threeContacts());
    m_ground->choosePicture(std::nullopt);
    const FileRequest& request = m_ground->dialogs.opened.constLast();
    QCOMPARE(request.filter, u"Images (*.bmp;*.jpg;*.jpeg;*.gif;*.wmf)|"
                             "*.bmp;*.jpg;*.jpeg;*.gif;*.wmf|All Files (*.*)|*.*"_s);
    QCOMPARE(request.title, u"Insert Image"_s);
    QCOMPARE(request.defaultExtension, u"*.bmp"_s);
    QCOMPARE(m_ground->book.PicPath, QString());
    QVERIFY(m_ground->showsDefaultPicture());
}

void AddressEditingTest::aChosenPictureIsShownAndNoted() {
    m_ground->open(threeContacts());
    const QString path = m_ground->picture(u"a.png"_s);
    m_ground->choosePicture(path);
    QCOMPARE(m_ground->book.PicPath, path);
    QCOMPARE(m_ground->lineText(u"txtppath"_s), path);
    QVERIFY(!m_ground->showsDefaultPicture());
    // The record has it only once it is saved, and another record on show drops it.
    QCOMPARE(m_ground->book.record(0).Picture, QString());
    m_ground->next();
    QCOMPARE(m_ground->book.PicPath, QString());
    QVERIFY(m_ground->showsDefaultPicture());
}

void AddressEditingTest::aPictureThatIsNotThereGivesTheDefault() {
    m_ground->open(threeContacts());
    m_ground->choosePicture(m_ground->picture(u"a.png"_s));
    const QString missing = m_ground->folder.file(u"missing.png"_s);
    m_ground->choosePicture(missing);
    QVERIFY(m_ground->showsDefaultPicture());
    QCOMPARE(m_ground->book.PicPath, missing);
}

void AddressEditingTest::aPictureThatCannotBeReadLeavesWhatIsShown() {
    m_ground->open(threeContacts());
    m_ground->choosePicture(m_ground->picture(u"a.png"_s));
    const PictureSource before = m_ground->image(u"imgAdresa1"_s).Picture();
    const QString broken = m_ground->folder.write(u"broken.png"_s, "no picture");
    m_ground->choosePicture(broken);
    QVERIFY(m_ground->image(u"imgAdresa1"_s).Picture() == before);
    QCOMPARE(m_ground->book.PicPath, broken);
}

void AddressEditingTest::aCancelledDialogTakesTheFileOfTheOneBefore() {
    m_ground->open(threeContacts());
    const QString path = m_ground->picture(u"a.png"_s);
    m_ground->choosePicture(path);
    m_ground->next();
    m_ground->choosePicture(std::nullopt);
    QCOMPARE(m_ground->book.PicPath, path);
    QVERIFY(!m_ground->showsDefaultPicture());
}

void AddressEditingTest::aPictureDialogBehindABackupIsNoFailureWhenCancelled() {
    m_ground->open(threeContacts());
    m_ground->choosePicture(m_ground->picture(u"a.png"_s));
    m_ground->dialogs.answerSave(std::nullopt);
    m_ground->press(u"imgBack"_s);
    // The backup has emptied the name, and so no picture is left.
    m_ground->choosePicture(std::nullopt);
    QCOMPARE(m_ground->book.PicPath, QString());
    QVERIFY(m_ground->showsDefaultPicture());
}

ORVALIS_TEST_MAIN_WITH(Application, AddressEditingTest)
#include "address_editing_test.moc"
