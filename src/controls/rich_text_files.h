// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

class QString;

namespace orvalis {

class RichTextBox;

/// The files that a rich text box is loaded from and saved to.
class RichTextFiles {
public:
    /// How the bytes of a plain text file are taken.
    enum class Plain {
        Notes, ///< ANSI page or UTF-8, whichever the bytes are; line ends of LF alone are lines
        Ansi,  ///< the ANSI page byte by byte, nothing is taken for anything else
    };

    explicit RichTextFiles(RichTextBox& box)
        : m_box(box) {}

    Plain plain() const { return m_plain; }
    void setPlain(Plain kind) { m_plain = kind; }

    /// Replaces the document by a file; flags 0 RTF, 1 plain text. Nothing changes on a failure.
    /// \throws RuntimeError InvalidFileFormat when flags are 0 and the file is not RTF, those of
    /// readWhole() when it cannot be read, InvalidProcedureCall for other flags.
    void LoadFile(const QString& path, int flags = 0);
    /// Writes the document whole. A file that could not be read, or not all of it, in whichever
    /// box, is kept aside first, under its name with ".unreadable" added. \throws RuntimeError
    /// those of saveWhole(), InvalidProcedureCall for other flags.
    void SaveFile(const QString& path, int flags = 0);

private:
    RichTextBox& m_box;
    Plain m_plain = Plain::Notes;
};

} // namespace orvalis
