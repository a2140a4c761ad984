// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/chm_directory.h"
#include "platform/chm_file.h"
#include "runtime/file_saving.h"
#include "runtime/files.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QProcess>
#include <QRandomGenerator>
#include <QSet>
#include <QTemporaryDir>
#include <QtEndian>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

const QString HelpFile = QStringLiteral(ORVALIS_HELP_FILE);

} // namespace

/// Reads the manual that the build has compiled, and damaged copies of it.
class ChmFileTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { m_whole = readWhole(HelpFile); }

    void theManualOpensWithTitleFirstPageAndFiles() {
        const auto help = ChmFile::open(HelpFile);
        QVERIFY(help != nullptr);
        QCOMPARE(help->title(), u"Orvalis Help"_s);
        QCOMPARE(help->defaultTopic(), u"first_steps.html"_s);
        QVERIFY(help->files().contains(u"first_steps.html"_s));
        QVERIFY(help->files().contains(u"manual.css"_s));
        for (const QString& file : help->files())
            QVERIFY2(!file.startsWith(u'#') && !file.startsWith(u'$'), qPrintable(file));
    }

    void anIndependentReaderListsTheSameFiles() {
        QProcess reader;
        reader.start(u"chmls"_s, {u"list"_s, HelpFile});
        QVERIFY2(reader.waitForFinished(), "chmls comes with the compiler of the help");
        QSet<QString> listed;
        for (const QByteArray& line : reader.readAllStandardOutput().split('\n')) {
            const QString name = QString::fromUtf8(line).section(u"  /"_s, 1).trimmed();
            if (!name.isEmpty() && !name.startsWith(u'#') && !name.startsWith(u'$') &&
                !name.startsWith(u'_'))
                listed << name;
        }
        const QStringList own = ChmFile::open(HelpFile)->files();
        QCOMPARE(listed, QSet<QString>(own.begin(), own.end()));
        QVERIFY(listed.contains(u"main_window.png"_s));
    }

    void eachFileIsReadWhole() {
        const auto help = ChmFile::open(HelpFile);
        QVERIFY(help->read(u"first_steps.html"_s).startsWith("<!DOCTYPE html>"));
        QVERIFY(help->read(u"first_steps.html"_s).trimmed().endsWith("</html>"));
        for (const QString& file : help->files())
            QVERIFY2(!help->read(file).isEmpty(), qPrintable(file));
    }

    void aFileThatIsNotInItIsNull() {
        const auto help = ChmFile::open(HelpFile);
        QVERIFY(help->read(u"missing.html"_s).isNull());
        QVERIFY(help->read(QString()).isNull());
        QVERIFY(help->read(QString(4000, u'x')).isNull());
    }

    void theContentsTellNamesPagesAndDepths() {
        const auto topics = ChmFile::open(HelpFile)->contents();
        QVERIFY(topics.size() >= 10);
        QCOMPARE(topics.constFirst().name, u"First steps"_s);
        QCOMPARE(topics.constFirst().page, u"first_steps.html"_s);
        QCOMPARE(topics.constFirst().depth, 0);
        const auto planner = std::find_if(topics.begin(), topics.end(), [](const ChmTopic& topic) {
            return topic.page == u"weekly.html"_s;
        });
        QVERIFY(planner != topics.end());
        QCOMPARE(planner->depth, 1);
    }

    void aSitemapIsReadWhateverItsSpelling() {
        const auto topics = readSitemap(
            u"<UL><LI> <OBJECT type='text/sitemap'><param value='A &amp; B' name='Name'></OBJECT>"
            "<ul><li><object><PARAM NAME=\"Name\" VALUE=\"C\"><param name=local value=c.html#x>"
            "</object></ul></UL><li><object><param name=Name value=D></object>"_s);
        QCOMPARE(topics.size(), 3);
        QCOMPARE(topics.at(0).name, u"A & B"_s);
        QCOMPARE(topics.at(0).page, QString());
        QCOMPARE(topics.at(1).name, u"C"_s);
        QCOMPARE(topics.at(1).page, u"c.html#x"_s);
        QCOMPARE(topics.at(1).depth, 1);
        QCOMPARE(topics.at(2).depth, 0);
    }

    void aSitemapThatIsNoneGivesNoTopics() {
        QVERIFY(readSitemap(QString()).isEmpty());
        QVERIFY(readSitemap(u"<ul><li><object><param name=Name"_s).isEmpty());
        QVERIFY(readSitemap(QString(10000, u'<') + u"<ul>"_s.repeated(5000)).isEmpty());
    }

    void aMissingFileDoesNotOpen() {
        QVERIFY(ChmFile::open(m_folder.filePath(u"none.chm"_s)) == nullptr);
        QVERIFY(ChmFile::open(m_folder.path()) == nullptr);
        QVERIFY(ChmFile::open(QString()) == nullptr);
    }

    void aFileOfAnotherKindDoesNotOpen_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("This is a text and no help.\n").repeated(400);
        QTest::newRow("zeros") << QByteArray(100000, '\0');
        QTest::newRow("header alone") << m_whole.first(0x60);
        QTest::newRow("name alone") << QByteArray("ITSF");
        QTest::newRow("name and zeros") << QByteArray("ITSF") + QByteArray(100000, '\0');
        QTest::newRow("name and ones") << QByteArray("ITSF") + QByteArray(100000, '\xff');
    }
    void aFileOfAnotherKindDoesNotOpen() {
        QFETCH(QByteArray, bytes);
        QVERIFY(open(bytes) == nullptr);
    }

    void aFileThatWasCutOffDoesNotOpenWhereverItWasCut() {
        for (qsizetype length = 0; length < m_whole.size(); length += 97)
            QVERIFY2(!readChmDirectory(m_whole.first(length)).has_value(),
                     qPrintable(QString::number(length)));
        QVERIFY(!readChmDirectory(m_whole.chopped(1)).has_value());
        QVERIFY(open(m_whole.chopped(1)) == nullptr);
        QVERIFY(open(m_whole.first(m_whole.size() / 2)) == nullptr);
    }

    void aDirectoryThatLeadsInACircleIsRefused() {
        const auto directory = qFromLittleEndian<quint64>(m_whole.constData() + 0x48);
        const qsizetype firstBlock = static_cast<qsizetype>(directory) + 0x54;
        QCOMPARE(m_whole.mid(firstBlock, 4), QByteArray("PMGL"));
        QByteArray bytes = m_whole;
        bytes.replace(firstBlock + 0x10, 4, QByteArray(4, '\0'));
        QVERIFY(!readChmDirectory(bytes).has_value());
    }

    void damageAnywhereEndsInAnAnswer() {
        // Neither in a crash nor, at the end of ctest's patience, in a walk without end.
        QRandomGenerator random(20261121);
        int opened = 0;
        for (int round = 0; round < 300; ++round) {
            QByteArray bytes = m_whole;
            // The books at the beginning and the packed pages behind them alike.
            const qsizetype reach = round % 2 == 0 ? 0x1200 : bytes.size();
            for (int hits = 0; hits <= round % 8; ++hits)
                bytes[random.bounded(reach)] = static_cast<char>(random.bounded(256));
            const auto help = open(bytes);
            if (!help)
                continue;
            ++opened;
            help->contents();
            for (const QString& file : help->files())
                help->read(file);
        }
        QVERIFY2(opened > 0, "no damage got as far as a reading");
    }

    void theSameSourcesGiveTheSameFile() {
        // The times of making stand in the header and in the system's books.
        QCOMPARE(m_whole.mid(0x10, 4), QByteArray(4, '\0'));
    }

private:
    std::unique_ptr<ChmFile> open(const QByteArray& bytes) {
        const QString path = m_folder.filePath(u"damaged.chm"_s);
        saveWhole(path, bytes);
        return ChmFile::open(path);
    }

    QTemporaryDir m_folder;
    QByteArray m_whole;
};

ORVALIS_TEST_MAIN_WITH(QGuiApplication, ChmFileTest)
#include "chm_file_test.moc"
