// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/panel_ground.h"

#include "runtime/unreadable_files.h"
#include "runtime/whole_file.h"

#include <QProcess>
#include <QRandomGenerator>

#include <cstdio>
#include <cstring>
#include <map>
#include <set>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int Reminders = 200;
const QStringList DataFiles{u"Vazno.rtf"_s, u"tmp1.brf"_s, u"tmp2.brf"_s};

QByteArray listOf(int items) {
    QByteArray list = ' ' + QByteArray::number(1 + 2 * items) + "  1 \r\n\r\n";
    for (int i = 0; i < items; ++i)
        list += "Friday, March 13, 2026/07:30:00\r\nCall number " + QByteArray::number(i) + "\r\n";
    return list;
}

// What this executable does where a test starts it again: the panel of a former run's data comes
// up, tells that it is ready, and saves once it is told to.

void saveAMessage(PanelGround& ground) {
    ground.rt1().SetText(u"Call Ann"_s);
    ground.tick(u"chkTop"_s);
    ground.tick(u"chkRemind"_s);
    ground.rtMs2().SetText(u"Ann"_s);
    ground.press(u"Button1"_s);
    ground.press(u"imgSave"_s);
}

/// What the firing of a reminder does to the panel's lists.
void removeAReminder(PanelGround& ground) {
    ground.press(u"imgso"_s);
    for (int i = 0; i < 2; ++i) {
        ground.MS3().RemoveItem(1);
        ground.MS2().RemoveItem(1);
    }
    ground.panel().sv3();
}

int saveOnce(const QByteArray& how) {
    PanelGround ground;
    const QByteArray damage = how == "damaged" ? "{\\b cut off" : "}";
    ground.folder.write(u"Vazno.rtf"_s, "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0\\fs16 " +
                                            QByteArray("a line that is there\\par ").repeated(100) +
                                            damage);
    ground.folder.write(u"tmp1.brf"_s, listOf(3));
    ground.folder.write(u"tmp2.brf"_s, listOf(Reminders));
    ground.panel();
    std::puts("ready");
    std::fflush(stdout);
    std::getchar();
    if (how == "fired")
        removeAReminder(ground);
    else
        saveAMessage(ground);
    // The folder stays for those who look at it.
    std::_Exit(0);
}

/// This executable on its way to a save, with its data in a folder below one of our own.
class Saver {
public:
    explicit Saver(const QString& how, const QStringList& tracer = {}) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"TMPDIR"_s, m_place.path());
        // A sanitizer's look for leaks at the end would be traced too.
        environment.insert(u"ASAN_OPTIONS"_s, u"detect_leaks=0"_s);
        m_process.setProcessEnvironment(environment);
        m_process.setStandardErrorFile(QProcess::nullDevice());
        QStringList command = tracer;
        command << QCoreApplication::applicationFilePath() << u"killed_save_test"_s << u"--save"_s
                << how;
        const QString program = command.takeFirst();
        m_process.start(program, command);
    }
    ~Saver() {
        m_process.kill();
        m_process.waitForFinished();
    }

    bool waitUntilReady() {
        while (!m_process.canReadLine() && m_process.waitForReadyRead(60000)) {
        }
        return m_process.readLine() == "ready\n";
    }
    void go() {
        m_process.write("\n");
        m_process.waitForBytesWritten();
    }
    void kill() { m_process.kill(); }
    /// \returns whether it came to its end alive.
    bool finish() {
        return m_process.waitForFinished(60000) && m_process.exitStatus() == QProcess::NormalExit &&
               m_process.exitCode() == 0;
    }

    QString folder() const {
        const QStringList folders =
            QDir(m_place.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        return folders.isEmpty() ? QString() : m_place.file(folders.constFirst());
    }
    /// Every file by its name, as the next start finds them.
    std::map<QString, QByteArray> files() const {
        const QString path = folder();
        removeLeftovers(path);
        std::map<QString, QByteArray> all;
        const QStringList names = QDir(path).entryList(QDir::Files | QDir::Hidden);
        for (const QString& name : names) {
            QFile file(path + u'/' + name);
            if (file.open(QIODevice::ReadOnly))
                all[name] = file.readAll();
        }
        return all;
    }

private:
    TemporaryFolder m_place;
    QProcess m_process;
};

/// The numbers of the calls by which a save touches its folder, each among the calls of its name,
/// and their neighbours: a few others, which wake threads up, come now here, now there.
QList<int> numbersOfCalls(const QString& how, const QString& calls) {
    constexpr int Neighbours = 2;
    const TemporaryFolder log;
    Saver saver(how, {u"strace"_s, u"-f"_s, u"-y"_s, u"-o"_s, log.file(u"log"_s), u"-e"_s,
                      u"trace="_s + calls});
    if (!saver.waitUntilReady())
        qFatal("the panel does not come up under strace");
    saver.go();
    if (!saver.finish())
        qFatal("the save does not end under strace");
    std::map<QByteArray, int> counts;
    std::set<int> numbers;
    QByteArray thread;
    for (const QByteArray& line : log.read(u"log"_s).split('\n')) {
        const qsizetype name = line.indexOf(' ') + 1;
        const qsizetype end = line.indexOf('(');
        if (end < 0)
            continue;
        if (thread.isEmpty())
            thread = line.first(name); // the one that saves
        if (!line.startsWith(thread))
            continue;
        const int number = ++counts[line.mid(name, end - name)];
        if (line.contains("/.orvalis-") || line.contains(".unreadable"))
            for (int near = number - Neighbours; near <= number + Neighbours; ++near)
                if (near > 0)
                    numbers.insert(near);
    }
    return {numbers.begin(), numbers.end()};
}

using Files = std::map<QString, QByteArray>;

/// What lies there ahead of a save and behind it.
struct Outcome {
    explicit Outcome(const QString& how) {
        Saver saver(how);
        if (!saver.waitUntilReady())
            qFatal("the panel does not come up");
        before = saver.files();
        saver.go();
        if (!saver.finish())
            qFatal("the save does not end");
        after = saver.files();
    }

    /// What is wrong with files that a killed save has left, or "".
    QString faultOf(const Files& files) const {
        bool newerMayFollow = true;
        for (const QString& name : DataFiles) {
            const auto found = files.find(name);
            if (found == files.end())
                return name + u" is gone"_s;
            const bool old = found->second == before.at(name);
            if (!old && found->second != after.at(name))
                return name + u" is neither the old nor the new one"_s;
            if (!newerMayFollow && !old)
                return name + u" was written ahead of its turn"_s;
            newerMayFollow = newerMayFollow && (!old || before.at(name) == after.at(name));
        }
        for (const auto& [name, bytes] : files)
            if (!after.contains(name))
                return name + u" was left behind"_s;
            else if (!DataFiles.contains(name) && bytes != after.at(name))
                return name + u" is not whole"_s;
        return {};
    }

    Files before;
    Files after;
};

} // namespace

/// The panel's saves under a kill: at each system call of one that writes, syncs, links, renames or
/// removes, and at any moment. ORVALIS_KILLS says how many of the latter; some are enough to see
/// that it works, a thousand to rely on it.
class KilledSaveTest : public QObject {
    Q_OBJECT
private slots:
    void aSaveThatIsNotKilledWritesEveryFile();
    void aKillAtAnySystemCallLeavesOldFilesOrNewOnes_data();
    void aKillAtAnySystemCallLeavesOldFilesOrNewOnes();
    void aKillAtAnyMomentLeavesOldFilesOrNewOnes();
};

void KilledSaveTest::aSaveThatIsNotKilledWritesEveryFile() {
    const Outcome saved(u"message"_s);
    for (const QString& name : DataFiles)
        QVERIFY(saved.before.at(name) != saved.after.at(name));
    QVERIFY(saved.after.at(u"tmp2.brf"_s).startsWith(" 403  1 "));
    const Outcome fired(u"fired"_s);
    QVERIFY(fired.after.at(u"tmp2.brf"_s).startsWith(" 399  1 "));
    const Outcome damaged(u"damaged"_s);
    QCOMPARE(damaged.after.at(u"Vazno.rtf.unreadable"_s), damaged.before.at(u"Vazno.rtf"_s));
}

void KilledSaveTest::aKillAtAnySystemCallLeavesOldFilesOrNewOnes_data() {
    QTest::addColumn<QString>("how");
    QTest::addColumn<QString>("call");
    QTest::addColumn<int>("fewest"); // how many of them one save makes at the least
    for (const QString& how : {u"message"_s, u"fired"_s, u"damaged"_s})
        for (const auto& [call, fewest] :
             {std::pair(u"write,pwrite64,writev"_s, 1), std::pair(u"fsync,fdatasync"_s, 1),
              std::pair(u"rename,renameat,renameat2"_s, 1),
              std::pair(u"link,linkat"_s, how == u"damaged" ? 1 : 0),
              std::pair(u"fchmod,chmod"_s, 1), std::pair(u"unlink,unlinkat"_s, 0)})
            QTest::addRow("%s, %s", qPrintable(how), qPrintable(call)) << how << call << fewest;
}

void KilledSaveTest::aKillAtAnySystemCallLeavesOldFilesOrNewOnes() {
    QFETCH(QString, how);
    QFETCH(QString, call);
    QFETCH(int, fewest);
    const Outcome outcome(how);
    int kills = 0;
    // What came ahead of the save when it was counted, as a cache that was filled, can be missing
    // from then on: no number meets the save then, and they are counted anew.
    constexpr int MostCounts = 3;
    for (int counts = 0; counts < MostCounts && (counts == 0 || kills < fewest); ++counts)
        for (const int number : numbersOfCalls(how, call)) {
            Saver saver(how,
                        {u"strace"_s, u"-f"_s, u"-o"_s, u"/dev/null"_s, u"-e"_s, u"trace="_s + call,
                         u"-e"_s, u"inject=%1:signal=KILL:when=%2"_s.arg(call).arg(number)});
            if (!saver.waitUntilReady())
                continue; // killed on its way there
            saver.go();
            kills += saver.finish() ? 0 : 1;
            const QString fault = outcome.faultOf(saver.files());
            QVERIFY2(fault.isEmpty(), qPrintable(u"%1 at call %2"_s.arg(fault).arg(number)));
        }
    QVERIFY2(kills >= fewest, qPrintable(u"only %1 kills"_s.arg(kills)));
}

void KilledSaveTest::aKillAtAnyMomentLeavesOldFilesOrNewOnes() {
    constexpr int Few = 20;
    constexpr int LongestSave = 60000; // microseconds
    const int kills = std::max(Few, qEnvironmentVariableIntValue("ORVALIS_KILLS"));
    const Outcome outcome(u"message"_s);
    for (int i = 0; i < kills; ++i) {
        Saver saver(u"message"_s);
        QVERIFY(saver.waitUntilReady());
        saver.go();
        QThread::usleep(QRandomGenerator::global()->bounded(LongestSave));
        saver.kill();
        saver.finish();
        const QString fault = outcome.faultOf(saver.files());
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
    }
}

ORVALIS_TEST_MAIN(int argc, char** argv) {
    fixedGround();
    qputenv("QT_HASH_SEED", "0");
    QApplication app(argc, argv);
    if (argc == 3 && std::strcmp(argv[1], "--save") == 0)
        return saveOnce(argv[2]);
    KilledSaveTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "killed_save_test.moc"
