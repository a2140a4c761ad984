// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reader.h"
#include "rtf/reading/sink.h"
#include "rtf/writer.h"

#include <QGuiApplication>
#include <QTextCursor>
#include <QTextDocument>

#include <cstdint>
#include <cstdlib>

using namespace orvalis::rtf;

namespace {

void require(bool held) {
    if (!held)
        std::abort();
}

/// Keeps nothing, but holds the reader to what it promises its sinks.
class SuspiciousSink final : public Sink {
public:
    explicit SuspiciousSink(qsizetype fileSize)
        : m_mostCharacters(2 * fileSize + 64) {}

    void begin(const Names& names) override {
        require(!m_names);
        m_names = &names;
    }
    void text(QStringView text, const CharFormat& format) override {
        require(m_names && !m_ended && !text.isEmpty());
        m_characters += text.size();
        require(m_characters <= m_mostCharacters);
        require(!text.contains(u'\n') && !text.contains(QChar(QChar::ParagraphSeparator)));
        require(format.halfPoints > 0);
        require(format.family == NoName || !m_names->familyAt(format.family).isEmpty());
        require(format.link == NoName || !m_names->linkAt(format.link).target.isEmpty());
    }
    bool picture(const Picture& picture, const CharFormat& /*format*/) override {
        require(!m_ended && !picture.bytes.isEmpty());
        const QSizeF wanted = wantedTwips(picture);
        require(wanted.width() <= 100000 && wanted.height() <= 100000);
        return picture.bytes.size() % 2 == 0;
    }
    void paragraphEnd(const ParagraphFormat& paragraph, const CharFormat& /*mark*/) override {
        require(m_names && !m_ended);
        require(paragraph.tabs.size() <= 32 && paragraph.before >= 0 && paragraph.after >= 0);
        require(paragraph.list.start >= 0);
    }
    void end(const ParagraphFormat& /*paragraph*/, const CharFormat& /*mark*/) override {
        require(m_names && !m_ended);
        m_ended = true;
    }
    void requireEnded() const { require(m_ended); }

private:
    const Names* m_names = nullptr;
    qsizetype m_mostCharacters;
    qsizetype m_characters = 0;
    bool m_ended = false;
};

void readIntoDocument(const QByteArray& rtf) {
    QTextDocument document;
    readRtf(rtf, document);
    QTextCursor cursor(&document);
    cursor.setPosition(document.characterCount() / 2);
    insertRtf(rtf, cursor);
    require(!writeRtf(document).isEmpty());
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QGuiApplication(*argc, *argv);
    return 0;
}

/// Any bytes can be read. One input in sixty-four goes into a document too, which costs much more.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    QByteArray rtf(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (!looksLikeRtf(rtf))
        rtf.prepend("{\\rtf1");
    SuspiciousSink sink(rtf.size());
    const ReadResult result = readRtf(rtf, sink);
    sink.requireEnded();
    require(result.position >= 0 && result.position <= rtf.size());
    if (size % 64 == 0)
        readIntoDocument(rtf);
    return 0;
}
