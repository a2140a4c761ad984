// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis {

class AnsiPage;

/// Hears how far the cipher has come.
class CipherProgress {
public:
    virtual ~CipherProgress() = default;
    virtual void show() = 0;
    /// Not told where the run failed.
    virtual void hide() = 0;
    /// \param percent of the text's characters that were taken.
    /// \throws RuntimeError InvalidPropertyValue above 100; the run ends with it.
    virtual void setValue(float percent) = 0;
};

/// What the cipher asks of the system that it runs on.
struct CipherGround {
    const AnsiPage& page; ///< the one-byte codes that every step works on
    /// The sign ahead of the decimals in the text of a number. Method 2 halves odd codes evenly
    /// only where this is "."; with any other sign they come back one off, as texts that were
    /// scrambled on such a system must go on to do.
    QChar decimalSign = u'.';
};

/// Scrambles a text with a password, or brings it back. Each character becomes a pair, shifted by
/// the code of one password character, which repeats; nothing in the pairs tells the method or
/// whether a password is right. Codes are shifted modulo 255, so that code 255 can be lost. This
/// keeps a text from being read at a glance; it is no strong encryption.
/// \param method 1 (shifted code and a decoy) or 2 (shifted half and plain half).
/// \returns the text itself for an empty password, and then \a progress hears nothing.
/// \throws RuntimeError Overflow for a text of more than 32767 characters, or of exactly that many
/// to be scrambled, once all are; InvalidPropertyValue for an odd number of characters to be
/// brought back; InvalidProcedureCall where a pair of method 2 comes back beyond code 255.
QString EncryptString(const QString& text, const QString& password, bool encrypt, int method,
                      const CipherGround& ground, CipherProgress& progress);

} // namespace orvalis
