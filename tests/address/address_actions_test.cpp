// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// What the Address panel hands to other programs and other files.
#include "address/address_ground.h"

#include "runtime/failure.h"
#include "support/folder_watch.h"
#include "support/pointer_events.h"
#include "support/small_disk.h"

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int Information = 64;
const QString Dialer = u"DIALER.EXE"_s;

std::vector<AddressRecord> threeContacts() {
    return {named(u"a"_s, u"1"_s), named(u"b"_s, u"2"_s), named(u"c"_s, u"3"_s)};
}

QString replaceQuestion(const QString& path) {
    return u"The File "_s + path + u" already exists.\nDo you want to replace it?"_s;
}

} // namespace

class AddressActionsTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_ground.reset(); }

    void mailWithoutAnAddressSaysSo();
    void mailOpensTheAddressAsItStands_data();
    void mailOpensTheAddressAsItStands();
    void webWithoutAnAddressShowsTheForm_data();
    void webWithoutAnAddressShowsTheForm();
    void webOpensTheAddressAsItStands_data();
    void webOpensTheAddressAsItStands();
    void whatWasTypedIsOpenedThoughItIsNotSaved();
    void anOpeningThatFailsIsSilent();
    void theDialerIsAlwaysTriedFirst();
    void aStoredPathIsTriedBehindTheDialer();
    void aMissingDialerIsAskedFor();
    void aCancelledQuestionEndsThere();
    void aLocatedDialerIsStartedAndKept();
    void aCancelledSearchForTheDialerFails();
    void aStoredPathThatIsGoneFailsAndStaysStored();
    void nadjigaGivesThePathAndKeepsIt();
    void theNumberIsNotPassed();
    void actionsChangeNeitherBookNorFile();
    void aBackupIsTheBookInItsMemoryOrder();
    void theBackupDialogIsSetUp();
    void aCancelledBackupMakesNoFile();
    void aBackupOfAnEmptyBookIsAnEmptyFile();
    void theFilesOfTheBookAreRefusedAgainAndAgain();
    void anotherSpellingOfTheBooksNameIsNotRefused();
    void anExistingFileIsReplacedOnlyAfterAQuestion();
    void aRefusedReplacementAsksOnceMoreAndThenWritesAllTheSame();
    void aRefusedReplacementEndsWhenTheSecondDialogIsCancelled();
    void aBackupThatCannotBeWrittenIsSilent();
    void aBackupSaysNothing();
    void aBackupCanTakeTheBooksPlace();
    void funcSaveAppendsABlock();
    void twoCallsOfFuncSaveLeaveTwoBlocks();
    void funcSaveKeepsWhatStoodInTheFile();
    void funcSaveWritesInTheAnsiPage();
    void funcSaveThatCannotWriteFails();
    void thePrintPictureOpensItsMenuWithTheLeftButtonAlone();
    void fillPrintPutsTheContactOnAnEmptyPage();

private:
    std::unique_ptr<AddressGround> m_ground;
};

void AddressActionsTest::init() {
    m_ground = std::make_unique<AddressGround>();
    m_ground->open(threeContacts());
}

void AddressActionsTest::mailWithoutAnAddressSaysSo() {
    m_ground->pressAndRead(u"imgEmail"_s, u"Please, enter e-mail address."_s, Information);
    QCOMPARE(m_ground->shell.opened, QStringList());
}

void AddressActionsTest::mailOpensTheAddressAsItStands_data() {
    QTest::addColumn<QString>("address");
    QTest::newRow("plain") << u"ann@example.org"_s;
    QTest::newRow("blanks") << u" ann lee @ example.org "_s;
    QTest::newRow("a command") << u"a@b.org; touch x | $(touch x) `touch x` > x"_s;
    QTest::newRow("an option") << u"--help"_s;
    QTest::newRow("quotes") << u"\"a\" 'b'"_s;
    QTest::newRow("a scheme of its own") << u"http://example.org"_s;
}

void AddressActionsTest::mailOpensTheAddressAsItStands() {
    QFETCH(QString, address);
    m_ground->line(u"Text11"_s).setText(address);
    m_ground->press(u"imgEmail"_s);
    QCOMPARE(m_ground->shell.opened, QStringList{u"mailto:"_s + address});
    QCOMPARE(m_ground->shell.started, QStringList());
}

void AddressActionsTest::webWithoutAnAddressShowsTheForm_data() {
    QTest::addColumn<QString>("address");
    QTest::newRow("empty") << QString();
    QTest::newRow("the beginning of one") << u"http://"_s;
}

void AddressActionsTest::webWithoutAnAddressShowsTheForm() {
    QFETCH(QString, address);
    m_ground->line(u"Text12"_s).setText(address);
    m_ground->boxes.answer(Answer::Ok);
    m_ground->press(u"imgNet"_s);
    const auto box = m_ground->boxes.asked.constLast();
    const QStringList lines = box.text.split(u'\n');
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines[0], u"Please, enter web address in a form:"_s);
    QVERIFY(lines[1].startsWith(u"http://"_s) && lines[1].endsWith(u"  or"_s));
    QCOMPARE(u"http://"_s + lines[2] + u"  or"_s, lines[1]);
    QCOMPARE(box.flags, Information);
    QCOMPARE(box.title, QString());
    QCOMPARE(m_ground->shell.opened, QStringList());
}

void AddressActionsTest::webOpensTheAddressAsItStands_data() {
    QTest::addColumn<QString>("address");
    for (const QString& address :
         {u"http://www.example.org"_s, u"www.example.org"_s, u"HTTP://"_s, u" "_s, u"https://"_s,
          u"x; touch y"_s, u"--version"_s, u"mailto:a@b.org"_s})
        QTest::newRow(qPrintable(address)) << address;
}

void AddressActionsTest::webOpensTheAddressAsItStands() {
    QFETCH(QString, address);
    m_ground->line(u"Text12"_s).setText(address);
    m_ground->press(u"imgNet"_s);
    QCOMPARE(m_ground->shell.opened, QStringList{address});
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void AddressActionsTest::whatWasTypedIsOpenedThoughItIsNotSaved() {
    m_ground->line(u"Text11"_s).setText(u"typed"_s);
    m_ground->press(u"imgEmail"_s);
    QCOMPARE(m_ground->shell.opened, QStringList{u"mailto:typed"_s});
    QCOMPARE(m_ground->book.record(0).Email, QString());
}

void AddressActionsTest::anOpeningThatFailsIsSilent() {
    m_ground->shell.opens = false;
    m_ground->line(u"Text11"_s).setText(u"a@b.org"_s);
    m_ground->line(u"Text12"_s).setText(u"b.org"_s);
    m_ground->press(u"imgEmail"_s);
    m_ground->press(u"imgNet"_s);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void AddressActionsTest::theDialerIsAlwaysTriedFirst() {
    m_ground->setSetting(u"Telefon"_s, u"Puta"_s, u"/bin/dial"_s);
    m_ground->shell.programs = {Dialer, u"/bin/dial"_s};
    m_ground->press(u"imgPhone"_s);
    QCOMPARE(m_ground->shell.started, QStringList{Dialer});
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void AddressActionsTest::aStoredPathIsTriedBehindTheDialer() {
    m_ground->setSetting(u"Telefon"_s, u"Puta"_s, u"/bin/dial"_s);
    m_ground->shell.programs = {u"/bin/dial"_s};
    m_ground->press(u"imgPhone"_s);
    QCOMPARE(m_ground->shell.started, (QStringList{Dialer, u"/bin/dial"_s}));
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void AddressActionsTest::aMissingDialerIsAskedFor() {
    m_ground->shell.programs = {u"/bin/dial"_s};
    m_ground->boxes.expect(u"Locate Windows Phone Dialer"_s, 33, Answer::Ok);
    m_ground->dialogs.answerOpen(u"/bin/dial"_s);
    m_ground->press(u"imgPhone"_s);
    const FileRequest& request = m_ground->dialogs.opened.constLast();
    QCOMPARE(request.filter, u"Programs (*.exe)|*.exe"_s);
    QCOMPARE(request.fileName, QString());
    QCOMPARE(request.directory, u"C:\\Program Files\\Windows NT"_s);
}

void AddressActionsTest::aCancelledQuestionEndsThere() {
    m_ground->boxes.expect(u"Locate Windows Phone Dialer"_s, 33, Answer::Cancel);
    m_ground->press(u"imgPhone"_s);
    QCOMPARE(m_ground->shell.started, QStringList{Dialer});
    QVERIFY(m_ground->dialogs.opened.isEmpty());
}

void AddressActionsTest::aLocatedDialerIsStartedAndKept() {
    m_ground->shell.programs = {u"/bin/dial"_s};
    m_ground->boxes.expect(u"Locate Windows Phone Dialer"_s, 33, Answer::Ok);
    m_ground->dialogs.answerOpen(u"/bin/dial"_s);
    m_ground->press(u"imgPhone"_s);
    QCOMPARE(m_ground->shell.started, (QStringList{Dialer, u"/bin/dial"_s}));
    QCOMPARE(m_ground->settings.setting(u"Telefon"_s, u"Puta"_s, u""_s).toString(), u"/bin/dial"_s);
    m_ground->press(u"imgPhone"_s);
    QCOMPARE(m_ground->shell.started.size(), 4);
    QCOMPARE(m_ground->boxes.asked.size(), 1);
}

void AddressActionsTest::aCancelledSearchForTheDialerFails() {
    m_ground->boxes.expect(u"Locate Windows Phone Dialer"_s, 33, Answer::Ok);
    m_ground->dialogs.answerOpen(std::nullopt);
    const auto failure = firstFailure([this] { m_ground->press(u"imgPhone"_s); });
    QVERIFY(failure);
    QCOMPARE(failure->number(), ErrorNumber::InvalidProcedureCall);
    QCOMPARE(m_ground->shell.started, (QStringList{Dialer, QString()}));
}

void AddressActionsTest::aStoredPathThatIsGoneFailsAndStaysStored() {
    m_ground->setSetting(u"Telefon"_s, u"Puta"_s, u"/bin/gone"_s);
    const auto failure = firstFailure([this] { m_ground->press(u"imgPhone"_s); });
    QVERIFY(failure);
    QCOMPARE(failure->number(), ErrorNumber::FileNotFound);
    QCOMPARE(m_ground->settings.setting(u"Telefon"_s, u"Puta"_s, u""_s).toString(), u"/bin/gone"_s);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void AddressActionsTest::nadjigaGivesThePathAndKeepsIt() {
    m_ground->dialogs.answerOpen(u"/bin/dial"_s);
    QCOMPARE(m_ground->panel().Nadjiga(), u"/bin/dial"_s);
    QCOMPARE(m_ground->settings.setting(u"Telefon"_s, u"Puta"_s, u""_s).toString(), u"/bin/dial"_s);
    m_ground->dialogs.answerOpen(std::nullopt);
    QCOMPARE(m_ground->panel().Nadjiga(), QString());
    QCOMPARE(m_ground->settings.setting(u"Telefon"_s, u"Puta"_s, u""_s).toString(), u"/bin/dial"_s);
}

void AddressActionsTest::theNumberIsNotPassed() {
    m_ground->shell.programs = {Dialer};
    m_ground->line(u"Text9"_s).setText(u"0123; touch x"_s);
    m_ground->press(u"imgPhone"_s);
    QCOMPARE(m_ground->shell.started, QStringList{Dialer});
    QCOMPARE(m_ground->shell.opened, QStringList());
}

void AddressActionsTest::actionsChangeNeitherBookNorFile() {
    const QByteArray before = m_ground->file();
    m_ground->shell.programs = {Dialer};
    m_ground->book.PicPath = u"/p.png"_s;
    m_ground->line(u"Text11"_s).setText(u"a"_s);
    m_ground->line(u"Text12"_s).setText(u"b"_s);
    const AddressRecord shown = m_ground->panel().shownContact();
    for (const QString& button : {u"imgEmail"_s, u"imgNet"_s, u"imgPhone"_s})
        m_ground->press(button);
    QCOMPARE(m_ground->file(), before);
    QVERIFY(m_ground->panel().shownContact() == shown);
    QCOMPARE(m_ground->book.PicPath, u"/p.png"_s);
    QCOMPARE(m_ground->inMemory(), (QStringList{u"a 1"_s, u"b 2"_s, u"c 3"_s}));
}

void AddressActionsTest::aBackupIsTheBookInItsMemoryOrder() {
    m_ground->save();
    m_ground->typeNames(u"typed"_s, u"4"_s);
    const QByteArray book = m_ground->file();
    m_ground->dialogs.answerSave(m_ground->folder.file(u"backup.dat"_s));
    m_ground->press(u"imgBack"_s);
    QCOMPARE(m_ground->folder.read(u"backup.dat"_s), addressFileBytes(m_ground->book.records()));
    QCOMPARE(m_ground->folder.read(u"backup.dat"_s), book);
    QVERIFY(book.startsWith("\"b\"\r\n\"2\"\r\n"));
}

void AddressActionsTest::theBackupDialogIsSetUp() {
    m_ground->choosePicture(m_ground->picture(u"a.png"_s));
    m_ground->dialogs.answerSave(std::nullopt);
    m_ground->press(u"imgBack"_s);
    const FileRequest& request = m_ground->dialogs.saved.constLast();
    QCOMPARE(request.filter, u"Address data (*.dat) |*.dat"_s);
    QCOMPARE(request.fileName, QString());
    QCOMPARE(request.directory, m_ground->app.Path());
    QCOMPARE(request.title, u"Backup data"_s);
    QCOMPARE(request.defaultExtension, QString());
}

void AddressActionsTest::aCancelledBackupMakesNoFile() {
    const QStringList before = m_ground->folder.names();
    m_ground->dialogs.answerSave(std::nullopt);
    m_ground->press(u"imgBack"_s);
    QCOMPARE(m_ground->folder.names(), before);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void AddressActionsTest::aBackupOfAnEmptyBookIsAnEmptyFile() {
    m_ground->startAgain();
    m_ground->open({});
    m_ground->dialogs.answerSave(m_ground->folder.file(u"backup.dat"_s));
    m_ground->press(u"imgBack"_s);
    QVERIFY(m_ground->folder.names().contains(u"backup.dat"_s));
    QCOMPARE(m_ground->folder.read(u"backup.dat"_s), QByteArray());
}

void AddressActionsTest::theFilesOfTheBookAreRefusedAgainAndAgain() {
    const QString words = u"Can't overwrite files needed for Orvalis. Choose a different name for "
                          "backup file."_s;
    const FolderWatch watch(m_ground->folder.path());
    for (const QString& name : {u"address1.dat"_s, u"address1tmp.dat"_s, u"address1.dat"_s}) {
        m_ground->dialogs.answerSave(m_ground->folder.file(name));
        m_ground->boxes.expect(words, 16, Answer::Ok, u"Warning"_s);
    }
    m_ground->dialogs.answerSave(std::nullopt);
    m_ground->press(u"imgBack"_s);
    QCOMPARE(m_ground->dialogs.saved.size(), 4);
    for (const FileRequest& request : std::as_const(m_ground->dialogs.saved)) {
        QCOMPARE(request.fileName, QString());
        QCOMPARE(request.title, u"Backup data"_s);
    }
    QCOMPARE(watch.renamedTo(), QStringList());
}

void AddressActionsTest::anotherSpellingOfTheBooksNameIsNotRefused() {
    m_ground->dialogs.answerSave(m_ground->folder.file(u"ADDRESS1.DAT"_s));
    m_ground->press(u"imgBack"_s);
    QVERIFY(m_ground->boxes.asked.isEmpty());
    QVERIFY(m_ground->folder.names().contains(u"ADDRESS1.DAT"_s));
}

void AddressActionsTest::anExistingFileIsReplacedOnlyAfterAQuestion() {
    const QString path = m_ground->folder.write(u"backup.dat"_s, "old");
    m_ground->dialogs.answerSave(path);
    m_ground->boxes.expect(replaceQuestion(path), 1, Answer::Ok);
    m_ground->press(u"imgBack"_s);
    QCOMPARE(m_ground->folder.read(u"backup.dat"_s), m_ground->file());
}

void AddressActionsTest::aRefusedReplacementAsksOnceMoreAndThenWritesAllTheSame() {
    const QString path = m_ground->folder.write(u"backup.dat"_s, "old");
    const QString other = m_ground->folder.file(u"other.dat"_s);
    m_ground->dialogs.answerSave(path);
    m_ground->boxes.expect(replaceQuestion(path), 1, Answer::Cancel);
    m_ground->dialogs.answerSave(other);
    m_ground->press(u"imgBack"_s);
    QCOMPARE(m_ground->folder.read(u"backup.dat"_s), m_ground->file());
    QVERIFY(!m_ground->folder.names().contains(u"other.dat"_s));
    QCOMPARE(m_ground->dialogs.saved.size(), 2);
}

void AddressActionsTest::aRefusedReplacementEndsWhenTheSecondDialogIsCancelled() {
    const QString path = m_ground->folder.write(u"backup.dat"_s, "old");
    m_ground->dialogs.answerSave(path);
    m_ground->boxes.expect(replaceQuestion(path), 1, Answer::Cancel);
    m_ground->dialogs.answerSave(std::nullopt);
    m_ground->press(u"imgBack"_s);
    QCOMPARE(m_ground->folder.read(u"backup.dat"_s), "old");
}

void AddressActionsTest::aBackupThatCannotBeWrittenIsSilent() {
    const QString path = m_ground->folder.write(u"backup.dat"_s, "old");
    m_ground->dialogs.answerSave(path);
    m_ground->boxes.expect(replaceQuestion(path), 1, Answer::Ok);
    {
        const SmallDisk disk(20);
        m_ground->press(u"imgBack"_s);
    }
    QCOMPARE(m_ground->folder.read(u"backup.dat"_s), "old");
    m_ground->dialogs.answerSave(m_ground->folder.file(u"missing/backup.dat"_s));
    m_ground->press(u"imgBack"_s);
    m_ground->dialogs.answerSave(m_ground->folder.path());
    m_ground->press(u"imgBack"_s);
    QCOMPARE(m_ground->boxes.asked.size(), 1);
}

void AddressActionsTest::aBackupSaysNothing() {
    m_ground->dialogs.answerSave(m_ground->folder.file(u"backup.dat"_s));
    m_ground->press(u"imgBack"_s);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void AddressActionsTest::aBackupCanTakeTheBooksPlace() {
    m_ground->dialogs.answerSave(m_ground->folder.file(u"backup.dat"_s));
    m_ground->press(u"imgBack"_s);
    m_ground->answerDelete(Answer::Yes);
    m_ground->startAgain();
    m_ground->folder.write(u"address1.dat"_s, m_ground->folder.read(u"backup.dat"_s));
    m_ground->panel();
    QCOMPARE(m_ground->inMemory(), (QStringList{u"a 1"_s, u"b 2"_s, u"c 3"_s}));
}

void AddressActionsTest::funcSaveAppendsABlock() {
    AddressRecord contact;
    int number = 0;
    for (const auto field : AddressFields)
        contact.*field = u"%1"_s.arg(++number);
    contact.Notes = u"one\r\ntwo"_s;
    m_ground->startAgain();
    m_ground->open({contact});
    m_ground->line(u"Text1"_s).setText(u"typed"_s);
    m_ground->panel().funcSave();
    QCOMPARE(m_ground->folder.read(u"Address.txt"_s),
             QByteArray("\r\n First Name: typed\r\n Second name: 2\r\n Group: 3\r\n Address: 4\r\n"
                        " Phone: 10\r\n Fax: 11\r\n Email: 12\r\n URL: 13\r\n"
                        " Comments: one\r\ntwo\r\n _________________________________\r\n"));
}

void AddressActionsTest::twoCallsOfFuncSaveLeaveTwoBlocks() {
    m_ground->panel().funcSave();
    const QByteArray one = m_ground->folder.read(u"Address.txt"_s);
    m_ground->panel().funcSave();
    QCOMPARE(m_ground->folder.read(u"Address.txt"_s), one + one);
}

void AddressActionsTest::funcSaveKeepsWhatStoodInTheFile() {
    m_ground->folder.write(u"Address.txt"_s, "notes of mine \xff\xfe without an end");
    m_ground->panel().funcSave();
    QVERIFY(m_ground->folder.read(u"Address.txt"_s)
                .startsWith("notes of mine \xff\xfe without an end\r\n First Name: a\r\n"));
}

void AddressActionsTest::funcSaveWritesInTheAnsiPage() {
    m_ground->typeNames(u"Zoë €"_s, u"Ж"_s);
    m_ground->panel().funcSave();
    QVERIFY(m_ground->folder.read(u"Address.txt"_s)
                .startsWith("\r\n First Name: Zo\xeb \x80\r\n Second name: ?\r\n"));
}

void AddressActionsTest::funcSaveThatCannotWriteFails() {
    m_ground->folder.write(u"Address.txt"_s, "old");
    {
        const SmallDisk disk(20);
        QVERIFY_THROWS_EXCEPTION(RuntimeError, m_ground->panel().funcSave());
    }
    QCOMPARE(m_ground->folder.read(u"Address.txt"_s), "old");
}

void AddressActionsTest::thePrintPictureOpensItsMenuWithTheLeftButtonAlone() {
    QStringList menus;
    m_ground->program.windows.registerMaker<PopupMenus>(
        [&] { return std::make_unique<MenuLog>(menus); });
    m_ground->shown();
    Pointer pointer(m_ground->image(u"imgPrint"_s));
    pointer.press({5, 5}, Qt::RightButton);
    pointer.release({5, 5}, Qt::RightButton);
    QCOMPARE(menus, QStringList());
    pointer.press();
    QCOMPARE(menus, QStringList{u"mnustampa"_s});
    pointer.release();
}

void AddressActionsTest::fillPrintPutsTheContactOnAnEmptyPage() {
    m_ground->program.windows.registerMaker<PrintWindow>(
        [] { return std::make_unique<PlainWindow<PrintWindow>>(u"frmPrint"_s); });
    auto& window = m_ground->program.windows.get<PrintWindow>();
    RichTextBox& page = window.rtb();
    page.SetText(u"what stood there"_s);
    m_ground->line(u"Text11"_s).setText(u"a@b.org"_s);
    m_ground->shown();
    m_ground->panel().FillPrint();
    QCOMPARE(page.Text(),
             u"\r\nFirst Name \r\n     a\r\nSecond Name \r\n     1\r\nGroup \r\n     \r\n"
             "Address \r\n     \r\nPhone \r\n     \r\nFAX \r\n     \r\n"
             "Email \r\n     a@b.org\r\nURL \r\n     \r\nComments \r\n     \r\n"_s);
    const auto formatOf = [&page](const QString& words) {
        page.Find(words);
        return std::pair(page.SelBold().value(), page.SelColor().value());
    };
    QCOMPARE(formatOf(u"First Name "_s), std::pair(true, 0U));
    QCOMPARE(formatOf(u"     a"_s), std::pair(false, 0U));
    QCOMPARE(formatOf(u"Email "_s), std::pair(true, 0U));
    QCOMPARE(formatOf(u"a@b.org"_s), std::pair(false, 0xFF0000U));
    QCOMPARE(formatOf(u"Comments "_s), std::pair(true, 0U));
    QVERIFY(window.form().isVisible());
    m_ground->panel().FillPrint();
    QCOMPARE(page.Text().count(u"First Name "_s), 1);
}

ORVALIS_TEST_MAIN_WITH(Application, AddressActionsTest)
#include "address_actions_test.moc"
