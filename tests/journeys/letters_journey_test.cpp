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
