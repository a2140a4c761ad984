// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/dialogs.h"
#include "runtime/failure.h"

#include <QFileDialog>
#include <QMap>
#include <QStandardPaths>

namespace orvalis {

/// The value of a property of a selection.
/// \throws RuntimeError 94 where the selection is mixed and so has none.
template <class T>
T notNull(const std::optional<T>& value) {
    if (!value)
        throw RuntimeError(ErrorNumber::InvalidUseOfNull);
    return *value;
}

/// The dialog control of a form: properties that are set before a dialog is shown and read after.
/// Each dialog holds the caller. Cancel leaves the properties as they were, and is a failure
/// (32755) where `CancelError` asks for that.
class CommonDialog {
public:
    explicit CommonDialog(Dialogs& dialogs)
        : m_dialogs(dialogs) {}

    QString FileName;
    QString Filter; ///< "Text|*.txt|All Files|*.*"
    QString InitDir;
    QString DialogTitle;
    int Flags = 0;
    bool CancelError = false;

    bool FontItalic = false;
    bool FontBold = false;
    QString FontName;
    qreal FontSize = 8; ///< points
    bool FontStrikethru = false;
    bool FontUnderline = false;
    quint32 Color = 0; ///< 0xBBGGRR

    void ShowOpen();
    void ShowSave();
    void ShowFont();
    void ShowColor();

private:
    void cancelled() const;
    FileRequest fileRequest() const;

    Dialogs& m_dialogs;
};

/// The dialogs on the screen. File dialogs ask nothing of their own about existing files and add
/// no extension.
class QtDialogs final : public Dialogs {
public:
    // Each throws ProgramEnded when the program ended while the dialog was open.
    std::optional<QString> openFile(const FileRequest& request) override;
    std::optional<QString> saveFile(const FileRequest& request) override;
    std::optional<FontChoice> chooseFont(const FontChoice& present) override;
    std::optional<quint32> chooseColour(quint32 present) override;

private:
    std::optional<QString> chooseFile(const FileRequest& request, QFileDialog::AcceptMode mode,
                                      const QString& title);

    /// Where the last file of each kind was chosen in this run.
    QMap<QStandardPaths::StandardLocation, QString> m_lastFolders;
};

/// The folder of the user's that holds files of a filter's kind: Music for sounds, Pictures for
/// pictures, Documents for all others.
QStandardPaths::StandardLocation folderOfKind(const QString& filter);

/// The name filters of a file dialog from the "words|patterns" pairs of a filter text.
QStringList nameFilters(const QString& filter);

} // namespace orvalis
