// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace orvalis {

/// The desktop's own way to open documents and addresses and to start programs.
class Shell {
public:
    virtual ~Shell() = default;

    /// Opens a document or an address (with or without its scheme) with the program that the user
    /// has for it. \returns whether such an opening could be started.
    virtual bool open(const QString& documentOrAddress) = 0;

    /// Starts a program by name or path.
    /// \throws RuntimeError FileNotFound when there is none, InvalidProcedureCall for "".
    virtual void start(const QString& program) = 0;
};

/// The Shell of a free desktop: what is opened goes to xdg-open, as an argument and never through a
/// command line, so that no character of it can mean anything else.
class DesktopShell final : public Shell {
public:
    bool open(const QString& documentOrAddress) override;
    void start(const QString& program) override;
};

/// What to hand to the desktop for a text: an address as it stands, a document by its absolute
/// path, and "http://" ahead of an address without a scheme. Empty for a document that is not
/// there.
QString openingTarget(const QString& documentOrAddress);

} // namespace orvalis
