// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/formats.h"
#include "rtf/kept/kept_parts.h"
#include "rtf/pictures/picture.h"

#include <QStringView>

namespace orvalis::rtf {

/// Receives what a reader finds, in the order of the document.
///
/// A paragraph's shape is known when it ends, so text and pictures come first and the paragraph
/// end behind them. Text holds no paragraph separators; U+2028 breaks a line inside a paragraph.
class Sink {
public:
    virtual ~Sink() = default;

    /// Comes once, before everything else. The names stay valid, and grow, until end().
    virtual void begin(const Names& names) = 0;
    virtual void text(QStringView text, const CharFormat& format) = 0;
    /// \returns whether the picture could be used; one that could not is a fault of the file.
    virtual bool picture(const Picture& picture, const CharFormat& format) = 0;
    /// Whether the picture that came last could not be shown, so that another form of it may be.
    virtual bool wantsFallback() const { return false; }
    /// Another form of the picture that came last. Comes only where it is wanted.
    virtual void fallbackPicture(const Picture& /*picture*/) {}
    virtual void paragraphEnd(const ParagraphFormat& paragraph, const CharFormat& mark) = 0;
    /// Comes ahead of the paragraph behind an item of a list, where the row of that was left open.
    virtual void rowStaysOpen() {}
    /// Comes once, last: the shape of what came behind the last paragraph end.
    virtual void end(const ParagraphFormat& paragraph, const CharFormat& mark) = 0;
    /// Whether entries of the file's style sheet mean anything where the text goes.
    virtual bool takesStyles(const QString& /*styles*/) { return true; }
    /// The same of its table of who changed the text.
    virtual bool takesAuthors(const QString& /*authors*/) { return true; }
    /// What is kept of the place behind the text or picture that came last in the paragraph.
    virtual void anchor(const QString& /*kept*/) {}
    /// Comes once, ahead of end().
    virtual void kept(const KeptParts& /*parts*/) {}
    /// Whether nothing more can be taken. The reading ends there.
    virtual bool isFull() const { return false; }
    /// The distance of default tab stops in twips, where the file names one.
    virtual void defaultTab(int /*twips*/) {}
};

/// Takes everything and keeps nothing: what a reading costs without its target.
class NullSink final : public Sink {
public:
    void begin(const Names& /*names*/) override {}
    void text(QStringView /*text*/, const CharFormat& /*format*/) override {}
    bool picture(const Picture& /*picture*/, const CharFormat& /*format*/) override { return true; }
    void paragraphEnd(const ParagraphFormat& /*paragraph*/, const CharFormat& /*mark*/) override {}
    void end(const ParagraphFormat& /*paragraph*/, const CharFormat& /*mark*/) override {}
};

} // namespace orvalis::rtf
