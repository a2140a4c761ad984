// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/panel_ground.h"

#include "support/small_disk.h"
#include "support/without_root.h"

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

const QStringList DataFiles{u"tmp1.brf"_s, u"tmp2.brf"_s, u"Vazno.rtf"_s};

/// A document and two lists of a former run, large enough that a disk can run full over each.
void writeFormerRun(PanelGround& ground) {
    const QByteArray lines = QByteArray("a line of the document that is there already\\par ");
    ground.folder.write(u"Vazno.rtf"_s, "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0\\fs16 " +
                                            lines.repeated(100) + "}");
    const QByteArray body = QByteArray(3000, 'b');
    ground.folder.write(u"tmp1.brf"_s, " 3  1 \r\n\r\nFriday\r\n" + body + "\r\n");
    ground.folder.write(u"tmp2.brf"_s, " 3  1 \r\n\r\nFriday/07:30:00\r\n" + body + "\r\n");
}

QList<QByteArray> contents(PanelGround& ground) {
    QList<QByteArray> all;
    for (const QString& name : DataFiles)
        all << ground.folder.read(name);
    return all;
}

/// A message with both ticks, which goes into all three files.
void saveAMessage(PanelGround& ground) {
    ground.rt1().SetText(u"Call Ann"_s);
    ground.tick(u"chkTop"_s);
    ground.tick(u"chkRemind"_s);
    ground.rtMs2().SetText(u"Ann"_s);
    ground.press(u"Button1"_s);
    ground.press(u"imgSave"_s);
}

void pressEverySave(PanelGround& ground) {
    for (const QString& button : {u"imstodo"_s, u"imgsoo"_s, u"imgso"_s})
        ground.press(button);
    ground.panel().sv1();
    ground.panel().sv3();
}

} // namespace

/// The panel where its folder cannot be written: it says nothing, and what was stored stays.
class RefusedDiskTest : public QObject {
    Q_OBJECT
private slots:
    void aReadOnlyFolderKeepsItsFilesAndNothingIsReported();
    void aReadOnlyFolderIsNotWrittenThroughItsFiles();
    void aFullDiskKeepsTheOldFilesAndNothingIsReported();
    void aMessageThatCouldNotBeStoredIsStoredWithTheNext();
    void aListThatCouldNotBeWrittenIsReadBackAsItWas();
};

void RefusedDiskTest::aReadOnlyFolderKeepsItsFilesAndNothingIsReported() {
    const WithoutRoot ordinaryUser;
    PanelGround ground;
    writeFormerRun(ground);
    const QList<QByteArray> before = contents(ground);
    ground.shown();
    for (const QString& name : DataFiles)
        QVERIFY(QFile::setPermissions(ground.folder.file(name), QFile::ReadOwner));
    ground.folder.setWritable(false);
    saveAMessage(ground);
    pressEverySave(ground);
    ground.folder.setWritable(true);
    QVERIFY(ground.boxes.asked.isEmpty());
    QCOMPARE(contents(ground), before);
    QCOMPARE(ground.folder.names(), DataFiles);
    QVERIFY(ground.rt1a().Text().contains(u"Call Ann"_s));
}

void RefusedDiskTest::aReadOnlyFolderIsNotWrittenThroughItsFiles() {
    const WithoutRoot ordinaryUser;
    PanelGround ground;
    writeFormerRun(ground);
    const QList<QByteArray> before = contents(ground);
    ground.shown();
    ground.folder.setWritable(false);
    saveAMessage(ground);
    pressEverySave(ground);
    ground.folder.setWritable(true);
    QCOMPARE(contents(ground), before);
    QCOMPARE(ground.folder.names(), DataFiles);
}

void RefusedDiskTest::aFullDiskKeepsTheOldFilesAndNothingIsReported() {
    PanelGround ground;
    writeFormerRun(ground);
    const QList<QByteArray> before = contents(ground);
    ground.shown();
    {
        const SmallDisk disk(1000);
        saveAMessage(ground);
        pressEverySave(ground);
    }
    QVERIFY(ground.boxes.asked.isEmpty());
    QCOMPARE(contents(ground), before);
    QCOMPARE(ground.folder.names(), DataFiles);
    QVERIFY(ground.rt1a().Text().contains(u"Call Ann"_s));
}

void RefusedDiskTest::aMessageThatCouldNotBeStoredIsStoredWithTheNext() {
    PanelGround ground;
    writeFormerRun(ground);
    ground.shown();
    {
        const SmallDisk disk(1000);
        saveAMessage(ground);
    }
    ground.rt1().SetText(u"Call Bob"_s);
    ground.press(u"imgSave"_s);
    const QByteArray stored = ground.folder.read(u"Vazno.rtf"_s);
    QVERIFY(stored.contains("Call Ann"));
    QVERIFY(stored.contains("Call Bob"));
    QVERIFY(stored.contains("there already"));
}

void RefusedDiskTest::aListThatCouldNotBeWrittenIsReadBackAsItWas() {
    PanelGround ground;
    writeFormerRun(ground);
    ground.shown();
    {
        const SmallDisk disk(1000);
        saveAMessage(ground);
    }
    for (const GridModel* list :
         {&ground.MS1().grid(), &ground.MS3().grid(), &ground.MS2().grid()}) {
        QCOMPARE(list->Rows(), 3);
        QVERIFY(list->TextMatrix(1, 0).startsWith(u"Friday"_s));
    }
}

ORVALIS_TEST_MAIN_WITH(QApplication, RefusedDiskTest)
#include "refused_disk_test.moc"
