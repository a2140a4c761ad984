// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/reminder_road.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;

namespace {

const QString Box = u"frmnotes1/rt1"_s;
const QString Notes = u"frmnotes2/rt1"_s;

/// A program of somebody else's that puts bytes on the clipboard of the stage, and takes them.
class OtherProgram {
public:
    explicit OtherProgram(const Stage& stage)
        : m_environment(stage.environment()) {}

    /// Offers the bytes as the one thing on the clipboard. \returns whether they are on offer.
    bool put(const QString& target, const QByteArray& bytes) {
        QProcess xclip;
        prepare(xclip, {u"-i"_s, u"-t"_s, target});
        xclip.setStandardOutputFile(
            QProcess::nullDevice()); // who serves the clipboard stays behind
        xclip.start();
        xclip.write(bytes);
        xclip.closeWriteChannel();
        return xclip.waitForFinished(10000) && xclip.exitCode() == 0 &&
               waitUntil([&] { return take(u"TARGETS"_s).contains(target.toLatin1()); }, 5000);
    }

    QByteArray take(const QString& target) {
        QProcess xclip;
        prepare(xclip, {u"-o"_s, u"-t"_s, target});
        xclip.start();
        xclip.waitForFinished(20000);
        return xclip.readAllStandardOutput();
    }

private:
    void prepare(QProcess& xclip, const QStringList& arguments) const {
        xclip.setProcessEnvironment(m_environment);
        xclip.setProgram(u"xclip"_s);
        xclip.setArguments(QStringList{u"-selection"_s, u"clipboard"_s} + arguments);
    }

    QProcessEnvironment m_environment;
};

/// A small PNG.
QByteArray picture() {
    return QByteArray::fromBase64(
        "iVBORw0KGgoAAAANSUhEUgAAAAgAAAAGCAIAAABxZ0isAAAAXklEQVR42g3JIQEAQQhFQZKgCUEI"
        "9Cb5SdCEIMTTJLobO2aGG2k8Q0Yba5xhFniQwQsUdLDBxR+FF1m8QkUXW1z9IVykeEKixYrTH4MP"
        "ObxBQw873PwBDgkPBA0LBx+zu0vx/4tseAAAAABJRU5ErkJggg==");
}

} // namespace

/// The message box among other programs: what they put on the clipboard arrives, and what is copied
/// from it they can take.
class ClipboardJourneyTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void whatOthersOfferIsPasted_data();
    void whatOthersOfferIsPasted();
    void aPictureIsPastedWithItsOwnBytes();
    void aMegabyteTravelsBothWays();
    void anOwnerThatIsStoppedHoldsNobody_data();
    void anOwnerThatIsStoppedHoldsNobody();
    void anOwnerThatIsStoppedHoldsNeitherTheNotesNorTheirClock();
    void anOwnerThatIsGoneLeavesNothingToPaste();

private:
    bool openNotes();
    bool offer(QProcess& owner);
    void paste(const QString& target, const QByteArray& bytes);
    QByteArray copied(const QString& target);

    std::unique_ptr<Stage> m_stage;
    std::unique_ptr<OtherProgram> m_other;
    std::unique_ptr<DrivenProgram> m_program;
};

void ClipboardJourneyTest::init() {
    m_stage = std::make_unique<Stage>(Stage::Plan());
    QVERIFY2(m_stage->trouble().isEmpty(), qPrintable(m_stage->trouble()));
    m_other = std::make_unique<OtherProgram>(*m_stage);
    m_program = std::make_unique<DrivenProgram>(*m_stage, QStringLiteral(ORVALIS_EXECUTABLE));
    QVERIFY(m_program->start());
    ReminderRoad road(*m_program, [](const QString&) {});
    road.openPanel();
    QVERIFY2(road.trouble().isEmpty(), qPrintable(road.trouble()));
    QVERIFY(m_program->click(Box));
}

void ClipboardJourneyTest::cleanup() {
    m_program.reset();
    m_other.reset();
    m_stage.reset();
}

void ClipboardJourneyTest::paste(const QString& target, const QByteArray& bytes) {
    QVERIFY(m_other->put(target, bytes));
    m_program->key(u"ctrl+a"_s);
    m_program->key(u"ctrl+v"_s);
}

/// All of the message, as another program gets it after a copy.
QByteArray ClipboardJourneyTest::copied(const QString& target) {
    m_other->put(u"text/plain"_s, "before");
    m_program->key(u"ctrl+a"_s);
    m_program->key(u"ctrl+c"_s);
    if (!waitUntil([&] { return m_other->take(u"TARGETS"_s).contains("text/rtf"); }, 10000))
        return {};
    return m_other->take(target);
}

void ClipboardJourneyTest::whatOthersOfferIsPasted_data() {
    QTest::addColumn<QString>("target");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("format");
    const QByteArray rtf = "{\\rtf1\\ansi{\\colortbl;\\red255\\green0\\blue0;}plain {\\b bold} "
                           "\\cf1 red\\cf0\\par \\qc caf\\'e9\\par}";
    QTest::newRow("text/rtf") << u"text/rtf"_s << rtf << u"plain bold red\r\ncafé"_s
                              << QByteArray("\\b bold");
    QTest::newRow("application/rtf")
        << u"application/rtf"_s << rtf << u"plain bold red\r\ncafé"_s << QByteArray("\\qc");
    QTest::newRow("text/html") << u"text/html"_s
                               << QByteArray("<p>a page with <i>slanted</i> words</p>")
                               << u"a page with slanted words"_s << QByteArray("\\i slanted");
    QTest::newRow("text") << u"UTF8_STRING"_s << QByteArray("first line\nživot 中")
                          << u"first line\r\nživot 中"_s << QByteArray("\\u20013?");
}

void ClipboardJourneyTest::whatOthersOfferIsPasted() {
    QFETCH(QString, target);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QFETCH(QByteArray, format);
    paste(target, bytes);
    QVERIFY(m_program->waitText(Box, QString(text).replace(u"\r\n"_s, u"\n"_s)));
    const QByteArray rtf = copied(u"text/rtf"_s);
    QVERIFY2(rtf.startsWith("{\\rtf1") && rtf.contains(format), rtf.constData());
    const QByteArray targets = m_other->take(u"TARGETS"_s);
    for (const char* name : {"text/rtf", "application/rtf", "text/html", "UTF8_STRING"})
        QVERIFY2(targets.contains(name), targets.constData());
    QCOMPARE(QString::fromUtf8(m_other->take(u"UTF8_STRING"_s)), text.replace(u"\r\n"_s, u"\n"_s));
    QCOMPARE(m_other->take(u"application/rtf"_s), rtf);
}

void ClipboardJourneyTest::aPictureIsPastedWithItsOwnBytes() {
    const QByteArray bytes = picture();
    paste(u"image/png"_s, bytes);
    QVERIFY(m_program->waitText(Box, QString(QChar(QChar::ObjectReplacementCharacter))));
    QVERIFY(copied(u"text/rtf"_s).replace("\r\n", "").contains(bytes.toHex()));
    QCOMPARE(m_other->take(u"image/png"_s), bytes);
}

void ClipboardJourneyTest::aMegabyteTravelsBothWays() {
    QByteArray rtf = "{\\rtf1\\ansi ";
    QString text;
    for (int line = 0; text.size() < 1'000'000; ++line) {
        const QString words = u"Line %1 of a long text that somebody copied elsewhere."_s.arg(line);
        rtf += words.toLatin1() + "\\par\r\n";
        text += words + u'\n';
    }
    rtf += '}';
    text.chop(1);
    paste(u"text/rtf"_s, rtf);
    QVERIFY(m_program->waitText(Box, text, 60000));
    QCOMPARE(QString::fromUtf8(copied(u"UTF8_STRING"_s)), text);
    QVERIFY(m_other->take(u"text/rtf"_s).size() > text.size());
}

bool ClipboardJourneyTest::openNotes() {
    return m_program->click(u"frmnotes1/lblNot"_s) && m_program->waitVisible(Notes) &&
           m_program->click(Notes);
}

/// Somebody who serves the clipboard for as long as they live. \returns whether they do.
bool ClipboardJourneyTest::offer(QProcess& owner) {
    owner.setProcessEnvironment(m_stage->environment());
    owner.start(u"xclip"_s, {u"-quiet"_s, u"-selection"_s, u"clipboard"_s, u"-i"_s});
    owner.write("from elsewhere");
    if (!owner.waitForBytesWritten())
        return false;
    owner.closeWriteChannel();
    return waitUntil([&] { return m_other->take(u"UTF8_STRING"_s) == "from elsewhere"; }, 10000);
}

void ClipboardJourneyTest::anOwnerThatIsStoppedHoldsNobody_data() {
    QTest::addColumn<QString>("box");
    QTest::newRow("message") << Box;
    QTest::newRow("title") << u"frmnotes1/txt1"_s;
}

void ClipboardJourneyTest::anOwnerThatIsStoppedHoldsNobody() {
    constexpr int LessThanTheToolkitWaits = 1500;
    QFETCH(QString, box);
    QProcess owner;
    QVERIFY(offer(owner));
    QVERIFY(m_program->click(box));
    m_program->key(u"ctrl+a"_s);
    m_program->type(u"typed"_s);
    QVERIFY(m_program->waitText(box, u"typed"_s));

    ::kill(static_cast<pid_t>(owner.processId()), SIGSTOP);
    m_program->key(u"ctrl+v"_s);
    // Who waits for the owner gets the text once that one goes on; who did not wait has none.
    sleepMilliseconds(LessThanTheToolkitWaits);
    ::kill(static_cast<pid_t>(owner.processId()), SIGCONT);
    m_program->type(u"!"_s);
    QVERIFY(m_program->waitText(box, u"typed!"_s));

    QVERIFY(waitUntil(
        [&] {
            m_program->key(u"ctrl+a"_s);
            m_program->key(u"ctrl+v"_s);
            return m_program->control(box).text == u"from elsewhere"_s;
        },
        20000));
    owner.kill();
    owner.waitForFinished();
}

void ClipboardJourneyTest::anOwnerThatIsStoppedHoldsNeitherTheNotesNorTheirClock() {
    constexpr int LessThanTheToolkitWaits = 3000;
    QVERIFY(openNotes());
    QProcess owner;
    QVERIFY(offer(owner));
    m_program->type(u"typed"_s);
    QVERIFY(m_program->waitText(Notes, u"typed"_s));
    const auto clock = [this] { return m_program->control(u"frmnotes2/lblVreme"_s).text; };

    ::kill(static_cast<pid_t>(owner.processId()), SIGSTOP);
    for (const QString& way : {u"key"_s, u"button"_s}) {
        const QString before = clock();
        if (way == u"key"_s)
            m_program->key(u"ctrl+v"_s);
        else
            m_program->click(u"frmnotes2/Toolbar1(11)"_s);
        QVERIFY2(waitUntil([&] { return clock() != before; }, LessThanTheToolkitWaits),
                 qPrintable(way));
    }
    QVERIFY(m_program->click(Notes));
    m_program->key(u"ctrl+End"_s);
    m_program->type(u"!"_s);
    QVERIFY(m_program->waitText(Notes, u"typed!"_s));
    ::kill(static_cast<pid_t>(owner.processId()), SIGCONT);
    owner.kill();
    owner.waitForFinished();
}

void ClipboardJourneyTest::anOwnerThatIsGoneLeavesNothingToPaste() {
    QVERIFY(openNotes());
    const auto canPaste = [this] {
        return m_program->control(u"frmnotes2/Toolbar1(11)"_s).enabled;
    };
    QProcess owner;
    QVERIFY(offer(owner));
    m_program->key(u"ctrl+v"_s);
    QVERIFY(m_program->waitText(Notes, u"from elsewhere"_s));
    QVERIFY(waitUntil(canPaste, 5000));

    owner.kill();
    owner.waitForFinished();
    m_program->key(u"ctrl+v"_s);
    m_program->type(u"!"_s);
    QVERIFY(m_program->waitText(Notes, u"from elsewhere!"_s));
    QVERIFY(waitUntil([&] { return !canPaste(); }, 5000));
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, ClipboardJourneyTest)
#include "clipboard_journey_test.moc"
