// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/rich_text_box.h"
#include "runtime/failure.h"
#include "support/heard_progress.h"
#include "support/test_main.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextBlock>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

QByteArray allBytes() {
    QByteArray bytes;
    for (int code = 0; code < 256; ++code)
        bytes += char(code);
    return bytes;
}

std::optional<ErrorNumber> numberOf(const std::optional<RuntimeError>& failure) {
    return failure ? std::optional(failure->number()) : std::nullopt;
}

} // namespace

class RichTextBoxFilesTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void richTextIsSavedAndLoaded();
    void plainTextIsSavedAndLoaded();
    void richTextLoadedAsPlainTextShowsItsCodes();
    void everyCodeIsSavedAndLoaded_data();
    void everyCodeIsSavedAndLoaded();
    void everyPairOfCodesIsSavedAndLoaded();
    void everyCodeIsLoadedAndSavedByteByByte();
    void notesOutsideThePageAreKeptAsUtf8();
    void notesOfThePageStayOneByteACharacter();
    void whatIsOutsideThePageIsLostByteByByte();
    void linesThatEndWithLfAreLinesOfNotes();
    void loadingPlainTextGivesItTheBoxsOwnFontAndNoOtherFormat();
    void loadingPlainTextDropsTheShapeOfParagraphs();
    void loadingPutsTheCaretAtTheStartAndTells();
    void loadingDropsTheHistoryOfUndo();
    void savingKeepsTheHistoryOfUndo();
    void aPictureIsABlankInPlainText();
    void whoWaitsHearsOfLoadingAndSaving_data();
    void whoWaitsHearsOfLoadingAndSaving();
    void aBoxIsNotPaintedWhileSomebodyWaits();

    void aFileThatIsNotRichTextIsRefused();
    void anEmptyFileIsNotRichText();
    void aMissingFileIsRefused();
    void anEmptyNameIsRefused();
    void aFolderIsRefused();
    void otherFlagsAreRefused();
    void aRefusedFileChangesNothing();
    void savingIntoAMissingFolderFails();

    void aFileThatCouldNotBeReadIsKeptAsideBeforeItIsOverwritten();
    void aFileThatCouldBeReadOnlyInPartIsKeptAsideToo();
    void aFileThatWasReadIsNotKeptAside();
    void aFileThatNobodyLoadedIsNotKeptAside();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QByteArray content(const QString& name) const;
    void write(const QString& name, const QByteArray& bytes) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void RichTextBoxFilesTest::init() {
    m_folder = std::make_unique<QTemporaryDir>();
}

QByteArray RichTextBoxFilesTest::content(const QString& name) const {
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void RichTextBoxFilesTest::write(const QString& name, const QByteArray& bytes) const {
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

void RichTextBoxFilesTest::richTextIsSavedAndLoaded() {
    RichTextBox box;
    box.SetText(u"plain and bold\r\nsecond line"_s);
    box.SetSelStart(10);
    box.SetSelLength(4);
    box.SetSelBold(true);
    box.SetSelColor(255);
    box.files().SaveFile(path(u"note.rtf"_s), 0);
    QVERIFY(content(u"note.rtf"_s).startsWith("{\\rtf"));

    RichTextBox other;
    other.files().LoadFile(path(u"note.rtf"_s), 0);
    QCOMPARE(other.Text(), box.Text());
    other.SetSelStart(10);
    other.SetSelLength(4);
    QCOMPARE(other.SelBold(), std::optional(true));
    QCOMPARE(other.SelColor(), std::optional<quint32>(255));
    other.SetSelStart(0);
    other.SetSelLength(10);
    QCOMPARE(other.SelBold(), std::optional(false));
}

void RichTextBoxFilesTest::plainTextIsSavedAndLoaded() {
    RichTextBox box;
    box.SetText(u"one\r\ntwo\r\n"_s);
    box.files().SaveFile(path(u"note.txt"_s), 1);
    QCOMPARE(content(u"note.txt"_s), QByteArray("one\r\ntwo\r\n"));
    RichTextBox other;
    other.files().LoadFile(path(u"note.txt"_s), 1);
    QCOMPARE(other.Text(), u"one\r\ntwo\r\n"_s);
}

/// The flags alone say what a file is, not what lies in it.
void RichTextBoxFilesTest::richTextLoadedAsPlainTextShowsItsCodes() {
    write(u"note.txt"_s, "{\\rtf1 text}");
    RichTextBox box;
    box.files().LoadFile(path(u"note.txt"_s), 1);
    QCOMPARE(box.Text(), u"{\\rtf1 text}"_s);
    box.files().SaveFile(path(u"other.rtf"_s), 0);
    box.files().LoadFile(path(u"other.rtf"_s), 0);
    QCOMPARE(box.Text(), u"{\\rtf1 text}"_s);
}

void RichTextBoxFilesTest::everyCodeIsSavedAndLoaded_data() {
    QTest::addColumn<bool>("ansi");
    QTest::newRow("byte by byte") << true;
    QTest::newRow("as notes") << false;
}

void RichTextBoxFilesTest::everyCodeIsSavedAndLoaded() {
    QFETCH(bool, ansi);
    const auto kind = ansi ? RichTextFiles::Plain::Ansi : RichTextFiles::Plain::Notes;
    QString text;
    for (int code = 0; code < 256; ++code)
        text += QChar(code) + u'.';
    RichTextBox box;
    box.files().setPlain(kind);
    box.SetText(text);
    if (ansi) // codes 128 to 159 of the page are other characters
        box.SetText(QString(text).remove(2 * 128, 2 * 32));
    const QString expected = box.Text();
    box.files().SaveFile(path(u"codes.txt"_s), 1);
    RichTextBox other;
    other.files().setPlain(kind);
    other.files().LoadFile(path(u"codes.txt"_s), 1);
    QCOMPARE(other.Text(), expected);
}

void RichTextBoxFilesTest::everyPairOfCodesIsSavedAndLoaded() {
    // Scrambled text can hold any two codes beside each other, CR and LF among them.
    QByteArray bytes;
    bytes.reserve(256 * 256 * 2);
    for (int first = 0; first < 256; ++first)
        for (int second = 0; second < 256; ++second)
            bytes.append(char(first)).append(char(second));
    write(u"pairs.txt"_s, bytes);
    RichTextBox box;
    box.files().setPlain(RichTextFiles::Plain::Ansi);
    box.files().LoadFile(path(u"pairs.txt"_s), 1);
    QCOMPARE(box.Text().size(), bytes.size());
    box.files().SaveFile(path(u"again.txt"_s), 1);
    QCOMPARE(content(u"again.txt"_s), bytes);
}

void RichTextBoxFilesTest::everyCodeIsLoadedAndSavedByteByByte() {
    for (const QByteArray& bytes :
         {allBytes(), QByteArray("\xEF\xBB\xBF utf-8 mark"), QByteArray("\n"), QByteArray("\r"),
          QByteArray("a\0b", 3), QByteArray("\n\r\n\r"), QByteArray("unix\nlines\n")}) {
        write(u"in.txt"_s, bytes);
        RichTextBox box;
        box.files().setPlain(RichTextFiles::Plain::Ansi);
        box.files().LoadFile(path(u"in.txt"_s), 1);
        RichTextBox right;
        right.files().setPlain(RichTextFiles::Plain::Ansi);
        right.SetText(box.Text());
        right.files().SaveFile(path(u"out.txt"_s), 1);
        QCOMPARE(content(u"out.txt"_s), bytes);
    }
}

void RichTextBoxFilesTest::notesOutsideThePageAreKeptAsUtf8() {
    RichTextBox box;
    box.SetText(u"\u017Eivot \u4E2D\u6587 \U0001F600"_s);
    box.files().SaveFile(path(u"note.txt"_s), 1);
    QVERIFY(content(u"note.txt"_s).startsWith("\xEF\xBB\xBF"));
    RichTextBox other;
    other.files().LoadFile(path(u"note.txt"_s), 1);
    QCOMPARE(other.Text(), box.Text());
}

void RichTextBoxFilesTest::notesOfThePageStayOneByteACharacter() {
    RichTextBox box;
    box.SetText(u"caf\u00E9"_s);
    box.files().SaveFile(path(u"note.txt"_s), 1);
    QCOMPARE(content(u"note.txt"_s), QByteArray("caf\xE9"));
    RichTextBox other;
    other.files().LoadFile(path(u"note.txt"_s), 1);
    QCOMPARE(other.Text(), u"caf\u00E9"_s);
}

void RichTextBoxFilesTest::whatIsOutsideThePageIsLostByteByByte() {
    RichTextBox box;
    box.files().setPlain(RichTextFiles::Plain::Ansi);
    box.SetText(u"a\u4E2Db"_s);
    box.files().SaveFile(path(u"note.txt"_s), 1);
    QCOMPARE(content(u"note.txt"_s), QByteArray("a?b"));
}

void RichTextBoxFilesTest::linesThatEndWithLfAreLinesOfNotes() {
    write(u"unix.txt"_s, "one\n\ttwo\n");
    RichTextBox box;
    box.files().LoadFile(path(u"unix.txt"_s), 1);
    QCOMPARE(box.Text(), u"one\r\n\ttwo\r\n"_s);

    // With a CR or another control character it is no such file, and each code stays.
    for (const QByteArray& bytes : {QByteArray("one\ntwo\r\n"), QByteArray("one\n\x01")}) {
        write(u"other.txt"_s, bytes);
        box.files().LoadFile(path(u"other.txt"_s), 1);
        QCOMPARE(box.Text(), QString::fromLatin1(bytes));
    }
}

void RichTextBoxFilesTest::loadingPlainTextGivesItTheBoxsOwnFontAndNoOtherFormat() {
    write(u"note.txt"_s, "one\r\n\r\ntwo");
    RichTextBox box;
    box.SetFontName(u"Courier New"_s);
    box.SetFontSize(13);
    box.SetText(u"red and bold"_s);
    box.selectAll();
    box.SetSelBold(true);
    box.SetSelItalic(true);
    box.SetSelUnderline(true);
    box.SetSelStrikeThru(true);
    box.SetSelColor(255);
    box.SetSelFontName(u"Arial"_s);
    box.SetSelFontSize(30);
    box.files().LoadFile(path(u"note.txt"_s), 1);
    const auto compare = [&box] {
        QCOMPARE(box.SelBold(), std::optional(false));
        QCOMPARE(box.SelItalic(), std::optional(false));
        QCOMPARE(box.SelUnderline(), std::optional(false));
        QCOMPARE(box.SelStrikeThru(), std::optional(false));
        QCOMPARE(box.SelColor(), std::optional<quint32>(0));
        QCOMPARE(box.SelFontName(), std::optional(u"Courier New"_s));
        QCOMPARE(box.SelFontSize(), std::optional<qreal>(13));
        QCOMPARE(box.SelAlignment(), std::optional(0));
    };
    compare(); // what is typed at the caret
    box.selectAll();
    compare();
    box.SetSelText(u"x"_s);
    compare();
}

void RichTextBoxFilesTest::savingKeepsTheHistoryOfUndo() {
    RichTextBox box;
    QTest::keyClicks(&box, u"abc"_s);
    box.files().SaveFile(path(u"note.rtf"_s));
    box.files().SaveFile(path(u"note.txt"_s), 1);
    QVERIFY(box.CanUndo());
    QCOMPARE(box.UndoType(), UndoKind::Typing);
    box.Undo();
    QCOMPARE(box.Text(), QString());
}

void RichTextBoxFilesTest::loadingPlainTextDropsTheShapeOfParagraphs() {
    write(u"note.txt"_s, "one\r\ntwo");
    RichTextBox box;
    box.SetText(u"one\r\ntwo"_s);
    box.selectAll();
    box.SetSelAlignment(RichTextBox::rtfCenter);
    box.SetSelIndent(500);
    box.SetSelBullet(true);
    box.files().LoadFile(path(u"note.txt"_s), 1);
    box.selectAll();
    QCOMPARE(box.SelAlignment(), std::optional(0));
    QCOMPARE(box.SelIndent(), std::optional(0));
    QCOMPARE(box.SelBullet(), std::optional(false));
}

void RichTextBoxFilesTest::loadingPutsTheCaretAtTheStartAndTells() {
    write(u"note.txt"_s, "one\r\ntwo");
    write(u"note.rtf"_s, "{\\rtf1 one\\par two\\par}");
    RichTextBox box;
    box.SetText(u"some text"_s);
    for (const auto& [name, flags] : {std::pair(u"note.txt"_s, 1), std::pair(u"note.rtf"_s, 0)}) {
        box.SetSelStart(3);
        QSignalSpy changes(&box, &RichTextBox::Change);
        QSignalSpy selections(&box, &RichTextBox::SelChange);
        box.files().LoadFile(path(name), flags);
        QCOMPARE(box.Text(), u"one\r\ntwo"_s);
        QCOMPARE(box.SelStart(), 0);
        QCOMPARE(changes.count(), 1);
        QCOMPARE(selections.count(), 1);
    }
}

void RichTextBoxFilesTest::loadingDropsTheHistoryOfUndo() {
    write(u"note.txt"_s, "one");
    write(u"note.rtf"_s, "{\\rtf1 one}");
    RichTextBox box;
    for (const auto& [name, flags] : {std::pair(u"note.txt"_s, 1), std::pair(u"note.rtf"_s, 0)}) {
        QTest::keyClicks(&box, u"abc"_s);
        QVERIFY(box.CanUndo());
        box.files().LoadFile(path(name), flags);
        QVERIFY(!box.CanUndo());
    }
}

void RichTextBoxFilesTest::aPictureIsABlankInPlainText() {
    RichTextBox box;
    box.SetText(u"ab"_s);
    box.SetSelStart(1);
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    box.textCursor().insertImage(picture);
    box.files().SaveFile(path(u"note.txt"_s), 1);
    QCOMPARE(content(u"note.txt"_s), QByteArray("a b"));
}

void RichTextBoxFilesTest::whoWaitsHearsOfLoadingAndSaving_data() {
    QTest::addColumn<int>("flags");
    QTest::newRow("rich text") << int(RichTextBox::rtfRTF);
    QTest::newRow("plain text") << int(RichTextBox::rtfText);
}

void RichTextBoxFilesTest::whoWaitsHearsOfLoadingAndSaving() {
    QFETCH(int, flags);
    const QString text = QString(u"A line of a long text.\r\n"_s).repeated(40000);
    RichTextBox box;
    box.SetText(text);
    test::HeardProgress written;
    {
        const RichTextBox::Listener listener(box, written.hears());
        box.files().SaveFile(path(u"long"_s), flags);
    }
    // Plain text is written in a moment, whatever its length.
    QVERIFY(flags == RichTextBox::rtfText ? written.times == 0 : written.roseInSteps(0.1));
    RichTextBox other;
    test::HeardProgress read;
    {
        const RichTextBox::Listener listener(other, read.hears());
        other.files().LoadFile(path(u"long"_s), flags);
    }
    QVERIFY(read.roseInSteps(0.1));
    QCOMPARE(other.Text(), text);
    const int times = read.times;
    other.files().LoadFile(path(u"long"_s), flags);
    QCOMPARE(read.times, times);
}

void RichTextBoxFilesTest::aBoxIsNotPaintedWhileSomebodyWaits() {
    RichTextBox box;
    box.show();
    {
        const RichTextBox::Listener listener(box, [](double) {});
        QVERIFY(!box.viewport()->updatesEnabled());
    }
    QVERIFY(box.viewport()->updatesEnabled());
}

void RichTextBoxFilesTest::aFileThatIsNotRichTextIsRefused() {
    write(u"note.pdf"_s, "%PDF-1.4 something");
    RichTextBox box;
    const auto failure = firstFailure([&] { box.files().LoadFile(path(u"note.pdf"_s), 0); });
    QCOMPARE(numberOf(failure), std::optional(ErrorNumber::InvalidFileFormat));
}

void RichTextBoxFilesTest::anEmptyFileIsNotRichText() {
    write(u"empty.rtf"_s, QByteArray());
    RichTextBox box;
    const auto failure = firstFailure([&] { box.files().LoadFile(path(u"empty.rtf"_s), 0); });
    QCOMPARE(numberOf(failure), std::optional(ErrorNumber::InvalidFileFormat));
    box.files().SaveFile(path(u"empty.rtf"_s), 0);
    QVERIFY(!QFile::exists(path(u"empty.rtf.unreadable"_s)));
}

void RichTextBoxFilesTest::aMissingFileIsRefused() {
    RichTextBox box;
    for (int flags : {0, 1}) {
        const auto failure =
            firstFailure([&] { box.files().LoadFile(path(u"none.rtf"_s), flags); });
        QCOMPARE(numberOf(failure), std::optional(ErrorNumber::FileNotFound));
    }
}

void RichTextBoxFilesTest::anEmptyNameIsRefused() {
    RichTextBox box;
    QVERIFY(firstFailure([&] { box.files().LoadFile(QString(), 1); }));
    QVERIFY(firstFailure([&] { box.files().SaveFile(QString(), 1); }));
}

void RichTextBoxFilesTest::aFolderIsRefused() {
    RichTextBox box;
    QVERIFY(firstFailure([&] { box.files().LoadFile(m_folder->path(), 1); }));
    QVERIFY(firstFailure([&] { box.files().SaveFile(m_folder->path(), 1); }));
}

void RichTextBoxFilesTest::otherFlagsAreRefused() {
    write(u"note.txt"_s, "text");
    RichTextBox box;
    const auto load = firstFailure([&] { box.files().LoadFile(path(u"note.txt"_s), 2); });
    QCOMPARE(numberOf(load), std::optional(ErrorNumber::InvalidProcedureCall));
    const auto save = firstFailure([&] { box.files().SaveFile(path(u"note.txt"_s), -1); });
    QCOMPARE(numberOf(save), std::optional(ErrorNumber::InvalidProcedureCall));
    QCOMPARE(content(u"note.txt"_s), QByteArray("text"));
}

void RichTextBoxFilesTest::aRefusedFileChangesNothing() {
    write(u"note.rtf"_s, "no rich text");
    RichTextBox box;
    box.SetText(u"kept"_s);
    box.SetSelStart(2);
    QSignalSpy changes(&box, &RichTextBox::Change);
    QVERIFY(firstFailure([&] { box.files().LoadFile(path(u"note.rtf"_s), 0); }));
    QVERIFY(firstFailure([&] { box.files().LoadFile(path(u"none.rtf"_s), 0); }));
    QCOMPARE(box.Text(), u"kept"_s);
    QCOMPARE(box.SelStart(), 2);
    QCOMPARE(changes.count(), 0);
}

void RichTextBoxFilesTest::savingIntoAMissingFolderFails() {
    RichTextBox box;
    const auto failure = firstFailure([&] { box.files().SaveFile(path(u"none/note.rtf"_s), 0); });
    QCOMPARE(numberOf(failure), std::optional(ErrorNumber::PathNotFound));
}

void RichTextBoxFilesTest::aFileThatCouldNotBeReadIsKeptAsideBeforeItIsOverwritten() {
    write(u"Vazno.rtf"_s, "years of entries, broken");
    RichTextBox box;
    QVERIFY(firstFailure([&] { box.files().LoadFile(path(u"Vazno.rtf"_s), 0); }));
    QVERIFY(!QFile::exists(path(u"Vazno.rtf.unreadable"_s)));
    box.SetText(u"new"_s);
    box.files().SaveFile(path(u"Vazno.rtf"_s), 0);
    QCOMPARE(content(u"Vazno.rtf.unreadable"_s), QByteArray("years of entries, broken"));
    QVERIFY(content(u"Vazno.rtf"_s).startsWith("{\\rtf"));
    box.files().SaveFile(path(u"Vazno.rtf"_s), 0);
    QCOMPARE(content(u"Vazno.rtf.unreadable"_s), QByteArray("years of entries, broken"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 2);
}

void RichTextBoxFilesTest::aFileThatCouldBeReadOnlyInPartIsKeptAsideToo() {
    const QByteArray torn = "{\\rtf1 entries {\\b of years";
    write(u"Vazno.rtf"_s, torn);
    RichTextBox box;
    box.files().LoadFile(path(u"Vazno.rtf"_s), 0);
    QCOMPARE(box.Text(), u"entries of years"_s);
    box.files().SaveFile(path(u"Vazno.rtf"_s), 0);
    QCOMPARE(content(u"Vazno.rtf.unreadable"_s), torn);
}

void RichTextBoxFilesTest::aFileThatWasReadIsNotKeptAside() {
    write(u"Vazno.rtf"_s, "{\\rtf1 entries}");
    RichTextBox box;
    box.files().LoadFile(path(u"Vazno.rtf"_s), 0);
    box.files().SaveFile(path(u"Vazno.rtf"_s), 0);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList{u"Vazno.rtf"_s});
}

void RichTextBoxFilesTest::aFileThatNobodyLoadedIsNotKeptAside() {
    write(u"chosen.rtf"_s, "the user said that it may go");
    RichTextBox box;
    box.files().SaveFile(path(u"chosen.rtf"_s), 0);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList{u"chosen.rtf"_s});
}

ORVALIS_TEST_MAIN_WITH(QApplication, RichTextBoxFilesTest)
#include "rich_text_box_files_test.moc"
