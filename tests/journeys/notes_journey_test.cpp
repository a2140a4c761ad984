// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/driven_program.h"

#include "support/test_main.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;

namespace {

/// A small PNG.
QByteArray picture() {
    return QByteArray::fromBase64(
        "iVBORw0KGgoAAAANSUhEUgAAAAgAAAAGCAIAAABxZ0isAAAAXklEQVR42g3JIQEAQQhFQZKgCUEI"
        "9Cb5SdCEIMTTJLobO2aGG2k8Q0Yba5xhFniQwQsUdLDBxR+FF1m8QkUXW1z9IVykeEKixYrTH4MP"
        "ObxBQw873PwBDgkPBA0LBx+zu0vx/4tseAAAAABJRU5ErkJggg==");
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QString told(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(20000);
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

/// A note from the first letter to the printed page, as a person makes it.
class NotesJourneyTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void aNoteIsWrittenFormattedSavedAndTakenOverAgain();
    void wordsAreFoundAndReplaced();
    void aPictureIsPutInAndTakenAway();
    void aDocumentIsMailed();
    void aMailWithoutAMailToolIsToldOf();
    void theRightPageIsPrintedInPages();
    void theTimeIsWrittenFromTheClocksMenu();
    void aFindThatOverflowsEndsTheProgramAndNothingIsLost();
    void theSystemsEndKeepsTheLeftPage();

private:
    bool openPanel();
    bool chooseFile(const QString& path);
    /// Whether the box on show is this one.
    bool boxIs(const QString& text, const QString& title, const QStringList& buttons);
    void openFile(const QString& path);
    QString file(const QString& name) { return m_program->folder() + u'/' + name; }
    QString left() { return m_program->control(u"frmnotes2/rt1"_s).text; }
    QString right() { return m_program->control(u"frmnotes2/rt1a"_s).text; }

    std::unique_ptr<Stage> m_stage;
    std::unique_ptr<DrivenProgram> m_program;
};

void NotesJourneyTest::init() {
    m_stage = std::make_unique<Stage>(Stage::Plan());
    QVERIFY2(m_stage->trouble().isEmpty(), qPrintable(m_stage->trouble()));
    m_program = std::make_unique<DrivenProgram>(*m_stage, QStringLiteral(ORVALIS_EXECUTABLE));
    QVERIFY(m_program->start());
    QVERIFY(openPanel());
}

void NotesJourneyTest::cleanup() {
    m_program.reset();
    m_stage.reset();
}

bool NotesJourneyTest::openPanel() {
    return m_program->click(u"frmnotes/imgopen2"_s) && m_program->waitVisible(u"frmnotes2/rt1"_s) &&
           m_program->click(u"frmnotes2/rt1"_s);
}

bool NotesJourneyTest::chooseFile(const QString& path) {
    if (!m_program->waitAtRest(u"FileDialog"_s).visible)
        return false;
    m_program->type(path);
    m_program->key(u"Return"_s);
    return waitUntil([this] { return !m_program->control(u"FileDialog"_s).visible; }, 8000);
}

bool NotesJourneyTest::boxIs(const QString& text, const QString& title,
                             const QStringList& buttons) {
    Control box;
    waitUntil(
        [&] {
            box = m_program->messageBox();
            return box.found;
        },
        10000);
    QStringList captions;
    for (QString caption : std::as_const(box.buttons))
        captions << caption.remove(u'&');
    const bool same = box.text == text && box.title == title && captions == buttons;
    if (!same)
        qWarning("a box \"%s\", \"%s\", %s", qPrintable(box.title), qPrintable(box.text),
                 qPrintable(captions.join(u' ')));
    return same;
}

void NotesJourneyTest::openFile(const QString& path) {
    QVERIFY(m_program->click(u"frmnotes2/imgOpen"_s));
    QVERIFY(chooseFile(path));
}

void NotesJourneyTest::aNoteIsWrittenFormattedSavedAndTakenOverAgain() {
    m_program->type(u"Dear Anna, "_s);
    QVERIFY(m_program->click(u"frmnotes2/Toolbar1(5)"_s));
    m_program->type(u"come soon"_s);
    QVERIFY(m_program->waitText(u"frmnotes2/rt1"_s, u"Dear Anna, come soon"_s));
    QVERIFY(m_program->control(u"frmnotes2/Toolbar1(5)"_s).checked);
    QVERIFY(m_program->click(u"frmnotes2/imgSave"_s));
    QVERIFY(chooseFile(file(u"anna.rtf"_s)));
    QVERIFY(m_program->waitText(u"frmnotes2/Label3"_s, u"anna.rtf"_s));
    QVERIFY(bytesOf(file(u"anna.rtf"_s)).contains("\\b"));

    openFile(file(u"anna.rtf"_s));
    QVERIFY(m_program->waitText(u"frmnotes2/rt1a"_s, u"Dear Anna, come soon"_s));
    QCOMPARE(m_program->control(u"frmnotes2/Label1"_s).text, u"anna.rtf"_s);
    QVERIFY(m_program->click(u"frmnotes2/Button1"_s));
    m_program->key(u"ctrl+End"_s);
    m_program->type(u"!"_s);
    QVERIFY(m_program->waitText(u"frmnotes2/rt1"_s, u"Dear Anna, come soon!"_s));
    QCOMPARE(right(), u"Dear Anna, come soon"_s);

    // Enter answers with the default, which is Yes to the one question and OK to the other.
    QVERIFY(m_program->click(u"frmnotes2/Button1"_s));
    QVERIFY(boxIs(u"Changes have been made. Continue?"_s, u"Save Changes"_s, {u"Yes"_s, u"No"_s}));
    QVERIFY(m_program->answer(u"No"_s));
    QVERIFY(write(file(u"anna.txt"_s), "old"));
    QVERIFY(m_program->click(u"frmnotes2/imgSave"_s));
    QVERIFY(chooseFile(file(u"anna.txt"_s)));
    QVERIFY(boxIs(u"The File "_s + file(u"anna.txt"_s) +
                      u" already exists.\nDo you want to replace it?"_s,
                  u"Orvalis"_s, {u"OK"_s, u"Cancel"_s}));
    m_program->key(u"Return"_s);
    QVERIFY(m_program->waitText(u"frmnotes2/Label3"_s, u"anna.txt"_s));
    QCOMPARE(bytesOf(file(u"anna.txt"_s)), QByteArray("Dear Anna, come soon!"));
    QCOMPARE(right(), QString());

    QVERIFY(m_program->click(u"frmnotes2/imgSave"_s));
    QVERIFY(chooseFile(file(u"Vazno.rtf"_s)));
    QVERIFY(boxIs(u"Can't overwrite files needed for Orvalis. Choose a different name for backup "
                  "file."_s,
                  u"Warning"_s, {u"OK"_s}));
    QVERIFY(m_program->answer(u"OK"_s));
    QVERIFY(m_program->waitAtRest(u"FileDialog"_s).visible);
    m_program->key(u"Escape"_s);
    QVERIFY(waitUntil([this] { return !m_program->control(u"FileDialog"_s).visible; }, 8000));

    openFile(file(u"none.rtf"_s));
    QVERIFY(boxIs(u"File not found!"_s, u"Orvalis"_s, {u"OK"_s}));
    QVERIFY(m_program->answer(u"OK"_s));
    QVERIFY(m_program->click(u"frmnotes2/rt1"_s));
    m_program->type(u"x"_s);
    QVERIFY(m_program->click(u"frmnotes2/imgExit"_s));
    QVERIFY(
        boxIs(u"Changes have been made. Continue?"_s, u"Save Changes"_s, {u"OK"_s, u"Cancel"_s}));
    m_program->key(u"Escape"_s);
    QVERIFY(waitUntil([this] { return !m_program->messageBox().found; }, 8000));
    QVERIFY(m_program->click(u"frmnotes2/imgExit"_s));
    QVERIFY(m_program->answer(u"OK"_s));
    QVERIFY(m_program->waitForEnd());
    QCOMPARE(m_program->output(), QByteArray());
}

void NotesJourneyTest::wordsAreFoundAndReplaced() {
    m_program->type(u"one two three two"_s);
    QVERIFY(m_program->waitText(u"frmnotes2/rt1"_s, u"one two three two"_s));
    QVERIFY(m_program->click(u"frmnotes2/Toolbar2(7)"_s));
    QVERIFY(m_program->waitVisible(u"frmnotes2/Text1"_s));
    QVERIFY(!m_program->control(u"frmnotes2/ReplaceAllButton"_s).enabled);
    m_program->type(u"two"_s);
    m_program->key(u"Tab"_s);
    m_program->type(u"2"_s);
    QVERIFY(m_program->click(u"frmnotes2/FindButton"_s));
    QVERIFY(waitUntil(
        [this] { return m_program->control(u"frmnotes2/ReplaceAllButton"_s).enabled; }, 5000));
    QVERIFY(m_program->click(u"frmnotes2/ReplaceAllButton"_s));
    QVERIFY(boxIs(u"Replacing done."_s, u"Orvalis"_s, {u"OK"_s}));
    QVERIFY(m_program->answer(u"OK"_s));
    QVERIFY(m_program->waitText(u"frmnotes2/rt1"_s, u"one 2 three 2"_s));
    QVERIFY(m_program->click(u"frmnotes2/rt1"_s));
    m_program->key(u"F3"_s);
    QVERIFY(boxIs(u"String not found."_s, u"Orvalis"_s, {u"OK"_s}));
    QVERIFY(m_program->answer(u"OK"_s));
    QVERIFY(m_program->click(u"frmnotes2/Command5"_s));
    QVERIFY(waitUntil([this] { return !m_program->control(u"frmnotes2/Frame1"_s).visible; }, 5000));
    QVERIFY(m_program->click(u"frmnotes2/Toolbar1(13)"_s));
    QVERIFY(m_program->waitText(u"frmnotes2/rt1"_s, u"one two three two"_s));
}

void NotesJourneyTest::aPictureIsPutInAndTakenAway() {
    QVERIFY(write(file(u"dot.png"_s), picture()));
    m_program->type(u"see"_s);
    QVERIFY(m_program->click(u"frmnotes2/imgSlika"_s));
    QVERIFY(m_program->waitAtRest(u"FileDialog"_s).visible);
    QCOMPARE(m_program->control(u"FileDialog"_s).title, u"Insert Image"_s);
    QVERIFY(chooseFile(file(u"dot.png"_s)));
    QVERIFY(m_program->waitText(u"frmnotes2/rt1"_s, u"see\uFFFC"_s));
    QVERIFY(m_program->click(u"frmnotes2/imgSave"_s));
    QVERIFY(chooseFile(file(u"dot.rtf"_s)));
    QVERIFY(m_program->waitText(u"frmnotes2/Label3"_s, u"dot.rtf"_s));
    QVERIFY(bytesOf(file(u"dot.rtf"_s)).contains("\\pngblip"));
    QVERIFY(m_program->click(u"frmnotes2/Toolbar1(13)"_s));
    QVERIFY(m_program->waitText(u"frmnotes2/rt1"_s, u"see"_s));
}

void NotesJourneyTest::aDocumentIsMailed() {
    const QString log = file(u"mail.log"_s);
    const QString tool = m_program->binFolder() + u"/xdg-email"_s;
    QVERIFY(write(tool, "#!/bin/sh\nprintf '%s\\n' \"$@\" > '" + QFile::encodeName(log) +
                            ".new'\nmv '" + QFile::encodeName(log) + ".new' '" +
                            QFile::encodeName(log) + "'\n"));
    QVERIFY(QFile::setPermissions(tool, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY(m_program->click(u"frmnotes2/imgMail"_s));
    QVERIFY(boxIs(u"Save document before you proceed."_s, u"Send Email"_s, {u"OK"_s}));
    QVERIFY(m_program->answer(u"OK"_s));
    QVERIFY(m_program->click(u"frmnotes2/rt1"_s));
    m_program->type(u"for you"_s);
    QVERIFY(m_program->click(u"frmnotes2/imgSave"_s));
    QVERIFY(chooseFile(file(u"for you.txt"_s)));
    QVERIFY(m_program->waitText(u"frmnotes2/Label3"_s, u"for you.txt"_s));
    QVERIFY(m_program->click(u"frmnotes2/imgMail"_s));
    QVERIFY(waitUntil([&] { return QFile::exists(log); }, 8000));
    const QStringList arguments = QString::fromUtf8(bytesOf(log)).split(u'\n');
    QVERIFY(arguments.contains(u"--attach"_s));
    QVERIFY(arguments.contains(file(u"for you.txt"_s)));
    QVERIFY(bytesOf(log).contains("your_address"));
    // A tool that fails is told of.
    QVERIFY(write(tool, "#!/bin/sh\nexit 4\n"));
    QVERIFY(m_program->click(u"frmnotes2/imgMail"_s));
    QVERIFY(waitUntil([this] { return m_program->messageBox().found; }, 8000));
    QVERIFY(!m_program->messageBox().text.isEmpty());
    m_program->key(u"Return"_s);
}

void NotesJourneyTest::aMailWithoutAMailToolIsToldOf() {
    m_program->terminate();
    QVERIFY(m_program->waitForEnd());
    m_program->setVariable(u"PATH"_s, m_program->binFolder());
    QVERIFY(m_program->start());
    QVERIFY(openPanel());
    m_program->type(u"for you"_s);
    QVERIFY(m_program->click(u"frmnotes2/imgSave"_s));
    QVERIFY(chooseFile(file(u"you.txt"_s)));
    QVERIFY(m_program->waitText(u"frmnotes2/Label3"_s, u"you.txt"_s));
    QVERIFY(m_program->click(u"frmnotes2/imgMail"_s));
    QVERIFY(
        boxIs(u"There is no mail program to send the document with."_s, u"Orvalis"_s, {u"OK"_s}));
    QVERIFY(m_program->answer(u"OK"_s));
    QCOMPARE(left(), u"for you"_s);
}

void NotesJourneyTest::theRightPageIsPrintedInPages() {
    QByteArray text;
    for (int i = 1; i <= 120; ++i)
        text += "Line " + QByteArray::number(i) + "\r\n";
    QVERIFY(write(file(u"long.txt"_s), text));
    QVERIFY(m_program->click(u"frmnotes2/imgPrint"_s));
    QVERIFY(m_program->waitAtRest(u"PrintDialog"_s).visible);
    m_program->key(u"Escape"_s);
    QVERIFY(waitUntil([this] { return !m_program->control(u"PrintDialog"_s).visible; }, 8000));
    QVERIFY(!m_program->messageBox().found);
    openFile(file(u"long.txt"_s));
    QVERIFY(m_program->waitText(u"frmnotes2/Label1"_s, u"long.txt"_s));
    QVERIFY(m_program->click(u"frmnotes2/imgPrint"_s));
    QVERIFY(m_program->waitAtRest(u"PrintDialog"_s).visible);
    const QString pdf = file(u"long.pdf"_s);
    QVERIFY(m_program->click(u"PrintDialog/filename"_s));
    m_program->key(u"ctrl+a"_s);
    m_program->type(pdf);
    m_program->key(u"Return"_s);
    QVERIFY(waitUntil([this] { return !m_program->control(u"PrintDialog"_s).visible; }, 8000));
    QVERIFY(waitUntil([&] { return told(u"pdfinfo"_s, {pdf}).contains(u"Pages:"_s); }, 15000));
    const int pages =
        told(u"pdfinfo"_s, {pdf}).section(u"Pages:"_s, 1).section(u'\n', 0, 0).toInt();
    QVERIFY2(pages == 2 || pages == 3, qPrintable(QString::number(pages)));
    const QStringList lines =
        told(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s}).split(u'\n', Qt::SkipEmptyParts);
    QStringList printed;
    for (const QString& line : lines)
        if (line.contains(u"Line"_s))
            printed << line.trimmed();
    QCOMPARE(printed.size(), 120);
    QCOMPARE(printed.first(), u"Line 1"_s);
    QCOMPARE(printed.last(), u"Line 120"_s);
}

void NotesJourneyTest::theTimeIsWrittenFromTheClocksMenu() {
    QVERIFY(m_program->click(u"frmnotes2/lblVreme"_s, 3));
    QVERIFY(m_program->choose(u"mnuid"_s));
    QVERIFY(waitUntil([this] { return left().contains(u", 20"_s); }, 5000));
}

void NotesJourneyTest::aFindThatOverflowsEndsTheProgramAndNothingIsLost() {
    QVERIFY(m_program->click(u"frmnotes2/lblNot"_s));
    QVERIFY(m_program->waitVisible(u"frmnotes1/rt1"_s));
    QVERIFY(m_program->click(u"frmnotes1/rt1"_s));
    m_program->type(u"the message"_s);
    QVERIFY(m_program->click(u"frmnotes1/imgNot"_s));
    QVERIFY(m_program->waitVisible(u"frmstick/Text1"_s));
    QVERIFY(m_program->click(u"frmstick/Text1"_s));
    m_program->type(u"the sticker"_s);
    QVERIFY(m_program->click(u"frmnotes1/lblNot"_s));
    QVERIFY(m_program->waitVisible(u"frmnotes2/rt1"_s));

    QVERIFY(
        write(file(u"long.rtf"_s), "{\\rtf1 \\b bold\\b0  " + QByteArray(33000, '.') + " end}"));
    openFile(file(u"long.rtf"_s));
    QVERIFY(m_program->waitText(u"frmnotes2/Label1"_s, u"long.rtf"_s));
    QVERIFY(m_program->click(u"frmnotes2/Button1"_s));
    m_program->key(u"ctrl+Home"_s);
    m_program->type(u"mine "_s);
    QVERIFY(m_program->click(u"frmnotes2/Toolbar2(7)"_s));
    QVERIFY(m_program->waitVisible(u"frmnotes2/Text1"_s));
    m_program->type(u"end"_s);
    m_program->key(u"Return"_s);
    QVERIFY(boxIs(u"Run-time error '6':\n\nOverflow"_s, u"Orvalis"_s, {u"OK"_s}));
    QVERIFY(m_program->answer(u"OK"_s));
    QVERIFY(m_program->waitForEnd());
    const QByteArray kept = bytesOf(file(u"recovered.rtf"_s));
    for (const char* piece : {"mine ", "\\b", "the message", "the sticker", "Notes, left page"})
        QVERIFY2(kept.contains(piece), piece);

    // The next start works, and a second end like it keeps both.
    QVERIFY(m_program->start());
    QVERIFY(openPanel());
    m_program->type(u"again"_s);
    QVERIFY(m_program->waitText(u"frmnotes2/rt1"_s, u"again"_s));
    m_program->terminate();
    QVERIFY(m_program->waitForEnd());
    QCOMPARE(bytesOf(file(u"recovered.rtf"_s)), kept);
    QVERIFY(bytesOf(file(u"recovered 2.rtf"_s)).contains("again"));
}

void NotesJourneyTest::theSystemsEndKeepsTheLeftPage() {
    m_program->type(u"unsaved words"_s);
    QVERIFY(m_program->waitText(u"frmnotes2/rt1"_s, u"unsaved words"_s));
    m_program->terminate();
    QVERIFY(m_program->waitForEnd());
    QVERIFY(bytesOf(file(u"recovered.rtf"_s)).contains("unsaved words"));
    QVERIFY(m_program->start());
    QVERIFY(m_program->waitVisible(u"frmnotes"_s));
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, NotesJourneyTest)
#include "notes_journey_test.moc"
