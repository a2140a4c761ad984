// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/qt_dialogs.h"

#include "controls/font_dialog.h"
#include "controls/form.h"
#include "controls/ordinary_pointer.h"
#include "runtime/colour.h"
#include "runtime/failure.h"
#include "runtime/format.h"
#include "runtime/program_end.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QHeaderView>
#include <QPrintDialog>
#include <QTreeView>

#include <algorithm>
#include <utility>

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize ComfortableSize(680, 430);
constexpr int DateColumn = 3;
const QDateTime WideDate(QDate(2028, 9, 28), QTime(20, 58, 58));

QWidget* owner() {
    Form* form = Form::lastActive();
    return form != nullptr && form->isVisible() ? form : nullptr;
}

/// Shows a dialog over the form that the user is in, also where that form lies on top of all.
int run(QDialog& dialog) {
    dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
    const OrdinaryPointer pointer;
    const int result = dialog.exec();
    throwIfEnded();
    return result;
}

/// Gives the list of files room for whole dates. A desktop's own file dialog has no such list.
void makeRoomForDates(QFileDialog& dialog) {
    auto* files = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (files == nullptr)
        return;
    dialog.resize(ComfortableSize);
    // Qt's own width is that of a date in one language.
    const int needed =
        files->fontMetrics().horizontalAdvance(generalDate(WideDate) + QStringLiteral("000"));
    QHeaderView& columns = *files->header();
    columns.resizeSection(DateColumn, std::max(needed, columns.sectionSize(DateColumn)));
}

/// The user's folder of that kind, or his home where he has none.
QString startFolder(QStandardPaths::StandardLocation kind) {
    const QString folder = QStandardPaths::writableLocation(kind);
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

} // namespace

std::optional<QString> QtDialogs::chooseFile(const FileRequest& request,
                                             QFileDialog::AcceptMode mode, const QString& title) {
    const auto kind = folderOfKind(request.filter);
    QString folder = request.directory;
    if (folder.isEmpty())
        folder = m_lastFolders.value(kind);
    if (folder.isEmpty())
        folder = startFolder(kind);
    QFileDialog dialog(owner(), request.title.isEmpty() ? title : request.title, folder);
    dialog.setObjectName(QStringLiteral("FileDialog"));
    dialog.setAcceptMode(mode);
    // A name that does not exist is the caller's to judge, who has words of his own for it.
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    const QStringList filters = nameFilters(request.filter);
    if (!filters.isEmpty())
        dialog.setNameFilters(filters);
    makeRoomForDates(dialog);
    if (!request.fileName.isEmpty())
        dialog.selectFile(request.fileName);
    if (run(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    const QString chosen = dialog.selectedFiles().constFirst();
    m_lastFolders[kind] = QFileInfo(chosen).absolutePath();
    return QDir::toNativeSeparators(chosen);
}

QtDialogs::QtDialogs(PrinterSource printer)
    : m_printer(std::move(printer)) {}

std::optional<QString> QtDialogs::openFile(const FileRequest& request) {
    return chooseFile(request, QFileDialog::AcceptOpen, QStringLiteral("Open"));
}

std::optional<QString> QtDialogs::saveFile(const FileRequest& request) {
    return chooseFile(request, QFileDialog::AcceptSave, QStringLiteral("Save As"));
}

std::optional<FontChoice> QtDialogs::chooseFont(const FontChoice& present) {
    FontDialog dialog(
        present, [this](quint32 colour) { return chooseColour(colour); }, owner());
    if (run(dialog) != QDialog::Accepted)
        return std::nullopt;
    return dialog.choice();
}

std::optional<quint32> QtDialogs::chooseColour(quint32 present) {
    QWidget* above = QApplication::activeModalWidget();
    QColorDialog dialog(toQColor(present), above != nullptr ? above : owner());
    dialog.setObjectName(QStringLiteral("ColourDialog"));
    if (run(dialog) != QDialog::Accepted)
        return std::nullopt;
    return fromQColor(dialog.selectedColor());
}

bool QtDialogs::choosePrinter() {
    if (!m_printer)
        throw RuntimeError(ErrorNumber::PrinterError);
    QPrintDialog dialog(&m_printer(), owner());
    dialog.setObjectName(QStringLiteral("PrintDialog"));
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize |
                      QAbstractPrintDialog::PrintCollateCopies);
    return run(dialog) == QDialog::Accepted;
}

QStandardPaths::StandardLocation folderOfKind(const QString& filter) {
    const auto has = [&filter](std::initializer_list<QLatin1String> patterns) {
        return std::any_of(patterns.begin(), patterns.end(), [&filter](QLatin1String pattern) {
            return filter.contains(pattern, Qt::CaseInsensitive);
        });
    };
    if (has({"*.wav"_L1, "*.mp3"_L1, "*.mid"_L1}))
        return QStandardPaths::MusicLocation;
    if (has({"*.bmp"_L1, "*.jpg"_L1, "*.gif"_L1, "*.png"_L1}))
        return QStandardPaths::PicturesLocation;
    return QStandardPaths::DocumentsLocation;
}

QStringList nameFilters(const QString& filter) {
    QStringList filters;
    const QStringList pieces = filter.split(u'|');
    for (qsizetype i = 0; i + 1 < pieces.size(); i += 2) {
        QString words = pieces[i].trimmed();
        QString patterns = pieces[i + 1];
        patterns.replace(u';', u' ');
        // The words often repeat the patterns in brackets; a file dialog would take those for its
        // patterns, without the blanks that it wants between them.
        const qsizetype bracket = words.lastIndexOf(u'(');
        if (bracket > 0 && words.endsWith(u')'))
            words = words.left(bracket).trimmed();
        if (patterns.trimmed() == QLatin1String("*.*"))
            patterns = QStringLiteral("*");
        filters << words + QStringLiteral(" (") + patterns.trimmed() + u')';
    }
    return filters;
}

} // namespace orvalis
