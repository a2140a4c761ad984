// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/reading/sink.h"

#include <QList>

namespace orvalis::test {

/// Writes down what a reader tells: the whole text, with paragraph ends as line feeds and pictures
/// as U+FFFC, and each run, paragraph and picture with its format.
class RecordingSink final : public rtf::Sink {
public:
    struct Run {
        QString text;
        rtf::CharFormat format;
        QString family;
        QString link;
    };
    struct Paragraph {
        QString text;
        rtf::ParagraphFormat format;
        rtf::CharFormat mark;
        bool ended = true;
    };

    QString whole;
    QList<Run> runs;
    QList<Paragraph> paragraphs; ///< the last one has no end of its own
    QList<rtf::Picture> pictures;
    int defaultTabTwips = 0;
    int begun = 0;
    int finished = 0;
    bool refusesPictures = false;

    void begin(const rtf::Names& names) override {
        ++begun;
        m_names = &names;
    }

    void text(QStringView piece, const rtf::CharFormat& format) override {
        whole += piece;
        m_line += piece;
        runs.append({piece.toString(), format, m_names->familyAt(format.family),
                     m_names->linkAt(format.link).target});
    }

    bool picture(const rtf::Picture& picture, const rtf::CharFormat& /*format*/) override {
        if (refusesPictures)
            return false;
        whole += QChar(QChar::ObjectReplacementCharacter);
        m_line += QChar(QChar::ObjectReplacementCharacter);
        pictures.append(picture);
        return true;
    }

    void paragraphEnd(const rtf::ParagraphFormat& format, const rtf::CharFormat& mark) override {
        whole += u'\n';
        paragraphs.append({std::exchange(m_line, {}), format, mark, true});
    }

    void end(const rtf::ParagraphFormat& format, const rtf::CharFormat& mark) override {
        ++finished;
        paragraphs.append({std::exchange(m_line, {}), format, mark, false});
    }

    void defaultTab(int twips) override { defaultTabTwips = twips; }

private:
    const rtf::Names* m_names = nullptr;
    QString m_line;
};

} // namespace orvalis::test
