// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/dialogs.h"

#include <QFileDialog>
#include <QMap>
#include <QStandardPaths>

#include <QStringList>

#include <functional>

class QPrinter;

namespace orvalis {

/// The dialogs on the screen. File dialogs ask nothing of their own about existing files and add
/// no extension; the print dialog offers no part of a document, for all of it is always printed.
class QtDialogs final : public Dialogs {
public:
    /// Gives the printer that the print dialog sets up.
    using PrinterSource = std::function<QPrinter&()>;

    explicit QtDialogs(PrinterSource printer = {});

    // Each throws ProgramEnded when the program ended while the dialog was open.
    std::optional<QString> openFile(const FileRequest& request) override;
    std::optional<QString> saveFile(const FileRequest& request) override;
    std::optional<FontChoice> chooseFont(const FontChoice& present) override;
    std::optional<quint32> chooseColour(quint32 present) override;
    /// \throws RuntimeError PrinterError where no printer was given.
    bool choosePrinter() override;

private:
    std::optional<QString> chooseFile(const FileRequest& request, QFileDialog::AcceptMode mode,
                                      const QString& title);

    PrinterSource m_printer;
    /// Where the last file of each kind was chosen in this run.
    QMap<QStandardPaths::StandardLocation, QString> m_lastFolders;
};

/// The folder of the user's that holds files of a filter's kind: Music for sounds, Pictures for
/// pictures, Documents for all others.
QStandardPaths::StandardLocation folderOfKind(const QString& filter);

/// The name filters of a file dialog from the "words|patterns" pairs of a filter text.
QStringList nameFilters(const QString& filter);

} // namespace orvalis
