// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/sound_player.h"

#include "support/temporary_folder.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QElapsedTimer>

using namespace Qt::StringLiterals;
using namespace orvalis;
using namespace orvalis::test;

namespace {

const QString BinFolder = QStringLiteral(ORVALIS_BIN_FOLDER);

bool multimediaIsLoaded() {
    QFile maps(u"/proc/self/maps"_s);
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("libQt6Multimedia");
}

} // namespace

class SoundPlayerTest : public QObject {
    Q_OBJECT
private slots:
    void nothingOfMultimediaIsLoadedBeforeASoundIsThere();
    void aFileThatIsNoSoundReturnsAtOnce();
    void withoutTheOutputLibraryItReturnsAtOnce();
    void aFileBeyondTheLargestSoundIsNotPlayed();
    void playingHoldsTheThreadAtMostForTheLengthOfTheFile();
};

void SoundPlayerTest::nothingOfMultimediaIsLoadedBeforeASoundIsThere() {
    DeviceSoundPlayer player({BinFolder});
    player.playAndWait(QString());
    player.playAndWait(u"/missing/Alarm.wav"_s);
    QVERIFY(!multimediaIsLoaded());
}

void SoundPlayerTest::aFileThatIsNoSoundReturnsAtOnce() {
    const TemporaryFolder folder;
    DeviceSoundPlayer player({BinFolder});
    player.playAndWait(folder.write(u"Alarm.wav"_s, "no sound"));
    player.playAndWait(folder.path());
    QVERIFY(!multimediaIsLoaded());
}

void SoundPlayerTest::withoutTheOutputLibraryItReturnsAtOnce() {
    const TemporaryFolder folder;
    DeviceSoundPlayer player({folder.path()});
    player.playAndWait(BinFolder + u"/Alarm.wav"_s);
    QVERIFY(!multimediaIsLoaded());
}

void SoundPlayerTest::aFileBeyondTheLargestSoundIsNotPlayed() {
    const TemporaryFolder folder;
    QVERIFY(QFile::copy(BinFolder + u"/Alarm.wav"_s, folder.file(u"Alarm.wav"_s)));
    QFile sound(folder.file(u"Alarm.wav"_s));
    QVERIFY(sound.resize(qint64{32} * 1024 * 1024 + 1));
    DeviceSoundPlayer player({BinFolder});
    player.playAndWait(sound.fileName());
    QVERIFY(!multimediaIsLoaded());
}

void SoundPlayerTest::playingHoldsTheThreadAtMostForTheLengthOfTheFile() {
    constexpr qint64 Length = 1400;
    constexpr qint64 Loading = 5000; // of the library and its connection, on a busy machine
    DeviceSoundPlayer player({BinFolder});
    QElapsedTimer held;
    held.start();
    player.playAndWait(BinFolder + u"/Alarm.wav"_s);
    QVERIFY(held.elapsed() < Length + Loading);
    QVERIFY(multimediaIsLoaded());
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, SoundPlayerTest)
#include "sound_player_test.moc"
