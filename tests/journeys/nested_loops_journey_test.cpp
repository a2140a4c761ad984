// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/driven_program.h"

#include "support/test_main.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;

/// Windows that are closed while a menu, a box or a drag of theirs holds the program.
class NestedLoopsJourneyTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void aStickerIsClosedUnderTheMenuOfItsText();
    void aStickerIsClosedUnderADragOfItsText();
    void thePanelIsClosedUnderItsHelpMenu();

private:
    /// The Reminder panel and a sticker of it with a text.
    void openSticker();

    std::unique_ptr<Stage> m_stage;
    std::unique_ptr<DrivenProgram> m_program;
};

void NestedLoopsJourneyTest::init() {
    m_stage = std::make_unique<Stage>(Stage::Plan{});
    QVERIFY2(m_stage->trouble().isEmpty(), qPrintable(m_stage->trouble()));
    m_program = std::make_unique<DrivenProgram>(*m_stage, QStringLiteral(ORVALIS_EXECUTABLE));
    QVERIFY(m_program->start());
    QVERIFY(m_program->click(u"imgopen1"_s));
    QVERIFY(m_program->waitVisible(u"frmnotes1"_s));
}

void NestedLoopsJourneyTest::cleanup() {
    m_program.reset();
    m_stage.reset();
}

void NestedLoopsJourneyTest::openSticker() {
    QVERIFY(m_program->click(u"frmnotes1/imgNot"_s));
    QVERIFY(m_program->click(u"frmstick/Text1"_s));
    m_program->type(u"one two three"_s);
    QVERIFY(m_program->waitText(u"frmstick/Text1"_s, u"one two three"_s));
}

void NestedLoopsJourneyTest::aStickerIsClosedUnderTheMenuOfItsText() {
    openSticker();
    QVERIFY(m_program->click(u"frmstick/Text1"_s, 3));
    QVERIFY(m_program->waitVisible(u"editMenu"_s));
    QVERIFY(m_program->closeThroughWindowManager(u"frmstick"_s));
    QVERIFY(waitUntil([&] { return !m_program->control(u"frmstick"_s).found; }, 5000));
    QVERIFY(waitUntil([&] { return !m_program->control(u"editMenu"_s).visible; }, 5000));
    QVERIFY(m_program->isRunning());
    QVERIFY(m_program->click(u"frmnotes1/imgExit"_s));
    QVERIFY(m_program->waitForEnd());
    QCOMPARE(m_program->output(), QByteArray());
}

void NestedLoopsJourneyTest::aStickerIsClosedUnderADragOfItsText() {
    openSticker();
    m_program->key(u"ctrl+a"_s);
    QVERIFY(m_program->beginDrag(u"frmstick/Text1"_s));
    QVERIFY(m_program->closeThroughWindowManager(u"frmstick"_s));
    QVERIFY(waitUntil([&] { return !m_program->control(u"frmstick"_s).visible; }, 5000));
    m_program->letGo();
    QVERIFY(waitUntil([&] { return !m_program->control(u"frmstick"_s).found; }, 5000));
    QVERIFY(m_program->isRunning());
    QVERIFY(m_program->click(u"frmnotes1/imgExit"_s));
    QVERIFY(m_program->waitForEnd());
    QCOMPARE(m_program->output(), QByteArray());
}

void NestedLoopsJourneyTest::thePanelIsClosedUnderItsHelpMenu() {
    QVERIFY(m_program->click(u"frmnotes1/imgHelp"_s));
    QVERIFY(m_program->waitVisible(u"mnuhelp"_s));
    QVERIFY(m_program->closeThroughWindowManager(u"frmnotes1"_s));
    QVERIFY(m_program->waitForEnd());
    QCOMPARE(m_program->output(), QByteArray());
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, NestedLoopsJourneyTest)
#include "nested_loops_journey_test.moc"
