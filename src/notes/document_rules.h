// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis {

class App;

/// The title of a page that holds no file.
QString untitled();

/// How a document of that file title is read and written: as rich text (RichTextBox::rtfRTF) where
/// the title ends in "f" or "F", otherwise as plain text (RichTextBox::rtfText). Its last letter
/// alone counts.
int documentFlags(const QString& fileTitle);

/// Whether a path is that of a document which the program itself keeps. Compared letter by letter:
/// the same name in other capitals is none of them.
bool isNeededFile(const QString& path, const App& app);

/// The question that a save asks where a file lies already.
QString replaceQuestion(const QString& path);

/// Whether the left page stands for a file that can go with a message: it has a title of its own,
/// which does not begin with "untitled" in any capitals, and a path.
bool mayBeMailed(const QString& title, const QString& path);

/// What the find frame begins with: the first line of a selection.
QString firstLine(const QString& text);

/// The text that Sad() inserts: of kind 1 the date, of kind 2 the time, of kind 3 both; nothing of
/// any other kind.
QString dateAndTime(int kind, const QString& date, const QString& time);

} // namespace orvalis
