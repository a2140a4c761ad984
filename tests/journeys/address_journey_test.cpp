// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/driven_program.h"

#include "support/test_main.h"

#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;

namespace {

/// Fifteen lines of a contact of whom only the two names are known.
QByteArray lines(const QByteArray& first, const QByteArray& second) {
    return '"' + first + "\"\r\n\"" + second + "\"\r\n" + QByteArray("\"\"\r\n").repeated(13);
}

} // namespace

/// The Address panel as a person uses it.
class AddressJourneyTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void aBookIsBegunFilledSortedSearchedChangedAndShortened();
    void aPictureIsChosenAndTheBookIsBackedUp();

private:
    bool writeData(const QString& name, const QByteArray& bytes);
    bool openPanel();
    bool answerBox(const QString& words, const QString& button);
    bool answerFile(const QString& path);
    bool press(const QString& name);
    bool write(const QString& field, const QString& text);
    bool shows(const QString& first, const QString& second);
    bool fileIs(const QString& name, const QByteArray& bytes);

    std::unique_ptr<Stage> m_stage;
    std::unique_ptr<DrivenProgram> m_program;
};

void AddressJourneyTest::init() {
    m_stage = std::make_unique<Stage>(Stage::Plan());
    QVERIFY2(m_stage->trouble().isEmpty(), qPrintable(m_stage->trouble()));
    m_program = std::make_unique<DrivenProgram>(*m_stage, QStringLiteral(ORVALIS_EXECUTABLE));
}

void AddressJourneyTest::cleanup() {
    m_program.reset();
    m_stage.reset();
}

bool AddressJourneyTest::writeData(const QString& name, const QByteArray& bytes) {
    QFile file(m_program->folder() + u'/' + name);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool AddressJourneyTest::openPanel() {
    return m_program->start() && m_program->waitVisible(u"frmnotes"_s) &&
           m_program->click(u"frmnotes/imgopen3"_s);
}

bool AddressJourneyTest::answerBox(const QString& words, const QString& button) {
    return waitUntil([&] { return m_program->messageBox().text == words; }, 10000) &&
           m_program->answer(button) &&
           waitUntil([&] { return !m_program->messageBox().found; }, 10000);
}

bool AddressJourneyTest::answerFile(const QString& path) {
    if (!waitUntil([&] { return m_program->focus().name == u"fileNameEdit"; }, 10000))
        return false;
    m_program->type(path);
    m_program->key(u"Return"_s);
    return waitUntil([&] { return !m_program->control(u"FileDialog"_s).visible; }, 10000);
}

bool AddressJourneyTest::press(const QString& name) {
    return m_program->click(u"frmnotes3/"_s + name);
}

bool AddressJourneyTest::write(const QString& field, const QString& text) {
    if (!press(field))
        return false;
    m_program->key(u"ctrl+a"_s);
    m_program->type(text);
    return m_program->waitText(u"frmnotes3/"_s + field, text);
}

bool AddressJourneyTest::shows(const QString& first, const QString& second) {
    return m_program->waitText(u"frmnotes3/Text1"_s, first) &&
           m_program->waitText(u"frmnotes3/Text2"_s, second);
}

bool AddressJourneyTest::fileIs(const QString& name, const QByteArray& bytes) {
    return waitUntil([&] { return m_program->fileBytes(name) == bytes; }, 10000);
}

void AddressJourneyTest::aBookIsBegunFilledSortedSearchedChangedAndShortened() {
    QVERIFY(openPanel());
    QVERIFY(
        answerBox(u"Data file address1.dat not found. Click on Add and create a new address data "
                  "base."_s,
                  u"OK"_s));
    QVERIFY(m_program->waitVisible(u"frmnotes3/Text1"_s));
    QVERIFY(QFile::exists(m_program->folder() + u"/address1.dat"_s));
    QVERIFY(shows(u"required"_s, u"required"_s));

    const auto add = [this](const QString& first, const QString& second) {
        return write(u"Text1"_s, first) && write(u"Text2"_s, second) && press(u"imgAdd"_s);
    };
    QVERIFY(add(u"Bob"_s, u"Kay"_s));
    QVERIFY(answerBox(u"Item added."_s, u"OK"_s));
    QVERIFY(press(u"imgNew"_s));
    QVERIFY(m_program->waitText(u"frmnotes3/Text12"_s, u"http://"_s));
    QVERIFY(add(u"Ann"_s, u"Lee"_s));
    QVERIFY(answerBox(u"Item added."_s, u"OK"_s));
    QVERIFY(add(u"Ann"_s, u"Kay"_s));
    QVERIFY(
        answerBox(u"Item \nAnn  Kay\nalready exist.\nChange First or Second Name to save data as "
                  "a new item."_s,
                  u"OK"_s));

    QVERIFY(press(u"Command4"_s));
    QVERIFY(shows(u"Bob"_s, u"Kay"_s));
    QVERIFY(press(u"imgSort"_s));
    QVERIFY(answerBox(u"Items sorted by First Name."_s, u"OK"_s));
    QVERIFY(shows(u"Bob"_s, u"Kay"_s));
    QVERIFY(press(u"Command2"_s));
    QVERIFY(shows(u"Ann"_s, u"Lee"_s));
    QVERIFY(press(u"Command5"_s));
    QVERIFY(shows(u"Bob"_s, u"Kay"_s));

    // The search shows Ann; Save acts on the contact that was current before it.
    QVERIFY(press(u"Combo2"_s));
    m_program->key(u"Home"_s);
    m_program->key(u"Return"_s);
    QVERIFY(waitUntil([&] { return m_program->control(u"frmnotes3/Combo3"_s).enabled; }, 5000));
    m_program->type(u"nobody"_s);
    m_program->key(u"Return"_s);
    QVERIFY(answerBox(u"No such item."_s, u"OK"_s));
    m_program->key(u"ctrl+a"_s);
    m_program->type(u"ann"_s);
    m_program->key(u"Return"_s);
    QVERIFY(shows(u"Ann"_s, u"Lee"_s));
    QVERIFY(!m_program->control(u"frmnotes3/Combo3"_s).enabled);

    QVERIFY(press(u"Command3"_s));
    QVERIFY(shows(u"Ann"_s, u"Lee"_s));
    QVERIFY(write(u"Text11"_s, u"ann@example.org"_s));
    QVERIFY(press(u"imgSave"_s));
    QVERIFY(answerBox(u"Changes saved."_s, u"OK"_s));
    QVERIFY(m_program->fileBytes(u"address1.dat"_s).startsWith("\"Bob\"\r\n"));
    QVERIFY(m_program->fileBytes(u"address1.dat"_s).contains("\"ann@example.org\"\r\n"));

    QVERIFY(press(u"imgDel"_s));
    QVERIFY(answerBox(u"Do you want to continue?"_s, u"Yes"_s));
    QVERIFY(shows(u"Bob"_s, u"Kay"_s));
    QVERIFY(waitUntil([&] { return m_program->fileBytes(u"address1.dat"_s).count("\r\n") == 15; },
                      5000));
    QVERIFY(press(u"imgDel"_s));
    QVERIFY(answerBox(u"Can't remove last item. Modify it and save changes."_s, u"OK"_s));

    QVERIFY(press(u"lblAdd"_s));
    QVERIFY(m_program->waitVisible(u"frmnotes2/rt1"_s));
    QVERIFY(m_program->isRunning());
}

void AddressJourneyTest::aPictureIsChosenAndTheBookIsBackedUp() {
    const QByteArray ann = lines("Ann", "Lee");
    QVERIFY(writeData(u"address1.dat"_s, ann));
    QVERIFY(writeData(u"old.dat"_s, "old"));
    const QString picture = m_program->folder() + u"/ann.png"_s;
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(picture));
    QVERIFY(openPanel());
    QVERIFY(m_program->waitVisible(u"frmnotes3/Text1"_s));
    QVERIFY(shows(u"Ann"_s, u"Lee"_s));

    QVERIFY(press(u"imgAdresa1"_s));
    QVERIFY(answerFile(picture));
    QVERIFY(press(u"imgSave"_s));
    QVERIFY(answerBox(u"Changes saved."_s, u"OK"_s));
    QByteArray withPicture = ann;
    withPicture.replace(withPicture.size() - 4, 4, '"' + picture.toLocal8Bit() + "\"\r\n");
    QVERIFY(fileIs(u"address1.dat"_s, withPicture));

    // The book's own file is refused, an existing one asked about, and a No there is none.
    QVERIFY(press(u"imgBack"_s));
    QVERIFY(answerFile(m_program->folder() + u"/address1.dat"_s));
    QVERIFY(
        answerBox(u"Can't overwrite files needed for Orvalis. Choose a different name for backup "
                  "file."_s,
                  u"OK"_s));
    const QString old = m_program->folder() + u"/old.dat"_s;
    const QString question =
        u"The File "_s + old + u" already exists.\nDo you want to replace it?"_s;
    QVERIFY(answerFile(old));
    QVERIFY(answerBox(question, u"Cancel"_s));
    QVERIFY(m_program->waitVisible(u"FileDialog"_s));
    m_program->key(u"Escape"_s);
    QVERIFY(waitUntil([&] { return !m_program->control(u"FileDialog"_s).visible; }, 5000));
    QCOMPARE(m_program->fileBytes(u"old.dat"_s), QByteArray("old"));
    QVERIFY(press(u"imgBack"_s));
    QVERIFY(answerFile(old));
    QVERIFY(answerBox(question, u"OK"_s));
    QVERIFY(fileIs(u"old.dat"_s, withPicture));
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, AddressJourneyTest)
#include "address_journey_test.moc"
