// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/sound_player.h"

#include "platform/sound/audio_output.h"
#include "platform/wave_file.h"
#include "runtime/failure.h"
#include "runtime/files.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

using namespace Qt::StringLiterals;

namespace orvalis {

namespace {

/// A sound holds the program as long as it plays; a larger file is none that is meant for that.
constexpr qint64 LargestSound = qint64{32} * 1024 * 1024;

std::optional<WaveSound> loadWave(const QString& path) {
    std::optional<WaveSound> sound;
    endSilently([&] { sound = readWave(readWhole(path, LargestSound)); });
    return sound;
}

PlayAndWait loadOutput(const QStringList& folders) {
    for (const QString& folder : folders) {
        const QFunctionPointer function =
            QLibrary::resolve(QDir(folder).filePath(u"orvalis_sound"_s), PlayAndWaitName);
        if (function)
            return reinterpret_cast<PlayAndWait>(function);
    }
    return nullptr;
}

} // namespace

DeviceSoundPlayer::DeviceSoundPlayer(const QStringList& libraryFolders)
    : m_libraryFolders(libraryFolders) {}

QStringList DeviceSoundPlayer::defaultFolders() {
    const QString beside = QCoreApplication::applicationDirPath();
    return {beside, QDir::cleanPath(beside + u"/../lib/orvalis"_s)};
}

void DeviceSoundPlayer::playAndWait(const QString& path) {
    const std::optional<WaveSound> sound = loadWave(path);
    if (!sound || sound->samples.isEmpty())
        return;
    if (const PlayAndWait play = loadOutput(m_libraryFolders))
        play(*sound);
}

} // namespace orvalis
