// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis {

/// The desktop's own way to open documents and addresses and to start programs.
class Shell {
public:
    virtual ~Shell() = default;

    /// Opens a document or an address (with or without its scheme) with the program that the user
    /// has for it. \returns whether such an opening could be started.
    virtual bool open(const QString& documentOrAddress) = 0;

    /// Starts a program by name or path.
    /// \throws RuntimeError FileNotFound when there is none, InvalidProcedureCall for "" and for a
    /// file that is no program.
    virtual void start(const QString& program) = 0;
};

} // namespace orvalis
