// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>

/// The stock letters, sentences and phrases. They are constants of the program, compiled in from
/// the files of the folder texts and read in place: none is touched before it is asked for.
namespace orvalis {

/// What is shown of a topic, numbered like the option buttons.
enum class TemplateKind { Letters, Sentences, Phrases };

/// The names of the 40 topics, which are the captions of the tree's leaves.
QStringList templateTopics();

/// The name of the file in which a topic's text of a kind stands; topics and kinds that share one
/// text have one name. Empty for what is no topic. Captions are compared exactly and with case.
QString templateFile(QStringView caption, TemplateKind kind);

/// A topic's text of a kind, its lines ended by CR and LF; nothing for what is no topic, as the
/// caption of a group.
std::optional<QString> templateText(QStringView caption, TemplateKind kind);

/// Whether the text goes into the preview piece by piece, in a plain look of its own, and not as a
/// whole: one alone does.
bool isWrittenInPieces(QStringView caption, TemplateKind kind);

/// A text of numbered steps cut into its heading and its steps; together they are the text.
QStringList templatePieces(const QString& text);

} // namespace orvalis
