// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/xdg/xdg_shell.h"

#include "platform/child_environment.h"
#include "platform/opening_target.h"
#include "runtime/failure.h"
#include "support/temporary_folder.h"
#include "support/test_main.h"

#include <QCoreApplication>

#include <memory>

using namespace Qt::StringLiterals;
using namespace orvalis;
using namespace orvalis::test;

class XdgShellTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void addressesGoAsTheyStand_data();
    void addressesGoAsTheyStand();
    void documentsGoByTheirAbsolutePath_data();
    void documentsGoByTheirAbsolutePath();
    void aMissingDocumentAndAnEmptyTextAreNotOpened();
    void theOpenerGetsOneArgumentWhateverItHolds_data();
    void theOpenerGetsOneArgumentWhateverItHolds();
    void aPathOf4000CharactersIsOneArgument();
    void withoutAnOpenerOpeningFails();
    void openingDoesNotWaitForTheOpener();
    void theUsersScaleIsHandedOnAndNothingOfOurs();
    void aProgramIsStartedByNameAndByPath();
    void aMissingProgramIsFileNotFound();
    void noProgramAtAllIsAnInvalidCall();
    void aFileThatIsNoProgramIsAnInvalidCall();

private:
    /// Puts a program into the folder that is the whole search path of the test.
    void install(const QString& name, const QByteArray& lines) const;
    QByteArray written(const QString& name) const;

    std::unique_ptr<TemporaryFolder> m_folder;
    QByteArray m_path;
    QString m_currentPath;
};

void XdgShellTest::init() {
    m_folder = std::make_unique<TemporaryFolder>();
    m_path = qgetenv("PATH");
    m_currentPath = QDir::currentPath();
    qputenv("PATH", m_folder->path().toLocal8Bit());
    QDir::setCurrent(m_folder->path());
}

void XdgShellTest::cleanup() {
    qputenv("PATH", m_path);
    QDir::setCurrent(m_currentPath);
}

void XdgShellTest::install(const QString& name, const QByteArray& lines) const {
    const QString path = m_folder->write(name, "#!/bin/sh\n" + lines);
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

QByteArray XdgShellTest::written(const QString& name) const {
    return m_folder->read(name);
}

void XdgShellTest::addressesGoAsTheyStand_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("target");
    const auto same = [](const char* text) {
        QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(text);
    };
    same("http://example.org/a b?c=d;e#f");
    same("https://example.org");
    same("mailto:ann lee@example.org");
    same("mailto:$(id)@example.org");
    same("mailto: ann lee @ example.org ");
    same("tel:0123456");
    same("file:///tmp/x");
    QTest::newRow("no scheme") << u"www.example.org"_s << u"http://www.example.org"_s;
    QTest::newRow("host and port") << u"example.org:8080/x"_s << u"http://example.org:8080/x"_s;
    QTest::newRow("blanks around") << u" http://example.org "_s << u"http://example.org"_s;
    QTest::newRow("leading dash") << u"--help"_s << u"http://--help"_s;
    QTest::newRow("command") << u"; rm -rf x"_s << u"http://; rm -rf x"_s;
}

void XdgShellTest::addressesGoAsTheyStand() {
    QFETCH(QString, text);
    QFETCH(QString, target);
    QCOMPARE(openingTarget(text), target);
}

void XdgShellTest::documentsGoByTheirAbsolutePath_data() {
    QTest::addColumn<QString>("name");
    for (const auto& name :
         {u"Alarm.wav"_s, u"a b.mp3"_s, u"-x.wav"_s, u"--help"_s, u"\"q\".wav"_s, u"a;b.wav"_s,
          u"$(id).wav"_s, u"`id`.wav"_s, u"http:x.wav"_s, u"Ђ.wav"_s, u"a\nb.wav"_s, u"%20.wav"_s})
        QTest::newRow(qPrintable(name)) << name;
}

void XdgShellTest::documentsGoByTheirAbsolutePath() {
    QFETCH(QString, name);
    m_folder->write(name, {});
    const QString path = QDir::current().absoluteFilePath(name);
    QCOMPARE(openingTarget(path), path);
    QCOMPARE(openingTarget(name), path);
}

void XdgShellTest::aMissingDocumentAndAnEmptyTextAreNotOpened() {
    install(u"xdg-open"_s, "echo called > called\n");
    XdgShell shell;
    QVERIFY(!shell.open(m_folder->file(u"missing.wav"_s)));
    QVERIFY(!shell.open(QString()));
    QVERIFY(!QFile::exists(u"called"_s));
}

void XdgShellTest::theOpenerGetsOneArgumentWhateverItHolds_data() {
    QTest::addColumn<QString>("text");
    for (const auto& text :
         {u"http://example.org/a b"_s, u"mailto:a\"b'c@example.org"_s,
          u"http://example.org/;touch x"_s, u"mailto:$(touch x)@example.org"_s,
          u"http://example.org/`touch x`"_s, u"http://example.org/*"_s, u"mailto:Ђ@example.org"_s})
        QTest::newRow(qPrintable(text)) << text;
}

void XdgShellTest::theOpenerGetsOneArgumentWhateverItHolds() {
    QFETCH(QString, text);
    const QByteArray folder = m_folder->path().toLocal8Bit();
    install(u"xdg-open"_s, "printf '%s|%s' $# \"$1\" > " + folder + "/new\n/bin/mv " + folder +
                               "/new " + folder + "/arguments\n");
    XdgShell shell;
    QVERIFY(shell.open(text));
    QTRY_COMPARE(written(u"arguments"_s), "1|" + text.toUtf8());
    QVERIFY(!QFile::exists(m_folder->file(u"x"_s)));
}

void XdgShellTest::aPathOf4000CharactersIsOneArgument() {
    const QByteArray folder = m_folder->path().toLocal8Bit();
    install(u"xdg-open"_s, "printf '%s|%s' $# \"$1\" > " + folder + "/new\n/bin/mv " + folder +
                               "/new " + folder + "/arguments\n");
    const QString document = m_folder->writeFarDown(u"-a song.mp3"_s, 4000);
    QCOMPARE(document.size(), 4000);
    XdgShell shell;
    QVERIFY(shell.open(document));
    QTRY_COMPARE(written(u"arguments"_s), "1|" + document.toUtf8());
    QVERIFY(!QFile::exists(m_folder->file(u"x"_s)));
}

void XdgShellTest::withoutAnOpenerOpeningFails() {
    XdgShell shell;
    QVERIFY(!shell.open(u"http://example.org"_s));
}

void XdgShellTest::openingDoesNotWaitForTheOpener() {
    const QByteArray pipe = m_folder->file(u"never"_s).toLocal8Bit();
    const QByteArray folder = m_folder->path().toLocal8Bit();
    install(u"xdg-open"_s,
            "while [ -d " + folder + " ] && [ ! -e " + pipe + " ]; do /bin/sleep 0.05; done\n");
    XdgShell shell;
    QVERIFY(shell.open(u"http://example.org"_s)); // returns while the opener still waits
    m_folder->write(u"never"_s, {});
}

void XdgShellTest::theUsersScaleIsHandedOnAndNothingOfOurs() {
    qputenv("QT_SCALE_FACTOR", "1.5");
    qputenv("SOMETHING_ELSE", "kept");
    QCOMPARE(childEnvironment().value(u"QT_SCALE_FACTOR"_s), u"1.5"_s);
    QCOMPARE(childEnvironment().value(u"SOMETHING_ELSE"_s), u"kept"_s);
    qunsetenv("QT_SCALE_FACTOR");
    QVERIFY(!childEnvironment().contains(u"QT_SCALE_FACTOR"_s));
    qunsetenv("SOMETHING_ELSE");
}

void XdgShellTest::aProgramIsStartedByNameAndByPath() {
    const QByteArray folder = m_folder->path().toLocal8Bit();
    install(u"dialler"_s, "echo $# >> " + folder + "/started\n");
    XdgShell shell;
    shell.start(u"dialler"_s);
    QTRY_COMPARE(written(u"started"_s), QByteArray("0\n"));
    shell.start(m_folder->file(u"dialler"_s));
    QTRY_COMPARE(written(u"started"_s), QByteArray("0\n0\n"));
}

void XdgShellTest::aMissingProgramIsFileNotFound() {
    XdgShell shell;
    for (const auto& program : {u"DIALER.EXE"_s, m_folder->file(u"missing"_s), m_folder->path()}) {
        const auto failure = firstFailure([&] { shell.start(program); });
        QVERIFY(failure.has_value());
        QCOMPARE(failure->number(), ErrorNumber::FileNotFound);
    }
}

void XdgShellTest::noProgramAtAllIsAnInvalidCall() {
    XdgShell shell;
    const auto failure = firstFailure([&] { shell.start(QString()); });
    QVERIFY(failure.has_value());
    QCOMPARE(failure->number(), ErrorNumber::InvalidProcedureCall);
}

void XdgShellTest::aFileThatIsNoProgramIsAnInvalidCall() {
    XdgShell shell;
    m_folder->write(u"no program"_s, "text");
    const QString broken = m_folder->write(u"broken"_s, "\x7f"
                                                        "ELF and no more");
    QFile::setPermissions(broken, QFile::ReadOwner | QFile::ExeOwner);
    for (const auto& program : {m_folder->file(u"no program"_s), broken}) {
        const auto failure = firstFailure([&] { shell.start(program); });
        QVERIFY(failure.has_value());
        QCOMPARE(failure->number(), ErrorNumber::InvalidProcedureCall);
    }
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, XdgShellTest)
#include "xdg_shell_test.moc"
