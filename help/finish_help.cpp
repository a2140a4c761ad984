// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// finish_help MADE FINISHED SOURCE...: looks whether the compiled help holds each source file with
// every byte of it, since the compiler's exit status does not tell, and writes it without the time
// of its making, so that the same sources give the same file.
#include "platform/chm_directory.h"
#include "platform/chm_file.h"
#include "runtime/failure.h"
#include "runtime/file_saving.h"
#include "runtime/files.h"

#include <QFileInfo>
#include <QStringList>
#include <QtEndian>

#include <cstdio>

using namespace orvalis;

namespace {

constexpr qsizetype FileTimePlace = 0x10;
constexpr qsizetype ContentOffsetPlace = 0x58;
constexpr qsizetype TimeLength = 4;
constexpr quint16 SystemTimeCode = 10;

int refuse(const QString& why) {
    std::fprintf(stderr, "finish_help: %s\n", qPrintable(why));
    return 1;
}

/// The time stands in the file's header and in an entry of `/#SYSTEM`, which is never packed.
bool blankTimes(QByteArray& bytes) {
    const auto entries = readChmDirectory(bytes);
    if (!entries.has_value())
        return false;
    const auto blank = [&bytes](qsizetype place) {
        bytes.replace(place, TimeLength, QByteArray(TimeLength, '\0'));
    };
    blank(FileTimePlace);
    const auto content = qFromLittleEndian<quint64>(bytes.constData() + ContentOffsetPlace);
    for (const ChmEntry& entry : *entries) {
        if (entry.path != "/#SYSTEM" || entry.section != 0)
            continue;
        auto place = static_cast<qsizetype>(content + entry.offset) + 4;
        const auto end = static_cast<qsizetype>(content + entry.offset + entry.length);
        while (place + 4 <= end) {
            const auto code = qFromLittleEndian<quint16>(bytes.constData() + place);
            const auto length = qFromLittleEndian<quint16>(bytes.constData() + place + 2);
            if (code == SystemTimeCode && length == TimeLength)
                blank(place + 4);
            place += 4 + length;
        }
    }
    return true;
}

int finish(const QString& made, const QString& finished, const QStringList& sources) {
    const auto help = ChmFile::open(made);
    if (!help)
        return refuse(QStringLiteral("%1 is no compiled help").arg(made));
    for (const QString& source : sources) {
        const QString name = QFileInfo(source).fileName();
        if (help->read(name) != readWhole(source))
            return refuse(QStringLiteral("%1 is not in the compiled help as it stands").arg(name));
    }
    QByteArray bytes = readWhole(made);
    if (!blankTimes(bytes))
        return refuse(QStringLiteral("%1 has no readable directory").arg(made));
    saveWhole(finished, bytes);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    if (arguments.size() < 3)
        return refuse(QStringLiteral("usage: finish_help MADE FINISHED SOURCE..."));
    try {
        return finish(arguments.at(0), arguments.at(1), arguments.mid(2));
    } catch (const RuntimeError& error) {
        return refuse(error.description());
    }
}
