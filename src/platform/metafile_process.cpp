// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/metafile_process.h"

#include "platform/child_environment.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr int PictureMilliseconds = 1500;
/// A document may hold thousands of metafiles, each of which takes its time: all of them together
/// get this much of each stretch.
constexpr qint64 StretchMilliseconds = 30'000;
constexpr qint64 BudgetMilliseconds = 3'000;

constexpr qsizetype LargestMetafile = 16 * 1024 * 1024;
constexpr int LargestSide = 4096;

#ifdef Q_OS_UNIX
void limitChild() {
    const rlimit seconds{2, 2};
    const rlimit memory{512UL * 1024 * 1024, 512UL * 1024 * 1024};
    const rlimit fileSize{128UL * 1024 * 1024, 128UL * 1024 * 1024};
    ::setrlimit(RLIMIT_CPU, &seconds);
    ::setrlimit(RLIMIT_AS, &memory);
    ::setrlimit(RLIMIT_FSIZE, &fileSize);
}
#endif

} // namespace

bool MetafileProcess::mayRun() {
    if (!m_sinceFirst.isValid() || m_sinceFirst.elapsed() > StretchMilliseconds) {
        m_sinceFirst.start();
        m_spent = 0;
    }
    return m_spent < BudgetMilliseconds;
}

QImage MetafileProcess::convert(QByteArrayView metafile, QSize pixels) {
    if (metafile.size() > LargestMetafile || pixels.isEmpty() || !mayRun())
        return {};
    const QTemporaryDir folder;
    QFile source(folder.filePath(u"picture.wmf"_s));
    if (!source.open(QIODevice::WriteOnly) ||
        source.write(metafile.data(), metafile.size()) != metafile.size())
        return {};
    source.close();

    const QString target = folder.filePath(u"picture.png"_s);
    QProcess process;
    process.setProcessEnvironment(childEnvironment());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
#ifdef Q_OS_UNIX
    process.setChildProcessModifier(limitChild);
#endif
    QElapsedTimer timer;
    timer.start();
    process.start(u"wmf2gd"_s, {u"-t"_s, u"png"_s, u"--maxsize"_s,
                                u"--maxwidth=%1"_s.arg(std::min(pixels.width(), LargestSide)),
                                u"--maxheight=%1"_s.arg(std::min(pixels.height(), LargestSide)),
                                u"-o"_s, target, source.fileName()});
    const bool finished = process.waitForFinished(PictureMilliseconds);
    if (!finished) {
        process.kill();
        process.waitForFinished(PictureMilliseconds);
    }
    m_spent += timer.elapsed();
    return finished ? QImage(target, "PNG") : QImage();
}

} // namespace orvalis
