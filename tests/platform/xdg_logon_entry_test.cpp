// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/xdg/xdg_logon_entry.h"

#include "support/temporary_folder.h"
#include "support/test_main.h"
#include "support/without_root.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace orvalis;
using namespace orvalis::test;

namespace {

/// The value of a key as a reader of desktop entries takes it.
QString valueOf(const QByteArray& content, const QByteArray& key) {
    for (const QByteArray& line : content.split('\n')) {
        if (!line.startsWith(key + '='))
            continue;
        const QString written = QString::fromUtf8(line.sliced(key.size() + 1));
        QString value;
        for (qsizetype i = 0; i < written.size(); ++i) {
            if (written[i] != u'\\') {
                value += written[i];
                continue;
            }
            const QChar escaped = written[++i];
            value += escaped == u'n'   ? u'\n'
                     : escaped == u't' ? u'\t'
                     : escaped == u'r' ? u'\r'
                     : escaped == u's' ? u' '
                                       : escaped;
        }
        return value;
    }
    return u"(missing)"_s;
}

/// The arguments of a command line as a starter of desktop entries takes them apart.
QStringList argumentsOf(const QString& commandLine) {
    QStringList arguments;
    bool quoted = false;
    bool inside = false;
    for (qsizetype i = 0; i < commandLine.size(); ++i) {
        QChar c = commandLine[i];
        if (c == u'"') {
            quoted = !quoted;
        } else if (c == u' ' && !quoted) {
            inside = false;
            continue;
        } else if (c == u'\\' && quoted) {
            c = commandLine[++i];
        } else if (c == u'%') {
            c = commandLine[++i];
            if (c != u'%')
                return {u"(field code)"_s};
        }
        if (!inside)
            arguments << QString();
        inside = true;
        if (c != u'"' || (i > 0 && commandLine[i - 1] == u'\\'))
            arguments.last() += c;
    }
    return arguments;
}

} // namespace

class XdgLogonEntryTest : public QObject {
    Q_OBJECT
private slots:
    void theEntryIsADesktopFile();
    void anyPathSurvivesTheQuoting_data();
    void anyPathSurvivesTheQuoting();
    void settingAgainReplacesTheEntry();
    void removingTakesTheFileAway();
    void removingNothingReportsNothing();
    void aFolderThatCannotBeWrittenReportsNothing();
    void theDefaultFolderIsTheDesktopsOwn();
};

void XdgLogonEntryTest::theEntryIsADesktopFile() {
    const TemporaryFolder folder;
    XdgLogonEntry entry(folder.file(u"autostart"_s));
    entry.set(u"Orvalis"_s, u"/opt/orvalis/orvalis"_s);
    QCOMPARE(folder.read(u"autostart/orvalis.desktop"_s),
             QByteArray("[Desktop Entry]\n"
                        "Type=Application\n"
                        "Name=Orvalis\n"
                        "TryExec=/opt/orvalis/orvalis\n"
                        "Exec=\"/opt/orvalis/orvalis\"\n"
                        "Terminal=false\n"));
}

void XdgLogonEntryTest::anyPathSurvivesTheQuoting_data() {
    QTest::addColumn<QString>("path");
    for (const auto& path :
         {u"/opt/orvalis"_s, u"/home/a b/orvalis"_s, u"/home/\"q\"/orvalis"_s,
          u"/home/$HOME/`id`/orvalis"_s, u"/home/a\\b/orvalis"_s, u"/home/100%/%f/orvalis"_s,
          u"/home/a;b&c|d/orvalis"_s, u"/home/'x'/orvalis"_s, u"/home/a\nb\tc/orvalis"_s,
          u"/home/Ђорђе/orvalis"_s, u"/home/#x/orvalis"_s, u"/home/a\\nb/orvalis"_s})
        QTest::newRow(qPrintable(path)) << path;
}

void XdgLogonEntryTest::anyPathSurvivesTheQuoting() {
    QFETCH(QString, path);
    const QByteArray content = autostartContent(u"Orvalis"_s, path);
    QCOMPARE(content.count('\n'), 6);
    QCOMPARE(valueOf(content, "TryExec"), path);
    QCOMPARE(argumentsOf(valueOf(content, "Exec")), QStringList{path});
}

void XdgLogonEntryTest::settingAgainReplacesTheEntry() {
    const TemporaryFolder folder;
    XdgLogonEntry entry(folder.path());
    entry.set(u"Orvalis"_s, u"/old"_s);
    entry.set(u"Orvalis"_s, u"/new"_s);
    QCOMPARE(folder.names(), QStringList{u"orvalis.desktop"_s});
    QCOMPARE(valueOf(folder.read(u"orvalis.desktop"_s), "TryExec"), u"/new"_s);
}

void XdgLogonEntryTest::removingTakesTheFileAway() {
    const TemporaryFolder folder;
    XdgLogonEntry entry(folder.path());
    folder.write(u"other.desktop"_s, "x");
    entry.set(u"Orvalis"_s, u"/opt/orvalis"_s);
    entry.remove(u"Orvalis"_s);
    QCOMPARE(folder.names(), QStringList{u"other.desktop"_s});
}

void XdgLogonEntryTest::removingNothingReportsNothing() {
    const TemporaryFolder folder;
    XdgLogonEntry entry(folder.file(u"autostart"_s));
    entry.remove(u"Orvalis"_s);
    QVERIFY(folder.names().isEmpty());
}

void XdgLogonEntryTest::aFolderThatCannotBeWrittenReportsNothing() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    XdgLogonEntry entry(folder.path());
    entry.set(u"Orvalis"_s, u"/old"_s);
    QVERIFY(QFile::setPermissions(folder.file(u"orvalis.desktop"_s), QFile::ReadOwner));
    folder.setWritable(false);
    entry.set(u"Orvalis"_s, u"/new"_s);
    entry.remove(u"Orvalis"_s);
    folder.setWritable(true);
    QCOMPARE(valueOf(folder.read(u"orvalis.desktop"_s), "TryExec"), u"/old"_s);
}

void XdgLogonEntryTest::theDefaultFolderIsTheDesktopsOwn() {
    const TemporaryFolder folder;
    qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
    QCOMPARE(XdgLogonEntry::defaultFolder(), folder.file(u"autostart"_s));
    qunsetenv("XDG_CONFIG_HOME");
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, XdgLogonEntryTest)
#include "xdg_logon_entry_test.moc"
