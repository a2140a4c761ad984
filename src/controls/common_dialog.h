// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/dialogs.h"
#include "runtime/failure.h"

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

    QString FileName;  ///< of the file accepted last, with its path; offered at the next dialog
    QString FileTitle; ///< of the file accepted last, without its path
    QString Filter;    ///< "Text|*.txt|All Files|*.*"
    QString InitDir;
    /// These two are the next file dialog's alone: one control serves many commands.
    QString DialogTitle;
    QString DefaultExt;
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
    /// Sets up the printer that documents go to.
    void ShowPrinter();

private:
    void cancelled() const;
    FileRequest takeFileRequest();
    void takeFile(const std::optional<QString>& chosen);

    Dialogs& m_dialogs;
};

} // namespace orvalis
