// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/address_book.h"
#include "address/address_file.h"
#include "runtime/app.h"
#include "runtime/whole_file.h"
#include "support/temporary_folder.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRandomGenerator>
#include <QThread>

#include <cstdio>
#include <cstring>
#include <functional>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int Edits = 500;
const QString Data = u"address1.dat"_s;

/// Adds, saves and deletes by turns, the same at each run. Each write that is put in place is told
/// with the book that it wrote.
class Edit {
public:
    Edit(AddressBook& book, const std::function<void()>& write)
        : m_book(book)
        , m_write(write) {}

    void run(int number) {
        if (number % 5 == 3)
            save(number);
        else if (number % 5 == 4)
            remove();
        else
            append(contact(number));
        if (number % 5 != 4)
            m_write();
    }

private:
    static AddressRecord contact(int number) {
        AddressRecord record;
        record.First = u"Contact %1"_s.arg(number);
        record.Notes = u"a line, and\r\nanother\r\n"_s.repeated(number % 40);
        return record;
    }
    void append(const AddressRecord& record) {
        m_book.makeRoom();
        m_book.record(m_book.AddressCount) = record;
        ++m_book.AddressCount;
    }
    /// Takes a record but the last one out; that one is doubled until the count is lowered.
    void shift() {
        for (int i = m_random.bounded(m_book.AddressCount - 1); i < m_book.AddressCount - 1; ++i)
            m_book.record(i) = m_book.record(i + 1);
    }
    void save(int number) {
        shift();
        --m_book.AddressCount;
        append(contact(-number));
    }
    void remove() {
        shift();
        m_write();
        --m_book.AddressCount;
        m_write();
    }

    AddressBook& m_book;
    std::function<void()> m_write;
    QRandomGenerator m_random{5};
};

// What this executable does where a test starts it again: it edits the book of a folder and tells
// each write that was put in place.
int editBook(const char* folder) {
    const QString path = QFile::decodeName(folder);
    const App app(path + u"/orvalis"_s, path + u"/data"_s, {});
    AddressBook book(app);
    book.load();
    Edit edit(book, [&book] {
        book.WriteAddressFile();
        std::puts("written");
        std::fflush(stdout);
    });
    for (int number = 0; number < Edits; ++number)
        edit.run(number);
    return 0;
}

/// The bytes of the book ahead of the first write and behind each.
QList<QByteArray> allStates() {
    const TemporaryFolder folder;
    const App app(folder.file(u"orvalis"_s), folder.file(u"data"_s), {});
    AddressBook book(app);
    QList<QByteArray> states{QByteArray()};
    Edit edit(book, [&] { states << addressFileBytes(book.records()); });
    for (int number = 0; number < Edits; ++number)
        edit.run(number);
    return states;
}

/// This executable while it edits a book.
class Editor {
public:
    explicit Editor(const QStringList& tracer = {}) {
        m_folder.write(Data, "");
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"ASAN_OPTIONS"_s, u"detect_leaks=0"_s);
        m_process.setProcessEnvironment(environment);
        m_process.setStandardErrorFile(QProcess::nullDevice());
        QStringList command = tracer;
        command << QCoreApplication::applicationFilePath() << u"killed_edit_test"_s << u"--edit"_s
                << m_folder.path();
        const QString program = command.takeFirst();
        m_process.start(program, command);
    }
    ~Editor() {
        m_process.kill();
        m_process.waitForFinished();
    }

    void waitForWrites(int count) {
        while (m_told.count('\n') < count && m_process.waitForReadyRead(60000))
            m_told += m_process.readAllStandardOutput();
    }
    void kill() { m_process.kill(); }
    /// \returns whether it came to its end alive.
    bool finish() {
        const bool ended = m_process.waitForFinished(120000);
        m_told += m_process.readAllStandardOutput();
        return ended && m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    }
    /// How many writes were put in place for sure.
    qsizetype told() const { return m_told.count('\n'); }
    /// What the next start finds.
    QByteArray book() const {
        removeLeftovers(m_folder.path());
        return m_folder.read(Data);
    }
    QStringList files() const { return m_folder.names(); }

private:
    TemporaryFolder m_folder;
    QProcess m_process;
    QByteArray m_told;
};

} // namespace

/// The book under a kill: at any moment of 500 edits, and at each kind of system call of a write.
/// ORVALIS_KILLS says how many of the former; some are enough to see that it works.
class KilledEditTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { m_states = allStates(); }
    void editsThatAreNotKilledLeaveTheLastBook();
    void aKillAtAnyMomentLeavesABookAheadOfAnEditOrBehindIt();
    void aKillAtASystemCallOfAWriteLeavesABookToo_data();
    void aKillAtASystemCallOfAWriteLeavesABookToo();

private:
    /// What is wrong with what a killed run has left, or "".
    QString faultOf(const Editor& editor) const {
        const QByteArray book = editor.book();
        const qsizetype told = editor.told();
        for (qsizetype write = told; write <= told + 1 && write < m_states.size(); ++write)
            if (book == m_states[write])
                return editor.files() == QStringList{Data} ? QString()
                                                           : u"something was left behind"_s;
        return u"no whole book behind %1 writes"_s.arg(told);
    }

    QList<QByteArray> m_states;
};

void KilledEditTest::editsThatAreNotKilledLeaveTheLastBook() {
    Editor editor;
    QVERIFY(editor.finish());
    QCOMPARE(editor.told(), 600); // a hundred deletions write twice
    QCOMPARE(m_states.size(), 601);
    QCOMPARE(editor.book(), m_states.constLast());
    // Each write is another book, so that one cannot stand for the other.
    for (qsizetype write = 1; write < m_states.size(); ++write)
        QVERIFY(m_states[write] != m_states[write - 1]);
}

void KilledEditTest::aKillAtAnyMomentLeavesABookAheadOfAnEditOrBehindIt() {
    constexpr int Few = 15;
    constexpr int LongestWrite = 4000; // microseconds
    const int kills = std::max(Few, qEnvironmentVariableIntValue("ORVALIS_KILLS"));
    for (int i = 0; i < kills; ++i) {
        Editor editor;
        editor.waitForWrites(QRandomGenerator::global()->bounded(590));
        QThread::usleep(QRandomGenerator::global()->bounded(LongestWrite));
        editor.kill();
        editor.finish();
        const QString fault = faultOf(editor);
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
    }
}

void KilledEditTest::aKillAtASystemCallOfAWriteLeavesABookToo_data() {
    QTest::addColumn<QString>("call");
    for (const QString& call : {u"write"_s, u"fsync"_s, u"rename"_s, u"fchmod,chmod"_s})
        QTest::newRow(qPrintable(call)) << call;
}

void KilledEditTest::aKillAtASystemCallOfAWriteLeavesABookToo() {
    QFETCH(QString, call);
    int kills = 0;
    for (const int when : {1, 2, 3, 4, 5, 6, 300, 599}) {
        Editor editor({u"strace"_s, u"-f"_s, u"-o"_s, u"/dev/null"_s, u"-e"_s, u"trace="_s + call,
                       u"-e"_s, u"inject=%1:signal=KILL:when=%2"_s.arg(call).arg(when)});
        kills += editor.finish() ? 0 : 1;
        const QString fault = faultOf(editor);
        QVERIFY2(fault.isEmpty(), qPrintable(u"%1 at call %2"_s.arg(fault).arg(when)));
    }
    QVERIFY(kills >= 6);
}

ORVALIS_TEST_MAIN(int argc, char** argv) {
    fixedGround();
    QCoreApplication app(argc, argv);
    if (argc == 3 && std::strcmp(argv[1], "--edit") == 0)
        return editBook(argv[2]);
    KilledEditTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "killed_edit_test.moc"
