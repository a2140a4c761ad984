// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace orvalis {

/// The seven things that the font dialog offers. Sizes are points, the colour is 0xBBGGRR.
struct FontChoice {
    bool italic = false;
    bool bold = false;
    QString name;
    qreal size = 8;
    bool strikethrough = false;
    bool underline = false;
    quint32 colour = 0;

    bool operator==(const FontChoice&) const = default;
};

/// What a file dialog is asked for. The filter is written "Text|*.txt|All|*.*".
struct FileRequest {
    QString filter;
    QString directory;
    QString fileName;
    QString title;            ///< empty: the dialog's own
    QString defaultExtension; ///< is told, yet nothing adds it to a name
};

/// The platform's file, font, colour and print dialogs. The program shows real ones, a test answers
/// them. Each call holds the caller until the dialog is closed; an empty result means Cancel.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    virtual std::optional<QString> openFile(const FileRequest& request) = 0;
    virtual std::optional<QString> saveFile(const FileRequest& request) = 0;
    virtual std::optional<FontChoice> chooseFont(const FontChoice& present) = 0;
    virtual std::optional<quint32> chooseColour(quint32 present) = 0;
    /// Sets up the printer that documents go to. \returns false for Cancel.
    virtual bool choosePrinter() = 0;
};

} // namespace orvalis
