// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "journeys/ink.h"

#include "support/test_main.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;
using namespace orvalis::test;

namespace {

/// The lines of a contact in the book's file.
QByteArray lines(const QByteArray& first, const QByteArray& address) {
    return '"' + first + "\"\r\n\"Lee\"\r\n\"Friends\"\r\n\"" + address + "\"\r\n" +
           QByteArray("\"\"\r\n").repeated(11);
}

QString textOfPdf(const QString& pdf) {
    QProcess process;
    process.start(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s});
    process.waitForFinished(20000);
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

/// Contacts on their way to paper, as a person sends them there.
class AddressPrintJourneyTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void contactsAreGatheredFoundReplacedSavedAndPrinted();
    void theNextPageBeginsEmpty();
    void moreContactsThanCanBeCountedEndTheProgramAndTheBookStays();

private:
    bool openPanel(const QByteArray& book);
    bool printContacts(const QString& entry);
    bool answerDialog(const QString& dialog, const QString& path);
    QString page() { return m_program->control(u"frmPrint/rtb"_s).text; }
    bool pageHas(const QString& text) {
        return waitUntil([&] { return page().contains(text); }, 10000);
    }

    std::unique_ptr<Stage> m_stage;
    std::unique_ptr<DrivenProgram> m_program;
};

void AddressPrintJourneyTest::init() {
    m_stage = std::make_unique<Stage>(Stage::Plan());
    QVERIFY2(m_stage->trouble().isEmpty(), qPrintable(m_stage->trouble()));
    m_program = std::make_unique<DrivenProgram>(*m_stage, QStringLiteral(ORVALIS_EXECUTABLE));
}

void AddressPrintJourneyTest::cleanup() {
    m_program.reset();
    m_stage.reset();
}

bool AddressPrintJourneyTest::openPanel(const QByteArray& book) {
    QFile file(m_program->folder() + u"/address1.dat"_s);
    if (!file.open(QIODevice::WriteOnly) || file.write(book) != book.size())
        return false;
    file.close();
    return m_program->start() && m_program->waitVisible(u"frmnotes"_s) &&
           m_program->click(u"frmnotes/imgopen3"_s) &&
           m_program->waitVisible(u"frmnotes3/imgPrint"_s);
}

bool AddressPrintJourneyTest::printContacts(const QString& entry) {
    return m_program->click(u"frmnotes3/imgPrint"_s) &&
           waitUntil([&] { return m_program->menuEntry(entry).visible; }, 10000) &&
           m_program->choose(entry);
}

bool AddressPrintJourneyTest::answerDialog(const QString& dialog, const QString& path) {
    if (!m_program->waitAtRest(dialog).visible)
        return false;
    if (dialog == u"PrintDialog")
        m_program->click(u"PrintDialog/filename"_s);
    m_program->key(u"ctrl+a"_s);
    m_program->type(path);
    m_program->key(u"Return"_s);
    return waitUntil([&] { return !m_program->control(dialog).visible; }, 10000);
}

void AddressPrintJourneyTest::contactsAreGatheredFoundReplacedSavedAndPrinted() {
    const QByteArray book =
        lines("Ann", "Mill Lane 4") + lines("Bob", "Mill Lane 5") + lines("Cyd", "Kirk Road");
    QVERIFY(openPanel(book));
    QVERIFY(printContacts(u"mnup1"_s));
    QVERIFY(m_program->waitAtRest(u"frmPrint/rtb"_s).visible);
    QCOMPARE(m_program->control(u"frmPrint"_s).title, u"Print Address : Total No 3"_s);
    QVERIFY(pageHas(u"---------- Item No 3 ---------"_s));
    QVERIFY(!m_program->control(u"frmnotes3/PB1"_s).visible);
    QCOMPARE(m_program->fileBytes(u"address1tmp.dat"_s), book);

    QVERIFY(m_program->click(u"frmPrint/tb1(add)"_s));
    QVERIFY(waitUntil([this] { return page().count(u"First Name"_s) == 4; }, 10000));

    QVERIFY(m_program->click(u"frmPrint/tb1(find)"_s));
    QVERIFY(m_program->waitAtRest(u"frmFind/Text1"_s).visible);
    m_program->type(u"Mill"_s);
    m_program->key(u"Return"_s);
    QVERIFY(waitUntil([this] { return m_program->control(u"frmFind/ReplaceAllButton"_s).enabled; },
                      10000));
    QVERIFY(m_program->click(u"frmFind/Text2"_s));
    m_program->type(u"Hill"_s);
    QVERIFY(m_program->click(u"frmFind/ReplaceAllButton"_s));
    QVERIFY(
        waitUntil([this] { return m_program->messageBox().text == u"Replacing done."_s; }, 10000));
    QVERIFY(m_program->answer(u"OK"_s));
    QVERIFY(pageHas(u"Hill Lane 4"_s));
    QCOMPARE(page().count(u"Hill Lane"_s), 3);
    QVERIFY(m_program->click(u"frmFind/Command5"_s));
    QVERIFY(waitUntil([this] { return !m_program->control(u"frmFind"_s).visible; }, 10000));

    QVERIFY(m_program->click(u"frmPrint/rtb"_s));
    m_program->key(u"ctrl+Home"_s);
    QVERIFY(inkOn(*m_program, u"frmPrint/rtb"_s).red > 20);
    QVERIFY(m_program->click(u"frmPrint/tb1(save)"_s));
    QVERIFY(answerDialog(u"FileDialog"_s, m_program->folder() + u"/page.txt"_s));
    QVERIFY(waitUntil(
        [this] { return m_program->fileBytes(u"page.txt"_s).contains("     Hill Lane 5\r\n"); },
        10000));
    // The page shows at once what the file keeps.
    QVERIFY(waitUntil([this] { return inkOn(*m_program, u"frmPrint/rtb"_s).red == 0; }, 10000));

    QVERIFY(m_program->click(u"frmPrint/tb1(print)"_s));
    const QString pdf = m_program->folder() + u"/page.pdf"_s;
    QVERIFY(answerDialog(u"PrintDialog"_s, pdf));
    QVERIFY(waitUntil([&] { return textOfPdf(pdf).contains(u"Comments"_s); }, 20000));
    const QString printed = textOfPdf(pdf);
    for (const QString& text :
         {u"---------- Item No 1 ---------"_s, u"Hill Lane 4"_s, u"Hill Lane 5"_s, u"Kirk Road"_s})
        QVERIFY2(printed.contains(text), qPrintable(printed));
    QCOMPARE(printed.count(u"First Name"_s), 4);
    QCOMPARE(m_program->fileBytes(u"address1.dat"_s), book);
}

void AddressPrintJourneyTest::theNextPageBeginsEmpty() {
    QVERIFY(openPanel(lines("Ann", "Mill Lane 4")));
    QVERIFY(printContacts(u"mnup1"_s));
    QVERIFY(pageHas(u"Item No 1"_s));
    QVERIFY(m_program->closeThroughWindowManager(u"frmPrint"_s));
    QVERIFY(waitUntil([this] { return !m_program->control(u"frmPrint"_s).visible; }, 10000));
    QVERIFY(printContacts(u"mnup2"_s));
    QVERIFY(pageHas(u"Mill Lane 4"_s));
    QVERIFY(!page().contains(u"Item No"_s));
    QCOMPARE(m_program->control(u"frmPrint"_s).title, u"Address Print"_s);
}

void AddressPrintJourneyTest::moreContactsThanCanBeCountedEndTheProgramAndTheBookStays() {
    QByteArray book;
    for (int number = 1000; number < 1328; ++number)
        book += lines("Ann " + QByteArray::number(number), "Mill Lane");
    QVERIFY(openPanel(book));
    QVERIFY(printContacts(u"mnup1"_s));
    QVERIFY(waitUntil(
        [this] { return m_program->messageBox().text == u"Run-time error '6':\n\nOverflow"_s; },
        20000));
    QVERIFY(m_program->answer(u"OK"_s));
    QVERIFY(m_program->waitForEnd());
    QCOMPARE(m_program->fileBytes(u"address1.dat"_s), book);
    QCOMPARE(m_program->fileBytes(u"address1tmp.dat"_s), book);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, AddressPrintJourneyTest)
#include "address_print_journey_test.moc"
