// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// Build-time tool: skin_recorder <list of pictures> <folder of SVG files> <output folder>
// leaves a picture file for each recipe and skin_pictures.qrc, which names them all.
#include "skin/recorder/svg_recorder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace orvalis::skin::recorder;

namespace {

QString readText(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RecorderError(u"%1: %2"_s.arg(path, file.errorString()));
    return QString::fromUtf8(file.readAll());
}

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        throw RecorderError(u"%1: %2"_s.arg(path, file.errorString()));
}

void run(const QString& list, const QString& svgFolder, const QDir& out) {
    const SvgRecorder recorder(svgFolder, readRecipes(readText(list)));
    QString index = u"<RCC>\n <qresource prefix=\"/skin\">\n"_s;
    for (const Recipe& recipe : recorder.recipes()) {
        const QString name = recipe.name + u".pic"_s;
        write(out.filePath(name), recorder.recordedFile(recipe));
        index += u"  <file>%1</file>\n"_s.arg(name);
    }
    index += u" </qresource>\n</RCC>\n"_s;
    write(out.filePath(u"skin_pictures.qrc"_s), index.toUtf8());
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    QTextStream errors(stderr);
    if (arguments.size() != 4) {
        errors << "usage: skin_recorder <list of pictures> <folder of SVG files> <output folder>\n";
        return 2;
    }
    try {
        run(arguments[1], arguments[2], QDir(arguments[3]));
    } catch (const RecorderError& failure) {
        errors << failure.what() << '\n';
        return 1;
    }
    return 0;
}
