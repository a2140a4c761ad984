// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/driven_program.h"

#include "support/test_main.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;

namespace {

/// The letters over the Notes panel of the program, opened as a person does it.
class OpenedLetters {
public:
    OpenedLetters()
        : m_stage({.screen = QSize(1280, 1024)})
        , m_program(m_stage, QStringLiteral(ORVALIS_EXECUTABLE)) {}

    DrivenProgram& program() { return m_program; }
    QString open() {
        if (!m_stage.trouble().isEmpty())
            return m_stage.trouble();
        if (!m_program.start())
            return u"the program does not start: "_s + QString::fromUtf8(m_program.output());
        if (!m_program.click(u"frmnotes/imgopen2"_s) || !m_program.click(u"frmnotes2/rt1"_s))
            return u"no Notes panel"_s;
        m_program.type(u"Dear Anne, "_s);
        if (!m_program.waitText(u"frmnotes2/rt1"_s, u"Dear Anne, "_s))
            return u"the note was not written"_s;
        if (!m_program.click(u"frmnotes2/imgFind"_s) ||
            !m_program.waitAtRest(u"frmpisma/TV1"_s).found)
            return u"no letters"_s;
        return {};
    }
    bool isNamed(const QString& title) {
        return waitUntil([&] { return m_program.control(u"frmpisma"_s).title == title; }, 5000);
    }
    bool shows(const QString& beginning) {
        return waitUntil(
            [&] { return m_program.control(u"frmpisma/rtp"_s).text.startsWith(beginning); }, 5000);
    }

private:
    Stage m_stage;
    DrivenProgram m_program;
};

} // namespace

class LettersJourneyTest : public QObject {
    Q_OBJECT
private slots:
    /// The words go in bold, as the preview was made; what the note held stays as it was.
    void theFormatOfAnInsertedSentenceIsKept() {
        OpenedLetters letters;
        const QString trouble = letters.open();
        QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
        DrivenProgram& program = letters.program();
        // What is written bold at the caret makes the preview's font that of the note; its own
        // format is that of the letter.
        program.key(u"Down Down"_s);
        QVERIFY(letters.shows(u"Cover Letter, Example 1\n"_s));
        QVERIFY(program.click(u"frmpisma/Command2"_s));
        QVERIFY(waitUntil([&] { return !program.control(u"frmpisma"_s).visible; }, 5000));

        // A larger size, chosen in the note, is the size of what comes in.
        QVERIFY(program.click(u"frmnotes2/rt1"_s));
        program.key(u"ctrl+a ctrl+d"_s);
        QVERIFY(program.waitAtRest(u"FontDialog"_s).visible);
        QVERIFY(program.click(u"FontDialog/size"_s));
        program.key(u"ctrl+a"_s);
        program.type(u"17"_s);
        program.key(u"Return"_s);
        QVERIFY(waitUntil([&] { return !program.control(u"FontDialog"_s).visible; }, 5000));
        program.key(u"ctrl+End ctrl+b"_s);
        QVERIFY(program.click(u"frmnotes2/imgFind"_s));
        QVERIFY(program.waitAtRest(u"frmpisma/TV1"_s).found);
        program.key(u"Down Down"_s);
        QVERIFY(letters.shows(u"Cover Letter, Example 1\n"_s));
        QVERIFY(program.click(u"frmpisma/rtp"_s));
        program.key(u"ctrl+Home shift+End ctrl+Return"_s);
        QVERIFY(program.waitText(u"frmnotes2/rt1"_s, u"Dear Anne, Cover Letter, Example 1"_s));
        program.key(u"Escape"_s);
        QVERIFY(waitUntil([&] { return !program.control(u"frmpisma"_s).visible; }, 5000));
        QVERIFY(program.click(u"frmnotes2/imgSave"_s));
        QVERIFY(program.waitAtRest(u"FileDialog"_s).visible);
        program.type(program.folder() + u"/letter.rtf"_s);
        program.key(u"Return"_s);
        QVERIFY(program.waitText(u"frmnotes2/Label3"_s, u"letter.rtf"_s));
        const QByteArray written = program.fileBytes(u"letter.rtf"_s);
        QVERIFY2(written.contains("\\fs34") && !written.contains("\\fs16"), written);
        QVERIFY(written.contains("Cover Letter, Example 1"));
    }

    void aPhraseIsChosenAndInsertedIntoTheNote() {
        OpenedLetters letters;
        const QString trouble = letters.open();
        QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
        DrivenProgram& program = letters.program();
        QVERIFY(letters.isNamed(u"Letters Templates"_s));

        // The tree has the keyboard; its first group is unfolded.
        program.key(u"Down"_s);
        QVERIFY(letters.isNamed(u"Outline"_s));
        program.key(u"Down"_s);
        QVERIFY(letters.isNamed(u"Example 1"_s));
        QVERIFY(letters.shows(u"Cover Letter, Example 1\n"_s));
        QVERIFY(program.click(u"frmpisma/optLet(1)"_s));
        QVERIFY(letters.shows(u"Useful Key Phrases\n"_s));
        QVERIFY(program.click(u"frmpisma/optLet(2)"_s));
        QVERIFY(letters.shows(u"Useful Key Phrases\n"_s));

        QVERIFY(program.click(u"frmpisma/Command1"_s));
        QVERIFY(waitUntil([&] { return program.messageBox().found; }, 5000));
        QCOMPARE(program.messageBox().text, u"Select text you want to insert."_s);
        QVERIFY(program.answer(u"OK"_s));
        QCOMPARE(program.control(u"frmnotes2/rt1"_s).text, u"Dear Anne, "_s);

        QVERIFY(program.click(u"frmpisma/rtp"_s));
        program.key(u"ctrl+Home"_s);
        program.key(u"shift+End"_s);
        QVERIFY(program.click(u"frmpisma/Command1"_s));
        QVERIFY(program.waitText(u"frmnotes2/rt1"_s, u"Dear Anne, Useful Key Phrases"_s));
        QVERIFY(program.control(u"frmpisma"_s).visible);

        QVERIFY(program.click(u"frmpisma/Command2"_s));
        QVERIFY(waitUntil([&] { return !program.control(u"frmpisma"_s).visible; }, 5000));
        QCOMPARE(program.control(u"frmnotes2/rt1"_s).text, u"Dear Anne, Useful Key Phrases"_s);
    }
};

ORVALIS_TEST_MAIN_WITH(QCoreApplication, LettersJourneyTest)
#include "letters_journey_test.moc"
