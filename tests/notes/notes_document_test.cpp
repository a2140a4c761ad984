// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/notes_ground.h"

#include "notes/document_rules.h"
#include "runtime/failure.h"
#include "support/counted_memory.h"
#include "support/without_root.h"

#include <QDir>
#include <QFileInfo>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int YesNoExclamation = 52;
constexpr int OkCancelExclamation = 49;
constexpr qint64 Megabyte = qint64{1} << 20;
const QString OpenFilter = u"RTF (*.rtf)|*.rtf|Text (*.txt)|*.txt|All Files (*.*)|*.*"_s;
const QString SaveFilter = u"Notes (*.rtf)|*.rtf|Text (*.txt)|*.txt"_s;
const QByteArray Bold = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0\\fs20 plain \\b bold\\b0\\par}";

} // namespace

class NotesDocumentTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_ground.reset(); }

    // New
    void newEmptiesTheLeftPageAndLeavesTheRightOne();
    void newAsksWhenThereAreChangesAndAnythingButYesEndsIt();
    void newGoesOnAfterYes();
    void newAsksNothingAfterAChangeOfTheFormatOnly();
    void newForgetsThePath();
    void newKeepsFontAndSizeAtTheCaret();

    // Open
    void openShowsTheFileOnTheRightPageAndKeepsTheLeftOne();
    void openAsksNothingWhileTheLeftPageHasChanges();
    void openOffersItsFiltersAndNoName();
    void openReadsByTheLastLetter_data();
    void openReadsByTheLastLetter();
    void openOfAMissingFileSaysSo();
    void openOfAFolderSaysThatThereIsNoFile();
    void aCancelledOpenChangesNothing();
    void textUnderANameOfRichTextEndsSilently();
    void anUnreadableTextEmptiesTheRightPageAndKeepsItsTitle();
    void aFileThatVanishesIsASilentEnd();
    void aFileThatIsGoneWhenTheDialogClosesIsNotFound();
    void openTakesNulsAsTheyAre();
    void aFileThatIsTooLargeIsASilentEnd();
    void aTextOfTwoHundredMegabytesShowsItsBeginningAndIsKept();
    void aTextOfTwoHundredMegabytesUnderANameOfRichTextEndsSilently();

    // Edit
    void editCarriesTheRightPageOver();
    void editAsksWhenThereAreChanges();
    void editOfAnEmptyRightPageEmptiesTheLeftOne();

    // Save
    void aSaveAsRichTextKeepsThePagesAndSetsNoPath();
    void aNewDocumentSavedAsRichTextHasNoPath();
    void aSaveAsTextReloadsTheLeftPageAndEmptiesTheRightOne();
    void saveOffersItsFiltersAndNoName();
    void theFilesOfTheProgramAreRefusedAndTheDialogComesAgain();
    void theSameNameInOtherCapitalsPasses();
    void anExistingFileIsAskedForAndCancelBringsTheDialogBack();
    void aCancelledDialogLeavesTheSaveWithoutAnyChange();
    void aSaveAsTextEmptiesTheRightPageEvenWhenItIsNotReplaced();
    void aNameWithWildcardsExistsWhenAnythingMatches();
    void aSaveThatFailsIsSilentAndKeepsWhatIsOnThePage();
    void aSaveAsTextKeepsEveryCharacter();

    // Changes
    void typingACharacterAndRemovingItIsNoChange();
    void aSaveEndsTheChanges();
    void undoBackToTheSavedTextEndsTheChanges();

    // Leaving
    void leavingWithChangesAsksAndCancelStays();
    void leavingWithoutChangesAsksNothing();
    void theAlarmIsAskedForFirst();

private:
    void open(const QString& path) {
        m_ground->dialogs.answerOpen(path);
        m_ground->press(u"imgOpen"_s);
    }
    void save(const QString& path) {
        m_ground->dialogs.answerSave(path);
        m_ground->press(u"imgSave"_s);
    }
    void expectChangesBox(Answer answer, int flags = YesNoExclamation) {
        m_ground->boxes.expect(u"Changes have been made. Continue?"_s, flags, answer,
                               u"Save Changes"_s);
    }
    QString path(const QString& name) { return m_ground->folder.file(name); }
    QString huge(const QString& name, qint64 megabytes);

    std::unique_ptr<NotesGround> m_ground;
};

void NotesDocumentTest::init() {
    m_ground = std::make_unique<NotesGround>();
    m_ground->shown();
}

// --- New

void NotesDocumentTest::newEmptiesTheLeftPageAndLeavesTheRightOne() {
    open(m_ground->put(u"a.rtf"_s, Bold));
    m_ground->press(u"Button1"_s);
    m_ground->press(u"imgNew"_s);
    QCOMPARE(m_ground->rt1().Text(), QString());
    QCOMPARE(m_ground->rt5().Text(), QString());
    QCOMPARE(m_ground->caption(u"Label3"_s), u"Untitled"_s);
    QCOMPARE(m_ground->rt1a().Text(), u"plain bold"_s);
    QCOMPARE(m_ground->caption(u"Label1"_s), u"a.rtf"_s);
    QCOMPARE(m_ground->panel().focusWidget(), &m_ground->rt1());
}

void NotesDocumentTest::newAsksWhenThereAreChangesAndAnythingButYesEndsIt() {
    m_ground->write(u"words"_s);
    expectChangesBox(Answer::No);
    m_ground->press(u"imgNew"_s);
    QCOMPARE(m_ground->rt1().Text(), u"words"_s);
    QVERIFY(m_ground->asksToLeave());
}

void NotesDocumentTest::newGoesOnAfterYes() {
    m_ground->write(u"words"_s);
    expectChangesBox(Answer::Yes);
    m_ground->press(u"imgNew"_s);
    QCOMPARE(m_ground->rt1().Text(), QString());
    QVERIFY(!m_ground->asksToLeave());
}

void NotesDocumentTest::newAsksNothingAfterAChangeOfTheFormatOnly() {
    open(m_ground->put(u"a.rtf"_s, Bold));
    m_ground->press(u"Button1"_s);
    m_ground->select(0, 5);
    m_ground->press(u"Toolbar1(6)"_s);
    QCOMPARE(m_ground->rt1().SelItalic(), std::optional(true));
    m_ground->press(u"imgNew"_s);
    QCOMPARE(m_ground->rt1().Text(), QString());
}

void NotesDocumentTest::newForgetsThePath() {
    open(m_ground->put(u"a.rtf"_s, Bold));
    QVERIFY(!m_ground->rt1().Tag().isEmpty());
    m_ground->press(u"imgNew"_s);
    QCOMPARE(m_ground->rt1().Tag(), QString());
}

void NotesDocumentTest::newKeepsFontAndSizeAtTheCaret() {
    m_ground->rt1().SetSelFontName(u"DejaVu Serif"_s);
    m_ground->rt1().SetSelFontSize(17);
    m_ground->rt1().SetSelBold(true);
    m_ground->press(u"imgNew"_s);
    QCOMPARE(m_ground->rt1().SelFontName(), std::optional(u"DejaVu Serif"_s));
    QCOMPARE(m_ground->rt1().SelFontSize(), std::optional(17.0));
    QCOMPARE(m_ground->rt1().SelBold(), std::optional(false));
}

// --- Open

void NotesDocumentTest::openShowsTheFileOnTheRightPageAndKeepsTheLeftOne() {
    const QString file = m_ground->put(u"a.rtf"_s, Bold);
    open(file);
    QCOMPARE(m_ground->rt1a().Text(), u"plain bold"_s);
    QCOMPARE(m_ground->caption(u"Label1"_s), u"a.rtf"_s);
    QCOMPARE(m_ground->rt1().Tag(), file);
    QCOMPARE(m_ground->rt1().Text(), QString());
    QCOMPARE(m_ground->caption(u"Label3"_s), u"Untitled"_s);
    QVERIFY(m_ground->rt1a().isReadOnly());
}

void NotesDocumentTest::openAsksNothingWhileTheLeftPageHasChanges() {
    m_ground->write(u"words"_s);
    open(m_ground->put(u"a.rtf"_s, Bold));
    QCOMPARE(m_ground->rt1().Text(), u"words"_s);
    QVERIFY(m_ground->asksToLeave());
}

void NotesDocumentTest::openOffersItsFiltersAndNoName() {
    open(m_ground->put(u"a.rtf"_s, Bold));
    m_ground->dialogs.answerOpen(std::nullopt);
    m_ground->press(u"imgOpen"_s);
    QCOMPARE(m_ground->dialogs.opened.last().filter, OpenFilter);
    QCOMPARE(m_ground->dialogs.opened.last().fileName, QString());
}

void NotesDocumentTest::openReadsByTheLastLetter_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("rich");
    QTest::newRow("notes.pdf") << u"notes.pdf"_s << true;
    QTest::newRow("x.F") << u"x.F"_s << true;
    QTest::newRow("capitals") << u"NOTES.RTF"_s << true;
    QTest::newRow("text") << u"notes.txt"_s << false;
    QTest::newRow("no extension") << u"notes"_s << false;
}

void NotesDocumentTest::openReadsByTheLastLetter() {
    QFETCH(QString, name);
    QFETCH(bool, rich);
    open(m_ground->put(name, Bold));
    QCOMPARE(m_ground->rt1a().Text(), rich ? u"plain bold"_s : QString::fromLatin1(Bold));
}

void NotesDocumentTest::openOfAMissingFileSaysSo() {
    m_ground->boxes.expect(u"File not found!"_s, 64, Answer::Ok);
    open(path(u"none.rtf"_s));
    QCOMPARE(m_ground->rt1().Tag(), QString());
    QCOMPARE(m_ground->caption(u"Label1"_s), u"Untitled"_s);
}

void NotesDocumentTest::openOfAFolderSaysThatThereIsNoFile() {
    QVERIFY(QDir(path({})).mkpath(u"folder.rtf"_s));
    m_ground->boxes.expect(u"File not found!"_s, 64, Answer::Ok);
    open(path(u"folder.rtf"_s));
}

void NotesDocumentTest::aCancelledOpenChangesNothing() {
    open(m_ground->put(u"a.rtf"_s, Bold));
    m_ground->dialogs.answerOpen(std::nullopt);
    m_ground->press(u"imgOpen"_s);
    QCOMPARE(m_ground->rt1a().Text(), u"plain bold"_s);
    QCOMPARE(m_ground->rt1().Tag(), path(u"a.rtf"_s));
}

void NotesDocumentTest::textUnderANameOfRichTextEndsSilently() {
    open(m_ground->put(u"a.rtf"_s, Bold));
    open(m_ground->put(u"b.rtf"_s, "no rich text"));
    QCOMPARE(m_ground->rt1a().Text(), u"plain bold"_s);
    QCOMPARE(m_ground->caption(u"Label1"_s), u"a.rtf"_s);
    QCOMPARE(m_ground->rt1().Tag(), path(u"a.rtf"_s));
}

void NotesDocumentTest::anUnreadableTextEmptiesTheRightPageAndKeepsItsTitle() {
    m_ground.reset();
    const WithoutRoot mortal;
    init();
    open(m_ground->put(u"a.rtf"_s, Bold));
    const QString file = m_ground->put(u"b.txt"_s, "text");
    QVERIFY(QFile::setPermissions(file, QFile::Permissions()));
    open(file);
    QCOMPARE(m_ground->rt1a().Text(), QString());
    QCOMPARE(m_ground->caption(u"Label1"_s), u"a.rtf"_s);
    QCOMPARE(m_ground->rt1().Tag(), path(u"a.rtf"_s));
}

void NotesDocumentTest::aFileThatVanishesIsASilentEnd() {
    // A path with wildcards exists when anything matches, and is no file to be read.
    m_ground->put(u"a.rtf"_s, Bold);
    open(path(u"*.rtf"_s));
    QCOMPARE(m_ground->rt1a().Text(), QString());
    QCOMPARE(m_ground->rt1().Tag(), QString());
}

void NotesDocumentTest::aFileThatIsGoneWhenTheDialogClosesIsNotFound() {
    const QString file = m_ground->put(u"a.rtf"_s, Bold);
    m_ground->dialogs.whileOpen = [&file] { QVERIFY(QFile::remove(file)); };
    m_ground->boxes.expect(u"File not found!"_s, 64, Answer::Ok);
    open(file);
    QCOMPARE(m_ground->rt1a().Text(), QString());
    QCOMPARE(m_ground->rt1().Tag(), QString());
}

void NotesDocumentTest::openTakesNulsAsTheyAre() {
    open(m_ground->put(u"a.txt"_s, QByteArray("a\0b", 3)));
    QCOMPARE(m_ground->rt1a().Text(), QString(u"a\0b"_s));
}

/// A text of so many megabytes: two lines, and NULs that take no place on the disk.
QString NotesDocumentTest::huge(const QString& name, qint64 megabytes) {
    const QString made = m_ground->put(name, "A first line.\r\nA second one.\r\n");
    if (!QFile::resize(made, megabytes * Megabyte))
        qFatal("no room for a sparse file");
    return made;
}

void NotesDocumentTest::aFileThatIsTooLargeIsASilentEnd() {
    huge(u"huge.rtf"_s, 300);
    open(path(u"huge.rtf"_s));
    QCOMPARE(m_ground->rt1a().Text(), QString());
    QCOMPARE(m_ground->rt1().Tag(), QString());
}

void NotesDocumentTest::aTextOfTwoHundredMegabytesShowsItsBeginningAndIsKept() {
    constexpr qint64 Size = 200;
    constexpr qint64 BesideTheFile = 160; // of which a document and its text take most
    const QString file = huge(u"huge.txt"_s, Size);
    const TakenMemory taken = memoryTakenBy([&] { open(file); });
    QVERIFY2(taken.peak < (Size + BesideTheFile) * Megabyte,
             qPrintable(QString::number(taken.peak / Megabyte)));
    QVERIFY(m_ground->rt1a().Text().startsWith(u"A first line.\r\nA second one.\r\n"_s));
    QCOMPARE(m_ground->caption(u"Label1"_s), u"huge.txt"_s);
    QCOMPARE(m_ground->rt1().Tag(), file);
    // Whoever saves what they see over it has the whole beside it.
    m_ground->press(u"Button1"_s);
    m_ground->boxes.expect(replaceQuestion(file), 1, Answer::Ok);
    save(file);
    QVERIFY(QFileInfo(file).size() < Size * Megabyte);
    QCOMPARE(QFileInfo(file + u".unreadable"_s).size(), Size * Megabyte);
}

void NotesDocumentTest::aTextOfTwoHundredMegabytesUnderANameOfRichTextEndsSilently() {
    open(m_ground->put(u"a.rtf"_s, Bold));
    open(huge(u"huge.rtf"_s, 200));
    QCOMPARE(m_ground->rt1a().Text(), u"plain bold"_s);
    QCOMPARE(m_ground->caption(u"Label1"_s), u"a.rtf"_s);
    QCOMPARE(m_ground->rt1().Tag(), path(u"a.rtf"_s));
}

// --- Edit

void NotesDocumentTest::editCarriesTheRightPageOver() {
    const QString file = m_ground->put(u"a.rtf"_s, Bold);
    open(file);
    m_ground->press(u"Button1"_s);
    QCOMPARE(m_ground->rt1().Text(), u"plain bold"_s);
    QCOMPARE(m_ground->rt5().Text(), u"plain bold"_s);
    m_ground->select(6, 4);
    QCOMPARE(m_ground->rt1().SelBold(), std::optional(true));
    QCOMPARE(m_ground->caption(u"Label3"_s), u"a.rtf"_s);
    QCOMPARE(m_ground->rt1().Tag(), file);
    QCOMPARE(m_ground->panel().focusWidget(), &m_ground->rt1());
    QVERIFY(!m_ground->asksToLeave());
    QVERIFY(!m_ground->rt1().CanUndo());
}

void NotesDocumentTest::editAsksWhenThereAreChanges() {
    open(m_ground->put(u"a.rtf"_s, Bold));
    m_ground->write(u"words"_s);
    expectChangesBox(Answer::No);
    m_ground->press(u"Button1"_s);
    QCOMPARE(m_ground->rt1().Text(), u"words"_s);
    QCOMPARE(m_ground->caption(u"Label3"_s), u"Untitled"_s);
    expectChangesBox(Answer::Yes);
    m_ground->press(u"Button1"_s);
    QCOMPARE(m_ground->rt1().Text(), u"plain bold"_s);
}

void NotesDocumentTest::editOfAnEmptyRightPageEmptiesTheLeftOne() {
    m_ground->write(u"words"_s);
    expectChangesBox(Answer::Yes);
    m_ground->press(u"Button1"_s);
    QCOMPARE(m_ground->rt1().Text(), QString());
    QCOMPARE(m_ground->caption(u"Label3"_s), u"Untitled"_s);
}

// --- Save

void NotesDocumentTest::aSaveAsRichTextKeepsThePagesAndSetsNoPath() {
    const QString old = m_ground->put(u"old.rtf"_s, Bold);
    open(old);
    m_ground->press(u"Button1"_s);
    m_ground->write(u" more"_s);
    save(path(u"new.rtf"_s));
    QCOMPARE(m_ground->rt1().Tag(), old);
    QCOMPARE(m_ground->rt1().Text(), u"plain bold more"_s);
    QCOMPARE(m_ground->rt1a().Text(), u"plain bold"_s);
    QCOMPARE(m_ground->caption(u"Label3"_s), u"new.rtf"_s);
    QCOMPARE(m_ground->caption(u"Label1"_s), u"old.rtf"_s);
    QVERIFY(m_ground->bytesOf(path(u"new.rtf"_s)).startsWith("{\\rtf1"));
    QCOMPARE(m_ground->panel().focusWidget(), &m_ground->rt1());
    QVERIFY(!m_ground->asksToLeave());
}

void NotesDocumentTest::aNewDocumentSavedAsRichTextHasNoPath() {
    m_ground->write(u"words"_s);
    save(path(u"new.rtf"_s));
    QCOMPARE(m_ground->rt1().Tag(), QString());
}

void NotesDocumentTest::aSaveAsTextReloadsTheLeftPageAndEmptiesTheRightOne() {
    open(m_ground->put(u"a.rtf"_s, Bold));
    m_ground->press(u"Button1"_s);
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(Qt::red);
    m_ground->rt1().textCursor().insertImage(picture);
    save(path(u"a.txt"_s));
    QCOMPARE(m_ground->bytesOf(path(u"a.txt"_s)), QByteArray(" plain bold"));
    QCOMPARE(m_ground->rt1().Text(), u" plain bold"_s);
    QVERIFY(!m_ground->rt1().TextRTF().contains("\\pict"));
    m_ground->select(0, 11);
    QCOMPARE(m_ground->rt1().SelBold(), std::optional(false));
    QCOMPARE(m_ground->rt1().Tag(), path(u"a.txt"_s));
    QCOMPARE(m_ground->rt1a().Text(), QString());
    QCOMPARE(m_ground->caption(u"Label3"_s), u"a.txt"_s);
    QVERIFY(!m_ground->asksToLeave());
}

void NotesDocumentTest::saveOffersItsFiltersAndNoName() {
    save(path(u"a.rtf"_s));
    m_ground->dialogs.answerSave(std::nullopt);
    m_ground->press(u"imgSave"_s);
    QCOMPARE(m_ground->dialogs.saved.last().filter, SaveFilter);
    QCOMPARE(m_ground->dialogs.saved.last().fileName, QString());
}

void NotesDocumentTest::theFilesOfTheProgramAreRefusedAndTheDialogComesAgain() {
    for (const QString& name : {u"Vazno.rtf"_s, u"weekly.rtf"_s}) {
        m_ground->dialogs.answerSave(m_ground->app.file(name));
        m_ground->boxes.expect(u"Can't overwrite files needed for Orvalis. Choose a different name "
                               "for backup file."_s,
                               16, Answer::Ok, u"Warning"_s);
    }
    m_ground->dialogs.answerSave(std::nullopt);
    m_ground->press(u"imgSave"_s);
    QCOMPARE(m_ground->dialogs.saved.size(), 3);
    QVERIFY(!QFile::exists(m_ground->app.file(u"Vazno.rtf"_s)));
}

void NotesDocumentTest::theSameNameInOtherCapitalsPasses() {
    save(m_ground->app.file(u"vazno.rtf"_s));
    QVERIFY(QFile::exists(m_ground->app.file(u"vazno.rtf"_s)));
}

void NotesDocumentTest::anExistingFileIsAskedForAndCancelBringsTheDialogBack() {
    const QString file = m_ground->put(u"a.rtf"_s, "old");
    m_ground->write(u"words"_s);
    const QString question =
        u"The File "_s + file + u" already exists.\nDo you want to replace it?"_s;
    m_ground->dialogs.answerSave(file);
    m_ground->boxes.expect(question, 1, Answer::Cancel);
    m_ground->dialogs.answerSave(file);
    m_ground->boxes.expect(question, 1, Answer::Ok);
    m_ground->press(u"imgSave"_s);
    QCOMPARE(m_ground->dialogs.saved.size(), 2);
    QVERIFY(m_ground->bytesOf(file).contains("words"));
}

void NotesDocumentTest::aCancelledDialogLeavesTheSaveWithoutAnyChange() {
    open(m_ground->put(u"a.rtf"_s, Bold));
    m_ground->write(u"words"_s);
    m_ground->dialogs.answerSave(std::nullopt);
    m_ground->press(u"imgSave"_s);
    QCOMPARE(m_ground->rt1a().Text(), u"plain bold"_s);
    QCOMPARE(m_ground->caption(u"Label3"_s), u"Untitled"_s);
    QVERIFY(m_ground->asksToLeave());
}

void NotesDocumentTest::aSaveAsTextEmptiesTheRightPageEvenWhenItIsNotReplaced() {
    open(m_ground->put(u"a.rtf"_s, Bold));
    m_ground->dialogs.answerSave(m_ground->put(u"b.txt"_s, "old"));
    m_ground->boxes.answer(Answer::Cancel);
    m_ground->dialogs.answerSave(std::nullopt);
    m_ground->press(u"imgSave"_s);
    QCOMPARE(m_ground->rt1a().Text(), QString());
    QCOMPARE(m_ground->bytesOf(path(u"b.txt"_s)), QByteArray("old"));
}

void NotesDocumentTest::aNameWithWildcardsExistsWhenAnythingMatches() {
    m_ground->put(u"a.rtf"_s, Bold);
    m_ground->dialogs.answerSave(path(u"*.rtf"_s));
    m_ground->boxes.expect(u"The File "_s + path(u"*.rtf"_s) +
                               u" already exists.\nDo you want to replace it?"_s,
                           1, Answer::Cancel);
    m_ground->dialogs.answerSave(std::nullopt);
    m_ground->press(u"imgSave"_s);
}

void NotesDocumentTest::aSaveThatFailsIsSilentAndKeepsWhatIsOnThePage() {
    m_ground->write(u"words"_s);
    save(path(u"no/such/folder/a.txt"_s));
    QCOMPARE(m_ground->rt1().Text(), u"words"_s);
    QCOMPARE(m_ground->rt1().Tag(), QString());
    QCOMPARE(m_ground->caption(u"Label3"_s), u"Untitled"_s);
    QVERIFY(m_ground->asksToLeave());
}

void NotesDocumentTest::aSaveAsTextKeepsEveryCharacter() {
    const QString text = u"a\tb\r\nžluť – 漢字 😀\r\n"_s;
    m_ground->write(text);
    save(path(u"a.txt"_s));
    QCOMPARE(m_ground->rt1().Text(), text);
    open(path(u"a.txt"_s));
    QCOMPARE(m_ground->rt1a().Text(), text);
}

// --- changes

void NotesDocumentTest::typingACharacterAndRemovingItIsNoChange() {
    QTest::keyClick(&m_ground->rt1(), Qt::Key_A);
    QVERIFY(m_ground->asksToLeave());
    QTest::keyClick(&m_ground->rt1(), Qt::Key_Backspace);
    QVERIFY(!m_ground->asksToLeave());
}

void NotesDocumentTest::aSaveEndsTheChanges() {
    m_ground->write(u"one\r\ntwo"_s);
    save(path(u"a.rtf"_s));
    QVERIFY(!m_ground->asksToLeave());
    m_ground->write(u"!"_s);
    QVERIFY(m_ground->asksToLeave());
}

void NotesDocumentTest::undoBackToTheSavedTextEndsTheChanges() {
    m_ground->write(u"one"_s);
    save(path(u"a.rtf"_s));
    m_ground->write(u"two"_s);
    QVERIFY(m_ground->asksToLeave());
    m_ground->press(u"Toolbar1(13)"_s);
    QCOMPARE(m_ground->rt1().Text(), u"one"_s);
    QVERIFY(!m_ground->asksToLeave());
}

// --- leaving

void NotesDocumentTest::leavingWithChangesAsksAndCancelStays() {
    m_ground->write(u"words"_s);
    expectChangesBox(Answer::Cancel, OkCancelExclamation);
    m_ground->panel().exitClick();
    expectChangesBox(Answer::Ok, OkCancelExclamation);
    QVERIFY(endsTheProgram([this] { m_ground->panel().exitClick(); }));
}

void NotesDocumentTest::leavingWithoutChangesAsksNothing() {
    QVERIFY(endsTheProgram([this] { m_ground->panel().exitClick(); }));
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void NotesDocumentTest::theAlarmIsAskedForFirst() {
    m_ground->write(u"words"_s);
    m_ground->program.state.alarmTimeText = u"10:00:00"_s;
    m_ground->panel().SetAlarm0();
    m_ground->boxes.answer(Answer::Ok);
    m_ground->panel().exitClick();
    QCOMPARE(m_ground->boxes.asked.size(), 1);
    QVERIFY(m_ground->boxes.asked.constFirst().text.startsWith(u"The alarm is set."_s));
}

ORVALIS_TEST_MAIN_WITH(QApplication, NotesDocumentTest)
#include "notes_document_test.moc"
